#include "app/conversion_driver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr std::string_view user_text = "title\r\n |ｺｰﾙｻｲﾝ|__氏  名___|\r\n JA1ZZA山田\r\n";

class ConversionDriver : public testing::Test {
  protected:
    ConversionDriver() {
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.start();
        kit.open("C:\\log\\x.all");
    }
    // The captions that lblCFG shows one after the other, each with its colour.
    void watch_state() {
        screen.lblCFG.listener = [this] {
            const std::pair<std::string, Colour> now{screen.lblCFG.caption,
                                                     screen.lblCFG.fore_colour};
            states.push_back(now);
        };
    }
    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
    std::vector<std::pair<std::string, Colour>> states;
};

TEST_F(ConversionDriver, ARunLeavesTheIntermediateFileBesideTheLog) {
    screen.cmdStart.press();
    EXPECT_FALSE(program.ended());
    EXPECT_TRUE(program.run_finished);
    EXPECT_TRUE(kit.memory.file_exists("C:\\log\\zlog_1.txt"));
    EXPECT_TRUE(screen.mnuQSOBank.enabled);
    EXPECT_EQ(kit.memory.bytes("C:\\log\\x.all"), sample_all_log);
}

TEST_F(ConversionDriver, TraceTellsTheRunStepByStep) {
    const std::size_t before = kit.trace_lines().size();
    screen.cmdStart.press();
    std::vector<std::string> lines = kit.trace_lines();
    lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(before));
    // The settings are tested on their own, and the files that a stage opens with the stage.
    lines.erase(
        std::find(lines.begin(), lines.end(), "=========  Veldrana_cfg.ini  ==== 変換時 ======="),
        std::find(lines.begin(), lines.end(), "-----------------------"));
    std::erase_if(lines, [](const std::string& line) {
        return line.starts_with("Open ") || line.starts_with("count_file_rec ") ||
               line.starts_with("sort ") || line.starts_with("Kill ");
    });
    EXPECT_THAT(
        lines,
        ElementsAre(
            "", "Private Sub cmdStart_Click()", "**********************************************",
            "Private sub cmdStart_Click()_0", "-----------------------",
            "入力ファイル ：C:\\log\\x.all", "入 力 件 数　：件", "Private Sub cmdStart_1()",
            "Private Sub Sort_2()", "Private Sub Sort_3()", "Private Sub cmd_henkan()",
            "Private Sub count_in_name()", "Private Sub henkan_at_2_t()", "Private Sub a_2_t()",
            "Private Sub bak_sep3()", "Private Sub Henkan_txt_2()", "Private Sub NO_SORT()",
            "Private Sub temp_sep()", "Private Sub sort_wakeru_c_1()", "Private Sub temp_marge()",
            "     中間ファイル削除開始", "     中間ファイル削除終了",
            "     Private Sub cmd_henkan() 終了", "Private Sub count_No_QSL()",
            "Private Sub No_QSL_moji_ReWrite",
            "Private Sub cmdStart_1() Ｖ５用に変換  out_name_hamj_new",
            "Private Sub cmdStart_1() Ｖ５用に変換  out_name_conj_new",
            "Private Sub cmdStart_1() lblCFG.Caption = 処 理 終 了",
            "Private Sub cmdStart_1() kettuka_disp", "正常終了"));
}

TEST_F(ConversionDriver, SecondRunTracesTheCountAndTheSettings) {
    screen.cmdStart.press();
    screen.cmdStart.press();
    EXPECT_THAT(kit.trace_lines(), Contains("入 力 件 数　：   2件"));
    EXPECT_THAT(kit.trace_lines(), Contains("=========  Veldrana_new.ini  ==== 変換時 ======="));
}

TEST_F(ConversionDriver, CountOfRecordsIsShownRightAligned) {
    screen.cmdStart.press();
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   2 件");
}

TEST_F(ConversionDriver, CountBeyondFourPlacesIsNotCut) {
    std::string log(sample_all_log.substr(0, sample_all_log.find('\n') + 1));
    for (int i = 0; i < 12345; ++i) {
        log += "x\r\n";
    }
    kit.put_text("C:\\log\\x.all", log);
    kit.open("C:\\log\\x.all");
    screen.cmdStart.press();
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "12345 件");
}

TEST_F(ConversionDriver, StatesFollowEachOtherInTheirColours) {
    screen.Check15.value = false;
    watch_state();
    screen.cmdStart.press();
    const auto shown = [&](const char* caption, Colour colour) {
        return Contains(testing::Pair(caption, colour));
    };
    EXPECT_THAT(states, shown("処 理 開 始", colours::green));
    EXPECT_THAT(states, shown("入力ファイル読み込み中", colours::green));
    EXPECT_THAT(states, Not(shown("該当するデータは有りませんでした。", colours::red)));
    EXPECT_EQ(states.back(), std::pair(std::string("処 理 終 了"), colours::blue));
}

// The count of kept lines is zeroed at the end of the conversion, so the warning comes every time.
TEST_F(ConversionDriver, WithCheck15TheRedMessageShowsEvenWhenLinesWereKept) {
    screen.txtOp_name.text = "JA1ZZZ";
    watch_state();
    screen.cmdStart.press();
    EXPECT_THAT(states,
                Contains(testing::Pair("該当するデータは有りませんでした。", colours::red)));
    EXPECT_EQ(screen.Check15.fore_colour.get(), colours::red);
    EXPECT_EQ(screen.txtOp_name.fore_colour.get(), colours::red);
    EXPECT_THAT(kit.memory.bytes("C:\\log\\zlog_1.txt"), HasSubstr("JA1ZZA"));
    EXPECT_THAT(kit.memory.bytes("C:\\log\\zlog_1.txt"), Not(HasSubstr("JR8YYX")));
}

TEST_F(ConversionDriver, NameOfTheOperatorIsTrimmed) {
    screen.txtOp_name.text = "  JA1ZZY ";
    screen.cmdStart.press();
    EXPECT_THAT(kit.memory.bytes("C:\\log\\zlog_1.txt"), HasSubstr("JR8YYX"));
    EXPECT_THAT(kit.memory.bytes("C:\\log\\zlog_1.txt"), Not(HasSubstr("JA1ZZA")));
}

TEST_F(ConversionDriver, UndecidedUserTextStopsBeforeAnythingHasChanged) {
    kit.put_text("C:\\Hamlog\\a.txt", user_text);
    program.settings.options.Text_data_dir_A = "C:\\Hamlog\\a.txt";
    kit.put_text("C:\\Hamlog\\b.txt", user_text);
    program.settings.options.Text_data_dir_B = "C:\\Hamlog\\b.txt";
    screen.Check8.value = true;
    screen.Check27.value = true;
    kit.put_text("C:\\log\\hamlogja_0.csv", "x");
    kit.put_text("C:\\log\\zlog_1.txt", "of an earlier run");
    screen.cmdStart.press();
    EXPECT_TRUE(screen.Check27.value);
    EXPECT_FALSE(screen.mnuQSOBank.enabled);
    EXPECT_TRUE(kit.memory.file_exists("C:\\log\\hamlogja_0.csv"));
    EXPECT_EQ(kit.memory.bytes("C:\\log\\zlog_1.txt"), "of an earlier run");
    EXPECT_NE(kit.trace_lines().back(), "正常終了");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text, "どちらのユーザーテキストファイルか選択して下さい！");
    EXPECT_FALSE(program.run_finished);
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_FALSE(screen.ProgressBar1.visible);
}

TEST_F(ConversionDriver, ADecidedUserTextDoesNotStop) {
    kit.put_text("C:\\Hamlog\\a.txt", user_text);
    program.settings.options.Text_data_dir_A = "C:\\Hamlog\\a.txt";
    kit.put_text("C:\\Hamlog\\b.txt", user_text);
    program.settings.options.Text_data_dir_B = "C:\\Hamlog\\b.txt";
    screen.Check8.value = true;
    screen.Check4_B.value = true;
    screen.cmdStart.press();
    EXPECT_TRUE(program.run_finished);
}

TEST_F(ConversionDriver, OneUserTextAloneNeedsNoDecision) {
    kit.put_text("C:\\Hamlog\\a.txt", user_text);
    program.settings.options.Text_data_dir_A = "C:\\Hamlog\\a.txt";
    screen.Check8.value = true;
    screen.cmdStart.press();
    EXPECT_TRUE(program.run_finished);
}

TEST_F(ConversionDriver, OptionsOfOneRunAreClearedBehindIt) {
    screen.Check27.value = true;
    screen.Check28.value = true;
    screen.cmdStart.press();
    EXPECT_FALSE(screen.Check27.value);
    EXPECT_FALSE(screen.Check28.value);
}

TEST_F(ConversionDriver, StartIsDisabledWhileItRuns) {
    bool enabled_while_reading = true;
    screen.ProgressBar1.listener = [&] {
        if (screen.ProgressBar1.value.get() == 1) {
            enabled_while_reading = screen.cmdStart.enabled || screen.tool_convert.enabled;
        }
    };
    screen.cmdStart.press();
    EXPECT_FALSE(enabled_while_reading);
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.tool_convert.enabled);
}

TEST_F(ConversionDriver, OldTextsGoAwayAtTheStart) {
    screen.lblIn_rec_count.caption = "old";
    screen.lblMsg.caption = "old";
    screen.cmdStart.press();
    EXPECT_EQ(screen.lblIn_rec_count.caption.get(), "");
    EXPECT_EQ(screen.lblMsg.caption.get(), "");
}

TEST_F(ConversionDriver, ProgressIsShownWhileItRuns) {
    bool shown = false;
    screen.ProgressBar1.listener = [&] { shown = shown || screen.ProgressBar1.visible; };
    screen.cmdStart.press();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(screen.ProgressBar1.visible);
}

// The warning looks at the count of .ALL logs alone.
TEST_F(ConversionDriver, LinesOfATxtLogAreCountedApart) {
    kit.put_text("C:\\log\\x.txt", sample_txt_log);
    kit.open("C:\\log\\x.txt");
    screen.cmdStart.press();
    EXPECT_EQ(program.kept_lines_of_txt, 1U);
    EXPECT_EQ(program.kept_lines, 0U);
}

TEST_F(ConversionDriver, ResultsAreEnabledAndTheResultTabIsShown) {
    kit.put_text("C:\\log\\x.dup", "");
    screen.cmdStart.press();
    for (const Control* const control : std::initializer_list<const Control*>{
             &screen.mnuDisp_con_n, &screen.mnuDisp_ham_n, &screen.cmdDisp_contest,
             &screen.cmdDisp_Hamlog, &screen.tool_contest, &screen.tool_hamlog, &screen.mnuDisp_dup,
             &screen.tool_dup, &screen.mnuJARL, &screen.mnuJARL_Web_OK, &screen.mnuJARL_Web_NO,
             &screen.mnuJARL_Web_OK_conj, &screen.mnuJARL_Web_OK_hamj, &screen.mnuJARL_Web_NO_conj,
             &screen.mnuJARL_Web_NO_hamj}) {
        EXPECT_TRUE(control->enabled) << control->name();
    }
    EXPECT_EQ(screen.SSTab1.tab.get(), 3);
    EXPECT_FALSE(screen.ProgressBar1.visible);
}

TEST_F(ConversionDriver, DupeListEntryFollowsItsFile) {
    screen.cmdStart.press();
    EXPECT_FALSE(screen.mnuDisp_dup.enabled);
    EXPECT_FALSE(screen.tool_dup.enabled);
}

TEST_F(ConversionDriver, ScratchFilesOfTheDriveAreDeletedAndThoseOfTheLogStay) {
    for (const char* const name :
         {"C:\\zlog_9.txt", "C:\\temp_d.csv", "C:\\temp_s.csv", "C:\\SORT-IN.DAT",
          "C:\\sort-out.dat", "C:\\sort-out2.dat", "C:\\bak_1.txt", "C:\\bak_12.txt",
          "C:\\semp_s.csv", "C:\\semp_d.csv", "C:\\uemp_s.csv", "C:\\temp_sj.csv",
          "C:\\log\\zlog_01.txt", "C:\\log\\hamlogja_0.csv", "C:\\veldrana\\bak_qso.mas",
          "C:\\veldrana\\Temp_Files\\bak_qso.HDX"}) {
        kit.put_text(name, "x");
    }
    for (const char* const name : {"C:\\log\\zlog_2.txt", "C:\\bak_123.txt", "C:\\other.csv",
                                   "C:\\veldrana\\Temp_Files\\bak_qso.mas1"}) {
        kit.put_text(name, "x");
    }
    screen.cmdStart.press();
    std::vector<std::string> files = kit.memory.files();
    std::erase_if(files, [&](const std::string& file) {
        return file == program.trace.path() || file.ends_with(".ini") ||
               file.ends_with("contest_name.csv") || file.ends_with("Veldrana_recent.txt");
    });
    EXPECT_THAT(files, testing::UnorderedElementsAre(
                           "C:\\bak_123.txt", "C:\\other.csv", "C:\\new_qsl_contest.csv",
                           "C:\\new_qsl_hamlog.csv", "C:\\log\\x.all", "C:\\log\\x_cjn.csv",
                           "C:\\log\\x_hjn.csv", "C:\\log\\zlog_1.txt", "C:\\log\\zlog_2.txt",
                           "C:\\veldrana\\\\qsl_dir\\org_qsl.csv",
                           "C:\\veldrana\\Temp_Files\\bak_qso.mas1"));
}

TEST_F(ConversionDriver, ShortLineWithMemoInUseEndsInTheReport) {
    kit.put_text("C:\\log\\x.all", std::string(sample_all_log) + "too short\r\n");
    kit.open("C:\\log\\x.all");
    screen.lblRmks2[3].caption = "memo";
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_EQ(kit.person.boxes[0].title, "　　エラー発生の為、　終了します！");
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　5"));
    const std::vector<std::string> lines = kit.trace_lines();
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) {
                                return line.find("エラー発生") != std::string::npos;
                            }),
              1);
    EXPECT_THAT(lines, Contains("エラー発生 ：　5"));
    EXPECT_THAT(lines.back(), testing::StartsWith("エラー内容 ：　"));
}

TEST_F(ConversionDriver, FailureOutsideTheReaderNamesItsProcedure) {
    kit.memory.protect({});  // another program may delete the log
    kit.memory.remove("C:\\log\\x.all");
    screen.cmdStart.press();
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub count_in_name() ：　53"));
}

TEST_F(ConversionDriver, NothingHappensAfterTheProgramHasEnded) {
    kit.memory.protect({});  // another program may delete the log
    kit.memory.remove("C:\\log\\x.all");
    screen.cmdStart.press();
    kit.person.boxes.clear();
    screen.enable_start(true);
    screen.cmdStart.press();
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(ConversionDriver, CountersOfTheRunAreShown) {
    kit.put_text("C:\\log\\x.all",
                 std::string(sample_all_log) +
                     std::string(sample_all_log.substr(sample_all_log.find("2025/04/26 21:06"))));
    kit.open("C:\\log\\x.all");
    program.counters.values[6] = 9;
    screen.cmdStart.press();
    EXPECT_THAT(program.counters.values, ElementsAre(3, 2, 1, 3, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(screen.MSFlexGrid1.cell(0, 1).text, "3");
    EXPECT_EQ(screen.MSFlexGrid1.cell(6, 1).text, "0");
}

TEST_F(ConversionDriver, RowThatTellsItsOwnCallLosesItInTheFinalFile) {
    screen.lblRmks1[1].caption = "Rmks1";
    screen.txtRmks1.text = "QSO JA1ZZA!";
    screen.cmdStart.press();
    EXPECT_THAT(kit.memory.bytes("C:\\log\\x_hjn.csv"), HasSubstr("\"QSO !\""));
    EXPECT_THAT(kit.memory.bytes("C:\\log\\x_hjn.csv"), HasSubstr("\"QSO JA1ZZA!\""));
}

TEST_F(ConversionDriver, DupeListIsMadeOnRequest) {
    screen.cmdStart.press();
    EXPECT_FALSE(kit.memory.file_exists("C:\\log\\x.dup"));
    screen.Check06.value = true;
    screen.cmdStart.press();
    EXPECT_TRUE(kit.memory.file_exists("C:\\log\\x.dup"));
    EXPECT_TRUE(screen.mnuDisp_dup.enabled);
    EXPECT_THAT(kit.memory.names("C:\\veldrana\\zg_????.txt"), IsEmpty());
}

TEST_F(ConversionDriver, NoQslRuleLosesItsSelectionWithoutALogBook) {
    screen.Option01.index = OptionGroup::none;
    screen.cmdStart.press();
    EXPECT_EQ(screen.Option07.index.get(), OptionGroup::none);
    // No rule is not the rule "none": a history is asked for, of the rule that was there before.
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.trace_lines(),
                Contains("Open C:\\veldrana\\Temp_Files\\bak_qso.mas0_p For Input As #f_i"));
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub Henkan_txt_2() ：　53"));
}

TEST_F(ConversionDriver, AnEmptyPeriodIsFilled) {
    EXPECT_EQ(program.settings.options.Start_date, "19600101");
    EXPECT_EQ(program.settings.options.End_date, "20260504");
    program.settings.options.Start_date.clear();
    program.settings.options.End_date.clear();
    screen.cmdStart.press();
    EXPECT_EQ(program.settings.options.Start_date, "19600101");
    EXPECT_EQ(program.settings.options.End_date, "20100101");
}

TEST_F(ConversionDriver, EmptyMarksBecomeOneBlank) {
    screen.txtQSL_Q.text = "";
    screen.txtQSL_S.text = "";
    screen.cmdStart.press();
    EXPECT_THAT(kit.memory.bytes("C:\\log\\x_hjn.csv"), HasSubstr("\"   \""));
}

TEST_F(ConversionDriver, LogWithoutAContactEndsInTheReportAtTheStageThatReadsPastTheEnd) {
    kit.put_text("C:\\log\\x.all", "zLog for Windows \r\n");
    kit.put_text("C:\\log\\x_hjn.csv", "of an earlier run");
    kit.open("C:\\log\\x.all");
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub bak_sep3() ：　62"));
    EXPECT_EQ(kit.memory.bytes("C:\\log\\x_hjn.csv"), "of an earlier run");
}

// The file that is worked on is the derived one, which is rarely there.
TEST_F(ConversionDriver, ReplacementWithoutTheDerivedFileEndsInTheReport) {
    kit.put_text("C:\\log\\contestj_n.csv", "\"JA1ZZA\",\"#\"\r\n");
    kit.person.files = {"C:\\log\\contestj_n.csv"};
    screen.mnuOpen_con_n.press();
    EXPECT_EQ(kit.person.dialogs.back().filter, "contestj_n.csv|contestj_n.csv");
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub cmd_chikan_2() ：　53"));
}

TEST_F(ConversionDriver, ReplacementMakesEverySharpABlank) {
    kit.put_text("C:\\log\\contestj_n_c0.csv", "\"JA1ZZA\",\"#\"\r\n#,##\r\n");
    kit.person.files = {"C:\\log\\contestj_n.csv"};
    screen.mnuOpen_con_n.press();
    watch_state();
    screen.cmdStart.press();
    EXPECT_EQ(kit.memory.bytes("C:\\log\\contestj_n_c0.csv"), "\"JA1ZZA\",\" \"\r\n ,  \r\n");
    EXPECT_THAT(kit.trace_lines(), Contains("Private Sub cmdStart_1() lblCFG.Caption = 置換終了"));
    EXPECT_EQ(states.back(), std::pair(std::string("　　　置換終了"), colours::blue));
    kit.open("C:\\log\\x.all");
    screen.cmdStart.press();
    EXPECT_TRUE(kit.memory.file_exists("C:\\log\\x_hjn.csv"));
}

// Whatever fails, the run ends in the report, never in a crash, and the log stays as it was.
TEST(ConversionDriverFaults, EveryOperationMayFail) {
    std::size_t operations = 0;
    {
        ProgramKit kit;
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.start();
        kit.open("C:\\log\\x.all");
        const std::size_t before = kit.disk.operations();
        kit.screen().cmdStart.press();
        operations = kit.disk.operations() - before;
    }
    ASSERT_GT(operations, 20U);
    std::size_t unnoticed = 0;
    for (std::size_t n = 1; n <= operations; ++n) {
        ProgramKit kit;
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.start();
        kit.open("C:\\log\\x.all");
        kit.disk.fail_at(n, Failure::disk_full);
        kit.screen().cmdStart.press();
        EXPECT_EQ(kit.memory.bytes("C:\\log\\x.all"), sample_all_log);
        if (!kit.program->ended()) {
            // The options were not saved, which nobody is told.
            EXPECT_TRUE(kit.program->run_finished) << "operation " << n;
            EXPECT_TRUE(kit.memory.file_exists("C:\\log\\x_hjn.csv")) << "operation " << n;
            ++unnoticed;
            continue;
        }
        EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported) << "operation " << n;
        ASSERT_THAT(kit.person.boxes, SizeIs(2)) << "operation " << n;
        EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　61"));
    }
    constexpr std::size_t operations_of_one_save = 8;
    EXPECT_LE(unnoticed, operations_of_one_save);
}

TEST(ConversionDriverPrograms, TwoInOneProcessDoNotDisturbEachOther) {
    ProgramKit one;
    ProgramKit other;
    one.put_text("C:\\log\\x.all", sample_all_log);
    other.put_text("C:\\log\\x.all", sample_all_log);
    one.start();
    other.start();
    one.screen().lblRmks1[0].caption = "memo";
    one.open("C:\\log\\x.all");
    other.open("C:\\log\\x.all");
    // The other runs while this one is in the middle of its reading.
    bool other_ran = false;
    one.screen().ProgressBar1.listener = [&] {
        if (!other_ran && one.screen().ProgressBar1.value.get() == 1) {
            other_ran = true;
            other.screen().cmdStart.press();
        }
    };
    one.screen().cmdStart.press();
    EXPECT_TRUE(other_ran);
    EXPECT_THAT(one.memory.bytes("C:\\log\\zlog_1.txt"), HasSubstr("\"SSN\""));
    EXPECT_THAT(other.memory.bytes("C:\\log\\zlog_1.txt"), Not(HasSubstr("\"SSN\"")));
    EXPECT_THAT(other.memory.bytes("C:\\log\\zlog_1.txt"), HasSubstr("JR8YYX/1"));
}

}  // namespace
}  // namespace veldrana
