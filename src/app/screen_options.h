// Owns how the options of a run are taken from the main screen.
#pragma once

#include "app/program.h"
#include "settings/run_options.h"

namespace veldrana {

// Every option as its control stands, texts trimmed but the year, an empty mark as one blank. Takes
// the status label and the operator filter back to their colours.
RunOptions take_options(Program& program);

}  // namespace veldrana
