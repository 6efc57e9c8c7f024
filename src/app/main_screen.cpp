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
    // What needs a log that is chosen, or a file that is there.
    for (CommandButton* const button : std::initializer_list<CommandButton*>{
             &mnuMake_z2a, &mnuDisp_z2a, &mnuDisp_z2a_, &mnuDisp_log2a, &mnuDisp_con_new,
             &mnuDisp_ham_new, &mnuDisp_dat, &cmdDisp_dat, &cmdDisp_dat2, &tool_dat,
             &mnuDisp_QSOBank, &tool_in, &tool_contest, &tool_hamlog, &tool_dup}) {
        button->enabled = false;
    }
}

std::vector<Menu> MainScreen::menu() {
    const Menu line;
    std::vector<Menu> recent;
    for (RecentEntry& entry : mnuRecent) {
        recent.push_back({&entry});
    }
    return {
        {&mnuFile,
         {{&mnuGet_Value},
          line,
          {&mnuOpen},
          {&mnuOpen_all_txt_set},
          {&mnuOpen_z},
          {&mnuOpen_z_set},
          {&mnuOpen_cbr},
          {&mnuOpen_ADIF},
          {&mnuOpen_Ctestwin_lg8},
          {&mnuOpen_rtcl_log_set_new4},
          {&mnuOpen_rtcl_log_set_new430},
          {&mnuRecentHead, recent},
          line,
          {&mnu_rtcl_new4},
          {&mnu_rtcl_new430},
          line,
          {&mnuOpenDat_mnu},
          {&mnuOpenDat_semi},
          line,
          {&mnuMake_z2a},
          {&mnuDisp_z2a},
          {&mnuMake_hl_code_mas},
          {&mnuYubin2},
          line,
          {&make_ini},
          {&mnuConfig}}},
        {&mnuDisp,
         {{&mnuDisp_in},
          {&mnuDisp_dat},
          {&mnuDisp_hl_code_mas},
          line,
          {&mnuDisp_con_n},
          {&mnuDisp_ham_n},
          {&mnuDisp_con_new},
          {&mnuDisp_ham_new},
          {&mnuDisp_dup},
          {&mnuDisp_log2a},
          {&mnuDisp_z2a_},
          line,
          {&mnuDisp_Veldrana_ini},
          {&mnuDisp_Veldrana_new_ini},
          {&mnuDisp_Veldrana_cfg_ini},
          {&mnuDisp_Veldrana_Rireki_cfg},
          {&mnuDisp_Veldrana_rmk1},
          {&mnuDisp_Veldrana_rmk2},
          line,
          {&mnuDisp_QSOBank}}},
        {&mnuDel, {{&mnuOpen_con_n}}},
        {&mnuEdit_Rmks},
        {&mnuDownLoad},
        {&mnuHelp, {{&mnuDisp_KRV}, {&mnuJK9RVW}}},
        {&mnuQSOBank},
        {&mnuJARL,
         {{&mnuJARL_Web_OK, {{&mnuJARL_Web_OK_conj}, {&mnuJARL_Web_OK_hamj}}},
          {&mnuJARL_Web_NO, {{&mnuJARL_Web_NO_conj}, {&mnuJARL_Web_NO_hamj}}}}},
        {&mnuCheck_dat, {{&mnuCheck_dat_bunrui}}},
        {&mnuYubin},
    };
}

std::vector<ToolButton*> MainScreen::toolbar() {
    return {&tool_open,     &tool_open_z,  &tool_dat_by_hand, &tool_dat_by_contest,
            &tool_make_ini, &tool_convert, &tool_in,          &tool_dat,
            &tool_contest,  &tool_hamlog,  &tool_dup,         &tool_end};
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
