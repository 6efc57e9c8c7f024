// Owns what the options of the main screen do when they are clicked: what each stores, which others
// it enables, takes off or colours. Every change is stored at once, in the settings and in their
// file.
#pragma once

#include "app/program.h"

namespace veldrana {

// Ties every option to its handler.
void attach_option_handlers(Program& program);

// Brings the controls in line with the stored options, in an order that is part of what comes out:
// each change runs its handler.
void ini_read_2(Program& program);

// Selects the stored time rule.
void Option08_set(Program& program);

// Runs the handler of every option once, so that all enabling and colouring agrees with what is
// stored.
void run_option_handlers(Program& program);

// Enables what the QTH master gives while that is in use.
void Check14_Click(Program& program);

// Enables what depends on the choice of the code source, and the start buttons.
void Op02_Chk(Program& program);

void cmdSet_UserTxt_A_Click(Program& program);
void cmdSet_UserTxt_B_Click(Program& program);

// Counts the records of the name masters.
void cmdCount_Click(Program& program);

}  // namespace veldrana
