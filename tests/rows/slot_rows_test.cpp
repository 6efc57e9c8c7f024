// Putting items into the slots of the two remarks by hand.
#include "rows/slot_rows.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldrana {
namespace {

using testing::ElementsAre;

class Slots : public testing::Test {
  protected:
    Slots() {
        for (std::size_t i = 0; i < remark_item_count; ++i) {
            buttons[i].caption = std::string(remark_item_names[i]);
        }
    }

    static std::vector<std::string> captions(const RemarkSlots& slots) {
        std::vector<std::string> texts;
        for (const RemarkSlot& slot : slots) {
            texts.push_back(slot.caption);
        }
        return texts;
    }

    void from_button(RemarkSlot& target, const std::string& item) {
        rows.drop(target, {.name = item});
    }
    void from_slot(RemarkSlot& target, RemarkSlot& source) {
        rows.drop(target, {.name = source.caption, .from = &source});
    }

    Form form;
    RemarkSlots rmks1{form, "lblRmks1"};
    RemarkSlots rmks2{form, "lblRmks2"};
    ItemButtons buttons{form, "Command1"};
    SlotRows rows{rmks1, rmks2, buttons};
};

TEST_F(Slots, ItemOfAButtonStandsInTheSlotItWasDroppedOn) {
    from_button(rmks1[2], "Rcvd");
    EXPECT_THAT(captions(rmks1), ElementsAre("", "", "Rcvd", "", "", ""));
    EXPECT_THAT(captions(rmks2), ElementsAre("", "", "", "", "", ""));
}

TEST_F(Slots, ItemStandsInOneSlotOnly) {
    from_button(rmks1[0], "Rcvd");
    from_button(rmks1[3], "Rcvd");
    EXPECT_THAT(captions(rmks1), ElementsAre("", "", "", "Rcvd", "", ""));
    from_button(rmks2[5], "Rcvd");
    EXPECT_THAT(captions(rmks1), ElementsAre("", "", "", "", "", ""));
    EXPECT_THAT(captions(rmks2), ElementsAre("", "", "", "", "", "Rcvd"));
}

TEST_F(Slots, DroppingMemoWhenMemoEqualsStandsInRmks2ClearsThatSlot) {
    from_button(rmks2[1], "memo=");
    from_button(rmks1[0], "memo");
    EXPECT_THAT(captions(rmks1), ElementsAre("memo", "", "", "", "", ""));
    EXPECT_THAT(captions(rmks2), ElementsAre("", "", "", "", "", ""));
}

TEST_F(Slots, BothFormsOfTheMemoAndOfTheOperatorExcludeEachOther) {
    struct Pair {
        std::string first;
        std::string second;
    };
    for (const auto& [first, second] :
         {Pair{"memo", "memo="}, Pair{"memo=", "memo"}, Pair{"OP", "OP %"}, Pair{"OP %", "OP"}}) {
        from_button(rmks1[0], first);
        from_button(rmks1[1], second);
        EXPECT_EQ(rmks1[0].caption.get(), "") << second;
        EXPECT_EQ(rmks1[1].caption.get(), second);
        from_button(rmks1[1], "");
    }
}

TEST_F(Slots, OtherItemsStandBesideEachOther) {
    from_button(rmks1[0], "ｺﾝﾃｽﾄ");
    from_button(rmks1[1], "Rmks1");
    from_button(rmks1[2], "memo");
    from_button(rmks2[0], "Rmks2");
    from_button(rmks2[1], "OP");
    EXPECT_THAT(captions(rmks1), ElementsAre("ｺﾝﾃｽﾄ", "Rmks1", "memo", "", "", ""));
    EXPECT_THAT(captions(rmks2), ElementsAre("Rmks2", "OP", "", "", "", ""));
}

TEST_F(Slots, DroppingAnItemOnItsOwnSlotLeavesItThere) {
    from_button(rmks1[4], "OP");
    from_slot(rmks1[4], rmks1[4]);
    EXPECT_THAT(captions(rmks1), ElementsAre("", "", "", "", "OP", ""));
}

TEST_F(Slots, DroppingFromASlotOfRmks1IntoASlotOfRmks2MovesTheItem) {
    from_button(rmks1[0], "Rcvd");
    from_slot(rmks2[3], rmks1[0]);
    EXPECT_THAT(captions(rmks1), ElementsAre("", "", "", "", "", ""));
    EXPECT_THAT(captions(rmks2), ElementsAre("", "", "", "Rcvd", "", ""));
}

TEST_F(Slots, DroppingOnAFilledSlotReplacesItsItem) {
    from_button(rmks1[0], "Rcvd");
    from_button(rmks1[1], "OP");
    from_slot(rmks1[0], rmks1[1]);
    EXPECT_THAT(captions(rmks1), ElementsAre("OP", "", "", "", "", ""));
}

TEST_F(Slots, ButtonsOfItemsInUseAreShown) {
    from_button(rmks1[0], "memo");
    from_button(rmks2[0], "Rmks2");
    std::vector<bool> in_use;
    for (const ItemButton& button : buttons) {
        in_use.push_back(button.in_use);
    }
    EXPECT_THAT(in_use, ElementsAre(true, false, false, false, false, false, false, true));
    from_button(rmks1[1], "memo=");
    EXPECT_FALSE(buttons[0].in_use);
    EXPECT_TRUE(buttons[1].in_use);
}

TEST_F(Slots, RowsThatWereClosedUpComeBackAsTheyWere) {
    from_button(rmks1[1], "Rcvd");
    from_button(rmks1[4], "OP");
    from_button(rmks2[2], "Rmks2");
    RemarkLengths lengths;
    RemarkUse use;
    sort_slots(rmks1, lengths, use);
    sort_slots(rmks2, lengths, use);
    EXPECT_THAT(captions(rmks1), ElementsAre("Rcvd", "OP", "", "", "", ""));
    rows.ReDo_2();
    EXPECT_THAT(captions(rmks1), ElementsAre("", "Rcvd", "", "", "OP", ""));
    EXPECT_THAT(captions(rmks2), ElementsAre("Rmks2", "", "", "", "", ""));
    rows.ReDo_3();
    EXPECT_THAT(captions(rmks2), ElementsAre("", "", "Rmks2", "", "", ""));
}

TEST_F(Slots, WhatWasTakenBackIsForgotten) {
    from_button(rmks1[3], "Rcvd");
    rows.ReDo_2();
    rmks1[3].caption = "";
    rmks1[0].caption = "OP";
    rows.ReDo_2();
    EXPECT_THAT(captions(rmks1), ElementsAre("OP", "", "", "", "", ""));
}

}  // namespace
}  // namespace veldrana
