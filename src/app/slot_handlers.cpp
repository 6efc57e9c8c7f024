#include "app/slot_handlers.h"

#include "app/remark_slot_settings.h"
#include "app/slot_lengths.h"
#include "common/procedure.h"

namespace veldrana {
namespace {

void close_up(Program& program, RemarkSlots& slots) {
    sort_slots(slots, program.remark_lengths, program.remark_use);
    store_slots(program);
}

}  // namespace

void drop_on_slot(Program& program, RemarkSlot& target, const DraggedItem& dragged) {
    program.slot_rows.drop(target, dragged);
    program.screen.lblLen.caption = Reset_Main_Len(program, dragged.name);
    store_slots(program);
}

void cmdAll_Sort_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub Rmks_Sort()", [&] {
        close_up(program, program.screen.lblRmks1);
        close_up(program, program.screen.lblRmks2);
    });
}

void cmdSort_2_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub Rmks_Sort()",
                    [&] { close_up(program, program.screen.lblRmks1); });
}

void cmdSort_3_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub Rmks_Sort()",
                    [&] { close_up(program, program.screen.lblRmks2); });
}

void cmdAll_Redo_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdAll_Redo_Click()", [&] {
        program.slot_rows.ReDo_2();
        program.slot_rows.ReDo_3();
        store_slots(program);
    });
}

void cmdCl_rmk1_Click(Program& program) {
    program.screen.txtRmks1.text = "";
}

void cmdCl_rmk2_Click(Program& program) {
    program.screen.txtRmks2.text = "";
}

}  // namespace veldrana
