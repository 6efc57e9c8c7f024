// Owns the command line of the batch program.
#pragma once

#include "batch/batch_run.h"

namespace veldrana {

// Reads the words of the command line and runs the command they name.
int run_command_line(int count, char** words, const BatchOutput& output);

}  // namespace veldrana
