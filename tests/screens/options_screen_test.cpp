// The options of a run on the main window: what a click on one shows, and what it does to others.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;
using testing::SizeIs;

constexpr const char* ask_for_dat_text = "ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。";

class OptionsScreen : public DesktopTest {
  protected:
    QCheckBox& box(const std::string& name) { return kit.widget<QCheckBox>(name); }
    QRadioButton& radio(const std::string& group, int index) {
        return kit.widget<QRadioButton>(group + "(" + std::to_string(index) + ")");
    }
    bool is_enabled(const std::string& name) { return kit.widget<QWidget>(name).isEnabled(); }
    bool is_on(const std::string& name) { return box(name).isChecked(); }
    void turn(const std::string& name, bool on) {
        if (is_on(name) != on) {
            kit.click(name);
        }
        ASSERT_EQ(is_on(name), on) << name;
    }
    void choose_user_text(const std::string& button, const fs::path& file) {
        kit.choose(file);
        kit.click(button);
    }
    fs::path friends() { return kit.drive() / "mas" / "友達.txt"; }
    void open_log() { kit.open("mnuOpen", kit.log("allja_sample.all")); }
    void choose_dat() {
        kit.choose(kit.drive() / "zlog" / "allja.dat");
        kit.widget<QAction>("mnuOpenDat_mnu").trigger();
    }
    bool can_start() {
        EXPECT_EQ(is_enabled("cmdStart"), kit.widget<QAction>("変換").isEnabled());
        return is_enabled("cmdStart");
    }
    std::string result(int row) {
        return kit.widget<QTableWidget>("MSFlexGrid1").item(row, 1)->text().trimmed().toStdString();
    }
    // The label of a field's ranks that shows a source.
    QLabel& rank(const std::string& field, const std::string& source) {
        for (int i = 0; i < 4; ++i) {
            auto& label = kit.widget<QLabel>(field + "(" + std::to_string(i) + ")");
            if (label.text().toStdString() == source) {
                return label;
            }
        }
        throw std::runtime_error(source + " has no rank");
    }
    // That of the source as the settings hold it, blue in the highest byte, as it can be read.
    QColor colour_of(const std::string& key, const QLabel& label) {
        const Colour told{
            static_cast<std::uint32_t>(std::stoul(kit.stored("Veldrana_new.ini", key)))};
        return readable(told, label.palette().color(QPalette::Active, label.backgroundRole()));
    }
    // A rank is coloured while its source is on, and not while it is off.
    void expect_follows(QLabel& label, const std::string& colour_key, bool on) {
        if (on) {
            EXPECT_EQ(text_colour(label), colour_of(colour_key, label)) << colour_key;
        } else {
            EXPECT_NE(text_colour(label), colour_of(colour_key, label)) << colour_key;
        }
    }
};

// --- what every option shows ---

TEST_F(OptionsScreen, BoxIsBlueWhileItIsOnAndBlackWhileItIsOff) {
    kit.click("Option05(1)");
    kit.click("Option07(1)");
    turn("Check14", true);
    turn("Check8", true);
    for (const char* const name :
         {"Check01", "Check03", "Check06", "Check07", "Check08", "Check1",  "Check10",
          "Check4",  "Check5",  "Check6",  "Check7",  "Check16", "Check11", "Check13",
          "Check9",  "Check12", "Check17", "Check15", "Check18", "Check19", "Check20",
          "Check2",  "Check3",  "Check21", "Check22", "Check26", "Check27", "Check28",
          "Check31", "Check32", "Check33", "Check14", "Check8"}) {
        for (int press = 0; press < 2; ++press) {
            const bool before = is_on(name);
            kit.click(name);
            ASSERT_NE(is_on(name), before) << name;
            EXPECT_TRUE(is_on(name) ? is_blue(box(name)) : is_black(box(name))) << name;
        }
    }
}

struct Group {
    const char* name;
    int buttons;
};

TEST_F(OptionsScreen, ChosenButtonOfAGroupIsBlueAndTheOthersAreBlack) {
    kit.click("Option02(2)");
    kit.click("Option05(1)");
    kit.click("Option07(1)");
    for (const Group& group :
         {Group{"Option03", 2}, Group{"Option04", 2}, Group{"Option06", 2}, Group{"Option09", 3},
          Group{"Option08", 5}, Group{"Option1", 2}, Group{"Option2", 3}, Group{"Option22", 4},
          Group{"Option4", 4}, Group{"Option05", 2}, Group{"Option07", 4}, Group{"Option02", 4}}) {
        for (int chosen = group.buttons - 1; chosen >= 0; --chosen) {
            kit.click(radio(group.name, chosen));
            for (int i = 0; i < group.buttons; ++i) {
                EXPECT_EQ(radio(group.name, i).isChecked(), i == chosen) << group.name << i;
                EXPECT_TRUE(i == chosen ? is_blue(radio(group.name, i))
                                        : is_black(radio(group.name, i)))
                    << group.name << i << " of " << chosen;
            }
        }
    }
}

TEST_F(OptionsScreen, ResultTextGoesAwayWithAClickOnAnyKindOfOption) {
    open_log();
    for (const char* const option : {"Check06", "Option08(2)"}) {
        kit.click("cmdStart");
        ASSERT_EQ(kit.text("lblCFG"), "処 理 終 了") << option;
        kit.click(option);
        EXPECT_EQ(kit.text("lblCFG"), "") << option;
        EXPECT_EQ(kit.text("lblMsg"), "") << option;
    }
}

TEST_F(OptionsScreen, NoteOfTheStartGoesAwayWithAClickOnAnOption) {
    kit.end();
    // A numbered name master: the program says that it will take its time.
    fs::copy_file(kit.drive() / "mas" / "name_mas.txt", kit.drive() / "mas" / "name_mas1.txt");
    ASSERT_TRUE(kit.start());
    ASSERT_NE(kit.text("lblMsg"), "");
    kit.click("Check06");
    EXPECT_EQ(kit.text("lblMsg"), "");
}

TEST_F(OptionsScreen, OptionsComeBackWithTheNextStart) {
    kit.click("Option05(1)");
    kit.click("Option09(2)");
    kit.click("Option08(3)");
    kit.click("Option07(2)");
    turn("Check06", true);
    turn("Check01", false);
    kit.end();
    kit.accept_box();  // the hint that name masters are there
    ASSERT_TRUE(kit.start());
    for (const char* const name : {"Option05(1)", "Option09(2)", "Option08(3)", "Option07(2)"}) {
        EXPECT_TRUE(kit.widget<QRadioButton>(name).isChecked()) << name;
        EXPECT_TRUE(is_blue(kit.widget<QWidget>(name))) << name;
    }
    EXPECT_TRUE(is_on("Check06"));
    EXPECT_FALSE(is_on("Check01"));
    EXPECT_TRUE(is_enabled("Option09(0)"));
    EXPECT_TRUE(is_enabled("Check19"));
}

TEST_F(OptionsScreen, RuleForPortableCallSignsStaysOn) {
    ASSERT_TRUE(is_on("Check23"));
    kit.click("Check23");
    EXPECT_TRUE(is_on("Check23"));
    EXPECT_TRUE(is_blue(box("Check23")));
    EXPECT_EQ(kit.stored("Veldrana_new.ini", "Check23"), "1");
}

// --- one option switches others ---

TEST_F(OptionsScreen, FieldsOfThePlaceMasterFollowItsBox) {
    for (const bool on : {true, false, true}) {
        turn("Check14", on);
        for (const char* const name : {"Check4", "Check5", "Check6", "Check7", "Check16"}) {
            EXPECT_EQ(is_enabled(name), on) << name;
        }
    }
}

TEST_F(OptionsScreen, FieldsOfTheUserTextFollowItsBox) {
    for (const bool on : {true, false, true}) {
        turn("Check8", on);
        for (const char* const name : {"Check9", "Check11", "Check12", "Check13", "Check17"}) {
            EXPECT_EQ(is_enabled(name), on) << name;
        }
    }
}

struct Side {
    const char* box;
    const char* other;
    const char* button;
};
constexpr Side sides[] = {{"Check4_A", "Check4_B", "cmdSet_UserTxt_A"},
                          {"Check4_B", "Check4_A", "cmdSet_UserTxt_B"}};

class UserTexts : public OptionsScreen, public testing::WithParamInterface<Side> {};
INSTANTIATE_TEST_SUITE_P(Sides, UserTexts, testing::ValuesIn(sides),
                         [](const auto& side) { return std::string(side.param.box); });

TEST_P(UserTexts, TheOnlyOneThatIsSetIsTaken) {
    choose_user_text(GetParam().button, friends());
    turn("Check8", true);
    EXPECT_TRUE(is_on(GetParam().box));
    EXPECT_FALSE(is_on(GetParam().other));
}

TEST_P(UserTexts, OneThatIsNotSetIsTakenBackWithAMessage) {
    turn("Check8", true);
    kit.accept_box();
    kit.click(GetParam().box);
    EXPECT_THAT(kit.seen, SizeIs(1));
    EXPECT_FALSE(is_on(GetParam().box));
    EXPECT_FALSE(is_on("Check8")) << "neither is left";
    EXPECT_FALSE(is_enabled("Check11"));
}

TEST_P(UserTexts, TheOtherStaysWhenOneIsTakenBack) {
    choose_user_text(GetParam().button, friends());
    turn("Check8", true);
    kit.seen.clear();
    kit.accept_box();
    kit.click(GetParam().other);
    EXPECT_THAT(kit.seen, SizeIs(1));
    EXPECT_FALSE(is_on(GetParam().other));
    EXPECT_TRUE(is_on(GetParam().box));
    EXPECT_TRUE(is_on("Check8"));
}

TEST_P(UserTexts, EachTakesTheOtherOff) {
    for (const Side& side : sides) {
        choose_user_text(side.button, friends());
    }
    turn(GetParam().other, true);
    turn(GetParam().box, true);
    EXPECT_FALSE(is_on(GetParam().other));
}

TEST_P(UserTexts, ButtonAsksForATextAndShowsItsNameWithoutItsEnding) {
    fs::copy_file(friends(), kit.drive() / "mas" / "CLUB.TXT");
    choose_user_text(GetParam().button, kit.drive() / "mas" / "CLUB.TXT");
    ASSERT_THAT(kit.seen, SizeIs(1));
    ASSERT_THAT(kit.seen[0].filters, SizeIs(1));
    EXPECT_THAT(kit.seen[0].filters[0], HasSubstr("(*.txt *.TXT)"));
    EXPECT_EQ(kit.text(GetParam().button), "CLUB");
}

TEST_P(UserTexts, FileOfAnotherFormIsNotTaken) {
    kit.choose(kit.drive() / "zlog" / "allja.dat");
    kit.accept_box();
    kit.click(GetParam().button);
    EXPECT_THAT(kit.seen, SizeIs(2));
    EXPECT_EQ(kit.text(GetParam().button), "使用なら要 set");
}

TEST_F(OptionsScreen, TheTwoWaysToTurnMarksExcludeEachOther) {
    turn("Check2", true);
    turn("Check3", true);
    EXPECT_FALSE(is_on("Check2"));
    EXPECT_TRUE(is_black(box("Check2")));
    turn("Check2", true);
    EXPECT_FALSE(is_on("Check3"));
    EXPECT_TRUE(is_black(box("Check3")));
}

TEST_F(OptionsScreen, OrderCanBeChosenWhileStationsAreKeptTogether) {
    for (const bool together : {true, false, true}) {
        kit.click(radio("Option05", together ? 1 : 0));
        for (const char* const name : {"Option09(0)", "Option09(1)", "Option09(2)", "Check08"}) {
            EXPECT_EQ(is_enabled(name), together) << name;
        }
    }
}

TEST_F(OptionsScreen, HistoryIsForARuleAlone) {
    for (const int rule : {1, 0, 2, 0, 3, 0}) {
        kit.click(radio("Option07", rule));
        for (const char* const name : {"Option01(0)", "Check19", "Check20"}) {
            EXPECT_EQ(is_enabled(name), rule != 0) << name << " " << rule;
        }
        if (rule != 0) {
            EXPECT_TRUE(radio("Option01", 0).isChecked()) << rule;
        }
    }
}

// --- contest data ---

TEST_F(OptionsScreen, ContestDataAloneAreChosenByToolbarAndOption) {
    for (int source = 3; source >= 0; --source) {
        kit.click(radio("Option02", source));
        const bool contest_data = source == 2;
        EXPECT_EQ(is_enabled("Option03(0)"), contest_data) << source;
        EXPECT_EQ(is_enabled("Option03(1)"), contest_data) << source;
        for (const char* const name : {"dat手動", "dat半自"}) {
            EXPECT_EQ(kit.widget<QAction>(name).isEnabled(), contest_data) << name << source;
        }
    }
}

TEST_F(OptionsScreen, ContestDataWithoutAFileAreAskedForInRed) {
    kit.click("Option02(2)");
    for (const char* const name : {"lblDatName", "Label37"}) {
        EXPECT_EQ(kit.text(name), ask_for_dat_text) << name;
        EXPECT_TRUE(is_red(kit.widget<QWidget>(name))) << name;
    }
}

TEST_F(OptionsScreen, ChosenDataFileStaysWhileAnotherSourceIsLookedAt) {
    kit.click("Option02(2)");
    open_log();
    choose_dat();
    ASSERT_THAT(kit.text("lblDatName"), EndsWith("allja.dat"));
    kit.click("Option02(1)");
    kit.click("Option02(0)");
    kit.click("Option02(2)");
    for (const char* const name : {"lblDatName", "Label37"}) {
        EXPECT_THAT(kit.text(name), EndsWith("allja.dat")) << name;
        EXPECT_TRUE(is_blue(kit.widget<QWidget>(name))) << name;
    }
    EXPECT_TRUE(can_start());
    kit.click("cmdStart");
    EXPECT_EQ(kit.text("lblCFG"), "処 理 終 了");
}

TEST_F(OptionsScreen, RunNeedsALogAndWithContestDataTheirFile) {
    EXPECT_FALSE(can_start());
    kit.click("Option02(2)");
    EXPECT_FALSE(can_start());
    open_log();
    EXPECT_FALSE(can_start()) << "no data file yet";
    kit.click("Option02(0)");
    EXPECT_TRUE(can_start());
    kit.click("Option02(2)");
    EXPECT_FALSE(can_start());
    choose_dat();
    EXPECT_TRUE(can_start());
    kit.click("Option02(1)");
    EXPECT_TRUE(can_start());
}

TEST_F(OptionsScreen, LogIsAskedForWhenABinaryOneIsFollowedByOneThatIsRefused) {
    kit.open("mnuOpen_z", kit.log("zlo_sample.zlo"));
    const fs::path wrong = kit.drive() / "logs" / "wrong.log";
    write_bytes(wrong, "not a log\r\n");
    kit.open("mnuOpen_cbr", wrong);
    kit.click("Option02(1)");
    kit.click("Option02(0)");
    EXPECT_EQ(kit.text("lblInfo"), "入力ファイルを指定して下さい");
    EXPECT_TRUE(is_red(kit.widget<QWidget>("lblInfo")));
    EXPECT_FALSE(can_start());
}

class MissingDat : public OptionsScreen {
  protected:
    // Contest data whose file has gone since it was chosen.
    void SetUp() override {
        OptionsScreen::SetUp();
        kit.click("Option02(2)");
        kit.click("Option04(0)");
        open_log();
        choose_dat();
        fs::remove(kit.drive() / "zlog" / "allja.dat");
        kit.seen.clear();
    }
};

TEST_F(MissingDat, IsToldWhenItsCodesAreWanted) {
    kit.on_dialog([](QDialog& dialog) {
        dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::Retry)->click();
    });
    kit.click("Option04(1)");
    ASSERT_THAT(kit.seen, SizeIs(1));
    EXPECT_EQ(kit.seen[0].title, "エラー　：　必要ファイルがありません。");
    EXPECT_THAT(kit.seen[0].text, HasSubstr("[  allja.dat  ]  がありません。"));
    EXPECT_FALSE(kit.program().ended());
    EXPECT_TRUE(is_blue(kit.widget<QWidget>("Option04(1)")));
}

TEST_F(MissingDat, EndsTheProgramOnCancel) {
    kit.cancel_box();
    kit.click("Option04(1)");
    EXPECT_TRUE(kit.program().ended());
}

TEST_F(MissingDat, IsNotLookedForWhileItsCodesAreNotWanted) {
    kit.click("Option04(0)");
    EXPECT_THAT(kit.seen, testing::IsEmpty());
}

// --- ranks of the sources ---

TEST_F(OptionsScreen, RanksOfContestDataAreColouredWhileTheirCodesAreTaken) {
    kit.click("Option02(2)");
    for (const bool on : {true, false, true}) {
        kit.click(radio("Option04", on ? 1 : 0));
        for (const char* const field : {"lblCode", "lblQth"}) {
            expect_follows(rank(field, "dat_mas"), "dat_mas_color", on);
        }
    }
}

TEST_F(OptionsScreen, RanksOfTheOtherSourcesFollowTheirBoxes) {
    turn("Check14", true);
    turn("Check8", true);
    struct Rank {
        const char* box;
        const char* field;
        const char* source;
        const char* colour;
    };
    for (const Rank& one : {Rank{"Check03", "lblName", "name_mas", "name_mas_color"},
                            Rank{"Check6", "lblName", "qth_mas", "qth_mas_color"},
                            Rank{"Check4", "lblCode", "qth_mas", "qth_mas_color"},
                            Rank{"Check7", "lblQth", "qth_mas", "qth_mas_color"},
                            Rank{"Check11", "lblName", "Text_data", "text_data_color"},
                            Rank{"Check13", "lblCode", "Text_data", "text_data_color"},
                            Rank{"Check9", "lblQth", "Text_data", "text_data_color"}}) {
        for (const bool on : {true, false, true}) {
            turn(one.box, on);
            expect_follows(rank(one.field, one.source), one.colour, on);
        }
    }
}

// --- texts ---

TEST_F(OptionsScreen, MarksAndYearAreCutToTheirLength) {
    kit.open("mnuOpen", kit.log("field_sample.txt"));
    kit.type("txtQSL_Q", "NX");
    kit.type("txtQSL_S", "+-");
    kit.type("txtYYYY", "20251");
    EXPECT_EQ(kit.text("txtQSL_Q"), "N");
    EXPECT_EQ(kit.text("txtQSL_S"), "+");
    EXPECT_EQ(kit.text("txtYYYY"), "2025");
}

TEST_F(OptionsScreen, OperatorThatChangesTurnsBlackAgainWithItsBox) {
    turn("Check15", false);
    turn("Check15", true);
    ASSERT_TRUE(is_blue(box("Check15")));
    kit.type("txtOp_name", "JA1ZZB");
    EXPECT_TRUE(is_black(box("Check15")));
    EXPECT_TRUE(is_black(kit.widget<QWidget>("txtOp_name")));
}

TEST_F(OptionsScreen, BoxOfTheOperatorCountsOnlyWithAName) {
    open_log();
    turn("Check15", true);
    kit.type("txtOp_name", "");
    kit.click("cmdStart");
    EXPECT_EQ(result(0), "340");
    kit.type("txtOp_name", " JA1ZZA ");
    kit.click("cmdStart");
    const int of_one = std::stoi(result(0));
    EXPECT_GT(of_one, 0);
    EXPECT_LT(of_one, 340);
    turn("Check15", false);
    kit.click("cmdStart");
    EXPECT_EQ(result(0), "340");
}

TEST_F(OptionsScreen, BoxesForOneRunAreOffBehindIt) {
    open_log();
    turn("Check27", true);
    turn("Check28", true);
    kit.click("cmdStart");
    ASSERT_EQ(result(0), "340");
    EXPECT_FALSE(is_on("Check27"));
    EXPECT_FALSE(is_on("Check28"));
}

}  // namespace
}  // namespace veldrana
