#include "app/program.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

using testing::HasSubstr;

TEST(Program, AForeignErrorIsReportedAsAnInternalOne) {
    ProgramKit kit;
    kit.start();
    EXPECT_FALSE(kit.program->event([] { throw std::logic_error("lost"); }));
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.person.boxes.at(0).text, HasSubstr("エラー発生 ：　51"));
    EXPECT_THAT(kit.trace_lines(), testing::Contains("エラー発生 ：　51"));
}

TEST(Program, LackOfMemoryHasItsNumber) {
    ProgramKit kit;
    kit.start();
    kit.program->event([] { throw std::bad_alloc(); });
    EXPECT_THAT(kit.person.boxes.at(0).text, HasSubstr("エラー発生 ：　7"));
}

TEST(Program, AFailureInAnInnerEventEndsTheOuterOne) {
    ProgramKit kit;
    kit.start();
    bool outer_went_on = false;
    kit.program->event([&] {
        kit.program->event([] { throw RunTimeError(Failure::subscript); });
        outer_went_on = true;
    });
    EXPECT_FALSE(outer_went_on);
    EXPECT_EQ(kit.person.boxes.size(), 2U);
}

TEST(Program, RefusalIsNoReport) {
    ProgramKit kit;
    kit.start();
    EXPECT_FALSE(kit.program->event([] { throw ProgramEnd{ProgramEnd::Cause::refused}; }));
    EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::refused);
    EXPECT_TRUE(kit.person.boxes.empty());
}

}  // namespace
}  // namespace veldrana
