// Owns what the contest dialog shows of a log to help the choice: a row for each contact, and the
// survey of the numbers received, which tells whether they hold digits, letters or both.
//
// The survey passes through work files, syubetu0.csv to syubetu3.csv in the current folder, which
// are gone behind it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/stage.h"
#include "readers/input_kind.h"

namespace veldrana {

struct SurveyRequest {
    std::string_view in_name;         // full path of the log
    std::string_view current_folder;  // of the work files, with a backslash at its end; empty: the
                                      // current folder of the process
};

// A row for each contact: the report in four characters, then the number.
using SampleRows = std::vector<std::string>;

// Each reads a log of its kind and writes the numbers to syubetu0.csv, one a line. Columns in bytes
// from 1; the columns for Cabrillo are those of .TXT logs, which do not fit it. Kept.
//
//                report     number
//     read_all   43 to 45   47 to 54      behind the first line
//     read_txt   38 to 40   41 to 48      behind the first line
//     read_cbr   38 to 40   41 to 48      behind the first line
//     read_adif  RST_RCVD   APP_N1MM_EXCHANGE1, of lines with "<CALL:"
//
// An ADIF value is as long as the one digit behind its tag tells; a line without the tag has the
// value of the line before.
SampleRows read_all(const Stage& stage, const SurveyRequest& request);
SampleRows read_txt(const Stage& stage, const SurveyRequest& request);
SampleRows read_cbr(const Stage& stage, const SurveyRequest& request);
SampleRows read_adif(const Stage& stage, const SurveyRequest& request);

// What shapes the numbers of a log have.
struct NumberShapes {
    std::string text = {};  // each shape with its label, as the dialog shows them
    bool has_digit = false;
    bool has_letter = false;
};

// Takes the numbers of syubetu0.csv: "1" for a digit, "2" for anything else, a run of either once,
// so that 12AB has the shape 12. A character of two bytes counts as two, but only as many bytes are
// looked at as the number has characters. Shapes are told in the order of their first eight
// characters in parentheses.
NumberShapes check_con_nr(const Stage& stage, const SurveyRequest& request);

struct LogSurvey {
    SampleRows rows;
    NumberShapes shapes;
};

// The reader of the kind and the survey behind it. Other kinds have no reader: nothing comes back
// and no file is touched.
LogSurvey survey_log(const Stage& stage, std::optional<InputKind> f_type,
                     const SurveyRequest& request);

}  // namespace veldrana
