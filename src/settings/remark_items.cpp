#include "settings/remark_items.h"

#include <algorithm>
#include <numeric>

#include "settings/settings_store.h"

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

namespace {

// As the lengths know the items by their screen names.
std::optional<RemarkItem> item_with_length(std::string_view name) {
    const std::optional<RemarkItem> item = remark_item_named(name);
    return item == RemarkItem::memo_equals ? std::nullopt : item;
}

}  // namespace

std::string set_Rmk_Len(const RemarkLengths& lengths, std::string_view name) {
    const std::optional<RemarkItem> item = item_with_length(name);
    return item ? std::to_string(lengths.of(*item)) : "0";
}

void get_Rmk_Len_(RemarkLengths& lengths, std::string_view name, std::string_view length) {
    if (const std::optional<RemarkItem> item = item_with_length(name)) {
        lengths.set(*item, static_cast<std::size_t>(std::max(stored_number(length), 0)));
    }
}

}  // namespace veldrana
