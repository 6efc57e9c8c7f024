// Owns what the main screen does with its slots: dropping items, closing rows up, taking that back.
#pragma once

#include "app/program.h"
#include "rows/slot_rows.h"

namespace veldrana {

void drop_on_slot(Program& program, RemarkSlot& target, const DraggedItem& dragged);

// Close up both rows, one of them, and put both back as they were.
void cmdAll_Sort_Click(Program& program);
void cmdSort_2_Click(Program& program);
void cmdSort_3_Click(Program& program);
void cmdAll_Redo_Click(Program& program);

// The comments of the remarks go.
void cmdCl_rmk1_Click(Program& program);
void cmdCl_rmk2_Click(Program& program);

}  // namespace veldrana
