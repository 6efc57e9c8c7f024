#include "rows/remark_slots.h"

#include <string>
#include <utility>
#include <vector>

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

TEST_F(RemarkSlotsTest, LayoutHoldsTheItemsInTheOrderOfTheSlots) {
    slots[1].caption = "Rmks2";
    slots[2].caption = "memo";
    slots[5].caption = "OP";
    const RemarkLayout layout = sort_slots(slots, lengths, use);
    EXPECT_THAT(layout.items, ElementsAre(RemarkItem::rmks2, RemarkItem::memo, RemarkItem::op));
}

TEST_F(RemarkSlotsTest, EveryScreenNameIsMappedToItsItemAndMarksItAlone) {
    const std::vector<std::pair<std::string, RemarkItem>> names{
        {"memo", RemarkItem::memo},     {"memo=", RemarkItem::memo_equals},
        {"OP", RemarkItem::op},         {"OP %", RemarkItem::op_percent},
        {"ｺﾝﾃｽﾄ", RemarkItem::contest}, {"Rcvd", RemarkItem::rcvd},
        {"Rmks1", RemarkItem::rmks1},   {"Rmks2", RemarkItem::rmks2}};
    for (const auto& [name, item] : names) {
        SCOPED_TRACE(name);
        slots[0].caption = name;
        RemarkUse fresh;
        EXPECT_THAT(sort_slots(slots, lengths, fresh).items, ElementsAre(item));
        for (const auto& other : names) {
            EXPECT_EQ(fresh.in_use(other.second), other.second == item) << other.first;
        }
    }
}

TEST_F(RemarkSlotsTest, SavedListsHaveACommaBehindEverySlot) {
    slots[0].caption = "ｺﾝﾃｽﾄ";
    slots[4].caption = "Rmks1";
    lengths.set(RemarkItem::contest, 12);
    const RemarkLayout layout = sort_slots(slots, lengths, use);
    EXPECT_EQ(layout.cfg, "ｺﾝﾃｽﾄ,Rmks1,,,,,");
    EXPECT_EQ(layout.cfg_len, "12,0,0,0,0,0,");
}

TEST_F(RemarkSlotsTest, SixItemsLeaveNoEmptySlot) {
    const std::vector<std::string> names{"Rmks1", "Rcvd", "OP", "memo", "Rmks2", "ｺﾝﾃｽﾄ"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        slots[i].caption = names[i];
    }
    lengths.set(RemarkItem::rcvd, 4);
    lengths.set(RemarkItem::memo, 20);
    const RemarkLayout layout = sort_slots(slots, lengths, use);
    EXPECT_EQ(captions(), names);
    EXPECT_EQ(layout.cfg, "Rmks1,Rcvd,OP,memo,Rmks2,ｺﾝﾃｽﾄ,");
    EXPECT_EQ(layout.cfg_len, "0,4,0,20,0,0,");
}

TEST_F(RemarkSlotsTest, WithoutItemsTheLayoutIsEmpty) {
    const RemarkLayout layout = sort_slots(slots, lengths, use);
    EXPECT_THAT(layout.items, testing::IsEmpty());
    EXPECT_EQ(layout.cfg_len, "0,0,0,0,0,0,");
    EXPECT_THAT(captions(), ElementsAre("", "", "", "", "", ""));
}

// The look-up of lengths knows the item by a misspelt name.
TEST_F(RemarkSlotsTest, ALengthOfMemoEqualsIsNotSaved) {
    slots[0].caption = "memo=";
    slots[1].caption = "OP";
    lengths.set(RemarkItem::memo_equals, 8);
    lengths.set(RemarkItem::op, 6);
    EXPECT_EQ(sort_slots(slots, lengths, use).cfg_len, "0,6,0,0,0,0,");
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
