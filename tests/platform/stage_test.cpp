#include "platform/stage.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scripted_person.h"
#include "tests/doubles/string_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

class StageTest : public testing::Test {
  protected:
    StageTest() {
        trace_.open(std::make_unique<CollectedLines>(traced_));
        disk_.put(R"(C:\log.txt)", "a\r\nb\r\n");
    }

    MemoryDisk disk_;
    std::vector<std::string> traced_;
    TraceLog trace_;
    StableSort sorter_{disk_};
    ScriptedPerson person_;
    Form form_;
    Label label_{form_, "lblCFG"};
    ProgressBar bar_{form_, "ProgressBar1"};
    const Stage stage_{.disk = disk_,
                       .trace = trace_,
                       .sorter = sorter_,
                       .person = person_,
                       .lblCFG = label_,
                       .ProgressBar1 = bar_};
};

TEST_F(StageTest, OpensAFileToReadAndTracesIt) {
    TextInput input = stage_.open_input(R"(C:\log.txt)");
    EXPECT_EQ(read_line(input), "a");
    EXPECT_THAT(traced_, ElementsAre(R"(Open C:\log.txt For Input As #f_i)"));
}

TEST_F(StageTest, OpensAFileToWriteAndTracesIt) {
    TextOutput output = stage_.open_output(R"(C:\log.txt)");
    output.write_line("new");
    output.close();
    EXPECT_EQ(disk_.bytes(R"(C:\log.txt)"), "new\r\n");
    EXPECT_THAT(traced_, ElementsAre(R"(Open C:\log.txt For Output As #f_o)"));
}

TEST_F(StageTest, PassesOnThatAFileIsMissing) {
    for (const auto& open : {+[](const Stage& stage) { stage.open_input(R"(C:\none.txt)"); },
                             +[](const Stage& stage) { stage.count_file_rec(R"(C:\none.txt)"); }}) {
        try {
            open(stage_);
            ADD_FAILURE() << "a missing file must not pass";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 53);
        }
    }
    EXPECT_FALSE(disk_.file_exists(R"(C:\none.txt)"));
}

TEST_F(StageTest, WorksWithoutAnOpenTraceLog) {
    trace_.close();
    TextInput input = stage_.open_input(R"(C:\log.txt)");
    EXPECT_EQ(read_line(input), "a");
    EXPECT_EQ(stage_.count_file_rec(R"(C:\log.txt)"), 3U);
    EXPECT_THAT(traced_, ElementsAre());
}

TEST_F(StageTest, PutsCaptionAndColourIntoTheStatusLabel) {
    stage_.tell("変換処理中", colours::green);
    EXPECT_EQ(label_.caption.get(), "変換処理中");
    EXPECT_TRUE(label_.fore_colour.get() == colours::green);

    stage_.tell("エラー", colours::red);
    EXPECT_EQ(label_.caption.get(), "エラー");
    EXPECT_TRUE(label_.fore_colour.get() == colours::red);
}

TEST_F(StageTest, TracesTheCountOfRecords) {
    stage_.count_file_rec(R"(C:\log.txt)");
    EXPECT_THAT(traced_, ElementsAre(R"(count_file_rec C:\log.txt)"));
}

TEST_F(StageTest, OnlyReadsTheFileWhoseRecordsItCounts) {
    stage_.count_file_rec(R"(C:\log.txt)");
    EXPECT_EQ(disk_.bytes(R"(C:\log.txt)"), "a\r\nb\r\n");
}

struct Counted {
    std::string bytes;
    std::size_t count;
};

TEST_F(StageTest, CountsOneRecordMoreThanLineEndsAndStartsTheBarWithAnotherMore) {
    const std::vector<Counted> cases{
        {"", 1}, {"a", 1}, {"a\r\n", 2}, {"a\r\nb", 2}, {"a\r\nb\r\n", 3}, {"\n\n\n", 4},
    };
    for (const Counted& counted : cases) {
        disk_.put(R"(C:\counted.txt)", counted.bytes);
        EXPECT_EQ(stage_.count_file_rec(R"(C:\counted.txt)"), counted.count) << counted.bytes;
        EXPECT_EQ(bar_.maximum.get(), counted.count + 1) << counted.bytes;
    }
}

TEST_F(StageTest, StartsTheBarAsFarBeyondTheCountAsTold) {
    EXPECT_EQ(stage_.count_file_rec(R"(C:\log.txt)", 2), 3U);
    EXPECT_EQ(bar_.maximum.get(), 5U);
    EXPECT_EQ(stage_.count_file_rec(R"(C:\log.txt)", 0), 3U);
    EXPECT_EQ(bar_.maximum.get(), 3U);
}

TEST_F(StageTest, SetsTheBarBackToItsStart) {
    bar_.restart(10);
    bar_.step();
    bar_.step();
    ASSERT_EQ(bar_.value.get(), 2U);
    stage_.count_file_rec(R"(C:\log.txt)");
    EXPECT_EQ(bar_.value.get(), 0U);
}

}  // namespace
}  // namespace veldrana
