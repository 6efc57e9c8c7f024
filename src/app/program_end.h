// Owns the orderly end of the program.
#pragma once

#include "app/program.h"

namespace veldrana {

// Deletes the work files, closes the trace log, deletes it unless it tells of a failure or is to be
// kept, and ends the program. What fails on the way is passed over: the end comes in any case.
[[noreturn]] void End_Click(Program& program);

}  // namespace veldrana
