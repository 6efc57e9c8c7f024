// What the main screen takes up when it is loaded: stored options, repaired values, remark slots,
// the log book's name, tabs.
#include "app/main_screen_load.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/option_handlers.h"
#include "app/option_table.h"
#include "tests/app/stored_settings.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// A program that is not started yet.
class LoadTest : public testing::Test {
  protected:
    OptionSettings& options() { return kit.program->settings.options; }
    EnvironmentSettings& environment() { return kit.program->settings.environment; }

    ProgramKit kit;
    MainScreen& screen = kit.screen();
};

// --- window ---

TEST_F(LoadTest, WindowComesBackWhereItWasLeft) {
    kit.put_text("C:\\veldrana\\Veldrana_posi.ini",
                 "[Config]\r\nversion=5.30\r\n\r\n[Position_Veldrana]\r\nWindowState=2\r\n"
                 "Left=300\r\nTop=450\r\nWidth=9000\r\nHeight=7000\r\n");
    kit.start();
    const WindowPlacement wanted{.state = WindowPlacement::maximised,
                                 .left = 300,
                                 .top = 450,
                                 .width = 9000,
                                 .height = 7000};
    EXPECT_EQ(screen.window.placement.get(), wanted);
}

TEST_F(LoadTest, TitleTellsTheVersionAndThePeriod) {
    kit.start();
    EXPECT_EQ(screen.window.caption.get(),
              "  Veldrana  ver 5.30          参照抽出期間 1960 年 01 月 01 日　～  "
              "2026 年 05 月 04 日     コンテストログ変換");
}

TEST_F(LoadTest, TitleShowsAFixedPeriodWithItsZeros) {
    put_option(kit, "use_system_date_flag", "0");
    put_option(kit, "Start_date", "20200131");
    put_option(kit, "End_date", "2021/02/03");
    kit.start();
    EXPECT_EQ(screen.window.caption.get(),
              "  Veldrana  ver 5.30          参照抽出期間 2020 年 01 月 31 日　～  "
              "2021 年 02 月 03 日     コンテストログ変換");
}

// --- notes, menus, tool tips ---

TEST_F(LoadTest, MemberSearchShowsItsTwoNotes) {
    kit.start();
    EXPECT_EQ(screen.lblJARL_menu.caption.get(),
              "メニューの [JARL] [Webブラウザ表示] から実行して下さい。");
    EXPECT_EQ(screen.lblJARL_after.caption.get(),
              "[ 変換 ] 処理が終了後にボタンが有効になります。");
}

TEST_F(LoadTest, SurveyToolsAreHiddenWithoutTheirSetting) {
    for (const char* const setting : {"", "0", "2", "yes"}) {
        ProgramKit other;
        put_value(other, new_ini, "Main", "Check_dat", setting);
        other.put_text("C:\\veldrana\\Master_hl.txt", "x\r\n");
        other.start();
        EXPECT_FALSE(other.screen().mnuCheck_dat.visible) << setting;
        EXPECT_FALSE(other.screen().mnuCheck_dat_bunrui.enabled) << setting;
    }
}

TEST_F(LoadTest, SurveyToolsAreShownBySetting) {
    put_value(kit, new_ini, "Main", "Check_dat", "1");
    kit.put_text("C:\\veldrana\\Master_hl.txt", "x\r\n");
    kit.start();
    EXPECT_TRUE(screen.mnuCheck_dat.visible);
    EXPECT_TRUE(screen.mnuCheck_dat_bunrui.enabled);
}

TEST_F(LoadTest, SurveyToolThatSortsNeedsItsMaster) {
    put_value(kit, new_ini, "Main", "Check_dat", "1");
    kit.start();
    EXPECT_TRUE(screen.mnuCheck_dat.visible);
    EXPECT_FALSE(screen.mnuCheck_dat_bunrui.enabled);
}

TEST_F(LoadTest, IniViewersTellTheirPaths) {
    kit.start();
    EXPECT_EQ(screen.cmdDisp_Veldrana_cfg_ini.tool_tip.get(), "C:\\veldrana\\Veldrana_cfg.ini");
    EXPECT_EQ(screen.cmdDisp_Veldrana_new_ini.tool_tip.get(), "C:\\veldrana\\Veldrana_new.ini");
}

TEST_F(LoadTest, OwnCallSignIsShown) {
    put_entry(kit, "MyCalls", "JR8YYX");
    kit.start();
    EXPECT_THAT(screen.lblMyCalls.caption.get(), HasSubstr("JR8YYX"));
}

TEST_F(LoadTest, CountersAreShownZeroed) {
    kit.start();
    for (std::size_t row = 0; row < screen.MSFlexGrid1.rows(); ++row) {
        EXPECT_EQ(screen.MSFlexGrid1.cell(row, 1).text, "0") << row;
    }
}

// --- what waits for a log ---

TEST_F(LoadTest, WithoutALogTheViewersRest) {
    kit.start();
    EXPECT_FALSE(screen.mnuDisp_in.enabled);
    EXPECT_FALSE(screen.cmdDisp_contest.enabled);
    EXPECT_FALSE(screen.mnuDisp_Veldrana_rmk2.enabled);
    EXPECT_FALSE(screen.mnuDisp_dup.enabled);
    EXPECT_FALSE(screen.mnuJARL.enabled);
}

// The main screen is loaded once more, as behind the environment dialog.
class LoadAgain : public LoadTest {
  protected:
    LoadAgain() {
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.start();
        kit.open("C:\\log\\x.all");
    }
    void load() {
        kit.program->event([this] { show_main_screen(*kit.program); });
    }
};

TEST_F(LoadAgain, ALogKeptFromBeforeIsShown) {
    load();
    EXPECT_EQ(screen.lblIn_name.caption.get(), "C:\\log\\x.all");
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::blue);
    EXPECT_EQ(screen.lblOut_name1.caption.get(), "C:\\log\\x_cjn.csv");
}

TEST_F(LoadAgain, ALogKeptFromBeforeEnablesTheViewers) {
    screen.disp_enable_f();
    load();
    EXPECT_TRUE(screen.mnuDisp_in.enabled);
    EXPECT_TRUE(screen.mnuDisp_Veldrana_rmk1.enabled);
}

TEST_F(LoadAgain, ViewerOfTheContactBankFollowsItsFile) {
    load();
    EXPECT_FALSE(screen.mnuDisp_QSOBank.enabled);
    kit.put_text("C:\\log\\QSOBank.txt", "x\r\n");
    load();
    EXPECT_TRUE(screen.mnuDisp_QSOBank.enabled);
}

TEST_F(LoadAgain, DupeListFollowsItsFile) {
    load();
    EXPECT_FALSE(screen.mnuDisp_dup.enabled);
    EXPECT_FALSE(screen.tool_dup.enabled);
    kit.put_text("C:\\log\\x.dup", "x\r\n");
    load();
    EXPECT_TRUE(screen.mnuDisp_dup.enabled);
    EXPECT_TRUE(screen.tool_dup.enabled);
}

TEST_F(LoadAgain, ContactBankFollowsTheIntermediateFile) {
    load();
    EXPECT_FALSE(screen.mnuQSOBank.enabled);
    kit.put_text("C:\\log\\zlog_1.txt", "x\r\n");
    load();
    EXPECT_TRUE(screen.mnuQSOBank.enabled);
}

TEST_F(LoadAgain, CountersOfTheLastRunAreShown) {
    screen.cmdStart.press();
    screen.MSFlexGrid1.set_text(0, 1, "");
    load();
    EXPECT_EQ(screen.MSFlexGrid1.cell(0, 1).text, "2");
}

TEST_F(LoadAgain, OptionsAreReadFromTheirFile) {
    put_option(kit, "Check06", "1");
    put_option(kit, "Option06", "1");
    load();
    EXPECT_TRUE(screen.Check06.value);
    EXPECT_EQ(screen.Option06.index, 1);
}

TEST_F(LoadAgain, EnvironmentIsReadFromItsFile) {
    put_entry(kit, "MyCalls", "JR8YYX");
    put_entry(kit, "hamlog_hdb_dir", "D:\\radio\\MyLogBook.hdb");
    load();
    EXPECT_THAT(screen.lblMyCalls.caption.get(), HasSubstr("JR8YYX"));
    EXPECT_EQ(kit.program->hdb_name, "MyLogB.hdb");
    EXPECT_EQ(kit.program->paths.drive_path, "D:\\");
}

TEST_F(LoadAgain, ContestDataAreReadFromTheirFile) {
    put_value(kit, dat_ini, "DAT_MAS", "set_dat_in_name", "C:\\zLog\\acag.dat");
    load();
    EXPECT_EQ(kit.program->settings.set_dat_in_name, "C:\\zLog\\acag.dat");
}

// Behind the environment dialog; a normal start has saved it before.
TEST_F(LoadTest, SnapshotIsSavedByTheFirstLoad) {
    put_entry(kit, "zlo_dir", "");
    kit.start();
    ASSERT_FALSE(kit.memory.file_exists("C:\\veldrana\\Veldrana.ini"));
    kit.program->event([this] { show_main_screen(*kit.program); });
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Check4"), "1");
}

// --- what the environment allows ---

TEST_F(LoadTest, WithoutANameMasterItsUseIsDisabled) {
    kit.start();
    EXPECT_FALSE(screen.Check03.enabled);
    EXPECT_FALSE(screen.cmdCount.enabled);
}

TEST_F(LoadTest, WithANameMasterItsUseIsEnabled) {
    use_all_masters(kit);
    kit.start();
    EXPECT_TRUE(screen.Check03.enabled);
    EXPECT_TRUE(screen.cmdCount.enabled);
}

TEST_F(LoadTest, WithoutAQthMasterItsUseIsDisabledAndTold) {
    kit.start();
    EXPECT_TRUE(screen.lblNo_qth_mas.visible);
    for (const CheckBox* const box : {&screen.Check14, &screen.Check1, &screen.Check4,
                                      &screen.Check5, &screen.Check6, &screen.Check7}) {
        EXPECT_FALSE(box->enabled) << box->name();
    }
}

TEST_F(LoadTest, WithAQthMasterItsUseIsEnabled) {
    use_all_masters(kit);
    put_option(kit, "Check14", "1");
    kit.start();
    EXPECT_FALSE(screen.lblNo_qth_mas.visible);
    for (const CheckBox* const box : {&screen.Check14, &screen.Check1, &screen.Check4,
                                      &screen.Check5, &screen.Check6, &screen.Check7}) {
        EXPECT_TRUE(box->enabled) << box->name();
    }
}

// The handlers run behind it, and that of the master's use enables its fields.
TEST_F(LoadTest, StoredUseOfAQthMasterEnablesItsFieldsInAnyCase) {
    put_option(kit, "Check14", "1");
    kit.start();
    EXPECT_FALSE(screen.Check14.enabled);
    EXPECT_TRUE(screen.Check4.enabled);
    EXPECT_TRUE(screen.Check16.enabled);
}

TEST_F(LoadTest, WithoutAPostalMasterItsButtonIsDisabled) {
    kit.start();
    EXPECT_FALSE(is_enabled(screen.Option02, 3));
    EXPECT_TRUE(is_enabled(screen.Option02, 1));
}

TEST_F(LoadTest, WithAPostalMasterItsButtonIsEnabled) {
    use_all_masters(kit);
    kit.start();
    EXPECT_TRUE(is_enabled(screen.Option02, 3));
}

TEST_F(LoadTest, StoredContestDataWithoutAFileAskForOne) {
    put_option(kit, "Option02", "2");
    kit.start();
    for (const Label* const label : {&screen.lblDatName, &screen.Label37}) {
        EXPECT_EQ(label->caption.get(), "ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。") << label->name();
        EXPECT_EQ(label->fore_colour.get(), colours::red) << label->name();
    }
    EXPECT_TRUE(is_enabled(screen.Option03, 1));
    EXPECT_TRUE(screen.tool_dat_by_hand.enabled);
    EXPECT_FALSE(screen.cmdStart.enabled);
}

TEST_F(LoadTest, ContestDataOfTheFileAreTakenUp) {
    put_value(kit, dat_ini, "DAT_MAS", "set_dat_in_name", "C:\\zLog\\acag.dat");
    kit.start();
    EXPECT_EQ(kit.program->settings.set_dat_in_name, "C:\\zLog\\acag.dat");
}

// --- the log book ---

struct LogBookRow {
    const char* name;
    std::string_view path;
    std::string_view short_name;
    std::string_view drive;
};
void PrintTo(const LogBookRow& row, std::ostream* out) {
    *out << row.name;
}

class LogBookName : public LoadTest, public testing::WithParamInterface<LogBookRow> {};
INSTANTIATE_TEST_SUITE_P(
    Paths, LogBookName,
    testing::Values(LogBookRow{"Usual", "C:\\Hamlog\\Hamlog.hdb", "Hamlog.hdb", "C:\\"},
                    LogBookRow{"OnAnotherDrive", "D:\\radio\\Hamlog.hdb", "Hamlog.hdb", "D:\\"},
                    LogBookRow{"Long", "E:\\radio\\MyLogBook2025.hdb", "MyLogB.hdb", "E:\\"},
                    LogBookRow{"Short", "C:\\Hamlog\\log.hdb", "log.hdb", "C:\\"},
                    LogBookRow{"UpperCase", "C:\\HAMLOG\\HAMLOG.HDB", "HAMLOG.hdb", "C:\\"},
                    LogBookRow{"TwoDots", "C:\\Hamlog\\a.b.hdb", "a.b.hdb", "C:\\"},
                    LogBookRow{"InTheRoot", "D:\\Hamlog.hdb", "Hamlog.hdb", "D:\\"},
                    LogBookRow{"DoubleByte", "C:\\記録\\交信記録.hdb", "交信記.hdb", "C:\\"}),
    [](const testing::TestParamInfo<LogBookRow>& row) { return std::string(row.param.name); });

TEST_P(LogBookName, IsSixBytesOfTheFileName) {
    put_entry(kit, "hamlog_hdb_dir", GetParam().path);
    kit.start();
    EXPECT_EQ(kit.program->hdb_name, GetParam().short_name);
    EXPECT_EQ(screen.Option01.buttons.get().at(0).caption,
              "新 " + std::string(GetParam().short_name));
}

TEST_P(LogBookName, ItsDriveIsThatOfTheScratchFiles) {
    put_entry(kit, "hamlog_hdb_dir", GetParam().path);
    kit.start();
    EXPECT_EQ(kit.program->paths.drive_path, GetParam().drive);
}

TEST_F(LoadTest, ScratchDriveIsThatOfTheProgramUntilTheMainScreenIsLoaded) {
    put_entry(kit, "hamlog_hdb_dir", "D:\\radio\\Hamlog.hdb");
    put_entry(kit, "zlo_dir", "");
    kit.start();
    ASSERT_EQ(kit.program->start.reached, Start::environment_dialog);
    EXPECT_EQ(kit.program->paths.drive_path, "C:\\");
    kit.program->event([&] { get_hdb_name_bas(*kit.program); });
    EXPECT_EQ(kit.program->paths.drive_path, "D:\\");
}

// The environment dialog was left without a log book.
TEST_F(LoadTest, WithoutALogBookABoxTellsToSetOne) {
    put_entry(kit, "hamlog_hdb_dir", "");
    kit.start();
    ASSERT_EQ(kit.program->start.reached, Start::environment_dialog);
    kit.program->event([this] { show_main_screen(*kit.program); });
    EXPECT_EQ(screen.Option01.buttons.get().at(0).caption, "新 Hamlog.hdb");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text, " が有りません！ 環境設定を確認して下さい。");
    EXPECT_EQ(kit.program->paths.drive_path, "C:\\");
}

TEST_F(LoadTest, WithALogBookThereIsNoBox) {
    kit.start();
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// --- repairs ---

struct LetterRow {
    const char* name;
    std::string_view flag;
    std::string_view letter;
    std::string_view repaired;
};
void PrintTo(const LetterRow& row, std::ostream* out) {
    *out << row.name;
}

class NoQslLetter : public LoadTest, public testing::WithParamInterface<LetterRow> {};
INSTANTIATE_TEST_SUITE_P(
    Flags, NoQslLetter,
    testing::Values(LetterRow{"FlagEmpty", "", "Q", "N"}, LetterRow{"FlagZero", "0", "Q", "N"},
                    LetterRow{"FlagZeroWithoutALetter", "0", "", "N"},
                    LetterRow{"FlagSet", "1", "Q", "Q"}, LetterRow{"FlagSetBlank", "1", "", ""}),
    [](const testing::TestParamInfo<LetterRow>& row) { return std::string(row.param.name); });

TEST_P(NoQslLetter, IsRepairedByItsFlag) {
    put_entry(kit, "No_QSL_moji", GetParam().letter);
    put_entry(kit, "No_QSL_moji_set_flag", GetParam().flag);
    kit.start();
    EXPECT_EQ(trim(environment().No_QSL_moji), GetParam().repaired);
    EXPECT_EQ(environment().No_QSL_moji_set_flag, "1");
}

TEST_P(NoQslLetter, RepairIsSaved) {
    put_entry(kit, "No_QSL_moji", GetParam().letter);
    put_entry(kit, "No_QSL_moji_set_flag", GetParam().flag);
    kit.start();
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "No_QSL_moji"), GetParam().repaired);
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "No_QSL_moji_set_flag"), "1");
}

TEST_F(LoadTest, LetterWithoutAFlagInTheFileIsRepaired) {
    put_entry(kit, "No_QSL_moji", "Q");
    remove_key(kit, cfg_ini, cfg_ini, "No_QSL_moji_set_flag");
    kit.start();
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "No_QSL_moji"), "N");
}

TEST_F(LoadTest, EmptyColoursAreNotThoseOfANewFile) {
    for (const char* const key :
         {"dat_mas_color", "name_mas_color", "qth_mas_color", "text_data_color"}) {
        put_value(kit, new_ini, "DAT_MAS", key, "");
    }
    kit.start();
    EXPECT_EQ(options().dat_mas_color, "16744576");
    EXPECT_EQ(options().name_mas_color, "4227072");
    EXPECT_EQ(options().qth_mas_color, "4425690");
    EXPECT_EQ(options().text_data_color, "16744448");
}

TEST_F(LoadTest, AnEmptyColourLeavesTheOthers) {
    put_value(kit, new_ini, "DAT_MAS", "qth_mas_color", "");
    kit.start();
    EXPECT_EQ(options().dat_mas_color, "16711680");
    EXPECT_EQ(options().name_mas_color, "16776960");
    EXPECT_EQ(options().qth_mas_color, "4425690");
    EXPECT_EQ(options().text_data_color, "16711935");
}

TEST_F(LoadTest, EmptyPrioritiesBecomeThoseOfANewFile) {
    for (const char* const key : {"name_yusen_jun", "code_yusen_jun", "qth_yusen_jun"}) {
        put_value(kit, new_ini, "DAT_MAS", key, "");
    }
    kit.start();
    EXPECT_EQ(options().name_yusen_jun, "dat_mas,name_mas,qth_mas,Text_data");
    EXPECT_EQ(options().code_yusen_jun, "dat_mas,name_mas,qth_mas,Text_data");
    EXPECT_EQ(options().qth_yusen_jun, "dat_mas,name_mas,qth_mas,Text_data");
}

std::vector<std::string> captions(const RankLabels& labels) {
    std::vector<std::string> shown;
    for (const Label& label : labels) {
        shown.push_back(label.caption);
    }
    return shown;
}

TEST_F(LoadTest, PrioritiesAreShownByRank) {
    put_value(kit, new_ini, "DAT_MAS", "name_yusen_jun", "name_mas,dat_mas,Text_data,qth_mas");
    put_value(kit, new_ini, "DAT_MAS", "code_yusen_jun", "qth_mas,Text_data,name_mas,dat_mas");
    put_value(kit, new_ini, "DAT_MAS", "qth_yusen_jun", "");
    kit.start();
    EXPECT_THAT(captions(screen.lblName),
                ElementsAre("name_mas", "dat_mas", "Text_data", "qth_mas"));
    EXPECT_THAT(captions(screen.lblCode),
                ElementsAre("qth_mas", "Text_data", "name_mas", "dat_mas"));
    EXPECT_THAT(captions(screen.lblQth),
                ElementsAre("dat_mas", "name_mas", "qth_mas", "Text_data"));
}

TEST_F(LoadTest, APriorityWithBlankPlacesIsShownAsItStands) {
    put_value(kit, new_ini, "DAT_MAS", "code_yusen_jun", "name_mas,,,");
    kit.start();
    EXPECT_THAT(captions(screen.lblCode), ElementsAre("name_mas", "", "", ""));
}

TEST_F(LoadTest, APriorityOfOneSourceLeavesTheOtherPlacesBlank) {
    put_value(kit, new_ini, "DAT_MAS", "qth_yusen_jun", "qth_mas");
    kit.start();
    EXPECT_THAT(captions(screen.lblQth), ElementsAre("qth_mas", "", "", ""));
}

TEST_F(LoadTest, TheOldNameOfTheTextDataIsReplacedAndSaved) {
    put_value(kit, new_ini, "DAT_MAS", "qth_yusen_jun", "user_txt,dat_mas,name_mas,qth_mas");
    put_value(kit, new_ini, "DAT_MAS", "name_yusen_jun", "dat_mas,user_txt,name_mas,qth_mas");
    kit.start();
    EXPECT_EQ(screen.lblQth[0].caption.get(), "Text_data");
    EXPECT_EQ(screen.lblName[1].caption.get(), "Text_data");
    EXPECT_EQ(kit.stored(new_ini, "DAT_MAS", "qth_yusen_jun"),
              "Text_data,dat_mas,name_mas,qth_mas");
}

TEST_F(LoadTest, AnEmptyYearBecomesThePresentOne) {
    put_option(kit, "YYYY", "");
    kit.start();
    EXPECT_EQ(screen.txtYYYY.text.get(), "2026");
}

TEST_F(LoadTest, AStoredYearStays) {
    put_option(kit, "YYYY", "2019");
    kit.start();
    EXPECT_EQ(screen.txtYYYY.text.get(), "2019");
    EXPECT_EQ(kit.stored_option("YYYY"), "2019");
}

TEST_F(LoadTest, OptionsWithoutAControlBecomeZero) {
    put_option(kit, "Option7", "");
    put_option(kit, "Option8", "");
    remove_key(kit, new_ini, new_ini, "Option9");
    kit.start();
    EXPECT_EQ(options().Option7, "0");
    EXPECT_EQ(options().Option8, "0");
    EXPECT_EQ(options().Option9, "0");
}

TEST_F(LoadTest, OptionsWithoutAControlKeepAValue) {
    put_option(kit, "Option8", "3");
    kit.start();
    EXPECT_EQ(kit.stored_option("Option8"), "3");
}

TEST_F(LoadTest, AnEmptyStartOfThePeriodBecomesTheFirstDay) {
    put_option(kit, "Start_date", "");
    kit.start();
    EXPECT_EQ(options().Start_date, "19600101");
    EXPECT_THAT(screen.window.caption.get(), HasSubstr("1960 年 01 月 01 日"));
}

TEST_F(LoadTest, AnEmptyBlankBetweenItemsComesOn) {
    put_option(kit, "Check1", "");
    kit.start();
    EXPECT_TRUE(screen.Check1.value);
    EXPECT_EQ(kit.stored_option("Check1"), "1");
}

TEST_F(LoadTest, ABlankBetweenItemsThatIsOffStaysOff) {
    kit.start();
    EXPECT_FALSE(screen.Check1.value);
    EXPECT_EQ(kit.stored_option("Check1"), "0");
}

// It stands in no file.
TEST_F(LoadTest, EveryStartKeepsTheTraceLogAtFirst) {
    kit.start();
    EXPECT_TRUE(screen.Check26.value);
    screen.Check26.value = false;
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_TRUE(next.screen.Check26.value);
}

// --- the member search ---

TEST_F(LoadTest, MarkForMembersIsKIfItIsBlank) {
    kit.start();
    EXPECT_EQ(screen.txtQSL_moji.text.get(), "K");
}

TEST_F(LoadTest, AStoredMarkForMembersIsShown) {
    put_value(kit, new_ini, "JARL_Search", "QSL_moji", "M");
    kit.start();
    EXPECT_EQ(screen.txtQSL_moji.text.get(), "M");
}

TEST_F(LoadTest, MemberSearchBoxesFollowTheirFlags) {
    put_value(kit, new_ini, "JARL_Search", "N_sreach_flag", "1");
    put_value(kit, new_ini, "JARL_Search", "Not_JARL_flag", "1");
    kit.start();
    EXPECT_TRUE(screen.Check31.value);
    EXPECT_FALSE(screen.Check32.value);
    EXPECT_TRUE(screen.Check33.value);
}

TEST_F(LoadTest, TheRightSpellingOfTheSearchFlagIsNotKnown) {
    put_value(kit, new_ini, "JARL_Search", "N_search_flag", "1");
    kit.start();
    EXPECT_FALSE(screen.Check31.value);
}

// --- stored options ---

struct BoxRow {
    const char* name;
    bool new_file;  // its value in a new file
};
void PrintTo(const BoxRow& row, std::ostream* out) {
    *out << row.name;
}

class StoredBox : public LoadTest, public testing::WithParamInterface<BoxRow> {
  protected:
    // Without its file the name master would be switched off.
    StoredBox() { use_all_masters(kit); }

    CheckBox& box = dynamic_cast<CheckBox&>(*screen.find(GetParam().name));
};
INSTANTIATE_TEST_SUITE_P(
    Boxes, StoredBox,
    testing::Values(BoxRow{"Check01", true}, BoxRow{"Check03", false}, BoxRow{"Check06", false},
                    BoxRow{"Check07", false}, BoxRow{"Check08", false}, BoxRow{"Check1", false},
                    BoxRow{"Check10", false}, BoxRow{"Check14", false}, BoxRow{"Check15", true},
                    BoxRow{"Check16", false}, BoxRow{"Check17", false}, BoxRow{"Check18", false},
                    BoxRow{"Check19", false}, BoxRow{"Check2", false}, BoxRow{"Check20", false},
                    BoxRow{"Check21", false}, BoxRow{"Check3", false}, BoxRow{"Check4", true},
                    BoxRow{"Check5", true}, BoxRow{"Check6", true}, BoxRow{"Check7", false},
                    BoxRow{"Check8", false}, BoxRow{"Check9", false}, BoxRow{"Check11", false},
                    BoxRow{"Check12", false}, BoxRow{"Check13", false}),
    [](const testing::TestParamInfo<BoxRow>& row) { return std::string(row.param.name); });

TEST_P(StoredBox, StandsAsInANewFile) {
    kit.start();
    EXPECT_EQ(box.value.get(), GetParam().new_file);
}

TEST_P(StoredBox, StandsAsItIsStored) {
    put_option(kit, GetParam().name, GetParam().new_file ? "0" : "1");
    kit.start();
    EXPECT_EQ(box.value.get(), !GetParam().new_file);
}

TEST_P(StoredBox, StaysStoredByTheLoad) {
    put_option(kit, GetParam().name, GetParam().new_file ? "0" : "1");
    kit.start();
    EXPECT_EQ(kit.stored_option(GetParam().name), GetParam().new_file ? "0" : "1");
}

// One of them is repaired before the screen is loaded.
TEST_P(StoredBox, IsOffIfItIsBlank) {
    put_option(kit, GetParam().name, "");
    kit.start();
    EXPECT_EQ(box.value.get(), &box == &screen.Check1);
}

TEST_P(StoredBox, IsOffIfItsKeyIsMissing) {
    remove_key(kit, new_ini, new_ini, GetParam().name);
    kit.start();
    EXPECT_EQ(box.value.get(), &box == &screen.Check1);
}

TEST_P(StoredBox, IsOffIfItsValueIsNoNumber) {
    put_option(kit, GetParam().name, "on");
    kit.start();
    EXPECT_FALSE(box.value);
}

TEST_P(StoredBox, ComesBackAfterARestart) {
    kit.start();
    box.value = !GetParam().new_file;
    screen.tool_end.press();
    NextStart next(kit);
    ASSERT_EQ(next.reached(), Start::main_screen);
    EXPECT_EQ(dynamic_cast<CheckBox&>(*next.screen.find(GetParam().name)).value.get(),
              !GetParam().new_file);
}

TEST_F(LoadTest, TheBoxOfTheCallWithItsPortablePartIsOnWhateverIsStored) {
    for (const char* const stored : {"0", "", "1"}) {
        ProgramKit other;
        put_option(other, "Check23", stored);
        other.start();
        EXPECT_TRUE(other.screen().Check23.value) << stored;
        EXPECT_EQ(other.stored_option("Check23"), "1") << stored;
    }
}

struct GroupRow {
    const char* name;
    int other;  // a button that a new file does not choose
};
void PrintTo(const GroupRow& row, std::ostream* out) {
    *out << row.name;
}

class StoredGroup : public LoadTest, public testing::WithParamInterface<GroupRow> {
  protected:
    OptionGroup& group = dynamic_cast<OptionGroup&>(*screen.find(GetParam().name));
};
INSTANTIATE_TEST_SUITE_P(
    Groups, StoredGroup,
    testing::Values(GroupRow{"Option07", 3}, GroupRow{"Option02", 1}, GroupRow{"Option04", 1},
                    GroupRow{"Option1", 1}, GroupRow{"Option05", 1}, GroupRow{"Option06", 1},
                    GroupRow{"Option09", 2}, GroupRow{"Option03", 1}, GroupRow{"Option08", 4},
                    GroupRow{"Option2", 2}, GroupRow{"Option22", 3}, GroupRow{"Option4", 3}),
    [](const testing::TestParamInfo<GroupRow>& row) { return std::string(row.param.name); });

TEST_P(StoredGroup, StandsAsInANewFile) {
    kit.start();
    EXPECT_EQ(group.index, 0);
}

// The two groups that choose a tab are stored with the number of the tab.
TEST_P(StoredGroup, StandsAsItIsStored) {
    put_option(kit, GetParam().name, std::to_string(GetParam().other));
    if (&group == &screen.Option2) {
        put_option(kit, "disp_top_SSTab", std::to_string(GetParam().other));
    } else if (&group == &screen.Option22) {
        put_option(kit, "disp_top_SSTab_2", std::to_string(GetParam().other));
    }
    kit.start();
    EXPECT_EQ(group.index, GetParam().other);
}

TEST_P(StoredGroup, IsTheFirstButtonIfItIsBlankOrMissingOrNoNumber) {
    for (const char* const stored : {"", "(missing)", "abc"}) {
        ProgramKit other;
        if (std::string(stored) == "(missing)") {
            remove_key(other, new_ini, new_ini, GetParam().name);
        } else {
            put_option(other, GetParam().name, stored);
        }
        ASSERT_TRUE(other.start()) << stored;
        EXPECT_EQ(dynamic_cast<OptionGroup&>(*other.screen().find(GetParam().name)).index, 0)
            << stored;
    }
}

// A button that is not there: the start goes on with one that is, or tells the failure.
TEST_P(StoredGroup, NumberOfNoButtonDoesNoHarm) {
    for (const char* const stored : {"9", "-1", "5", "99999999999999999999", "1e9"}) {
        ProgramKit other;
        put_option(other, GetParam().name, stored);
        const bool started = other.start();
        const OptionGroup& shown =
            dynamic_cast<OptionGroup&>(*other.screen().find(GetParam().name));
        EXPECT_GE(shown.index.get(), OptionGroup::none) << stored;
        EXPECT_LT(shown.index.get(), static_cast<int>(shown.buttons.get().size())) << stored;
        EXPECT_TRUE(started || other.program->ended() == ProgramEnd::Cause::reported) << stored;
    }
}

// One of them lasts only where the user has put it into the file.
TEST_P(StoredGroup, ComesBackAfterARestart) {
    kit.start();
    group.index = GetParam().other;
    screen.tool_end.press();
    NextStart next(kit);
    ASSERT_EQ(next.reached(), Start::main_screen);
    EXPECT_EQ(dynamic_cast<OptionGroup&>(*next.screen.find(GetParam().name)).index,
              &group == &screen.Option4 ? 0 : GetParam().other);
}

TEST_F(LoadTest, SideOfTheTextDataPutInByHandStays) {
    put_option(kit, "Option4", "2");
    kit.start();
    screen.Option4.index = 3;
    screen.tool_end.press();
    EXPECT_EQ(kit.stored_option("Option4"), "2");
    NextStart next(kit);
    EXPECT_EQ(next.screen.Option4.index, 2);
}

TEST_F(LoadTest, LogBookIsChosenFromABlankValue) {
    put_option(kit, "Option01", "");
    kit.start();
    EXPECT_EQ(screen.Option01.index, 0);
}

TEST_F(LoadTest, StoredMarksAreShown) {
    put_option(kit, "QSL_Q", "B");
    put_option(kit, "QSL_S", "+");
    kit.start();
    EXPECT_EQ(screen.txtQSL_Q.text.get(), "B");
    EXPECT_EQ(screen.txtQSL_S.text.get(), "+");
}

// Defaults are for a new file alone.
TEST_F(LoadTest, EmptyMarksStayEmpty) {
    put_option(kit, "QSL_Q", "");
    remove_key(kit, new_ini, new_ini, "QSL_S");
    kit.start();
    EXPECT_EQ(screen.txtQSL_Q.text.get(), "");
    EXPECT_EQ(screen.txtQSL_S.text.get(), "");
}

TEST_F(LoadTest, TextsComeBackAfterARestart) {
    kit.start();
    screen.txtQSL_Q.text = "B";
    screen.txtQSL_S.text = "+";
    screen.txtYYYY.text = "2019";
    screen.txtQSL_moji.text = "M";
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_EQ(next.screen.txtQSL_Q.text.get(), "B");
    EXPECT_EQ(next.screen.txtQSL_S.text.get(), "+");
    EXPECT_EQ(next.screen.txtYYYY.text.get(), "2019");
    EXPECT_EQ(next.screen.txtQSL_moji.text.get(), "M");
}

TEST_F(LoadTest, CommentsAndTheOperatorStartEmpty) {
    kit.start();
    screen.txtRmks1.text = "one";
    screen.txtRmks2.text = "two";
    screen.txtOp_name.text = "JA1ZZX";
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_EQ(next.screen.txtRmks1.text.get(), "");
    EXPECT_EQ(next.screen.txtRmks2.text.get(), "");
    EXPECT_EQ(next.screen.txtOp_name.text.get(), "");
}

TEST_F(LoadTest, MemberSearchBoxesComeBackAfterARestart) {
    kit.start();
    screen.Check31.value = true;
    screen.Check33.value = true;
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_TRUE(next.screen.Check31.value);
    EXPECT_FALSE(next.screen.Check32.value);
    EXPECT_TRUE(next.screen.Check33.value);
}

TEST_F(LoadTest, BoxesForOneRunDoNotComeBack) {
    kit.start();
    screen.Check27.value = true;
    screen.Check28.value = true;
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_FALSE(next.screen.Check27.value);
    EXPECT_FALSE(next.screen.Check28.value);
}

// --- the order in which stored options are taken up ---

// The later of the two runs its handler last.
TEST_F(LoadTest, OfBothTurnsStoredOnTheTurnToNStays) {
    put_option(kit, "Check2", "1");
    put_option(kit, "Check3", "1");
    kit.start();
    EXPECT_FALSE(screen.Check2.value);
    EXPECT_TRUE(screen.Check3.value);
    EXPECT_EQ(kit.stored_option("Check2"), "0");
    EXPECT_EQ(kit.stored_option("Check3"), "1");
}

TEST_F(LoadTest, OfBothUserTextsStoredOnTheSecondStays) {
    set_user_text_a(kit);
    set_user_text_b(kit);
    put_option(kit, "Check8", "1");
    put_option(kit, "Check4_A", "1");
    put_option(kit, "Check4_B", "1");
    kit.start();
    EXPECT_FALSE(screen.Check4_A.value);
    EXPECT_TRUE(screen.Check4_B.value);
    EXPECT_TRUE(screen.Check8.value);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// Its box is taken up behind the use of the data, which has stored it by then.
TEST_F(LoadTest, StoredUseOfTheTextDataTurnsTheOnlyFileOn) {
    set_user_text_a(kit);
    put_option(kit, "Check8", "1");
    put_option(kit, "Check4_A", "0");
    kit.start();
    EXPECT_TRUE(screen.Check4_A.value);
    EXPECT_FALSE(screen.Check4_B.value);
    EXPECT_EQ(kit.stored_option("Check4_A"), "1");
}

TEST_F(LoadTest, StoredNoQslRuleLeavesTheStoredBandAndMode) {
    put_option(kit, "Option07", "0");
    put_option(kit, "Check19", "1");
    put_option(kit, "Check20", "1");
    kit.start();
    EXPECT_TRUE(screen.Check19.value);
    EXPECT_TRUE(screen.Check20.value);
    EXPECT_FALSE(screen.Check19.enabled);
}

TEST_F(LoadTest, CascadesAgreeWithTheStoredValues) {
    put_option(kit, "Option05", "1");
    put_option(kit, "Option07", "2");
    kit.start();
    EXPECT_TRUE(is_enabled(screen.Option09, 2));
    EXPECT_TRUE(screen.Check08.enabled);
    EXPECT_TRUE(is_enabled(screen.Option01, 0));
    EXPECT_TRUE(screen.Check20.enabled);
}

TEST_F(LoadTest, CascadesAgreeWithTheValuesOfANewFile) {
    kit.start();
    EXPECT_FALSE(is_enabled(screen.Option09, 0));
    EXPECT_FALSE(screen.Check08.enabled);
    EXPECT_FALSE(is_enabled(screen.Option01, 0));
    EXPECT_FALSE(screen.Check19.enabled);
    EXPECT_FALSE(is_enabled(screen.Option03, 0));
    EXPECT_FALSE(screen.tool_dat_by_hand.enabled);
}

TEST_F(LoadTest, TracesThatStoredOptionsAreTakenUp) {
    kit.start();
    EXPECT_THAT(kit.trace_lines(), testing::Contains("ini_read_2").Times(1));
}

// --- user texts ---

TEST_F(LoadTest, UserTextsWithoutAPathAskToBeSet) {
    kit.start();
    for (const CommandButton* const button : {&screen.cmdSet_UserTxt_A, &screen.cmdSet_UserTxt_B}) {
        EXPECT_EQ(button->caption.get(), "使用なら要 set") << button->name();
        EXPECT_EQ(button->tool_tip.get(), "ユーザーテキストの使用時はファイルを指定する")
            << button->name();
    }
}

TEST_F(LoadTest, StoredUserTextsAreShownByTheirNames) {
    set_user_text_a(kit);
    set_user_text_b(kit);
    kit.start();
    EXPECT_EQ(screen.cmdSet_UserTxt_A.caption.get(), "alpha");
    EXPECT_EQ(screen.cmdSet_UserTxt_B.caption.get(), "bravo");
}

TEST_F(LoadTest, ChosenUserTextComesBackAfterARestart) {
    set_user_text_a(kit);
    set_user_text_b(kit);
    kit.start();
    screen.Check8.value = true;
    screen.Check4_B.value = true;
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_TRUE(next.screen.Check8.value);
    EXPECT_FALSE(next.screen.Check4_A.value);
    EXPECT_TRUE(next.screen.Check4_B.value);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(LoadTest, ChosenUserTextThatIsGoneIsToldAndCleared) {
    put_option(kit, "Text_data_dir_A", "C:\\hamlog\\gone.txt");
    put_option(kit, "Check4_A", "1");
    put_option(kit, "Check8", "1");
    kit.start();
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text,
              "C:\\hamlog\\gone.txt が有りません！　設定内容をクリアします。　"
              "必要なら再設定して下さい。");
    EXPECT_FALSE(screen.Check4_A.value);
    EXPECT_FALSE(screen.Check8.value);
    EXPECT_EQ(kit.stored_option("Text_data_dir_A"), "");
    EXPECT_EQ(screen.cmdSet_UserTxt_A.caption.get(), "使用なら要 set");
}

// Nothing asks for it.
TEST_F(LoadTest, UserTextThatIsGoneButNotChosenStays) {
    put_option(kit, "Text_data_dir_B", "C:\\hamlog\\gone.txt");
    kit.start();
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_EQ(kit.stored_option("Text_data_dir_B"), "C:\\hamlog\\gone.txt");
}

// --- remark slots ---

std::vector<std::string> captions(const RemarkSlots& slots) {
    std::vector<std::string> shown;
    for (const RemarkSlot& slot : slots) {
        shown.push_back(slot.caption);
    }
    return shown;
}

TEST_F(LoadTest, ItemButtonsBearTheItems) {
    kit.start();
    std::vector<std::string> shown;
    for (const ItemButton& button : screen.Command1) {
        shown.push_back(button.caption);
    }
    EXPECT_THAT(shown,
                ElementsAre("memo", "memo=", "OP", "OP %", "ｺﾝﾃｽﾄ", "Rcvd", "Rmks1", "Rmks2"));
}

TEST_F(LoadTest, SlotsOfANewFileHoldTheContestAndTheSecondComment) {
    kit.start();
    EXPECT_THAT(captions(screen.lblRmks1), ElementsAre("ｺﾝﾃｽﾄ", "", "", "", "", ""));
    EXPECT_THAT(captions(screen.lblRmks2), ElementsAre("Rmks2", "", "", "", "", ""));
}

TEST_F(LoadTest, SlotsAreFilledFromTheSavedLists) {
    put_option(kit, "Rmks1_cfg", "memo,OP %,,Rcvd,,,");
    put_option(kit, "Rmks2_cfg", "Rmks1,Rmks2,,,,ｺﾝﾃｽﾄ,");
    kit.start();
    EXPECT_THAT(captions(screen.lblRmks1), ElementsAre("memo", "OP %", "", "Rcvd", "", ""));
    EXPECT_THAT(captions(screen.lblRmks2), ElementsAre("Rmks1", "Rmks2", "", "", "", "ｺﾝﾃｽﾄ"));
}

TEST_F(LoadTest, ButtonsOfItemsInSlotsShowTheirUse) {
    put_option(kit, "Rmks1_cfg", "memo,,,,,,");
    put_option(kit, "Rmks2_cfg", "Rcvd,OP,,,,,");
    kit.start();
    std::vector<bool> used;
    for (const ItemButton& button : screen.Command1) {
        used.push_back(button.in_use);
    }
    EXPECT_THAT(used, ElementsAre(true, false, true, false, false, true, false, false));
}

TEST_F(LoadTest, AnyEmptyListBringsTheFallback) {
    for (const char* const empty : {"Rmks1_cfg", "Rmks2_cfg", "Rmks1_cfg_len"}) {
        ProgramKit other;
        put_option(other, "Rmks1_cfg", "memo,,,,,,");
        put_option(other, "Rmks1_cfg_len", "5,0,0,0,0,0,");
        put_option(other, "Rmks2_cfg", "Rcvd,OP,,,,,");
        put_option(other, "Rmks2_cfg_len", "7,9,0,0,0,0,");
        put_option(other, empty, "");
        other.start();
        EXPECT_THAT(captions(other.screen().lblRmks1),
                    ElementsAre("ｺﾝﾃｽﾄ", "Rmks1", "", "", "", ""))
            << empty;
        EXPECT_THAT(captions(other.screen().lblRmks2), ElementsAre("Rmks2", "", "", "", "", ""))
            << empty;
        EXPECT_EQ(other.program->remark_lengths.sum(), 0U) << empty;
    }
}

// Its list of lengths is not asked about.
TEST_F(LoadTest, AnEmptySecondListOfLengthsLeavesTheSlots) {
    put_option(kit, "Rmks1_cfg", "memo,,,,,,");
    put_option(kit, "Rmks2_cfg", "Rcvd,OP,,,,,");
    put_option(kit, "Rmks1_cfg_len", "5,0,0,0,0,0,");
    put_option(kit, "Rmks2_cfg_len", "");
    kit.start();
    EXPECT_THAT(captions(screen.lblRmks2), ElementsAre("Rcvd", "OP", "", "", "", ""));
    EXPECT_EQ(kit.program->remark_lengths.of(RemarkItem::memo), 5U);
    EXPECT_EQ(kit.program->remark_lengths.of(RemarkItem::rcvd), 0U);
}

TEST_F(LoadTest, LengthsGoToTheItemsOfTheirSlots) {
    put_option(kit, "Rmks1_cfg", "memo,OP %,,Rcvd,,,");
    put_option(kit, "Rmks1_cfg_len", "10,0,7,4,0,0,");
    put_option(kit, "Rmks2_cfg", "Rmks1,ｺﾝﾃｽﾄ,,,,,");
    put_option(kit, "Rmks2_cfg_len", "0,12,0,0,0,0");
    kit.start();
    const RemarkLengths& lengths = kit.program->remark_lengths;
    EXPECT_EQ(lengths.of(RemarkItem::memo), 10U);
    EXPECT_EQ(lengths.of(RemarkItem::op_percent), 0U);
    EXPECT_EQ(lengths.of(RemarkItem::rcvd), 4U);
    EXPECT_EQ(lengths.of(RemarkItem::contest), 12U);
    EXPECT_EQ(lengths.sum(), 26U);
}

// The look-up of lengths knows the item by another name.
TEST_F(LoadTest, ALengthOfMemoEqualsIsLost) {
    put_option(kit, "Rmks1_cfg", "memo=,OP,,,,,");
    put_option(kit, "Rmks1_cfg_len", "8,6,0,0,0,0,");
    kit.start();
    EXPECT_EQ(screen.lblRmks1[0].caption.get(), "memo=");
    EXPECT_EQ(kit.program->remark_lengths.of(RemarkItem::memo_equals), 0U);
    EXPECT_EQ(kit.program->remark_lengths.of(RemarkItem::op), 6U);
}

TEST_F(LoadTest, OfAnItemInTwoSlotsTheLaterLengthStands) {
    put_option(kit, "Rmks1_cfg", "memo,,,,,,");
    put_option(kit, "Rmks1_cfg_len", "5,0,0,0,0,0,");
    put_option(kit, "Rmks2_cfg", "Rmks2,memo,,,,,");
    put_option(kit, "Rmks2_cfg_len", "0,9,0,0,0,0,");
    kit.start();
    EXPECT_EQ(kit.program->remark_lengths.of(RemarkItem::memo), 9U);
}

TEST_F(LoadTest, BadLengthsAreNone) {
    put_option(kit, "Rmks1_cfg", "memo,OP,Rcvd,,,,");
    put_option(kit, "Rmks1_cfg_len", "x,,-3,0,0,0,");
    kit.start();
    EXPECT_EQ(kit.program->remark_lengths.sum(), 0U);
}

TEST_F(LoadTest, AListOfLengthsThatIsTooShortLeavesTheOthersWithoutALength) {
    put_option(kit, "Rmks1_cfg", "memo,OP,Rcvd,,,,");
    put_option(kit, "Rmks1_cfg_len", "3");
    ASSERT_TRUE(kit.start());
    EXPECT_EQ(kit.program->remark_lengths.of(RemarkItem::memo), 3U);
    EXPECT_EQ(kit.program->remark_lengths.sum(), 3U);
}

TEST_F(LoadTest, AListOfSlotsThatIsTooShortLeavesTheOthersEmpty) {
    put_option(kit, "Rmks1_cfg", "memo,OP");
    ASSERT_TRUE(kit.start());
    EXPECT_THAT(captions(screen.lblRmks1), ElementsAre("memo", "OP", "", "", "", ""));
}

TEST_F(LoadTest, EmptyLengthsAreStoredAsNone) {
    put_option(kit, "Rmks1_cfg_len", ",5,,,");
    kit.start();
    EXPECT_THAT(kit.stored_option("Rmks1_cfg_len"), testing::StartsWith("0,5,0,"));
}

TEST_F(LoadTest, SlotsComeBackAfterARestart) {
    kit.start();
    ASSERT_TRUE(screen.find("lblRmks1(0)")->enter("memo"));
    ASSERT_TRUE(screen.find("lblRmks2(2)")->enter("Rcvd"));
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_EQ(next.screen.lblRmks1[0].caption.get(), "memo");
    EXPECT_EQ(next.screen.lblRmks2[2].caption.get(), "Rcvd");
}

TEST_F(LoadTest, ItemPutIntoASlotByHandShowsItsUse) {
    kit.start();
    screen.find("lblRmks1(3)")->enter("OP");
    EXPECT_TRUE(screen.Command1[2].in_use);
    screen.find("lblRmks1(3)")->enter("");
    EXPECT_FALSE(screen.Command1[2].in_use);
}

TEST_F(LoadTest, ARunStoresTheSlotsClosedUp) {
    kit.put_text("C:\\log\\x.all", sample_all_log);
    put_option(kit, "Rmks1_cfg", "ｺﾝﾃｽﾄ,,,memo,,,");
    put_option(kit, "Rmks1_cfg_len", "0,0,0,6,0,0,");
    put_option(kit, "Rmks2_cfg", ",,Rcvd,,,,");
    put_option(kit, "Rmks2_cfg_len", "0,0,3,0,0,0,");
    kit.start();
    kit.open("C:\\log\\x.all");
    screen.cmdStart.press();
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Rmks1_cfg"), "ｺﾝﾃｽﾄ,memo,,,,,");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Rmks1_cfg_len"), "0,6,0,0,0,0,");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Rmks2_cfg"), "Rcvd,,,,,,");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Rmks2_cfg_len"), "3,0,0,0,0,0,");
}

// --- tabs ---

TEST_F(LoadTest, FirstTabsAreOnTopInANewFile) {
    kit.start();
    EXPECT_EQ(screen.SSTab1.tab, 0);
    EXPECT_EQ(screen.SSTab2.tab, 0);
}

TEST_F(LoadTest, StoredUpperTabIsOnTop) {
    put_option(kit, "Option2", "1");
    put_option(kit, "disp_top_SSTab", "1");
    kit.start();
    EXPECT_EQ(screen.SSTab1.tab, 1);
    EXPECT_EQ(screen.SSTab2.tab, 0);
}

TEST_F(LoadTest, StoredLowerTabIsOnTop) {
    put_option(kit, "Option22", "3");
    put_option(kit, "disp_top_SSTab_2", "3");
    kit.start();
    EXPECT_EQ(screen.SSTab1.tab, 0);
    EXPECT_EQ(screen.SSTab2.tab, 3);
}

TEST_F(LoadTest, ChosenUpperTabComesBackOnTop) {
    kit.start();
    screen.Option2.index = 2;
    screen.tool_end.press();
    EXPECT_EQ(NextStart(kit).screen.SSTab1.tab, 2);
}

TEST_F(LoadTest, ChosenLowerTabComesBackOnTop) {
    kit.start();
    screen.Option22.index = 1;
    screen.tool_end.press();
    EXPECT_EQ(NextStart(kit).screen.SSTab2.tab, 1);
}

// A choice is for the next start: the page that is looked at stays.
TEST_F(LoadTest, ChoiceOfATabLeavesTheOneOnTop) {
    kit.start();
    screen.Option2.index = 2;
    screen.Option22.index = 1;
    EXPECT_EQ(screen.SSTab1.tab, 0);
    EXPECT_EQ(screen.SSTab2.tab, 0);
}

}  // namespace
}  // namespace veldrana
