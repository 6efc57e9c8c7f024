// Owns the environment dialog: where things are, who the operator is, and the letter for "no card".
// It marks what is missing, and saves nothing before all paths are there, except to bring settings
// of an old version up to date. The operator's entries and the letter are in memory as they are
// typed; the rest, and the file, change when it is saved.
//
// The dialog is left by cmdOK or ends the program by cmdEnd; a view gives its window no other way
// out.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "common/controls.h"
#include "platform/stage.h"
#include "settings/settings_store.h"

namespace veldrana {

struct ConfigDialogRequest {
    std::string strPath;  // the program's folder
    // The settings are those of an old version: they have to be saved anew.
    bool old_version = false;
};

class frmConfig : public WindowForm {
  public:
    // The window is not made smaller than this, in twips (1/1440 inch).
    static constexpr int least_width = 10485;
    static constexpr int least_height = 8300;

    // The stage, what it refers to and the settings outlive the form.
    frmConfig(const Stage& stage, SettingsStore& settings, ConfigDialogRequest request);

    // Takes up the environment as it is in memory, and shows the form.
    void Form_Load();

    // Labels are red while their entry is bad.
    Label lblZlog_dat{*this, "lblZlog_dat", "フォルダ　：　 個別　＊．DAT ﾌｧｲﾙ"};
    TextBox txtZlog_dat{*this, "txtZlog_dat"};
    CommandButton cmdZlog_dat{*this, "cmdZlog_dat", "参照"};
    Label lblName_mas{*this, "lblName_mas", "フォルダ　：　NAME_MAS．TXT"};
    TextBox txtName_mas{*this, "txtName_mas"};
    CommandButton cmdName_mas{*this, "cmdName_mas", "参照"};
    CheckBox chkNo_name{*this, "chkNo_name", "無用"};
    Label lblQth_mas{*this, "lblQth_mas", "ファイル　：　  QTH_MAS．TXT"};
    TextBox txtQth_mas{*this, "txtQth_mas"};
    CommandButton cmdQth_mas{*this, "cmdQth_mas", "参照"};
    CheckBox chkNo_qth{*this, "chkNo_qth", "無用"};
    Label lblYUbin_mas{*this, "lblYUbin_mas", "フォルダ　：　YUBIN_M？．MAS"};
    TextBox txtYubin_mas{*this, "txtYubin_mas"};
    CommandButton cmdYubin_mas{*this, "cmdYubin_mas", "参照"};
    CheckBox chkNo_yubin{*this, "chkNo_yubin", "無用"};
    Label lblHamlog_hdb{*this, "lblHamlog_hdb", "ファイル　：　ハムログの ＊．hｄｂ　常用"};
    TextBox txtHamlog_hdb{*this, "txtHamlog_hdb"};
    CommandButton cmdHamlog_hdb{*this, "cmdHamlog_hdb", "参照"};
    Label lblHamlog_hdb_2{*this, "lblHamlog_hdb_2", "ファイル　：　ハムログの ＊．hｄｂ　印刷用"};
    TextBox txtHamlog_hdb_2{*this, "txtHamlog_hdb_2"};
    CommandButton cmdHamlog_hdb_2{*this, "cmdHamlog_hdb_2", "参照"};
    Label lblZloDir{*this, "lblZloDir", "フォルダ　：　 拡張子 ＺＬＯ ファイル"};
    TextBox txtZloDir{*this, "txtZloDir"};
    CommandButton cmdGetZloDir{*this, "cmdGetZloDir", "参照"};
    Label lblAllDir{*this, "lblAllDir", "フォルダ　：　 拡張子 ALL , TXT ﾌｧｲﾙ"};
    TextBox txtAllDir{*this, "txtAllDir"};
    CommandButton cmdGetAllDir{*this, "cmdGetAllDir", "参照"};
    Label lblMyCalls{*this, "lblMyCalls", "コールサイン"};
    TextBox txtMyCalls{*this, "txtMyCalls"};
    Label lblPassWords{*this, "lblPassWords", "ＪＡＲＬのＨＰへのパスワード　（ 会員検索に使用 ）"};
    TextBox txtPassWords{*this, "txtPassWords"};
    // Shows the password, which is hidden else.
    CheckBox chkShow_PassWords{*this, "chkShow_PassWords", "表示"};
    Label Label1{*this, "Label1", "QSL 転送先マーク N を置きかえる文字"};
    Label Label2{*this, "Label2",
                 "画面上での表示や処理中は N ですが最終出力ファイルでは指定文字に置換します。"};
    TextBox Text1{*this, "Text1"};
    Label Label3{*this, "Label3", "２０１０年９月よりパスワードは不要になっています。"};
    Label lblMsg{*this, "lblMsg"};
    Label lblMsg1{*this, "lblMsg1",
                  "ファイル　の場合には　指定ファイルを指定する。\n"
                  "フォルダ　の場合には　グループのどれか一つを指定する。"};
    Label lblMsg2{*this, "lblMsg2"};
    CommandButton cmdSave{*this, "cmdSave", "保 存"};
    CommandButton cmdOK{*this, "cmdOK", "Ｏ Ｋ"};
    CommandButton cmdEnd{*this, "cmdEnd", "強制終了"};

    // Run by cmdOK before the dialog closes, and by cmdEnd. What they throw leaves it open.
    std::function<void()> leave;
    std::function<void()> end_program;

    // Whether the dialog was left by cmdOK.
    bool confirmed() const noexcept { return confirmed_; }
    // How many of the eight paths are bad.
    int sp_flag() const noexcept { return sp_flag_; }

    // Each tests its entry and marks its label.
    void Zlog_dat_Chk();
    void Name_mas_Chk();
    void Qth_mas_Chk();
    void Yubin_mas_Chk();
    void hamlog_hdb_Chk();
    void hamlog_hdb_2_Chk();
    void zlodir_Chk();
    void alldir_Chk();
    // A call sign of another country keeps the mark that stands there.
    void MyCalls_Chk();
    void PassWords_Chk();
    // All paths, and whether they can be saved.
    void sp_flag_Chk();

  private:
    // An entry that the program does not start without.
    struct PathEntry {
        Label& label;
        TextBox& text;
        CommandButton& browse;
        std::string EnvironmentSettings::*value;
        bool bad = false;
    };
    // The entry of a master that a station may do without.
    struct MasterEntry {
        PathEntry& path;
        CheckBox& unused;
        bool MastersInUse::*in_use;
        // The text from before it was told to be of no use; nothing where the load has told so.
        std::optional<std::string> kept = {};
        bool taken_up = false;  // it was of no use before
    };

    void attach_handlers();
    void set_read_cfg2();
    void mark(PathEntry& entry, bool bad);
    void check_filled(PathEntry& entry);
    void check_master(MasterEntry& entry);
    void check_database(PathEntry& entry);
    void read_letter();

    void browse_folder_of_file(PathEntry& entry, std::string_view filter);
    void browse_database(PathEntry& entry, std::string_view filter);
    void cmdQth_mas_Click();
    void cmdYubin_mas_Click();
    void chkNo_Click(MasterEntry& entry);
    void chkNo_name_Click();
    void chkNo_qth_Click();
    void chkNo_yubin_Click();
    void txtMycalls_Change();
    void txtPassWords_Change();
    void Text1_Change();
    void cmdSave_Click();
    void cmdOK_Click();
    void cmdEnd_Click();
    void tell_what_can_be_used();

    Stage stage_;
    SettingsStore& settings_;
    ConfigDialogRequest request_;
    PathEntry zlog_dat_{lblZlog_dat, txtZlog_dat, cmdZlog_dat, &EnvironmentSettings::zlog_dat_dir};
    PathEntry name_mas_{lblName_mas, txtName_mas, cmdName_mas, &EnvironmentSettings::name_mas_dir};
    PathEntry qth_mas_{lblQth_mas, txtQth_mas, cmdQth_mas, &EnvironmentSettings::qth_mas_dir};
    PathEntry yubin_mas_{lblYUbin_mas, txtYubin_mas, cmdYubin_mas,
                         &EnvironmentSettings::yubin_mas_dir};
    PathEntry hamlog_hdb_{lblHamlog_hdb, txtHamlog_hdb, cmdHamlog_hdb,
                          &EnvironmentSettings::hamlog_hdb_dir};
    PathEntry hamlog_hdb_2_{lblHamlog_hdb_2, txtHamlog_hdb_2, cmdHamlog_hdb_2,
                            &EnvironmentSettings::hamlog_hdb_2_dir};
    PathEntry zlo_{lblZloDir, txtZloDir, cmdGetZloDir, &EnvironmentSettings::zlo_dir};
    PathEntry all_{lblAllDir, txtAllDir, cmdGetAllDir, &EnvironmentSettings::all_dir};
    const std::array<PathEntry*, 8> paths_{&zlog_dat_,   &name_mas_,     &qth_mas_, &yubin_mas_,
                                           &hamlog_hdb_, &hamlog_hdb_2_, &zlo_,     &all_};
    MasterEntry name_master_{name_mas_, chkNo_name, &MastersInUse::name_mas};
    MasterEntry qth_master_{qth_mas_, chkNo_qth, &MastersInUse::qth_mas};
    MasterEntry yubin_master_{yubin_mas_, chkNo_yubin, &MastersInUse::yubin_mas};
    bool confirmed_ = false;
    int sp_flag_ = 0;
};

}  // namespace veldrana
