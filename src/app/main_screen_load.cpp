#include "app/main_screen_load.h"

#include <string>

#include "app/chosen_log.h"
#include "app/contest_choice.h"
#include "app/option_handlers.h"
#include "app/recent_logs.h"
#include "app/remark_slot_settings.h"
#include "app/source_ranks.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "masters/contest_list.h"
#include "masters/master_checks.h"
#include "readers/log_line.h"
#include "settings/frmDate.h"
#include "settings/option_defaults.h"
#include "settings/window_positions.h"

namespace veldrana {
namespace {

void set_if_empty(std::string& text, std::string_view value) {
    if (text.empty()) {
        text = value;
    }
}

// --- Form_Load ---

void show_survey_menu(Program& program) {
    const bool wanted = program.settings.options.Check_dat == "1";
    program.screen.mnuCheck_dat.visible = wanted;
    program.screen.mnuCheck_dat_bunrui.enabled = wanted && program.settings.exists("Master_hl.txt");
}

void repair_no_qsl_letter(SettingsStore& settings) {
    EnvironmentSettings& environment = settings.environment;
    if (environment.No_QSL_moji_set_flag.empty() || environment.No_QSL_moji_set_flag == "0") {
        environment.No_QSL_moji = "N";
        environment.No_QSL_moji_set_flag = "1";
        settings.write_Veldrana_cfg_ini();
    }
}

void read_settings(SettingsStore& settings) {
    settings.read_Veldrana_new_ini();
    settings.read_Veldrana_cfg_ini();
    if (settings.options.Check26.empty()) {
        settings.options.Check26 = "1";
        settings.write_Veldrana_ini();
    }
}

// --- Form_Load_2 ---

// What the environment has no master for is switched off.
void disable_unused_masters(Program& program) {
    MainScreen& screen = program.screen;
    const MastersInUse& in_use = program.settings.masters_in_use;
    screen.Check03.enabled = in_use.name_mas;
    screen.cmdCount.enabled = in_use.name_mas;
    screen.lblNo_qth_mas.visible = !in_use.qth_mas;
    for (CheckBox* const box : {&screen.Check14, &screen.Check1, &screen.Check4, &screen.Check5,
                                &screen.Check6, &screen.Check7}) {
        box->enabled = in_use.qth_mas;
    }
    constexpr std::size_t postal_master = 3;
    screen.Option02.enable(postal_master, in_use.yubin_mas);
}

void ask_for_log(Program& program) {
    MainScreen& screen = program.screen;
    screen.lblIn_name.fore_colour = colours::red;
    screen.lblInfo.show("入力ファイルを指定して下さい", colours::red);
    if (!has_backslash(program.log.in_name)) {
        screen.disp_enable_f();
        return;
    }
    set_out_names(program);
    screen.disp_enable_t();
    screen.mnuDisp_QSOBank.enabled = program.disk.file_exists(program.log.in_Dir + "QSOBank.txt");
    show_former_dupe_list(program);
}

void show_log_book(Program& program) {
    if (program.hdb_name.empty()) {
        get_hdb_name_bas(program);
    }
    if (program.hdb_name.empty()) {
        program.screen.Option01.set_caption(0, "新 Hamlog.hdb");
        program.person.show({.text = program.settings.environment.hamlog_hdb_dir +
                                     " が有りません！ 環境設定を確認して下さい。"});
    } else {
        program.screen.Option01.set_caption(0, "新 " + program.hdb_name);
    }
}

void Form_Load_2(Program& program) {
    enter_procedure(program.trace, "Private Sub Form_Load_2()", [&] {
        MainScreen& screen = program.screen;
        const OptionSettings& options = program.settings.options;
        disable_unused_masters(program);
        Op02_Chk(program);
        ask_for_log(program);
        program.settings.refresh_end_date();
        show_log_book(program);
        screen.txtQSL_Q.text = options.QSL_Q;
        screen.txtQSL_S.text = options.QSL_S;
        fill_ranks(program);
    });
}

// --- Form_Load_3 ---

void repair_options(SettingsStore& settings, Clock& clock) {
    OptionSettings& options = settings.options;
    // Not the colours of a new file; kept, users know them.
    set_if_empty(options.dat_mas_color, "16744576");
    set_if_empty(options.name_mas_color, "4227072");
    set_if_empty(options.qth_mas_color, "4425690");
    set_if_empty(options.text_data_color, "16744448");
    set_if_empty(options.Start_date, first_period_day);
    set_if_empty(options.Option7, "0");
    set_if_empty(options.Option8, "0");
    set_if_empty(options.Option9, "0");
    set_if_empty(options.YYYY, present_year(clock));
}

void Form_Load_3(Program& program) {
    enter_procedure(program.trace, "Private Sub Form_Load_3()", [&] {
        repair_options(program.settings, program.clock);
        program.screen.txtYYYY.text = program.settings.options.YYYY;
        run_option_handlers(program);
    });
}

// --- Form_Load_4 ---

void show_member_search(Program& program) {
    MainScreen& screen = program.screen;
    OptionSettings& options = program.settings.options;
    screen.Check31.value = stored_number(options.N_sreach_flag) != 0;
    screen.Check32.value = stored_number(options.N_ReWrite_flag) != 0;
    screen.Check33.value = stored_number(options.Not_JARL_flag) != 0;
    set_if_empty(options.QSL_moji, default_member_mark);
    screen.txtQSL_moji.text = options.QSL_moji;
    show_operator(program);
}

void show_user_texts(MainScreen& screen, const OptionSettings& options) {
    screen.cmdSet_UserTxt_A.caption = user_text_caption(options.Text_data_dir_A);
    screen.cmdSet_UserTxt_B.caption = user_text_caption(options.Text_data_dir_B);
    for (CommandButton* const button : {&screen.cmdSet_UserTxt_A, &screen.cmdSet_UserTxt_B}) {
        button->tool_tip = "ユーザーテキストの使用時はファイルを指定する";
    }
}

void Form_Load_4(Program& program) {
    enter_procedure(program.trace, "Private Sub Form_Load_4()", [&] {
        MainScreen& screen = program.screen;
        SettingsStore& settings = program.settings;
        chk_disp_top_sstab(screen);
        chk_disp_top_sstab_2(screen);
        show_member_search(program);
        screen.cmdDisp_Veldrana_cfg_ini.tool_tip = settings.path(cfg_ini);
        screen.cmdDisp_Veldrana_new_ini.tool_tip = settings.path(new_ini);
        set_if_empty(settings.options.Start_date, first_period_day);
        screen.window.caption = set_period_caption(settings, period_blanks_at_start);
        show_user_texts(screen, settings.options);
        Check_contest_name_csv(program.stage(), program.paths.contest_name_csv,
                               program.paths.strPath);
        screen.mnuQSOBank.enabled =
            program.disk.file_exists(program.log.in_Dir + std::string(log_line_file));
    });
}

// The files of the masters that the environment names.
void check_masters(Program& program) {
    const EnvironmentSettings& environment = program.settings.environment;
    const NameMasCheck found =
        name_mas_dir_check(program.stage(), environment.name_mas_dir, program.screen.Check03.value);
    program.name_mas_max = found.name_mas_max;
    program.screen.Check03.value = found.Check03;
    program.screen.lblMsg.caption = std::string(found.note);
    yubin_dir_check(program.stage(), environment.yubin_mas_dir);
}

void Form_Load(Program& program) {
    enter_procedure(program.trace, "Private Sub Form_Load()", [&] {
        MainScreen& screen = program.screen;
        load_position(program.disk, program.paths.strPath, screen.window);
        screen.mnuDisp_dup.enabled = false;
        screen.lblJARL_menu.caption = "メニューの [JARL] [Webブラウザ表示] から実行して下さい。";
        screen.lblJARL_after.caption = "[ 変換 ] 処理が終了後にボタンが有効になります。";
        show_survey_menu(program);
        repair_no_qsl_letter(program.settings);
        kettuka_disp(program.counters, screen);
        read_settings(program.settings);
        restore_dat(program);
        get_hdb_name_bas(program);
        Disp_Rmks_cfg(program);
        program.trace.write("ini_read_2");
        Option08_set(program);
        ini_read_2(program);
        Form_Load_2(program);
        Form_Load_3(program);
        Form_Load_4(program);
        check_masters(program);
        load_recent_logs(program);
    });
}

}  // namespace

void show_main_screen(Program& program) {
    Form_Load(program);
    program.screen.window.visible = true;
    program.read_master.window.visible = false;
    chk_disp_top_sstab(program.screen);
    chk_disp_top_sstab_2(program.screen);
    program.start.reached = Start::main_screen;
}

void take_up_environment(Program& program, const EnvironmentSettings& before) {
    const EnvironmentSettings& environment = program.settings.environment;
    get_hdb_name_bas(program);
    show_log_book(program);
    disable_unused_masters(program);
    Check14_Click(program);
    show_operator(program);
    if (environment.name_mas_dir != before.name_mas_dir ||
        environment.yubin_mas_dir != before.yubin_mas_dir) {
        check_masters(program);
    }
    program.start.reached = Start::main_screen;
}

void show_operator(Program& program) {
    const EnvironmentSettings& environment = program.settings.environment;
    program.screen.lblMyCalls.caption = environment.MyCalls;
    // Not the password itself: others look at the screen too.
    program.screen.lblPassWord.caption = std::string(length(environment.PassWords), '*');
}

void get_hdb_name_bas(Program& program) {
    enter_procedure(program.trace, "Public Sub get_hdb_name_bas()", [&] {
        constexpr Count shown_bytes = 6;
        const FilePath database = split_path(program.settings.environment.hamlog_hdb_dir);
        program.disk.protect_log_book(program.settings.environment.hamlog_hdb_dir);
        if (database.name.empty()) {
            return;
        }
        program.hdb_name = std::string(MidMbcs(database.base_name, 1, shown_bytes)) + ".hdb";
        program.screen.Option01.set_caption(0, "新 " + program.hdb_name);
        if (!database.drive.empty()) {
            program.paths.drive_path = std::string(database.drive) + "\\";
        }
    });
}

void chk_disp_top_sstab(MainScreen& screen) {
    screen.SSTab1.tab = screen.Option2.index.get();
}

void chk_disp_top_sstab_2(MainScreen& screen) {
    screen.SSTab2.tab = screen.Option22.index.get();
}

}  // namespace veldrana
