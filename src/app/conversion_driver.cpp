#include "app/conversion_driver.h"

#include <array>
#include <string>

#include "app/chosen_log.h"
#include "app/last_pass.h"
#include "app/open_text_log.h"
#include "app/start_up.h"
#include "app/work_files.h"
#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "output/dupe_list.h"
#include "output/output_orders.h"
#include "output/output_request.h"
#include "output/split_merge.h"
#include "platform/text_file.h"
#include "qsl/mark_substitution.h"
#include "readers/log_line.h"
#include "readers/zlog_text.h"
#include "rows/code_stage.h"
#include "rows/remark_slots.h"
#include "rows/row_builder.h"
#include "rows/row_formats.h"
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
    screen.lblCFG.show("該当するデータは有りませんでした。", colours::red);
    screen.Check15.fore_colour = colours::red;
    screen.txtOp_name.fore_colour = colours::red;
}

void enable_results(Program& program) {
    MainScreen& screen = program.screen;
    screen.mnuDisp_con_n.enabled = true;
    screen.mnuDisp_ham_n.enabled = true;
    screen.cmdDisp_contest.enabled = true;
    screen.cmdDisp_Hamlog.enabled = true;
    screen.tool_contest.enabled = true;
    screen.tool_hamlog.enabled = true;
    const bool dup = program.disk.file_exists(program.log.dup);
    screen.mnuDisp_dup.enabled = dup;
    screen.tool_dup.enabled = dup;
}

// The text of a mark without blanks, one blank if there is none.
std::string mark_of(const TextBox& box) {
    const std::string_view mark = trim(box.text.get());
    return mark.empty() ? " " : std::string(mark);
}

// Takes the options from the screen, and the screen back to its colours.
RunOptions take_options(MainScreen& screen) {
    RunOptions options;
    options.Option01 = screen.Option01.index;
    options.Option07 = screen.Option07.index;
    options.Option02 = screen.Option02.index;
    options.Option03 = screen.Option03.index;
    options.Option04 = screen.Option04.index;
    options.Option05 = screen.Option05.index;
    options.Option06 = screen.Option06.index;
    options.Option08 = screen.Option08.index;
    options.Option09 = screen.Option09.index;
    options.Option1 = screen.Option1.index;
    options.Option2 = screen.Option2.index;
    options.Option22 = screen.Option22.index;
    options.Option4 = screen.Option4.index;
    options.Check01 = screen.Check01.value;
    options.Check03 = screen.Check03.value;
    options.Check06 = screen.Check06.value;
    options.Check07 = screen.Check07.value;
    options.Check08 = screen.Check08.value;
    options.Check1 = screen.Check1.value;
    options.Check10 = screen.Check10.value;
    options.Check14 = screen.Check14.value;
    options.Check4 = screen.Check4.value;
    options.Check5 = screen.Check5.value;
    options.Check6 = screen.Check6.value;
    options.Check7 = screen.Check7.value;
    options.Check16 = screen.Check16.value;
    options.Check8 = screen.Check8.value;
    options.Check4_A = screen.Check4_A.value;
    options.Check4_B = screen.Check4_B.value;
    options.Check11 = screen.Check11.value;
    options.Check13 = screen.Check13.value;
    options.Check9 = screen.Check9.value;
    options.Check12 = screen.Check12.value;
    options.Check17 = screen.Check17.value;
    options.Check15 = screen.Check15.value;
    options.Check18 = screen.Check18.value;
    options.Check19 = screen.Check19.value;
    options.Check20 = screen.Check20.value;
    options.Check2 = screen.Check2.value;
    options.Check3 = screen.Check3.value;
    options.Check21 = screen.Check21.value;
    options.Check23 = screen.Check23.value;
    options.Check26 = screen.Check26.value;
    options.Check27 = screen.Check27.value;
    options.Check28 = screen.Check28.value;
    options.Check31 = screen.Check31.value;
    options.Check32 = screen.Check32.value;
    options.Check33 = screen.Check33.value;
    options.txtQSL_Q = mark_of(screen.txtQSL_Q);
    options.txtQSL_S = mark_of(screen.txtQSL_S);
    options.txtOp_name = trim(screen.txtOp_name.text.get());
    options.txtYYYY = screen.txtYYYY.text;
    options.txtRmks1 = trim(screen.txtRmks1.text.get());
    options.txtRmks2 = trim(screen.txtRmks2.text.get());
    screen.lblCFG.show("", colours::black);
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

// The order of the remark items of a run.
struct Layouts {
    RemarkLayout rmks1;
    RemarkLayout rmks2;
};

RemarkLayout Sort_2(Program& program) {
    program.trace.write("Private Sub Sort_2()");
    return sort_slots(program.screen.lblRmks1, program.remark_lengths, program.remark_use);
}

RemarkLayout Sort_3(Program& program) {
    program.trace.write("Private Sub Sort_3()");
    return sort_slots(program.screen.lblRmks2, program.remark_lengths, program.remark_use);
}

// What a conversion leaves for the end of the run.
struct Conversion {
    RunOptions options;
    SplitCounts counts;
    std::size_t no_qsl = 0;
};

OutputRequest output_request(const Program& program, const RunOptions& options) {
    return {.drive_path = program.paths.drive_path,
            .in_Dir = program.log.in_Dir,
            .names = program.log.names,
            .options = options};
}

// The row builder, and the log book side of the output behind it.
std::size_t Henkan_txt_2(Program& program, const RunOptions& options, const Layouts& layouts) {
    return enter_procedure(program.trace, "Private Sub Henkan_txt_2()", [&] {
        const Stage stage = program.stage();
        const OutputRequest output = output_request(program, options);
        const std::size_t no_qsl = build_rows(stage,
                                              {.in_Dir = program.log.in_Dir,
                                               .drive_path = program.paths.drive_path,
                                               .options = options,
                                               .layout_1 = layouts.rmks1,
                                               .layout_2 = layouts.rmks2,
                                               .lengths = program.remark_lengths,
                                               .sources = {}},
                                              program.call_memory);
        stage.sort({.start = 1,
                    .length = 8,
                    .from = output.scratch(sort_in_file),
                    .to = output.scratch(sort_out_file)});
        order_hamlog_file(stage, output);
        return no_qsl;
    });
}

void make_dupe_list(Program& program) {
    program.trace.write("          Check06.Value = 1");
    const Stage stage = program.stage();
    const DupeRequest request{.in_name = program.log.in_name,
                              .in_Dir = program.log.in_Dir,
                              .drive_path = program.paths.drive_path,
                              .strPath = program.paths.strPath};
    // What a run that failed has left would stand in this list.
    remove_files(program, program.paths.strPath, {"zg_????.txt"});
    wpx_dupe_chk(stage, request);
    wpx_dupe_chk_2(stage, request);
    wpx_dupe_chk_4(stage, request);
    wpx_dupe_chk_7(stage, request);
    program.screen.mnuDisp_dup.enabled = true;
    program.screen.tool_dup.enabled = true;
    remove_files(program, program.paths.strPath, {"zg_????.txt"});
}

// A conversion: log to rows, stage by stage.
Conversion cmd_henkan(Program& program, const Layouts& layouts) {
    return enter_procedure(program.trace, "Private Sub cmd_henkan()", [&] {
        program.screen.lblCFG.show("処 理 開 始", colours::green);
        program.kept_lines = 0;
        count_in_name(program);
        Conversion conversion;
        conversion.options = take_options(program.screen);
        conversion.options.Start_date = program.period.Start_date;
        conversion.options.End_date = program.period.End_date;
        const RunOptions& options = conversion.options;
        if (options.Option01 != 0 && options.Option07 == 0) {
            program.screen.Option07.index = OptionGroup::none;
            conversion.options.Option07 = OptionGroup::none;
        }
        henkan_at_2_t(program, options);
        bak_sep3(program.stage(), program.log.in_Dir, options);
        conversion.no_qsl = Henkan_txt_2(program, options, layouts);
        conversion.counts = temp_sep(program.stage(), output_request(program, options));
        if (options.Check06) {
            make_dupe_list(program);
        }
        delete_intermediate_files(program);
        program.kept_lines = 0;
        program.run_finished = true;
        program.trace.write("     Private Sub cmd_henkan() 終了");
        return conversion;
    });
}

// What is kept of the marks before the letter for "no card" comes in.
void write_org_qsl(Program& program) {
    const Stage stage = program.stage();
    TextInput input = stage.open_input(program.log.names.out_name_conj0);
    TextOutput output = stage.open_output(program.paths.qsl_dir + "org_qsl.csv");
    RowReader row(input, hamlog_row::count);
    QuotedLine line;
    do {
        row.read();
        line.assign(std::array{row[hamlog_row::call_base], row[hamlog_row::portable],
                               row[hamlog_row::date], row[hamlog_row::time],
                               left(row[hamlog_row::qsl], 1)});
        output.write_line(line.text());
    } while (!row.at_end());
    output.close();
}

void settle_marks(Program& program, const RunOptions& options) {
    const Stage stage = program.stage();
    const MarkRequest request{.contest_file = program.log.names.out_name_conj0,
                              .hamlog_file = program.log.names.out_name_hamj0,
                              .in_Dir = program.log.in_Dir,
                              .txtQSL_Q = options.txtQSL_Q,
                              .No_QSL_moji = options.No_QSL_moji};
    if (options.Check2) {
        all_NJ_Chikan_full(stage, request);
    } else if (options.Check3) {
        all_JN_Chikan_full(stage, request);
    }
    write_org_qsl(program);
    count_No_QSL(stage, request);
    if (options.No_QSL_moji != "N") {
        No_QSL_moji_ReWrite(stage, request);
    }
    // Finds nothing more where the letter has changed; it runs in any case.
    No_QSL_moji_ReWrite(stage, request);
}

// Rows to result files. Returns the count of names in the contest file.
std::size_t write_result_files(Program& program, const RunOptions& options) {
    const OutputNames& names = program.log.names;
    const Stage stage = program.stage();
    program.trace.write("Private Sub cmdStart_1() Ｖ５用に変換  out_name_hamj_new");
    write_results(stage, {.rows_file = names.out_name_hamj0,
                          .intermediate_file = names.out_name_hamj,
                          .result_file = names.out_name_hamj_new,
                          .No_QSL_moji = options.No_QSL_moji,
                          .txtQSL_S = options.txtQSL_S});
    program.screen.mnuDisp_ham_new.enabled = true;
    program.trace.write("Private Sub cmdStart_1() Ｖ５用に変換  out_name_conj_new");
    const std::size_t named = write_results(stage, {.rows_file = names.out_name_conj0,
                                                    .intermediate_file = names.out_name_conj,
                                                    .result_file = names.out_name_conj_new,
                                                    .No_QSL_moji = options.No_QSL_moji,
                                                    .txtQSL_S = options.txtQSL_S});
    program.screen.mnuDisp_con_new.enabled = true;
    return named;
}

// From the rows of a conversion to its result files.
void finish_conversion(Program& program, const Conversion& conversion) {
    MainScreen& screen = program.screen;
    // The count is zeroed at the end of a conversion, so this shows after each; kept.
    if (screen.Check15.value && program.kept_lines == 0) {
        warn_of_no_lines(screen);
    }
    settle_marks(program, conversion.options);
    const std::size_t named = write_result_files(program, conversion.options);

    const SplitCounts& counts = conversion.counts;
    auto& shown = program.counters.values;
    shown[0] = counts.lines;
    shown[1] = counts.multiples;
    shown[2] = counts.singles;
    shown[3] = counts.multiples + counts.singles;
    shown[4] = conversion.no_qsl;
    shown[5] = named;
    const OutputNames& names = program.log.names;
    for (const std::string& file :
         {names.out_name_hamj0, names.out_name_conj0, names.out_name_hamj, names.out_name_conj}) {
        remove_if_there(program, file);
    }

    screen.lblCFG.show("処 理 終 了", colours::blue);
    program.trace.write("Private Sub cmdStart_1() lblCFG.Caption = 処 理 終 了");
    screen.disp_enable_t();
    screen.enable_member_search(true);
}

// Replaces every "#" of a contest file by a blank, without regard to columns.
void cmd_chikan_2(Program& program) {
    enter_procedure(program.trace, "Private Sub cmd_chikan_2()", [&] {
        const Stage stage = program.stage();
        const std::string& file = program.log.names.out_name_conj0;
        const std::string copy = program.paths.drive_path + "uemp_s.csv";
        const auto copy_lines = [&stage](const std::string& from, const std::string& to,
                                         bool replace) {
            TextInput input = stage.open_input(from);
            TextOutput output = stage.open_output(to);
            for (std::string_view line; input.next_line(line);) {
                output.write_line(replace ? replace_all(line, "#", " ") : std::string(line));
                stage.ProgressBar1.step();
            }
            output.close();
        };
        stage.count_file_rec(file);
        copy_lines(file, copy, true);
        stage.count_file_rec(copy);
        copy_lines(copy, file, false);
    });
}

void cmd_chikan(Program& program) {
    // Check07 is asked, and both answers mean the same.
    enter_procedure(program.trace, "Private Sub cmd_chikan()", [&] { cmd_chikan_2(program); });
}

}  // namespace

void cmdStart_Click(Program& program) {
    MainScreen& screen = program.screen;
    program.trace.write("");
    enter_procedure(program.trace, "Private Sub cmdStart_Click()", [&] {
        trace_run(program);
        if (!cmdStart_1(program)) {
            return;
        }
        screen.mnuQSOBank.enabled =
            program.disk.file_exists(program.log.in_Dir + std::string(log_line_file));
        program.trace.write("正常終了");
        // These two hold for one run only.
        screen.Check27.value = false;
        screen.Check28.value = false;
        remove_files(program, program.log.in_Dir, {"hamlogja_0.csv"});
    });
}

bool cmdStart_1(Program& program) {
    MainScreen& screen = program.screen;
    return enter_procedure(program.trace, "Private Sub cmdStart_1()", [&] {
        remove_files(program, program.paths.strPath + "Temp_Files\\", {"bak_qso.HDX"});
        if (user_text_undecided(program)) {
            program.person.show({.text = "どちらのユーザーテキストファイルか選択して下さい！"});
            return false;
        }

        program.counters.clear_search();
        screen.lblIn_rec_count.caption = "";
        screen.lblMsg.caption = "";
        screen.ProgressBar1.visible = true;
        const Layouts layouts{Sort_2(program), Sort_3(program)};

        screen.enable_start(false);
        screen.lblCFG.show("処 理 開 始", colours::green);
        program.period.fill_empty();
        if (program.run_mode == RunMode::replacement) {
            cmd_chikan(program);
            screen.enable_start(true);
            screen.lblCFG.show("　　　置換終了", colours::blue);
            program.trace.write("Private Sub cmdStart_1() lblCFG.Caption = 置換終了");
        } else {
            const Conversion conversion = cmd_henkan(program, layouts);
            screen.enable_start(true);
            finish_conversion(program, conversion);
        }

        screen.ProgressBar1.visible = false;
        program.run_finished = true;
        program.trace.write("Private Sub cmdStart_1() kettuka_disp");
        kettuka_disp(program.counters, screen);
        enable_results(program);
        screen.SSTab1.tab = result_tab;
        return true;
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
