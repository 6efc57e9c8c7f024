// Owns how the main screen comes to a contest data file: the contest dialog, the manual way, and
// what the screen shows of the choice.
#pragma once

#include "app/program.h"

namespace veldrana {

// Whether a contest data file is chosen.
bool has_dat(const Program& program);

// Asks for a contest data file, in red.
void ask_for_dat_file(MainScreen& screen);

// Shows the path of a data file in blue, shortened where it is long.
void show_dat_file(MainScreen& screen, const std::string& path);

// Keeps the path of the data file in its own file, where it lives until the program ends.
void keep_dat_file(Program& program);

// Opens the contest dialog; does nothing unless a log is chosen.
void mnuOpenDat_semi_Click(Program& program);

// Asks for a data file, and for a .ALL log looks up its contest; does nothing unless a log is
// chosen.
void mnuOpenDat_mnu_Click(Program& program);

// Tells about the chosen contest and its data file in a box.
void cmdDisp_dat_Click(Program& program);

// With codes taken from the data file: rebuilds its path, and has its presence checked.
void Op04_Chk(Program& program);

// Takes up the data file that the settings name, as a start does; its contest is not known then.
void restore_dat(Program& program);

// Ends the choice, with its contest and what was refused: it holds for one log.
void forget_dat(Program& program);

// The data file as a run takes it: read again from the settings, with its presence checked. Gives
// its path.
std::string take_dat_of_run(Program& program);

// Where contest data files lie.
DatFolders dat_folders(const Program& program);

}  // namespace veldrana
