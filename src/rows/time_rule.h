// Owns in which time a contact is written: Japan time, UTC, or as it was logged.
#pragma once

#include <string>
#include <string_view>

#include "rows/call_sign.h"
#include "settings/run_options.h"

namespace veldrana {

struct ContactTime {
    std::string date;  // YYMMDD; a year up to 50 is of this century
    std::string time;  // HHMM and the zone letter, J or U
};

// The zone letter of the log.
char zone_of_log(const RunOptions& options);

// Converts by Option08. Notes the JA key of the call in any case. A date or time that is none in
// the calendar is failure 13 where it has to be converted.
void apply_time_rule(const RunOptions& options, std::string_view call, ContactTime& contact,
                     CallMemory& memory);

// The date in pieces, as every file of a run takes it apart: its first two characters, its third
// and fourth, its last two.
struct DatePieces {
    std::string_view year;
    std::string_view month;
    std::string_view day;
};
DatePieces split_date(std::string_view date);

}  // namespace veldrana
