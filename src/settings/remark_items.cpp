#include "settings/remark_items.h"

#include <algorithm>

namespace veldrana {

std::optional<RemarkItem> remark_item_named(std::string_view name) {
    const auto* const found = std::find(remark_item_names.begin(), remark_item_names.end(), name);
    if (found == remark_item_names.end()) {
        return std::nullopt;
    }
    return static_cast<RemarkItem>(found - remark_item_names.begin());
}

}  // namespace veldrana
