// Owns the window that shows the state of the log book's histories (qsl/history.h) as a form: of
// what database they are, how large each file is and how many lines it has.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>

#include "common/controls.h"
#include "platform/stage.h"

namespace veldrana {

struct HistoryCheckRequest {
    std::string strPath;         // the program's folder, with a backslash at its end
    std::string hamlog_hdb_dir;  // full path of the log book's database
    bool log_book_in_use = false;
};

class frmCheck_bak_qso_mas : public WindowForm {
  public:
    // Rows of the grid: the database in row 1, the three histories from row 3 on, each below a row
    // of headings.
    static constexpr std::size_t database_row = 1;
    static constexpr std::size_t first_history_row = 3;
    static constexpr std::size_t histories = 3;

    // The stage and what it refers to outlive the form.
    frmCheck_bak_qso_mas(const Stage& stage, HistoryCheckRequest request);

    // Looks at the files; a history that is not there has the size 0 and no lines.
    void Form_Load();

    Grid Grid1{*this, "Grid1", first_history_row + histories, {4200, 5200}};
    MenuEntry mnuBack{*this, "mnuBack", "戻る"};
    MenuEntry mnuHelp{*this, "mnuHelp", "説明"};

    // Shows a file in the text viewer.
    std::function<void(const std::string& path)> show_file;

    // The name of a history in its cell shows the file, if it is there.
    void Grid1_Click(const Grid::Place& at);
    void mnuBack_Click();
    void mnuHelp_Click();

  private:
    std::string path_of(std::size_t history) const;
    std::string database_text() const;

    Stage stage_;
    HistoryCheckRequest request_;
};

}  // namespace veldrana
