// The log book is never written, whatever the files of a run are called.
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/program_kit.h"
#include "tests/doubles/log_book_table.h"

namespace veldrana {
namespace {

using testing::HasSubstr;

constexpr const char* row =
    "\"JA1ZZA\",\"24/05/03\",\"09:00J\",\"599\",\"599\",\"7\",\"CW\",\"\",\"\",\"J* \","
    "\"\",\"\",\"\",\"\"\r\n";

class LogBookProtection : public testing::Test {
  protected:
    // A run with the log book at that path.
    void run_with(const std::string& path) {
        kit.put_text("C:\\veldrana\\Veldrana_cfg.ini",
                     replace_all(ready_environment, "C:\\Hamlog\\Hamlog.hdb", path));
        kit.put_text(path, row);
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.start();
        kit.screen().Check15.value = false;
        kit.screen().Option07.index = 1;
        kit.open("C:\\log\\x.all");
        kit.screen().cmdStart.press();
    }

    ProgramKit kit;
};

TEST_F(LogBookProtection, LogBookInThePlaceOfAScratchFileEndsTheRunUnharmed) {
    run_with("C:\\bak_1.txt");
    EXPECT_EQ(kit.memory.bytes("C:\\bak_1.txt"), row);
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.person.boxes.front().text, HasSubstr("エラー発生 ：　55"));
}

TEST_F(LogBookProtection, LogBookThatIsTheResultOfAnEarlierRunEndsTheRunUnharmed) {
    run_with("C:\\log\\x_hjn.csv");
    EXPECT_EQ(kit.memory.bytes("C:\\log\\x_hjn.csv"), row);
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported);
}

TEST_F(LogBookProtection, DeletionsByPatternPassItOver) {
    run_with("C:\\zlog_5.txt");
    EXPECT_EQ(kit.memory.bytes("C:\\zlog_5.txt"), row);
    EXPECT_FALSE(kit.program->ended());
    EXPECT_TRUE(kit.memory.file_exists("C:\\log\\x_hjn.csv"));
}

}  // namespace
}  // namespace veldrana
