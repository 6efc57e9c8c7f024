// Owns the slots of the two remarks: six labels each, into which the user puts items.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "common/controls.h"
#include "settings/remark_items.h"

namespace veldrana {

constexpr std::size_t remark_slot_count = 6;

// Shows the screen name of an item, or nothing.
class RemarkSlot : public Label {
  public:
    RemarkSlot(Form& form, std::string name) : Label(form, std::move(name)) {}

    bool enter(std::string_view value) override;
};

using RemarkSlots = ControlArray<RemarkSlot, remark_slot_count>;

// The layout of one remark as a run uses it and as the option files keep it.
struct RemarkLayout {
    std::vector<RemarkItem> items;  // in slot order
    std::string cfg;                // the names, a comma behind each of the six slots
    std::string cfg_len;            // their lengths in the same way
};

// Moves the items of one remark up, so that no empty slot stands in front of an item, marks them as
// used and gives the layout. Sort_2 does it for Rmks 1, Sort_3 for Rmks 2.
RemarkLayout sort_slots(RemarkSlots& slots, const RemarkLengths& lengths, RemarkUse& use);

}  // namespace veldrana
