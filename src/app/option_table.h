// Owns the list of all options: which control of the main screen shows each, which field of
// RunOptions a run reads, and which text keeps it between two runs of the program. A new option is
// a row here, a control, a field and, to last, a key (settings/option_keys.cpp).
#pragma once

#include <span>
#include <string>

#include "app/main_screen.h"
#include "app/program.h"
#include "settings/option_settings.h"
#include "settings/run_options.h"

namespace veldrana {

struct GroupOption {
    OptionGroup MainScreen::*control;
    int RunOptions::*option;
    std::string OptionSettings::*setting;
};

struct SwitchOption {
    CheckBox MainScreen::*control;
    bool RunOptions::*option;              // null: RunOptions has no field for it
    std::string OptionSettings::*setting;  // null: it lasts as long as the program
};

std::span<const GroupOption> group_options();
std::span<const SwitchOption> switch_options();

// Every option as its control stands, texts trimmed but the year, an empty mark as one blank. Takes
// the status label and the operator filter back to their colours.
RunOptions take_options(Program& program);

}  // namespace veldrana
