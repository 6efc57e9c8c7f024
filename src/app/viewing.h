// Owns what the main screen shows of files and of their state.
#pragma once

#include <string>

#include "app/program.h"

namespace veldrana {

// Gives the entries of the main screen that show a file what they do. An entry whose file is
// missing does nothing.
void attach_viewers(Program& program);

// Shows a file in the text viewer; one that is missing is not shown, nor a second while one is
// open.
void show_text(Program& program, const std::string& path);

// The state of the log book's histories.
void cmdCheck_bak_qso_mas_Click(Program& program);

}  // namespace veldrana
