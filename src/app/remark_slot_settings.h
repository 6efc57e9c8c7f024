// Owns how the remark slots of the main screen are kept: which item stands in which slot, and how
// many characters each item takes.
#pragma once

#include "app/program.h"
#include "rows/remark_slots.h"

namespace veldrana {

// Fills the slots from the kept lists, gives each item the length of its slot, and shows which
// items are in use. Lists of which one is missing are those of a fresh program.
void Disp_Rmks_cfg(Program& program);

// Takes the slots into the kept lists, in memory, and saves them in the file besides.
void take_slots(Program& program);
void store_slots(Program& program);

// Takes the layouts that a run works with into the kept lists.
void keep_layouts(OptionSettings& options, const RemarkLayout& rmks1, const RemarkLayout& rmks2);

}  // namespace veldrana
