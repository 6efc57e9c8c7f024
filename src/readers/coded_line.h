// Owns CodedLine, the line format of zlog_2.txt: one contact with code and QTH, seventeen quoted
// fields. Every code stage writes it, the row builder and the dupe list read it.
#pragma once

#include <cstddef>
#include <string_view>

namespace veldrana {

constexpr std::string_view coded_line_file = "zlog_2.txt";

// The fields' places from 0.
namespace coded_line {
enum Field : std::size_t {
    date,  // YYMMDD
    time,  // HHMM in the time of the log
    call,
    report_sent,
    report_received,
    call_base,
    portable,
    frequency,  // of the memo, if it is taken and there, else the band
    mode,
    reserved_1,
    reserved_2,
    code,
    qth,
    number_received,
    op,
    memo,
    call_as_logged,
    count
};
}  // namespace coded_line

}  // namespace veldrana
