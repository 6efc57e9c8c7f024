// Owns the two text exports of the logger zLog, .ALL and .TXT: fixed columns, one contact a line
// behind a heading line; docs/formats/zlog-text.md has the tables. The memo column holds, in any
// order, free text, an operator between two "%%" marks and a frequency in kilohertz in parentheses.
//
// The readers check nothing: a line too short for its memo is failure 5, a log without a line is
// failure 62, and what stands in the wrong column is read as it stands.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/stage.h"
#include "readers/input_kind.h"
#include "readers/log_request.h"
#include "settings/remark_items.h"

namespace veldrana {

// What the heading line of a text log begins with.
std::string_view heading_of(InputKind kind);

// Both write zlog_1.txt anew and return how many lines were kept. t_2_t differs in more than its
// columns: it takes the year from the options, mends a one-digit month, leaves the mode as it is,
// and looks for operators in fewer cases, so that Check15 with a name and no operator item in a
// remark drops every line. Kept: operators rely on either.
std::size_t a_2_t(const Stage& stage, const LogRequest& request);
std::size_t t_2_t(const Stage& stage, const LogRequest& request);

// The frequency in MHz: 7.012 for "(7012)" or "(7.012)". Empty if the text behind the first "(",
// up to the next one and without every ")", is not 4 to 7 characters long.
std::string get_freq_all(std::string_view line);

// The operator between the first "%%" and the next "%", looked for in the first 120 bytes of the
// line and trimmed; empty if there is none.
std::string_view get_op_all(std::string_view line);

// The memo behind the fixed columns of a line of that kind, trimmed: what stands behind its last
// "%%", without the first piece in parentheses and without "-DUPE-". With the item "memo=" in use
// it begins with "memo=" unless it is empty. Failure 5 for a line shorter than its columns.
std::string get_memo_all(std::string_view line, InputKind kind, const RemarkUse& use);

}  // namespace veldrana
