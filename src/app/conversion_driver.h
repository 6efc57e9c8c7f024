// Owns a run from the press on the start button to its end: the order of the stages, what the main
// screen tells meanwhile, and what is cleaned up behind them. Between the stages everything passes
// through files; no stage returns a result but its counts.
//
// Each procedure is a list of steps. A new stage is a step in cmd_henkan, a new kind of log a case
// of its input stage.
#pragma once

#include "app/program.h"

namespace veldrana {

// The start button: one run, with the settings it ran on in the trace log.
void cmdStart_Click(Program& program);

// A run. False if it stopped before it began, to ask for a choice: the text data of the log book is
// on, both user texts are known and none is chosen; or the No QSL rule asks for a history.
bool cmdStart_1(Program& program);

// Shows how many records the chosen log has: the lines behind its heading.
void count_in_name(Program& program);

}  // namespace veldrana
