// The slots of the main screen: dropping, closing up, taking back, and their lengths.
#include "app/slot_handlers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/slot_lengths.h"
#include "tests/app/program_kit.h"

namespace veldrana {
namespace {

class SlotHandlers : public testing::Test {
  protected:
    SlotHandlers() { kit.start(); }

    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = program.screen;
    // Six slots in two rows, 100 pixels apart.
    const SlotRectangles rectangles{
        .rmks1 = {.left = {100, 200, 300, 400, 500, 600}, .top = 50, .bottom = 70},
        .rmks2 = {.left = {100, 200, 300, 400, 500, 600}, .top = 90, .bottom = 110}};
};

TEST_F(SlotHandlers, ADropIsKeptInTheOptionFile) {
    drop_on_slot(program, screen.lblRmks1[2], {.name = "Rcvd"});
    EXPECT_EQ(kit.stored_option("Rmks1_cfg"), "ｺﾝﾃｽﾄ,,Rcvd,,,,");
    EXPECT_EQ(kit.stored_option("Rmks1_cfg_len"), "0,0,0,0,0,0,");
}

TEST_F(SlotHandlers, AValueEnteredIsADrop) {
    screen.lblRmks2[1].enter("memo=");
    screen.lblRmks1[1].enter("memo");
    EXPECT_EQ(screen.lblRmks2[1].caption.get(), "");
    EXPECT_FALSE(screen.lblRmks1[1].enter("none of the items"));
}

TEST_F(SlotHandlers, AllRowsAreClosedUpAndPutBack) {
    drop_on_slot(program, screen.lblRmks1[3], {.name = "Rcvd"});
    drop_on_slot(program, screen.lblRmks2[5], {.name = "OP"});
    screen.cmdAll_Sort.press();
    EXPECT_EQ(screen.lblRmks1[1].caption.get(), "Rcvd");
    EXPECT_EQ(screen.lblRmks2[1].caption.get(), "OP");
    EXPECT_EQ(kit.stored_option("Rmks2_cfg"), "Rmks2,OP,,,,,");
    screen.cmdAll_Redo.press();
    EXPECT_EQ(screen.lblRmks1[1].caption.get(), "");
    EXPECT_EQ(screen.lblRmks1[3].caption.get(), "Rcvd");
    EXPECT_EQ(screen.lblRmks2[5].caption.get(), "OP");
}

TEST_F(SlotHandlers, OneRowIsClosedUpByItself) {
    drop_on_slot(program, screen.lblRmks1[3], {.name = "Rcvd"});
    drop_on_slot(program, screen.lblRmks2[5], {.name = "OP"});
    screen.cmdSort_3.press();
    EXPECT_EQ(screen.lblRmks1[3].caption.get(), "Rcvd");
    EXPECT_EQ(screen.lblRmks2[1].caption.get(), "OP");
    screen.cmdSort_2.press();
    EXPECT_EQ(screen.lblRmks1[1].caption.get(), "Rcvd");
}

TEST_F(SlotHandlers, CommentsAreCleared) {
    screen.txtRmks1.text = "one";
    screen.txtRmks2.text = "two";
    screen.cmdCl_rmk1.press();
    EXPECT_EQ(screen.txtRmks1.text.get(), "");
    EXPECT_EQ(screen.txtRmks2.text.get(), "two");
    screen.cmdCl_rmk2.press();
    EXPECT_EQ(screen.txtRmks2.text.get(), "");
}

TEST_F(SlotHandlers, LengthOfTheSlotUnderThePointerIsShown) {
    program.remark_lengths.set(RemarkItem::rcvd, 8);
    drop_on_slot(program, screen.lblRmks1[2], {.name = "Rcvd"});
    show_length_at(program, rectangles, 300, 60);
    EXPECT_TRUE(screen.lblLen.visible);
    EXPECT_EQ(screen.lblLen.caption.get(), "8");
    show_length_at(program, rectangles, 340, 50);
    EXPECT_TRUE(screen.lblLen.visible);
}

TEST_F(SlotHandlers, LengthHidesOutsideTheBandOfTheSlots) {
    show_length_at(program, rectangles, 100, 60);
    EXPECT_TRUE(screen.lblLen.visible);
    show_length_at(program, rectangles, 100, 80);
    EXPECT_FALSE(screen.lblLen.visible);
    show_length_at(program, rectangles, 100, 60);
    show_length_at(program, rectangles, 99, 60);
    EXPECT_FALSE(screen.lblLen.visible);
    show_length_at(program, rectangles, 100, 60);
    show_length_at(program, rectangles, 641, 60);
    EXPECT_FALSE(screen.lblLen.visible);
}

TEST_F(SlotHandlers, RowOfRmks2ReachesFifteenPixelsFurtherDown) {
    show_length_at(program, rectangles, 100, 125);
    EXPECT_TRUE(screen.lblLen.visible);
    show_length_at(program, rectangles, 100, 126);
    EXPECT_FALSE(screen.lblLen.visible);
}

TEST_F(SlotHandlers, PlaceBetweenTwoSlotsChangesNothing) {
    program.remark_lengths.set(RemarkItem::rcvd, 8);
    drop_on_slot(program, screen.lblRmks1[2], {.name = "Rcvd"});
    show_length_at(program, rectangles, 300, 60);
    show_length_at(program, rectangles, 341, 60);
    EXPECT_TRUE(screen.lblLen.visible);
    EXPECT_EQ(screen.lblLen.caption.get(), "8");
}

TEST_F(SlotHandlers, ItemMemoEqualsAlwaysShowsLengthZeroAtThePointer) {
    program.remark_lengths.set(RemarkItem::memo_equals, 12);
    drop_on_slot(program, screen.lblRmks2[0], {.name = "memo="});
    show_length_at(program, rectangles, 100, 100);
    EXPECT_EQ(screen.lblLen.caption.get(), "0");
}

TEST_F(SlotHandlers, LengthInBothListsIsThatOfRmks2) {
    program.settings.options.Rmks1_cfg = "OP,Rcvd,,,,,";
    program.settings.options.Rmks1_cfg_len = "4,5,0,0,0,0,";
    program.settings.options.Rmks2_cfg = "Rcvd,,,,,,";
    program.settings.options.Rmks2_cfg_len = "7,0,0,0,0,0";
    EXPECT_EQ(Reset_Main_Len(program, "Rcvd"), "7");
}

TEST_F(SlotHandlers, LengthOfAnItemInNoListIsZero) {
    EXPECT_EQ(Reset_Main_Len(program, "OP %"), "0");
    EXPECT_EQ(Reset_Main_Len(program, ""), "0");
}

}  // namespace
}  // namespace veldrana
