#include "app/option_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

// The screen of a first start and a fresh record say the same, but for the place of the Text_data
// remark: that one lasts only in a file of the user's making.
TEST(ScreenOptions, StartFromTheDefaultsOfTheRecord) {
    ProgramKit kit;
    kit.start();
    const RunOptions taken = take_options(*kit.program);
    const RunOptions defaults;
    EXPECT_EQ(taken.Option01, defaults.Option01);
    EXPECT_EQ(taken.Option09, defaults.Option09);
    EXPECT_EQ(taken.Option4, 0);
    EXPECT_TRUE(taken.Check01);
    EXPECT_TRUE(taken.Check15);
    EXPECT_TRUE(taken.Check4);
    EXPECT_TRUE(taken.Check5);
    EXPECT_TRUE(taken.Check6);
    EXPECT_FALSE(taken.Check7);
    EXPECT_TRUE(taken.Check23);
    EXPECT_FALSE(taken.Check1);
    EXPECT_EQ(taken.txtQSL_Q, "J");
    EXPECT_EQ(taken.txtQSL_S, "*");
    EXPECT_EQ(taken.No_QSL_moji, "N");
    EXPECT_EQ(taken.name_yusen_jun, "dat_mas,name_mas,qth_mas,Text_data");
}

TEST(ScreenOptions, FollowEveryCheckBoxOfTheirName) {
    for (const char* const name :
         {"Check03", "Check06", "Check08", "Check1", "Check10", "Check14", "Check21", "Check31"}) {
        ProgramKit kit;
        const RunOptions before = take_options(*kit.program);
        ASSERT_TRUE(kit.screen().find(name)->enter("1"));
        const RunOptions after = take_options(*kit.program);
        const std::vector<bool> changed{
            before.Check03 != after.Check03, before.Check06 != after.Check06,
            before.Check08 != after.Check08, before.Check1 != after.Check1,
            before.Check10 != after.Check10, before.Check14 != after.Check14,
            before.Check21 != after.Check21, before.Check31 != after.Check31};
        EXPECT_EQ(std::count(changed.begin(), changed.end(), true), 1) << name;
    }
}

TEST(ScreenOptions, TakeTextsTrimmedAndTheYearAsItStands) {
    ProgramKit kit;
    MainScreen& screen = kit.screen();
    screen.txtRmks1.text = " one ";
    screen.txtRmks2.text = "two ";
    screen.txtOp_name.text = " JA1ZZZ";
    screen.txtYYYY.text = " 25 ";
    screen.txtQSL_S.text = "";
    const RunOptions taken = take_options(*kit.program);
    EXPECT_EQ(taken.txtRmks1, "one");
    EXPECT_EQ(taken.txtRmks2, "two");
    EXPECT_EQ(taken.txtOp_name, "JA1ZZZ");
    EXPECT_EQ(taken.txtYYYY, " 25 ");
    EXPECT_EQ(taken.txtQSL_S, " ");
}

TEST(ScreenOptions, TakeTheRedOfAnEarlierRunAway) {
    ProgramKit kit;
    MainScreen& screen = kit.screen();
    screen.lblCFG.show("old", colours::red);
    screen.Check15.fore_colour = colours::red;
    screen.txtOp_name.fore_colour = colours::red;
    take_options(*kit.program);
    EXPECT_EQ(screen.lblCFG.caption.get(), "");
    EXPECT_EQ(screen.lblCFG.fore_colour.get(), colours::black);
    EXPECT_EQ(screen.Check15.fore_colour.get(), colours::black);
    EXPECT_EQ(screen.txtOp_name.fore_colour.get(), colours::black);
}

}  // namespace
}  // namespace veldrana
