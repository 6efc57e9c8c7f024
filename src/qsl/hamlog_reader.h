// Owns the reading of the station's own log book: the records of a period that a rule selects go
// into a scratch file, from which qsl/history.h makes the history.
//
// A line of bak_1.txt has three quoted columns: call field and code, call field, code. The call
// field is the call sign with blanks behind it, cut to 13 characters; the code is that of
// qsl/band_mode.h. Behind the records stand two sentinel lines.
#pragma once

#include <string>
#include <string_view>

#include "platform/hamlog_library.h"
#include "platform/stage.h"
#include "qsl/history_times.h"

namespace veldrana {

constexpr std::string_view selected_records_file = "bak_1.txt";

// What makes a station one that needs no card: the buttons of Option07.
enum class HistoryKind { worked = 1, sent = 2, received = 3 };

// The time that is noted for a kind.
std::string& time_of(HistoryTimes& times, HistoryKind kind);

struct LogBookRequest {
    std::string_view hamlog_hdb_dir;  // full path of the database
    std::string_view drive_path;
    std::string_view strPath;
    std::string_view Start_Date;  // yyyymmdd; both ends belong to the period
    std::string_view End_Date;
    std::string_view End_Date_bak;  // what counts if there is no end
};

// Notes the database's time in `times` and in their file, before anything is read, and writes
// bak_1.txt. A database that cannot be opened ends the program without a word; a failure passes,
// with the log book closed.
void read_hl_hdb(const Stage& stage, HamlogLibrary& library, HistoryKind kind,
                 const LogBookRequest& request, HistoryTimes& times);

}  // namespace veldrana
