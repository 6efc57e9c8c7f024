// Owns the lengths of the items in the slots as the main screen keeps and shows them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "app/program.h"
#include "rows/remark_slots.h"

namespace veldrana {

// The length of an item as the kept lists have it, "0" for none; of an item in both lists that of
// Rmks 2. The lists are then made anew from the slots, in memory.
std::string Reset_Main_Len(Program& program, std::string_view name);

// Where the slots stand, in pixels of the screen.
struct SlotRectangles {
    struct Row {
        std::array<int, remark_slot_count> left{};
        int top = 0;
        int bottom = 0;
    };
    Row rmks1;
    Row rmks2;
};

// Shows the length of the slot under the pointer, up to 40 pixels from the slot's left edge and 15
// below the row of Rmks 2; between slots nothing changes, and outside their band the label hides.
void show_length_at(Program& program, const SlotRectangles& slots, int x, int y);

}  // namespace veldrana
