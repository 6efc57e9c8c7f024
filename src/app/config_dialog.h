// Owns the ways to the environment dialog and back: from a start that has come to it, and from the
// main screen.
#pragma once

#include "app/program.h"

namespace veldrana {

// Shows the dialog that a start has come to; once it is left by cmdOK the start goes on to the main
// screen. Program::start tells what it came to. Part of an event, as Main is.
void run_environment_dialog(Program& program);

// Shows the dialog in front of the main screen, which takes up what has changed.
void mnuConfig_Click(Program& program);

}  // namespace veldrana
