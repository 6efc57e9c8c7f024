// Owns the dupe list: for each band, every call worked, grouped by the last letter of the call and
// six to a line, so that a person sees doubled contacts at a glance.
#pragma once

#include <string_view>

#include "platform/stage.h"

namespace veldrana {

struct DupeRequest {
    std::string_view in_name;     // the log; the list is named after it
    std::string_view in_Dir;      // with zlog_2.txt in it
    std::string_view drive_path;  // for zlog_3.txt and zlog_4.txt
    std::string_view strPath;     // for the files of the bands
};

// The four steps, one behind the other.
void wpx_dupe_chk(const Stage& stage, const DupeRequest& request);
void wpx_dupe_chk_2(const Stage& stage, const DupeRequest& request);
void wpx_dupe_chk_4(const Stage& stage, const DupeRequest& request);
// A log with no contact on a listed band has no list.
void wpx_dupe_chk_7(const Stage& stage, const DupeRequest& request);

}  // namespace veldrana
