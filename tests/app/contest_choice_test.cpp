// How the main screen comes to a contest data file, and what it shows of the choice.
#include "app/contest_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "readers/frmCon_sel.h"
#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class ContestChoice : public testing::Test {
  protected:
    ContestChoice() {
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.put_text("C:\\zLog\\acag.dat",
                     "heading\r\n104        常呂郡\r\n1004       武蔵野市\r\n");
        kit.put_text("C:\\veldrana\\mas_mst\\no.dat", "heading\r\n");
        kit.start();
        kit.person.boxes.clear();
        screen.Option02.index = 2;
    }

    // Opens the log, then the dialog, and confirms the contest with that data file.
    void confirm(const std::string& Dat_name) {
        kit.person.forms.emplace_back([Dat_name](WindowForm& form) {
            auto& dialog = dynamic_cast<frmCon_sel&>(form);
            dialog.List1.index = dialog.row_of(Dat_name);
            dialog.cmdOK.press();
        });
        screen.mnuOpenDat_semi.press();
    }

    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
};

TEST_F(ContestChoice, NeitherWayDoesAnythingWithoutALog) {
    screen.mnuOpenDat_semi.press();
    screen.mnuOpenDat_mnu.press();
    EXPECT_THAT(kit.person.dialogs, IsEmpty());
    EXPECT_FALSE(has_dat(program));
}

TEST_F(ContestChoice, LogAloneIsNotReadyWhereCodesComeFromAFile) {
    kit.open("C:\\log\\x.all");
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_EQ(screen.lblDatName.caption.get(), "ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。");
    EXPECT_EQ(screen.Label37.fore_colour.get(), colours::red);
}

TEST_F(ContestChoice, ConfirmedContestMakesTheRunReady) {
    kit.open("C:\\log\\x.all");
    confirm("acag.dat");
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
    EXPECT_EQ(program.selection.Code_flag, "31");
    EXPECT_EQ(program.selection.Con_name, "全市全郡コンテスト");
    EXPECT_EQ(screen.lblDatName.caption.get(), "c:\\zlog\\acag.dat");
    EXPECT_EQ(screen.lblDatName.fore_colour.get(), colours::blue);
    EXPECT_EQ(screen.Label37.caption.get(), "c:\\zlog\\acag.dat");
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.tool_convert.enabled);
    EXPECT_TRUE(screen.tool_dat.enabled);
    EXPECT_TRUE(screen.mnuDisp_dat.enabled);
    EXPECT_EQ(kit.stored(dat_ini, "DAT_MAS", "set_dat_in_name"), "C:\\zLog\\acag.dat");
}

TEST_F(ContestChoice, ConfirmedContestGivesCodesAndPlaces) {
    screen.Option04.index = 1;
    kit.open("C:\\log\\x.all");
    confirm("acag.dat");
    screen.cmdStart.press();
    ASSERT_FALSE(program.ended());
    const std::string coded = from_code_page(kit.memory.bytes("C:\\log\\zlog_2.txt"));
    EXPECT_THAT(coded, HasSubstr("\"104\",\"常呂郡\",\"104M\""));
}

TEST_F(ContestChoice, BackLeavesTheChoiceAndGoesByWhatIsThere) {
    kit.open("C:\\log\\x.all");
    confirm("acag.dat");
    screen.mnuOpenDat_semi.press();  // closed as it is
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.Frame03.enabled);
    kit.memory.remove("C:\\zLog\\acag.dat");
    kit.person.answers = {Answer::retry};
    screen.mnuOpenDat_semi.press();
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_FALSE(screen.tool_convert.enabled);
    EXPECT_FALSE(screen.mnuDisp_dat.enabled);
    EXPECT_FALSE(screen.cmdDisp_dat.enabled);
    EXPECT_FALSE(screen.cmdDisp_dat2.enabled);
    EXPECT_FALSE(screen.Frame03.enabled);
}

TEST_F(ContestChoice, ManualWayTakesTheFileAndFindsItsContest) {
    kit.open("C:\\log\\x.all");
    kit.person.files = {"C:\\zLog\\acag.dat"};
    screen.mnuOpenDat_mnu.press();
    EXPECT_EQ(program.selection.Con_name, "全市全郡コンテスト");
    EXPECT_EQ(program.selection.Code_flag, "31");
    EXPECT_EQ(screen.lblDatName.caption.get(), "C:\\zLog\\acag.dat");
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_EQ(kit.stored(dat_ini, "DAT_MAS", "set_dat_in_name"), "C:\\zLog\\acag.dat");
}

TEST_F(ContestChoice, ManualWayAsksAgainForAFileOfNoContest) {
    kit.put_text("C:\\zLog\\other.dat", "heading\r\n");
    kit.open("C:\\log\\x.all");
    kit.person.files = {"C:\\zLog\\other.dat"};
    screen.mnuOpenDat_mnu.press();
    EXPECT_EQ(screen.lblDatName.caption.get(), "ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。");
    EXPECT_EQ(screen.lblDatName.fore_colour.get(), colours::red);
    EXPECT_FALSE(screen.cmdDisp_dat.enabled);
}

TEST_F(ContestChoice, FileOfAContestWithoutCodesIsRefusedOnce) {
    kit.open("C:\\log\\x.all");
    kit.person.files = {"C:\\veldrana\\mas_mst\\no.dat", "C:\\veldrana\\mas_mst\\no.dat"};
    kit.person.answers = {Answer::retry};
    screen.mnuOpenDat_mnu.press();
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　DAT ﾌｧｲﾙ よりcode、QTHの取得は不可能！");
    EXPECT_EQ(program.selection.File_no, "10");
    EXPECT_FALSE(screen.cmdDisp_dat.enabled);
    screen.mnuOpenDat_mnu.press();
    EXPECT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_FALSE(program.ended());
}

TEST_F(ContestChoice, RefusalIsForgottenWithTheNextLog) {
    kit.open("C:\\log\\x.all");
    kit.person.files = {"C:\\veldrana\\mas_mst\\no.dat"};
    kit.person.answers = {Answer::retry};
    screen.mnuOpenDat_mnu.press();
    kit.open("C:\\log\\x.all");
    kit.person.files = {"C:\\veldrana\\mas_mst\\no.dat"};
    screen.mnuOpenDat_mnu.press();
    EXPECT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::refused);
}

TEST_F(ContestChoice, CancelledFileDialogLeavesTheChoice) {
    kit.open("C:\\log\\x.all");
    confirm("acag.dat");
    screen.mnuOpenDat_mnu.press();
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
}

TEST_F(ContestChoice, InformationTellsContestAndFlag) {
    kit.open("C:\\log\\x.all");
    confirm("acag.dat");
    screen.cmdDisp_dat.press();
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　個別 ＤＡＴ ファイル情報");
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("コード・フラグ　：　31"));
}

TEST_F(ContestChoice, TakingTheCodeAsksForAFileThatHasGone) {
    kit.open("C:\\log\\x.all");
    confirm("acag.dat");
    kit.memory.remove("C:\\zLog\\acag.dat");
    kit.person.answers = {Answer::retry};
    screen.Option04.index = 1;
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　エラー　：　必要ファイルがありません。");
    EXPECT_EQ(kit.person.boxes[0].buttons, Buttons::retry_cancel);
    EXPECT_FALSE(program.ended());
    screen.Option04.index = 0;
    screen.Option04.index = 1;  // and now it is cancelled
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::refused);
}

TEST_F(ContestChoice, AnotherSourceAndBackKeepsTheFile) {
    kit.open("C:\\log\\x.all");
    confirm("acag.dat");
    screen.Option02.index = 0;
    screen.Option02.index = 2;
    EXPECT_TRUE(has_dat(program));
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.tool_dat.enabled);
}

TEST_F(ContestChoice, ManualWayShowsThePathOfTheList) {
    kit.put_text("D:\\my_acag.dat", "heading\r\n");
    kit.open("C:\\log\\x.all");
    kit.person.files = {"D:\\my_acag.dat"};
    screen.mnuOpenDat_mnu.press();
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
    EXPECT_EQ(screen.lblDatName.caption.get(), "C:\\zLog\\acag.dat");
}

TEST_F(ContestChoice, RunAsksForAFileThatHasGoneBeforeItBegins) {
    screen.Option04.index = 1;
    kit.open("C:\\log\\x.all");
    confirm("acag.dat");
    kit.memory.remove("C:\\zLog\\acag.dat");
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::refused);
    EXPECT_FALSE(kit.memory.file_exists("C:\\log\\zlog_1.txt"));
}

// A run that failed has left its file: the start goes on with what it names.
TEST(ContestDataLeftOver, AreTakenUpByAStartThatTakesTheCode) {
    ProgramKit kit;
    kit.put_text("C:\\zLog\\acag.dat", "heading\r\n");
    kit.put_text("C:\\veldrana\\Veldrana_dat.ini",
                 "[DAT_MAS]\r\nset_dat_in_name=C:\\zLog\\acag.dat\r\n");
    ProfileFile options(kit.memory, "C:\\veldrana\\Veldrana_new.ini");
    options.set_value(new_ini, "Option04", "1");
    options.set_value(new_ini, "Option02", "2");
    ASSERT_TRUE(options.save());
    ASSERT_TRUE(kit.start());
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_EQ(kit.program->selection.dat.name, "acag.dat");
    EXPECT_EQ(kit.program->selection.dat.folder, "C:\\zLog\\");
    EXPECT_EQ(kit.screen().lblDatName.caption.get(), "C:\\zLog\\acag.dat");
}

// --- the checks of a start ---

TEST(MasterChecksAtStart, FaultInTheContestListEndsTheStart) {
    ProgramKit kit;
    kit.put_text("C:\\veldrana\\mas_mst\\contest_name.csv",
                 "heading\r\n1,a.cfg,a.dat,A & B,11,x,y,\r\n");
    EXPECT_FALSE(kit.start());
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::refused);
    EXPECT_TRUE(kit.memory.file_exists("C:\\veldrana\\ERR_contest_name_csv.txt"));
}

TEST(MasterChecksAtStart, MissingPostalMasterEndsTheStart) {
    ProgramKit kit;
    ProfileFile environment(kit.memory, "C:\\veldrana\\Veldrana_cfg.ini");
    environment.set_value(cfg_ini, "yubin_mas_dir", "C:\\yubin\\");
    ASSERT_TRUE(environment.save());
    EXPECT_FALSE(kit.start());
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::refused);
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("yubin_m0.mas"));
}

TEST(MasterChecksAtStart, NumberedNameMastersLeaveTheirNote) {
    ProgramKit kit;
    ProfileFile environment(kit.memory, "C:\\veldrana\\Veldrana_cfg.ini");
    environment.set_value(cfg_ini, "name_mas_dir", "C:\\mas\\");
    ASSERT_TRUE(environment.save());
    kit.put_text("C:\\mas\\name_mas.txt", "h\r\nh\r\n JA1ZZA\r\n");
    kit.put_text("C:\\mas\\name_mas1.txt", "h\r\nh\r\n JA1ZZA\r\n");
    ASSERT_TRUE(kit.start());
    EXPECT_EQ(kit.program->name_mas_max, 1U);
    EXPECT_EQ(kit.screen().lblMsg.caption.get(),
              "複数の name_mas? ．txt を検索するので処理に１分程掛かります。");
}

TEST(MasterChecksAtStart, CountShowsTheRecordsOfTheNameMaster) {
    ProgramKit kit;
    ProfileFile environment(kit.memory, "C:\\veldrana\\Veldrana_cfg.ini");
    environment.set_value(cfg_ini, "name_mas_dir", "C:\\mas\\");
    ASSERT_TRUE(environment.save());
    kit.put_text("C:\\mas\\name_mas.txt", "h\r\nh\r\n JA1ZZA\r\n JR8YYX\r\n");
    ASSERT_TRUE(kit.start());
    kit.person.boxes.clear();
    kit.screen().cmdCount.press();
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].title, "　　name_mas．ｔｘｔ の件数");
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("name_mas.txt の件数　： 2"));
}

}  // namespace
}  // namespace veldrana
