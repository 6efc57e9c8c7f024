// Owns what every way of opening a log has in common. Each way asks for a file in its dialog, takes
// it as the log, tests it, and then accepts or refuses it.
#pragma once

#include <string>
#include <string_view>

#include "app/program.h"

namespace veldrana {

// Makes a file the log of the next run, with the names that follow from it. What was decided for
// another log before, the contest above all, is forgotten.
void take_log(Program& program, const std::string& path);

// A log that is none of its kind: the reason stands in red in the place of its path.
void refuse_log(Program& program, std::string_view reason);

// A log of that kind: the screen is brought in line with it. Asks for a contest data file where the
// run needs one.
void accept_log(Program& program, InputKind kind);

// How many contacts the log has, in a width of four with a unit behind it.
void show_record_count(Program& program, std::size_t count, std::string_view unit);

}  // namespace veldrana
