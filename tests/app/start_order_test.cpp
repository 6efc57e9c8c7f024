// The start step by step: which files it makes and reads, what it decides between the main screen
// and the environment dialog, what it tests and tells, and what the end leaves for the next start.
#include <cstdlib>
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/program_end.h"
#include "app/start_up.h"
#include "settings/window_positions.h"
#include "tests/app/stored_settings.h"

namespace veldrana {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::UnorderedElementsAre;

const std::string home = "C:\\veldrana\\";

// A folder that was started before; each test takes something away or changes it.
class StartTest : public testing::Test {
  protected:
    Start::Reached reached() const { return kit.program->start.reached; }
    SettingsStore& settings() { return kit.program->settings; }
    bool there(std::string_view name) { return kit.memory.file_exists(home + std::string(name)); }
    std::string text_of(std::string_view name) {
        return from_code_page(kit.memory.bytes(home + std::string(name)));
    }

    ProgramKit kit;
    MainScreen& screen = kit.screen();
};

// A folder with nothing in it but what a test puts there.
class FirstStart : public testing::Test {
  protected:
    Start::Reached reached() const { return kit.program->start.reached; }
    EnvironmentSettings& environment() { return kit.program->settings.environment; }
    bool there(std::string_view name) { return kit.memory.file_exists(home + std::string(name)); }
    // Everything that a start looks for.
    void put_all_that_is_found() {
        kit.put_text("C:\\veldrana\\name_mas.txt", "x\r\n");
        kit.put_text("C:\\Hamlog\\Hamlog.hdb", "x");
        kit.put_text("C:\\zLog\\acag.dat", "x\r\n");
    }

    ProgramKit kit{"C:\\veldrana", Installed::bare};
};

// --- the splash and the main screen ---

TEST_F(StartTest, SplashStandsUntilTheMainScreenIsThere) {
    std::vector<std::string> seen;
    Window& splash = kit.program->read_master.window;
    splash.visible = false;
    screen.window.visible = false;
    splash.visible.on_change = [&] { seen.emplace_back(splash.visible ? "splash" : "no splash"); };
    screen.window.visible.on_change = [&] {
        seen.emplace_back(screen.window.visible ? "main screen" : "no main screen");
    };
    kit.start();
    EXPECT_THAT(seen, ElementsAre("splash", "main screen", "no splash"));
}

TEST_F(StartTest, SplashTellsThatFilesAreRead) {
    EXPECT_EQ(kit.program->read_master.Label1.caption.get(), "　ファイルを読み込み中．．．．．");
}

TEST_F(StartTest, EnvironmentDialogComesWithoutTheMainScreen) {
    put_entry(kit, "zlo_dir", "");
    EXPECT_FALSE(kit.start());
    EXPECT_EQ(reached(), Start::environment_dialog);
    EXPECT_FALSE(screen.window.visible);
    EXPECT_EQ(kit.program->ended(), std::nullopt);
}

// --- the trace log ---

TEST_F(StartTest, AllThreeProfileFilesAreCopiedInTheirOrder) {
    kit.put_text(home + "Veldrana.ini", "[Veldrana.ini]\r\nCheck01=1\r\n");
    kit.start();
    const std::vector<std::string> lines = kit.trace_lines();
    const auto line = [&](std::string_view text) {
        return std::find(lines.begin(), lines.end(), text) - lines.begin();
    };
    const auto environment = line("=========  Veldrana_cfg.ini  ==== 起動時 =======");
    const auto options = line("=========  Veldrana_new.ini  ==== 起動時 =======");
    const auto snapshot = line("=========  Veldrana.ini  ==== 起動時 =======");
    EXPECT_EQ(environment, 3);
    EXPECT_LT(environment, options);
    EXPECT_LT(options, snapshot);
    EXPECT_LT(snapshot, line("Public Sub Main()"));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), std::string(32, '=')), 3);
}

// They are copied before anything writes them.
TEST_F(FirstStart, CopiesNoProfileFileIfNoneIsThere) {
    kit.start();
    std::vector<std::string> lines = kit.trace_lines();
    ASSERT_GE(lines.size(), 4U);
    lines.resize(4);
    EXPECT_THAT(lines, ElementsAre("ver : 5.30", "Main()", "strPath : C:\\veldrana\\",
                                   "Public Sub Main()"));
}

TEST_F(StartTest, LastStepOfANormalStartIsTraced) {
    kit.start();
    const std::vector<std::string> lines = kit.trace_lines();
    const auto first = std::find(lines.begin(), lines.end(), "Public Sub Main()");
    EXPECT_NE(std::find(first, lines.end(), "Public Sub Main2_bas_2()"), lines.end());
    EXPECT_THAT(lines, Not(Contains("Public Sub Main2_bas()")));
}

// --- the options of a new file ---

struct NewSection {
    std::string_view name;
    std::vector<ProfileFile::Entry> entries;
};

TEST_F(FirstStart, WritesTheOptionsOfANewFileInTheirOrder) {
    kit.start();
    const std::string columns =
        "600,1300,850,700,400,400,800,450,900,900,550,1800,3700,7100,7100,400";
    const std::string priority = "dat_mas,name_mas,qth_mas,Text_data";
    // Check boxes of the grids are asked for by names that nobody writes, so their "0" was lost by
    // the read behind the first write.
    const std::vector<NewSection> sections{
        {"Veldrana_new.ini",
         {{"version", "5.30"},
          {"restart", "restart"},
          {"Option01", "0"},
          {"Option07", "0"},
          {"Option02", "0"},
          {"Option04", "0"},
          {"Check10", "0"},
          {"Check06", "0"},
          {"Option1", "0"},
          {"QSL_Q", "J"},
          {"QSL_S", "*"},
          {"Check01", "1"},
          {"Check15", "1"},
          {"Check19", "0"},
          {"Check20", "0"},
          {"Option05", "0"},
          {"Option06", "0"},
          {"Check21", "0"},
          {"YYYY", "2026"},
          {"Check03", "0"},
          {"Option09", "0"},
          {"Check08", "0"},
          {"Option03", "0"},
          {"Option08", "0"},
          {"Check1", "0"},
          {"Rmks1_cfg", "ｺﾝﾃｽﾄ,,,,,,,,,,,,"},
          {"Rmks2_cfg", "Rmks2,,,,,,,,,,,,"},
          {"Rmks1_cfg_len", "0,0,0,0,0,0,0,0,0,0,0,0,"},
          {"Rmks2_cfg_len", "0,0,0,0,0,0,0,0,0,0,0,0,"},
          {"Start_date", "19600101"},
          {"End_date", "20260504"},
          {"use_system_date_flag", "1"},
          {"Check2", "0"},
          {"Check3", "0"},
          {"disp_top_SSTab", "0"},
          {"disp_top_SSTab_2", "0"},
          {"Check4", "1"},
          {"Check5", "1"},
          {"Check6", "1"},
          {"Check7", "0"},
          {"Check07", "0"},
          {"Check14", "0"},
          {"Check16", "0"},
          {"Check17", "0"},
          {"Check18", ""},
          {"Option7", "0"},
          {"Option8", "0"},
          {"Option9", "0"},
          {"Option2", "0"},
          {"Option22", "0"},
          {"Check4_A", "0"},
          {"Check4_B", "0"},
          {"Text_data_dir_A", ""},
          {"Text_data_dir_B", ""},
          {"Check8", "0"},
          {"Check9", "0"},
          {"Check11", "0"},
          {"Check12", "0"},
          {"Check13", "0"},
          {"Check23", "1"},
          {"DeBug_flag", "0"}}},
        {"JARL_Search",
         {{"N_sreach_flag", ""},
          {"N_ReWrite_flag", ""},
          {"Not_JARL_flag", ""},
          {"ReWrite_also_flag", ""},
          {"QSL_moji", ""}}},
        {"DAT_MAS",
         {{"name_yusen_jun", priority},
          {"code_yusen_jun", priority},
          {"qth_yusen_jun", priority},
          {"dat_mas_color", "16711680"},
          {"name_mas_color", "16776960"},
          {"qth_mas_color", "32768"},
          {"text_data_color", "16711935"}}},
        {"ColWidth_Grid",
         {{"get_ColWidth_Grid4", columns},
          {"Grid4_Check1", ""},
          {"get_ColWidth_Grid5", columns},
          {"Grid5_Check1", ""}}},
        {"Main", {{"exe_rec", "0"}, {"Check_dat", ""}}},
    };
    const ProfileFile file(kit.memory, home + "Veldrana_new.ini");
    for (const NewSection& section : sections) {
        const std::vector<ProfileFile::Entry> found = file.entries(section.name);
        ASSERT_EQ(found.size(), section.entries.size()) << section.name;
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_EQ(found[i].key, section.entries[i].key);
            EXPECT_EQ(found[i].value, section.entries[i].value) << found[i].key;
        }
    }
    EXPECT_THAT(file.section_names(), ElementsAre("Veldrana_new.ini", "JARL_Search", "DAT_MAS",
                                                  "ColWidth_Grid", "Main", "Make_Yubin_mas"));
    EXPECT_EQ(file.value("Make_Yubin_mas", "Make_Yubin_mas_help_flag"), "0");
    EXPECT_THAT(file.value("Make_Yubin_mas", "url_ken_all_lzh"),
                EndsWith("/zipcode/dl/kogaki/lzh/ken_all.lzh"));
}

TEST_F(FirstStart, WritesNoSnapshotOfTheOptions) {
    kit.start();
    EXPECT_FALSE(there("Veldrana.ini"));
}

// --- first and second start ---

TEST_F(FirstStart, GoesToTheEnvironmentDialog) {
    EXPECT_FALSE(kit.start());
    EXPECT_EQ(reached(), Start::environment_dialog);
}

TEST_F(FirstStart, GoesToTheEnvironmentDialogAlthoughAllWasFound) {
    put_all_that_is_found();
    kit.start();
    EXPECT_EQ(reached(), Start::environment_dialog);
    EXPECT_THAT(missing_entries(environment()), IsEmpty());
}

TEST_F(FirstStart, LeavesTheMarkOfAStartInTheFile) {
    kit.start();
    EXPECT_EQ(kit.stored_option("restart"), "restart");
    EXPECT_FALSE(kit.program->settings.restart);
}

// The dialog has saved the environment in between.
TEST_F(FirstStart, IsFollowedByOneThatGoesToTheMainScreen) {
    put_all_that_is_found();
    kit.start();
    kit.program->settings.write_Veldrana_cfg_ini();
    EXPECT_EQ(NextStart(kit).reached(), Start::main_screen);
}

TEST_F(FirstStart, GoesToTheEnvironmentDialogAlthoughTheEnvironmentIsStored) {
    kit.put_text(home + "Veldrana_cfg.ini", ready_environment);
    kit.start();
    EXPECT_EQ(reached(), Start::environment_dialog);
    EXPECT_EQ(NextStart(kit).reached(), Start::main_screen);
}

TEST_F(FirstStart, IsNotOverWhileAnEntryIsMissing) {
    kit.start();
    EXPECT_EQ(NextStart(kit).reached(), Start::environment_dialog);
}

TEST_F(StartTest, WithoutAnEnvironmentFileTheDialogComes) {
    kit.memory.remove(home + "Veldrana_cfg.ini");
    kit.put_text("C:\\veldrana\\name_mas.txt", "x\r\n");
    kit.put_text("C:\\Hamlog\\Hamlog.hdb", "x");
    kit.put_text("C:\\zLog\\acag.dat", "x\r\n");
    kit.start();
    EXPECT_THAT(missing_entries(settings().environment), IsEmpty());
    EXPECT_EQ(reached(), Start::environment_dialog);
    EXPECT_FALSE(settings().restart);
    EXPECT_EQ(kit.stored_option("restart"), "restart");
}

TEST_F(StartTest, OptionsAreKeptWhereTheEnvironmentFileIsMissing) {
    put_option(kit, "Check06", "1");
    kit.memory.remove(home + "Veldrana_cfg.ini");
    kit.start();
    EXPECT_EQ(settings().options.Check06, "1");
    EXPECT_EQ(kit.stored_option("Check06"), "1");
}

TEST_F(StartTest, WithEverythingSetTheMainScreenComes) {
    EXPECT_TRUE(kit.start());
    EXPECT_EQ(reached(), Start::main_screen);
    EXPECT_TRUE(screen.window.visible);
}

TEST_F(StartTest, WithoutTheMarkOfAStartTheDialogComes) {
    for (const char* const mark : {"", "1", "rest", "restarted"}) {
        ProgramKit other;
        put_option(other, "restart", mark);
        other.start();
        EXPECT_EQ(other.program->start.reached, Start::environment_dialog) << mark;
    }
    remove_key(kit, new_ini, new_ini, "restart");
    kit.start();
    EXPECT_EQ(reached(), Start::environment_dialog);
}

// --- what is found at a first start ---

TEST_F(FirstStart, FindsNothingOnAnEmptyDisk) {
    kit.start();
    EXPECT_THAT(missing_entries(environment()),
                UnorderedElementsAre("zlog_dat_dir", "name_mas_dir", "hamlog_hdb_dir",
                                     "hamlog_hdb_2_dir", "zlo_dir", "all_dir"));
}

TEST_F(FirstStart, UsesNoQthAndNoPostalMaster) {
    kit.put_text("C:\\veldrana\\qth_mas.txt", "x\r\n");
    kit.start();
    EXPECT_EQ(environment().qth_mas_dir, "使用しない");
    EXPECT_EQ(environment().yubin_mas_dir, "使用しない");
}

TEST_F(FirstStart, FindsTheNameMasterBesideTheProgram) {
    kit.put_text("C:\\veldrana\\name_mas.txt", "x\r\n");
    kit.start();
    EXPECT_EQ(environment().name_mas_dir, "C:\\veldrana\\");
}

TEST_F(FirstStart, FindsTheLogBookBelowTheProgramFiles) {
    kit.put_text("C:\\Program Files\\Hamlog\\Hamlog.hdb", "x");
    kit.start();
    EXPECT_EQ(environment().hamlog_hdb_dir, "C:\\Program Files\\Hamlog\\Hamlog.hdb");
    EXPECT_EQ(environment().hamlog_hdb_2_dir, "C:\\Program Files\\Hamlog\\Hamlog.hdb");
}

TEST_F(FirstStart, PrefersTheLogBookInTheRoot) {
    kit.put_text("C:\\Program Files\\Hamlog\\Hamlog.hdb", "x");
    kit.put_text("C:\\Hamlog\\Hamlog.hdb", "x");
    kit.start();
    EXPECT_EQ(environment().hamlog_hdb_dir, "C:\\Hamlog\\Hamlog.hdb");
    EXPECT_EQ(environment().hamlog_hdb_2_dir, "C:\\Hamlog\\Hamlog.hdb");
}

TEST_F(FirstStart, FindsTheLoggerBelowTheProgramFiles) {
    kit.put_text("C:\\Program Files\\zLog\\acag.dat", "x\r\n");
    kit.start();
    EXPECT_EQ(environment().zlog_dat_dir, "C:\\Program Files\\zLog\\");
    EXPECT_EQ(environment().zlo_dir, "C:\\Program Files\\zLog\\");
    EXPECT_EQ(environment().all_dir, "C:\\Program Files\\zLog\\");
}

TEST_F(FirstStart, PrefersTheLoggerInTheRoot) {
    kit.put_text("C:\\Program Files\\zLog\\acag.dat", "x\r\n");
    kit.put_text("C:\\zLog\\acag.dat", "x\r\n");
    kit.start();
    EXPECT_EQ(environment().zlog_dat_dir, "C:\\zLog\\");
    EXPECT_EQ(environment().zlo_dir, "C:\\zLog\\");
    EXPECT_EQ(environment().all_dir, "C:\\zLog\\");
}

TEST(FirstStartOnAnotherDrive, LooksOnTheDriveOfTheProgram) {
    ProgramKit kit("D:\\radio\\veldrana", Installed::bare);
    kit.put_text("C:\\Hamlog\\Hamlog.hdb", "x");
    kit.put_text("D:\\zLog\\acag.dat", "x\r\n");
    kit.start();
    EXPECT_EQ(kit.program->settings.environment.hamlog_hdb_dir, "");
    EXPECT_EQ(kit.program->settings.environment.all_dir, "D:\\zLog\\");
}

// --- empty entries ---

class EmptyEntry : public StartTest, public testing::WithParamInterface<std::string> {};
INSTANTIATE_TEST_SUITE_P(Entries, EmptyEntry,
                         testing::Values("zlog_dat_dir", "name_mas_dir", "qth_mas_dir",
                                         "yubin_mas_dir", "hamlog_hdb_dir", "hamlog_hdb_2_dir",
                                         "zlo_dir", "all_dir"),
                         [](const testing::TestParamInfo<std::string>& row) { return row.param; });

TEST_P(EmptyEntry, BringsTheEnvironmentDialog) {
    put_entry(kit, GetParam(), "");
    kit.start();
    EXPECT_EQ(reached(), Start::environment_dialog);
    EXPECT_TRUE(settings().restart);
    EXPECT_FALSE(kit.program->start.old_version);
}

TEST_P(EmptyEntry, IsNamed) {
    put_entry(kit, GetParam(), "");
    kit.start();
    EXPECT_THAT(missing_entries(settings().environment), ElementsAre(GetParam()));
}

TEST_P(EmptyEntry, IsOneWhoseKeyIsMissingToo) {
    remove_key(kit, cfg_ini, cfg_ini, GetParam());
    kit.start();
    EXPECT_EQ(reached(), Start::environment_dialog);
    EXPECT_THAT(missing_entries(settings().environment), ElementsAre(GetParam()));
}

TEST_P(EmptyEntry, IsOneOfBlanksToo) {
    put_entry(kit, GetParam(), "   ");
    kit.start();
    EXPECT_EQ(reached(), Start::environment_dialog);
}

TEST_F(StartTest, OtherEntriesMayBeEmpty) {
    for (const char* const key : {"MyCalls", "PassWords", "dir_pad", "master_name"}) {
        ProgramKit other;
        put_entry(other, key, "");
        EXPECT_TRUE(other.start()) << key;
    }
}

// --- versions ---

struct VersionRow {
    const char* name;
    std::string_view version;
    bool old;
};
void PrintTo(const VersionRow& row, std::ostream* out) {
    *out << row.name;
}

class StoredVersion : public StartTest, public testing::WithParamInterface<VersionRow> {
  protected:
    void put() { put_entry(kit, "version", GetParam().version); }
};
INSTANTIATE_TEST_SUITE_P(
    Versions, StoredVersion,
    testing::Values(VersionRow{"Blank", "", true}, VersionRow{"V1_24", "1.24", true},
                    VersionRow{"V4_10", "4.10", true}, VersionRow{"V5_0", "5.0", true},
                    VersionRow{"V5_08", "5.08", true}, VersionRow{"V5_0t", "5.0t", true},
                    VersionRow{"V5_09", "5.09", false}, VersionRow{"V5_10", "5.10", false},
                    VersionRow{"V5_1t", "5.1t", false}, VersionRow{"V5_30", "5.30", false},
                    VersionRow{"V6", "6", false}),
    [](const testing::TestParamInfo<VersionRow>& row) { return std::string(row.param.name); });

TEST_P(StoredVersion, BringsTheEnvironmentDialogIfItIsOld) {
    put();
    kit.start();
    EXPECT_EQ(kit.program->start.old_version, GetParam().old);
    EXPECT_EQ(reached(), GetParam().old ? Start::environment_dialog : Start::main_screen);
}

TEST_P(StoredVersion, TakesThePositionsOfTheWindowsAwayIfItIsOld) {
    const std::string positions =
        "[Config]\r\nversion=4.00\r\n\r\n[Position_Veldrana]\r\nLeft=1\r\n";
    kit.put_text(home + "Veldrana_posi.ini", positions);
    put();
    kit.start();
    EXPECT_EQ(text_of("Veldrana_posi.ini"),
              GetParam().old ? "[Config]\r\nversion=5.30\r\n\r\n" : positions);
}

TEST_P(StoredVersion, IsRenewedInTheFileBelowOnePointTwoFive) {
    put();
    kit.start();
    const bool renewed = GetParam().version.empty() || GetParam().version == "1.24";
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "version"), renewed ? "5.30" : GetParam().version);
}

TEST_F(StartTest, OnePointTwoFiveIsNotRenewed) {
    put_entry(kit, "version", "1.25");
    kit.start();
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "version"), "1.25");
    EXPECT_TRUE(kit.program->start.old_version);
}

TEST_F(StartTest, AMissingVersionIsABlankOne) {
    remove_key(kit, cfg_ini, cfg_ini, "version");
    kit.start();
    EXPECT_TRUE(kit.program->start.old_version);
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "version"), "5.30");
}

TEST_F(StartTest, RenewedEnvironmentKeepsItsEntries) {
    put_entry(kit, "version", "");
    kit.start();
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "hamlog_hdb_dir"), "C:\\Hamlog\\Hamlog.hdb");
    EXPECT_EQ(kit.stored(cfg_ini, cfg_ini, "MyCalls"), "JA1ZZZ");
}

// The file that is read last tells the version.
TEST_F(StartTest, VersionOfTheOptionsDoesNotCountBesideTheEnvironment) {
    put_option(kit, "version", "4.10");
    EXPECT_TRUE(kit.start());
    EXPECT_FALSE(kit.program->start.old_version);
    EXPECT_EQ(kit.stored_option("version"), "5.30");
}

TEST_F(StartTest, VersionOfTheOptionsCountsWithoutAnEnvironment) {
    put_option(kit, "version", "4.10");
    kit.memory.remove(home + "Veldrana_cfg.ini");
    kit.start();
    EXPECT_TRUE(kit.program->start.old_version);
}

// --- the other files of a start ---

TEST_F(StartTest, PositionFileIsMadeOfThreeLines) {
    kit.start();
    EXPECT_EQ(text_of("Veldrana_posi.ini"), "[Config]\r\nversion=5.30\r\n\r\n");
}

TEST_F(StartTest, PositionFileThatIsThereStays) {
    kit.put_text(home + "Veldrana_posi.ini", "[Position_frmDate]\r\nLeft=5\r\n");
    kit.start();
    EXPECT_EQ(text_of("Veldrana_posi.ini"), "[Position_frmDate]\r\nLeft=5\r\n");
}

TEST_F(StartTest, TimesOfTheHistoryAreWrittenOnTheWayToTheDialog) {
    put_entry(kit, "zlo_dir", "");
    kit.start();
    EXPECT_EQ(kit.stored(history_times_ini, history_times_ini, "version"), "5.30");
}

TEST_F(StartTest, TimesOfTheHistoryAreNotWrittenByANormalStart) {
    kit.start();
    EXPECT_FALSE(there("Veldrana_fdt.ini"));
}

TEST_F(StartTest, TimesOfTheHistoryThatAreThereSurviveTheWayToTheDialog) {
    put_value(kit, history_times_ini, "Sansyou_files QSL_sent",
              "hamlog_hdb_dir_FileDateTime_QSL_sent", "2026/05/01 10:11:12");
    put_entry(kit, "zlo_dir", "");
    kit.start();
    EXPECT_EQ(kit.stored(history_times_ini, "Sansyou_files QSL_sent",
                         "hamlog_hdb_dir_FileDateTime_QSL_sent"),
              "2026/05/01 10:11:12");
}

// What a read has put right shows that the file was written again.
TEST_F(StartTest, WithoutTimesOfTheHistoryTheOptionsAreWrittenAgain) {
    put_value(kit, new_ini, "DAT_MAS", "qth_yusen_jun", "user_txt,dat_mas,name_mas,qth_mas");
    put_entry(kit, "zlo_dir", "");
    kit.start();
    EXPECT_EQ(kit.stored(new_ini, "DAT_MAS", "qth_yusen_jun"),
              "Text_data,dat_mas,name_mas,qth_mas");
}

TEST_F(StartTest, WithTimesOfTheHistoryTheOptionsStayAsTheyAre) {
    kit.put_text(home + "Veldrana_fdt.ini", "[Veldrana_fdt.ini]\r\nversion=5.30\r\n");
    put_value(kit, new_ini, "DAT_MAS", "qth_yusen_jun", "user_txt,dat_mas,name_mas,qth_mas");
    put_entry(kit, "zlo_dir", "");
    kit.start();
    EXPECT_EQ(kit.stored(new_ini, "DAT_MAS", "qth_yusen_jun"), "user_txt,dat_mas,name_mas,qth_mas");
}

TEST_F(StartTest, ABlankAddressOfThePostalCodesGetsItsDefault) {
    put_value(kit, new_ini, "Make_Yubin_mas", "url_ken_all_lzh", "");
    kit.start();
    EXPECT_THAT(settings().options.url_ken_all_lzh, EndsWith("/zipcode/dl/kogaki/lzh/ken_all.lzh"));
}

TEST_F(StartTest, AnAddressOfThePostalCodesStays) {
    put_value(kit, new_ini, "Make_Yubin_mas", "url_ken_all_lzh", "https://example.jp/k.lzh");
    kit.start();
    EXPECT_EQ(settings().options.url_ken_all_lzh, "https://example.jp/k.lzh");
}

TEST_F(StartTest, FolderOfTheMarksIsSetByANormalStart) {
    kit.start();
    EXPECT_EQ(kit.program->paths.qsl_dir, "C:\\veldrana\\\\qsl_dir\\");
}

TEST_F(StartTest, FolderOfTheMarksStaysEmptyOnTheWayToTheDialog) {
    put_entry(kit, "zlo_dir", "");
    kit.start();
    EXPECT_EQ(kit.program->paths.qsl_dir, "");
}

TEST_F(StartTest, WorkingTreeIsMadeOnTheWayToTheDialogToo) {
    put_entry(kit, "zlo_dir", "");
    kit.start();
    for (const char* const folder :
         {"Temp_Files", "qsl_dir", "Error_Log", "BackUp", "Yubin_m_new"}) {
        EXPECT_TRUE(kit.memory.folder_exists(home + folder)) << folder;
    }
}

// The options that stood there when something was last started.
TEST_F(StartTest, SnapshotIsNotLoadedByAStart) {
    kit.put_text(home + "Veldrana.ini", "[Veldrana.ini]\r\nCheck06=1\r\nQSL_Q=X\r\n");
    kit.start();
    EXPECT_FALSE(screen.Check06.value);
    EXPECT_EQ(screen.txtQSL_Q.text.get(), "J");
}

TEST_F(StartTest, SnapshotIsSavedByANormalStart) {
    put_option(kit, "Check06", "1");
    kit.start();
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Check06"), "1");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "restart"), "restart");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "version"), "5.30");
}

// --- what reading and writing the options puts right ---

TEST_F(StartTest, SectionsAndKeysAreFoundInAnyCase) {
    kit.put_text(home + "Veldrana_new.ini",
                 "[VELDRANA_NEW.INI]\r\nRESTART=restart\r\nVersion=5.30\r\ncheck06=1\r\n"
                 "[jarl_search]\r\nqsl_MOJI=M\r\n");
    EXPECT_TRUE(kit.start());
    EXPECT_TRUE(screen.Check06.value);
    EXPECT_EQ(screen.txtQSL_moji.text.get(), "M");
}

// Written under one name and asked for under another.
TEST_F(StartTest, BoxesOfTheGridsComeBackEmpty) {
    put_value(kit, new_ini, "ColWidth_Grid", "Grid4_Check1", "1");
    put_value(kit, new_ini, "ColWidth_Grid", "Grid5_Check1", "1");
    kit.start();
    EXPECT_EQ(settings().options.Grid4_Check1, "");
    EXPECT_EQ(settings().options.Grid5_Check1, "");
    EXPECT_EQ(kit.stored(new_ini, "ColWidth_Grid", "Grid4_Check1"), "");
}

TEST_F(StartTest, BoxesOfTheGridsAreFoundUnderTheNameThatNobodyWrites) {
    put_value(kit, new_ini, "ColWidth_Grid", "Grid4_Check1_", "1");
    kit.start();
    EXPECT_EQ(settings().options.Grid4_Check1, "1");
}

TEST_F(StartTest, AWriteClosesGapsOfTheLengthsInOnePass) {
    settings().options.Rmks1_cfg_len = ",5,,,";
    settings().write_Veldrana_new_ini();
    EXPECT_EQ(kit.stored_option("Rmks1_cfg_len"), "0,5,0,,");
}

TEST_F(StartTest, ALongValueIsCutByTheReadAndStoredSo) {
    put_value(kit, new_ini, "JARL_Search", "ReWrite_also_flag", std::string(300, '7'));
    kit.start();
    EXPECT_EQ(settings().options.ReWrite_also_flag, std::string(127, '7'));
    EXPECT_EQ(ProfileFile(kit.memory, home + "Veldrana_new.ini").entries("JARL_Search").at(3).value,
              std::string(127, '7'));
}

TEST_F(StartTest, ValuesAreStoredWithoutTheBlanksAroundThem) {
    settings().options.QSL_Q = "  B ";
    settings().write_Veldrana_new_ini();
    EXPECT_THAT(text_of("Veldrana_new.ini"), HasSubstr("\r\nQSL_Q=B\r\n"));
}

TEST_F(StartTest, KeysOfNobodyStayInTheFile) {
    put_option(kit, "my_note", "kept");
    kit.start();
    EXPECT_EQ(kit.stored_option("my_note"), "kept");
}

// --- the services and the files that come with the program ---

const std::string by_hand = "\n\nC:\\WINDOWS\\System\\ 又は C:\\WINDOWS\\System32\\\n\nフォルダに ";
const std::string beside_the_program = "\n\nVeldrana．exe と同じフォルダにコピーして下さい。";

struct NeededRow {
    const char* name;
    std::optional<Service> service;
    std::string_view file;
    std::string title;
    std::string text;
};
void PrintTo(const NeededRow& row, std::ostream* out) {
    *out << row.name;
}

const std::vector<NeededRow> needed{
    {"LogBookReader", Service::log_book_reader, "", "　　HAMLOG50．DLL　がありません。",
     "[　HAMLOG50．DLL  ] がありません。" + by_hand + "HAMLOG50．DLL をコピーして下さい。"},
    {"LogBookTexts", Service::log_book_texts, "", "　　THDLL2VB．DLL　がありません。",
     "[　THDLL2VB．DLL  ] がありません。" + by_hand + "THDLL2VB.dll をコピーして下さい。"},
    {"Sorter", Service::sorter, "", "　　KSORT32．DLL　がありません。",
     "[　KSORT32．DLL  ] がありません。" + by_hand + "KSORT32．DLL をコピーして下さい。"},
    {"RemarkHistory",
     {},
     "Veldrana_Rireki.cfg",
     "　　Veldrana_Ｒｉｒｅｋｉ．ｃｆｇ　がありません。",
     "[　Veldrana_Rireki．cfg  ] がありません。\n\n同梱されているサンプルファイルを" +
         beside_the_program},
    {"CodeMaster",
     {},
     "hl_code.mas",
     "　　ｈｌ_ｃｏｄｅ．ｍａｓ　がありません。",
     "[　hl_code．mas  ] がありません。\n\n同梱されているファイルを" + beside_the_program},
    {"ContestList",
     {},
     "mas_mst\\contest_name.csv",
     "　　ｃｏｎｔｅｓｔ_ｎａｍｅ．ｃｓｖ　がありません。",
     "[　contest_name．csv  ] がありません。\n\n同梱されているファイルを\n\n"
     "Veldrana．exe と同じフォルダ内の \\mas_mst\\ フォルダにコピーして下さい。"},
    {"CodeMasterMaker",
     {},
     "Make_hl_code_mas.txt",
     "　　Ｍａｋｅ_ｈｌ_ｃｏｄｅ_ｍａｓ．ｔｘｔ　がありません。",
     "[　Make_hl_code_mas．txt  ] がありません。\n\n同梱されているファイルを" + beside_the_program},
};

// A variable of the process for one test.
class Variable {
  public:
    Variable(const char* name, const char* value) : name_(name) {
        if (const char* const before = std::getenv(name)) {
            before_ = before;
        }
        setenv(name, value, 1);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() {
        if (before_) {
            setenv(name_, before_->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }

  private:
    const char* name_;
    std::optional<std::string> before_;
};

// The environment dialog was left.
class NeededTest : public testing::Test {
  protected:
    NeededTest() {
        for (const NeededRow& row : needed) {
            if (!row.file.empty()) {
                kit.put_text(home + std::string(row.file), "x\r\n");
            }
        }
        kit.start();
        kit.person.boxes.clear();
    }
    void take_away(const NeededRow& row) {
        if (row.service) {
            kit.services.missing = row.service;
        } else {
            kit.memory.remove(home + std::string(row.file));
        }
    }
    void test() {
        kit.program->event([this] { Main2_bas(*kit.program); });
    }
    Variable windows{"WINDIR", "C:\\WINDOWS"};
    ProgramKit kit;
};

class EveryNeeded : public NeededTest, public testing::WithParamInterface<NeededRow> {};
INSTANTIATE_TEST_SUITE_P(Rows, EveryNeeded, testing::ValuesIn(needed),
                         [](const testing::TestParamInfo<NeededRow>& row) {
                             return std::string(row.param.name);
                         });

TEST_P(EveryNeeded, IsToldByTitleIfItIsMissing) {
    take_away(GetParam());
    test();
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, GetParam().title);
}

TEST_P(EveryNeeded, IsToldWithWhatToDoIfItIsMissing) {
    take_away(GetParam());
    test();
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text, GetParam().text);
}

TEST_P(EveryNeeded, EndsTheProgramIfItIsMissing) {
    take_away(GetParam());
    test();
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].icon, Icon::critical);
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::refused);
}

// Only the contest list is read by every start.
TEST_P(EveryNeeded, IsNotMissedByANormalStart) {
    take_away(GetParam());
    NextStart next(kit);
    if (GetParam().file == "mas_mst\\contest_name.csv") {
        EXPECT_EQ(next.program.ended(), ProgramEnd::Cause::reported);
        EXPECT_THAT(kit.person.boxes.at(0).text, HasSubstr("エラー発生 ：　53"));
        return;
    }
    EXPECT_EQ(next.reached(), Start::main_screen);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// The start has read it before; it may stand elsewhere by now.
TEST_F(NeededTest, FolderOfTheSystemIsReadAgain) {
    const Variable moved("WINDIR", "D:\\WINNT");
    kit.services.missing = Service::sorter;
    test();
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_THAT(kit.person.boxes[0].text,
                HasSubstr("\n\nD:\\WINNT\\System\\ 又は D:\\WINNT\\System32\\\n\n"));
}

TEST_F(NeededTest, NothingIsToldIfAllIsThere) {
    test();
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_EQ(kit.program->ended(), std::nullopt);
}

TEST_F(NeededTest, TestIsTraced) {
    test();
    EXPECT_THAT(kit.trace_lines(), Contains("Public Sub Main2_bas()"));
}

// Of each two that are missing the earlier one is told, alone.
TEST_F(NeededTest, RowsAreTestedInTheirOrder) {
    for (std::size_t i = 0; i + 1 < needed.size(); ++i) {
        if (needed[i].service && needed[i + 1].service) {
            continue;  // one service can be taken away at a time
        }
        ProgramKit other;
        other.start();
        for (const NeededRow& row : needed) {
            const std::string path = home + std::string(row.file);
            if (row.file.empty()) {
                continue;
            }
            if (&row != &needed[i] && &row != &needed[i + 1]) {
                other.put_text(path, "x\r\n");
            } else if (other.memory.file_exists(path)) {
                other.memory.remove(path);
            }
        }
        other.services.missing = needed[i].service;
        other.program->event([&other] { Main2_bas(*other.program); });
        ASSERT_THAT(other.person.boxes, SizeIs(1)) << needed[i].name;
        EXPECT_EQ(other.person.boxes[0].title, needed[i].title);
    }
}

// --- the last step of a normal start ---

struct PeriodRow {
    const char* name;
    std::string_view flag;
    std::string_view stored;
    std::string_view wanted;
};
void PrintTo(const PeriodRow& row, std::ostream* out) {
    *out << row.name;
}

class EndOfThePeriod : public StartTest, public testing::WithParamInterface<PeriodRow> {};
INSTANTIATE_TEST_SUITE_P(
    Periods, EndOfThePeriod,
    testing::Values(PeriodRow{"FollowsTheClock", "1", "20100101", "20260504"},
                    PeriodRow{"FollowsTheClockFromEmpty", "1", "", "20260504"},
                    PeriodRow{"Fixed", "0", "20201231", "20201231"},
                    PeriodRow{"FixedWithSlashes", "0", "2020/12/31", "20201231"},
                    PeriodRow{"FixedWithDashes", "0", "2020-12-31", "20201231"},
                    PeriodRow{"FixedWithoutAFlag", "", "20201231", "20201231"},
                    PeriodRow{"Empty", "0", "", "20260504"}),
    [](const testing::TestParamInfo<PeriodRow>& row) { return std::string(row.param.name); });

TEST_P(EndOfThePeriod, IsBroughtUpToDate) {
    put_option(kit, "use_system_date_flag", GetParam().flag);
    put_option(kit, "End_date", GetParam().stored);
    kit.start();
    EXPECT_EQ(settings().options.End_date, GetParam().wanted);
}

TEST_P(EndOfThePeriod, IsSavedInBothOptionFiles) {
    put_option(kit, "use_system_date_flag", GetParam().flag);
    put_option(kit, "End_date", GetParam().stored);
    kit.start();
    EXPECT_EQ(kit.stored_option("End_date"), GetParam().wanted);
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "End_date"), GetParam().wanted);
}

TEST_F(StartTest, EndOfThePeriodIsFoundUnderAnotherSpelling) {
    put_option(kit, "use_system_date_flag", "0");
    remove_key(kit, new_ini, new_ini, "End_date");
    put_option(kit, "END_DATE", "20201231");
    kit.start();
    EXPECT_EQ(settings().options.End_date, "20201231");
}

TEST_F(StartTest, AnEmptyBlankBetweenItemsIsSavedAsOn) {
    put_option(kit, "Check1", "");
    kit.start();
    EXPECT_EQ(kit.stored_option("Check1"), "1");
    EXPECT_EQ(kit.stored(snapshot_ini, snapshot_ini, "Check1"), "1");
}

struct SearchRow {
    const char* name;
    std::string_view call;
    std::string_view password;
    bool told;
};
void PrintTo(const SearchRow& row, std::ostream* out) {
    *out << row.name;
}

class SearchEntries : public StartTest, public testing::WithParamInterface<SearchRow> {
  protected:
    void start() {
        put_entry(kit, "MyCalls", GetParam().call);
        put_entry(kit, "PassWords", GetParam().password);
        kit.start();
    }
};
INSTANTIATE_TEST_SUITE_P(
    Entries, SearchEntries,
    testing::Values(SearchRow{"BothSet", "JA1ZZZ", "secret", false},
                    SearchRow{"NoCall", "", "secret", true},
                    SearchRow{"NoPassword", "JA1ZZZ", "", true}, SearchRow{"Neither", "", "", true},
                    SearchRow{"PromptForTheCall", "入力必要", "secret", true},
                    SearchRow{"PromptForThePassword", "JA1ZZZ", "入力必要", true}),
    [](const testing::TestParamInfo<SearchRow>& row) { return std::string(row.param.name); });

TEST_P(SearchEntries, AreAskedForInOneWarningIfOneIsMissing) {
    start();
    if (!GetParam().told) {
        EXPECT_THAT(kit.person.boxes, IsEmpty());
        return;
    }
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    const MessageBox& box = kit.person.boxes[0];
    const std::string first = "[　環境設定 ] 　にて　ＪＡＲＬ会員検索の為に";
    const std::string second = "貴局のコールサイン、パスワードの設定をして下さい。";
    EXPECT_EQ(box.title, "　　コールサイン、パスワードの設定が必要！");
    EXPECT_THAT(box.text, AnyOf(first + "\n\n" + second, first + "\n" + second));
    EXPECT_EQ(box.icon, Icon::warning);
    EXPECT_EQ(box.buttons, Buttons::ok);
}

TEST_P(SearchEntries, DoNotKeepTheMainScreenAway) {
    start();
    EXPECT_EQ(reached(), Start::main_screen);
    EXPECT_TRUE(screen.window.visible);
    EXPECT_EQ(kit.program->ended(), std::nullopt);
}

TEST_F(StartTest, SearchEntriesAreNotAskedForOnTheWayToTheDialog) {
    put_entry(kit, "PassWords", "");
    put_entry(kit, "zlo_dir", "");
    kit.start();
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// --- failures ---

TEST_F(StartTest, TraceLogThatCannotBeOpenedEndsInTheReport) {
    kit.disk.fail_writing("20260504_130209.txt", Failure::permission_denied);
    EXPECT_FALSE(kit.start());
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported);
    EXPECT_EQ(reached(), Start::nothing);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　70"));
}

TEST_F(StartTest, OptionFileThatCannotBeWrittenIsPassedOver) {
    kit.disk.fail_writing("Veldrana_new.ini", Failure::permission_denied);
    EXPECT_TRUE(kit.start());
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// --- the end, and what it leaves for the next start ---

struct RunsRow {
    const char* name;
    std::string_view before;
    std::string_view after;
    bool noted;
};
void PrintTo(const RunsRow& row, std::ostream* out) {
    *out << row.name;
}

class CountOfRuns : public StartTest, public testing::WithParamInterface<RunsRow> {
  protected:
    void run() {
        put_value(kit, new_ini, "Main", "exe_rec", GetParam().before);
        kit.start();
        screen.tool_end.press();
    }
};
INSTANTIATE_TEST_SUITE_P(
    Counts, CountOfRuns,
    testing::Values(RunsRow{"First", "0", "1", false}, RunsRow{"Blank", "", "1", false},
                    RunsRow{"Ninth", "8", "9", false}, RunsRow{"Tenth", "9", "10", true},
                    RunsRow{"Eleventh", "10", "11", false}, RunsRow{"Twentieth", "19", "20", true},
                    RunsRow{"Hundredth", "99", "100", true},
                    RunsRow{"HundredAndFirst", "100", "101", false}),
    [](const testing::TestParamInfo<RunsRow>& row) { return std::string(row.param.name); });

TEST_P(CountOfRuns, IsRaisedAtTheEnd) {
    run();
    EXPECT_EQ(kit.stored(new_ini, "Main", "exe_rec"), GetParam().after);
}

TEST_P(CountOfRuns, AsksForAReportAtEveryTenth) {
    run();
    if (!GetParam().noted) {
        EXPECT_THAT(kit.person.boxes, IsEmpty());
        return;
    }
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text, "たまには使用した感想などのレポート下さいね！");
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::orderly);
}

TEST_F(StartTest, CountOfRunsIsNotRaisedByTheStart) {
    kit.start();
    EXPECT_EQ(kit.stored(new_ini, "Main", "exe_rec"), "0");
}

TEST_F(StartTest, CountOfRunsGoesOnFromStartToStart) {
    kit.start();
    screen.tool_end.press();
    NextStart next(kit);
    next.screen.tool_end.press();
    EXPECT_EQ(kit.stored(new_ini, "Main", "exe_rec"), "2");
}

TEST_F(StartTest, ChosenContestDataDoNotSurviveTheEnd) {
    put_value(kit, dat_ini, "DAT_MAS", "set_dat_in_name", "C:\\zLog\\acag.dat");
    kit.start();
    screen.tool_end.press();
    EXPECT_FALSE(there("Veldrana_dat.ini"));
    EXPECT_EQ(NextStart(kit).program.settings.set_dat_in_name, "");
}

WindowPlacement placed(int state) {
    return {.state = state, .left = 300, .top = 450, .width = 9000, .height = 7000};
}

TEST_F(StartTest, PositionOfTheMainWindowIsSavedAtTheEnd) {
    kit.start();
    screen.window.placement = placed(WindowPlacement::normal);
    screen.tool_end.press();
    const ProfileFile file(kit.memory, home + "Veldrana_posi.ini");
    EXPECT_EQ(file.value("Position_Veldrana", "WindowState"), "0");
    EXPECT_EQ(file.value("Position_Veldrana", "Left"), "300");
    EXPECT_EQ(file.value("Position_Veldrana", "Top"), "450");
    EXPECT_EQ(file.value("Position_Veldrana", "Width"), "9000");
    EXPECT_EQ(file.value("Position_Veldrana", "Height"), "7000");
}

TEST_F(StartTest, MinimisedMainWindowIsSavedAsANormalOne) {
    kit.start();
    screen.window.placement = placed(WindowPlacement::minimised);
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_EQ(next.screen.window.placement.get(), placed(WindowPlacement::normal));
}

TEST_F(StartTest, MaximisedMainWindowComesBackWithItsNormalPlaceUnderneath) {
    kit.start();
    screen.window.placement = placed(WindowPlacement::maximised);
    screen.tool_end.press();
    NextStart next(kit);
    EXPECT_EQ(next.screen.window.placement.get(), placed(WindowPlacement::maximised));
}

}  // namespace
}  // namespace veldrana
