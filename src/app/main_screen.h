// Owns the main screen as a form: the controls that a user meets. What options do when they are
// clicked stands in app/option_handlers.h; what starts something is attached by app/program.h.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "common/controls.h"
#include "rows/remark_slots.h"

namespace veldrana {

// The rows of the result grid, in its order.
constexpr std::array<std::string_view, 10> counter_labels{
    " 今 回 の処理数",   " 複 数 の局の数",   " 単 数 の局の数",   " 複 ・単の合計数",
    " No QSL 局の数",    " Name 取得の数",    " ＪＡＲＬ登録の数", " ＪＡＲＬ無登録数",
    " ＪＡＲＬ無検索数", " Text_data 取得数",
};

// Which source of a field stands at which rank, the highest first; coloured while it is in use.
using RankLabels = ControlArray<Label, 4>;

// A log that was opened before; its caption is the path.
class RecentEntry : public MenuEntry {
  public:
    RecentEntry(Form& form, std::string name) : MenuEntry(form, std::move(name), {}) {}
};

using RecentEntries = ControlArray<RecentEntry, 8>;

struct Menu {
    MenuEntry* entry = nullptr;  // null: a line between entries
    std::vector<Menu> below = {};
};

struct MainScreen : WindowForm {
    MainScreen();

    // --- status ---
    Label lblCFG{*this, "lblCFG"};
    Label lblMsg{*this, "lblMsg"};
    Label lblInfo{*this, "lblInfo"};
    Label lblIn_name{*this, "lblIn_name"};
    Label lblIn_rec{*this, "lblIn_rec"};
    Label lblIn_rec_count{*this, "lblIn_rec_count"};
    Label lblOut_name1{*this, "lblOut_name1"};  // _cjn.csv
    Label lblOut_name2{*this, "lblOut_name2"};  // _hjn.csv
    Label lblDatName{*this, "lblDatName"};      // the contest data file
    Label Label37{*this, "Label37"};            // the same on another page
    Label lblNo_qth_mas{*this, "lblNo_qth_mas", "QTH_MAS．TXT は使用しない設定です。"};
    Label lblMyCalls{*this, "lblMyCalls"};
    Label lblPassWord{*this, "lblPassWord"};
    // Two notes on the page of the member search.
    Label lblJARL_menu{*this, "lblJARL_menu"};
    Label lblJARL_after{*this, "lblJARL_after"};
    RankLabels lblName{*this, "lblName"};
    RankLabels lblCode{*this, "lblCode"};
    RankLabels lblQth{*this, "lblQth"};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};
    Grid MSFlexGrid1{*this, "MSFlexGrid1", counter_labels.size(), {1900, 800, 400}};
    TabControl SSTab1{*this, "SSTab1"};
    TabControl SSTab2{*this, "SSTab2"};

    // --- options ---
    OptionGroup Option01{*this, "Option01", {"新 Hamlog.hdb"}, 0};
    OptionGroup Option07{
        *this,
        "Option07",
        {"この機能は無効にする", "QSO 済みの局", "QSL発行済みの局", "QSL受領済みの局"},
        0};
    OptionGroup Option02{
        *this, "Option02", {"使用しない", "hl_code.mas", "個別 DAT 等", "yubin_m?"}, 0};
    OptionGroup Option03{*this, "Option03", {"自動", "手動"}, 0};
    OptionGroup Option04{*this, "Option04", {"しない", "する"}, 0};
    OptionGroup Option05{*this, "Option05", {"分ける", "分けない"}, 0};
    OptionGroup Option06{*this,
                         "Option06",
                         {"Call > Band > Mode > Date > Time", "Call > Date > Time > Band > Mode"},
                         0};
    OptionGroup Option09{*this, "Option09", {"ASCII 順", "JARL順", "JARL逆順"}, 0};
    OptionGroup Option08{
        *this, "Option08", {"無変換", "全て J", "全て U", "DX 局 U", "ＪＡ 局 Ｊ"}, 0};
    OptionGroup Option1{*this, "Option1", {"U", "J"}, 0};
    OptionGroup Option2{*this, "Option2", std::vector<std::string>(3, "起動時に最上部表示する。"),
                        0};
    OptionGroup Option22{*this, "Option22", std::vector<std::string>(4, "起動時に最上部表示する。"),
                         0};
    OptionGroup Option4{*this, "Option4", {"左側", "右側", "左側", "右側"}, 1};

    CheckBox Check01{*this, "Check01", "Freq 取り込み", true};
    CheckBox Check03{*this, "Check03", "QRA の取得する"};
    CheckBox Check06{*this, "Check06", "作成"};
    CheckBox Check07{*this, "Check07", "contestj.csv , contestj_n.csv の G・L 欄の # を置換"};
    CheckBox Check08{*this, "Check08", "cont_jのみ"};
    CheckBox Check1{*this, "Check1", "空白有り"};
    CheckBox Check10{*this, "Check10", "No QSL とする"};
    CheckBox Check14{*this, "Check14", "使用する"};
    CheckBox Check4{*this, "Check4", "Code", true};
    CheckBox Check5{*this, "Check5", "G ・L", true};
    CheckBox Check6{*this, "Check6", "Name", true};
    CheckBox Check7{*this, "Check7", "QTH"};
    CheckBox Check16{*this, "Check16", "但し、移動局なら Code , QTH , G・L は取得しない"};
    CheckBox Check8{*this, "Check8", "使用する"};
    CheckBox Check4_A{*this, "Check4_A", ""};
    CheckBox Check4_B{*this, "Check4_B", ""};
    CheckBox Check11{*this, "Check11", "Name"};
    CheckBox Check13{*this, "Check13", "Code"};
    CheckBox Check9{*this, "Check9", "QTH"};
    CheckBox Check12{*this, "Check12", "Ｒｍｋｓ"};
    CheckBox Check17{*this, "Check17", "但し、移動局なら　Code , QTH は取得しない"};
    CheckBox Check15{*this, "Check15", "　読み込む　 指定ＯＰ名 ==>", true};
    CheckBox Check18{*this, "Check18", "変換の度に参照ファイルから再読み込みをする"};
    CheckBox Check19{*this, "Check19", "同バンド"};
    CheckBox Check20{*this, "Check20", "同モード"};
    CheckBox Check2{*this, "Check2", " N --> J"};
    CheckBox Check3{*this, "Check3", " J --> N"};
    CheckBox Check21{*this, "Check21", " 単数回 のみ は Ｇ・Ｌ 欄 に ＃ を書き込む"};
    CheckBox Check22{*this, "Check22", "Entity 解析"};
    CheckBox Check23{*this, "Check23", "No QSL の処理は 移動地を含むコールサイン で行う", true};
    CheckBox Check24{*this, "Check24", ""};
    CheckBox Check25{*this, "Check25", ""};
    CheckBox Check26{*this, "Check26", "エラー無しでもログ残す", true};
    CheckBox Check27{*this, "Check27", "受信ナンバーの空中線電力記号 ( H/M/L/P ) を削除"};
    CheckBox Check28{*this, "Check28", "APP_N1MM_EXCHANGE1 を Ｃｏｄｅ 欄に転記"};
    CheckBox Check31{*this, "Check31", "N も検索"};
    CheckBox Check32{*this, "Check32", "N も書換"};
    CheckBox Check33{*this, "Check33", "無登録は N に書換"};
    Frame Frame03{*this, "Frame03"};  // the contest data file
    Frame Frame11{*this, "Frame11"};  // what contest data give
    CommandButton cmdSet_UserTxt_A{*this, "cmdSet_UserTxt_A", "使用なら要 set"};
    CommandButton cmdSet_UserTxt_B{*this, "cmdSet_UserTxt_B", "使用なら要 set"};
    TextBox txtQSL_moji{*this, "txtQSL_moji"};
    TextBox txtQSL_Q{*this, "txtQSL_Q", "J"};
    TextBox txtQSL_S{*this, "txtQSL_S", "*"};
    TextBox txtRmks1{*this, "txtRmks1"};
    TextBox txtRmks2{*this, "txtRmks2"};
    TextBox txtOp_name{*this, "txtOp_name"};
    Frame Frame13{*this, "Frame13"};  // the chosen log and its results
    Frame Frame14{*this, "Frame14"};
    TextBox txtYYYY{*this, "txtYYYY"};
    CommandButton cmdNow{*this, "cmdNow", "今年を取得"};
    RemarkSlots lblRmks1{*this, "lblRmks1"};
    RemarkSlots lblRmks2{*this, "lblRmks2"};
    ItemButtons Command1{*this, "Command1"};
    Label lblLen{*this, "lblLen"};  // the length of the slot under the pointer
    CommandButton cmdAll_Sort{*this, "cmdAll_Sort", "整列"};
    CommandButton cmdSort_2{*this, "cmdSort_2", "整列"};
    CommandButton cmdSort_3{*this, "cmdSort_3", "整列"};
    CommandButton cmdAll_Redo{*this, "cmdAll_Redo", "戻す"};
    CommandButton cmdCl_rmk1{*this, "cmdCl_rmk1", "消す"};
    CommandButton cmdCl_rmk2{*this, "cmdCl_rmk2", "消す"};

    // --- what starts something ---
    CommandButton cmdStart{*this, "cmdStart", "変　　換"};
    CommandButton cmdStart_JARL{*this, "cmdStart_JARL", "変換　＋　会員検索"};
    CommandButton cmdStart_JARL2{*this, "cmdStart_JARL2", "変換 + 検索"};
    CommandButton cmdRireki{*this, "cmdRireki", "履 歴"};
    CommandButton cmdKetasu{*this, "cmdKetasu", "桁 数"};
    CommandButton cmdStop{*this, "cmdStop", "強 制 終 了"};  // does nothing; kept
    CommandButton cmdDisp_contest{*this, "cmdDisp_contest", "contestj_n"};
    CommandButton cmdDisp_Hamlog{*this, "cmdDisp_Hamlog", "hamlogja_n"};
    CommandButton cmdDisp_in{*this, "cmdDisp_in", "入力ﾌｧｲﾙ"};
    CommandButton cmdDisp_dat{*this, "cmdDisp_dat", "dat"};
    CommandButton cmdDisp_dat2{*this, "cmdDisp_dat2", "dat"};
    CommandButton cmdDisp_Veldrana_cfg_ini{*this, "cmdDisp_Veldrana_cfg_ini", "Veldrana_cfg.ini"};
    CommandButton cmdDisp_Veldrana_new_ini{*this, "cmdDisp_Veldrana_new_ini", "Veldrana_new.ini"};
    CommandButton cmdCount{*this, "cmdCount", "件 数 カウント"};
    CommandButton cmdCheck_bak_qso_mas{*this, "cmdCheck_bak_qso_mas", "bak_qso.mas 確認"};
    CommandButton cmdDate{*this, "cmdDate", "期 間"};

    MenuEntry mnuOpen{*this, "mnuOpen", "zlogのﾃﾞｰﾀ ( ALL , TXT ) ﾌｧｲﾙを選ぶ"};
    MenuEntry mnuOpen_all_txt_set{*this, "mnuOpen_all_txt_set",
                                  "zlogのﾃﾞｰﾀ ( ALL , TXT ) を 指定フォルダから選ぶ"};
    MenuEntry mnuOpen_z{*this, "mnuOpen_z", "zlogのﾃﾞｰﾀ ( ZLO ) ﾌｧｲﾙを選ぶ"};
    MenuEntry mnuOpen_z_set{*this, "mnuOpen_z_set", "zlogのﾃﾞｰﾀ ( ZLO ) を 指定フォルダから選ぶ"};
    MenuEntry mnuOpen_cbr{*this, "mnuOpen_cbr", "Cabrillo ファイルを選ぶ"};
    MenuEntry mnuOpen_ADIF{*this, "mnuOpen_ADIF", "N1MM Logger ADIF ファイルを選ぶ"};
    MenuEntry mnuOpen_Ctestwin_lg8{*this, "mnuOpen_Ctestwin_lg8", "Ctestwin lg8 ファイルを選ぶ"};
    MenuEntry mnuOpen_rtcl_log_set_new4{*this, "mnuOpen_rtcl_log_set_new4",
                                        "RTCL ( ver 4.30 より前 ) ＊．log ファイルを選ぶ"};
    MenuEntry mnuOpen_rtcl_log_set_new430{*this, "mnuOpen_rtcl_log_set_new430",
                                          "RTCL ( ver 4.30 以降 ) ＊．log ファイルを選ぶ"};
    MenuEntry mnu_rtcl_new4{*this, "mnu_rtcl_new4", "RTCL ( ver 4.30 より前 ) => txt , all 作成"};
    MenuEntry mnu_rtcl_new430{*this, "mnu_rtcl_new430", "RTCL ( ver 4.30 以降 ) => txt , all 作成"};
    MenuEntry mnuRecentHead{*this, "mnuRecentHead", "最近のログ"};
    RecentEntries mnuRecent{*this, "mnuRecent"};
    MenuEntry mnuMake_z2a{*this, "mnuMake_z2a", "＊．zLo  => ＊．all 作成 "};
    MenuEntry mnuDisp_z2a{*this, "mnuDisp_z2a", "＊．zLo => ＊．all 表示"};
    MenuEntry mnuDisp_log2a{*this, "mnuDisp_log2a", "＊．log => ＊．all 表示"};
    MenuEntry mnuOpenDat_mnu{*this, "mnuOpenDat_mnu", "個別DATﾌｧｲﾙを指定　（ 手動 ）"};
    MenuEntry mnuOpenDat_semi{*this, "mnuOpenDat_semi", "個別DATﾌｧｲﾙを指定　（ 半自 ）"};
    MenuEntry make_ini{*this, "make_ini", "ini 作成"};
    MenuEntry mnuConfig{*this, "mnuConfig", "環境設定"};
    MenuEntry mnuOpen_con_n{*this, "mnuOpen_con_n", "contestj_n.csv を開く"};
    MenuEntry mnuFile{*this, "mnuFile", "ファイル"};
    MenuEntry mnuDisp{*this, "mnuDisp", "表示"};
    MenuEntry mnuDel{*this, "mnuDel", "G・L欄の＃を置換"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};
    MenuEntry mnuGet_Value{*this, "mnuGet_Value", "Get_Value"};
    MenuEntry mnuMake_hl_code_mas{*this, "mnuMake_hl_code_mas", "hl_code.mas の作成 "};
    MenuEntry mnuYubin2{*this, "mnuYubin2", "郵便 yubin_m?.mas の作成"};
    MenuEntry mnuEdit_Rmks{*this, "mnuEdit_Rmks", "Rmks 履歴"};
    MenuEntry mnuDownLoad{*this, "mnuDownLoad", "DownLoad"};
    MenuEntry mnuDisp_KRV{*this, "mnuDisp_KRV", "説明"};
    MenuEntry mnuJK9RVW{*this, "mnuJK9RVW", "ホームページ"};
    MenuEntry mnuYubin{*this, "mnuYubin", "郵便"};
    MenuEntry mnuDisp_hl_code_mas{*this, "mnuDisp_hl_code_mas", "hl_code.mas"};
    MenuEntry mnuDisp_z2a_{*this, "mnuDisp_z2a_", "＊．zLo => ＊．all"};
    MenuEntry mnuDisp_Veldrana_ini{*this, "mnuDisp_Veldrana_ini", "Veldrana.ini"};
    MenuEntry mnuDisp_Veldrana_new_ini{*this, "mnuDisp_Veldrana_new_ini", "Veldrana_new.ini"};
    MenuEntry mnuDisp_Veldrana_cfg_ini{*this, "mnuDisp_Veldrana_cfg_ini", "Veldrana_cfg.ini"};
    MenuEntry mnuDisp_in{*this, "mnuDisp_in", "入力ﾌｧｲﾙ"};
    MenuEntry mnuDisp_dat{*this, "mnuDisp_dat", "dat"};
    MenuEntry mnuDisp_con_n{*this, "mnuDisp_con_n", "contestj_n.csv"};
    MenuEntry mnuDisp_ham_n{*this, "mnuDisp_ham_n", "hamlogja_n.csv"};
    MenuEntry mnuDisp_con_new{*this, "mnuDisp_con_new", "contestj_n.csv"};
    MenuEntry mnuDisp_ham_new{*this, "mnuDisp_ham_new", "hamlogja_n.csv"};
    MenuEntry mnuDisp_dup{*this, "mnuDisp_dup", "＊．ｄｕｐ"};
    MenuEntry mnuDisp_Veldrana_Rireki_cfg{*this, "mnuDisp_Veldrana_Rireki_cfg",
                                          "Veldrana_Rireki.cfg"};
    MenuEntry mnuDisp_Veldrana_rmk1{*this, "mnuDisp_Veldrana_rmk1", "Veldrana.rmk1"};
    MenuEntry mnuDisp_Veldrana_rmk2{*this, "mnuDisp_Veldrana_rmk2", "Veldrana.rmk2"};
    MenuEntry mnuDisp_QSOBank{*this, "mnuDisp_QSOBank", "QSOBank.txt"};
    MenuEntry mnuCheck_dat{*this, "mnuCheck_dat", "dat調査"};
    MenuEntry mnuCheck_dat_bunrui{*this, "mnuCheck_dat_bunrui", "分類"};
    MenuEntry mnuQSOBank{*this, "mnuQSOBank", "QSOBank"};
    MenuEntry mnuJARL{*this, "mnuJARL", "JARL"};
    MenuEntry mnuJARL_Web_OK{*this, "mnuJARL_Web_OK", "Web ブラウザ 表　示"};
    MenuEntry mnuJARL_Web_OK_conj{*this, "mnuJARL_Web_OK_conj", "contestj_n.csv"};
    MenuEntry mnuJARL_Web_OK_hamj{*this, "mnuJARL_Web_OK_hamj", "hamlogja_n.csv"};
    MenuEntry mnuJARL_Web_NO{*this, "mnuJARL_Web_NO", "Web ブラウザ 非表示"};
    MenuEntry mnuJARL_Web_NO_conj{*this, "mnuJARL_Web_NO_conj", "contestj_n.csv"};
    MenuEntry mnuJARL_Web_NO_hamj{*this, "mnuJARL_Web_NO_hamj", "hamlogja_n.csv"};

    ToolButton tool_open{*this, "開く"};
    ToolButton tool_open_z{*this, "開 z"};
    ToolButton tool_dat_by_hand{*this, "dat手動"};
    ToolButton tool_dat_by_contest{*this, "dat半自"};
    ToolButton tool_make_ini{*this, "INI作成"};
    ToolButton tool_convert{*this, "変換"};
    ToolButton tool_in{*this, "入力ﾌｧｲﾙ"};
    ToolButton tool_dat{*this, "dat"};
    ToolButton tool_contest{*this, "contestj_n"};
    ToolButton tool_hamlog{*this, "hamlogja_n"};
    ToolButton tool_dup{*this, "＊．ｄｕｐ"};
    ToolButton tool_end{*this, "終了"};

    // The menu in the order of the screen; an entry with others below it is a head.
    std::vector<Menu> menu();
    std::vector<ToolButton*> toolbar();

    // Enable and disable what needs a chosen log.
    void disp_enable_t();
    void disp_enable_f();

    // The six entries of the member search and their head.
    void enable_member_search(bool on);

    // Both entries that show the text of a binary log.
    void enable_z2a_viewers(bool on);

    // Both ways to start a run.
    void enable_start(bool on);

    // Both ways to name a contest data file, and the choice between them.
    void enable_dat_choice(bool on);
    // What shows the contest data file, and its frame.
    void enable_dat_viewers(bool on);

  private:
    void enable_viewers(bool on);
};

}  // namespace veldrana
