// Owns the logs that were opened last, kept in a file of their own beside the program, a path a
// line, the latest first.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "app/program.h"

namespace veldrana {

constexpr std::string_view recent_logs_file = "Veldrana_recent.txt";

// Shows the kept list in the menu. A file that cannot be read is an empty list.
void load_recent_logs(Program& program);

// Puts a log on top of the list and keeps it; a disk that refuses is not noticed.
void note_recent_log(Program& program, const std::string& path);

// Opens the log of an entry; one that is no longer there leaves the list.
void mnuRecent_Click(Program& program, std::size_t entry);

}  // namespace veldrana
