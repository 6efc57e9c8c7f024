// Whole runs of the logs that are no zLog text, on a disk in memory: what they leave, what they
// show, and what is so again behind them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/conversion_driver.h"
#include "app/open_other_logs.h"
#include "app/open_text_log.h"
#include "app/program_end.h"
#include "tests/app/other_logs.h"
#include "viewers/frmDisp.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::UnorderedElementsAreArray;

class OtherLogsRun : public testing::Test {
  protected:
    OtherLogsRun() {
        kit.put_text("C:\\log\\c.cbr", sample_cabrillo);
        kit.put_text("C:\\log\\a.adi", sample_adif);
        kit.memory.put("C:\\log\\z.zlo", sample_zlo("全市全郡コンテスト CW"));
        kit.memory.put("C:\\log\\r4.log", sample_rtcl(RtclForm::before_430));
        kit.memory.put("C:\\log\\r430.log", sample_rtcl(RtclForm::from_430));
        kit.memory.put("C:\\log\\l.lg8", std::string(sample_lg8));
        kit.put_text("C:\\log\\l_lg8bridge.all", sample_all_log);
        kit.put_text("C:\\zLog\\acag.dat", "heading\r\n104        常呂郡\r\n");
        kit.start();
        kit.person.boxes.clear();
        for (const std::string& file : files_of("C:\\log\\")) {
            before.push_back(file);
        }
    }

    void open(InputKind kind, std::string_view path) {
        kit.person.files = {std::string(path)};
        open_entry(screen, kind).press();
        ASSERT_TRUE(program.log.accepted);
    }
    void run(InputKind kind, std::string_view path) {
        open(kind, path);
        screen.cmdStart.press();
        ASSERT_FALSE(program.ended()) << kit.person.boxes.at(0).text;
    }

    // The names of the files in a folder, not of those below it.
    std::vector<std::string> files_of(std::string_view folder) {
        std::vector<std::string> names;
        for (const std::string& file : kit.memory.files()) {
            if (file.starts_with(folder) && file.find('\\', folder.size()) == std::string::npos) {
                names.push_back(file.substr(folder.size()));
            }
        }
        return names;
    }
    // What a run has added to the log's folder.
    std::vector<std::string> new_files() {
        std::vector<std::string> names = files_of("C:\\log\\");
        std::erase_if(names, [this](const std::string& name) {
            return std::find(before.begin(), before.end(), name) != before.end();
        });
        return names;
    }
    std::string text(std::string_view path) { return from_code_page(kit.memory.bytes(path)); }

    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
    std::vector<std::string> before;
};

// --- what every kind leaves ---

struct RunOfKind {
    const char* name;
    InputKind kind;
    const char* path;
    // Frequency and mode of the two contacts, as the reader of the kind gives them.
    const char* first;
    const char* second;
};

class RunOfEachKind : public OtherLogsRun, public testing::WithParamInterface<RunOfKind> {
  protected:
    void run_it() { run(GetParam().kind, GetParam().path); }
    std::string front() {
        const std::string path = GetParam().path;
        return path.substr(0, path.rfind('.'));
    }
    std::string row(const char* call, const char* time, const char* reports, const char* first,
                    const char* qsl) {
        return std::string("\"") + call + "\",\"25/04/26\",\"" + time + "\"," + reports + "," +
               first + ",\"\",\"\",\"" + qsl + "\",\"\",\"\",\"\",\"\",\"8\"\r\n";
    }
    std::string rows(const char* qsl) {
        return row("JA1ZZA", "21:05U", "\"599\",\"589\"", GetParam().first, qsl) +
               row("JR8YYX/1", "21:06U", "\"59\",\"57\"", GetParam().second, qsl);
    }
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, RunOfEachKind,
    testing::Values(
        // Neither has a blank behind its mode.
        RunOfKind{"cbr", InputKind::cbr, "C:\\log\\c.cbr", "\"7\",\"CW\"", "\"430\",\"FM\""},
        RunOfKind{"ADIF", InputKind::ADIF, "C:\\log\\a.adi", "\"7.012\",\"CW\"",
                  "\"433.000\",\"FM\""},
        RunOfKind{"zlo", InputKind::zlo, "C:\\log\\z.zlo", "\"7.012\",\"CW\"", "\"430\",\"FM\""},
        RunOfKind{"lg8", InputKind::lg8, "C:\\log\\l.lg8", "\"7.012\",\"CW \"", "\"430\",\"FM \""},
        // The comment behind the frequency makes it too long to be one: the band stands for it.
        RunOfKind{"log_v4", InputKind::log_v4, "C:\\log\\r4.log", "\"7\",\"CW \"",
                  "\"433.000\",\"FM \""},
        RunOfKind{"log_v430", InputKind::log_v430, "C:\\log\\r430.log", "\"7\",\"CW \"",
                  "\"433.000\",\"FM \""}),
    [](const auto& run) { return std::string(run.param.name); });

TEST_P(RunOfEachKind, WritesBothResultsBesideTheLog) {
    run_it();
    EXPECT_EQ(text(front() + "_hjn.csv"), rows("J* "));
    EXPECT_EQ(text(front() + "_cjn.csv"), rows("J  "));
}

TEST_P(RunOfEachKind, LeavesTheIntermediateTextsAndNothingElse) {
    run_it();
    const std::string name = front().substr(std::string("C:\\log\\").size());
    const bool of_rtcl =
        GetParam().kind == InputKind::log_v4 || GetParam().kind == InputKind::log_v430;
    std::vector<std::string> expected{name + "_hjn.csv", name + "_cjn.csv", "zlog_1.txt",
                                      "zlog_2.txt"};
    if (of_rtcl) {
        expected.push_back(name + "_log2a.all");
    }
    EXPECT_THAT(new_files(), UnorderedElementsAreArray(expected));
    // The second copy of the text stays in the root of the drive: what is swept there has one
    // character behind the stroke.
    EXPECT_EQ(kit.memory.file_exists("C:\\zlog_01.txt"), of_rtcl);
    EXPECT_EQ(kit.memory.file_exists("C:\\veldrana\\rtcl_tmp.txt"), of_rtcl);
}

TEST_P(RunOfEachKind, EndSweepsTheIntermediateTexts) {
    run_it();
    screen.tool_end.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::orderly);
    EXPECT_FALSE(kit.memory.file_exists("C:\\log\\zlog_1.txt"));
    EXPECT_FALSE(kit.memory.file_exists("C:\\log\\zlog_2.txt"));
    EXPECT_FALSE(kit.memory.file_exists("C:\\veldrana\\rtcl_tmp.txt"));
    EXPECT_TRUE(kit.memory.file_exists(front() + "_hjn.csv"));
}

TEST_P(RunOfEachKind, LeavesTheLogAsItWas) {
    const std::string bytes = kit.memory.bytes(GetParam().path);
    run_it();
    screen.tool_end.press();
    EXPECT_EQ(kit.memory.bytes(GetParam().path), bytes);
}

TEST_P(RunOfEachKind, ChosenLogIsTheInputAgain) {
    run_it();
    EXPECT_EQ(program.log.in_name, GetParam().path);
    EXPECT_EQ(program.log.f_type, GetParam().kind);
    EXPECT_TRUE(screen.cmdStart.enabled);
    // So it is found by the next run too.
    const std::string first = kit.memory.bytes(front() + "_cjn.csv");
    screen.cmdStart.press();
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(kit.memory.bytes(front() + "_cjn.csv"), first);
}

TEST_P(RunOfEachKind, CountsItsContacts) {
    run_it();
    EXPECT_EQ(program.counters.values[0], 2U);
    EXPECT_EQ(program.counters.values[1], 0U);
    EXPECT_EQ(program.counters.values[2], 2U);
    EXPECT_EQ(program.counters.values[3], 2U);
    EXPECT_EQ(screen.MSFlexGrid1.cell(0, 1).text, "2");
}

TEST_P(RunOfEachKind, ShowsItsResults) {
    run_it();
    EXPECT_EQ(screen.lblCFG.caption.get(), "処 理 終 了");
    EXPECT_TRUE(screen.mnuDisp_ham_new.enabled);
    EXPECT_TRUE(screen.mnuDisp_con_new.enabled);
    EXPECT_TRUE(screen.mnuQSOBank.enabled);
    EXPECT_EQ(screen.SSTab1.tab.get(), 3);
}

TEST_P(RunOfEachKind, TakesTheTwoOptionsOfOneRunBack) {
    open(GetParam().kind, GetParam().path);
    screen.Check27.value = true;
    screen.Check28.value = true;
    screen.cmdStart.press();
    ASSERT_FALSE(program.ended());
    EXPECT_FALSE(screen.Check27.value);
    EXPECT_FALSE(screen.Check28.value);
}

TEST_P(RunOfEachKind, NameTwiceInThePathIsReplacedInBothPlaces) {
    const std::string path = GetParam().path;
    const std::string extension = path.substr(path.rfind('.'));
    const std::string folder = "C:\\a" + extension + "b\\";
    kit.memory.put(folder + "x" + extension, kit.memory.bytes(path));
    if (GetParam().kind == InputKind::lg8) {
        kit.put_text(folder + "x_lg8bridge.all", sample_all_log);
    }
    kit.memory.put_folder("C:\\a_hjn.csvb");
    kit.memory.put_folder("C:\\a_cjn.csvb");
    for (const char* const suffix : {"h0", "c0", "hj", "cj"}) {
        kit.memory.put_folder(std::string("C:\\a_") + suffix + ".csvb");
    }
    kit.memory.put_folder("C:\\a_log2a.allb");
    run(GetParam().kind, folder + "x" + extension);
    EXPECT_EQ(text("C:\\a_hjn.csvb\\x_hjn.csv"), rows("J* "));
    EXPECT_EQ(text("C:\\a_cjn.csvb\\x_cjn.csv"), rows("J  "));
}

// --- the count that is shown, by the kind ---

TEST_F(OtherLogsRun, CabrilloIsCountedByItsContacts) {
    run(InputKind::cbr, "C:\\log\\c.cbr");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   2件");  // five lines
}

TEST_F(OtherLogsRun, AdifKeepsTheCountOfItsOpening) {
    open(InputKind::ADIF, "C:\\log\\a.adi");
    screen.lblIn_rec.caption = "as opened";
    screen.cmdStart.press();
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "as opened");
}

TEST_F(OtherLogsRun, BinaryLogOfZlogIsNotCounted) {
    open(InputKind::zlo, "C:\\log\\z.zlo");
    screen.lblIn_rec.caption = "as read";
    screen.cmdStart.press();
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "as read");
}

TEST_F(OtherLogsRun, EarlierRtclLogKeepsTheCountOfItsOpening) {
    open(InputKind::log_v4, "C:\\log\\r4.log");
    screen.lblIn_rec.caption = "as opened";
    screen.cmdStart.press();
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "as opened");
}

// A binary file is taken for lines here as a text is; without a line end it has one.
TEST_F(OtherLogsRun, LaterRtclLogIsCountedByItsLineEnds) {
    ASSERT_EQ(kit.memory.bytes("C:\\log\\r430.log").find('\n'), std::string::npos);
    ASSERT_EQ(kit.memory.bytes("C:\\log\\r430.log").find('\r'), std::string::npos);
    run(InputKind::log_v430, "C:\\log\\r430.log");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "  -1 件");
}

TEST_F(OtherLogsRun, CtestwinLogIsCountedByItsOwnLineEnds) {
    run(InputKind::lg8, "C:\\log\\l.lg8");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   2 件");  // three line ends
}

TEST_F(OtherLogsRun, RtclLogBehindARefusalShowsTheCountThatWasKept) {
    for (const InputKind kind : {InputKind::log_v4, InputKind::log_v430}) {
        program.log.f_type = kind;
        program.log.record_count = "   7";
        screen.lblIn_name.caption = std::string(not_a_text_log);
        program.event([this] { count_in_name(program); });
        EXPECT_EQ(screen.lblIn_rec.caption.get(), "   7 件");
    }
}

TEST_F(OtherLogsRun, OtherKindsBehindARefusalShowNoResults) {
    for (const InputKind kind : {InputKind::cbr, InputKind::lg8}) {
        program.log.f_type = kind;
        screen.lblIn_name.caption = std::string(not_a_text_log);
        screen.lblOut_name1.caption = "one";
        screen.lblOut_name2.caption = "two";
        program.event([this] { count_in_name(program); });
        EXPECT_EQ(screen.lblOut_name1.caption.get(), "");
        EXPECT_EQ(screen.lblOut_name2.caption.get(), "");
        EXPECT_FALSE(program.ended());
    }
}

TEST_F(OtherLogsRun, NeitherAdifNorZloLooksAtARefusal) {
    for (const InputKind kind : {InputKind::ADIF, InputKind::zlo}) {
        program.log.f_type = kind;
        screen.lblIn_name.caption = std::string(not_a_text_log);
        screen.lblOut_name1.caption = "one";
        program.event([this] { count_in_name(program); });
        EXPECT_EQ(screen.lblOut_name1.caption.get(), "one");
    }
}

TEST_F(OtherLogsRun, CountOfTheOpeningStandsInTheTrace) {
    run(InputKind::ADIF, "C:\\log\\a.adi");
    EXPECT_THAT(kit.trace_lines(), Contains("入力ファイル ：C:\\log\\a.adi"));
    EXPECT_THAT(kit.trace_lines(), Contains("入 力 件 数　：   2件"));
}

// --- Cabrillo ---

TEST_F(OtherLogsRun, ShortLineOfACabrilloLogEndsInTheReport) {
    kit.put_text("C:\\log\\s.cbr", "START-OF-LOG:\r\nQSO: 7012 CW 2025-04-26 2105\r\n");
    open(InputKind::cbr, "C:\\log\\s.cbr");
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　9"));
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub henkan_cbr_2_t() ：　9"));
}

TEST_F(OtherLogsRun, CabrilloLogWithoutAContactEndsInTheReport) {
    kit.put_text("C:\\log\\n.cbr", "START-OF-LOG:\r\nEND-OF-LOG:\r\n");
    open(InputKind::cbr, "C:\\log\\n.cbr");
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　62"));
}

TEST_F(OtherLogsRun, OperatorThatNoCabrilloLogKnowsLeavesNoContact) {
    open(InputKind::cbr, "C:\\log\\c.cbr");
    screen.Check15.value = true;
    screen.txtOp_name.text = "JA1ZZZ";
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    EXPECT_EQ(kit.memory.bytes("C:\\log\\zlog_1.txt"), "");
}

// --- ADIF ---

TEST_F(OtherLogsRun, ExchangeIsTakenWithoutItsPowerForOneRun) {
    open(InputKind::ADIF, "C:\\log\\a.adi");
    screen.Check27.value = true;
    screen.Check28.value = true;
    screen.cmdStart.press();
    EXPECT_THAT(text("C:\\log\\zlog_1.txt"), HasSubstr("\"104\"\r\n"));
    EXPECT_THAT(text("C:\\log\\zlog_1.txt"), HasSubstr("\"101\"\r\n"));
    screen.cmdStart.press();
    EXPECT_THAT(text("C:\\log\\zlog_1.txt"), Not(HasSubstr("\"104")));
}

TEST_F(OtherLogsRun, ExchangeIsTakenWithItsPowerByOneOptionAlone) {
    open(InputKind::ADIF, "C:\\log\\a.adi");
    screen.Check28.value = true;
    screen.cmdStart.press();
    EXPECT_THAT(text("C:\\log\\zlog_1.txt"), HasSubstr("\"104M\"\r\n"));
}

TEST_F(OtherLogsRun, BandOfAnAdifLogStandsInTheIntermediateTextAsItIs) {
    run(InputKind::ADIF, "C:\\log\\a.adi");
    EXPECT_THAT(text("C:\\log\\zlog_1.txt"),
                HasSubstr("\"2025\",\"04\",\"26\",\"2105\",\"JA1ZZA\",\"599\",\"589\",\"40M\","
                          "\"CW\",\"\",\"\",\"7.012\",\"\"\r\n"));
}

// --- binary logs of zLog ---

TEST_F(OtherLogsRun, ContestOfTheHeadingComesIntoTheRemarksIfItWasRead) {
    screen.Option02.index = 2;
    run(InputKind::zlo, "C:\\log\\z.zlo");
    EXPECT_THAT(text("C:\\log\\z_hjn.csv"), HasSubstr("\"全市全郡コンテスト CW\",\"\",\"8\"\r\n"));
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   2 件");
    EXPECT_EQ(screen.lblIn_rec_count.caption.get(), "");  // cleared by the run
}

TEST_F(OtherLogsRun, ContestOfTheHeadingStaysOutOfTheRemarksIfItWasNotRead) {
    run(InputKind::zlo, "C:\\log\\z.zlo");
    EXPECT_THAT(text("C:\\log\\z_hjn.csv"), Not(HasSubstr("コンテスト")));
}

TEST_F(OtherLogsRun, ContestOfOneLogDoesNotComeIntoTheRemarksOfTheNext) {
    screen.Option02.index = 2;
    run(InputKind::zlo, "C:\\log\\z.zlo");
    screen.Option02.index = 0;
    for (const auto& [kind, path] : {std::pair{InputKind::cbr, "C:\\log\\c.cbr"},
                                     {InputKind::ADIF, "C:\\log\\a.adi"},
                                     {InputKind::lg8, "C:\\log\\l.lg8"},
                                     {InputKind::log_v4, "C:\\log\\r4.log"}}) {
        run(kind, path);
        EXPECT_THAT(text(program.log.names.out_name_hamj_new), Not(HasSubstr("コンテスト")))
            << path;
    }
}

TEST_F(OtherLogsRun, ContestFromTheHeadingGivesCodesAndPlaces) {
    screen.Option02.index = 2;
    screen.Option04.index = 1;
    run(InputKind::zlo, "C:\\log\\z.zlo");
    EXPECT_THAT(text("C:\\log\\zlog_2.txt"), HasSubstr("\"104\",\"常呂郡\",\"104M\""));
}

TEST_F(OtherLogsRun, ContestWithoutCodesThatWasWavedThroughIsConvertedWithoutThem) {
    kit.memory.put("C:\\log\\d.zlo", sample_zlo("DXコンテスト"));
    screen.Option02.index = 2;
    kit.person.answers = {Answer::retry};
    run(InputKind::zlo, "C:\\log\\d.zlo");
    EXPECT_THAT(text("C:\\log\\d_hjn.csv"), HasSubstr("\"DXコンテスト\",\"\",\"8\"\r\n"));
    EXPECT_THAT(text("C:\\log\\zlog_2.txt"), HasSubstr("\"\",\"\",\"104M\""));
}

// A flag of no search: the data file is there and gives nothing.
TEST_F(OtherLogsRun, TelecomPartyGetsNoCodes) {
    kit.put_text(program.paths.contest_name_csv,
                 "No,Cfg_name,Dat_name,Con_name,Code_flag,Con_no_1,Con_no_2,\r\n"
                 "1,t.cfg,tele.dat,テレコムＱＳＯパーティー,00,局名,,\r\n");
    kit.put_text("C:\\zLog\\tele.dat", "heading\r\n104M       常呂郡\r\n");
    kit.memory.put("C:\\log\\t.zlo", sample_zlo("テレコムＱＳＯパーティー"));
    screen.Option02.index = 2;
    screen.Option04.index = 1;
    run(InputKind::zlo, "C:\\log\\t.zlo");
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_THAT(text("C:\\log\\zlog_2.txt"), HasSubstr("\"\",\"\",\"104M\""));
    EXPECT_THAT(text("C:\\log\\t_hjn.csv"), HasSubstr("\"テレコムＱＳＯパーティー\",\"\",\"8\""));
}

TEST_F(OtherLogsRun, HeadingAloneEndsInTheReport) {
    kit.memory.put("C:\\log\\h.zlo", zlo_heading(""));
    open(InputKind::zlo, "C:\\log\\h.zlo");
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　62"));
}

TEST_F(OtherLogsRun, OneOperatorOfABinaryLogIsKept) {
    open(InputKind::zlo, "C:\\log\\z.zlo");
    screen.Check15.value = true;
    screen.txtOp_name.text = "JA1ZZY";
    screen.cmdStart.press();
    ASSERT_FALSE(program.ended());
    EXPECT_EQ(program.counters.values[0], 1U);
    EXPECT_THAT(text("C:\\log\\z_hjn.csv"), HasSubstr("JR8YYX/1"));
    EXPECT_THAT(text("C:\\log\\z_hjn.csv"), Not(HasSubstr("JA1ZZA")));
}

// --- RTCL ---

TEST_F(OtherLogsRun, TextOfAnRtclLogStandsBesideIt) {
    run(InputKind::log_v430, "C:\\log\\r430.log");
    const std::string expected =
        "zLog for Windows   (rtcl.log to zlog.all)    by Morvessa 5.30\r\n"
        "2025/04/26 21:05 JA1ZZA       599 11M     589 104M    -     -     7    CW   1   "
        "%%JA1ZZZ%% (7012) SSN\r\n"
        "2025/04/26 21:06 JR8YYX/1     59  11M     57  101H    -     -     430  FM   1   "
        "(433000)\r\n";
    EXPECT_EQ(text("C:\\log\\r430_log2a.all"), expected);
    EXPECT_EQ(text("C:\\zlog_01.txt"), expected);
}

TEST_F(OtherLogsRun, TextOfAnRtclLogCanBeLookedAtBehindTheRun) {
    std::vector<std::string> shown;
    kit.person.forms.emplace_back(
        [&shown](WindowForm& form) { shown.push_back(dynamic_cast<frmDisp&>(form).disp_name()); });
    open(InputKind::log_v4, "C:\\log\\r4.log");
    EXPECT_FALSE(screen.mnuDisp_log2a.enabled);
    screen.cmdStart.press();
    ASSERT_TRUE(screen.mnuDisp_log2a.enabled);
    screen.mnuDisp_log2a.press();
    EXPECT_THAT(shown, ElementsAre("C:\\log\\r4_log2a.all"));
}

TEST_F(OtherLogsRun, NoOtherRunOffersTheTextOfAnRtclLog) {
    run(InputKind::log_v4, "C:\\log\\r4.log");
    ASSERT_TRUE(screen.mnuDisp_log2a.enabled);
    for (const auto& [kind, path] : {std::pair{InputKind::cbr, "C:\\log\\c.cbr"},
                                     {InputKind::ADIF, "C:\\log\\a.adi"},
                                     {InputKind::zlo, "C:\\log\\z.zlo"},
                                     {InputKind::lg8, "C:\\log\\l.lg8"}}) {
        run(kind, path);
        EXPECT_FALSE(screen.mnuDisp_log2a.enabled) << path;
    }
}

TEST_F(OtherLogsRun, TextOfAnRtclLogIsOfferedAsLongAsThatLogIsChosen) {
    run(InputKind::log_v4, "C:\\log\\r4.log");
    kit.put_text("C:\\log\\x.all", sample_all_log);
    kit.open("C:\\log\\x.all");
    EXPECT_FALSE(screen.mnuDisp_log2a.enabled);
    kit.person.files = {"C:\\log\\r4.log"};
    screen.mnuOpen_rtcl_log_set_new4.press();
    EXPECT_TRUE(screen.mnuDisp_log2a.enabled);  // that of the run before
}

TEST_F(OtherLogsRun, QtcRecordsOfAnRtclLogAreNoContacts) {
    const RtclForm form = RtclForm::before_430;
    kit.memory.put("C:\\log\\q.log", RtclContactBytes{}.bytes(form) +
                                         RtclContactBytes{.kind = "QTC01"}.bytes(form) +
                                         RtclContactBytes{.dupe = 1, .call = "JA1ZZB"}.bytes(form));
    run(InputKind::log_v4, "C:\\log\\q.log");
    EXPECT_EQ(program.counters.values[0], 2U);
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   3件");
    EXPECT_THAT(text("C:\\log\\q_log2a.all"), HasSubstr("0   -DUPE- (7012)\r\n"));
}

TEST_F(OtherLogsRun, DupeListOfAnRtclLogIsNamedAfterTheTextThatWasRead) {
    open(InputKind::log_v4, "C:\\log\\r4.log");
    screen.Check06.value = true;
    screen.cmdStart.press();
    ASSERT_FALSE(program.ended());
    EXPECT_TRUE(kit.memory.file_exists("C:\\log\\zlog_01.dup"));
    EXPECT_FALSE(kit.memory.file_exists("C:\\log\\r4.dup"));
    EXPECT_FALSE(screen.mnuDisp_dup.enabled);
    EXPECT_FALSE(screen.tool_dup.enabled);
}

TEST_F(OtherLogsRun, RefusedRtclLogIsNotConverted) {
    kit.memory.put("C:\\log\\n.log", "0");
    kit.person.files = {"C:\\log\\n.log"};
    screen.mnuOpen_rtcl_log_set_new4.press();
    screen.cmdStart.press();
    EXPECT_FALSE(program.run_finished);
    EXPECT_THAT(new_files(), ElementsAre("n.log"));
}

TEST_F(OtherLogsRun, TimeThatNoCalendarHoldsEndsInTheReport) {
    kit.memory.put("C:\\log\\t.log", RtclContactBytes{.days = 1e300}.bytes(RtclForm::before_430));
    open(InputKind::log_v4, "C:\\log\\t.log");
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　6"));
}

// --- Ctestwin ---

TEST_F(OtherLogsRun, CtestwinLogWithoutItsTextEndsInTheReport) {
    kit.memory.remove("C:\\log\\l_lg8bridge.all");
    open(InputKind::lg8, "C:\\log\\l.lg8");
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　53"));
}

TEST_F(OtherLogsRun, TextOfACtestwinLogStays) {
    run(InputKind::lg8, "C:\\log\\l.lg8");
    EXPECT_EQ(text("C:\\log\\l_lg8bridge.all"), sample_all_log);
}

// --- one behind the other ---

TEST_F(OtherLogsRun, KindsFollowEachOtherInOneProgram) {
    run(InputKind::log_v4, "C:\\log\\r4.log");
    run(InputKind::cbr, "C:\\log\\c.cbr");
    run(InputKind::lg8, "C:\\log\\l.lg8");
    run(InputKind::zlo, "C:\\log\\z.zlo");
    run(InputKind::log_v430, "C:\\log\\r430.log");
    run(InputKind::ADIF, "C:\\log\\a.adi");
    for (const char* const name : {"r4", "c", "l", "z", "r430", "a"}) {
        EXPECT_TRUE(kit.memory.file_exists(std::string("C:\\log\\") + name + "_hjn.csv")) << name;
    }
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

}  // namespace
}  // namespace veldrana
