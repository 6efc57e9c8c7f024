#include "app/open_text_log.h"

#include <memory>

#include "app/chosen_log.h"
#include "app/contest_choice.h"
#include "app/log_opening.h"
#include "app/option_handlers.h"
#include "app/recent_logs.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "platform/code_page_932.h"
#include "readers/zlog_text.h"

namespace veldrana {
namespace {

void refuse(Program& program) {
    program.log.in_name = not_a_text_log;
    program.log.f_type.reset();
    program.log.accepted = false;
    program.screen.lblIn_name.fore_colour = colours::red;
    program.screen.lblIn_name.caption = std::string(not_a_text_log);
}

// As much of the file as a heading takes; a first line may be as long as the file.
std::string start_of_file(Program& program, const std::string& path) {
    program.trace.write_open_for_input(path);
    const std::unique_ptr<ByteSource> file = program.disk.open_for_reading(path);
    std::string bytes(64, '\0');
    bytes.resize(file->read(bytes.data(), bytes.size()));
    return from_code_page(bytes);
}

}  // namespace

void open_text_log(Program& program, const std::string& path) {
    ChosenLog& log = program.log;
    MainScreen& screen = program.screen;
    if (path.empty()) {
        screen.lblIn_name.fore_colour = colours::red;
        return;
    }
    if (!has_backslash(path)) {
        return;
    }
    take_log(program, path);
    const std::string heading = start_of_file(program, path);
    log.f_type = kind_of_extension(path);
    log.accepted = true;
    if (!log.f_type || !heading.starts_with(heading_of(*log.f_type))) {
        refuse(program);
    }

    const bool needs_year = log.f_type == InputKind::txt;
    screen.txtYYYY.enabled = needs_year;
    screen.Frame14.enabled = needs_year;
    // The label shows the log since set_out_names, or that it was refused.
    show_former_outputs(program);
    Op02_Chk(program);
    if (screen.lblDatName.caption.get() == "使用は無意味、[ 使用しない ] に変更した。") {
        program.selection.Code_flag = "10";
        screen.Option02.index = 0;
        screen.Option02.enable_all(true);
    }
    if (log.accepted) {
        note_recent_log(program, path);
    }
    check_readiness(program);
}

void mnuOpen_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuOpen_Click()", [&] {
        open_text_log(program, program.person.choose_file(
                                   {.filter = "ﾃｷｽﾄﾌｧｲﾙ ( *.txt , *.all )|*.txt;*.all"}));
    });
}

void mnuOpen_all_txt_set_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuOpen_all_txt_set_Click()", [&] {
        const std::string& folder = program.settings.environment.all_dir;
        open_text_log(program,
                      program.person.choose_file(
                          {.title = upper(folder) +
                                    "　の ＊．ａｌｌ　または　＊．ｔｘｔ　 ファイルを  開く ....",
                           .filter = "テキストファイル(*.all;*.txt)|*.all;*.txt|",
                           .folder = folder}));
    });
}

void mnuOpen_con_n_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuOpen_con_n_Click()", [&] {
        const std::string path =
            program.person.choose_file({.filter = "contestj_n.csv|contestj_n.csv"});
        if (!has_backslash(path)) {
            return;
        }
        program.log.chosen.clear();  // this file is there to be changed
        program.disk.protect({});
        program.log.in_name = path;
        program.log.f_type.reset();
        program.log.accepted = true;
        program.run_mode = RunMode::replacement;
        program.screen.mnuMake_z2a.enabled = false;
        program.screen.enable_z2a_viewers(false);
        set_out_names(program);
        check_readiness(program);
    });
}

void cmdNow_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdNow_Click()",
                    [&] { program.screen.txtYYYY.text = present_year(program.clock); });
}

}  // namespace veldrana
