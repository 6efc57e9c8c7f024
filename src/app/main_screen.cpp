#include "app/main_screen.h"

namespace veldrana {

MainScreen::MainScreen() : WindowForm("Veldrana") {
    for (std::size_t row = 0; row < counter_labels.size(); ++row) {
        MSFlexGrid1.set_text(row, 0, std::string(counter_labels[row]));
        MSFlexGrid1.set_fore_colour(row, 1, colours::blue);
        MSFlexGrid1.set_text(row, 2, "件");
    }
    for (std::size_t i = 0; i < remark_item_count; ++i) {
        Command1[i].caption = std::string(remark_item_names[i]);
    }
    ProgressBar1.visible = false;
    lblNo_qth_mas.visible = false;
    lblLen.visible = false;
    for (MenuEntry* const entry : {&mnuMake_z2a, &mnuDisp_z2a, &mnuDisp_z2a_, &mnuDisp_log2a}) {
        entry->enabled = false;
    }
}

void MainScreen::enable_dat_choice(bool on) {
    for (Control* const control :
         std::initializer_list<Control*>{&Option03, &mnuOpenDat_mnu, &mnuOpenDat_semi,
                                         &tool_dat_by_hand, &tool_dat_by_contest}) {
        control->enabled = on;
    }
}

void MainScreen::enable_dat_viewers(bool on) {
    for (Control* const control : std::initializer_list<Control*>{
             &mnuDisp_dat, &cmdDisp_dat, &cmdDisp_dat2, &tool_dat, &Frame03}) {
        control->enabled = on;
    }
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

void MainScreen::enable_z2a_viewers(bool on) {
    mnuDisp_z2a.enabled = on;
    mnuDisp_z2a_.enabled = on;
}

void MainScreen::enable_start(bool on) {
    cmdStart.enabled = on;
    tool_convert.enabled = on;
}

}  // namespace veldrana
