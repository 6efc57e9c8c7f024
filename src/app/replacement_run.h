// Owns the replacement run: every "#" of a contest file becomes a blank.
#pragma once

#include "app/program.h"

namespace veldrana {

// Works on the file that the names of a run derive from the chosen one (_c0.csv); failure 53 if it
// is not there, which is what mostly happens. Kept.
void cmd_chikan(Program& program);

}  // namespace veldrana
