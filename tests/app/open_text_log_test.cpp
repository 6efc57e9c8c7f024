#include "app/open_text_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

class OpenTextLog : public testing::Test {
  protected:
    OpenTextLog() {
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.put_text("C:\\log\\x.txt", "mon day time  callsign      sent\r\n");
        kit.start();
    }
    ProgramKit kit;
    MainScreen& screen = kit.screen();
};

TEST_F(OpenTextLog, AllLogIsReadyForARun) {
    kit.open("C:\\log\\x.all");
    EXPECT_EQ(kit.program->log.f_type, InputKind::all);
    EXPECT_EQ(kit.program->log.in_Dir, "C:\\log\\");
    EXPECT_EQ(screen.lblIn_name.caption.get(), "C:\\log\\x.all");
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::blue);
    EXPECT_EQ(screen.lblOut_name1.caption.get(), "C:\\log\\x_cjn.csv");
    EXPECT_EQ(screen.lblOut_name2.caption.get(), "C:\\log\\x_hjn.csv");
    EXPECT_EQ(screen.lblInfo.caption.get(), "");
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.tool_convert.enabled);
}

TEST_F(OpenTextLog, OnlyATxtLogAsksForTheYear) {
    kit.open("C:\\log\\x.txt");
    EXPECT_EQ(kit.program->log.f_type, InputKind::txt);
    EXPECT_TRUE(screen.txtYYYY.enabled);
    EXPECT_TRUE(screen.Frame14.enabled);
    kit.open("C:\\log\\x.all");
    EXPECT_FALSE(screen.txtYYYY.enabled);
    EXPECT_FALSE(screen.Frame14.enabled);
}

TEST_F(OpenTextLog, CapitalExtensionIsRead) {
    kit.put_text("C:\\log\\Y.ALL", sample_all_log);
    kit.open("C:\\log\\Y.ALL");
    EXPECT_EQ(kit.program->log.f_type, InputKind::all);
}

TEST_F(OpenTextLog, WrongHeadingIsRefusedInRed) {
    for (const char* const path : {"C:\\log\\a.all", "C:\\log\\t.txt"}) {
        kit.put_text(path, "something else\r\n");
        kit.open(path);
        EXPECT_EQ(screen.lblIn_name.caption.get(), "zlogのﾃｷｽﾄﾌｧｲﾙではありません！");
        EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::red);
        EXPECT_EQ(kit.program->log.in_name, "zlogのﾃｷｽﾄﾌｧｲﾙではありません！");
        EXPECT_FALSE(screen.cmdStart.enabled);
        EXPECT_FALSE(kit.program->ended());
    }
}

TEST_F(OpenTextLog, HeadingOfTheOtherKindIsRefused) {
    kit.put_text("C:\\log\\a.txt", sample_all_log);
    kit.open("C:\\log\\a.txt");
    EXPECT_EQ(screen.lblIn_name.caption.get(), not_a_text_log);
}

TEST_F(OpenTextLog, EmptyFileIsRefused) {
    kit.put_text("C:\\log\\a.all", "");
    kit.open("C:\\log\\a.all");
    EXPECT_EQ(screen.lblIn_name.caption.get(), not_a_text_log);
}

TEST_F(OpenTextLog, FileOfNoKindIsRefused) {
    kit.put_text("C:\\log\\a.log", sample_all_log);
    kit.open("C:\\log\\a.log");
    EXPECT_EQ(screen.lblIn_name.caption.get(), not_a_text_log);
}

TEST_F(OpenTextLog, RefusedLogCanBeFollowedByAGoodOne) {
    kit.put_text("C:\\log\\a.all", "x");
    kit.open("C:\\log\\a.all");
    kit.open("C:\\log\\x.all");
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::blue);
}

TEST_F(OpenTextLog, NoAnswerLeavesTheLabelRedAndTheChosenLogAsItWas) {
    kit.open("C:\\log\\x.all");
    kit.open("");
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::red);
    EXPECT_EQ(kit.program->log.in_name, "C:\\log\\x.all");
}

TEST_F(OpenTextLog, PathWithoutABackslashChangesNothing) {
    kit.open("x.all");
    EXPECT_EQ(kit.program->log.in_name, "");
    EXPECT_FALSE(screen.cmdStart.enabled);
}

TEST_F(OpenTextLog, MissingFileEndsInTheReport) {
    kit.open("C:\\log\\missing.all");
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　53"));
}

TEST_F(OpenTextLog, ANewLogZeroesTheCounters) {
    kit.program->counters.values[0] = 7;
    kit.open("C:\\log\\x.all");
    EXPECT_EQ(kit.program->counters.values[0], 0U);
    EXPECT_EQ(screen.MSFlexGrid1.cell(0, 1).text, "0");
}

TEST_F(OpenTextLog, ViewersFollowWhatAnEarlierRunLeft) {
    kit.open("C:\\log\\x.all");
    EXPECT_FALSE(screen.tool_contest.enabled);
    EXPECT_FALSE(screen.mnuDisp_con_new.enabled);
    kit.put_text("C:\\log\\x_cj.csv", "");
    kit.put_text("C:\\log\\x_cjn.csv", "");
    kit.put_text("C:\\log\\x.dup", "");
    kit.open("C:\\log\\x.all");
    EXPECT_TRUE(screen.tool_contest.enabled);
    EXPECT_TRUE(screen.cmdDisp_contest.enabled);
    EXPECT_TRUE(screen.mnuDisp_con_n.enabled);
    EXPECT_TRUE(screen.tool_dup.enabled);
    EXPECT_TRUE(screen.mnuDisp_dup.enabled);
    EXPECT_FALSE(screen.tool_hamlog.enabled);
    EXPECT_FALSE(screen.cmdDisp_Hamlog.enabled);
    EXPECT_TRUE(screen.mnuDisp_con_new.enabled);
    EXPECT_FALSE(screen.mnuDisp_ham_new.enabled);
    EXPECT_EQ(screen.mnuDisp_con_new.caption.get(), "x_cjn.csv");
    EXPECT_EQ(screen.mnuJARL_Web_OK_hamj.caption.get(), "x_hjn.csv");
    EXPECT_EQ(screen.mnuDisp_dup.caption.get(), "C:\\log\\x.dup");
    EXPECT_EQ(screen.cmdDisp_Hamlog.tool_tip.get(), "C:\\log\\x_hjn.csv");
    EXPECT_EQ(screen.cmdDisp_contest.tool_tip.get(), "C:\\log\\x_cjn.csv");
    EXPECT_EQ(screen.lblOut_name1.tool_tip.get(), "C:\\log\\x_cjn.csv");
    EXPECT_EQ(screen.lblOut_name2.tool_tip.get(), "C:\\log\\x_hjn.csv");
    EXPECT_EQ(screen.tool_dup.tool_tip.get(), "C:\\log\\x.dup");
    EXPECT_EQ(screen.mnuJARL_Web_OK_conj.caption.get(), "x_cjn.csv");
    EXPECT_EQ(screen.mnuJARL_Web_NO_conj.caption.get(), "x_cjn.csv");
    EXPECT_EQ(screen.mnuJARL_Web_NO_hamj.caption.get(), "x_hjn.csv");
}

TEST_F(OpenTextLog, DialogsOfferTextLogs) {
    kit.open("");
    EXPECT_EQ(kit.person.dialogs[0].filter, "ﾃｷｽﾄﾌｧｲﾙ ( *.txt , *.all )|*.txt;*.all");
    EXPECT_TRUE(kit.person.dialogs[0].must_exist);
    kit.program->settings.environment.all_dir = "c:\\zlog\\";
    screen.tool_open.press();
    EXPECT_EQ(kit.person.dialogs[1].title,
              "C:\\ZLOG\\　の ＊．ａｌｌ　または　＊．ｔｘｔ　 ファイルを  開く ....");
    EXPECT_EQ(kit.person.dialogs[1].filter, "テキストファイル(*.all;*.txt)|*.all;*.txt|");
    EXPECT_EQ(kit.person.dialogs[1].folder, "c:\\zlog\\");
}

TEST_F(OpenTextLog, PathOf50BytesIsShownInFull) {
    const std::string folder = "C:\\" + std::string(40, 'f') + "\\";  // 44 bytes
    for (const auto& [name, shown] :
         {std::pair{"xx.all", folder + "xx.all"},
          {"xxx.all", "C:\\" + std::string(35, 'f') + "...\\xxx.all"}}) {
        kit.put_text(folder + name, sample_all_log);
        kit.open(folder + name);
        EXPECT_EQ(screen.lblIn_name.caption.get(), shown);
        EXPECT_LE(LenMbcs(screen.lblIn_name.caption.get()), 50U);
        // The results are shortened if the log is.
        EXPECT_EQ(LenMbcs(screen.lblOut_name2.caption.get()) > 50U, shown.size() == 50U);
    }
}

TEST_F(OpenTextLog, NowFillsInTheYear) {
    screen.txtYYYY.text = "1999";
    screen.cmdNow.press();
    EXPECT_EQ(screen.txtYYYY.text.get(), "2026");
}

}  // namespace
}  // namespace veldrana
