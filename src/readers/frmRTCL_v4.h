// Owns the tool that makes the zLog texts of an RTCL log for their own sake, beside the log: it
// picks a log, tests and unpacks it, and writes either text of it. No run takes part.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "common/controls.h"
#include "platform/stage.h"
#include "readers/rtcl_log.h"

namespace veldrana {

struct RtclToolRequest {
    std::string strPath;     // the program's folder
    std::string log_folder;  // where the file dialog starts
};

// The files that the tool shows, each in a viewer of its own.
enum class RtclView { input, output_txt, output_all };

// The path of a text: that of the log with the ending in the place of each ".log", in either case;
// behind the path where it has none, so that no text takes the place of the log.
std::string log2z_name(std::string_view in_name, std::string_view ending);

class frmRTCL_v4 : public WindowForm {
  public:
    // The stage and what it refers to outlive the form.
    frmRTCL_v4(const Stage& stage, RtclToolRequest request);

    CommandButton mnuOpen_log{*this, "mnuOpen_log", "開く log"};
    MenuEntry mnuVer_430mae{*this, "mnuVer_430mae", "ver 4.30 より前"};
    MenuEntry mnuVer_430ato{*this, "mnuVer_430ato", "ver 4.30 以後"};
    CommandButton mnuDisp{*this, "mnuDisp", "表示"};
    MenuEntry mnuInFile{*this, "mnuInFile", "入力"};
    MenuEntry mnuOutFile_txt{*this, "mnuOutFile_txt", "出力 txt"};
    MenuEntry mnuOutFile_all{*this, "mnuOutFile_all", "出力 all"};
    MenuEntry mnuBack{*this, "mnuBack", "戻る"};
    CommandButton cmdMake_txt{*this, "cmdMake_txt", "zLog の txt 作成"};
    CommandButton cmdMake_all{*this, "cmdMake_all", "zLog の all 作成"};
    Label lblInfo{*this, "lblInfo"};
    Label lblOut_name{*this, "lblOut_name"};

    // Shows a file, which is there; without it nothing is shown.
    std::function<void(RtclView view, const std::string& path)> show_file;

    // The chosen log; one that was refused stays.
    const std::string& in_name() const noexcept { return in_name_; }
    // f_type of the tool: "log_430mae" or "log_430ato", empty until a choice was made.
    std::string_view f_type() const noexcept;

    void mnuVer_430mae_Click();
    void mnuVer_430ato_Click();
    void mnuInFile_Click();
    void mnuOutFile_txt_Click();
    void mnuOutFile_all_Click();
    void mnuBack_Click();
    // Both are disabled until a log was unpacked.
    void cmdMake_txt_Click();
    void cmdMake_all_Click();

  private:
    void open(RtclForm form);
    void enable_making(bool on);
    void show(RtclView view, const std::string& path);
    void tell_start(std::string_view kind, const std::string& path);
    void tell_end(std::string_view kind);

    Stage stage_;
    RtclToolRequest request_;
    std::string in_name_;
    std::optional<RtclForm> form_;
    std::string rtcl_tmp_;
};

}  // namespace veldrana
