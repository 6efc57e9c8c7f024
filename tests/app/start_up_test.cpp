#include "app/start_up.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST(StartUp, MakesTheWorkingTree) {
    ProgramKit kit;
    ASSERT_TRUE(kit.start());
    for (const char* const folder :
         {"Temp_Files", "qsl_dir", "Error_Log", "BackUp", "Yubin_m_new"}) {
        EXPECT_TRUE(kit.memory.folder_exists(std::string("C:\\veldrana\\") + folder)) << folder;
    }
}

TEST(StartUp, FoldersThatAreThereStay) {
    ProgramKit kit;
    kit.memory.put("C:\\veldrana\\BackUp\\kept.csv", "x");
    EXPECT_TRUE(kit.start());
    EXPECT_EQ(kit.memory.bytes("C:\\veldrana\\BackUp\\kept.csv"), "x");
}

TEST(StartUp, TraceLogIsNamedByTheTimeAndBeginsWithTheVersion) {
    ProgramKit kit;
    kit.start();
    EXPECT_EQ(kit.program->trace.path(), "C:\\veldrana\\Error_Log\\20260504_130209.txt");
    std::vector<std::string> lines = kit.trace_lines();
    lines.resize(3);
    EXPECT_THAT(lines, ElementsAre("ver : 5.30", "Main()", "strPath : C:\\veldrana\\"));
}

TEST(StartUp, TraceLogOfAnEarlierStartInTheSameSecondStays) {
    ProgramKit kit;
    kit.clock.time = {2026, 12, 31, 23, 59, 59};
    kit.put_text("C:\\veldrana\\Error_Log\\20261231_235959.txt", "エラー発生 ：　5\r\n");
    kit.start();
    EXPECT_EQ(kit.program->trace.path(), "C:\\veldrana\\Error_Log\\20270101_000000.txt");
    EXPECT_EQ(kit.memory.bytes("C:\\veldrana\\Error_Log\\20261231_235959.txt"),
              to_code_page("エラー発生 ：　5\r\n"));
}

TEST(StartUp, EventsOfTheScreenRunOnce) {
    ProgramKit kit;
    kit.start();
    EXPECT_EQ(kit.person.times_let_through, 1);
}

TEST(StartUp, ProfileFilesThatAreThereAreCopiedIntoTheTraceLog) {
    ProgramKit kit("C:\\veldrana", Installed::bare);
    kit.put_text("C:\\veldrana\\Veldrana.ini", "[Veldrana.ini]\r\nCheck01=1\r\n");
    kit.put_text("C:\\veldrana\\Veldrana_cfg.ini", "[Veldrana_cfg.ini]\r\nall_dir=C:\\表示\\\r\n");
    kit.start();
    std::vector<std::string> lines = kit.trace_lines();
    lines.resize(12);
    EXPECT_THAT(
        lines, ElementsAre("ver : 5.30", "Main()", "strPath : C:\\veldrana\\",
                           "=========  Veldrana_cfg.ini  ==== 起動時 =======", "[Veldrana_cfg.ini]",
                           "all_dir=C:\\表示\\", "================================",
                           "=========  Veldrana.ini  ==== 起動時 =======", "[Veldrana.ini]",
                           "Check01=1", "================================", "Public Sub Main()"));
}

TEST(StartUp, MainScreenWaitsForALog) {
    ProgramKit kit;
    kit.start();
    MainScreen& screen = kit.screen();
    EXPECT_EQ(screen.lblInfo.caption.get(), "入力ファイルを指定して下さい");
    EXPECT_EQ(screen.lblInfo.fore_colour.get(), colours::red);
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::red);
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_FALSE(screen.tool_convert.enabled);
    EXPECT_FALSE(screen.mnuDisp_dup.enabled);
    EXPECT_FALSE(screen.mnuJARL_Web_NO_hamj.enabled);
    EXPECT_EQ(screen.txtYYYY.text.get(), "2026");
    EXPECT_FALSE(screen.mnuQSOBank.enabled);
    EXPECT_EQ(kit.program->paths.qsl_dir, "C:\\veldrana\\\\qsl_dir\\");
    EXPECT_EQ(screen.MSFlexGrid1.cell(0, 1).text, "0");
}

TEST(StartUp, PathsEndInOneBackslash) {
    const Paths paths = make_paths("D:\\radio\\veldrana", "C:\\WINDOWS");
    EXPECT_EQ(paths.strPath, "D:\\radio\\veldrana\\");
    EXPECT_EQ(paths.drive_path, "D:\\");
    EXPECT_EQ(paths.hl_code_mas, "D:\\radio\\veldrana\\hl_code.mas");
    EXPECT_EQ(paths.contest_name_csv, "D:\\radio\\veldrana\\mas_mst\\contest_name.csv");
    EXPECT_EQ(paths.mas_mst, "D:\\radio\\veldrana\\mas_mst\\");
    EXPECT_EQ(paths.Temp_Files, "D:\\radio\\veldrana\\\\Temp_Files\\");
    EXPECT_EQ(paths.windows_folder, "C:\\WINDOWS");
}

TEST(StartUp, ADriveRootGetsNoSecondBackslash) {
    EXPECT_EQ(make_paths("D:\\", "").strPath, "D:\\");
    ProgramKit kit("D:\\");
    ASSERT_TRUE(kit.start());
    EXPECT_EQ(kit.program->trace.path(), "D:\\Error_Log\\20260504_130209.txt");
}

TEST(StartUp, FolderThatCannotBeMadeEndsInTheReportWithoutALog) {
    ProgramKit kit("C:\\veldrana", Installed::bare);
    kit.disk.fail_at(1, Failure::permission_denied);
    EXPECT_FALSE(kit.start());
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　70"));
    EXPECT_THAT(kit.memory.files(), ElementsAre("C:\\veldrana\\mas_mst\\contest_name.csv"));
}

}  // namespace
}  // namespace veldrana
