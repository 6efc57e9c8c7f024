// Owns the tool for RTCL logs as the main screen opens it, and the viewers that it shows its files
// in.
#pragma once

#include "app/program.h"

namespace veldrana {

void mnu_rtcl_new_Click(Program& program);

// Closes the viewers of the tool that are still open.
void close_free_viewers(Program& program);

}  // namespace veldrana
