#include "app/option_table.h"

#include <array>
#include <string_view>

#include "common/text.h"
#include "settings/option_defaults.h"

namespace veldrana {
namespace {

using Screen = MainScreen;
using Run = RunOptions;
using Kept = OptionSettings;

constexpr std::array groups{
    GroupOption{&Screen::Option01, &Run::Option01, &Kept::Option01},
    GroupOption{&Screen::Option07, &Run::Option07, &Kept::Option07},
    GroupOption{&Screen::Option02, &Run::Option02, &Kept::Option02},
    GroupOption{&Screen::Option03, &Run::Option03, &Kept::Option03},
    GroupOption{&Screen::Option04, &Run::Option04, &Kept::Option04},
    GroupOption{&Screen::Option05, &Run::Option05, &Kept::Option05},
    GroupOption{&Screen::Option06, &Run::Option06, &Kept::Option06},
    GroupOption{&Screen::Option08, &Run::Option08, &Kept::Option08},
    GroupOption{&Screen::Option09, &Run::Option09, &Kept::Option09},
    GroupOption{&Screen::Option1, &Run::Option1, &Kept::Option1},
    GroupOption{&Screen::Option2, &Run::Option2, &Kept::Option2},
    GroupOption{&Screen::Option22, &Run::Option22, &Kept::Option22},
    GroupOption{&Screen::Option4, &Run::Option4, &Kept::Option4},
};

constexpr std::array switches{
    SwitchOption{&Screen::Check01, &Run::Check01, &Kept::Check01},
    SwitchOption{&Screen::Check03, &Run::Check03, &Kept::Check03},
    SwitchOption{&Screen::Check06, &Run::Check06, &Kept::Check06},
    SwitchOption{&Screen::Check07, &Run::Check07, &Kept::Check07},
    SwitchOption{&Screen::Check08, &Run::Check08, &Kept::Check08},
    SwitchOption{&Screen::Check1, &Run::Check1, &Kept::Check1},
    SwitchOption{&Screen::Check10, &Run::Check10, &Kept::Check10},
    SwitchOption{&Screen::Check14, &Run::Check14, &Kept::Check14},
    SwitchOption{&Screen::Check4, &Run::Check4, &Kept::Check4},
    SwitchOption{&Screen::Check5, &Run::Check5, &Kept::Check5},
    SwitchOption{&Screen::Check6, &Run::Check6, &Kept::Check6},
    SwitchOption{&Screen::Check7, &Run::Check7, &Kept::Check7},
    SwitchOption{&Screen::Check16, &Run::Check16, &Kept::Check16},
    SwitchOption{&Screen::Check8, &Run::Check8, &Kept::Check8},
    SwitchOption{&Screen::Check4_A, &Run::Check4_A, &Kept::Check4_A},
    SwitchOption{&Screen::Check4_B, &Run::Check4_B, &Kept::Check4_B},
    SwitchOption{&Screen::Check11, &Run::Check11, &Kept::Check11},
    SwitchOption{&Screen::Check13, &Run::Check13, &Kept::Check13},
    SwitchOption{&Screen::Check9, &Run::Check9, &Kept::Check9},
    SwitchOption{&Screen::Check12, &Run::Check12, &Kept::Check12},
    SwitchOption{&Screen::Check17, &Run::Check17, &Kept::Check17},
    SwitchOption{&Screen::Check15, &Run::Check15, &Kept::Check15},
    SwitchOption{&Screen::Check18, &Run::Check18, &Kept::Check18},
    SwitchOption{&Screen::Check19, &Run::Check19, &Kept::Check19},
    SwitchOption{&Screen::Check20, &Run::Check20, &Kept::Check20},
    SwitchOption{&Screen::Check2, &Run::Check2, &Kept::Check2},
    SwitchOption{&Screen::Check3, &Run::Check3, &Kept::Check3},
    SwitchOption{&Screen::Check21, &Run::Check21, &Kept::Check21},
    SwitchOption{&Screen::Check22, nullptr, nullptr},
    SwitchOption{&Screen::Check23, &Run::Check23, &Kept::Check23},
    SwitchOption{&Screen::Check24, nullptr, nullptr},
    SwitchOption{&Screen::Check25, nullptr, nullptr},
    SwitchOption{&Screen::Check26, &Run::Check26, &Kept::Check26},
    SwitchOption{&Screen::Check27, &Run::Check27, nullptr},
    SwitchOption{&Screen::Check28, &Run::Check28, nullptr},
    SwitchOption{&Screen::Check31, &Run::Check31, &Kept::N_sreach_flag},
    SwitchOption{&Screen::Check32, &Run::Check32, &Kept::N_ReWrite_flag},
    SwitchOption{&Screen::Check33, &Run::Check33, &Kept::Not_JARL_flag},
};

std::string trimmed(std::string_view text) {
    return std::string(trim(text));
}

// The text without blanks, one blank if there is none.
std::string mark_of(std::string_view text) {
    const std::string_view mark = trim(text);
    return mark.empty() ? " " : std::string(mark);
}

std::string priority_of(const std::string& list) {
    return list.empty() ? std::string(default_priority) : list;
}

}  // namespace

std::span<const GroupOption> group_options() {
    return groups;
}

std::span<const SwitchOption> switch_options() {
    return switches;
}

RunOptions take_options(Program& program) {
    MainScreen& screen = program.screen;
    RunOptions options;
    for (const GroupOption& group : groups) {
        options.*group.option = (screen.*group.control).index;
    }
    for (const SwitchOption& one : switches) {
        if (one.option != nullptr) {
            options.*one.option = (screen.*one.control).value;
        }
    }
    options.txtQSL_Q = mark_of(screen.txtQSL_Q.text.get());
    options.txtQSL_S = mark_of(screen.txtQSL_S.text.get());
    options.txtOp_name = trimmed(screen.txtOp_name.text.get());
    options.txtYYYY = screen.txtYYYY.text;
    options.txtRmks1 = trimmed(screen.txtRmks1.text.get());
    options.txtRmks2 = trimmed(screen.txtRmks2.text.get());

    const OptionSettings& kept = program.settings.options;
    options.Start_date = kept.Start_date;
    options.End_date = kept.End_date;
    options.name_yusen_jun = priority_of(kept.name_yusen_jun);
    options.code_yusen_jun = priority_of(kept.code_yusen_jun);
    options.qth_yusen_jun = priority_of(kept.qth_yusen_jun);
    options.No_QSL_moji = mark_of(program.settings.environment.No_QSL_moji);

    screen.lblCFG.show("", colours::black);
    screen.Check15.fore_colour = colours::black;
    screen.txtOp_name.fore_colour = colours::black;
    return options;
}

}  // namespace veldrana
