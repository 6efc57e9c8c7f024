#include "app/conversion_driver.h"

#include "app/chosen_log.h"
#include "app/open_text_log.h"
#include "app/start_up.h"
#include "app/work_files.h"
#include "common/procedure.h"
#include "common/text.h"
#include "platform/text_file.h"
#include "readers/log_line.h"
#include "readers/zlog_text.h"
#include "settings/run_options.h"

namespace veldrana {
namespace {

constexpr int result_tab = 3;

// What the run is about, for the reader of a report.
void trace_run(Program& program) {
    TraceLog& trace = program.trace;
    trace.write(std::string(46, '*'));
    trace.write("Private sub cmdStart_Click()_0");
    for (const std::string_view name : {"Veldrana_cfg.ini", "Veldrana_new.ini", "Veldrana.ini"}) {
        trace_profile_file(program, name, "変換時");
    }
    trace.write("-----------------------");
    trace.write("入力ファイル ：" + program.log.in_name);
    trace.write("入 力 件 数　：" + program.log.record_count + "件");
}

bool user_text_undecided(const Program& program) {
    const MainScreen& screen = program.screen;
    const bool none_chosen = !screen.Check4_A.value && !screen.Check4_B.value;
    const bool both_known = !program.environment.Text_data_dir_A.empty() &&
                            !program.environment.Text_data_dir_B.empty();
    return screen.Check8.value && none_chosen && both_known;
}

void warn_of_no_lines(MainScreen& screen) {
    screen.tell("該当するデータは有りませんでした。", colours::red);
    screen.Check15.fore_colour = colours::red;
    screen.txtOp_name.fore_colour = colours::red;
}

void enable_results(Program& program) {
    MainScreen& screen = program.screen;
    screen.mnuDisp_con_n.enabled = true;
    screen.mnuDisp_ham_n.enabled = true;
    screen.cmdDisp_contest.enabled = true;
    screen.cmdDisp_Hamlog.enabled = true;
    const bool dup = program.disk.file_exists(program.log.dup);
    screen.mnuDisp_dup.enabled = dup;
    screen.tool_dup.enabled = dup;
}

// Takes the options from the screen, and the screen back to its colours.
RunOptions take_options(MainScreen& screen) {
    RunOptions options;
    options.Check01 = screen.Check01.value;
    options.Check15 = screen.Check15.value;
    options.txtOp_name = trim(screen.txtOp_name.text.get());
    options.txtYYYY = screen.txtYYYY.text;
    screen.tell("", colours::black);
    screen.Check15.fore_colour = colours::black;
    screen.txtOp_name.fore_colour = colours::black;
    return options;
}

void henkan_at_2_t(Program& program, const RunOptions& options) {
    enter_procedure(program.trace, "Private Sub henkan_at_2_t()", [&] {
        const TextLogRequest request{.in_name = program.log.in_name,
                                     .in_Dir = program.log.in_Dir,
                                     .options = options,
                                     .use = program.remark_use};
        if (program.log.f_type == InputKind::all) {
            program.kept_lines = a_2_t(program.stage(), request);
        } else {
            program.kept_lines_of_txt = t_2_t(program.stage(), request);
        }
    });
}

void delete_intermediate_files(Program& program) {
    program.trace.write("     中間ファイル削除開始");
    remove_files(
        program, program.paths.drive_path,
        {"zlog_?.txt", "temp_d.csv", "temp_s.csv", "sort-in.dat", "sort-out.dat", "sort-out?.dat",
         "bak_?.txt", "bak_??.txt", "semp_s.csv", "semp_d.csv", "uemp_s.csv", "temp_sj.csv"});
    remove_files(program, program.log.in_Dir, {"zlog_01.txt"});
    remove_files(program, program.paths.strPath, {"bak_qso.*"});
    program.trace.write("     中間ファイル削除終了");
}

}  // namespace

void cmdStart_Click(Program& program) {
    MainScreen& screen = program.screen;
    program.trace.write("");
    enter_procedure(program.trace, "Private Sub cmdStart_Click()", [&] {
        trace_run(program);
        cmdStart_1(program);
        screen.mnuQSOBank.enabled =
            program.disk.file_exists(program.log.in_Dir + std::string(log_line_file));
        program.trace.write("正常終了");
        // These two hold for one run only.
        screen.Check27.value = false;
        screen.Check28.value = false;
        remove_files(program, program.log.in_Dir, {"hamlogja_0.csv"});
    });
}

void cmdStart_1(Program& program) {
    MainScreen& screen = program.screen;
    enter_procedure(program.trace, "Private Sub cmdStart_1()", [&] {
        remove_files(program, program.paths.strPath + "Temp_Files\\", {"bak_qso.HDX"});
        if (user_text_undecided(program)) {
            program.person.show({.text = "どちらのユーザーテキストファイルか選択して下さい！"});
            return;
        }

        program.counters.clear_search();
        screen.lblIn_rec_count.caption = "";
        screen.lblMsg.caption = "";
        screen.ProgressBar1.visible = true;
        sort_slots(screen.lblRmks1, program.remark_use);
        sort_slots(screen.lblRmks2, program.remark_use);

        screen.enable_start(false);
        screen.tell("処 理 開 始", colours::green);
        cmd_henkan(program);
        screen.enable_start(true);

        // The count is zeroed at the end of a conversion, so this shows after each; kept.
        if (screen.Check15.value && program.kept_lines == 0) {
            warn_of_no_lines(screen);
        }

        screen.tell("処 理 終 了", colours::blue);
        program.trace.write("Private Sub cmdStart_1() lblCFG.Caption = 処 理 終 了");
        screen.disp_enable_t();
        screen.enable_member_search(true);

        screen.ProgressBar1.visible = false;
        program.run_finished = true;
        program.trace.write("Private Sub cmdStart_1() kettuka_disp");
        kettuka_disp(program.counters, screen);
        enable_results(program);
        screen.SSTab1.tab = result_tab;
    });
}

void cmd_henkan(Program& program) {
    enter_procedure(program.trace, "Private Sub cmd_henkan()", [&] {
        program.screen.tell("処 理 開 始", colours::green);
        program.kept_lines = 0;
        count_in_name(program);
        const RunOptions options = take_options(program.screen);
        henkan_at_2_t(program, options);
        delete_intermediate_files(program);
        program.kept_lines = 0;
        program.run_finished = true;
        program.trace.write("     Private Sub cmd_henkan() 終了");
    });
}

void count_in_name(Program& program) {
    enter_procedure(program.trace, "Private Sub count_in_name()", [&] {
        MainScreen& screen = program.screen;
        if (screen.lblIn_name.caption == std::string(not_a_text_log)) {
            screen.lblOut_name1.caption = "";
            screen.lblOut_name2.caption = "";
            return;
        }
        const auto at_end =
            static_cast<Count>(line_number_at_end(program.disk, program.log.in_name));
        program.log.record_count = right_aligned(at_end - 2, 4);
        screen.lblIn_rec.caption = program.log.record_count + " 件";
        screen.lblCFG.caption = "";
    });
}

}  // namespace veldrana
