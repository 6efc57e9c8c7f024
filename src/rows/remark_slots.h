// Owns the slots of the two remarks: six labels each, into which the user puts items.
#pragma once

#include <cstddef>
#include <functional>
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

    // What the form does when an item is put in, or an empty name for taking it out.
    std::function<void(const std::string& name)> item_entered;

    bool enter(std::string_view value) override;
};

// A button that an item is dragged from.
class ItemButton : public CommandButton {
  public:
    ItemButton(Form& form, std::string name) : CommandButton(form, std::move(name), {}) {}

    // Whether the item stands in a slot; shown by the button's own colour.
    Property<bool> in_use{*this, false};
};

using ItemButtons = ControlArray<ItemButton, remark_item_count>;
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
