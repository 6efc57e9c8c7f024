// What the options of the main screen do when they are clicked: row by row over the option tables,
// then each interlock, both ways.
#include "app/option_handlers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/contest_choice.h"
#include "app/option_table.h"
#include "tests/app/stored_settings.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// The screen of a station that uses every master and has both user texts.
class OptionTest : public testing::Test {
  protected:
    OptionTest() {
        use_all_masters(kit);
        set_user_text_a(kit);
        set_user_text_b(kit);
        kit.start();
        kit.person.boxes.clear();
    }

    OptionSettings& options() { return kit.program->settings.options; }

    ProgramKit kit;
    MainScreen& screen = kit.screen();
};

// --- check boxes ---

struct BoxRow {
    const char* name;
    CheckBox MainScreen::*box;
    std::string OptionSettings::*memory = nullptr;  // null: no file keeps it
    std::string_view section = new_ini;
    std::string_view key = {};  // empty: the name
};
void PrintTo(const BoxRow& row, std::ostream* out) {
    *out << row.name;
}

const std::vector<BoxRow> stored_boxes{
    {"Check01", &MainScreen::Check01, &OptionSettings::Check01},
    {"Check03", &MainScreen::Check03, &OptionSettings::Check03},
    {"Check06", &MainScreen::Check06, &OptionSettings::Check06},
    {"Check07", &MainScreen::Check07, &OptionSettings::Check07},
    {"Check08", &MainScreen::Check08, &OptionSettings::Check08},
    {"Check1", &MainScreen::Check1, &OptionSettings::Check1},
    {"Check10", &MainScreen::Check10, &OptionSettings::Check10},
    {"Check14", &MainScreen::Check14, &OptionSettings::Check14},
    {"Check4", &MainScreen::Check4, &OptionSettings::Check4},
    {"Check5", &MainScreen::Check5, &OptionSettings::Check5},
    {"Check6", &MainScreen::Check6, &OptionSettings::Check6},
    {"Check7", &MainScreen::Check7, &OptionSettings::Check7},
    {"Check16", &MainScreen::Check16, &OptionSettings::Check16},
    {"Check8", &MainScreen::Check8, &OptionSettings::Check8},
    {"Check4_A", &MainScreen::Check4_A, &OptionSettings::Check4_A},
    {"Check4_B", &MainScreen::Check4_B, &OptionSettings::Check4_B},
    {"Check11", &MainScreen::Check11, &OptionSettings::Check11},
    {"Check13", &MainScreen::Check13, &OptionSettings::Check13},
    {"Check9", &MainScreen::Check9, &OptionSettings::Check9},
    {"Check12", &MainScreen::Check12, &OptionSettings::Check12},
    {"Check17", &MainScreen::Check17, &OptionSettings::Check17},
    {"Check15", &MainScreen::Check15, &OptionSettings::Check15},
    {"Check18", &MainScreen::Check18, &OptionSettings::Check18},
    {"Check19", &MainScreen::Check19, &OptionSettings::Check19},
    {"Check20", &MainScreen::Check20, &OptionSettings::Check20},
    {"Check2", &MainScreen::Check2, &OptionSettings::Check2},
    {"Check3", &MainScreen::Check3, &OptionSettings::Check3},
    {"Check21", &MainScreen::Check21, &OptionSettings::Check21},
    {"Check31", &MainScreen::Check31, &OptionSettings::N_sreach_flag, "JARL_Search",
     "N_sreach_flag"},
    {"Check32", &MainScreen::Check32, &OptionSettings::N_ReWrite_flag, "JARL_Search",
     "N_ReWrite_flag"},
    {"Check33", &MainScreen::Check33, &OptionSettings::Not_JARL_flag, "JARL_Search",
     "Not_JARL_flag"},
};

// These hold for one run, or for one program; and one cannot be switched off.
const std::vector<BoxRow> passing_boxes{
    {"Check26", &MainScreen::Check26},
    {"Check27", &MainScreen::Check27},
    {"Check28", &MainScreen::Check28},
};
const std::vector<BoxRow> boxes_beside_the_rule{
    {"Check22", &MainScreen::Check22},
    {"Check23", &MainScreen::Check23},
    {"Check24", &MainScreen::Check24},
    {"Check25", &MainScreen::Check25},
};

std::vector<BoxRow> joined(std::vector<BoxRow> rows, const std::vector<BoxRow>& more) {
    rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

std::string row_name(const testing::TestParamInfo<BoxRow>& row) {
    return row.param.name;
}

class EveryBox : public OptionTest, public testing::WithParamInterface<BoxRow> {
  protected:
    CheckBox& box = screen.*GetParam().box;
};
INSTANTIATE_TEST_SUITE_P(Boxes, EveryBox,
                         testing::ValuesIn(joined(joined(stored_boxes, passing_boxes),
                                                  boxes_beside_the_rule)),
                         row_name);

TEST_P(EveryBox, ClearsTheStatusAndTheMessage) {
    for (int click = 0; click < 2; ++click) {
        screen.lblCFG.show("処 理 終 了", colours::blue);
        screen.lblMsg.caption = "an old message";
        box.value = !box.value.get();
        EXPECT_EQ(screen.lblCFG.caption.get(), "") << click;
        EXPECT_EQ(screen.lblMsg.caption.get(), "") << click;
    }
}

class EveryBoxThatSwitches : public EveryBox {};
INSTANTIATE_TEST_SUITE_P(Boxes, EveryBoxThatSwitches,
                         testing::ValuesIn(joined(stored_boxes, passing_boxes)), row_name);

TEST_P(EveryBoxThatSwitches, IsBlueFromTheStartIfItIsOnAndElseBlack) {
    EXPECT_EQ(box.fore_colour.get(), box.value ? colours::blue : colours::black);
}

TEST_P(EveryBoxThatSwitches, IsBlueWhileItIsOnAndBlackWhileItIsOff) {
    box.value = false;
    box.value = true;
    EXPECT_EQ(box.fore_colour.get(), colours::blue);
    box.value = false;
    EXPECT_EQ(box.fore_colour.get(), colours::black);
}

class EveryStoredBox : public EveryBox {
  protected:
    const std::string& memory() { return options().*GetParam().memory; }
    std::string stored() {
        const std::string_view key = GetParam().key.empty() ? GetParam().name : GetParam().key;
        return kit.stored(new_ini, GetParam().section, key);
    }
};
INSTANTIATE_TEST_SUITE_P(Boxes, EveryStoredBox, testing::ValuesIn(stored_boxes), row_name);

TEST_P(EveryStoredBox, IsKeptInMemoryAtOnce) {
    box.value = false;
    box.value = true;
    EXPECT_EQ(memory(), "1");
    box.value = false;
    EXPECT_EQ(memory(), "0");
}

TEST_P(EveryStoredBox, IsWrittenToTheOptionFileAtOnce) {
    box.value = false;
    box.value = true;
    EXPECT_EQ(stored(), "1");
    box.value = false;
    EXPECT_EQ(stored(), "0");
}

TEST_F(OptionTest, TheBoxOfTheCallWithItsPortablePartCannotBeSwitchedOff) {
    screen.Check23.value = false;
    EXPECT_TRUE(screen.Check23.value);
    EXPECT_EQ(options().Check23, "1");
    EXPECT_EQ(kit.stored_option("Check23"), "1");
    EXPECT_EQ(screen.Check23.fore_colour.get(), colours::blue);
}

TEST_F(OptionTest, BoxesForOneRunAreTakenByTheRun) {
    screen.Check27.value = true;
    screen.Check28.value = true;
    const RunOptions on = take_options(*kit.program);
    EXPECT_TRUE(on.Check27);
    EXPECT_TRUE(on.Check28);
    screen.Check27.value = false;
    EXPECT_FALSE(take_options(*kit.program).Check27);
}

TEST_F(OptionTest, BoxesForOneRunAreClearedByIt) {
    kit.put_text("C:\\log\\x.all", sample_all_log);
    kit.open("C:\\log\\x.all");
    screen.Check27.value = true;
    screen.Check28.value = true;
    screen.cmdStart.press();
    EXPECT_FALSE(screen.Check27.value);
    EXPECT_FALSE(screen.Check28.value);
    EXPECT_EQ(screen.Check27.fore_colour.get(), colours::black);
}

// A change is seen by a run right after it.
TEST_F(OptionTest, EveryBoxIsTakenByARunAsItStands) {
    for (const SwitchOption& row : switch_options()) {
        CheckBox& box = screen.*row.control;
        if (row.option == nullptr || &box == &screen.Check23) {
            continue;
        }
        box.value = !box.value.get();
        EXPECT_EQ(take_options(*kit.program).*row.option, box.value.get()) << box.name();
    }
}

// --- radio groups ---

struct GroupRow {
    const char* name;
    OptionGroup MainScreen::*group;
    std::string OptionSettings::*memory;
    std::vector<std::string> captions;
};
void PrintTo(const GroupRow& row, std::ostream* out) {
    *out << row.name;
}

const std::string shown_first = "起動時に最上部表示する。";
const std::vector<GroupRow> groups{
    {"Option01", &MainScreen::Option01, &OptionSettings::Option01, {"新 Hamlog.hdb"}},
    {"Option07",
     &MainScreen::Option07,
     &OptionSettings::Option07,
     {"この機能は無効にする", "QSO 済みの局", "QSL発行済みの局", "QSL受領済みの局"}},
    {"Option02",
     &MainScreen::Option02,
     &OptionSettings::Option02,
     {"使用しない", "hl_code.mas", "個別 DAT 等", "yubin_m?"}},
    {"Option03", &MainScreen::Option03, &OptionSettings::Option03, {"自動", "手動"}},
    {"Option04", &MainScreen::Option04, &OptionSettings::Option04, {"しない", "する"}},
    {"Option05", &MainScreen::Option05, &OptionSettings::Option05, {"分ける", "分けない"}},
    {"Option06",
     &MainScreen::Option06,
     &OptionSettings::Option06,
     {"Call > Band > Mode > Date > Time", "Call > Date > Time > Band > Mode"}},
    {"Option09",
     &MainScreen::Option09,
     &OptionSettings::Option09,
     {"ASCII 順", "JARL順", "JARL逆順"}},
    {"Option08",
     &MainScreen::Option08,
     &OptionSettings::Option08,
     {"無変換", "全て J", "全て U", "DX 局 U", "ＪＡ 局 Ｊ"}},
    {"Option1", &MainScreen::Option1, &OptionSettings::Option1, {"U", "J"}},
    {"Option4", &MainScreen::Option4, &OptionSettings::Option4, {"左側", "右側", "左側", "右側"}},
    {"Option2",
     &MainScreen::Option2,
     &OptionSettings::Option2,
     {shown_first, shown_first, shown_first}},
    {"Option22",
     &MainScreen::Option22,
     &OptionSettings::Option22,
     {shown_first, shown_first, shown_first, shown_first}},
};

class EveryGroup : public OptionTest, public testing::WithParamInterface<GroupRow> {
  protected:
    // Every button once, each coming on from another one or from none.
    void for_every_button(const std::function<void(int button)>& look) {
        for (int button = 0; button < static_cast<int>(GetParam().captions.size()); ++button) {
            if (group.index == button) {
                group.index = button == 0 ? OptionGroup::none : 0;
            }
            group.index = button;
            SCOPED_TRACE(button);
            look(button);
        }
    }
    std::vector<Colour> colours_shown() {
        std::vector<Colour> shown;
        for (const OptionGroup::Button& button : group.buttons.get()) {
            shown.push_back(button.fore_colour);
        }
        return shown;
    }
    std::vector<Colour> blue_alone(int chosen) {
        std::vector<Colour> wanted(group.buttons.get().size(), colours::black);
        wanted.at(static_cast<std::size_t>(chosen)) = colours::blue;
        return wanted;
    }

    OptionGroup& group = screen.*GetParam().group;
};
INSTANTIATE_TEST_SUITE_P(Groups, EveryGroup, testing::ValuesIn(groups),
                         [](const testing::TestParamInfo<GroupRow>& row) {
                             return std::string(row.param.name);
                         });

TEST_P(EveryGroup, HasItsButtons) {
    std::vector<std::string> captions;
    for (const OptionGroup::Button& button : group.buttons.get()) {
        captions.push_back(button.caption);
    }
    EXPECT_EQ(captions, GetParam().captions);
}

TEST_P(EveryGroup, ChosenButtonIsBlueFromTheStart) {
    ASSERT_NE(group.index.get(), OptionGroup::none);
    EXPECT_EQ(colours_shown(), blue_alone(group.index));
}

TEST_P(EveryGroup, ChosenButtonAloneIsBlue) {
    for_every_button([&](int button) { EXPECT_EQ(colours_shown(), blue_alone(button)); });
}

TEST_P(EveryGroup, ClearsTheStatusAndTheMessage) {
    screen.lblCFG.show("処 理 終 了", colours::blue);
    screen.lblMsg.caption = "an old message";
    const int other = group.index == 0 ? 1 : 0;
    group.index = GetParam().captions.size() == 1 ? OptionGroup::none : other;
    group.index = 0;
    EXPECT_EQ(screen.lblCFG.caption.get(), "");
    EXPECT_EQ(screen.lblMsg.caption.get(), "");
}

TEST_P(EveryGroup, IndexIsKeptInMemoryAtOnce) {
    for_every_button(
        [&](int button) { EXPECT_EQ(options().*GetParam().memory, std::to_string(button)); });
}

// One group is read from the file and never written.
TEST_P(EveryGroup, IndexIsWrittenToTheOptionFileAtOnce) {
    for_every_button([&](int button) {
        const bool written = GetParam().group != &MainScreen::Option4;
        EXPECT_EQ(kit.stored_option(GetParam().name), written ? std::to_string(button) : "");
    });
}

TEST_P(EveryGroup, IsTakenByARunAsItStands) {
    const auto rows = group_options();
    const auto row = std::find_if(rows.begin(), rows.end(), [](const GroupOption& option) {
        return option.control == GetParam().group;
    });
    ASSERT_NE(row, rows.end());
    for_every_button(
        [&](int button) { EXPECT_EQ(take_options(*kit.program).*row->option, button); });
}

TEST_F(OptionTest, TheTimeRuleIsWrittenToBothOptionFiles) {
    screen.Option08.index = 3;
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Option08"), "3");
    EXPECT_EQ(kit.stored_option("Option08"), "3");
}

TEST_F(OptionTest, OtherOptionsLeaveTheSnapshotAsItWas) {
    screen.Option06.index = 1;
    screen.Check06.value = true;
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Option06"), "0");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Check06"), "0");
}

TEST_F(OptionTest, ARunTakesASnapshotOfTheOptions) {
    kit.put_text("C:\\log\\x.all", sample_all_log);
    kit.open("C:\\log\\x.all");
    screen.Check06.value = true;
    screen.cmdStart.press();
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Check06"), "1");
}

TEST_F(OptionTest, MenuAndToolbarWriteTheOptionFile) {
    for (CommandButton* const button : {static_cast<CommandButton*>(&screen.make_ini),
                                        static_cast<CommandButton*>(&screen.tool_make_ini)}) {
        kit.memory.remove("C:\\veldrana\\Veldrana_new.ini");
        button->press();
        EXPECT_EQ(kit.stored_option("restart"), "restart") << button->name();
        EXPECT_EQ(kit.stored_option("Check4"), "1") << button->name();
    }
}

// --- qth_mas ---

class QthMasFields : public OptionTest {
  protected:
    std::vector<CheckBox*> fields{&screen.Check4, &screen.Check5, &screen.Check6, &screen.Check7,
                                  &screen.Check16};
};

TEST_F(QthMasFields, AreEnabledWhileTheMasterIsUsed) {
    screen.Check14.value = true;
    for (const CheckBox* const field : fields) {
        EXPECT_TRUE(field->enabled) << field->name();
    }
}

TEST_F(QthMasFields, AreDisabledWhileTheMasterIsNotUsed) {
    screen.Check14.value = true;
    screen.Check14.value = false;
    for (const CheckBox* const field : fields) {
        EXPECT_FALSE(field->enabled) << field->name();
    }
}

TEST_F(QthMasFields, KeepTheirValuesWhileTheyAreDisabled) {
    screen.Check14.value = true;
    screen.Check14.value = false;
    EXPECT_TRUE(screen.Check4.value);
    EXPECT_FALSE(screen.Check7.value);
}

// --- text data ---

class TextDataFields : public OptionTest {
  protected:
    std::vector<CheckBox*> fields{&screen.Check9, &screen.Check11, &screen.Check12, &screen.Check13,
                                  &screen.Check17};
};

TEST_F(TextDataFields, AreDisabledFromTheStartIfTheDataAreNotUsed) {
    for (const CheckBox* const field : fields) {
        EXPECT_FALSE(field->enabled) << field->name();
    }
}

TEST_F(TextDataFields, AreEnabledWhileTheDataAreUsed) {
    screen.Check8.value = true;
    for (const CheckBox* const field : fields) {
        EXPECT_TRUE(field->enabled) << field->name();
    }
}

TEST_F(TextDataFields, AreDisabledAgainBehindThem) {
    screen.Check8.value = true;
    screen.Check8.value = false;
    for (const CheckBox* const field : fields) {
        EXPECT_FALSE(field->enabled) << field->name();
    }
}

// The screen of a station with the user texts that a test gives it.
class UserTexts : public testing::Test {
  protected:
    OptionSettings& options() { return kit.program->settings.options; }
    ProgramKit kit;
    MainScreen& screen = kit.screen();
};

TEST_F(UserTexts, UseOfTheDataTurnsTheOnlyFileAOn) {
    set_user_text_a(kit);
    kit.start();
    screen.Check8.value = true;
    EXPECT_TRUE(screen.Check4_A.value);
    EXPECT_FALSE(screen.Check4_B.value);
    EXPECT_EQ(kit.stored_option("Check4_A"), "1");
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(UserTexts, UseOfTheDataTurnsTheOnlyFileBOn) {
    set_user_text_b(kit);
    kit.start();
    screen.Check8.value = true;
    EXPECT_FALSE(screen.Check4_A.value);
    EXPECT_TRUE(screen.Check4_B.value);
    EXPECT_EQ(kit.stored_option("Check4_B"), "1");
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(UserTexts, UseOfTheDataChoosesNoneOfTwo) {
    set_user_text_a(kit);
    set_user_text_b(kit);
    kit.start();
    screen.Check8.value = true;
    EXPECT_FALSE(screen.Check4_A.value);
    EXPECT_FALSE(screen.Check4_B.value);
    EXPECT_TRUE(screen.Check8.value);
}

TEST_F(UserTexts, UseOfTheDataChoosesNothingWithoutAFile) {
    kit.start();
    screen.Check8.value = true;
    EXPECT_FALSE(screen.Check4_A.value);
    EXPECT_FALSE(screen.Check4_B.value);
}

TEST_F(UserTexts, ExcludeEachOther) {
    set_user_text_a(kit);
    set_user_text_b(kit);
    kit.start();
    screen.Check4_A.value = true;
    screen.Check4_B.value = true;
    EXPECT_FALSE(screen.Check4_A.value);
    EXPECT_EQ(kit.stored_option("Check4_A"), "0");
    EXPECT_EQ(kit.stored_option("Check4_B"), "1");
    screen.Check4_A.value = true;
    EXPECT_FALSE(screen.Check4_B.value);
    EXPECT_EQ(kit.stored_option("Check4_A"), "1");
    EXPECT_EQ(kit.stored_option("Check4_B"), "0");
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// Both sides, each seen from itself.
struct UserTextRow {
    const char* name;
    CheckBox MainScreen::*box;
    CheckBox MainScreen::*other_box;
    CommandButton MainScreen::*button;
    std::string OptionSettings::*path;
    std::string_view key;
    std::string_view other_key;
    std::string_view file;
    std::string_view other_file;
    std::string_view shown;
};
void PrintTo(const UserTextRow& row, std::ostream* out) {
    *out << row.name;
}
const UserTextRow side_a{"A",
                         &MainScreen::Check4_A,
                         &MainScreen::Check4_B,
                         &MainScreen::cmdSet_UserTxt_A,
                         &OptionSettings::Text_data_dir_A,
                         "Text_data_dir_A",
                         "Text_data_dir_B",
                         user_text_a,
                         user_text_b,
                         "alpha"};
const UserTextRow side_b{"B",
                         &MainScreen::Check4_B,
                         &MainScreen::Check4_A,
                         &MainScreen::cmdSet_UserTxt_B,
                         &OptionSettings::Text_data_dir_B,
                         "Text_data_dir_B",
                         "Text_data_dir_A",
                         user_text_b,
                         user_text_a,
                         "bravo"};

class UserTextSide : public UserTexts, public testing::WithParamInterface<UserTextRow> {
  protected:
    void set_own() {
        kit.put_text(GetParam().file, user_text_bytes);
        put_option(kit, GetParam().key, GetParam().file);
    }
    void set_other() {
        kit.put_text(GetParam().other_file, user_text_bytes);
        put_option(kit, GetParam().other_key, GetParam().other_file);
    }
    // Presses the button of the side and chooses this file.
    void choose(std::string_view path) {
        kit.person.files = {std::string(path)};
        button.press();
    }
    std::string& path() { return options().*GetParam().path; }

    CheckBox& box = screen.*GetParam().box;
    CheckBox& other_box = screen.*GetParam().other_box;
    CommandButton& button = screen.*GetParam().button;
};
INSTANTIATE_TEST_SUITE_P(Sides, UserTextSide, testing::Values(side_a, side_b),
                         [](const testing::TestParamInfo<UserTextRow>& row) {
                             return std::string(row.param.name);
                         });

TEST_P(UserTextSide, BoxWithoutAPathIsTakenBackWithAMessage) {
    kit.start();
    box.value = true;
    EXPECT_FALSE(box.value);
    EXPECT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.stored_option(box.name()), "0");
}

TEST_P(UserTextSide, DataGoOffWithTheOnlyBoxTakenBack) {
    kit.start();
    screen.Check8.value = true;
    box.value = true;
    EXPECT_FALSE(screen.Check8.value);
    EXPECT_EQ(kit.stored_option("Check8"), "0");
}

TEST_P(UserTextSide, BoxTakenBackLeavesTheOtherSideAndTheDataOn) {
    set_other();
    kit.start();
    screen.Check8.value = true;
    ASSERT_TRUE(other_box.value);
    box.value = true;
    EXPECT_FALSE(box.value);
    EXPECT_TRUE(other_box.value);
    EXPECT_TRUE(screen.Check8.value);
}

TEST_P(UserTextSide, PathThatNoLongerExistsIsToldAndCleared) {
    set_own();
    kit.start();
    kit.memory.remove(GetParam().file);
    box.value = true;
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text,
              std::string(GetParam().file) +
                  " が有りません！　設定内容をクリアします。　必要なら再設定して下さい。");
    EXPECT_FALSE(box.value);
    EXPECT_EQ(path(), "");
    EXPECT_EQ(kit.stored_option(GetParam().key), "");
    EXPECT_EQ(button.caption.get(), "使用なら要 set");
}

TEST_P(UserTextSide, DataGoOffWhenTheOnlyPathIsCleared) {
    set_own();
    kit.start();
    kit.memory.remove(GetParam().file);
    screen.Check8.value = true;
    EXPECT_FALSE(box.value);
    EXPECT_FALSE(screen.Check8.value);
    EXPECT_EQ(kit.stored_option("Check8"), "0");
    EXPECT_FALSE(screen.Check9.enabled);
}

TEST_P(UserTextSide, DialogAsksForUserTexts) {
    kit.start();
    choose("");
    ASSERT_THAT(kit.person.dialogs, SizeIs(1));
    EXPECT_EQ(kit.person.dialogs[0].filter, "ﾕｰｻﾞｰﾃｷｽﾄﾌｧｲﾙ ( *.txt )|*.txt");
}

TEST_P(UserTextSide, GoodFileIsShownByItsBareName) {
    kit.put_text(GetParam().file, user_text_bytes);
    kit.start();
    choose(GetParam().file);
    EXPECT_EQ(button.caption.get(), GetParam().shown);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_P(UserTextSide, GoodFileIsStoredAtOnce) {
    kit.put_text(GetParam().file, user_text_bytes);
    kit.start();
    choose(GetParam().file);
    EXPECT_EQ(path(), GetParam().file);
    EXPECT_EQ(kit.stored_option(GetParam().key), GetParam().file);
    EXPECT_EQ(kit.stored_option(GetParam().other_key), "");
}

TEST_P(UserTextSide, ExtensionInUpperCaseIsLeftOutToo) {
    kit.put_text("C:\\hamlog\\MASTER.TXT", user_text_bytes);
    kit.start();
    choose("C:\\hamlog\\MASTER.TXT");
    EXPECT_EQ(button.caption.get(), "MASTER");
}

// Only ".txt" and ".TXT" are known.
TEST_P(UserTextSide, ExtensionInMixedCaseStays) {
    kit.put_text("C:\\hamlog\\Master.Txt", user_text_bytes);
    kit.start();
    choose("C:\\hamlog\\Master.Txt");
    EXPECT_EQ(button.caption.get(), "Master.Txt");
}

TEST_P(UserTextSide, FileWithAnotherSecondLineIsRefused) {
    kit.put_text("C:\\log\\other.txt", sample_txt_log);
    kit.start();
    choose("C:\\log\\other.txt");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text, "Ｈａｍｌｏｇのユーザー・テキスト形式ではありません！");
    EXPECT_EQ(kit.stored_option(GetParam().key), "");
    EXPECT_EQ(button.caption.get(), "使用なら要 set");
}

TEST_P(UserTextSide, HeadingInTheFirstOrThirdLineDoesNotCount) {
    kit.put_text("C:\\log\\other.txt",
                 "|ｺｰﾙｻｲﾝ|__氏  名___|\r\nsomething\r\n|ｺｰﾙｻｲﾝ|__氏  名___|\r\n");
    kit.start();
    choose("C:\\log\\other.txt");
    EXPECT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.stored_option(GetParam().key), "");
}

// The heading has two blanks between its characters, and a bar behind it.
TEST_P(UserTextSide, HeadingOfAnotherSpellingDoesNotCount) {
    for (const char* const heading :
         {"|ｺｰﾙｻｲﾝ|__氏 名___|", "|ｺｰﾙｻｲﾝ|__氏  名___", "ｺｰﾙｻｲﾝ,氏名"}) {
        ProgramKit other;
        other.put_text("C:\\log\\other.txt", std::string("x\r\n") + heading + "\r\n");
        other.start();
        other.person.files = {"C:\\log\\other.txt"};
        (other.screen().*GetParam().button).press();
        EXPECT_EQ(other.stored_option(GetParam().key), "") << heading;
    }
}

TEST_P(UserTextSide, RefusedFileTakesTheBoxBack) {
    set_own();
    kit.put_text("C:\\log\\other.txt", sample_txt_log);
    kit.start();
    box.value = true;
    choose("C:\\log\\other.txt");
    EXPECT_FALSE(box.value);
    EXPECT_EQ(kit.stored_option(box.name()), "0");
}

TEST_P(UserTextSide, FileOfOneLineIsNotTaken) {
    kit.put_text("C:\\log\\short.txt", "|ｺｰﾙｻｲﾝ|__氏  名___|\r\n");
    kit.start();
    choose("C:\\log\\short.txt");
    EXPECT_EQ(path(), "");
    EXPECT_EQ(kit.stored_option(GetParam().key), "");
}

TEST_P(UserTextSide, CancelledDialogChangesNothing) {
    set_own();
    kit.start();
    box.value = true;
    choose("");
    EXPECT_EQ(path(), GetParam().file);
    EXPECT_EQ(kit.stored_option(GetParam().key), GetParam().file);
    EXPECT_EQ(button.caption.get(), GetParam().shown);
    EXPECT_TRUE(box.value);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_P(UserTextSide, BoxComesOnOnceAFileWasChosen) {
    kit.put_text(GetParam().file, user_text_bytes);
    kit.start();
    choose(GetParam().file);
    box.value = true;
    EXPECT_TRUE(box.value);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// --- marks of whole stations ---

TEST_F(OptionTest, TurnToTheTransferMarkTakesTheTurnToNOff) {
    screen.Check3.value = true;
    screen.Check2.value = true;
    EXPECT_FALSE(screen.Check3.value);
    EXPECT_EQ(kit.stored_option("Check3"), "0");
    EXPECT_EQ(kit.stored_option("Check2"), "1");
}

TEST_F(OptionTest, TurnToNTakesTheTurnToTheTransferMarkOff) {
    screen.Check2.value = true;
    screen.Check3.value = true;
    EXPECT_FALSE(screen.Check2.value);
    EXPECT_EQ(kit.stored_option("Check2"), "0");
    EXPECT_EQ(kit.stored_option("Check3"), "1");
}

TEST_F(OptionTest, NeitherTurnIsAllowedToo) {
    screen.Check2.value = true;
    screen.Check2.value = false;
    EXPECT_FALSE(screen.Check2.value);
    EXPECT_FALSE(screen.Check3.value);
}

// --- orders ---

TEST_F(OptionTest, StationsApartLeaveNoChoiceOfTheOrder) {
    screen.Option05.index = 1;
    screen.Option05.index = 0;
    for (std::size_t button = 0; button < 3; ++button) {
        EXPECT_FALSE(is_enabled(screen.Option09, button)) << button;
    }
    EXPECT_FALSE(screen.Check08.enabled);
}

TEST_F(OptionTest, StationsTogetherLeaveTheChoiceOfTheOrder) {
    screen.Option05.index = 1;
    for (std::size_t button = 0; button < 3; ++button) {
        EXPECT_TRUE(is_enabled(screen.Option09, button)) << button;
    }
    EXPECT_TRUE(screen.Check08.enabled);
}

// --- No QSL ---

TEST_F(OptionTest, WithoutTheNoQslRuleItsChoicesAreDisabled) {
    screen.Option07.index = 1;
    screen.Option07.index = 0;
    EXPECT_FALSE(is_enabled(screen.Option01, 0));
    EXPECT_FALSE(screen.Check19.enabled);
    EXPECT_FALSE(screen.Check20.enabled);
}

TEST_F(OptionTest, EveryNoQslRuleEnablesItsChoices) {
    for (const int rule : {1, 2, 3}) {
        screen.Option07.index = 0;
        screen.Option07.index = rule;
        EXPECT_TRUE(is_enabled(screen.Option01, 0)) << rule;
        EXPECT_TRUE(screen.Check19.enabled) << rule;
        EXPECT_TRUE(screen.Check20.enabled) << rule;
    }
}

TEST_F(OptionTest, EveryNoQslRuleSelectsTheLogBook) {
    for (const int rule : {1, 2, 3}) {
        screen.Option07.index = 0;
        screen.Option01.index = OptionGroup::none;
        screen.Option07.index = rule;
        EXPECT_EQ(screen.Option01.index, 0) << rule;
    }
}

// --- contest data ---

const std::string ask_for_dat_text = "ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。";

TEST_F(OptionTest, ContestDataWithoutAFileAskForOneInRed) {
    screen.Option02.index = 2;
    for (const Label* const label : {&screen.lblDatName, &screen.Label37}) {
        EXPECT_EQ(label->caption.get(), ask_for_dat_text) << label->name();
        EXPECT_EQ(label->fore_colour.get(), colours::red) << label->name();
    }
}

TEST_F(OptionTest, ContestDataBringTheirChoicesToLife) {
    screen.Option02.index = 2;
    EXPECT_TRUE(screen.Frame11.enabled);
    for (std::size_t button = 0; button < 2; ++button) {
        EXPECT_TRUE(is_enabled(screen.Option03, button)) << button;
        EXPECT_TRUE(is_enabled(screen.Option04, button)) << button;
    }
    EXPECT_TRUE(screen.tool_dat_by_hand.enabled);
    EXPECT_TRUE(screen.tool_dat_by_contest.enabled);
    EXPECT_TRUE(screen.mnuOpenDat_mnu.enabled);
    EXPECT_TRUE(screen.mnuOpenDat_semi.enabled);
}

TEST_F(OptionTest, ContestDataAloneLeaveTheChoiceOfAFile) {
    for (const int source : {0, 1, 3}) {
        screen.Option02.index = 2;
        screen.Option02.index = source;
        EXPECT_FALSE(is_enabled(screen.Option03, 0)) << source;
        EXPECT_FALSE(is_enabled(screen.Option03, 1)) << source;
        EXPECT_FALSE(screen.tool_dat_by_hand.enabled) << source;
        EXPECT_FALSE(screen.tool_dat_by_contest.enabled) << source;
    }
}

TEST_F(OptionTest, WithoutACodeSourceTheMenusOfContestDataRest) {
    screen.Option02.index = 2;
    screen.Option02.index = 0;
    EXPECT_FALSE(screen.mnuOpenDat_mnu.enabled);
    EXPECT_FALSE(screen.mnuOpenDat_semi.enabled);
}

TEST_F(OptionTest, WithoutACodeSourceTheChoicesOfContestDataRest) {
    screen.Option02.index = 2;
    screen.Option02.index = 0;
    EXPECT_FALSE(screen.Frame11.enabled);
    EXPECT_FALSE(is_enabled(screen.Option04, 0));
    EXPECT_FALSE(is_enabled(screen.Option04, 1));
}

TEST_F(OptionTest, ContestDataWithoutAFileCannotBeLookedAt) {
    screen.Option02.index = 2;
    EXPECT_FALSE(screen.mnuDisp_dat.enabled);
    EXPECT_FALSE(screen.cmdDisp_dat.enabled);
}

// A contest data file is chosen.
class ContestData : public testing::Test {
  protected:
    ContestData() {
        kit.put_text("C:\\zLog\\acag.dat", "heading\r\n100101     Chiyoda\r\n");
        put_value(kit, dat_ini, "DAT_MAS", "set_dat_in_name", "C:\\zLog\\acag.dat");
        kit.start();
    }
    ProgramKit kit;
    MainScreen& screen = kit.screen();
};

TEST_F(ContestData, ThatAreChosenAreNotAskedFor) {
    screen.Option02.index = 2;
    EXPECT_NE(screen.lblDatName.caption.get(), ask_for_dat_text);
    EXPECT_NE(screen.Label37.caption.get(), ask_for_dat_text);
}

TEST_F(ContestData, ThatAreChosenCanBeLookedAt) {
    screen.Option02.index = 2;
    EXPECT_TRUE(screen.mnuDisp_dat.enabled);
    EXPECT_TRUE(screen.cmdDisp_dat.enabled);
}

TEST_F(ContestData, StayChosenWhileAnotherSourceIsLookedAt) {
    screen.Option02.index = 2;
    screen.Option02.index = 1;
    screen.Option02.index = 2;
    EXPECT_EQ(kit.program->settings.set_dat_in_name, "C:\\zLog\\acag.dat");
    EXPECT_EQ(kit.stored(dat_ini, "DAT_MAS", "set_dat_in_name"), "C:\\zLog\\acag.dat");
    EXPECT_NE(screen.lblDatName.caption.get(), ask_for_dat_text);
    EXPECT_TRUE(has_dat(*kit.program));
}

// --- priority labels ---

Colour colour_of(const RankLabels& labels, std::string_view source) {
    for (const Label& label : labels) {
        if (label.caption.get() == source) {
            return label.fore_colour;
        }
    }
    ADD_FAILURE() << "no label shows " << source;
    return {};
}

constexpr Colour dat_mas_colour{16711680};
constexpr Colour name_mas_colour{16776960};
constexpr Colour qth_mas_colour{32768};
constexpr Colour text_data_colour{16711935};
constexpr Colour off_colour = colours::grey;

// A source of a field, and the box that takes the field from it.
struct RankRow {
    const char* name;
    RankLabels MainScreen::*labels;
    std::string_view source;
    Colour colour;
    CheckBox MainScreen::*box;
};
void PrintTo(const RankRow& row, std::ostream* out) {
    *out << row.name;
}

class RankOfABox : public OptionTest, public testing::WithParamInterface<RankRow> {
  protected:
    RankOfABox() {
        screen.Check14.value = true;
        screen.Check4_A.value = true;
        screen.Check8.value = true;
        box.value = false;
    }
    Colour shown() { return colour_of(screen.*GetParam().labels, GetParam().source); }
    CheckBox& box = screen.*GetParam().box;
};
INSTANTIATE_TEST_SUITE_P(
    Ranks, RankOfABox,
    testing::Values(RankRow{"NameFromNameMas", &MainScreen::lblName, "name_mas", name_mas_colour,
                            &MainScreen::Check03},
                    RankRow{"CodeFromNameMas", &MainScreen::lblCode, "name_mas", name_mas_colour,
                            &MainScreen::Check03},
                    RankRow{"QthFromNameMas", &MainScreen::lblQth, "name_mas", name_mas_colour,
                            &MainScreen::Check03},
                    RankRow{"NameFromQthMas", &MainScreen::lblName, "qth_mas", qth_mas_colour,
                            &MainScreen::Check6},
                    RankRow{"CodeFromQthMas", &MainScreen::lblCode, "qth_mas", qth_mas_colour,
                            &MainScreen::Check4},
                    RankRow{"QthFromQthMas", &MainScreen::lblQth, "qth_mas", qth_mas_colour,
                            &MainScreen::Check7},
                    RankRow{"NameFromTextData", &MainScreen::lblName, "Text_data", text_data_colour,
                            &MainScreen::Check11},
                    RankRow{"CodeFromTextData", &MainScreen::lblCode, "Text_data", text_data_colour,
                            &MainScreen::Check13},
                    RankRow{"QthFromTextData", &MainScreen::lblQth, "Text_data", text_data_colour,
                            &MainScreen::Check9}),
    [](const testing::TestParamInfo<RankRow>& row) { return std::string(row.param.name); });

TEST_P(RankOfABox, HasTheColourOfItsSourceWhileTheFieldIsTaken) {
    box.value = true;
    EXPECT_EQ(shown(), GetParam().colour);
}

TEST_P(RankOfABox, HasTheColourOfOffWhileTheFieldIsNotTaken) {
    box.value = true;
    box.value = false;
    EXPECT_EQ(shown(), off_colour);
}

TEST_P(RankOfABox, LeavesTheLabelsOfOtherSourcesAlone) {
    const auto others = [&] {
        std::vector<Colour> found;
        for (const RankLabels* const labels : {&screen.lblName, &screen.lblCode, &screen.lblQth}) {
            for (const Label& label : *labels) {
                if (label.caption.get() != GetParam().source) {
                    found.push_back(label.fore_colour);
                }
            }
        }
        return found;
    };
    const std::vector<Colour> before = others();
    box.value = true;
    EXPECT_EQ(others(), before);
}

TEST_F(OptionTest, RanksOfContestDataFollowTheChoiceToTakeTheCode) {
    screen.Option04.index = 1;
    EXPECT_EQ(colour_of(screen.lblCode, "dat_mas"), dat_mas_colour);
    EXPECT_EQ(colour_of(screen.lblQth, "dat_mas"), dat_mas_colour);
    screen.Option04.index = 0;
    EXPECT_EQ(colour_of(screen.lblCode, "dat_mas"), off_colour);
    EXPECT_EQ(colour_of(screen.lblQth, "dat_mas"), off_colour);
}

// Contest data give no names.
TEST_F(OptionTest, RankOfContestDataAmongTheNamesDoesNotFollowIt) {
    const Colour before = colour_of(screen.lblName, "dat_mas");
    screen.Option04.index = 1;
    EXPECT_EQ(colour_of(screen.lblName, "dat_mas"), before);
}

// The boxes of the fields rest while their source is not used at all.
TEST_F(OptionTest, RanksOfQthMasAreOffWhileItIsNotUsed) {
    screen.Check7.value = true;
    screen.Check14.value = true;
    EXPECT_EQ(colour_of(screen.lblCode, "qth_mas"), qth_mas_colour);
    screen.Check14.value = false;
    EXPECT_EQ(colour_of(screen.lblName, "qth_mas"), off_colour);
    EXPECT_EQ(colour_of(screen.lblCode, "qth_mas"), off_colour);
    EXPECT_EQ(colour_of(screen.lblQth, "qth_mas"), off_colour);
}

TEST_F(OptionTest, RanksOfTextDataAreOffWhileTheyAreNotUsed) {
    screen.Check11.value = true;
    screen.Check4_A.value = true;
    screen.Check8.value = true;
    EXPECT_EQ(colour_of(screen.lblName, "Text_data"), text_data_colour);
    screen.Check8.value = false;
    EXPECT_EQ(colour_of(screen.lblName, "Text_data"), off_colour);
}

// Whatever its place in the list.
TEST(RankLabelsOfAnotherOrder, FollowTheirSource) {
    ProgramKit kit;
    use_all_masters(kit);
    put_value(kit, new_ini, "DAT_MAS", "name_yusen_jun", "Text_data,qth_mas,dat_mas,name_mas");
    put_value(kit, new_ini, "DAT_MAS", "name_mas_color", "255");
    kit.start();
    MainScreen& screen = kit.screen();
    screen.Check03.value = true;
    EXPECT_EQ(screen.lblName[3].caption.get(), "name_mas");
    EXPECT_EQ(screen.lblName[3].fore_colour.get(), Colour{255});
    EXPECT_EQ(screen.lblName[0].fore_colour.get(), off_colour);
    screen.Check03.value = false;
    EXPECT_EQ(screen.lblName[3].fore_colour.get(), off_colour);
}

// --- text fields ---

TEST_F(OptionTest, TransferMarkIsTheFirstCharacter) {
    screen.txtQSL_Q.text = "BX";
    EXPECT_EQ(options().QSL_Q, "B");
    EXPECT_EQ(kit.stored_option("QSL_Q"), "B");
    EXPECT_EQ(take_options(*kit.program).txtQSL_Q, "B");
}

TEST_F(OptionTest, SentMarkIsTheFirstCharacter) {
    screen.txtQSL_S.text = "+-";
    EXPECT_EQ(options().QSL_S, "+");
    EXPECT_EQ(kit.stored_option("QSL_S"), "+");
    EXPECT_EQ(take_options(*kit.program).txtQSL_S, "+");
}

TEST_F(OptionTest, AMarkMayBeADoubleByteCharacter) {
    screen.txtQSL_Q.text = "済み";
    EXPECT_EQ(options().QSL_Q, "済");
    EXPECT_EQ(kit.stored_option("QSL_Q"), "済");
}

TEST_F(OptionTest, YearIsTheFirstFourCharacters) {
    screen.txtYYYY.text = "20251";
    EXPECT_EQ(options().YYYY, "2025");
    EXPECT_EQ(kit.stored_option("YYYY"), "2025");
    EXPECT_EQ(take_options(*kit.program).txtYYYY, "2025");
}

TEST_F(OptionTest, ButtonFillsInTheYearOfToday) {
    screen.txtYYYY.text = "1999";
    screen.cmdNow.press();
    EXPECT_EQ(screen.txtYYYY.text.get(), "2026");
    EXPECT_EQ(kit.stored_option("YYYY"), "2026");
}

TEST_F(OptionTest, AnotherOperatorTakesTheRedAway) {
    screen.Check15.fore_colour = colours::red;
    screen.txtOp_name.fore_colour = colours::red;
    screen.txtOp_name.text = "JA1ZZX";
    EXPECT_EQ(screen.Check15.fore_colour.get(), colours::black);
    EXPECT_EQ(screen.txtOp_name.fore_colour.get(), colours::black);
}

TEST_F(OptionTest, RemarkCommentsAndTheOperatorAreTakenTrimmed) {
    screen.txtRmks1.text = " 5W ";
    screen.txtRmks2.text = "  TNX QSO";
    screen.txtOp_name.text = "JA1ZZX  ";
    const RunOptions taken = take_options(*kit.program);
    EXPECT_EQ(taken.txtRmks1, "5W");
    EXPECT_EQ(taken.txtRmks2, "TNX QSO");
    EXPECT_EQ(taken.txtOp_name, "JA1ZZX");
}

TEST_F(OptionTest, MarkForMembersIsStored) {
    screen.txtQSL_moji.text = "M";
    EXPECT_EQ(options().QSL_moji, "M");
    EXPECT_EQ(kit.stored(new_ini, "JARL_Search", "QSL_moji"), "M");
}

// --- viewers ---

class Viewers : public testing::Test {
  protected:
    MainScreen screen;
    std::vector<Control*> viewers{&screen.mnuDisp_in,
                                  &screen.cmdDisp_in,
                                  &screen.cmdDisp_contest,
                                  &screen.cmdDisp_Hamlog,
                                  &screen.mnuDisp_con_n,
                                  &screen.mnuDisp_ham_n,
                                  &screen.mnuDisp_Veldrana_Rireki_cfg,
                                  &screen.mnuDisp_Veldrana_rmk1,
                                  &screen.mnuDisp_Veldrana_rmk2,
                                  &screen.mnuDisp_dup};
    std::vector<Control*> member_search{&screen.mnuJARL,
                                        &screen.mnuJARL_Web_OK,
                                        &screen.mnuJARL_Web_NO,
                                        &screen.mnuJARL_Web_OK_conj,
                                        &screen.mnuJARL_Web_OK_hamj,
                                        &screen.mnuJARL_Web_NO_conj,
                                        &screen.mnuJARL_Web_NO_hamj};
};

TEST_F(Viewers, AreDisabledWithoutALog) {
    for (Control* const control : viewers) {
        control->enabled = true;
    }
    screen.disp_enable_f();
    for (const Control* const control : viewers) {
        EXPECT_FALSE(control->enabled) << control->name();
    }
}

TEST_F(Viewers, AreEnabledWithALog) {
    for (Control* const control : viewers) {
        control->enabled = false;
    }
    screen.disp_enable_t();
    for (const Control* const control : viewers) {
        EXPECT_TRUE(control->enabled) << control->name();
    }
}

TEST_F(Viewers, WithoutALogTheMemberSearchAndItsSixEntriesAreDisabled) {
    for (Control* const control : member_search) {
        control->enabled = true;
    }
    screen.disp_enable_f();
    for (const Control* const control : member_search) {
        EXPECT_FALSE(control->enabled) << control->name();
    }
}

TEST_F(Viewers, ALogAloneDoesNotEnableTheMemberSearch) {
    for (Control* const control : member_search) {
        control->enabled = false;
    }
    screen.disp_enable_t();
    for (const Control* const control : member_search) {
        EXPECT_FALSE(control->enabled) << control->name();
    }
}

// --- readiness ---

class Readiness : public testing::Test {
  protected:
    void start_with_dat(bool chosen) {
        kit.put_text("C:\\log\\x.all", sample_all_log);
        if (chosen) {
            kit.put_text("C:\\zLog\\acag.dat", "heading\r\n100101     Chiyoda\r\n");
            put_value(kit, dat_ini, "DAT_MAS", "set_dat_in_name", "C:\\zLog\\acag.dat");
        }
        kit.start();
    }
    void expect_ready(bool ready) {
        EXPECT_EQ(screen.cmdStart.enabled.get(), ready);
        EXPECT_EQ(screen.tool_convert.enabled.get(), ready);
    }
    ProgramKit kit;
    MainScreen& screen = kit.screen();
};

TEST_F(Readiness, NeedsALog) {
    start_with_dat(false);
    expect_ready(false);
    kit.open("C:\\log\\x.all");
    expect_ready(true);
}

TEST_F(Readiness, NeedsContestDataWhereCodesComeFromThem) {
    start_with_dat(false);
    kit.open("C:\\log\\x.all");
    screen.Option02.index = 2;
    expect_ready(false);
}

TEST_F(Readiness, ComesBackWithAnotherCodeSource) {
    start_with_dat(false);
    kit.open("C:\\log\\x.all");
    for (const int source : {0, 1, 3}) {
        screen.Option02.index = 2;
        screen.Option02.index = source;
        expect_ready(true);
    }
}

TEST_F(Readiness, IsThereWithALogAndContestData) {
    start_with_dat(true);
    kit.open("C:\\log\\x.all");
    screen.Option02.index = 2;
    kit.person.files = {"C:\\zLog\\acag.dat"};
    screen.mnuOpenDat_mnu.press();
    expect_ready(true);
}

TEST_F(Readiness, IsNotThereWithContestDataAlone) {
    start_with_dat(true);
    screen.Option02.index = 2;
    expect_ready(false);
}

TEST_F(Readiness, NeedsALogWithEveryCodeSource) {
    start_with_dat(false);
    for (const int source : {1, 3, 0}) {
        screen.Option02.index = source;
        expect_ready(false);
    }
}

// The choice of a contest holds for one log.
TEST_F(Readiness, AnotherLogNeedsItsOwnContestData) {
    start_with_dat(true);
    screen.Option02.index = 2;
    kit.open("C:\\log\\x.all");
    expect_ready(false);
    EXPECT_EQ(screen.lblDatName.caption.get(), ask_for_dat_text);
    EXPECT_FALSE(kit.memory.file_exists("C:\\veldrana\\Veldrana_dat.ini"));
}

TEST_F(Readiness, ALogChosenBehindTheSourceWaitsForContestData) {
    start_with_dat(false);
    screen.Option02.index = 2;
    kit.open("C:\\log\\x.all");
    expect_ready(false);
}

// --- the operator filter ---

TEST(OperatorFilter, HasNoEffectWithoutAnOperator) {
    ProgramKit kit;
    kit.put_text("C:\\log\\x.all", sample_all_log);
    kit.start();
    kit.open("C:\\log\\x.all");
    ASSERT_TRUE(kit.screen().Check15.value);
    ASSERT_EQ(kit.screen().txtOp_name.text.get(), "");
    kit.screen().cmdStart.press();
    EXPECT_EQ(kit.screen().MSFlexGrid1.cell(0, 1).text, "2");
}

TEST(OperatorFilter, HasNoEffectWithABlankOperator) {
    ProgramKit kit;
    kit.put_text("C:\\log\\x.all", sample_all_log);
    kit.start();
    kit.open("C:\\log\\x.all");
    kit.screen().txtOp_name.text = "  ";
    kit.screen().cmdStart.press();
    EXPECT_EQ(kit.screen().MSFlexGrid1.cell(0, 1).text, "2");
}

}  // namespace
}  // namespace veldrana
