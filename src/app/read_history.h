// Owns the question whether the log book has to be read before a run, and the reading of it.
#pragma once

#include "app/program.h"
#include "settings/run_options.h"

namespace veldrana {

// Reads the log book and makes the history of the chosen rule, if there is a rule and the log book
// is its source: with Check18 in any case, else if there is no history yet or the database has
// another time than the one that was noted before its last reading, whether that went well or not.
// The period alone asks for no reading.
void read_history(Program& program, const RunOptions& options);

}  // namespace veldrana
