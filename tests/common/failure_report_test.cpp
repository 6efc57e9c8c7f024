// How a failure ends the program: what the person sees, what the log holds, in which order.
#include "common/failure_report.h"

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/scripted_person.h"
#include "tests/doubles/string_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Events = std::vector<std::string>;

const std::string log_path = R"(C:\Veldrana\Error_Log\20250704_130209.txt)";

// A log and a person who tell what they meet in one row.
class ToldSink : public LineSink {
  public:
    explicit ToldSink(Events& events) : events_(events) {}
    void write_line(std::string_view line) override {
        events_.push_back("line " + std::string(line));
    }
    void flush() override { events_.push_back("flush"); }
    void close() override { events_.push_back("close"); }

  private:
    Events& events_;
};

class ToldPerson : public ScriptedPerson {
  public:
    explicit ToldPerson(Events& events) : events_(events) {}
    Answer show(const MessageBox& box) override {
        events_.push_back("box " + box.title);
        return ScriptedPerson::show(box);
    }

  private:
    Events& events_;
};

// A log on a disk that takes nothing more, in one of its calls.
enum class Fails { write, flush, close };

class FailingSink : public LineSink {
  public:
    explicit FailingSink(Fails where) : where_(where) {}
    void write_line(std::string_view /*line*/) override { fail_at(Fails::write); }
    void flush() override { fail_at(Fails::flush); }
    void close() override { fail_at(Fails::close); }

  private:
    void fail_at(Fails where) const {
        if (where == where_) {
            throw RunTimeError(Failure::disk_full);
        }
    }

    Fails where_;
};

// The cause of the end; nothing if the program did not end.
template <class Action>
std::optional<ProgramEnd::Cause> end_of(Action action) {
    try {
        action();
    } catch (const ProgramEnd& end) {
        return end.cause;
    }
    return std::nullopt;
}

const MessageBox thanks{
    .title = "　　　　　　お手数をお掛けしています。",
    .text =
        "エラーが多くてご迷惑をお掛けしています。\n"
        "\n"
        "どうにか動いている時には使用した感想等もお送りいただけると\n"
        "\n"
        "今後の励みになるんですが．．．．．",
    .icon = Icon::information,
    .buttons = Buttons::ok,
};

void expect_box(const MessageBox& shown, const MessageBox& expected) {
    EXPECT_EQ(shown.title, expected.title);
    EXPECT_EQ(shown.text, expected.text);
    EXPECT_EQ(shown.icon, expected.icon);
    EXPECT_EQ(shown.buttons, expected.buttons);
}

TEST(FatalErrorExit, ShowsTheFailureAndThenThanks) {
    TraceLog trace;
    trace.set_path(log_path);
    ScriptedPerson person;
    const auto end =
        end_of([&] { fatal_error_exit(trace, person, RunTimeError(Failure::input_past_end)); });
    EXPECT_EQ(end, ProgramEnd::Cause::reported);
    ASSERT_THAT(person.boxes, SizeIs(2));
    expect_box(person.boxes[0], {.title = "　　エラー発生の為、　終了します！",
                                 .text = "エラー発生 ：　62\n"
                                         "\n"
                                         "エラー内容 ：　" +
                                         description_of(Failure::input_past_end) +
                                         "\n"
                                         "\n"
                                         "終了します。不具合レポートの時にはお手数でも\n"
                                         "\n" +
                                         log_path + " をお送り下さい。",
                                 .icon = Icon::critical,
                                 .buttons = Buttons::ok});
    expect_box(person.boxes[1], thanks);
}

TEST(FatalErrorExit, WritesTheDescriptionFirstAndClosesTheLogLast) {
    Events events;
    TraceLog trace;
    trace.set_path(log_path);
    trace.open(std::make_unique<ToldSink>(events));
    ToldPerson person(events);
    const auto end =
        end_of([&] { fatal_error_exit(trace, person, RunTimeError(Failure::invalid_call)); });
    EXPECT_EQ(end, ProgramEnd::Cause::reported);
    EXPECT_THAT(events, ElementsAre("line エラー内容 ：　" + description_of(Failure::invalid_call),
                                    "flush", "box 　　エラー発生の為、　終了します！",
                                    "box 　　　　　　お手数をお掛けしています。", "close"));
    EXPECT_FALSE(trace.is_open());
}

TEST(FatalErrorExit, AsksForNothingButThatTheBoxesAreRead) {
    TraceLog trace;
    ScriptedPerson person;
    end_of([&] { fatal_error_exit(trace, person, RunTimeError(Failure::overflow)); });
    EXPECT_THAT(person.dialogs, IsEmpty());
    EXPECT_EQ(person.times_let_through, 0);
    EXPECT_THAT(person.boxes, SizeIs(2));
}

TEST(FatalErrorExit, ReportsWhateverTheLogCanNoLongerTake) {
    for (const Fails where : {Fails::write, Fails::flush, Fails::close}) {
        SCOPED_TRACE(static_cast<int>(where));
        TraceLog trace;
        trace.set_path(log_path);
        trace.open(std::make_unique<FailingSink>(where));
        ScriptedPerson person;
        const auto end =
            end_of([&] { fatal_error_exit(trace, person, RunTimeError(Failure::disk_full)); });
        EXPECT_EQ(end, ProgramEnd::Cause::reported);
        ASSERT_THAT(person.boxes, SizeIs(2));
        EXPECT_THAT(person.boxes[0].text, testing::StartsWith("エラー発生 ：　61\n"));
        EXPECT_THAT(person.boxes[0].text, testing::EndsWith(log_path + " をお送り下さい。"));
        expect_box(person.boxes[1], thanks);
        EXPECT_FALSE(trace.is_open());
    }
}

TEST(FatalErrorThanks, AsksForPatienceThenClosesTheLogAndEnds) {
    Events events;
    TraceLog trace;
    trace.open(std::make_unique<ToldSink>(events));
    ToldPerson person(events);
    const auto end = end_of([&] { fatal_error_thanks(trace, person); });
    EXPECT_EQ(end, ProgramEnd::Cause::reported);
    EXPECT_THAT(events, ElementsAre("box 　　　　　　お手数をお掛けしています。", "close"));
    ASSERT_THAT(person.boxes, SizeIs(1));
    expect_box(person.boxes[0], thanks);
}

TEST(FatalErrorThanks, EndsWithoutALogToo) {
    TraceLog trace;
    ScriptedPerson person;
    EXPECT_EQ(end_of([&] { fatal_error_thanks(trace, person); }), ProgramEnd::Cause::reported);
    EXPECT_THAT(person.boxes, SizeIs(1));
}

TEST(ProgramEnd, IsNoFailureThatATrapCouldTake) {
    TraceLog trace;
    ScriptedPerson person;
    bool taken = false;
    const auto end = end_of([&] {
        try {
            fatal_error_thanks(trace, person);
        } catch (const std::exception&) {
            taken = true;
        }
    });
    EXPECT_FALSE(taken);
    EXPECT_EQ(end, ProgramEnd::Cause::reported);
}

TEST(SpacedLines, HaveAnEmptyLineBetweenEachAndTheNext) {
    EXPECT_EQ(spaced_lines({}), "");
    EXPECT_EQ(spaced_lines({"a"}), "a");
    EXPECT_EQ(spaced_lines({"a", "b", "c"}), "a\n\nb\n\nc");
    EXPECT_EQ(spaced_lines({"a", "", "b"}), "a\n\n\n\nb");
    EXPECT_EQ(spaced_lines({"a", ""}), "a\n\n");
}

TEST(SpacedLines, KeepAnEmptyLineAtTheStart) {
    EXPECT_EQ(spaced_lines({"", "a"}), "\n\na");
}

}  // namespace
}  // namespace veldrana
