// The readers of logs, set up to be measured: memo, operator and frequency in use, nobody asked.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "bench/silent_stage.h"
#include "output/output_names.h"
#include "readers/adif.h"
#include "readers/cabrillo.h"
#include "readers/input_kind.h"
#include "readers/rtcl_log.h"
#include "readers/rtcl_to_zlog.h"
#include "readers/zlo_log.h"
#include "readers/zlog_text.h"

namespace veldrana {

class Reading {
  public:
    // The folder becomes drive C:.
    explicit Reading(const std::filesystem::path& folder) : silent_(folder) {
        use_.mark(RemarkItem::memo);
        use_.mark(RemarkItem::op);
        options_.txtYYYY = "2025";
        options_.Check28 = true;
    }

    // Reads a log of the folder and writes zlog_1.txt beside it; the count of its contacts. A kind
    // that is read through the .ALL text of another form takes all of its steps.
    std::size_t read(const std::string& name, InputKind kind = InputKind::all) {
        const std::string in_name = "C:\\" + name;
        switch (kind) {
            case InputKind::txt:
                return t_2_t(stage_, request(in_name));
            case InputKind::cbr:
                return henkan_cbr_2_t(stage_, request(in_name)).kept;
            case InputKind::ADIF:
                return henkan_ADIF_2_t(stage_, request(in_name));
            case InputKind::zlo:
                return read_zlo(stage_, request(in_name));
            case InputKind::log_v4:
                return read_rtcl(in_name, RtclForm::before_430);
            case InputKind::log_v430:
                return read_rtcl(in_name, RtclForm::from_430);
            default:
                return a_2_t(stage_, request(in_name));
        }
    }

    // Removes what reading a log has written, as it is in front of most runs. A file that is
    // written anew while the disk is still at it has to wait.
    void remove_texts(const std::string& name) {
        for (const std::string& path :
             {std::string("C:\\zlog_1.txt"), std::string("C:\\zlog_01.txt"),
              std::string("C:\\rtcl_tmp.txt"), log2a_name("C:\\" + name)}) {
            if (silent_.disk().file_exists(path)) {
                silent_.disk().remove(path);
            }
        }
    }

  private:
    LogRequest request(std::string_view in_name) const {
        return {.in_name = in_name, .in_Dir = "C:\\", .options = options_, .use = use_};
    }

    std::size_t read_rtcl(const std::string& in_name, RtclForm form) {
        // The folder is the scratch drive's root too.
        unpack_rtcl_log_to_zlog_all(stage_, {.in_name = in_name, .form = form, .strPath = "C:\\"},
                                    rtcl_heading_of_run,
                                    {"C:\\zlog_01.txt", "C:\\zlog_01.txt", log2a_name(in_name)});
        return a_2_t(stage_, request("C:\\zlog_01.txt"));
    }

    SilentStage silent_;
    RunOptions options_;
    RemarkUse use_;
    const Stage stage_ = silent_.stage();
};

}  // namespace veldrana
