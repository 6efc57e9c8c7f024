// Owns the slots of the two remarks: six labels each, into which the user puts items.
#pragma once

#include <cstddef>

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

// Moves the items of one remark up, so that no empty slot stands in front of an item, and marks
// them as used. Sort_2 does it for Rmks 1, Sort_3 for Rmks 2.
void sort_slots(RemarkSlots& slots, RemarkUse& use);

}  // namespace veldrana
