// Owns how a zLog text log, or a contest file for the replacement run, is chosen on the main
// screen.
#pragma once

#include <string>
#include <string_view>

#include "app/program.h"

namespace veldrana {

// What the label of the log shows, and in_name holds, after a file that is no zLog text log.
constexpr std::string_view not_a_text_log = "zlogのﾃｷｽﾄﾌｧｲﾙではありません！";

// A file dialog wherever the last one ended.
void mnuOpen_Click(Program& program);
// Opens a file that was chosen; an empty path: none was.
void open_text_log(Program& program, const std::string& path);
// A file dialog in the folder for these logs.
void mnuOpen_all_txt_set_Click(Program& program);

// A file dialog for a contest file whose "#" the start button then replaces.
void mnuOpen_con_n_Click(Program& program);

// Fills in the present year.
void cmdNow_Click(Program& program);

}  // namespace veldrana
