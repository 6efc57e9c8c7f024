#include "app/option_handlers.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "app/chosen_log.h"
#include "app/contest_choice.h"
#include "app/option_table.h"
#include "app/read_zlo_head.h"
#include "app/slot_handlers.h"
#include "app/source_ranks.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "masters/master_checks.h"

namespace veldrana {
namespace {

using Setting = std::string OptionSettings::*;

void store(Program& program, Setting setting, std::string value) {
    std::string& kept = program.settings.options.*setting;
    if (kept != value) {
        kept = std::move(value);
        program.settings.write_Veldrana_new_ini();
    }
}

// An old result text goes away with any click on an option.
void clear_result_text(MainScreen& screen) {
    screen.lblCFG.caption = "";
    screen.lblMsg.caption = "";
}

// --- what every option does ---

void show(CheckBox& box) {
    box.fore_colour = box.value ? colours::blue : colours::black;
}

void show(OptionGroup& group) {
    std::vector<OptionGroup::Button> buttons = group.buttons;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const bool chosen = group.index == static_cast<int>(i);
        buttons[i].fore_colour = chosen ? colours::blue : colours::black;
    }
    group.buttons = std::move(buttons);
}

void show_and_store(Program& program, const SwitchOption& option) {
    CheckBox& box = program.screen.*option.control;
    clear_result_text(program.screen);
    show(box);
    if (option.setting != nullptr) {
        store(program, option.setting, box.value ? "1" : "0");
    }
}

void show_and_store(Program& program, const GroupOption& option) {
    OptionGroup& group = program.screen.*option.control;
    clear_result_text(program.screen);
    show(group);
    store(program, option.setting, std::to_string(group.index));
}

// --- what some do besides ---

void Check8_Click(Program& program) {
    MainScreen& screen = program.screen;
    for (CheckBox* const box :
         {&screen.Check9, &screen.Check11, &screen.Check12, &screen.Check13, &screen.Check17}) {
        box->enabled = screen.Check8.value.get();
    }
    const bool known_A = !program.settings.options.Text_data_dir_A.empty();
    const bool known_B = !program.settings.options.Text_data_dir_B.empty();
    if (screen.Check8.value && known_A != known_B) {
        screen.Check4_A.value = known_A;
        screen.Check4_B.value = known_B;
    }
}

// One of the two user texts: its box and button, the other's box, and the setting of its path.
struct UserText {
    CheckBox MainScreen::*box;
    CheckBox MainScreen::*other_box;
    CommandButton MainScreen::*button;
    Setting path;
};
constexpr UserText user_text_A{&MainScreen::Check4_A, &MainScreen::Check4_B,
                               &MainScreen::cmdSet_UserTxt_A, &OptionSettings::Text_data_dir_A};
constexpr UserText user_text_B{&MainScreen::Check4_B, &MainScreen::Check4_A,
                               &MainScreen::cmdSet_UserTxt_B, &OptionSettings::Text_data_dir_B};

void take_back(Program& program, const UserText& text) {
    MainScreen& screen = program.screen;
    (screen.*text.box).value = false;
    if (!(screen.*text.other_box).value) {
        screen.Check8.value = false;
    }
}

void choose_user_text(Program& program, const UserText& text) {
    MainScreen& screen = program.screen;
    if (!(screen.*text.box).value) {
        return;
    }
    std::string path = program.settings.options.*text.path;
    if (path.empty()) {
        program.person.show({.text = "ユーザーテキストファイルが指定されていません。"});
        take_back(program, text);
    } else if (!check_user_text(program.stage(), path)) {
        store(program, text.path, path);
        (screen.*text.button).caption = user_text_caption(path);
        take_back(program, text);
    } else {
        (screen.*text.other_box).value = false;
    }
}

void Check4_A_Click(Program& program) {
    choose_user_text(program, user_text_A);
}

void Check4_B_Click(Program& program) {
    choose_user_text(program, user_text_B);
}

// Each of the two ways to turn marks takes the other off.
void Check2_Click(Program& program) {
    if (program.screen.Check2.value) {
        program.screen.Check3.value = false;
    }
}

void Check3_Click(Program& program) {
    if (program.screen.Check3.value) {
        program.screen.Check2.value = false;
    }
}

void Op05_Chk(Program& program) {
    MainScreen& screen = program.screen;
    const bool together = screen.Option05.index == 1;
    screen.Option09.enable_all(together);
    screen.Check08.enabled = together;
}

void Op07_Chk(Program& program) {
    MainScreen& screen = program.screen;
    const bool in_use = screen.Option07.index != 0;
    screen.Option01.enable(0, in_use);
    screen.Check19.enabled = in_use;
    screen.Check20.enabled = in_use;
    if (in_use) {
        screen.Option01.index = 0;
    }
}

// The heading of a binary log of zLog tells the contest, once contest data are wanted.
void Option02_Click(Program& program) {
    Op02_Chk(program);
    if (program.log.f_type != InputKind::zlo) {
        return;
    }
    MainScreen& screen = program.screen;
    if (screen.Option02.index == 0 && !has_backslash(program.log.in_name)) {
        screen.lblInfo.show("入力ファイルを指定して下さい", colours::red);
    } else if (screen.Option02.index == 2) {
        read_zlo_head(program);
    }
}

// The time rule goes into the snapshot of the options too.
void Op08_Chk(Program& program) {
    program.settings.write_Veldrana_ini();
}

void Op2_Chk(Program& program) {
    store(program, &OptionSettings::disp_top_SSTab, program.settings.options.Option2);
}

void Op22_Chk(Program& program) {
    store(program, &OptionSettings::disp_top_SSTab_2, program.settings.options.Option22);
}

// What an option does beyond showing and storing itself; those that are not here do no more.
template <class Control>
struct Cascade {
    Control MainScreen::*control;
    void (*run)(Program&);
};
constexpr std::array box_cascades{
    Cascade<CheckBox>{&MainScreen::Check14, Check14_Click},
    Cascade<CheckBox>{&MainScreen::Check8, Check8_Click},
    Cascade<CheckBox>{&MainScreen::Check4_A, Check4_A_Click},
    Cascade<CheckBox>{&MainScreen::Check4_B, Check4_B_Click},
    Cascade<CheckBox>{&MainScreen::Check2, Check2_Click},
    Cascade<CheckBox>{&MainScreen::Check3, Check3_Click},
};
constexpr std::array group_cascades{
    Cascade<OptionGroup>{&MainScreen::Option02, Option02_Click},
    Cascade<OptionGroup>{&MainScreen::Option04, Op04_Chk},
    Cascade<OptionGroup>{&MainScreen::Option05, Op05_Chk},
    Cascade<OptionGroup>{&MainScreen::Option07, Op07_Chk},
    Cascade<OptionGroup>{&MainScreen::Option08, Op08_Chk},
    Cascade<OptionGroup>{&MainScreen::Option2, Op2_Chk},
    Cascade<OptionGroup>{&MainScreen::Option22, Op22_Chk},
};

template <class Cascades, class Control>
void run_cascade(Program& program, const Cascades& cascades, const Control& control) {
    for (const auto& cascade : cascades) {
        if (&(program.screen.*cascade.control) == &control) {
            cascade.run(program);
        }
    }
    colour_ranks(program);
}

void option_clicked(Program& program, const SwitchOption& option) {
    CheckBox& box = program.screen.*option.control;
    if (&box == &program.screen.Check23) {
        box.value = true;  // cannot be switched off
    }
    show_and_store(program, option);
    run_cascade(program, box_cascades, box);
}

void option_clicked(Program& program, const GroupOption& option) {
    if ((program.screen.*option.control).index == OptionGroup::none) {
        return;  // nobody clicked: a run took the choice away
    }
    show_and_store(program, option);
    run_cascade(program, group_cascades, program.screen.*option.control);
}

// --- texts ---

void keep_first_character(Program& program, TextBox& box, Setting setting) {
    box.text = std::string(left(box.text.get(), 1));
    store(program, setting, box.text);
}

void txtYYYY_Change(Program& program) {
    TextBox& box = program.screen.txtYYYY;
    box.text = std::string(left(box.text.get(), 4));
    store(program, &OptionSettings::YYYY, box.text);
}

void txtOp_name_Change(MainScreen& screen) {
    screen.Check15.fore_colour = colours::black;
    screen.txtOp_name.fore_colour = colours::black;
}

// --- from what is stored to the controls ---

// A number that names no button chooses the first.
void select_stored(Program& program, const GroupOption& option) {
    OptionGroup& group = program.screen.*option.control;
    const int stored = stored_number(program.settings.options.*option.setting);
    const bool known = stored >= 0 && static_cast<std::size_t>(stored) < group.buttons.get().size();
    group.index = known ? stored : 0;
}

void select_stored(Program& program, const SwitchOption& option) {
    const std::string& stored = program.settings.options.*option.setting;
    (program.screen.*option.control).value = stored_number(stored) != 0;
}

// Null if no option of this kind has that name.
template <class Option>
const Option* find_option(const MainScreen& screen, std::span<const Option> options,
                          std::string_view name) {
    const auto found = std::find_if(options.begin(), options.end(), [&](const Option& option) {
        return (screen.*option.control).name() == name;
    });
    return found == options.end() ? nullptr : &*found;
}

void select_stored(Program& program, std::string_view name) {
    if (const GroupOption* const group = find_option(program.screen, group_options(), name)) {
        select_stored(program, *group);
    } else if (const SwitchOption* const one =
                   find_option(program.screen, switch_options(), name)) {
        select_stored(program, *one);
    } else {
        throw RunTimeError(Failure::internal);
    }
}

void set_user_text(Program& program, const UserText& text) {
    const std::string path =
        program.person.choose_file({.filter = "ﾕｰｻﾞｰﾃｷｽﾄﾌｧｲﾙ ( *.txt )|*.txt"});
    if (path.empty()) {
        return;
    }
    if (!check_form_of_user_text(program.stage(), path)) {
        (program.screen.*text.box).value = false;
        return;
    }
    (program.screen.*text.button).caption = user_text_caption(path);
    store(program, text.path, path);
}

}  // namespace

void attach_option_handlers(Program& program) {
    MainScreen& screen = program.screen;
    for (const GroupOption& option : group_options()) {
        show(screen.*option.control);
        (screen.*option.control).index.on_change = [&program, option] {
            program.event([&] { option_clicked(program, option); });
        };
    }
    for (const SwitchOption& option : switch_options()) {
        show(screen.*option.control);
        (screen.*option.control).value.on_change = [&program, option] {
            program.event([&] { option_clicked(program, option); });
        };
    }
    const auto on_change = [&program](TextBox& box, auto handler) {
        box.text.on_change = [&program, handler] { program.event(handler); };
    };
    on_change(screen.txtQSL_Q, [&program] {
        keep_first_character(program, program.screen.txtQSL_Q, &OptionSettings::QSL_Q);
    });
    on_change(screen.txtQSL_S, [&program] {
        keep_first_character(program, program.screen.txtQSL_S, &OptionSettings::QSL_S);
    });
    on_change(screen.txtQSL_moji, [&program] {
        keep_first_character(program, program.screen.txtQSL_moji, &OptionSettings::QSL_moji);
    });
    on_change(screen.txtYYYY, [&program] { txtYYYY_Change(program); });
    on_change(screen.txtOp_name, [&program] { txtOp_name_Change(program.screen); });
    for (RemarkSlots* const slots : {&screen.lblRmks1, &screen.lblRmks2}) {
        for (RemarkSlot& slot : *slots) {
            slot.item_entered = [&program, &slot](const std::string& name) {
                program.event([&] { drop_on_slot(program, slot, {.name = name}); });
            };
        }
    }
}

void ini_read_2(Program& program) {
    constexpr std::array<std::string_view, 41> order{
        "Option01", "Option07", "Option02", "Option04", "Check10",  "Check06", "Option1",
        "Check01",  "Check15",  "Check16",  "Check17",  "Check18",  "Check19", "Check20",
        "Option05", "Option06", "Check21",  "Check03",  "Option09", "Check08", "Option03",
        "Option08", "Check1",   "Check2",   "Check3",   "Check4",   "Check5",  "Check6",
        "Check7",   "Check07",  "Check14",  "Option2",  "Option4",  "Check8",  "Check9",
        "Check11",  "Check12",  "Check13",  "Check23",  "Check4_A", "Check4_B"};
    for (const std::string_view name : order) {
        select_stored(program, name);
    }
}

void Option08_set(Program& program) {
    select_stored(program, "Option08");
}

void run_option_handlers(Program& program) {
    const auto click = [&program](std::string_view name) {
        const GroupOption* const group = find_option(program.screen, group_options(), name);
        if (group == nullptr) {
            throw RunTimeError(Failure::internal);
        }
        option_clicked(program, *group);
    };
    select_stored(program, "Option1");
    for (const std::string_view name : {"Option1", "Option02", "Option03", "Option04"}) {
        click(name);
    }
    select_stored(program, "Option05");
    for (const std::string_view name :
         {"Option05", "Option06", "Option07", "Option08", "Option09"}) {
        click(name);
    }
    const MainScreen& screen = program.screen;
    for (const SwitchOption& option : switch_options()) {
        const CheckBox& box = screen.*option.control;
        // Those of the member search are set later.
        if (&box != &screen.Check31 && &box != &screen.Check32 && &box != &screen.Check33) {
            option_clicked(program, option);
        }
    }
    // No earlier step has set this one, and its handler would forget what is stored.
    select_stored(program, "Option22");
    for (const std::string_view name : {"Option2", "Option22", "Option4"}) {
        click(name);
    }
}

void Check14_Click(Program& program) {
    MainScreen& screen = program.screen;
    for (CheckBox* const box :
         {&screen.Check4, &screen.Check5, &screen.Check6, &screen.Check7, &screen.Check16}) {
        box->enabled = screen.Check14.value.get();
    }
}

void Op02_Chk(Program& program) {
    MainScreen& screen = program.screen;
    const bool from_source = screen.Option02.index != 0;
    const bool from_dat = screen.Option02.index == 2;
    screen.Frame11.enabled = from_source;
    screen.Option04.enabled = from_source;
    screen.enable_dat_choice(from_dat);
    screen.enable_dat_viewers(from_dat && has_dat(program));
    if (from_dat && !has_dat(program)) {
        ask_for_dat_file(screen);
    }
    check_readiness(program);
}

void cmdSet_UserTxt_A_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdSet_UserTxt_A_Click()",
                    [&] { set_user_text(program, user_text_A); });
}

void cmdSet_UserTxt_B_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdSet_UserTxt_B_Click()",
                    [&] { set_user_text(program, user_text_B); });
}

void cmdCount_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub cmdCount_Click()", [&] {
        name_mas_txt_count1(program.stage(), program.settings.environment.name_mas_dir,
                            program.name_mas_max);
    });
}

}  // namespace veldrana
