// Owns the labels that show which source of names, codes and places ranks where: each in the colour
// of its source while that is in use for the field, grey while it is not.
#pragma once

#include "app/program.h"

namespace veldrana {

// Puts the sources of the kept lists into the labels; an empty list becomes that of a new file.
void fill_ranks(Program& program);

void colour_ranks(Program& program);

}  // namespace veldrana
