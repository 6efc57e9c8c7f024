// Owns the text viewers as forms: the lines of one file, to be looked at. frmDisp is shown until it
// is closed, the free viewers stand beside the program's windows.
#pragma once

#include <string>
#include <string_view>

#include "common/controls.h"
#include "platform/disk.h"
#include "viewers/viewed_text.h"

namespace veldrana {

class frmDisp : public WindowForm {
  public:
    // The name is that of the window, which has a position of its own; the disk outlives the form.
    frmDisp(Disk& disk, std::string strPath, std::string name = "frmDisp");

    // Shows a file; the failures of ViewedText, and then no file is shown.
    void Form_Load(std::string_view disp_name);

    MenuEntry mnuOK{*this, "mnuOK", "戻る"};

    // The file that is shown, and its lines.
    const std::string& disp_name() const noexcept { return disp_name_; }
    const ViewedText& text() const noexcept { return text_; }

    void mnuOK_Click();

  private:
    Disk& disk_;
    std::string strPath_;
    std::string disp_name_;
    ViewedText text_;
};

// frmDisp2, frmDisp3 and frmDisp4.
class FreeViewer : public frmDisp {
  public:
    FreeViewer(Disk& disk, std::string strPath, std::string name)
        : frmDisp(disk, std::move(strPath), std::move(name)) {
        cmdOK.Click = [this] { mnuOK_Click(); };
    }

    CommandButton cmdOK{*this, "cmdOK", "ＯＫ"};
};

}  // namespace veldrana
