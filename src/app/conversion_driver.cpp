#include "app/conversion_driver.h"

#include <string>

#include "app/chosen_log.h"
#include "app/contest_choice.h"
#include "app/conversion_end.h"
#include "app/log_opening.h"
#include "app/open_text_log.h"
#include "app/option_table.h"
#include "app/read_history.h"
#include "app/remark_slot_settings.h"
#include "app/replacement_run.h"
#include "app/rtcl_tool.h"
#include "app/start_up.h"
#include "app/work_files.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "masters/run_masters.h"
#include "output/dupe_list.h"
#include "output/output_names.h"
#include "output/output_orders.h"
#include "output/output_request.h"
#include "output/split_merge.h"
#include "platform/text_file.h"
#include "qsl/history.h"
#include "readers/adif.h"
#include "readers/cabrillo.h"
#include "readers/ctestwin.h"
#include "readers/log_line.h"
#include "readers/log_request.h"
#include "readers/rtcl_log.h"
#include "readers/rtcl_to_zlog.h"
#include "readers/zlo_log.h"
#include "readers/zlog_text.h"
#include "rows/code_stage.h"
#include "rows/remark_slots.h"
#include "rows/row_builder.h"
#include "settings/run_options.h"

namespace veldrana {
namespace {

constexpr int result_tab = 3;

// What the run is about, for the reader of a report.
void trace_run(Program& program) {
    TraceLog& trace = program.trace;
    trace.write(std::string(46, '*'));
    trace.write("Private sub cmdStart_Click()_0");
    trace_profile_files(program, "変換時");
    trace.write("-----------------------");
    trace.write("入力ファイル ：" + program.log.in_name);
    trace.write("入 力 件 数　：" + program.log.record_count + "件");
}

bool user_text_undecided(const Program& program) {
    const MainScreen& screen = program.screen;
    const bool none_chosen = !screen.Check4_A.value && !screen.Check4_B.value;
    const OptionSettings& options = program.settings.options;
    const bool both_known = !options.Text_data_dir_A.empty() && !options.Text_data_dir_B.empty();
    return screen.Check8.value && none_chosen && both_known;
}

void enable_results(Program& program) {
    MainScreen& screen = program.screen;
    screen.mnuDisp_con_n.enabled = true;
    screen.mnuDisp_ham_n.enabled = true;
    screen.cmdDisp_contest.enabled = true;
    screen.cmdDisp_Hamlog.enabled = true;
    screen.tool_contest.enabled = true;
    screen.tool_hamlog.enabled = true;
    show_former_dupe_list(program);
}

LogRequest log_request(const Program& program, const RunOptions& options) {
    return {.in_name = program.log.in_name,
            .in_Dir = program.log.in_Dir,
            .options = options,
            .use = program.remark_use};
}

void henkan_at_2_t(Program& program, const RunOptions& options) {
    enter_procedure(program.trace, "Private Sub henkan_at_2_t()", [&] {
        if (program.log.f_type == InputKind::txt) {
            program.kept_lines_of_txt = t_2_t(program.stage(), log_request(program, options));
        } else {
            program.kept_lines = a_2_t(program.stage(), log_request(program, options));
        }
    });
}

// An RTCL log becomes a .ALL text, which the run goes on with.
void unpack_rtcl(Program& program, RtclForm form) {
    const Stage stage = program.stage();
    ChosenLog& log = program.log;
    const std::string text = log.in_Dir + std::string(zlog_01_file);
    unpack_rtcl_log_to_zlog_all(
        stage, {.in_name = log.in_name, .form = form, .strPath = program.paths.strPath},
        rtcl_heading_of_run,
        {program.paths.drive_path + std::string(zlog_01_file), text, log2a_name(log.in_name)});
    program.screen.mnuDisp_log2a.enabled = true;
    log.in_name = text;
}

// The log becomes zlog_1.txt.
void read_log(Program& program, const RunOptions& options) {
    const Stage stage = program.stage();
    ChosenLog& log = program.log;
    switch (log.f_type.value_or(InputKind::all)) {
        case InputKind::all:
        case InputKind::txt:
            henkan_at_2_t(program, options);
            break;
        case InputKind::zlo:
            program.kept_lines = read_zlo(stage, log_request(program, options));
            break;
        case InputKind::cbr: {
            const CabrilloContacts contacts = henkan_cbr_2_t(stage, log_request(program, options));
            show_record_count(program, contacts.counted, "件");
            program.kept_lines = contacts.kept;
            break;
        }
        case InputKind::ADIF:
            program.kept_lines = henkan_ADIF_2_t(stage, log_request(program, options));
            break;
        case InputKind::lg8:
            log.in_name = lg8bridge_all_name(log.in_name);
            program.kept_lines = a_2_t(stage, log_request(program, options));
            break;
        case InputKind::log_v4:
            unpack_rtcl(program, RtclForm::before_430);
            program.kept_lines = a_2_t(stage, log_request(program, options));
            break;
        case InputKind::log_v430:
            unpack_rtcl(program, RtclForm::from_430);
            program.kept_lines = a_2_t(stage, log_request(program, options));
            break;
    }
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

OutputRequest output_request(const Program& program, const RunOptions& options) {
    return {.drive_path = program.paths.drive_path,
            .in_Dir = program.log.in_Dir,
            .names = program.log.names,
            .options = options};
}

// Codes and places by the chosen source.
void run_code_stage(Program& program, const RunOptions& options) {
    const Stage stage = program.stage();
    const std::string& in_Dir = program.log.in_Dir;
    switch (options.Option02) {
        case 1:
            bak_sep0(stage, {in_Dir, options, program.hl_code_mas});
            break;
        case 2:
            bak_sep2(stage, {in_Dir, options, [&program] { return take_dat_of_run(program); },
                             program.selection.Code_flag, program.dat_table});
            break;
        case 3: {
            const std::string& yubin_mas_dir = program.settings.environment.yubin_mas_dir;
            YubinMas yubin_mas(stage, yubin_mas_dir);
            CodeSource* const source = has_backslash(yubin_mas_dir) ? &yubin_mas : nullptr;
            bak_sep1(stage, {in_Dir, options, source, program.dat_table.line_buffer()});
            break;
        }
        default:
            bak_sep3(stage, in_Dir, options);
    }
}

// The row builder, and the log book side of the output behind it.
std::size_t Henkan_txt_2(Program& program, const RunOptions& options, const Layouts& layouts,
                         PastContacts* past) {
    return enter_procedure(program.trace, "Private Sub Henkan_txt_2()", [&] {
        const Stage stage = program.stage();
        const OutputRequest output = output_request(program, options);
        RunMasters masters(options, program.settings, program.name_mas,
                           program.counters.values[Counters::text_data]);
        const std::size_t no_qsl = build_rows(stage,
                                              {.in_Dir = program.log.in_Dir,
                                               .drive_path = program.paths.drive_path,
                                               .options = options,
                                               .layout_1 = layouts.rmks1,
                                               .layout_2 = layouts.rmks2,
                                               .lengths = program.remark_lengths,
                                               .sources = masters.sources(),
                                               .contest_name = program.log.contest_name,
                                               .past = past},
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
        const std::string& name_mas_dir = program.settings.environment.name_mas_dir;
        if (program.screen.Check03.value && has_backslash(name_mas_dir)) {
            program.name_mas.read_name_mas_txt(program.stage(), name_mas_dir);
        }
        program.kept_lines = 0;
        const bool counts_itself =
            program.log.f_type == InputKind::log_v4 || program.log.f_type == InputKind::zlo;
        if (!counts_itself) {
            count_in_name(program);
        }
        Conversion conversion;
        conversion.options = take_options(program);
        const RunOptions& options = conversion.options;
        // The rule before it can be taken off names the history; kept.
        QsoHistory history(history_path(program.paths.strPath, options.Option07),
                           {.same_band = options.Check19, .same_mode = options.Check20});
        if (options.Option01 != 0 && options.Option07 == 0) {
            program.screen.Option07.index = OptionGroup::none;
            conversion.options.Option07 = OptionGroup::none;
        }
        read_history(program, options);
        read_log(program, options);
        run_code_stage(program, options);
        conversion.no_qsl =
            Henkan_txt_2(program, options, layouts, options.Option07 != 0 ? &history : nullptr);
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

}  // namespace

void cmdStart_Click(Program& program) {
    MainScreen& screen = program.screen;
    program.trace.write("");
    enter_procedure(program.trace, "Private Sub cmdStart_Click()", [&] {
        close_free_viewers(program);
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

        Op04_Chk(program);
        program.counters.clear_search();
        screen.lblIn_rec_count.caption = "";
        screen.lblMsg.caption = "";
        screen.ProgressBar1.visible = true;
        const Layouts layouts{Sort_2(program), Sort_3(program)};
        keep_layouts(program.settings.options, layouts.rmks1, layouts.rmks2);

        screen.enable_start(false);
        screen.lblCFG.show("処 理 開 始", colours::green);
        program.settings.write_Veldrana_ini();
        program.settings.fill_empty_period();
        if (program.run_mode == RunMode::replacement) {
            cmd_chikan(program);
            screen.enable_start(true);
            screen.lblCFG.show("　　　置換終了", colours::blue);
            program.trace.write("Private Sub cmdStart_1() lblCFG.Caption = 置換終了");
        } else {
            const Conversion conversion = cmd_henkan(program, layouts);
            screen.enable_start(true);
            end_conversion(program, conversion);
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
        ChosenLog& log = program.log;
        if (log.f_type == InputKind::zlo || log.f_type == InputKind::ADIF) {
            return;
        }
        const bool refused = screen.lblIn_name.caption == std::string(not_a_text_log);
        const bool of_rtcl = log.f_type == InputKind::log_v4 || log.f_type == InputKind::log_v430;
        if (refused && !of_rtcl) {
            screen.lblOut_name1.caption = "";
            screen.lblOut_name2.caption = "";
            return;
        }
        if (!refused) {
            const auto at_end = static_cast<Count>(line_number_at_end(program.disk, log.in_name));
            log.record_count = right_aligned(at_end - 2, 4);
            screen.lblCFG.caption = "";
        }
        screen.lblIn_rec.caption = log.record_count + " 件";
    });
}

}  // namespace veldrana
