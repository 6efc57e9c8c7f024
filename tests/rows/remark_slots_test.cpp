#include "rows/remark_slots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldrana {
namespace {

using testing::ElementsAre;

class RemarkSlotsTest : public testing::Test {
  protected:
    std::vector<std::string> captions() {
        std::vector<std::string> shown;
        for (const RemarkSlot& slot : slots) {
            shown.push_back(slot.caption);
        }
        return shown;
    }
    Form form;
    RemarkSlots slots{form, "lblRmks1"};
    RemarkUse use;
    RemarkLengths lengths;
};

TEST_F(RemarkSlotsTest, EmptySlotsBetweenItemsAreClosedUp) {
    slots[0].caption = "memo";
    slots[3].caption = "OP %";
    slots[5].caption = "Rcvd";
    sort_slots(slots, lengths, use);
    EXPECT_THAT(captions(), ElementsAre("memo", "OP %", "Rcvd", "", "", ""));
}

TEST_F(RemarkSlotsTest, ItemsInSlotsAreMarkedAndStayMarked) {
    slots[2].caption = "memo=";
    sort_slots(slots, lengths, use);
    EXPECT_TRUE(use.in_use(RemarkItem::memo_equals));
    EXPECT_FALSE(use.in_use(RemarkItem::memo));
    slots[0].caption = "";
    sort_slots(slots, lengths, use);
    EXPECT_TRUE(use.in_use(RemarkItem::memo_equals));
}

TEST_F(RemarkSlotsTest, ASlotTakesItemsOrNothing) {
    EXPECT_TRUE(slots[0].enter("ｺﾝﾃｽﾄ"));
    EXPECT_EQ(slots[0].caption.get(), "ｺﾝﾃｽﾄ");
    EXPECT_FALSE(slots[0].enter("no item"));
    EXPECT_EQ(slots[0].caption.get(), "ｺﾝﾃｽﾄ");
    EXPECT_TRUE(slots[0].enter(""));
    EXPECT_EQ(slots[0].caption.get(), "");
}

}  // namespace
}  // namespace veldrana
