// Owns the contest dialog as a form: the user picks a contest from the list, with help from what
// the log itself shows. A new form is made for each opening; it is loaded, and closed when it has a
// result. What the choice means for the main screen stands in the result.
//
// Beside the program it writes con_aa_name.txt and con_aaa_name.txt, and removes them again.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/controls.h"
#include "masters/contest_list.h"
#include "masters/dat_file.h"
#include "platform/stage.h"
#include "readers/contest_selection.h"
#include "readers/contest_survey.h"
#include "readers/input_kind.h"

namespace veldrana {

// Folders with a backslash at their ends.
struct ContestDialogRequest {
    std::string in_name;  // full path of the log
    std::optional<InputKind> f_type;
    std::string strPath;         // the program's folder
    std::string current_folder;  // of the survey's work files (readers/contest_survey.h)
    std::string contest_name_csv;
    DatFolders folders;
    ContestSelection selection;  // as it stands before the dialog
};

struct ContestDialogResult {
    bool confirmed = false;           // by cmdOK; cmdBack leaves the selection as it was
    ContestSelection selection = {};  // as it stands from now on
    std::string shown_path = {};      // of the data file, for its label; empty behind cmdBack
    bool dat_is_there = false;        // what the presence check behind cmdOK has found
};

class frmCon_sel : public WindowForm {
  public:
    static constexpr std::size_t most_contests = 150;

    // The stage and what it refers to outlive the form.
    frmCon_sel(const Stage& stage, ContestDialogRequest request);

    // Fills the sample and the list and preselects a contest. Failure 9 at the 151st contest of the
    // list, and those of the files.
    void Form_Load();

    Label lblIn_name{*this, "lblIn_name"};
    ListBox List2{*this, "List2"};      // the sample of the log
    Label lblC_key{*this, "lblC_key"};  // what shapes the numbers received have
    ListBox List1{*this, "List1"};      // the contests
    Label lblFile_no{*this, "lblFile_no"};
    Label lblCon_name{*this, "lblCon_name"};
    Label lblDat_name{*this, "lblDat_name"};
    Label lblCon_no_1{*this, "lblCon_no_1"};
    Label lblCon_no_2{*this, "lblCon_no_2"};
    Label lblCode_flag{*this, "lblCode_flag"};
    Label lblCode_type{*this, "lblCode_type"};
    Label lblFile_Syubetu{*this, "lblFile_Syubetu"};
    Label lblMsg1{*this, "lblMsg1"};  // the verdict on the chosen contest, two lines
    Label lblMsg2{*this, "lblMsg2"};
    TextBox Text1{*this, "Text1"};
    CommandButton cmdSearch{*this, "cmdSearch", "検索"};
    CommandButton cmdCLR{*this, "cmdCLR", "消す"};
    CommandButton cmdOK{*this, "cmdOK", "確定"};
    CommandButton cmdBack{*this, "cmdBack", "戻る"};

    // The contests in the order of the list.
    const std::vector<ContestEntry>& contests() const noexcept { return contests_; }

    // The row of the first contest with that data file; ListBox::none if the list has none.
    int row_of(std::string_view Dat_name) const;

    void List1_Click();
    void Text1_Change();
    // The Enter key in the text box.
    void Text1_Enter();
    void cmdSearch_Click();
    void cmdCLR_Click();
    // Nothing happens while no contest is chosen.
    void cmdOK_Click();
    void cmdBack_Click();

    // Nothing until the dialog was left.
    const std::optional<ContestDialogResult>& result() const noexcept { return result_; }

  private:
    void load_contests();
    void show_list();
    void preselect();
    // Whether a choice can be confirmed follows from the verdict on it.
    void check_select_code();
    void check_cmd_OK();
    void warn(std::string_view text);
    const ContestEntry& chosen() const;
    std::string File_no() const;
    std::string Save_dat() const;
    void close(ContestDialogResult result);

    Stage stage_;
    ContestDialogRequest request_;
    std::vector<ContestEntry> contests_;
    NumberShapes shapes_;
    std::string folder_;  // where the verdict looks for the data file, by the flag's second digit
    bool ok_blocked_ = false;
    std::optional<ContestDialogResult> result_;
};

}  // namespace veldrana
