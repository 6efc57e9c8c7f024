// Owns what the main screen does with a log that was chosen, whatever its kind.
#pragma once

#include "app/program.h"

namespace veldrana {

// Makes the names of the files of a run from in_name, and shows them. Does nothing if in_name holds
// no backslash. The paths of the log and of its results are shown in full if the log's takes 50
// bytes at most, else all are shortened to 49.
void set_out_names(Program& program);

// Enables the viewers whose files an earlier run has left.
void show_former_outputs(Program& program);

// The same for the dupe list alone.
void show_former_dupe_list(Program& program);

// Enables the start if a log is chosen, and a contest data file too where codes come from one.
void check_readiness(Program& program);

}  // namespace veldrana
