#include "settings/frmConfig.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "settings/window_positions.h"

namespace veldrana {
namespace {

// The letters of the prompt "入力必要": a text with one of them is a prompt still.
constexpr std::array<std::string_view, 4> prompt_letters{"入", "力", "必", "要"};

// A read of the environment gives no more than 127 bytes.
constexpr Count longest_path = 120;

bool is_blank(std::string_view text) {
    return trim(text).empty();
}

bool is_unset(std::string_view text) {
    return is_blank(text) ||
           std::any_of(prompt_letters.begin(), prompt_letters.end(), [text](std::string_view it) {
               return text.find(it) != std::string_view::npos;
           });
}

std::string without_doubled_backslashes(std::string_view path) {
    return replace_all(path, "\\\\", "\\");
}

std::string cut_path(std::string_view path) {
    return std::string(trim(MidMbcs(path, 1, longest_path)));
}

// The folder of the postal master as the dialog shows it. An empty one becomes a backslash; kept.
std::string tidied_yubin_mas_dir(std::string_view folder) {
    std::string text = replace_all(folder, std::string(not_used) + "\\", not_used);
    if (text.find(not_used) == std::string::npos) {
        text = with_backslash(text);
    }
    return without_doubled_backslashes(text);
}

std::string first_character(std::string_view text) {
    return std::string(left(text, 1));
}

}  // namespace

frmConfig::frmConfig(const Stage& stage, SettingsStore& settings, ConfigDialogRequest request)
    : WindowForm("frmConfig"), stage_(stage), settings_(settings), request_(std::move(request)) {
    for (CheckBox* const box : {&chkNo_name, &chkNo_qth, &chkNo_yubin}) {
        box->tool_tip = "使用する予定が無い時は [ レ点マーク ] を付けて下さい。";
    }
    txtPassWords.hidden_text = true;
    attach_handlers();
}

void frmConfig::attach_handlers() {
    const auto trapped = [this](std::string_view procedure, auto handler) {
        return [this, procedure, handler] {
            trap_failures(stage_.trace, procedure, ErrorLine::number_only, handler);
        };
    };
    const auto traced = [this](std::string_view procedure, void (frmConfig::*handler)()) {
        return [this, procedure, handler] {
            enter_procedure(stage_.trace, procedure, ErrorLine::number_only,
                            [this, handler] { (this->*handler)(); });
        };
    };
    for (PathEntry* const entry : paths_) {
        entry->text.text.on_change =
            trapped("Private Sub sp_flag_Chk()", [this] { sp_flag_Chk(); });
    }
    txtMyCalls.text.on_change =
        trapped("Private Sub txtMycalls_Change()", [this] { txtMycalls_Change(); });
    txtPassWords.text.on_change =
        trapped("Private Sub txtPassWords_Change()", [this] { txtPassWords_Change(); });
    Text1.text.on_change = trapped("Private Sub Text1_Change()", [this] { Text1_Change(); });
    chkShow_PassWords.value.on_change = [this] {
        txtPassWords.hidden_text = !chkShow_PassWords.value;
    };

    const auto browse_folder = [&](std::string_view procedure, PathEntry& entry,
                                   std::string_view filter) {
        entry.browse.Click =
            trapped(procedure, [this, &entry, filter] { browse_folder_of_file(entry, filter); });
    };
    browse_folder("Private Sub cmdZlog_dat_Click()", zlog_dat_,
                  "zLog 用 個別 DAT ﾌｧｲﾙ (*.dat)|*.DAT");
    browse_folder("Private Sub cmdName_mas_Click()", name_mas_,
                  "name_mas.txt  (name_mas.txt;name_mas?.txt)|name_mas.txt;name_mas?.txt");
    browse_folder("Private Sub cmdGetZloDir_Click()", zlo_, "zLog の ﾊﾞｲﾅﾘｰ･ﾌｧｲﾙ  (*.zlo)|*.zlo");
    browse_folder("Private Sub cmdGetAllDir_Click()", all_,
                  "zLog の ﾃｷｽﾄ･ﾌｧｲﾙ  (*.all;*.txt)|*.all;*.txt");
    cmdHamlog_hdb.Click = trapped("Private Sub cmdHamlog_hdb_Click()", [this] {
        browse_database(hamlog_hdb_, "Hamlog の *.hdb ﾌｧｲﾙ 常用 (*.hdb)|*.hdb");
    });
    cmdHamlog_hdb_2.Click = trapped("Private Sub cmdHamlog_hdb_2_Click()", [this] {
        browse_database(hamlog_hdb_2_, "Hamlog の *.hdb ﾌｧｲﾙ 印刷用 (*.hdb)|*.hdb");
    });
    cmdQth_mas.Click = trapped("Private Sub cmdQth_mas_Click()", [this] { cmdQth_mas_Click(); });
    cmdYubin_mas.Click =
        trapped("Private Sub cmdYubin_mas_Click()", [this] { cmdYubin_mas_Click(); });

    chkNo_name.value.on_change =
        traced("Private Sub chkNo_name_Click()", &frmConfig::chkNo_name_Click);
    chkNo_qth.value.on_change =
        traced("Private Sub chkNo_qth_Click()", &frmConfig::chkNo_qth_Click);
    chkNo_yubin.value.on_change =
        traced("Private Sub chkNo_yubin_Click()", &frmConfig::chkNo_yubin_Click);
    cmdSave.Click = traced("Private Sub cmdSave_Click()", &frmConfig::cmdSave_Click);
    cmdOK.Click = traced("Private Sub cmdOK_Click()", &frmConfig::cmdOK_Click);
    cmdEnd.Click = traced("Private Sub cmdEnd_Click()", &frmConfig::cmdEnd_Click);
}

// --- load ---

void frmConfig::Form_Load() {
    enter_procedure(stage_.trace, "Private Sub Form_Load()", ErrorLine::number_only, [this] {
        request_.strPath = with_backslash(request_.strPath);
        load_position(stage_.disk, request_.strPath, window);
        read_letter();
        if (settings_.exists(new_ini)) {
            window.caption = "［ 環境設定 ］ Veldrana_cfg ．ini を編集・作成します。";
            set_read_cfg2();
            trace_profile_file(stage_, settings_, cfg_ini, "環境設定");
        } else {
            window.caption = "［ 環境設定 ］ Veldrana_cfg ．ini を新規作成します。";
            settings_.write_Veldrana_cfg_ini();
            set_read_cfg2();
            for (PathEntry* const entry : paths_) {
                mark(*entry, true);
            }
            lblMyCalls.fore_colour = colours::red;
            lblPassWords.fore_colour = colours::red;
            lblMsg.show("空白あり", colours::red);
            lblMsg2.show("空白項目がある場合には保存出来ません！", colours::red);
            cmdSave.enabled = false;
        }
        sp_flag_Chk();
        // Has the last word, for settings of an old version too.
        const bool complete = sp_flag_ < 1;
        cmdOK.enabled = complete;
        cmdSave.enabled = complete;
        if (complete) {
            lblMsg.caption = "作成可能";
            lblMsg2.caption = "「保存」を押して下さい。 「ＯＫ」でメイン画面に戻ります。";
        } else {
            lblMsg.show("作成必要", colours::red);
        }
        window.visible = true;
    });
}

void frmConfig::read_letter() {
    EnvironmentSettings& environment = settings_.environment;
    const std::string& was_set = environment.No_QSL_moji_set_flag;
    if (was_set.empty() || was_set == "0") {
        environment.No_QSL_moji = "N";
    } else if (is_blank(environment.No_QSL_moji)) {
        environment.No_QSL_moji = " ";
    }
    Text1.text = environment.No_QSL_moji;
}

void frmConfig::set_read_cfg2() {
    // The boxes change what is in memory as they are filled.
    const EnvironmentSettings environment = settings_.environment;
    for (PathEntry* const entry : paths_) {
        entry->text.text = environment.*entry->value;
    }
    txtYubin_mas.text = tidied_yubin_mas_dir(environment.yubin_mas_dir);
    txtHamlog_hdb.text = std::string(trim(environment.hamlog_hdb_dir));
    txtHamlog_hdb_2.text = std::string(trim(environment.hamlog_hdb_2_dir));
    for (MasterEntry* const master : {&name_master_, &qth_master_, &yubin_master_}) {
        const bool in_use = is_used(master->path.text.text.get());
        settings_.masters_in_use.*master->in_use = in_use;
        master->unused.value = !in_use;
    }
    txtMyCalls.text = upper(environment.MyCalls);
    txtPassWords.text = environment.PassWords;
    // Empty boxes that stay empty tell of no change.
    MyCalls_Chk();
    PassWords_Chk();
}

// --- checks ---

void frmConfig::mark(PathEntry& entry, bool bad) {
    entry.bad = bad;
    entry.label.fore_colour = bad ? colours::red : colours::black;
}

void frmConfig::check_filled(PathEntry& entry) {
    mark(entry, is_blank(entry.text.text.get()));
}

void frmConfig::check_master(MasterEntry& master) {
    if (master.unused.value) {
        settings_.masters_in_use.*master.in_use = false;
        mark(master.path, false);
    } else {
        check_filled(master.path);
    }
}

void frmConfig::check_database(PathEntry& entry) {
    const std::string& path = entry.text.text;
    mark(entry, !stage_.disk.file_exists(path) || !has_backslash(path));
}

void frmConfig::Zlog_dat_Chk() {
    check_filled(zlog_dat_);
}

void frmConfig::Name_mas_Chk() {
    check_master(name_master_);
}

void frmConfig::Qth_mas_Chk() {
    check_master(qth_master_);
}

void frmConfig::Yubin_mas_Chk() {
    check_master(yubin_master_);
}

void frmConfig::hamlog_hdb_Chk() {
    check_database(hamlog_hdb_);
}

void frmConfig::hamlog_hdb_2_Chk() {
    check_database(hamlog_hdb_2_);
}

void frmConfig::zlodir_Chk() {
    check_filled(zlo_);
}

void frmConfig::alldir_Chk() {
    check_filled(all_);
}

void frmConfig::MyCalls_Chk() {
    const std::string_view call = trim(txtMyCalls.text.get());
    if (is_unset(call)) {
        lblMyCalls.fore_colour = colours::red;
    } else if (call.front() == '7' || call.front() == '8' || call.front() == 'J') {
        lblMyCalls.fore_colour = colours::black;
    }
}

void frmConfig::PassWords_Chk() {
    lblPassWords.fore_colour = is_unset(txtPassWords.text.get()) ? colours::red : colours::black;
}

void frmConfig::sp_flag_Chk() {
    Zlog_dat_Chk();
    Name_mas_Chk();
    Qth_mas_Chk();
    Yubin_mas_Chk();
    hamlog_hdb_Chk();
    hamlog_hdb_2_Chk();
    zlodir_Chk();
    alldir_Chk();
    sp_flag_ = static_cast<int>(std::count_if(paths_.begin(), paths_.end(),
                                              [](const PathEntry* entry) { return entry->bad; }));
    if (request_.old_version) {
        cmdOK.enabled = false;
        cmdSave.enabled = true;
        lblMsg.show("nwe ver です", colours::red);
        lblMsg2.caption = "必ず「保存」を押して下さい。　「ＯＫ」でメイン画面に戻ります。";
    } else if (sp_flag_ == 0) {
        cmdOK.enabled = true;
        cmdSave.enabled = true;
        lblMsg.show("作成可能", colours::blue);
        lblMsg2.caption = "「保存」を押して下さい。 「ＯＫ」でメイン画面に戻ります。";
    } else {
        cmdOK.enabled = false;
        cmdSave.enabled = false;
        lblMsg.show("設定不良、か空白あり", colours::red);
        lblMsg2.caption = "存在しない、又は空白項目がある場合には保存出来ません！";
    }
}

// --- what a person chooses and types ---

void frmConfig::browse_folder_of_file(PathEntry& entry, std::string_view filter) {
    const std::string path =
        stage_.person.choose_file({.filter = std::string(filter), .must_exist = true});
    if (!path.empty()) {
        const std::string cut = cut_path(path);
        entry.text.text = cut.substr(0, cut.rfind('\\') + 1);
    }
}

void frmConfig::browse_database(PathEntry& entry, std::string_view filter) {
    const std::string path =
        stage_.person.choose_file({.filter = std::string(filter), .must_exist = true});
    if (!path.empty()) {
        entry.text.text = cut_path(path);
    }
}

void frmConfig::cmdQth_mas_Click() {
    const std::string path = stage_.person.choose_file(
        {.filter = "qth_mas.txt  (qth_mas.txt)|qth_mas.txt", .must_exist = true});
    if (!path.empty()) {
        txtQth_mas.text = path;
    }
}

void frmConfig::cmdYubin_mas_Click() {
    const std::string folder =
        stage_.person.choose_folder("Yubin_m*.mas のフォルダを選択してください", "");
    if (!folder.empty()) {
        txtYubin_mas.text = without_doubled_backslashes(with_backslash(folder));
    }
}

void frmConfig::chkNo_Click(MasterEntry& master) {
    const bool unused = master.unused.value;
    TextBox& box = master.path.text;
    if (unused) {
        if (box.text.get() != not_used) {
            master.kept = box.text.get();
        }
        box.text = std::string(not_used);
    } else {
        box.text = master.kept.value_or(std::string());
    }
    box.enabled = !unused;
    master.path.browse.enabled = !unused;
    settings_.masters_in_use.*master.in_use = !unused;
    master.taken_up = !unused;
    // A box that said so before tells of no change.
    sp_flag_Chk();
}

void frmConfig::chkNo_name_Click() {
    chkNo_Click(name_master_);
}

void frmConfig::chkNo_qth_Click() {
    chkNo_Click(qth_master_);
}

void frmConfig::chkNo_yubin_Click() {
    chkNo_Click(yubin_master_);
    if (!chkNo_yubin.value && yubin_master_.kept) {
        txtYubin_mas.text = tidied_yubin_mas_dir(txtYubin_mas.text.get());
    }
}

void frmConfig::txtMycalls_Change() {
    std::string shown = upper(narrow(txtMyCalls.text.get()));
    if (shown != txtMyCalls.text.get()) {
        txtMyCalls.text = std::move(shown);  // comes back here
        return;
    }
    txtMyCalls.move_caret_to_end();
    settings_.environment.MyCalls = txtMyCalls.text;
    MyCalls_Chk();
}

void frmConfig::txtPassWords_Change() {
    settings_.environment.PassWords = std::string(trim(txtPassWords.text.get()));
    PassWords_Chk();
}

void frmConfig::Text1_Change() {
    std::string shown = narrow(Text1.text.get());
    if (shown != Text1.text.get()) {
        Text1.text = std::move(shown);  // comes back here
        return;
    }
    settings_.environment.No_QSL_moji = first_character(Text1.text.get());
}

// --- the ways out ---

void frmConfig::cmdSave_Click() {
    if (request_.old_version) {
        if (settings_.exists(cfg_ini)) {
            stage_.disk.remove(settings_.path(cfg_ini));
        }
        request_.old_version = false;
    }
    EnvironmentSettings& environment = settings_.environment;
    for (const PathEntry* const entry : paths_) {
        environment.*entry->value = entry->text.text;
    }
    environment.yubin_mas_dir = without_doubled_backslashes(environment.yubin_mas_dir);
    environment.MyCalls = upper(txtMyCalls.text.get());
    environment.PassWords = std::string(trim(txtPassWords.text.get()));
    settings_.restart = true;
    const std::string letter = narrow(trim(Text1.text.get()));
    environment.No_QSL_moji = letter.empty() ? " " : first_character(letter);
    environment.No_QSL_moji_set_flag = "1";
    settings_.write_Veldrana_cfg_ini();
    trace_profile_file(stage_, settings_, cfg_ini, "保存時");
    lblMsg.caption = "保存完了";
    lblMsg2.caption = "「ＯＫ」でメイン画面に戻ります。";
    cmdOK.enabled = true;
}

void frmConfig::cmdOK_Click() {
    save_position(stage_.disk, request_.strPath, window);
    cmdOK.enabled = false;
    lblMsg2.caption = "";
    lblMsg.caption = "メイン画面に戻る処理中．．．";
    tell_what_can_be_used();
    if (leave) {
        leave();
    }
    confirmed_ = true;
    window.visible = false;
}

// A master that was of no use until now is not asked by a run before its option is switched on.
void frmConfig::tell_what_can_be_used() {
    const OptionSettings& options = settings_.options;
    const EnvironmentSettings& environment = settings_.environment;
    if (stored_number(options.Check03) == 0 && has_backslash(environment.name_mas_dir) &&
        name_master_.taken_up) {
        stage_.person.show(
            {.title = "　　name_mas.txt　の使用が可能です",
             .text =
                 spaced_lines({"「 name_mas ．txt 」より QRA の取得する場合には",
                               "メイン画面の [ dat / mas ]  タブの中の「 name_mas ．txt より 」の",
                               "　「 QRA の取得する 」 のレ点を付けて下さい。"}),
             .icon = Icon::information});
    }
    if (stored_number(options.Check14) == 0 && has_backslash(environment.qth_mas_dir) &&
        qth_master_.taken_up) {
        stage_.person.show(
            {.title = "　　qth_mas.txt　の使用が可能です",
             .text = spaced_lines(
                 {"「 qth_mas ．txt 」より取得する場合には",
                  "メイン画面の [ 取得 ]  タブの中の「  ＱＴＨ_ＭＡＳ．ｔｘｔ よりの取得 」の",
                  "　「 使用する 」 のレ点を付けて下さい。"}),
             .icon = Icon::information});
    }
}

void frmConfig::cmdEnd_Click() {
    save_position(stage_.disk, request_.strPath, window);
    if (end_program) {
        end_program();
    }
}

}  // namespace veldrana
