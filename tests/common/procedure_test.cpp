// Procedures and their traps in the trace log.
#include "common/procedure.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/failure_report.h"
#include "tests/doubles/string_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

auto fails_with(Failure failure) {
    return testing::Throws<RunTimeError>(testing::Property(&RunTimeError::failure, failure));
}

class FullSink : public LineSink {
  public:
    void write_line(std::string_view /*line*/) override { throw RunTimeError(Failure::disk_full); }
    void flush() override { throw RunTimeError(Failure::disk_full); }
    void close() override { throw RunTimeError(Failure::disk_full); }
};

class ProcedureTest : public testing::Test {
  protected:
    ProcedureTest() { trace.open(std::make_unique<CollectedLines>(lines)); }

    std::vector<std::string> lines;
    TraceLog trace;
};

[[noreturn]] void fail(Failure failure) {
    throw RunTimeError(failure);
}

TEST_F(ProcedureTest, WritesItsLineBeforeItsBody) {
    enter_procedure(trace, "Private Sub cmd_henkan()", [&] { trace.write("body"); });
    EXPECT_THAT(lines, ElementsAre("Private Sub cmd_henkan()", "body"));
}

TEST_F(ProcedureTest, KeepsTheBlanksInFrontOfItsLine) {
    enter_procedure(trace, "     Private Sub a_2_t()", [] {});
    EXPECT_THAT(lines, ElementsAre("     Private Sub a_2_t()"));
}

TEST_F(ProcedureTest, GivesWhatItsBodyGives) {
    EXPECT_EQ(enter_procedure(trace, "Private Sub a_2_t()", [] { return 42; }), 42);
    EXPECT_EQ(trap_failures(trace, "Private Sub a_2_t()", ErrorLine::number_only,
                            [] { return std::string("text"); }),
              "text");
    const auto moved = enter_procedure(trace, "Private Sub a_2_t()", ErrorLine::with_name,
                                       [] { return std::make_unique<int>(7); });
    EXPECT_EQ(*moved, 7);
}

TEST_F(ProcedureTest, WritesNoErrorLineWithoutAFailure) {
    trap_failures(trace, "Private Sub a_2_t()", ErrorLine::with_name, [] {});
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(ProcedureTest, WritesAnErrorLineWithItsName) {
    EXPECT_THAT(
        [&] {
            enter_procedure(trace, "Private Sub a_2_t()", ErrorLine::with_name,
                            [] { fail(Failure::invalid_call); });
        },
        fails_with(Failure::invalid_call));
    EXPECT_THAT(lines, ElementsAre("Private Sub a_2_t()", "エラー発生  Private Sub a_2_t() ：　5"));
}

TEST_F(ProcedureTest, WritesAnErrorLineWithTheNumberOnly) {
    EXPECT_THAT(
        [&] {
            enter_procedure(trace, "Private Sub a_2_t()", ErrorLine::number_only,
                            [] { fail(Failure::input_past_end); });
        },
        fails_with(Failure::input_past_end));
    EXPECT_THAT(lines, ElementsAre("Private Sub a_2_t()", "エラー発生 ：　62"));
}

TEST_F(ProcedureTest, WritesItsNameUnlessToldOtherwise) {
    EXPECT_THAT(
        [&] { enter_procedure(trace, "Private Sub Main2_bas()", [] { fail(Failure::bad_file); }); },
        fails_with(Failure::bad_file));
    EXPECT_THAT(lines, ElementsAre("Private Sub Main2_bas()",
                                   "エラー発生  Private Sub Main2_bas() ：　52"));
}

TEST_F(ProcedureTest, OnlyTheInnermostWritesTheErrorLine) {
    EXPECT_THAT(
        [&] {
            enter_procedure(trace, "Private Sub outer()", [&] {
                trap_failures(trace, "Private Sub middle()", ErrorLine::number_only, [&] {
                    enter_procedure(trace, "Private Sub inner()",
                                    [] { fail(Failure::permission_denied); });
                });
            });
        },
        fails_with(Failure::permission_denied));
    EXPECT_THAT(lines, ElementsAre("Private Sub outer()", "Private Sub inner()",
                                   "エラー発生  Private Sub inner() ：　70"));
}

TEST_F(ProcedureTest, WritesTheErrorLineOfAFailureBehindAnEndedProcedure) {
    EXPECT_THAT(
        [&] {
            enter_procedure(trace, "Private Sub outer()", [&] {
                enter_procedure(trace, "Private Sub inner()", [] {});
                fail(Failure::overflow);
            });
        },
        fails_with(Failure::overflow));
    EXPECT_THAT(lines, ElementsAre("Private Sub outer()", "Private Sub inner()",
                                   "エラー発生  Private Sub outer() ：　6"));
}

TEST_F(ProcedureTest, WritesALineForEveryFailureOfItsOwn) {
    EXPECT_THAT(
        [&] {
            enter_procedure(trace, "Private Sub outer()", [&] {
                try {
                    enter_procedure(trace, "Private Sub inner()",
                                    [] { fail(Failure::file_not_found); });
                } catch (const RunTimeError&) {
                    fail(Failure::type_mismatch);
                }
            });
        },
        fails_with(Failure::type_mismatch));
    EXPECT_THAT(lines, ElementsAre("Private Sub outer()", "Private Sub inner()",
                                   "エラー発生  Private Sub inner() ：　53",
                                   "エラー発生  Private Sub outer() ：　13"));
}

TEST_F(ProcedureTest, MarksTheFailureThatItTraced) {
    bool traced = false;
    try {
        trap_failures(trace, "Private Sub a_2_t()", ErrorLine::with_name,
                      [] { fail(Failure::overflow); });
    } catch (const RunTimeError& error) {
        traced = error.traced();
    }
    EXPECT_TRUE(traced);
}

TEST_F(ProcedureTest, TraceFailureWritesOnceForOneFailure) {
    RunTimeError error(Failure::subscript);
    trace_failure(trace, "Private Sub inner()", ErrorLine::with_name, error);
    trace_failure(trace, "Private Sub outer()", ErrorLine::with_name, error);
    EXPECT_THAT(lines, ElementsAre("エラー発生  Private Sub inner() ：　9"));
}

TEST_F(ProcedureTest, LetsTheEndOfTheProgramPassWithoutALine) {
    EXPECT_THROW(enter_procedure(trace, "Private Sub End_Click()",
                                 [] { throw ProgramEnd{ProgramEnd::Cause::orderly}; }),
                 ProgramEnd);
    EXPECT_THAT(lines, ElementsAre("Private Sub End_Click()"));
}

TEST(ProcedureWithoutLog, StillPassesItsFailureOn) {
    TraceLog trace;
    EXPECT_THAT(
        [&] {
            enter_procedure(trace, "Private Sub Main()", [] { fail(Failure::path_not_found); });
        },
        fails_with(Failure::path_not_found));
}

TEST(ProcedureWithFullLog, PassesItsOwnFailureOnNotThatOfTheLog) {
    TraceLog trace;
    trace.open(std::make_unique<FullSink>());
    EXPECT_THAT(
        [&] {
            trap_failures(trace, "Private Sub a_2_t()", ErrorLine::with_name,
                          [] { fail(Failure::file_not_found); });
        },
        fails_with(Failure::file_not_found));
}

}  // namespace
}  // namespace veldrana
