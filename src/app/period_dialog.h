// Owns the way to the dialog of the No QSL period and back.
#pragma once

#include "app/program.h"

namespace veldrana {

// Shows the dialog; a period that is taken over there goes into the title.
void cmdDate_Click(Program& program);

}  // namespace veldrana
