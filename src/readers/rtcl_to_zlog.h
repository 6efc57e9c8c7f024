// Owns the way from the unpacked text of an RTCL log (readers/rtcl_log.h) to the texts of zLog: the
// .ALL that a run goes on with, and both of them for the tool.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/stage.h"
#include "readers/rtcl_log.h"

namespace veldrana {

// The .ALL text that a run reads in the place of its log.
constexpr std::string_view zlog_01_file = "zlog_01.txt";

// The heading lines of a .ALL, by which those of a run and of the tool are told apart.
constexpr std::string_view rtcl_heading_of_run =
    "zLog for Windows   (rtcl.log to zlog.all)    by Morvessa 5.30";
constexpr std::string_view rtcl_heading_of_tool =
    "zLog for Windows   (rtcl.log to zlog.all)    by Veldrana 5.30";

// Writes the .ALL of an unpacked log to each of the outputs, of which several may be the same file.
// Failure 62 for a row that lacks fields; the lines in front of it stand in all of them then.
void make_rtcl_log_to_zlog_all(const Stage& stage, std::string_view rtcl_tmp,
                               std::string_view heading, const std::vector<std::string>& outputs);

// What a run unpacks, and where to.
struct RtclRun {
    std::string_view in_name;
    RtclForm form;
    std::string_view strPath;  // the program's folder
};

// Unpacks a log and makes the .ALL of it: what unpack_rtcl_log and make_rtcl_log_to_zlog_all do one
// after the other, with their files, lines in the trace log and failures, but without reading
// rtcl_tmp.txt where that would tell nothing new.
void unpack_rtcl_log_to_zlog_all(const Stage& stage, const RtclRun& run, std::string_view heading,
                                 const std::vector<std::string>& outputs);

// The same to one .TXT. Its columns are those of the tool that it was first made for and not those
// that the reader of .TXT logs takes; kept.
void make_rtcl_log_to_zlog_txt(const Stage& stage, std::string_view rtcl_tmp,
                               std::string_view output);

}  // namespace veldrana
