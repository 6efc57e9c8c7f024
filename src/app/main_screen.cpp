#include "app/main_screen.h"

#include "common/text.h"

namespace veldrana {

MainScreen::MainScreen() {
    for (Control* const control : controls()) {
        if (auto* const box = dynamic_cast<CheckBox*>(control)) {
            box->value.on_change = [this, box] { option_clicked(*box); };
            option_clicked(*box);
        } else if (auto* const group = dynamic_cast<OptionGroup*>(control)) {
            group->index.on_change = [this, group] { option_clicked(*group); };
            option_clicked(*group);
        }
    }
    // What these would ask is not there yet: neither masters of codes nor the log book's history.
    for (OptionGroup* const group : {&Option02, &Option07}) {
        std::vector<OptionGroup::Button> buttons = group->buttons;
        for (std::size_t i = 1; i < buttons.size(); ++i) {
            buttons[i].enabled = false;
        }
        group->buttons = std::move(buttons);
    }
    Check2.value.on_change = [this] { Check2_Click(); };
    Check3.value.on_change = [this] { Check3_Click(); };
    Check23.value.on_change = [this] { Check23_Click(); };
    for (TextBox* const mark : {&txtQSL_Q, &txtQSL_S}) {
        mark->text.on_change = [mark] { keep_first_character(*mark); };
    }
    txtOp_name.text.on_change = [this] { txtOp_name_Change(); };
    txtYYYY.text.on_change = [this] { txtYYYY_Change(); };

    for (std::size_t row = 0; row < counter_labels.size(); ++row) {
        MSFlexGrid1.set_text(row, 0, std::string(counter_labels[row]));
        MSFlexGrid1.set_fore_colour(row, 1, colours::blue);
        MSFlexGrid1.set_text(row, 2, "件");
    }
    lblRmks1[0].caption = "ｺﾝﾃｽﾄ";
    lblRmks2[0].caption = "Rmks2";
    ProgressBar1.visible = false;
}

void MainScreen::option_clicked(CheckBox& box) {
    lblCFG.caption = "";
    lblMsg.caption = "";
    box.fore_colour = box.value ? colours::blue : colours::black;
}

void MainScreen::option_clicked(OptionGroup& group) {
    lblCFG.caption = "";
    lblMsg.caption = "";
    std::vector<OptionGroup::Button> buttons = group.buttons;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const bool chosen = group.index == static_cast<int>(i);
        buttons[i].fore_colour = chosen ? colours::blue : colours::black;
    }
    group.buttons = std::move(buttons);
}

// Each of the two takes the other off.
void MainScreen::Check2_Click() {
    option_clicked(Check2);
    if (Check2.value) {
        Check3.value = false;
    }
}

void MainScreen::Check3_Click() {
    option_clicked(Check3);
    if (Check3.value) {
        Check2.value = false;
    }
}

void MainScreen::Check23_Click() {
    Check23.value = true;
    option_clicked(Check23);
}

void MainScreen::keep_first_character(TextBox& box) {
    box.text = std::string(left(box.text.get(), 1));
}

void MainScreen::txtOp_name_Change() {
    Check15.fore_colour = colours::black;
    txtOp_name.fore_colour = colours::black;
}

void MainScreen::txtYYYY_Change() {
    txtYYYY.text = std::string(left(txtYYYY.text.get(), 4));
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
