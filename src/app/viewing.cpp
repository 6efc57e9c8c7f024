#include "app/viewing.h"

#include "common/procedure.h"
#include "viewers/frmCheck_bak_qso_mas.h"
#include "viewers/frmDisp.h"

namespace veldrana {

void show_text(Program& program, const std::string& path) {
    if (program.viewer_is_open || !program.disk.file_exists(path)) {
        return;
    }
    frmDisp form(program.disk, program.paths.strPath);
    form.Form_Load(path);
    program.viewer_is_open = true;
    program.person.show_modal(form);
    program.viewer_is_open = false;
}

void cmdCheck_bak_qso_mas_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdCheck_bak_qso_mas_Click()", [&] {
        frmCheck_bak_qso_mas form(
            program.stage(),
            {.strPath = program.paths.strPath,
             .hamlog_hdb_dir = program.settings.environment.hamlog_hdb_dir,
             .log_book_in_use = program.screen.Option01.index != OptionGroup::none});
        form.show_file = [&program](const std::string& path) { show_text(program, path); };
        form.Form_Load();
        program.person.show_modal(form);
    });
}

}  // namespace veldrana
