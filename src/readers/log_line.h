// Owns LogLine, the line format of zlog_1.txt: one contact, thirteen quoted fields. Every reader
// ends in it, whatever the form of its log; docs/formats/log-line.md tells it to other programs.
#pragma once

#include <cstddef>
#include <string_view>

#include "common/quoted_fields.h"

namespace veldrana {

// The file that every reader writes, in the folder of the log.
constexpr std::string_view log_line_file = "zlog_1.txt";

// The fields' places from 0.
namespace log_line {
enum Field : std::size_t {
    year,
    month,
    day,
    time,
    call,
    report_sent,
    report_received,
    band,
    mode,
    op,
    memo,
    frequency,
    number_received,
    count
};
}  // namespace log_line

struct LogLine {
    std::string_view year = {};
    std::string_view month = {};
    std::string_view day = {};
    std::string_view time = {};  // HHMM, in the time of the log
    std::string_view call = {};  // as logged, with any portable part
    std::string_view report_sent = {};
    std::string_view report_received = {};
    std::string_view band = {};  // in MHz
    std::string_view mode = {};  // as it stands in the log, with blanks behind it
    std::string_view op = {};
    std::string_view memo = {};
    std::string_view frequency = {};  // in MHz, or empty
    std::string_view number_received = {};
};

// Replaces what the line holds by the fields of the contact.
void put(QuotedLine& line, const LogLine& contact);

}  // namespace veldrana
