// The heading of a binary log of zLog: its count, and the contest that it names.
#include "app/read_zlo_head.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/contest_choice.h"
#include "tests/app/other_logs.h"

namespace veldrana {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* ask = "ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。";

// Contests of every sort. The last row is what stays where none is found.
constexpr std::string_view contest_list =
    "No,Cfg_name,Dat_name,Con_name,Code_flag,Con_no_1,Con_no_2,\r\n"
    "1,acag.cfg,acag.dat,全市全郡コンテスト,31,JCC・JCG + 電力,二行目,\r\n"
    "2,kcj.cfg,kcj.mas, KCJコンテスト ,41,略称,,\r\n"
    "3,acag.cfg,other.dat,全市全郡,11,後の行,,\r\n"
    "4,fham.cfg,fham.dat,Fham.cfg,13,番号,,\r\n"
    "5,tele.cfg,tele.dat,テレコムＱＳＯパーティー,00,局名,,\r\n"
    "6,dx.cfg,no.dat,DXコンテスト,00,連番号,,\r\n"
    "7,plain.cfg,no.dat,無番号コンテスト,10,なし,,\r\n"
    "8,last.cfg,last.dat,最後のコンテスト,12,最後の番号,,\r\n";

class ReadZloHead : public testing::Test {
  protected:
    ReadZloHead() {
        kit.put_text(program.paths.contest_name_csv, contest_list);
        for (const char* const file :
             {"C:\\zLog\\acag.dat", "C:\\zLog\\fham.dat", "C:\\zLog\\tele.dat",
              "C:\\zLog\\last.dat", "C:\\veldrana\\mas_mst\\kcj.mas"}) {
            kit.put_text(file, "heading\r\n104        常呂郡\r\n");
        }
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.start();
        kit.person.boxes.clear();
        screen.Option02.index = 2;
    }

    // Opens a log whose heading names that contest.
    void open(std::string_view contest_name) {
        kit.memory.put("C:\\log\\x.zlo", sample_zlo(contest_name));
        open_file("C:\\log\\x.zlo");
    }
    void open_file(std::string_view path) {
        kit.person.files = {std::string(path)};
        screen.mnuOpen_z.press();
    }

    void expect_asked_for_dat() {
        for (const Label* const label : {&screen.lblDatName, &screen.Label37}) {
            EXPECT_EQ(label->caption.get(), ask);
            EXPECT_EQ(label->fore_colour.get(), colours::red);
        }
    }
    void expect_shown_dat(const std::string& path) {
        for (const Label* const label : {&screen.lblDatName, &screen.Label37}) {
            EXPECT_EQ(label->caption.get(), path);
            EXPECT_EQ(label->fore_colour.get(), colours::blue);
        }
    }
    bool manual_way_is_offered() { return screen.Option03.buttons.get()[1].enabled; }

    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
};

// --- without a log ---

TEST_F(ReadZloHead, WithoutALogAsksForOneInRed) {
    program.event([this] { read_zlo_head(program); });
    EXPECT_EQ(screen.lblCFG.caption.get(), "入力ﾌｧｲﾙをﾒﾆｭｰより指定して下さい。");
    EXPECT_EQ(screen.lblCFG.fore_colour.get(), colours::red);
    EXPECT_EQ(screen.lblInfo.caption.get(), "入力ファイルを指定して下さい");
    EXPECT_EQ(screen.lblInfo.fore_colour.get(), colours::red);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_FALSE(program.ended());
}

TEST_F(ReadZloHead, NoCodeSourceWithoutALogAsksForOne) {
    open("全市全郡コンテスト");
    kit.person.files = {"C:\\log\\x.all"};
    screen.mnuOpen_cbr.press();  // is none: no log is chosen, and the kind stays
    ASSERT_EQ(program.log.f_type, InputKind::zlo);
    screen.lblInfo.caption = "";
    screen.Option02.index = 0;
    EXPECT_EQ(screen.lblInfo.caption.get(), "入力ファイルを指定して下さい");
    EXPECT_FALSE(screen.cmdStart.enabled);
}

TEST_F(ReadZloHead, NoCodeSourceWithALogAsksForNothing) {
    open("全市全郡コンテスト");
    screen.Option02.index = 0;
    EXPECT_EQ(screen.lblInfo.caption.get(), "");
    EXPECT_TRUE(screen.cmdStart.enabled);
}

// --- the count ---

TEST_F(ReadZloHead, CountIsShownOnBothLabels) {
    open("全市全郡コンテスト");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   2 件");
    EXPECT_EQ(screen.lblIn_rec_count.caption.get(), "   2 件");
    EXPECT_EQ(program.log.record_count, "   2");
}

TEST_F(ReadZloHead, HeadingAloneHasNoContact) {
    kit.memory.put("C:\\log\\h.zlo", zlo_heading("全市全郡コンテスト"));
    open_file("C:\\log\\h.zlo");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   0 件");
    EXPECT_EQ(screen.lblIn_rec_count.caption.get(), "   0 件");
}

TEST_F(ReadZloHead, PartOfARecordDoesNotCount) {
    std::string log = sample_zlo("全市全郡コンテスト");
    log.pop_back();
    kit.memory.put("C:\\log\\cut.zlo", log);
    open_file("C:\\log\\cut.zlo");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   1 件");
}

// --- a contest that is found ---

TEST_F(ReadZloHead, ContestOfTheListComesWithAllThatItsRowTells) {
    open("全市全郡コンテスト CW");
    EXPECT_EQ(program.selection.Con_name, "全市全郡コンテスト");
    EXPECT_EQ(program.selection.Code_flag, "31");
    EXPECT_EQ(program.selection.Con_no_1, "JCC・JCG + 電力");
    EXPECT_EQ(program.selection.Con_no_2, "二行目");
    EXPECT_EQ(program.selection.dat.name, "acag.dat");
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
    expect_shown_dat("C:\\zLog\\acag.dat");
    EXPECT_EQ(kit.stored(dat_ini, "DAT_MAS", "set_dat_in_name"), "C:\\zLog\\acag.dat");
    EXPECT_EQ(program.log.contest_name, "全市全郡コンテスト CW");
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.tool_convert.enabled);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(ReadZloHead, ContestThatIsFoundSetsTheAutomaticWayAndTakesTheOtherAway) {
    screen.Option03.index = 1;
    open("全市全郡コンテスト");
    EXPECT_EQ(screen.Option03.index, 0);
    EXPECT_FALSE(manual_way_is_offered());
    EXPECT_TRUE(screen.Option03.enabled);
    EXPECT_TRUE(screen.Frame11.enabled);
}

TEST_F(ReadZloHead, OtherTablesThanDatLieInTheProgramsFolder) {
    open("KCJコンテスト 2025");
    EXPECT_EQ(program.selection.Con_name, "KCJコンテスト");
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\veldrana\\mas_mst\\kcj.mas");
    expect_shown_dat("C:\\veldrana\\mas_mst\\kcj.mas");
}

TEST_F(ReadZloHead, NameIsTrimmed) {
    open("  KCJコンテスト ");
    EXPECT_EQ(program.log.contest_name, "KCJコンテスト");
}

TEST_F(ReadZloHead, PathOfASettingsFileIsShown) {
    open("C:\\zlog\\全市全郡コンテスト.cfg");
    EXPECT_EQ(screen.lblCFG.caption.get(), "C:\\zlog\\全市全郡コンテスト.cfg");
    EXPECT_EQ(program.selection.Con_name, "全市全郡コンテスト");
}

TEST_F(ReadZloHead, NameWithoutAPathIsNotShown) {
    open("全市全郡コンテスト");
    EXPECT_EQ(screen.lblCFG.caption.get(), "");
}

TEST_F(ReadZloHead, SettingsOfFhamNameTheContest) {
    open("C:\\zlog\\Fham.cfg");
    EXPECT_EQ(program.selection.Con_name, "Nifty FHAMコンテスト");
    EXPECT_EQ(program.log.contest_name, "Nifty FHAMコンテスト");
    EXPECT_EQ(program.selection.Code_flag, "13");
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\fham.dat");
    EXPECT_EQ(screen.lblCFG.caption.get(), "C:\\zlog\\Fham.cfg");
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(ReadZloHead, TablesAreViewedByWhatWasChosenInFrontOfThis) {
    open("全市全郡コンテスト");
    EXPECT_FALSE(screen.tool_dat.enabled);
    screen.Option02.index = 1;
    screen.Option02.index = 2;
    for (const Control* const viewer : std::initializer_list<const Control*>{
             &screen.tool_dat, &screen.mnuDisp_dat, &screen.cmdDisp_dat, &screen.cmdDisp_dat2}) {
        EXPECT_TRUE(viewer->enabled) << viewer->name();
    }
}

TEST_F(ReadZloHead, ContestWithoutAFileAsksForOne) {
    open("無番号コンテスト");
    expect_asked_for_dat();
    EXPECT_EQ(program.selection.Code_flag, "10");
    EXPECT_EQ(program.selection.dat.dat_in_name, "");
    EXPECT_EQ(program.selection.dat.name, "");
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(ReadZloHead, CodeThatIsTakenAsksForAFileThatHasGone) {
    open("全市全郡コンテスト");
    screen.Option04.index = 1;
    kit.memory.remove("C:\\zLog\\acag.dat");
    screen.Option02.index = 1;
    kit.person.answers = {Answer::retry};
    screen.Option02.index = 2;
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　エラー　：　必要ファイルがありません。");
    EXPECT_FALSE(program.ended());
}

// --- a contest that the list does not have ---

TEST_F(ReadZloHead, ContestBesideTheListIsAskedAbout) {
    kit.person.answers = {Answer::retry};
    open("知らないコンテスト");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　別の入力ファイルに指定し直して下さい。");
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("コンテスト名　：知らないコンテスト\n"));
    EXPECT_THAT(kit.person.boxes[0].text,
                HasSubstr("該当するコンテスト名が contest_name.csv にはありません。"));
    EXPECT_EQ(kit.person.boxes[0].buttons, Buttons::retry_cancel);
    EXPECT_EQ(screen.Option02.index, 0);
    EXPECT_TRUE(program.refusals.list);
    EXPECT_FALSE(has_dat(program));
    EXPECT_TRUE(screen.cmdStart.enabled);
    // The fields are those of the last row.
    EXPECT_EQ(program.selection.Con_name, "最後のコンテスト");
    EXPECT_EQ(program.selection.Code_flag, "12");
    EXPECT_EQ(program.log.contest_name, "知らないコンテスト");
}

TEST_F(ReadZloHead, ContestBesideTheListEndsTheProgramIfItIsCancelled) {
    kit.person.answers = {Answer::cancel};
    open("知らないコンテスト");
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::refused);
    EXPECT_THAT(kit.person.boxes, SizeIs(1));
}

TEST_F(ReadZloHead, CaseOfTheNameCounts) {
    kit.person.answers = {Answer::retry};
    open("kcjコンテスト");
    EXPECT_THAT(kit.person.boxes, SizeIs(1));
}

TEST_F(ReadZloHead, LastRowWithoutCodesIsAskedAboutToo) {
    kit.put_text(program.paths.contest_name_csv, ready_contest_list);  // ends in a flag "00"
    kit.person.answers = {Answer::retry, Answer::retry};
    open("知らないコンテスト");
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_EQ(kit.person.boxes[0].title, "　　別の入力ファイルに指定し直して下さい。");
    EXPECT_EQ(kit.person.boxes[1].title, "　　DAT ﾌｧｲﾙ よりcode、QTHの取得は不可能！");
    EXPECT_FALSE(program.ended());
}

// --- a contest without codes ---

TEST_F(ReadZloHead, ContestWithoutCodesIsAskedAbout) {
    kit.person.answers = {Answer::retry};
    open("DXコンテスト");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　DAT ﾌｧｲﾙ よりcode、QTHの取得は不可能！");
    EXPECT_EQ(kit.person.boxes[0].text,
              "コンテスト名　：DXコンテスト\n\nコンテストナンバー・タイプ : 連番号\n\n"
              "コンテストナンバーからは ｃｏｄｅ の取得が出来ません。");
    EXPECT_EQ(screen.Option02.index, 0);
    EXPECT_TRUE(program.refusals.code);
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_F(ReadZloHead, ContestWithoutCodesEndsTheProgramIfItIsCancelled) {
    kit.person.answers = {Answer::cancel};
    open("DXコンテスト");
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::refused);
}

TEST_F(ReadZloHead, TelecomPartyHasNoBoxAndKeepsItsFlag) {
    open("テレコムＱＳＯパーティー");
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_EQ(program.selection.Code_flag, "00");
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\tele.dat");
    EXPECT_EQ(screen.Option02.index, 2);
    EXPECT_TRUE(screen.cmdStart.enabled);
}

// Also where the heading is read again for the same log.
TEST_F(ReadZloHead, QuestionThatWasWavedThroughStaysAwayUntilTheNextLog) {
    kit.person.answers = {Answer::retry};
    open("DXコンテスト");
    screen.Option02.index = 2;
    EXPECT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(screen.Option02.index, 2);
    expect_asked_for_dat();
    EXPECT_FALSE(program.ended());
}

TEST_F(ReadZloHead, QuestionsComeAgainWithTheNextLog) {
    kit.person.answers = {Answer::retry, Answer::retry};
    open("DXコンテスト");
    screen.Option02.index = 1;
    kit.memory.put("C:\\log\\y.zlo", sample_zlo("DXコンテスト"));
    open_file("C:\\log\\y.zlo");
    screen.Option02.index = 2;
    EXPECT_THAT(kit.person.boxes, SizeIs(2));
}

// --- a heading without a name ---

TEST_F(ReadZloHead, HeadingWithoutANameIsAskedAboutAndSetsTheManualWay) {
    kit.person.answers = {Answer::retry};
    screen.Option03.enable(1, false);
    open("");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　DAT ﾌｧｲﾙ よりcode、QTHの取得は不可能！");
    EXPECT_EQ(kit.person.boxes[0].text,
              "ZLO に変換した ファイルでは [ 個別 DAT ]  の自動取得が出来ません。\n\n"
              "ｚＬｏｇ for Windows にて直接作成したファイル、 \n\n"
              "または　zLog for windows にて　[ \n\n"
              "ＴＸＴ形式のファイルを zListw に読み込みしてから\n\n"
              "起動画面の　[ User Defined Contest ]  [ Select ]  にて\n\n"
              "コンテストに対応した CFG ファイルを指定した後、\n\n"
              "* ．ZLO を作成し直して下さい。\n\n"
              "［ 再 試 行 ］　手動にて再度個別ＤＡＴの指定を行います。\n\n"
              "［キャンセル］　プログラムを終了します。 ");
    EXPECT_EQ(kit.person.boxes[0].buttons, Buttons::retry_cancel);
    EXPECT_EQ(screen.Option03.index, 1);
    EXPECT_TRUE(manual_way_is_offered());
    EXPECT_EQ(program.selection.File_no, "10");
    expect_asked_for_dat();
    EXPECT_EQ(screen.Option02.index, 2);
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   2 件");
    EXPECT_EQ(program.log.contest_name, "");
}

TEST_F(ReadZloHead, HeadingWithoutANameEndsTheProgramIfItIsCancelled) {
    kit.person.answers = {Answer::cancel};
    open("");
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::refused);
}

TEST_F(ReadZloHead, HeadingWithoutANameIsNotAskedAboutWhileARefusalIsInForce) {
    screen.Option02.index = 0;
    open("");
    program.refusals.code = true;
    screen.Option02.index = 2;
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_FALSE(manual_way_is_offered());
    EXPECT_FALSE(program.ended());
}

TEST_F(ReadZloHead, FileWithoutAWholeRecordNamesNoContest) {
    kit.memory.put("C:\\log\\short.zlo", std::string(255, 'x'));
    kit.person.answers = {Answer::retry};
    open_file("C:\\log\\short.zlo");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("ZLO に変換した ファイルでは"));
    EXPECT_FALSE(program.ended());
}

// A name of blanks has a length: it is no missing one, and no contest of the list.
TEST_F(ReadZloHead, NameOfBlanksIsNotInTheList) {
    kit.person.answers = {Answer::retry};
    open("   ");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　別の入力ファイルに指定し直して下さい。");
}

// --- when it is read ---

TEST_F(ReadZloHead, HeadingIsLeftAloneWhereCodesComeFromElsewhere) {
    for (const int source : {0, 1, 3}) {
        screen.Option02.index = source;
        kit.memory.put("C:\\log\\" + std::to_string(source) + ".zlo", sample_zlo(""));
        open_file("C:\\log\\" + std::to_string(source) + ".zlo");
        EXPECT_THAT(kit.person.boxes, IsEmpty());
        EXPECT_EQ(screen.lblIn_rec.caption.get(), "");
        EXPECT_TRUE(screen.cmdStart.enabled);
    }
}

TEST_F(ReadZloHead, HeadingIsReadWhenContestDataAreChosen) {
    screen.Option02.index = 0;
    open("全市全郡コンテスト");
    EXPECT_EQ(program.log.contest_name, "");
    screen.Option02.index = 2;
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   2 件");
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
    EXPECT_EQ(program.log.contest_name, "全市全郡コンテスト");
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_F(ReadZloHead, HeadingOfTheSameLogIsNotReadAgain) {
    open("全市全郡コンテスト");
    open("KCJコンテスト");  // the same path
    EXPECT_EQ(program.selection.Con_name, "全市全郡コンテスト");
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_F(ReadZloHead, HeadingIsReadAgainBehindAnotherLog) {
    open("全市全郡コンテスト");
    kit.open("C:\\log\\x.all");
    EXPECT_EQ(program.log.contest_name, "");
    open("KCJコンテスト");
    EXPECT_EQ(program.selection.Con_name, "KCJコンテスト");
}

TEST_F(ReadZloHead, OptionsOfOtherKindsReadNoHeading) {
    kit.memory.put("C:\\log\\x.lg8", sample_zlo(""));
    kit.person.files = {"C:\\log\\x.lg8"};
    screen.mnuOpen_Ctestwin_lg8.press();
    screen.Option02.index = 1;
    screen.Option02.index = 2;
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(ReadZloHead, ManualWayTakesAFileForALogWithoutAName) {
    kit.person.answers = {Answer::retry};
    open("");
    kit.person.files = {"C:\\zLog\\acag.dat"};
    screen.mnuOpenDat_mnu.press();
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
    EXPECT_TRUE(screen.cmdStart.enabled);
}

// --- failures ---

TEST_F(ReadZloHead, MissingLogEndsInTheReportWithItsLine) {
    open_file("C:\\log\\missing.zlo");
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　53"));
    EXPECT_THAT(kit.trace_lines(),
                testing::Contains("エラー発生  Private Sub read_zlo_head() ：　53"));
}

TEST_F(ReadZloHead, MissingContestListEndsInTheReport) {
    kit.memory.remove(program.paths.contest_name_csv);
    open("全市全郡コンテスト");
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
}

}  // namespace
}  // namespace veldrana
