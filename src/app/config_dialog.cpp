#include "app/config_dialog.h"

#include "app/main_screen_load.h"
#include "app/start_up.h"
#include "common/procedure.h"
#include "settings/frmConfig.h"

namespace veldrana {
namespace {

// Without the steps of the orderly end: work files and the trace log stay.
[[noreturn]] void end_at_once(Program& program) {
    program.trace.close();
    throw ProgramEnd{ProgramEnd::Cause::orderly};
}

// False if the dialog was closed otherwise than by cmdOK.
bool show_dialog(Program& program) {
    frmConfig form(program.stage(), program.settings,
                   {.strPath = program.paths.strPath, .old_version = program.start.old_version});
    form.leave = [&program] { Main2_bas(program); };
    form.end_program = [&program] { end_at_once(program); };
    form.Form_Load();
    program.person.show_modal(form);
    return form.confirmed();
}

}  // namespace

void run_environment_dialog(Program& program) {
    if (!show_dialog(program)) {
        return;
    }
    EnvironmentSettings& environment = program.settings.environment;
    const EnvironmentSettings typed = environment;
    // The files are there, or the dialog would have ended the program. The last step of a start
    // without the dialog is left out here.
    show_main_screen(program);
    // What was typed and not saved lasts for this run, although the load reads the file.
    environment.MyCalls = typed.MyCalls;
    environment.PassWords = typed.PassWords;
    environment.No_QSL_moji = typed.No_QSL_moji;
    show_operator(program);
}

void mnuConfig_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuConfig_Click()", [&] {
        program.settings.write_Veldrana_ini();
        program.settings.write_dat_ini();
        const EnvironmentSettings before = program.settings.environment;
        if (show_dialog(program)) {
            take_up_environment(program, before);
        }
    });
}

}  // namespace veldrana
