// Owns the start: from the first instruction to a main screen that is ready for a run, or to the
// environment dialog if that has to come first.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/program.h"

namespace veldrana {

// The program's entry: the working tree, the trace log, the settings, the main screen.
// Program::start tells what it came to.
void Main(Program& program);

// Tests that the services and the files that come with the program are there. What is missing is
// told in a box, and the program ends. Runs when the environment dialog is left.
void Main2_bas(Program& program);

// Fixes the end of the No QSL period, saves the options and shows the main screen.
void Main2_bas_2(Program& program);

// Copies the program's profile files, those that are there, into the trace log, each behind a
// title line that tells the moment, such as "変換時".
void trace_profile_files(Program& program, std::string_view moment);

// The keys of the environment that have no value, without which the main screen is not reached.
std::vector<std::string> missing_entries(const EnvironmentSettings& environment);

}  // namespace veldrana
