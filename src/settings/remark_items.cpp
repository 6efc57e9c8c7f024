#include "settings/remark_items.h"

#include <algorithm>
#include <numeric>

namespace veldrana {

std::optional<RemarkItem> remark_item_named(std::string_view name) {
    const auto* const found = std::find(remark_item_names.begin(), remark_item_names.end(), name);
    if (found == remark_item_names.end()) {
        return std::nullopt;
    }
    return static_cast<RemarkItem>(found - remark_item_names.begin());
}

std::size_t RemarkLengths::sum() const noexcept {
    return std::accumulate(lengths_.begin(), lengths_.end(), std::size_t{0});
}

std::string set_Rmk_Len(const RemarkLengths& lengths, std::string_view name) {
    const std::optional<RemarkItem> item = remark_item_named(name);
    if (!item || *item == RemarkItem::memo_equals) {
        return "0";
    }
    return std::to_string(lengths.of(*item));
}

}  // namespace veldrana
