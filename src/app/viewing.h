// Owns what the main screen shows of files and of their state.
#pragma once

#include <string>

#include "app/program.h"

namespace veldrana {

// Shows a file in the text viewer; one that is missing is not shown, nor a second while one is
// open.
void show_text(Program& program, const std::string& path);

// The state of the log book's histories.
void cmdCheck_bak_qso_mas_Click(Program& program);

}  // namespace veldrana
