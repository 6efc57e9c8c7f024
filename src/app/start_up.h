// Owns the start: from the first instruction to a main screen that is ready for a run.
#pragma once

#include <string_view>

#include "app/program.h"

namespace veldrana {

// The program's entry: the working tree, the trace log, the main screen.
void Main(Program& program);

// Copies the program's profile files, those that are there, into the trace log, each behind a
// title line that tells the moment, such as "変換時".
void trace_profile_file(Program& program, std::string_view name, std::string_view moment);

}  // namespace veldrana
