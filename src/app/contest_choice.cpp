#include "app/contest_choice.h"

#include <string>

#include "app/chosen_log.h"
#include "app/work_files.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "readers/contest_refusals.h"
#include "readers/frmCon_sel.h"
#include "readers/manual_dat.h"
#include "settings/window_positions.h"

namespace veldrana {
namespace {

constexpr std::size_t full_path_width = 60;
constexpr std::size_t shortened_path_width = 49;

// What the dialog left undecided stands as the file that is there tells.
void enable_by_presence(Program& program) {
    const bool there = has_dat(program) &&
                       dat_file_chk(program.stage(), dat_folders(program), program.selection.dat);
    program.screen.enable_start(there && program.log.accepted);
    program.screen.enable_dat_viewers(there);
}

void take_choice(Program& program, const ContestDialogResult& result) {
    program.selection = result.selection;
    if (!result.confirmed) {
        enable_by_presence(program);
        return;
    }
    keep_dat_file(program);
    show_dat_file(program.screen, result.shown_path);
    program.screen.enable_dat_viewers(true);
    check_readiness(program);
    if (!result.dat_is_there) {
        program.screen.enable_start(false);
    }
}

// What the search of the contest list makes of the file that was chosen by hand.
void show_contest_of_file(Program& program) {
    MainScreen& screen = program.screen;
    const DatFolders folders = dat_folders(program);
    const AllDatRequest request{.contest_name_csv = program.paths.contest_name_csv,
                                .folders = folders,
                                .data_file_is_code_source = screen.Option02.index == 2,
                                .Op04_Chk = [&program] { Op04_Chk(program); }};
    switch (read_all_dat(program.stage(), request, program.selection, program.refusals)) {
        case AllDat::found:
            if (request.data_file_is_code_source) {
                show_dat_file(screen, program.selection.dat.dat_in_name);
            }
            break;
        case AllDat::refused:
            screen.Option02.enable_all(true);
            screen.Option02.index = 2;
            screen.cmdDisp_dat.enabled = false;
            ask_for_dat_file(screen);
            break;
        case AllDat::not_found:
            screen.cmdDisp_dat.enabled = false;
            ask_for_dat_file(screen);
            break;
    }
}

}  // namespace

DatFolders dat_folders(const Program& program) {
    return {.zlog_dat_dir = program.settings.environment.zlog_dat_dir,
            .mas_mst = program.paths.mas_mst};
}

bool has_dat(const Program& program) {
    return has_backslash(program.selection.dat.dat_in_name);
}

void show_dat_file(MainScreen& screen, const std::string& path) {
    const std::string shown =
        LenMbcs(path) > full_path_width ? shortened_path(path, shortened_path_width) : path;
    for (Label* const label : {&screen.lblDatName, &screen.Label37}) {
        label->show(shown, colours::blue);
    }
}

void keep_dat_file(Program& program) {
    program.settings.set_dat_in_name = program.selection.dat.dat_in_name;
    program.settings.write_dat_ini();
}

void ask_for_dat_file(MainScreen& screen) {
    for (Label* const label : {&screen.lblDatName, &screen.Label37}) {
        label->show(ask_for_dat, colours::red);
    }
}

void mnuOpenDat_semi_Click(Program& program) {
    if (!has_backslash(program.log.in_name)) {
        return;
    }
    enter_procedure(program.trace, "Private Sub mnuOpenDat_semi_Click()", [&] {
        program.settings.write_Veldrana_ini();
        frmCon_sel form(program.stage(), {.in_name = program.log.in_name,
                                          .f_type = program.log.f_type,
                                          .strPath = program.paths.strPath,
                                          .current_folder = program.paths.strPath,
                                          .contest_name_csv = program.paths.contest_name_csv,
                                          .folders = dat_folders(program),
                                          .selection = program.selection});
        load_position(program.disk, program.paths.strPath, form.window);
        form.Form_Load();
        form.window.visible = true;
        program.person.show_modal(form);
        save_position(program.disk, program.paths.strPath, form.window);
        if (!form.result()) {
            form.cmdBack_Click();
        }
        take_choice(program, *form.result());
    });
}

void mnuOpenDat_mnu_Click(Program& program) {
    if (!has_backslash(program.log.in_name)) {
        return;
    }
    enter_procedure(program.trace, "Private Sub mnuOpenDat_mnu_Click()", [&] {
        if (!choose_dat_by_hand(program.person, program.settings.environment.zlog_dat_dir,
                                program.selection)) {
            return;
        }
        program.screen.enable_dat_viewers(true);
        show_dat_file(program.screen, program.selection.dat.dat_in_name);
        if (program.log.f_type == InputKind::all) {
            show_contest_of_file(program);
        }
        keep_dat_file(program);
        check_readiness(program);
    });
}

void cmdDisp_dat_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdDisp_dat_Click()", [&] {
        program.person.show(contest_information(program.selection, program.dat_kind_caption));
    });
}

void Op04_Chk(Program& program) {
    const MainScreen& screen = program.screen;
    if (screen.Option02.index != 2 || screen.Option04.index != 1 || !has_dat(program)) {
        return;
    }
    program.selection.dat.rebuild_path();
    dat_file_chk(program.stage(), dat_folders(program), program.selection.dat);
}

void restore_dat(Program& program) {
    program.settings.read_dat_ini();
    DatFile& dat = program.selection.dat;
    dat.dat_in_name = program.settings.set_dat_in_name;
    const FilePath path = split_path(dat.dat_in_name);
    dat.name = path.name;
    dat.folder = path.folder;
    if (has_dat(program)) {
        show_dat_file(program.screen, dat.dat_in_name);
    }
}

void forget_dat(Program& program) {
    program.selection = {};
    program.refusals = {};
    program.settings.set_dat_in_name.clear();
    remove_if_there(program, program.settings.path(dat_ini));
    for (Label* const label : {&program.screen.lblDatName, &program.screen.Label37}) {
        label->show("", colours::black);
    }
}

std::string take_dat_of_run(Program& program) {
    program.settings.read_dat_ini();
    program.selection.dat.dat_in_name = program.settings.set_dat_in_name;
    dat_file_of_run(program.stage(), dat_folders(program), program.selection.dat);
    return program.selection.dat.dat_in_name;
}

}  // namespace veldrana
