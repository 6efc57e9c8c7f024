// Owns the list of the main screen's controls and their values, for reports of what a screen
// showed.
#pragma once

#include "app/program.h"

namespace veldrana {

// Writes a line for each control, its name in 15 bytes and its value, to Controls.lst_0 beside the
// program, and sorts them by name into Controls.lst.
void mnuGet_Value_Click(Program& program);

}  // namespace veldrana
