// Owns the main screen as a form: the controls that a user meets, and what each option does to the
// screen when it is clicked. What starts a run or opens a file is attached by app/program.h.
#pragma once

#include <array>
#include <string_view>

#include "common/controls.h"
#include "rows/remark_slots.h"

namespace veldrana {

// The rows of the result grid, in its order.
constexpr std::array<std::string_view, 10> counter_labels{
    " 今 回 の処理数",   " 複 数 の局の数",   " 単 数 の局の数",   " 複 ・単の合計数",
    " No QSL 局の数",    " Name 取得の数",    " ＪＡＲＬ登録の数", " ＪＡＲＬ無登録数",
    " ＪＡＲＬ無検索数", " Text_data 取得数",
};

struct MainScreen : Form {
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
    ProgressBar ProgressBar1{*this, "ProgressBar1"};
    Grid MSFlexGrid1{*this, "MSFlexGrid1", counter_labels.size(), {1900, 800, 400}};
    TabControl SSTab1{*this, "SSTab1"};

    // --- options ---
    CheckBox Check01{*this, "Check01", "Freq 取り込み", true};
    CheckBox Check15{*this, "Check15", "　読み込む　 指定ＯＰ名 ==>", true};
    CheckBox Check8{*this, "Check8", "使用する"};
    CheckBox Check4_A{*this, "Check4_A", ""};
    CheckBox Check4_B{*this, "Check4_B", ""};
    CheckBox Check26{*this, "Check26", "エラー無しでもログ残す", true};
    CheckBox Check27{*this, "Check27", "受信ナンバーの空中線電力記号 ( H/M/L/P ) を削除"};
    CheckBox Check28{*this, "Check28", "APP_N1MM_EXCHANGE1 を Ｃｏｄｅ 欄に転記"};
    TextBox txtOp_name{*this, "txtOp_name"};
    Frame Frame14{*this, "Frame14"};
    TextBox txtYYYY{*this, "txtYYYY"};
    CommandButton cmdNow{*this, "cmdNow", "今年を取得"};
    RemarkSlots lblRmks1{*this, "lblRmks1"};
    RemarkSlots lblRmks2{*this, "lblRmks2"};

    // --- what starts something ---
    CommandButton cmdStart{*this, "cmdStart", "変　　換"};
    CommandButton cmdDisp_contest{*this, "cmdDisp_contest", "contestj_n"};
    CommandButton cmdDisp_Hamlog{*this, "cmdDisp_Hamlog", "hamlogja_n"};
    CommandButton cmdDisp_in{*this, "cmdDisp_in", "入力ﾌｧｲﾙ"};

    MenuEntry mnuOpen{*this, "mnuOpen", "zlogのﾃﾞｰﾀ ( ALL , TXT ) ﾌｧｲﾙを選ぶ"};
    MenuEntry mnuOpen_all_txt_set{*this, "mnuOpen_all_txt_set",
                                  "zlogのﾃﾞｰﾀ ( ALL , TXT ) を 指定フォルダから選ぶ"};
    MenuEntry mnuDisp_in{*this, "mnuDisp_in", "入力ﾌｧｲﾙ"};
    MenuEntry mnuDisp_con_n{*this, "mnuDisp_con_n", "contestj_n.csv"};
    MenuEntry mnuDisp_ham_n{*this, "mnuDisp_ham_n", "hamlogja_n.csv"};
    MenuEntry mnuDisp_con_new{*this, "mnuDisp_con_new", "contestj_n.csv"};
    MenuEntry mnuDisp_ham_new{*this, "mnuDisp_ham_new", "hamlogja_n.csv"};
    MenuEntry mnuDisp_dup{*this, "mnuDisp_dup", "＊．ｄｕｐ"};
    MenuEntry mnuDisp_Veldrana_Rireki_cfg{*this, "mnuDisp_Veldrana_Rireki_cfg",
                                          "Veldrana_Rireki.cfg"};
    MenuEntry mnuDisp_Veldrana_rmk1{*this, "mnuDisp_Veldrana_rmk1", "Veldrana.rmk1"};
    MenuEntry mnuDisp_Veldrana_rmk2{*this, "mnuDisp_Veldrana_rmk2", "Veldrana.rmk2"};
    MenuEntry mnuQSOBank{*this, "mnuQSOBank", "QSOBank"};
    MenuEntry mnuJARL{*this, "mnuJARL", "JARL"};
    MenuEntry mnuJARL_Web_OK{*this, "mnuJARL_Web_OK", "Web ブラウザ 表　示"};
    MenuEntry mnuJARL_Web_OK_conj{*this, "mnuJARL_Web_OK_conj", "contestj_n.csv"};
    MenuEntry mnuJARL_Web_OK_hamj{*this, "mnuJARL_Web_OK_hamj", "hamlogja_n.csv"};
    MenuEntry mnuJARL_Web_NO{*this, "mnuJARL_Web_NO", "Web ブラウザ 非表示"};
    MenuEntry mnuJARL_Web_NO_conj{*this, "mnuJARL_Web_NO_conj", "contestj_n.csv"};
    MenuEntry mnuJARL_Web_NO_hamj{*this, "mnuJARL_Web_NO_hamj", "hamlogja_n.csv"};

    ToolButton tool_open{*this, "開く"};
    ToolButton tool_convert{*this, "変換"};
    ToolButton tool_contest{*this, "contestj_n"};
    ToolButton tool_hamlog{*this, "hamlogja_n"};
    ToolButton tool_dup{*this, "＊．ｄｕｐ"};
    ToolButton tool_end{*this, "終了"};

    // Puts a caption into the status label.
    void tell(std::string_view caption, Colour colour);

    void txtOp_name_Change();
    void txtYYYY_Change();

    // Enable and disable what needs a chosen log.
    void disp_enable_t();
    void disp_enable_f();

    // The six entries of the member search and their head.
    void enable_member_search(bool on);

    // Both ways to start a run.
    void enable_start(bool on);

  private:
    // What every click on an option does: an old result text goes away, and the caption shows
    // whether the option is on.
    void option_clicked(CheckBox& box);
    void enable_viewers(bool on);
};

}  // namespace veldrana
