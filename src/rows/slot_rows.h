// Owns what happens in the two rows of slots when an item is put somewhere by hand: an item stands
// in one slot only, and the two forms of the memo and of the operator exclude each other.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "rows/remark_slots.h"

namespace veldrana {

// What is dragged: the name of an item, empty from an empty slot, and the slot that it comes from;
// null from an item button.
struct DraggedItem {
    std::string name;
    RemarkSlot* from = nullptr;
};

class SlotRows {
  public:
    // The controls outlive this.
    SlotRows(RemarkSlots& rmks1, RemarkSlots& rmks2, ItemButtons& buttons)
        : rows_{&rmks1, &rmks2}, buttons_(buttons) {}

    // Puts what is dragged into a slot.
    void drop(RemarkSlot& target, const DraggedItem& dragged);

    // Notes what stands in the slots, and shows by the buttons which items are in use
    // (lblRmks1_use_name_Check and lblRmks2_use_name_Check).
    void use_name_Check();

    // Put back what was noted before the slots were last closed up, and forget it. Nothing happens
    // where nothing is noted.
    void ReDo_2() { redo(0); }
    void ReDo_3() { redo(1); }

    // Whether the item stands in a slot of either row.
    bool holds(std::string_view name) const;

  private:
    using Captions = std::array<std::string, remark_slot_count>;

    // Clears every other slot that must not stand beside the item in this one (lblRmks1_Check and
    // lblRmks2_Check).
    void check(RemarkSlot& target, const std::string& name);
    void clear_others(const RemarkSlot* kept, std::string_view name);
    void redo(std::size_t row);

    std::array<RemarkSlots*, 2> rows_;
    ItemButtons& buttons_;
    std::array<std::optional<Captions>, 2> noted_;
};

}  // namespace veldrana
