// Owns the automatic way to a contest: the heading of a binary log of zLog names it, and the
// contest list tells its data file.
#pragma once

#include "app/program.h"

namespace veldrana {

// Finds the contest of the chosen log. A log without a name, and a contest that the list does not
// have or that gives no codes, are asked about; cancel ends the program.
void read_zlo_head(Program& program);

}  // namespace veldrana
