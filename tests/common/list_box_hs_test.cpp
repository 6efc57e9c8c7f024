#include "common/list_box_hs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/failure_of.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

class ListBoxHSTest : public testing::Test {
  protected:
    Form form_;
    ListBox list_{form_, "List1"};
    // Ten pixels a byte.
    ListBoxHS wide_{list_,
                    [](std::string_view line) { return static_cast<int>(line.size()) * 10; }};
};

TEST_F(ListBoxHSTest, StartsAutomaticWithoutLines) {
    EXPECT_TRUE(wide_.automatic);
    EXPECT_EQ(wide_.count(), 0U);
    EXPECT_EQ(wide_.widest(), 0);
}

TEST_F(ListBoxHSTest, AddsLinesAtTheEnd) {
    wide_.AddItem("one");
    wide_.AddItem("two");
    EXPECT_THAT(list_.rows.get(), ElementsAre("one", "two"));
    EXPECT_EQ(wide_.count(), 2U);
}

TEST_F(ListBoxHSTest, AddsALineInFrontOfAnother) {
    wide_.AddItem("one");
    wide_.AddItem("three");
    wide_.AddItem("two", 1);
    wide_.AddItem("zero", 0);
    EXPECT_THAT(list_.rows.get(), ElementsAre("zero", "one", "two", "three"));
}

TEST_F(ListBoxHSTest, AnIndexBehindTheEndIsAFailure) {
    wide_.AddItem("one");
    EXPECT_EQ(failure_of([&] { wide_.AddItem("x", 3); }), 5);
    EXPECT_THAT(list_.rows.get(), ElementsAre("one"));
}

TEST_F(ListBoxHSTest, RemembersTheWidestLine) {
    wide_.AddItem("12");
    EXPECT_EQ(wide_.widest(), 20);
    wide_.AddItem("12345");
    EXPECT_EQ(wide_.widest(), 50);
    wide_.AddItem("123");
    EXPECT_EQ(wide_.widest(), 50);
}

TEST_F(ListBoxHSTest, ExtentIsTheWidestLineAndAMargin) {
    wide_.AddItem("12345");
    wide_.AddItem("12");
    wide_.SetExtent();
    EXPECT_EQ(list_.horizontal_extent.get(), 50 + ListBoxHS::margin);
    EXPECT_GT(ListBoxHS::margin, 0);
}

TEST_F(ListBoxHSTest, ExtentGrowsWithALongerLine) {
    wide_.AddItem("12");
    wide_.SetExtent();
    wide_.AddItem("123");
    wide_.SetExtent();
    EXPECT_EQ(list_.horizontal_extent.get(), 30 + ListBoxHS::margin);
}

TEST_F(ListBoxHSTest, ExtentStaysIfItIsNotAutomatic) {
    wide_.automatic = false;
    wide_.AddItem("12345");
    wide_.SetExtent();
    EXPECT_EQ(list_.horizontal_extent.get(), 0);
    EXPECT_EQ(wide_.widest(), 50);
}

TEST_F(ListBoxHSTest, CountsOnlyLinesThatWereAddedThroughIt) {
    list_.rows = {"before"};
    wide_.AddItem("after");
    EXPECT_EQ(wide_.count(), 1U);
    EXPECT_THAT(list_.rows.get(), ElementsAre("before", "after"));
}

}  // namespace
}  // namespace veldrana
