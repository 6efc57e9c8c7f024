// Owns the load of the main screen: it takes up the settings, and its controls agree with them when
// it is shown.
#pragma once

#include "app/program.h"

namespace veldrana {

// Loads the main screen, shows it in the place of the splash, and puts the chosen tabs on top.
void show_main_screen(Program& program);

// Brings a main screen that is loaded in line with the environment, which the dialog has changed
// from what it was before.
void take_up_environment(Program& program, const EnvironmentSettings& before);

// Shows the operator's call sign, and that there is a password.
void show_operator(Program& program);

// Derives from the path of the log book's database its short name, as the screen shows it, and the
// drive whose root holds the scratch files. Without a path nothing changes.
void get_hdb_name_bas(Program& program);

// Put the chosen tab of the upper and of the lower tab control on top.
void chk_disp_top_sstab(MainScreen& screen);
void chk_disp_top_sstab_2(MainScreen& screen);

}  // namespace veldrana
