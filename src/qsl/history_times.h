// Owns the file that notes when the log book's database was written, as of the reading of each
// history: as long as the time stays, the history need not be read again.
#pragma once

#include <string>
#include <string_view>

#include "platform/disk.h"

namespace veldrana {

constexpr std::string_view history_times_ini = "Veldrana_fdt.ini";

// "yyyy/mm/dd hh:mm:ss" of the database when the history of that kind was read; empty: never.
struct HistoryTimes {
    std::string QSO;
    std::string QSL_sent;
    std::string QSL_rcvd;
};

// strPath: the program's folder with a backslash at its end. What is missing reads as empty.
HistoryTimes read_history_times(Disk& disk, std::string_view strPath);
// A disk that refuses is not noticed: the next run then reads the history again.
void write_history_times(Disk& disk, std::string_view strPath, const HistoryTimes& times);

}  // namespace veldrana
