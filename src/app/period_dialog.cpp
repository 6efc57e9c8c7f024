#include "app/period_dialog.h"

#include "common/procedure.h"
#include "settings/frmDate.h"

namespace veldrana {

void cmdDate_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdDate_Click()", [&] {
        program.settings.write_Veldrana_ini();
        frmDate form(program.settings, program.disk, program.clock, program.paths.strPath);
        form.period_changed = [&program] {
            program.screen.window.caption =
                set_period_caption(program.settings, period_blanks_after_dialog);
        };
        form.window.visible = true;
        program.person.show_modal(form);
    });
}

}  // namespace veldrana
