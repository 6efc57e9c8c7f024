// The trace log: its lines, when they reach the file, and its path.
#include "common/trace_log.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "tests/doubles/string_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Events = std::vector<std::string>;

auto fails_with(Failure failure) {
    return testing::Throws<RunTimeError>(testing::Property(&RunTimeError::failure, failure));
}

// Tells every call, and can fail at the last.
class ToldSink : public LineSink {
  public:
    explicit ToldSink(Events& events, bool fails_to_close = false)
        : events_(events), fails_to_close_(fails_to_close) {}
    void write_line(std::string_view line) override {
        events_.push_back("line " + std::string(line));
    }
    void flush() override { events_.push_back("flush"); }
    void close() override {
        events_.push_back("close");
        if (fails_to_close_) {
            throw RunTimeError(Failure::disk_full);
        }
    }

  private:
    Events& events_;
    bool fails_to_close_;
};

TEST(TraceLog, HandsOverEveryLineAtOnce) {
    Events events;
    TraceLog trace;
    trace.open(std::make_unique<ToldSink>(events));
    trace.write("Main()");
    EXPECT_THAT(events, ElementsAre("line Main()", "flush"));
    trace.write("     Private Sub Form_Load()");
    EXPECT_THAT(events,
                ElementsAre("line Main()", "flush", "line      Private Sub Form_Load()", "flush"));
}

TEST(TraceLog, WritesEmptyLinesToo) {
    std::vector<std::string> lines;
    TraceLog trace;
    trace.open(std::make_unique<CollectedLines>(lines));
    trace.write("");
    EXPECT_THAT(lines, ElementsAre(""));
}

TEST(TraceLog, WritesNothingWhileItIsNotOpen) {
    std::vector<std::string> lines;
    TraceLog trace;
    EXPECT_FALSE(trace.is_open());
    trace.write("before");
    trace.write_open_for_input("before");
    trace.write_open_for_output("before");
    trace.open(std::make_unique<CollectedLines>(lines));
    EXPECT_TRUE(trace.is_open());
    trace.write("while open");
    trace.close();
    EXPECT_FALSE(trace.is_open());
    trace.write("after");
    trace.write_open_for_input("after");
    trace.write_open_for_output("after");
    EXPECT_THAT(lines, ElementsAre("while open"));
}

TEST(TraceLog, TellsThePathAndTheRoleOfAnOpenedFile) {
    std::vector<std::string> lines;
    TraceLog trace;
    trace.open(std::make_unique<CollectedLines>(lines));
    trace.write_open_for_input(R"(C:\logs\無線 1.zlo)");
    trace.write_open_for_output(R"(C:\logs\zlog_1.txt)");
    EXPECT_THAT(lines, ElementsAre(R"(Open C:\logs\無線 1.zlo For Input As #f_i)",
                                   R"(Open C:\logs\zlog_1.txt For Output As #f_o)"));
}

TEST(TraceLog, KnowsItsPathBeforeWhileAndAfterItIsOpen) {
    Events events;
    TraceLog trace;
    EXPECT_EQ(trace.path(), "");
    const std::string path = R"(C:\Veldrana\Error_Log\20250704_130209.txt)";
    trace.set_path(path);
    EXPECT_EQ(trace.path(), path);
    EXPECT_FALSE(trace.is_open());
    trace.open(std::make_unique<ToldSink>(events));
    EXPECT_EQ(trace.path(), path);
    trace.close();
    EXPECT_EQ(trace.path(), path);
}

TEST(TraceLog, ClosesItsFileOnce) {
    Events events;
    TraceLog trace;
    trace.close();
    trace.open(std::make_unique<ToldSink>(events));
    EXPECT_THAT(events, IsEmpty());
    trace.close();
    trace.close();
    EXPECT_THAT(events, ElementsAre("close"));
}

TEST(TraceLog, IsClosedAfterACloseThatFails) {
    Events events;
    TraceLog trace;
    trace.open(std::make_unique<ToldSink>(events, true));
    EXPECT_THAT([&] { trace.close(); }, fails_with(Failure::disk_full));
    EXPECT_FALSE(trace.is_open());
    trace.write("after");
    EXPECT_NO_THROW(trace.close());
    EXPECT_THAT(events, ElementsAre("close"));
}

TEST(TraceLog, CanBeOpenedAgain) {
    std::vector<std::string> first;
    std::vector<std::string> second;
    TraceLog trace;
    trace.open(std::make_unique<CollectedLines>(first));
    trace.write("a");
    trace.close();
    trace.open(std::make_unique<CollectedLines>(second));
    trace.write("b");
    EXPECT_THAT(first, ElementsAre("a"));
    EXPECT_THAT(second, ElementsAre("b"));
}

}  // namespace
}  // namespace veldrana
