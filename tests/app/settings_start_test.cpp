// What the settings files do to the start of the program and to its end, and what the program does
// to them.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/frmDate.h"
#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

using namespace std::string_literals;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::string folder = "C:\\veldrana\\";
const std::string new_positions = "[Config]\r\nversion=5.30\r\n\r\n";

// The text of a profile file with another value for one of its keys.
std::string with_value(std::string_view text, std::string_view key, std::string_view value) {
    const std::string found = "\r\n" + std::string(key) + "=";
    const std::size_t at = text.find(found) + found.size();
    const std::size_t end = text.find("\r\n", at);
    return std::string(text.substr(0, at)) + std::string(value) + std::string(text.substr(end));
}

class SettingsStart : public testing::Test {
  protected:
    explicit SettingsStart(Installed installed = Installed::ready)
        : kit("C:\\veldrana", installed) {}

    // The lines of the main section of the option file.
    void put_options(std::string_view lines) {
        kit.put_text(
            folder + "Veldrana_new.ini",
            "[Veldrana_new.ini]\r\nversion=5.30\r\nrestart=restart\r\n" + std::string(lines));
    }
    void put_environment(std::string_view key, std::string_view value) {
        kit.put_text(folder + "Veldrana_cfg.ini", with_value(ready_environment, key, value));
    }
    std::string text(std::string_view name) {
        return from_code_page(kit.memory.bytes(folder + std::string(name)));
    }
    bool there(std::string_view name) { return kit.memory.file_exists(folder + std::string(name)); }
    Start::Reached start() {
        kit.start();
        return kit.program->start.reached;
    }
    // A new program on the same disk, one minute later.
    Start::Reached start_again() {
        ++kit.clock.time.minute;
        kit.program.emplace(Ports{kit.disk, kit.clock, kit.person, kit.sorter, kit.services,
                                  kit.log_book, kit.processes},
                            "C:\\veldrana", "C:\\WINDOWS");
        return start();
    }
    OptionSettings& options() { return kit.program->settings.options; }
    EnvironmentSettings& environment() { return kit.program->settings.environment; }
    bool still_runs() { return !kit.program->ended() && kit.person.boxes.empty(); }

    ProgramKit kit;
};

class FirstSettingsStart : public SettingsStart {
  protected:
    FirstSettingsStart() : SettingsStart(Installed::bare) {}

    void install_everything() {
        kit.memory.put(folder + "name_mas.txt", "");
        kit.memory.put("C:\\Hamlog\\Hamlog.hdb", "");
        kit.memory.put("C:\\zLog\\acag.dat", "");
    }
};

// --- the first start and the next ---

TEST_F(FirstSettingsStart, MarksTheFileYetComesToTheEnvironmentDialog) {
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_EQ(kit.stored_option("restart"), "restart");
    EXPECT_FALSE(kit.program->settings.restart);
}

TEST_F(FirstSettingsStart, ComesToTheEnvironmentDialogWithEveryFolderFound) {
    install_everything();
    EXPECT_EQ(start(), Start::environment_dialog);
    for (const RequiredEntry& entry : required_entries) {
        EXPECT_NE(environment().*entry.value, "") << entry.key;
    }
    EXPECT_EQ(environment().name_mas_dir, folder);
    EXPECT_EQ(environment().hamlog_hdb_2_dir, "C:\\Hamlog\\Hamlog.hdb");
    EXPECT_EQ(environment().all_dir, "C:\\zLog\\");
}

TEST_F(FirstSettingsStart, MakesNoEnvironmentFileAndNoSnapshot) {
    start();
    EXPECT_FALSE(there("Veldrana_cfg.ini"));
    EXPECT_FALSE(there("Veldrana.ini"));
    EXPECT_FALSE(there("Veldrana_dat.ini"));
}

TEST_F(FirstSettingsStart, IsFollowedByOneThatGoesToTheMainScreen) {
    start();
    kit.put_text(folder + "Veldrana_cfg.ini", ready_environment);
    EXPECT_EQ(start_again(), Start::main_screen);
    EXPECT_TRUE(kit.program->settings.restart);
}

TEST_F(FirstSettingsStart, IsRepeatedUntilTheEnvironmentIsSaved) {
    install_everything();
    start();
    EXPECT_EQ(start_again(), Start::environment_dialog);
    EXPECT_FALSE(kit.program->settings.restart);
    kit.program->settings.write_Veldrana_cfg_ini();
    EXPECT_EQ(start_again(), Start::main_screen);
}

TEST_F(SettingsStart, WithoutAnOptionFileItIsAFirstStart) {
    kit.memory.remove(folder + "Veldrana_new.ini");
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_EQ(options().Check01, "1");
    EXPECT_EQ(kit.stored_option("restart"), "restart");
    EXPECT_EQ(environment().MyCalls, "JA1ZZZ");
}

TEST_F(SettingsStart, WithoutAnEnvironmentFileTheOptionsAreKept) {
    put_options("YYYY=2001\r\nmine=1\r\n");
    kit.memory.remove(folder + "Veldrana_cfg.ini");
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_FALSE(kit.program->settings.restart);
    EXPECT_EQ(kit.stored_option("YYYY"), "2001");
    EXPECT_EQ(kit.stored_option("mine"), "1");
    EXPECT_FALSE(there("Veldrana_cfg.ini"));
}

TEST_F(SettingsStart, WithoutTheMarkItComesToTheEnvironmentDialog) {
    kit.put_text(folder + "Veldrana_new.ini", "[Veldrana_new.ini]\r\nversion=5.30\r\n");
    EXPECT_EQ(start(), Start::environment_dialog);
}

class EachRequiredEntry : public SettingsStart,
                          public testing::WithParamInterface<RequiredEntry> {};

TEST_P(EachRequiredEntry, OpensTheEnvironmentDialogWhenItIsEmpty) {
    put_environment(GetParam().key, "");
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_TRUE(kit.program->settings.restart);
    EXPECT_TRUE(still_runs());
}

INSTANTIATE_TEST_SUITE_P(Keys, EachRequiredEntry, testing::ValuesIn(required_entries),
                         [](const auto& entry) { return std::string(entry.param.key); });

TEST_F(SettingsStart, OtherEntriesMayBeEmpty) {
    kit.put_text(folder + "Veldrana_cfg.ini",
                 with_value(with_value(ready_environment, "MyCalls", ""), "PassWords", ""));
    EXPECT_EQ(start(), Start::main_screen);
}

// --- the trace log ---

TEST_F(SettingsStart, CopiesItsFilesIntoTheTraceLog) {
    put_options("YYYY=2001\r\n");
    kit.put_text(folder + "Veldrana.ini", "[Veldrana.ini]\r\nYYYY=2002\r\n");
    start();
    const std::string line_of_equals(32, '=');
    std::vector<std::string> lines = kit.trace_lines();
    std::string trace;
    for (const std::string& line : lines) {
        trace += line + "\n";
    }
    const std::size_t environment_at =
        trace.find("=========  Veldrana_cfg.ini  ==== 起動時 =======\n[Veldrana_cfg.ini]\n");
    const std::size_t options_at = trace.find(
        "=========  Veldrana_new.ini  ==== 起動時 =======\n[Veldrana_new.ini]\n"
        "version=5.30\nrestart=restart\nYYYY=2001\n" +
        line_of_equals + "\n");
    const std::size_t snapshot_at =
        trace.find("=========  Veldrana.ini  ==== 起動時 =======\n[Veldrana.ini]\nYYYY=2002\n" +
                   line_of_equals + "\n");
    ASSERT_NE(snapshot_at, std::string::npos) << trace;
    EXPECT_LT(environment_at, options_at);
    EXPECT_LT(options_at, snapshot_at);
}

TEST_F(FirstSettingsStart, CopiesNothingIntoTheTraceLog) {
    start();
    EXPECT_THAT(kit.trace_lines(), Not(Contains(HasSubstr("起動時"))));
}

// --- versions ---

TEST_F(SettingsStart, AnOldEnvironmentOpensTheDialog) {
    put_environment("version", "4.10");
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_TRUE(kit.program->start.old_version);
}

TEST_F(SettingsStart, AnOldEnvironmentTakesThePositionsAway) {
    put_environment("version", "4.10");
    kit.put_text(folder + "Veldrana_posi.ini", "[Position_Veldrana]\r\nLeft=1\r\n");
    start();
    EXPECT_EQ(text("Veldrana_posi.ini"), new_positions);
}

TEST_F(SettingsStart, AnOldEnvironmentThatWasSavedIsOldNoMore) {
    put_environment("version", "4.10");
    start();
    kit.program->settings.write_Veldrana_cfg_ini();
    EXPECT_EQ(start_again(), Start::main_screen);
    EXPECT_FALSE(kit.program->start.old_version);
}

TEST_F(SettingsStart, AnOldVersionIsOneBelow509) {
    for (const auto& [version, reached] : std::vector<std::pair<std::string, Start::Reached>>{
             {"5.08", Start::environment_dialog},
             {"5.09", Start::main_screen},
             {"5.1", Start::main_screen},
             {"5.0t", Start::environment_dialog},  // reads as 5.00
             {"5.t9", Start::main_screen},         // reads as 5.09
             {"10.1", Start::main_screen},
             {"1.25", Start::environment_dialog}}) {
        put_environment("version", version);
        EXPECT_EQ(start_again(), reached) << version;
    }
}

TEST_F(SettingsStart, APresentVersionKeepsThePositions) {
    kit.put_text(folder + "Veldrana_posi.ini", "[Position_Veldrana]\r\nLeft=1\r\n");
    start();
    EXPECT_THAT(text("Veldrana_posi.ini"), HasSubstr("[Position_Veldrana]\r\nLeft=1\r\n"));
}

TEST_F(SettingsStart, OfTwoVersionsThatOfTheEnvironmentCounts) {
    kit.put_text(folder + "Veldrana_new.ini",
                 "[Veldrana_new.ini]\r\nversion=4.10\r\nrestart=restart\r\n");
    EXPECT_EQ(start(), Start::main_screen);
    kit.put_text(folder + "Veldrana_new.ini",
                 "[Veldrana_new.ini]\r\nversion=5.30\r\nrestart=restart\r\n");
    put_environment("version", "4.10");
    EXPECT_EQ(start_again(), Start::environment_dialog);
}

TEST_F(SettingsStart, AnEnvironmentOfAVeryOldVersionIsWrittenAnew) {
    for (const std::string version : {"", "1.24", "1.2t", "0.99", "abc"}) {
        put_environment("version", version);
        start_again();
        EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "version"), "5.30") << version;
        EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "all_dir"), "C:\\log\\") << version;
    }
}

TEST_F(SettingsStart, AnEnvironmentOfALessOldVersionIsNotWritten) {
    for (const std::string version : {"1.25", "4.10", "5.30"}) {
        put_environment("version", version);
        start_again();
        EXPECT_EQ(text("Veldrana_cfg.ini"), with_value(ready_environment, "version", version));
    }
}

TEST_F(SettingsStart, OptionsOfAVeryOldVersionMakeAMissingEnvironmentFile) {
    kit.memory.remove(folder + "Veldrana_cfg.ini");
    kit.put_text(folder + "Veldrana_new.ini",
                 "[Veldrana_new.ini]\r\nversion=1.20\r\nrestart=restart\r\n");
    start();
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "version"), "5.30");
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "qth_mas_dir"), "使用しない");
}

// --- the files beside them ---

TEST_F(SettingsStart, AMissingPositionFileIsMade) {
    start();
    EXPECT_EQ(text("Veldrana_posi.ini"), new_positions);
}

TEST_F(SettingsStart, OnTheWayToTheDialogTheHistoryTimesAreWritten) {
    put_environment("all_dir", "");
    start();
    EXPECT_EQ(kit.stored("Veldrana_fdt.ini", "Veldrana_fdt.ini", "version"), "5.30");
}

TEST_F(SettingsStart, OnTheWayToTheMainScreenTheyAreNot) {
    start();
    EXPECT_FALSE(there("Veldrana_fdt.ini"));
}

TEST_F(SettingsStart, HistoryTimesThatAreKnownStay) {
    kit.put_text(folder + "Veldrana_fdt.ini",
                 "[Sansyou_files QSO]\r\nhamlog_hdb_dir_FileDateTime_QSO=2026/05/01 10:00:00\r\n");
    put_environment("all_dir", "");
    start();
    EXPECT_EQ(
        kit.stored("Veldrana_fdt.ini", "Sansyou_files QSO", "hamlog_hdb_dir_FileDateTime_QSO"),
        "2026/05/01 10:00:00");
}

TEST_F(SettingsStart, WithoutHistoryTimesTheOptionsAreWritten) {
    put_options("");
    put_environment("all_dir", "");
    start();
    EXPECT_THAT(text("Veldrana_new.ini"), HasSubstr("\r\nCheck01=\r\n"));
}

TEST_F(SettingsStart, WithHistoryTimesTheOptionsStayAsTheyStandBeforeTheDialog) {
    put_options("");
    const std::string before = text("Veldrana_new.ini");
    kit.put_text(folder + "Veldrana_fdt.ini", "[Veldrana_fdt.ini]\r\nversion=5.30\r\n");
    put_environment("all_dir", "");
    start();
    EXPECT_EQ(text("Veldrana_new.ini"), before);
}

// --- which file wins ---

TEST_F(SettingsStart, TheSnapshotIsNeverLoadedButTakenAnew) {
    put_options("YYYY=2001\r\nCheck06=1\r\n");
    kit.put_text(folder + "Veldrana.ini", "[Veldrana.ini]\r\nYYYY=1999\r\nCheck06=0\r\n");
    start();
    EXPECT_EQ(options().YYYY, "2001");
    EXPECT_EQ(options().Check06, "1");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "YYYY"), "2001");
}

TEST_F(SettingsStart, BothOptionFilesAreWritten) {
    put_options("");
    start();
    for (const std::string_view file : {new_ini, snapshot_ini}) {
        EXPECT_EQ(kit.stored(file, file, "version"), "5.30") << file;
        EXPECT_EQ(kit.stored(file, file, "restart"), "restart") << file;
        EXPECT_EQ(kit.stored(file, file, "End_date"), "20260504") << file;
    }
}

TEST_F(SettingsStart, WhatTheUserPutIntoTheFileStays) {
    put_options("mine=1\r\nOption4=2\r\n[Mine]\r\na=b\r\n");
    start();
    EXPECT_EQ(kit.stored_option("mine"), "1");
    EXPECT_EQ(kit.stored_option("Option4"), "2");
    EXPECT_EQ(kit.stored(new_ini, "Mine", "a"), "b");
}

TEST_F(SettingsStart, TheChosenDatIsReadFromItsFile) {
    kit.put_text(folder + "Veldrana_dat.ini",
                 "[DAT_MAS]\r\nset_dat_in_name=C:\\zLog\\acag.dat\r\n");
    start();
    EXPECT_EQ(kit.program->settings.set_dat_in_name, "C:\\zLog\\acag.dat");
}

// --- asymmetries and cuts, through a start ---

TEST_F(SettingsStart, TheCheckBoxOfAGridComesBackEmpty) {
    kit.put_text(folder + "Veldrana_new.ini",
                 "[Veldrana_new.ini]\r\nrestart=restart\r\n[ColWidth_Grid]\r\nGrid4_Check1=1\r\n");
    start();
    EXPECT_EQ(options().Grid4_Check1, "");
    EXPECT_EQ(kit.stored(new_ini, "ColWidth_Grid", "Grid4_Check1"), "");
}

TEST_F(SettingsStart, OldNamesInAPriorityListAreReplacedInTheFile) {
    kit.put_text(folder + "Veldrana_new.ini",
                 "[Veldrana_new.ini]\r\nrestart=restart\r\n[DAT_MAS]\r\n"
                 "name_yusen_jun=user_txt,dat_mas,name_mas,qth_mas\r\n");
    start();
    EXPECT_EQ(options().name_yusen_jun, "Text_data,dat_mas,name_mas,qth_mas");
    EXPECT_EQ(kit.stored(new_ini, "DAT_MAS", "name_yusen_jun"),
              "Text_data,dat_mas,name_mas,qth_mas");
}

TEST_F(SettingsStart, ALongValueIsCutInTheFile) {
    const std::string cut(127, 'x');
    put_options("Text_data_dir_A=" + cut + "yyy\r\n");
    start();
    EXPECT_EQ(options().Text_data_dir_A, cut);
    EXPECT_THAT(text("Veldrana_new.ini"), HasSubstr("\r\nText_data_dir_A=" + cut + "\r\n"));
}

// --- repairs ---

// The option file holds nothing but the mark of an earlier start.
class Repairs : public SettingsStart {
  protected:
    Repairs() { put_options(""); }
};

TEST_F(Repairs, ComeToTheMainScreen) {
    EXPECT_EQ(start(), Start::main_screen);
    EXPECT_TRUE(still_runs());
}

TEST_F(Repairs, EmptyColoursAreNotThoseOfANewFile) {
    start();
    EXPECT_EQ(options().dat_mas_color, "16744576");
    EXPECT_EQ(options().name_mas_color, "4227072");
    EXPECT_EQ(options().qth_mas_color, "4425690");
    EXPECT_EQ(options().text_data_color, "16744448");
}

TEST_F(Repairs, EmptyPriorityLists) {
    start();
    EXPECT_EQ(options().name_yusen_jun, "dat_mas,name_mas,qth_mas,Text_data");
    EXPECT_EQ(options().code_yusen_jun, "dat_mas,name_mas,qth_mas,Text_data");
    EXPECT_EQ(options().qth_yusen_jun, "dat_mas,name_mas,qth_mas,Text_data");
}

TEST_F(Repairs, EmptyStartOfThePeriod) {
    start();
    EXPECT_EQ(options().Start_date, "19600101");
}

TEST_F(Repairs, EmptyEndOfThePeriod) {
    start();
    EXPECT_EQ(options().End_date, "20260504");
    EXPECT_EQ(kit.stored_option("End_date"), "20260504");
}

TEST_F(Repairs, EmptyOptionsWithoutAControl) {
    start();
    EXPECT_EQ(options().Option7, "0");
    EXPECT_EQ(options().Option8, "0");
    EXPECT_EQ(options().Option9, "0");
}

TEST_F(Repairs, EmptyYear) {
    kit.clock.time.year = 2031;
    start();
    EXPECT_EQ(options().YYYY, "2031");
    EXPECT_EQ(kit.screen().txtYYYY.text.get(), "2031");
}

TEST_F(Repairs, EmptyBlankBetweenItems) {
    start();
    EXPECT_EQ(options().Check1, "1");
    EXPECT_EQ(kit.stored_option("Check1"), "1");
    EXPECT_TRUE(kit.screen().Check1.value);
}

TEST_F(Repairs, EmptyMarkOfAMember) {
    start();
    EXPECT_EQ(kit.screen().txtQSL_moji.text.get(), "K");
    EXPECT_EQ(options().QSL_moji, "K");
}

TEST_F(Repairs, EmptyAddressOfThePostalCodes) {
    start();
    EXPECT_EQ(options().url_ken_all_lzh,
              "https://www.post.japanpost.jp/zipcode/dl/kogaki/lzh/ken_all.lzh");
}

TEST_F(Repairs, OtherEmptyOptionsReadAsZeroAndNotAsTheirDefaults) {
    start();
    const MainScreen& screen = kit.screen();
    for (const CheckBox* const box : {&screen.Check01, &screen.Check15, &screen.Check4,
                                      &screen.Check5, &screen.Check6, &screen.Check06}) {
        EXPECT_FALSE(box->value) << box->name();
    }
    for (const OptionGroup* const group :
         {&screen.Option01, &screen.Option07, &screen.Option02, &screen.Option04, &screen.Option05,
          &screen.Option06, &screen.Option1, &screen.Option03, &screen.Option08, &screen.Option4}) {
        EXPECT_EQ(group->index.get(), 0) << group->name();
    }
}

TEST_F(SettingsStart, WhatIsSetIsNotRepaired) {
    kit.put_text(
        folder + "Veldrana_new.ini",
        "[Veldrana_new.ini]\r\nrestart=restart\r\nStart_date=20200131\r\n"
        "End_date=20210228\r\nuse_system_date_flag=0\r\nOption7=1\r\nOption8=1\r\n"
        "Option9=1\r\nYYYY=2001\r\nCheck1=0\r\n[JARL_Search]\r\nQSL_moji=M\r\n[DAT_MAS]\r\n"
        "name_yusen_jun=qth_mas,,,\r\ndat_mas_color=1\r\nname_mas_color=2\r\n"
        "qth_mas_color=3\r\ntext_data_color=4\r\n[Make_Yubin_mas]\r\n"
        "url_ken_all_lzh=https://example.jp/a.lzh\r\n");
    start();
    EXPECT_EQ(options().Start_date, "20200131");
    EXPECT_EQ(options().End_date, "20210228");
    EXPECT_EQ(options().Option7, "1");
    EXPECT_EQ(options().Option8, "1");
    EXPECT_EQ(options().Option9, "1");
    EXPECT_EQ(options().YYYY, "2001");
    EXPECT_EQ(options().Check1, "0");
    EXPECT_EQ(options().QSL_moji, "M");
    EXPECT_EQ(options().name_yusen_jun, "qth_mas,,,");
    EXPECT_EQ(options().dat_mas_color, "1");
    EXPECT_EQ(options().name_mas_color, "2");
    EXPECT_EQ(options().qth_mas_color, "3");
    EXPECT_EQ(options().text_data_color, "4");
    EXPECT_EQ(options().url_ken_all_lzh, "https://example.jp/a.lzh");
}

TEST_F(SettingsStart, TheLetterForNoCardIsRepairedByItsFlag) {
    for (const std::string flag : {"", "0"}) {
        kit.put_text(folder + "Veldrana_cfg.ini",
                     with_value(with_value(ready_environment, "No_QSL_moji", "X"),
                                "No_QSL_moji_set_flag", flag));
        ASSERT_EQ(start_again(), Start::main_screen);
        EXPECT_EQ(environment().No_QSL_moji, "N") << flag;
        EXPECT_EQ(environment().No_QSL_moji_set_flag, "1") << flag;
        EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "No_QSL_moji"), "N") << flag;
        EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "No_QSL_moji_set_flag"), "1") << flag;
    }
}

TEST_F(SettingsStart, ALetterForNoCardThatWasGivenStays) {
    for (const std::string letter : {"X", ""}) {
        put_environment("No_QSL_moji", letter);
        ASSERT_EQ(start_again(), Start::main_screen);
        EXPECT_EQ(environment().No_QSL_moji, letter);
        EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "No_QSL_moji"), letter);
    }
}

// --- the period ---

TEST_F(SettingsStart, AnEndThatFollowsTheClockIsOverwrittenAtEveryStart) {
    put_options("End_date=20200131\r\nuse_system_date_flag=1\r\n");
    start();
    EXPECT_EQ(kit.stored_option("End_date"), "20260504");
    kit.clock.time.day = 6;
    start_again();
    EXPECT_EQ(kit.stored_option("End_date"), "20260506");
}

TEST_F(SettingsStart, AnEndThatIsSetLosesItsSeparators) {
    for (const std::string date : {"2020/01/31", "2020-01-31"}) {
        put_options("End_date=" + date + "\r\nuse_system_date_flag=0\r\n");
        start_again();
        EXPECT_EQ(options().End_date, "20200131") << date;
        EXPECT_EQ(kit.stored_option("End_date"), "20200131") << date;
    }
}

TEST_F(SettingsStart, AnEmptyEndBecomesTodayWhateverTheFlag) {
    put_options("End_date=\r\nuse_system_date_flag=0\r\n");
    start();
    EXPECT_EQ(options().End_date, "20260504");
}

TEST_F(SettingsStart, TheTitleShowsThePeriod) {
    put_options("Start_date=19991231\r\nEnd_date=20200131\r\nuse_system_date_flag=0\r\n");
    start();
    EXPECT_THAT(kit.screen().window.caption.get(),
                StartsWith("  Veldrana  ver 5.30          参照抽出期間 1999 年 12 月 31 日"
                           "　～  2020 年 01 月 31 日     "));
}

TEST_F(SettingsStart, TheDialogOfThePeriodRenewsTheTitleAndTheFile) {
    put_options("Start_date=19991231\r\nEnd_date=20200131\r\nuse_system_date_flag=0\r\n");
    start();
    kit.person.forms.emplace_back([](WindowForm& form) {
        auto& dialog = dynamic_cast<frmDate&>(form);
        dialog.List2.select(12 - 3);
        dialog.cmdOK.press();
    });
    kit.screen().cmdDate.press();
    EXPECT_THAT(kit.screen().window.caption.get(),
                StartsWith("  Veldrana  ver 5.30               参照抽出期間 1999 年 03 月 31 日"
                           "　～  2020 年 01 月 31 日     "));
    EXPECT_EQ(kit.stored_option("Start_date"), "19990331");
}

TEST_F(SettingsStart, TheDialogOfThePeriodOverwritesAnEndThatFollowsTheClock) {
    put_options("Start_date=19991231\r\nuse_system_date_flag=1\r\n");
    start();
    kit.person.forms.emplace_back([this](WindowForm& form) {
        auto& dialog = dynamic_cast<frmDate&>(form);
        dialog.List6.select(31 - 1);
        kit.clock.time.day = 5;
        dialog.cmdOK.press();
    });
    kit.screen().cmdDate.press();
    EXPECT_EQ(kit.stored_option("End_date"), "20260505");
}

TEST_F(SettingsStart, AStartFarInTheFutureMakesTheDialogFail) {
    put_options("Start_date=20280131\r\n");
    ASSERT_EQ(start(), Start::main_screen);
    kit.screen().cmdDate.press();
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.trace_lines(), Contains(StartsWith("エラー発生")));
}

TEST_F(SettingsStart, ARunTakesFixedDaysForAPeriodThatIsNotSet) {
    kit.put_text("C:\\log\\x.all", sample_all_log);
    start();
    kit.open("C:\\log\\x.all");
    options().Start_date = "";
    options().End_date = "";
    kit.screen().cmdStart.press();
    EXPECT_EQ(options().Start_date, "19600101");
    EXPECT_EQ(options().End_date, "20100101");
}

// --- while the program runs ---

TEST_F(SettingsStart, TheControlsShowWhatIsStored) {
    put_options(
        "Option05=1\r\nOption09=2\r\nOption06=1\r\nOption08=3\r\nOption1=1\r\nCheck06=1\r\n"
        "Check10=1\r\nCheck21=1\r\nCheck18=1\r\nCheck01=0\r\nCheck3=1\r\nYYYY=2001\r\nQSL_Q=K\r\n");
    start();
    const MainScreen& screen = kit.screen();
    EXPECT_EQ(screen.Option05.index.get(), 1);
    EXPECT_EQ(screen.Option09.index.get(), 2);
    EXPECT_EQ(screen.Option06.index.get(), 1);
    EXPECT_EQ(screen.Option08.index.get(), 3);
    EXPECT_EQ(screen.Option1.index.get(), 1);
    EXPECT_TRUE(screen.Check06.value);
    EXPECT_TRUE(screen.Check10.value);
    EXPECT_TRUE(screen.Check21.value);
    EXPECT_TRUE(screen.Check18.value);
    EXPECT_FALSE(screen.Check01.value);
    EXPECT_TRUE(screen.Check3.value);
    EXPECT_EQ(screen.txtYYYY.text.get(), "2001");
    EXPECT_EQ(screen.txtQSL_Q.text.get(), "K");
}

TEST_F(SettingsStart, TheUpperTabThatWasChosenComesFirstAtTheNextStart) {
    start();
    kit.screen().Option2.index = 2;
    start_again();
    EXPECT_EQ(kit.screen().Option2.index.get(), 2);
    EXPECT_EQ(kit.screen().SSTab1.tab.get(), 2);
}

TEST_F(SettingsStart, TheLowerTabThatWasChosenComesFirstAtTheNextStart) {
    start();
    kit.screen().Option22.index = 3;
    start_again();
    EXPECT_EQ(kit.screen().Option22.index.get(), 3);
    EXPECT_EQ(kit.screen().SSTab2.tab.get(), 3);
}

TEST_F(SettingsStart, TheOptionsOfTheMemberSearchComeBack) {
    kit.put_text(folder + "Veldrana_new.ini",
                 "[Veldrana_new.ini]\r\nrestart=restart\r\n[JARL_Search]\r\nN_sreach_flag=1\r\n"
                 "N_ReWrite_flag=0\r\nNot_JARL_flag=1\r\nQSL_moji=M\r\n");
    start();
    EXPECT_TRUE(kit.screen().Check31.value);
    EXPECT_FALSE(kit.screen().Check32.value);
    EXPECT_TRUE(kit.screen().Check33.value);
    EXPECT_EQ(kit.screen().txtQSL_moji.text.get(), "M");
}

// Every key with a value that no new file has, where one may stand beside the others.
const std::vector<std::pair<std::string, std::vector<std::pair<std::string, std::string>>>>
    chosen_options{
        {"Veldrana_new.ini",
         {{"Option01", "0"},
          {"Option07", "2"},
          {"Option02", "1"},
          {"Option04", "1"},
          {"Check10", "1"},
          {"Check06", "1"},
          {"Option1", "1"},
          {"QSL_Q", "B"},
          {"QSL_S", "+"},
          {"Check01", "0"},
          {"Check15", "0"},
          {"Check19", "1"},
          {"Check20", "1"},
          {"Option05", "1"},
          {"Option06", "1"},
          {"Check21", "1"},
          {"YYYY", "2001"},
          {"Option09", "2"},
          {"Check08", "1"},
          {"Option03", "1"},
          {"Option08", "3"},
          {"Check1", "1"},
          {"Check2", "0"},
          {"Check3", "1"},
          {"Check4", "0"},
          {"Check5", "0"},
          {"Check6", "0"},
          {"Check7", "1"},
          {"Check07", "1"},
          {"Check14", "1"},
          {"Check16", "1"},
          {"Check17", "1"},
          {"Check18", "1"},
          {"Check03", "1"},
          {"Option7", "1"},
          {"Option8", "1"},
          {"Option9", "1"},
          {"Option2", "2"},
          {"disp_top_SSTab", "2"},
          {"Option22", "3"},
          {"disp_top_SSTab_2", "3"},
          {"Check9", "1"},
          {"Check11", "1"},
          {"Check12", "1"},
          {"Check13", "1"},
          {"Check23", "1"},
          {"DeBug_flag", "1"},
          {"Rmks1_cfg", "memo,OP,ｺﾝﾃｽﾄ,,,,"},
          {"Rmks2_cfg", "Rmks2,Rcvd,,,,,"},
          {"Rmks1_cfg_len", "3,0,5,0,0,0,"},
          {"Rmks2_cfg_len", "0,4,0,0,0,0,"},
          {"Start_date", "20010203"},
          {"End_date", "20040506"},
          {"use_system_date_flag", "0"}}},
        {"JARL_Search",
         {{"N_sreach_flag", "1"},
          {"N_ReWrite_flag", "1"},
          {"Not_JARL_flag", "1"},
          {"ReWrite_also_flag", "1"},
          {"QSL_moji", "M"}}},
        {"DAT_MAS",
         {{"name_yusen_jun", "qth_mas,name_mas,dat_mas,Text_data"},
          {"code_yusen_jun", "name_mas,qth_mas,dat_mas,Text_data"},
          {"qth_yusen_jun", "Text_data,name_mas,qth_mas,dat_mas"},
          {"dat_mas_color", "1"},
          {"name_mas_color", "2"},
          {"qth_mas_color", "3"},
          {"text_data_color", "4"}}},
        {"ColWidth_Grid", {{"get_ColWidth_Grid4", "1,2,3"}, {"get_ColWidth_Grid5", "4,5,6"}}},
        {"Main", {{"exe_rec", "7"}, {"Check_dat", "1"}}},
        {"Make_Yubin_mas",
         {{"Make_Yubin_mas_help_flag", "1"}, {"url_ken_all_lzh", "https://example.jp/a.lzh"}}}};

TEST_F(SettingsStart, AStartLeavesChosenOptionsAsTheyAre) {
    std::string lines;
    for (const auto& [section, keys] : chosen_options) {
        lines += "[" + section + "]\r\nrestart=restart\r\n";
        for (const auto& [key, value] : keys) {
            lines += key + "=" + value + "\r\n";
        }
    }
    kit.put_text(folder + "Veldrana_new.ini", lines);
    kit.put_text("C:\\Hamlog\\name_mas.txt", "heading\r\nheading\r\n JA1ZZA\r\n");
    ProfileFile environment(kit.memory, folder + "Veldrana_cfg.ini");
    environment.set_value(cfg_ini, "name_mas_dir", "C:\\Hamlog\\");
    ASSERT_TRUE(environment.save());
    ASSERT_EQ(start(), Start::main_screen);
    kit.program->settings.write_Veldrana_new_ini();
    for (const auto& [section, keys] : chosen_options) {
        for (const auto& [key, value] : keys) {
            EXPECT_EQ(kit.stored(new_ini, section, key), value) << key;
        }
    }
}

TEST_F(SettingsStart, OfTwoThatExcludeEachOtherTheOneReadLaterStands) {
    put_options("Check2=1\r\nCheck3=1\r\n");
    start();
    EXPECT_FALSE(kit.screen().Check2.value);
    EXPECT_TRUE(kit.screen().Check3.value);
}

TEST_F(SettingsStart, ATextForANumberReadsAsZero) {
    put_options("Option06=abc\r\nCheck06=abc\r\n");
    EXPECT_EQ(start(), Start::main_screen);
    EXPECT_EQ(kit.screen().Option06.index.get(), 0);
    EXPECT_FALSE(kit.screen().Check06.value);
}

TEST_F(SettingsStart, ANumberThatNoButtonHasDoesNoHarm) {
    for (const std::string number : {"9", "-1", "99999999999", "1e400"}) {
        put_options("Option06=" + number + "\r\nOption22=" + number + "\r\nCheck06=" + number +
                    "\r\n");
        EXPECT_EQ(start_again(), Start::main_screen) << number;
        EXPECT_TRUE(still_runs()) << number;
    }
}

TEST_F(SettingsStart, TheMenuOfTheSurveyToolsIsShownIfItsKeySaysSo) {
    for (const auto& [value, visible] :
         std::vector<std::pair<std::string, bool>>{{"1", true}, {"0", false}, {"", false}}) {
        kit.put_text(
            folder + "Veldrana_new.ini",
            "[Veldrana_new.ini]\r\nrestart=restart\r\n[Main]\r\nCheck_dat=" + value + "\r\n");
        start_again();
        EXPECT_EQ(kit.screen().mnuCheck_dat.visible.get(), visible) << value;
    }
}

TEST_F(SettingsStart, AMenuEntrySavesTheOptions) {
    start();
    options().Text_data_dir_B = "C:\\user.txt";
    kit.screen().make_ini.press();
    EXPECT_EQ(kit.stored_option("Text_data_dir_B"), "C:\\user.txt");
}

TEST_F(SettingsStart, EveryChangeOfAnOptionIsStoredAtOnce) {
    start();
    kit.screen().Check06.value = true;
    EXPECT_EQ(kit.stored_option("Check06"), "1");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Check06"), "0");
    kit.screen().Option06.index = 1;
    EXPECT_EQ(kit.stored_option("Option06"), "1");
}

TEST_F(SettingsStart, AChangeOfTheTimeRuleIsStoredInBothFiles) {
    start();
    kit.screen().Option08.index = 4;
    EXPECT_EQ(kit.stored_option("Option08"), "4");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Option08"), "4");
}

TEST_F(SettingsStart, TheStartOfARunTakesASnapshot) {
    kit.put_text("C:\\log\\x.all", sample_all_log);
    start();
    kit.open("C:\\log\\x.all");
    kit.screen().Check06.value = true;
    kit.screen().cmdStart.press();
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Check06"), "1");
}

// --- the end ---

TEST_F(SettingsStart, AnOrderlyEndCountsTheRunsOfTheProgram) {
    for (const auto& [before, after] :
         std::vector<std::pair<std::string, std::string>>{{"", "1"}, {"0", "1"}, {"41", "42"}}) {
        kit.put_text(
            folder + "Veldrana_new.ini",
            "[Veldrana_new.ini]\r\nrestart=restart\r\n[Main]\r\nexe_rec=" + before + "\r\n");
        ASSERT_EQ(start_again(), Start::main_screen);
        kit.screen().tool_end.press();
        EXPECT_EQ(kit.stored(new_ini, "Main", "exe_rec"), after) << before;
    }
}

TEST_F(SettingsStart, AnOrderlyEndDeletesTheChosenDatAndTheOldCopy) {
    start();
    kit.put_text(folder + "Veldrana.ini2", "x");
    kit.put_text(folder + "Veldrana_dat.ini", "[DAT_MAS]\r\nset_dat_in_name=C:\\a.dat\r\n");
    kit.screen().tool_end.press();
    EXPECT_FALSE(there("Veldrana.ini2"));
    EXPECT_FALSE(there("Veldrana_dat.ini"));
    EXPECT_TRUE(there("Veldrana_new.ini"));
    EXPECT_TRUE(there("Veldrana_cfg.ini"));
}

TEST_F(SettingsStart, AnOrderlyEndSavesWhatIsInMemory) {
    start();
    options().Text_data_dir_B = "C:\\user.txt";
    kit.screen().tool_end.press();
    EXPECT_EQ(kit.stored_option("Text_data_dir_B"), "C:\\user.txt");
}

TEST_F(SettingsStart, AnOrderlyEndSavesThePositionOfTheMainWindow) {
    start();
    kit.screen().window.placement =
        WindowPlacement{.state = 2, .left = 10, .top = 20, .width = 300, .height = 400};
    kit.screen().tool_end.press();
    EXPECT_EQ(kit.stored("Veldrana_posi.ini", "Position_Veldrana", "WindowState"), "2");
    EXPECT_EQ(kit.stored("Veldrana_posi.ini", "Position_Veldrana", "Left"), "10");
}

TEST_F(SettingsStart, TheMainWindowComesBackWhereItWasLeft) {
    kit.put_text(folder + "Veldrana_posi.ini",
                 "[Position_Veldrana]\r\nWindowState=0\r\nLeft=10\r\nTop=20\r\nWidth=300\r\n"
                 "Height=400\r\n");
    start();
    EXPECT_EQ(kit.screen().window.placement.get(),
              (WindowPlacement{.state = 0, .left = 10, .top = 20, .width = 300, .height = 400}));
}

// --- files as no program writes them ---

TEST_F(SettingsStart, AnEmptyOptionFileReadsAsBlank) {
    kit.memory.put(folder + "Veldrana_new.ini", "");
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_TRUE(still_runs());
    EXPECT_EQ(options().Check01, "");
}

TEST_F(SettingsStart, AFolderInPlaceOfTheOptionFileDoesNoHarm) {
    kit.memory.remove(folder + "Veldrana_new.ini");
    kit.memory.put_folder(folder + "Veldrana_new.ini");
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_TRUE(still_runs());
}

TEST_F(SettingsStart, AnEmptyEnvironmentFileReadsAsBlankAndGetsItsVersion) {
    kit.memory.put(folder + "Veldrana_cfg.ini", "");
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_TRUE(still_runs());
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "version"), "5.30");
}

TEST_F(SettingsStart, AFolderInPlaceOfTheEnvironmentFileDoesNoHarm) {
    kit.memory.remove(folder + "Veldrana_cfg.ini");
    kit.memory.put_folder(folder + "Veldrana_cfg.ini");
    EXPECT_EQ(start(), Start::environment_dialog);
    EXPECT_TRUE(still_runs());
    EXPECT_EQ(environment().qth_mas_dir, "使用しない");
}

TEST_F(SettingsStart, LineFeedsAloneDoNoHarm) {
    for (const std::string name : {"Veldrana_new.ini", "Veldrana_cfg.ini"}) {
        kit.put_text(folder + name, replace_all(text(name), "\r\n", "\n"));
    }
    EXPECT_EQ(start(), Start::main_screen);
    EXPECT_EQ(environment().MyCalls, "JA1ZZZ");
}

TEST_F(SettingsStart, AByteOrderMarkDoesNoHarm) {
    for (const std::string name : {"Veldrana_new.ini", "Veldrana_cfg.ini"}) {
        kit.memory.put(folder + name, "\xEF\xBB\xBF" + kit.memory.bytes(folder + name));
    }
    EXPECT_EQ(start(), Start::main_screen);
    EXPECT_EQ(environment().MyCalls, "JA1ZZZ");
}

TEST_F(SettingsStart, SmallFilesWithoutMeaningDoNoHarm) {
    for (const std::string name :
         {"Veldrana_posi.ini", "Veldrana_fdt.ini", "Veldrana_dat.ini", "Veldrana.ini"}) {
        for (const std::string& bytes : {""s, "[\r\n=\r\n]"s, "\xFF\xFE[\0C\0"s, "\x81"s}) {
            kit.memory.put(folder + name, bytes);
            EXPECT_EQ(start_again(), Start::main_screen) << name;
            EXPECT_TRUE(still_runs()) << name;
        }
        kit.memory.remove(folder + name);
    }
}

TEST_F(SettingsStart, FoldersInPlaceOfSmallFilesDoNoHarm) {
    for (const std::string name : {"Veldrana_fdt.ini", "Veldrana_dat.ini", "Veldrana.ini"}) {
        kit.memory.put_folder(folder + name);
    }
    EXPECT_EQ(start(), Start::main_screen);
    EXPECT_TRUE(still_runs());
}

TEST_F(SettingsStart, AnOptionFileThatCannotBeWrittenStaysAsItIs) {
    put_options("YYYY=2001\r\n");
    const std::string before = text("Veldrana_new.ini");
    kit.memory.protect(folder + "Veldrana_new.ini");
    EXPECT_EQ(start(), Start::main_screen);
    EXPECT_TRUE(still_runs());
    kit.screen().Check06.value = true;
    EXPECT_TRUE(still_runs());
    EXPECT_EQ(text("Veldrana_new.ini"), before);
}

}  // namespace
}  // namespace veldrana
