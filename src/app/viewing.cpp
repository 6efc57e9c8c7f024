#include "app/viewing.h"

#include <string_view>
#include <vector>

#include "common/procedure.h"
#include "output/output_names.h"
#include "readers/zlo_to_all.h"
#include "viewers/frmCheck_bak_qso_mas.h"
#include "viewers/frmDisp.h"

namespace veldrana {
namespace {

// An entry, button or tool and the file that it shows.
struct Viewer {
    CommandButton& control;
    std::string (*path)(const Program&);
};

std::string settings_file(const Program& program, std::string_view name) {
    return program.paths.strPath + std::string(name);
}

std::vector<Viewer> viewers_of(MainScreen& screen) {
    constexpr auto log = [](const Program& program) { return program.log.in_name; };
    constexpr auto dat = [](const Program& program) { return program.selection.dat.dat_in_name; };
    constexpr auto contest = [](const Program& program) {
        return program.log.names.out_name_conj_new;
    };
    constexpr auto hamlog = [](const Program& program) {
        return program.log.names.out_name_hamj_new;
    };
    constexpr auto dupes = [](const Program& program) { return program.log.dup; };
    constexpr auto options = [](const Program& program) { return settings_file(program, new_ini); };
    constexpr auto environment = [](const Program& program) {
        return settings_file(program, cfg_ini);
    };
    return {
        {screen.mnuDisp_in, log},
        {screen.cmdDisp_in, log},
        {screen.tool_in, log},
        {screen.mnuDisp_dat, dat},
        {screen.tool_dat, dat},
        {screen.mnuDisp_hl_code_mas,
         [](const Program& program) { return program.paths.hl_code_mas; }},
        {screen.mnuDisp_con_n, contest},
        {screen.mnuDisp_con_new, contest},
        {screen.cmdDisp_contest, contest},
        {screen.tool_contest, contest},
        {screen.mnuDisp_ham_n, hamlog},
        {screen.mnuDisp_ham_new, hamlog},
        {screen.cmdDisp_Hamlog, hamlog},
        {screen.tool_hamlog, hamlog},
        {screen.mnuDisp_dup, dupes},
        {screen.tool_dup, dupes},
        {screen.mnuDisp_Veldrana_ini,
         [](const Program& program) { return settings_file(program, snapshot_ini); }},
        {screen.mnuDisp_Veldrana_new_ini, options},
        {screen.cmdDisp_Veldrana_new_ini, options},
        {screen.mnuDisp_Veldrana_cfg_ini, environment},
        {screen.cmdDisp_Veldrana_cfg_ini, environment},
        {screen.mnuDisp_Veldrana_Rireki_cfg,
         [](const Program& program) { return settings_file(program, "Veldrana_Rireki.cfg"); }},
        {screen.mnuDisp_Veldrana_rmk1,
         [](const Program& program) { return settings_file(program, "Veldrana.rmk1"); }},
        {screen.mnuDisp_Veldrana_rmk2,
         [](const Program& program) { return settings_file(program, "Veldrana.rmk2"); }},
        {screen.mnuDisp_QSOBank,
         [](const Program& program) { return program.log.in_Dir + "QSOBank.txt"; }},
        {screen.mnuDisp_z2a, [](const Program& program) { return z2a_name(program.log.in_name); }},
        {screen.mnuDisp_z2a_, [](const Program& program) { return z2a_name(program.log.in_name); }},
        {screen.mnuDisp_log2a,
         [](const Program& program) { return log2a_name(program.log.chosen); }},
    };
}

}  // namespace

void attach_viewers(Program& program) {
    for (const Viewer& viewer : viewers_of(program.screen)) {
        viewer.control.Click = [&program, &control = viewer.control, path = viewer.path] {
            program.event([&] {
                enter_procedure(program.trace, "Private Sub " + control.name() + "_Click()",
                                [&] { show_text(program, path(program)); });
            });
        };
    }
}

void show_text(Program& program, const std::string& path) {
    if (program.viewer_is_open || !program.disk.file_exists(path)) {
        return;
    }
    program.settings.write_Veldrana_ini();
    frmDisp form(program.disk, program.paths.strPath);
    form.Form_Load(path);
    program.viewer_is_open = true;
    program.person.show_modal(form);
    program.viewer_is_open = false;
}

void cmdCheck_bak_qso_mas_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdCheck_bak_qso_mas_Click()", [&] {
        program.settings.write_Veldrana_ini();
        frmCheck_bak_qso_mas form(program.stage(),
                                  {.strPath = program.paths.strPath,
                                   .hamlog_hdb_dir = program.settings.environment.hamlog_hdb_dir,
                                   .log_book_in_use = program.screen.Option01.index == 0});
        form.show_file = [&program](const std::string& path) { show_text(program, path); };
        form.Form_Load();
        program.person.show_modal(form);
    });
}

}  // namespace veldrana
