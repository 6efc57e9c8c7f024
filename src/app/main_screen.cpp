#include "app/main_screen.h"

#include "common/text.h"

namespace veldrana {

MainScreen::MainScreen() {
    for (CheckBox* const box :
         {&Check01, &Check15, &Check8, &Check4_A, &Check4_B, &Check26, &Check27, &Check28}) {
        box->value.on_change = [this, box] { option_clicked(*box); };
        option_clicked(*box);
    }
    txtOp_name.text.on_change = [this] { txtOp_name_Change(); };
    txtYYYY.text.on_change = [this] { txtYYYY_Change(); };

    for (std::size_t row = 0; row < counter_labels.size(); ++row) {
        MSFlexGrid1.set_text(row, 0, std::string(counter_labels[row]));
        MSFlexGrid1.set_fore_colour(row, 1, colours::blue);
        MSFlexGrid1.set_text(row, 2, "件");
    }
    lblRmks1[0].caption = "ｺﾝﾃｽﾄ";
    lblRmks1[1].caption = "Rmks1";
    lblRmks2[0].caption = "Rmks2";
    ProgressBar1.visible = false;
}

void MainScreen::option_clicked(CheckBox& box) {
    lblCFG.caption = "";
    lblMsg.caption = "";
    box.fore_colour = box.value ? colours::blue : colours::black;
}

void MainScreen::txtOp_name_Change() {
    Check15.fore_colour = colours::black;
    txtOp_name.fore_colour = colours::black;
}

void MainScreen::txtYYYY_Change() {
    txtYYYY.text = std::string(left(txtYYYY.text.get(), 4));
}

void MainScreen::tell(std::string_view caption, Colour colour) {
    lblCFG.fore_colour = colour;
    lblCFG.caption = std::string(caption);
}

void MainScreen::enable_viewers(bool on) {
    for (Control* const control : std::initializer_list<Control*>{
             &mnuDisp_in, &cmdDisp_in, &cmdDisp_contest, &cmdDisp_Hamlog, &mnuDisp_con_n,
             &mnuDisp_ham_n, &mnuDisp_Veldrana_Rireki_cfg, &mnuDisp_Veldrana_rmk1,
             &mnuDisp_Veldrana_rmk2, &mnuDisp_dup}) {
        control->enabled = on;
    }
}

void MainScreen::disp_enable_t() {
    enable_viewers(true);
}

void MainScreen::disp_enable_f() {
    enable_viewers(false);
    enable_member_search(false);
}

void MainScreen::enable_member_search(bool on) {
    for (Control* const control : std::initializer_list<Control*>{
             &mnuJARL, &mnuJARL_Web_OK, &mnuJARL_Web_NO, &mnuJARL_Web_OK_conj, &mnuJARL_Web_OK_hamj,
             &mnuJARL_Web_NO_conj, &mnuJARL_Web_NO_hamj}) {
        control->enabled = on;
    }
}

void MainScreen::enable_start(bool on) {
    cmdStart.enabled = on;
    tool_convert.enabled = on;
}

}  // namespace veldrana
