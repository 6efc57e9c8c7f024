#include "rows/remark_slots.h"

#include <vector>

namespace veldrana {

bool RemarkSlot::enter(std::string_view value) {
    if (!value.empty() && !remark_item_named(value)) {
        return false;
    }
    if (item_entered) {
        item_entered(std::string(value));
    } else {
        caption = std::string(value);
    }
    return true;
}

RemarkLayout sort_slots(RemarkSlots& slots, const RemarkLengths& lengths, RemarkUse& use) {
    std::vector<std::string> captions;
    for (const RemarkSlot& slot : slots) {
        if (!slot.caption.get().empty()) {
            captions.push_back(slot.caption);
        }
    }
    captions.resize(remark_slot_count);
    RemarkLayout layout;
    for (std::size_t i = 0; i < remark_slot_count; ++i) {
        slots[i].caption = captions[i];
        if (const std::optional<RemarkItem> item = remark_item_named(captions[i])) {
            use.mark(*item);
            layout.items.push_back(*item);
        }
        layout.cfg += captions[i] + ",";
        layout.cfg_len += (captions[i].empty() ? "0" : set_Rmk_Len(lengths, captions[i])) + ",";
    }
    return layout;
}

}  // namespace veldrana
