#include "app/program_end.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

using testing::Contains;

class ProgramEndTest : public testing::Test {
  protected:
    ProgramEndTest() {
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.start();
        kit.open("C:\\log\\x.all");
        screen.cmdStart.press();
    }
    bool there(std::string_view path) { return kit.memory.file_exists(path); }

    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
};

TEST_F(ProgramEndTest, TracesItsLastLinesAndKeepsTheLogByDefault) {
    screen.tool_end.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::orderly);
    std::vector<std::string> lines = kit.trace_lines();
    ASSERT_GE(lines.size(), 3U);
    lines.erase(lines.begin(), lines.end() - 3);
    EXPECT_THAT(lines, testing::ElementsAre("", "Private Sub End_Click()",
                                            "　*************  終了  *********"));
}

TEST_F(ProgramEndTest, TellsThatItIsEnding) {
    const int before = kit.person.times_let_through;
    screen.tool_end.press();
    EXPECT_EQ(screen.lblCFG.caption.get(), "　　終了処理中．．．");
    EXPECT_EQ(screen.lblCFG.fore_colour.get(), colours::green);
    EXPECT_TRUE(screen.lblCFG.large_letters);
    EXPECT_EQ(kit.person.times_let_through, before + 1);
}

TEST_F(ProgramEndTest, WorkFilesAreDeleted) {
    const std::vector<std::string> work_files{"C:\\veldrana\\Veldrana.ini2",
                                              "C:\\semp_s.csv",
                                              "C:\\semp_d.csv",
                                              "C:\\uemp_s.csv",
                                              "C:\\temp_sj.csv",
                                              "C:\\log\\zlog_1.txt",
                                              "C:\\log\\zlog_2.txt",
                                              "C:\\log\\zlog_01.txt",
                                              "C:\\veldrana\\Veldrana_dat.ini",
                                              "C:\\veldrana\\bak_qso.hdx",
                                              "C:\\org_qsl.csv",
                                              "C:\\new_qsl_contest.csv",
                                              "C:\\new_qsl_hamlog.csv",
                                              "C:\\veldrana\\bak_chk_1.txt",
                                              "C:\\veldrana\\hdb_chk_2.txt",
                                              "C:\\veldrana\\bak_qso.mas",
                                              "C:\\veldrana\\Master_2.txt",
                                              "C:\\veldrana\\rtcl_tmp.txt"};
    for (const std::string& path : work_files) {
        kit.put_text(path, "x");
    }
    kit.put_text("C:\\veldrana\\hl_code.mas", "x");
    screen.tool_end.press();
    for (const std::string& path : work_files) {
        EXPECT_FALSE(there(path)) << path;
    }
    EXPECT_TRUE(there("C:\\veldrana\\hl_code.mas"));
    EXPECT_TRUE(there("C:\\log\\x.all"));
}

TEST_F(ProgramEndTest, KeptWorkFilesStay) {
    program.keep_work_files = true;
    screen.tool_end.press();
    EXPECT_TRUE(there("C:\\log\\zlog_1.txt"));
}

TEST_F(ProgramEndTest, UneventfulLogIsDeletedIfItNeedNotBeKept) {
    screen.Check26.value = false;
    screen.tool_end.press();
    EXPECT_FALSE(there(program.trace.path()));
}

TEST_F(ProgramEndTest, LogThatTellsOfAFailureIsKept) {
    screen.Check26.value = false;
    program.trace.write("エラー発生 ：　5");
    screen.tool_end.press();
    EXPECT_TRUE(there(program.trace.path()));
}

TEST_F(ProgramEndTest, AFileThatCannotBeDeletedDoesNotKeepTheOthers) {
    kit.put_text("C:\\semp_s.csv", "x");
    kit.put_text("C:\\semp_d.csv", "x");
    // Two lines of the trace log are an operation each; then come the listings of Veldrana.ini2 and
    // of semp_s.csv; the next one deletes it.
    const std::size_t lines = 2;
    kit.disk.fail_at(lines + 3, Failure::permission_denied);
    screen.tool_end.press();
    EXPECT_TRUE(there("C:\\semp_s.csv"));
    EXPECT_FALSE(there("C:\\semp_d.csv"));
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::orderly);
    EXPECT_TRUE(kit.person.boxes.empty());
    EXPECT_FALSE(there("C:\\log\\zlog_1.txt"));
}

// Its name fits the pattern of the work files; it is still the user's log.
TEST(ProgramEndLog, TheChosenLogIsNeverDeleted) {
    ProgramKit kit;
    kit.put_text("C:\\log\\zlog_9.txt", sample_txt_log);
    kit.start();
    kit.open("C:\\log\\ZLOG_9.TXT");
    kit.screen().cmdStart.press();
    kit.screen().tool_end.press();
    EXPECT_EQ(kit.memory.bytes("C:\\log\\zlog_9.txt"), sample_txt_log);
    EXPECT_FALSE(kit.memory.file_exists("C:\\log\\zlog_1.txt"));
}

TEST(ProgramEndLog, WithoutALogNothingBesideTheProgramIsTouched) {
    ProgramKit kit;
    kit.start();
    kit.screen().tool_end.press();
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::orderly);
}

}  // namespace
}  // namespace veldrana
