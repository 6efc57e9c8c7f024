#include "app/screen_options.h"

#include <array>
#include <string>

#include "common/text.h"

namespace veldrana {
namespace {

// A new option is a row here, a control of the screen and a field of the record.
struct Choice {
    OptionGroup MainScreen::*control;
    int RunOptions::*option;
};
constexpr std::array choices{
    Choice{&MainScreen::Option01, &RunOptions::Option01},
    Choice{&MainScreen::Option07, &RunOptions::Option07},
    Choice{&MainScreen::Option02, &RunOptions::Option02},
    Choice{&MainScreen::Option03, &RunOptions::Option03},
    Choice{&MainScreen::Option04, &RunOptions::Option04},
    Choice{&MainScreen::Option05, &RunOptions::Option05},
    Choice{&MainScreen::Option06, &RunOptions::Option06},
    Choice{&MainScreen::Option08, &RunOptions::Option08},
    Choice{&MainScreen::Option09, &RunOptions::Option09},
    Choice{&MainScreen::Option1, &RunOptions::Option1},
    Choice{&MainScreen::Option2, &RunOptions::Option2},
    Choice{&MainScreen::Option22, &RunOptions::Option22},
    Choice{&MainScreen::Option4, &RunOptions::Option4},
};

struct Switch {
    CheckBox MainScreen::*control;
    bool RunOptions::*option;
};
constexpr std::array switches{
    Switch{&MainScreen::Check01, &RunOptions::Check01},
    Switch{&MainScreen::Check03, &RunOptions::Check03},
    Switch{&MainScreen::Check06, &RunOptions::Check06},
    Switch{&MainScreen::Check07, &RunOptions::Check07},
    Switch{&MainScreen::Check08, &RunOptions::Check08},
    Switch{&MainScreen::Check1, &RunOptions::Check1},
    Switch{&MainScreen::Check10, &RunOptions::Check10},
    Switch{&MainScreen::Check14, &RunOptions::Check14},
    Switch{&MainScreen::Check4, &RunOptions::Check4},
    Switch{&MainScreen::Check5, &RunOptions::Check5},
    Switch{&MainScreen::Check6, &RunOptions::Check6},
    Switch{&MainScreen::Check7, &RunOptions::Check7},
    Switch{&MainScreen::Check16, &RunOptions::Check16},
    Switch{&MainScreen::Check8, &RunOptions::Check8},
    Switch{&MainScreen::Check4_A, &RunOptions::Check4_A},
    Switch{&MainScreen::Check4_B, &RunOptions::Check4_B},
    Switch{&MainScreen::Check11, &RunOptions::Check11},
    Switch{&MainScreen::Check13, &RunOptions::Check13},
    Switch{&MainScreen::Check9, &RunOptions::Check9},
    Switch{&MainScreen::Check12, &RunOptions::Check12},
    Switch{&MainScreen::Check17, &RunOptions::Check17},
    Switch{&MainScreen::Check15, &RunOptions::Check15},
    Switch{&MainScreen::Check18, &RunOptions::Check18},
    Switch{&MainScreen::Check19, &RunOptions::Check19},
    Switch{&MainScreen::Check20, &RunOptions::Check20},
    Switch{&MainScreen::Check2, &RunOptions::Check2},
    Switch{&MainScreen::Check3, &RunOptions::Check3},
    Switch{&MainScreen::Check21, &RunOptions::Check21},
    Switch{&MainScreen::Check23, &RunOptions::Check23},
    Switch{&MainScreen::Check26, &RunOptions::Check26},
    Switch{&MainScreen::Check27, &RunOptions::Check27},
    Switch{&MainScreen::Check28, &RunOptions::Check28},
    Switch{&MainScreen::Check31, &RunOptions::Check31},
    Switch{&MainScreen::Check32, &RunOptions::Check32},
    Switch{&MainScreen::Check33, &RunOptions::Check33},
};

// The text of a mark without blanks, one blank if there is none.
std::string mark_of(const TextBox& box) {
    const std::string_view mark = trim(box.text.get());
    return mark.empty() ? " " : std::string(mark);
}

std::string trimmed(const TextBox& box) {
    return std::string(trim(box.text.get()));
}

}  // namespace

RunOptions take_options(Program& program) {
    MainScreen& screen = program.screen;
    RunOptions options;
    for (const Choice& choice : choices) {
        options.*choice.option = (screen.*choice.control).index;
    }
    for (const Switch& one : switches) {
        options.*one.option = (screen.*one.control).value;
    }
    options.txtQSL_Q = mark_of(screen.txtQSL_Q);
    options.txtQSL_S = mark_of(screen.txtQSL_S);
    options.txtOp_name = trimmed(screen.txtOp_name);
    options.txtYYYY = screen.txtYYYY.text;
    options.txtRmks1 = trimmed(screen.txtRmks1);
    options.txtRmks2 = trimmed(screen.txtRmks2);
    options.Start_date = program.period.Start_date;
    options.End_date = program.period.End_date;

    screen.lblCFG.show("", colours::black);
    screen.Check15.fore_colour = colours::black;
    screen.txtOp_name.fore_colour = colours::black;
    return options;
}

}  // namespace veldrana
