#include "readers/frmRTCL_v4.h"

#include <utility>

#include "common/procedure.h"
#include "common/text.h"
#include "readers/rtcl_to_zlog.h"
#include "settings/window_positions.h"

namespace veldrana {
namespace {

constexpr std::string_view log_extension = ".log";
constexpr std::string_view txt_ending = "_log2z.txt";
constexpr std::string_view all_ending = "_log2z.all";
constexpr Count shown_bytes = 50;

}  // namespace

std::string log2z_name(std::string_view in_name, std::string_view ending) {
    // Of the same length as the path: letters change their case within their bytes.
    const std::string folded = lower(in_name);
    std::string path;
    std::size_t from = 0;
    for (std::size_t at = folded.find(log_extension); at != std::string::npos;
         at = folded.find(log_extension, from)) {
        path.append(in_name.substr(from, at - from)).append(ending);
        from = at + log_extension.size();
    }
    path += in_name.substr(from);
    return from == 0 ? path.append(ending) : path;
}

frmRTCL_v4::frmRTCL_v4(const Stage& stage, RtclToolRequest request)
    : WindowForm("frmRTCL_v4", "　RTCL の log を zLog の txt 、 all に変換"),
      stage_(stage),
      request_(std::move(request)) {
    load_position(stage_.disk, request_.strPath, window);
    mnuVer_430mae.Click = [this] { mnuVer_430mae_Click(); };
    mnuVer_430ato.Click = [this] { mnuVer_430ato_Click(); };
    mnuInFile.Click = [this] { mnuInFile_Click(); };
    mnuOutFile_txt.Click = [this] { mnuOutFile_txt_Click(); };
    mnuOutFile_all.Click = [this] { mnuOutFile_all_Click(); };
    mnuBack.Click = [this] { mnuBack_Click(); };
    cmdMake_txt.Click = [this] { cmdMake_txt_Click(); };
    cmdMake_all.Click = [this] { cmdMake_all_Click(); };
    enable_making(false);
}

std::string_view frmRTCL_v4::f_type() const noexcept {
    if (!form_) {
        return {};
    }
    return *form_ == RtclForm::before_430 ? "log_430mae" : "log_430ato";
}

void frmRTCL_v4::mnuVer_430mae_Click() {
    enter_procedure(stage_.trace, "Private Sub mnuVer_430mae_Click()",
                    [this] { open(RtclForm::before_430); });
}

void frmRTCL_v4::mnuVer_430ato_Click() {
    enter_procedure(stage_.trace, "Private Sub mnuVer_430ato_Click()",
                    [this] { open(RtclForm::from_430); });
}

void frmRTCL_v4::open(RtclForm form) {
    form_ = form;
    const std::string path = stage_.person.choose_file(rtcl_dialog(form, request_.log_folder));
    if (path.empty()) {
        return;
    }
    in_name_ = path;
    // What was unpacked before is of another log.
    enable_making(false);
    lblInfo.caption = "";
    lblOut_name.caption = "";
    const RtclCheck check = chk_log(stage_, in_name_, form);
    if (!check.good()) {
        stage_.person.show(rtcl_refusal(check.verdict, form, in_name_));
        return;
    }
    rtcl_tmp_ = unpack_rtcl_log(stage_, in_name_, form, request_.strPath);
    enable_making(true);
}

void frmRTCL_v4::enable_making(bool on) {
    cmdMake_txt.enabled = on;
    cmdMake_all.enabled = on;
}

void frmRTCL_v4::tell_start(std::string_view kind, const std::string& path) {
    lblInfo.show(std::string("  zLog の ").append(kind).append(" 形式に変換中"), colours::green);
    lblOut_name.caption = std::string(MidMbcs(path, 1, shown_bytes));
}

void frmRTCL_v4::tell_end(std::string_view kind) {
    lblInfo.show(std::string("  zLog の ").append(kind).append(" 形式に変換終了"), colours::blue);
}

void frmRTCL_v4::cmdMake_txt_Click() {
    enter_procedure(stage_.trace, "Private Sub cmdMake_txt_Click()", [this] {
        const std::string path = log2z_name(in_name_, txt_ending);
        tell_start("txt", path);
        make_rtcl_log_to_zlog_txt(stage_, rtcl_tmp_, path);
        tell_end("txt");
    });
}

void frmRTCL_v4::cmdMake_all_Click() {
    enter_procedure(stage_.trace, "Private Sub cmdMake_all_Click()", [this] {
        const std::string path = log2z_name(in_name_, all_ending);
        tell_start("all", path);
        make_rtcl_log_to_zlog_all(stage_, rtcl_tmp_, rtcl_heading_of_tool, {path});
        tell_end("all");
    });
}

void frmRTCL_v4::show(RtclView view, const std::string& path) {
    if (show_file && !in_name_.empty() && stage_.disk.file_exists(path)) {
        show_file(view, path);
    }
}

void frmRTCL_v4::mnuInFile_Click() {
    show(RtclView::input, in_name_);
}

void frmRTCL_v4::mnuOutFile_txt_Click() {
    show(RtclView::output_txt, log2z_name(in_name_, txt_ending));
}

void frmRTCL_v4::mnuOutFile_all_Click() {
    show(RtclView::output_all, log2z_name(in_name_, all_ending));
}

void frmRTCL_v4::mnuBack_Click() {
    save_position(stage_.disk, request_.strPath, window);
    window.visible = false;
}

}  // namespace veldrana
