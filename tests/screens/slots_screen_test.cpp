// The slots of the remarks on the main window, and the length of the one under the pointer.
#include <QCheckBox>
#include <QCursor>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "platform/code_page_932.h"
#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

constexpr const char* options = "Veldrana_new.ini";

// The items in the order of their buttons.
const std::vector<std::string> items{"memo",  "memo=", "OP",    "OP %",
                                     "ｺﾝﾃｽﾄ", "Rcvd",  "Rmks1", "Rmks2"};

std::string slot(int remark, int place) {
    return "lblRmks" + std::to_string(remark) + "(" + std::to_string(place) + ")";
}

class SlotsScreen : public testing::Test {
  protected:
    void SetUp() override {
        // The files of a first start are the same for all of these tests.
        static std::string options_of_first_start;
        if (options_of_first_start.empty()) {
            ASSERT_TRUE(kit.start_first_time());
            kit.end();
            options_of_first_start = read_bytes(kit.home() / options);
        }
        write_bytes(kit.home() / options, options_of_first_start);
        start_again_with(",,,,,,", ",,,,,,");
        empty_ = button_colour("memo");
    }
    // The program again, with these items in its slots.
    void start_with(const std::string& rmks1, const std::string& rmks2,
                    const std::string& lengths1 = "0,0,0,0,0,0,",
                    const std::string& lengths2 = "0,0,0,0,0,0,") {
        kit.end();
        start_again_with(rmks1, rmks2, lengths1, lengths2);
    }
    void start_again_with(const std::string& rmks1, const std::string& rmks2,
                          const std::string& lengths1 = "0,0,0,0,0,0,",
                          const std::string& lengths2 = "0,0,0,0,0,0,") {
        kit.store(options, "Rmks1_cfg", rmks1);
        kit.store(options, "Rmks1_cfg_len", lengths1);
        kit.store(options, "Rmks2_cfg", rmks2);
        kit.store(options, "Rmks2_cfg_len", lengths2);
        kit.accept_box();  // the hint that name masters are there
        ASSERT_TRUE(kit.start());
        since_start.start();
    }
    static std::string button(const std::string& item) {
        const auto found = std::find(items.begin(), items.end(), item);
        return "Command1(" + std::to_string(found - items.begin()) + ")";
    }
    void drop(const std::string& item, const std::string& on) { kit.drag(button(item), on); }
    std::vector<std::string> row(int remark) {
        std::vector<std::string> captions;
        for (int place = 0; place < 6; ++place) {
            captions.push_back(kit.text(slot(remark, place)));
        }
        return captions;
    }
    QColor button_colour(const std::string& item) {
        return kit.widget<QPushButton>(button(item)).palette().color(QPalette::Button);
    }
    // Light blue, and not the colour of one that is in no slot.
    bool is_in_use(const std::string& item) {
        const QColor shown = button_colour(item);
        const bool blue = shown.blue() > shown.red() + 30;
        EXPECT_EQ(shown != empty_, blue) << item;
        return blue;
    }
    void point_at(const std::string& name, QPoint place = QPoint(5, 5)) {
        QCursor::setPos(kit.widget<QWidget>(name).mapToGlobal(place));
    }
    QLabel& length() { return kit.widget<QLabel>("lblLen"); }
    bool shows(const std::string& text) {
        return QTest::qWaitFor([&] { return length().isVisible() && kit.text("lblLen") == text; },
                               4000);
    }
    bool hides() {
        return QTest::qWaitFor([&] { return !length().isVisible(); }, 4000);
    }

    DesktopKit kit;
    QElapsedTimer since_start;

  private:
    QColor empty_;
};

// --- drops ---

TEST_F(SlotsScreen, ItemIsDroppedFromItsButton) {
    for (const std::string& item : items) {
        drop(item, slot(2, 3));
        EXPECT_EQ(kit.text(slot(2, 3)), item);
    }
    EXPECT_THAT(row(1), ElementsAre("", "", "", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("", "", "", "Rmks2", "", ""));
}

TEST_F(SlotsScreen, ItemMovesFromOneRemarkToTheOther) {
    drop("Rcvd", slot(1, 2));
    kit.drag(slot(1, 2), slot(2, 4));
    EXPECT_THAT(row(1), ElementsAre("", "", "", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("", "", "", "", "Rcvd", ""));
    kit.drag(slot(2, 4), slot(1, 0));
    EXPECT_THAT(row(1), ElementsAre("Rcvd", "", "", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("", "", "", "", "", ""));
}

TEST_F(SlotsScreen, ItemDroppedOnItsOwnSlotStays) {
    for (const std::string& item : items) {
        drop(item, slot(1, 1));
        kit.drag(slot(1, 1), slot(1, 1));
        EXPECT_THAT(row(1), ElementsAre("", item, "", "", "", ""));
    }
}

TEST_F(SlotsScreen, ItemStandsInOneSlotAlone) {
    for (const std::string& item : items) {
        drop(item, slot(1, 0));
        drop(item, slot(1, 5));
        EXPECT_THAT(row(1), ElementsAre("", "", "", "", "", item));
        drop(item, slot(2, 0));
        EXPECT_THAT(row(1), ElementsAre("", "", "", "", "", ""));
        EXPECT_THAT(row(2), ElementsAre(item, "", "", "", "", ""));
    }
}

TEST_F(SlotsScreen, ItemTakesTheSlotOfAnother) {
    drop("Rcvd", slot(1, 0));
    drop("Rmks1", slot(1, 1));
    kit.drag(slot(1, 1), slot(1, 0));
    EXPECT_THAT(row(1), ElementsAre("Rmks1", "", "", "", "", ""));
    EXPECT_FALSE(is_in_use("Rcvd"));
}

struct Pair {
    const char* item;
    const char* other;
};

TEST_F(SlotsScreen, TwoFormsOfAnItemExcludeEachOther) {
    for (const Pair& pair :
         {Pair{"memo", "memo="}, {"memo=", "memo"}, {"OP", "OP %"}, {"OP %", "OP"}}) {
        for (const int remark : {1, 2}) {
            drop(pair.other, slot(remark, 3));
            drop(pair.item, slot(1, 0));
            EXPECT_EQ(kit.text(slot(remark, 3)), "") << pair.item << remark;
            EXPECT_EQ(kit.text(slot(1, 0)), pair.item);
            EXPECT_FALSE(is_in_use(pair.other)) << pair.other;
        }
    }
}

TEST_F(SlotsScreen, OtherItemsStandBesideEachOther) {
    drop("memo", slot(1, 0));
    drop("OP", slot(1, 1));
    drop("ｺﾝﾃｽﾄ", slot(1, 2));
    drop("Rcvd", slot(2, 0));
    drop("Rmks1", slot(2, 1));
    drop("Rmks2", slot(2, 2));
    EXPECT_THAT(row(1), ElementsAre("memo", "OP", "ｺﾝﾃｽﾄ", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("Rcvd", "Rmks1", "Rmks2", "", "", ""));
}

TEST_F(SlotsScreen, ButtonsOfItemsInUseAreLightBlue) {
    for (const std::string& item : items) {
        EXPECT_FALSE(is_in_use(item)) << item;
        drop(item, slot(2, 2));
        for (const std::string& any : items) {
            EXPECT_EQ(is_in_use(any), any == item) << any << " while there is " << item;
        }
    }
}

TEST_F(SlotsScreen, StoredItemsStandInTheirSlotsAtTheStart) {
    start_with("OP,,Rcvd,,,,", ",Rmks2,,,,,");
    EXPECT_THAT(row(1), ElementsAre("OP", "", "Rcvd", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("", "Rmks2", "", "", "", ""));
    for (const std::string& item : items) {
        EXPECT_EQ(is_in_use(item), item == "OP" || item == "Rcvd" || item == "Rmks2") << item;
    }
}

TEST_F(SlotsScreen, WithoutAListTheUsualItemsStandThere) {
    start_with("", "memo,,,,,,");
    EXPECT_THAT(row(1), ElementsAre("ｺﾝﾃｽﾄ", "Rmks1", "", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("Rmks2", "", "", "", "", ""));
}

TEST_F(SlotsScreen, WhatIsDroppedComesBackWithTheNextStart) {
    drop("OP %", slot(1, 4));
    drop("memo=", slot(2, 0));
    kit.end();
    kit.accept_box();  // the hint that name masters are there
    ASSERT_TRUE(kit.start());
    EXPECT_THAT(row(1), ElementsAre("", "", "", "", "OP %", ""));
    EXPECT_THAT(row(2), ElementsAre("memo=", "", "", "", "", ""));
}

// --- closing up ---

TEST_F(SlotsScreen, EmptySlotsAreClosedUpWhenARunStarts) {
    drop("Rcvd", slot(1, 0));
    drop("OP", slot(1, 3));
    drop("Rmks2", slot(2, 5));
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    EXPECT_THAT(row(1), ElementsAre("Rcvd", "", "", "OP", "", "")) << "not before";
    kit.click("cmdStart");
    EXPECT_THAT(row(1), ElementsAre("Rcvd", "OP", "", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("Rmks2", "", "", "", "", ""));
}

TEST_F(SlotsScreen, EachRemarkIsClosedUpByItsButton) {
    drop("Rcvd", slot(1, 2));
    drop("Rmks2", slot(2, 3));
    kit.click("cmdSort_2");
    EXPECT_THAT(row(1), ElementsAre("Rcvd", "", "", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("", "", "", "Rmks2", "", ""));
    kit.click("cmdSort_3");
    EXPECT_THAT(row(2), ElementsAre("Rmks2", "", "", "", "", ""));
}

TEST_F(SlotsScreen, BothRemarksAreClosedUpAndPutBackTogether) {
    drop("memo", slot(1, 5));
    drop("Rcvd", slot(1, 1));
    drop("Rmks2", slot(2, 3));
    kit.click("cmdAll_Sort");
    EXPECT_THAT(row(1), ElementsAre("Rcvd", "memo", "", "", "", ""));
    EXPECT_THAT(row(2), ElementsAre("Rmks2", "", "", "", "", ""));
    kit.click("cmdAll_Redo");
    EXPECT_THAT(row(1), ElementsAre("", "Rcvd", "", "", "", "memo"));
    EXPECT_THAT(row(2), ElementsAre("", "", "", "Rmks2", "", ""));
}

// --- what the items give ---

class RemarksOfARun : public SlotsScreen {
  protected:
    // Remark 1 of the log's only contact, after a run; the last column but two.
    std::string remark(const std::string& memo, int column = 12) {
        const std::string line =
            "2025/04/26 21:11 JH8XVS       599 11M     599 104M    104   -     7    CW   1  ";
        write_bytes(kit.log("one.all"),
                    "zLog for Windows \r\n" + line + to_code_page(memo) + "\r\n");
        kit.open("mnuOpen", kit.log("one.all"));
        kit.click("cmdStart");
        const std::string row = from_code_page(read_bytes(kit.log("one_hjn.csv")));
        std::vector<std::string> columns;
        for (std::size_t at = row.find('"'); at != std::string::npos; at = row.find('"', at + 1)) {
            const std::size_t end = row.find('"', at + 1);
            columns.push_back(row.substr(at + 1, end - at - 1));
            at = end;
        }
        return columns.at(static_cast<std::size_t>(column));
    }
};

TEST_F(RemarksOfARun, EmptyMemoGivesNothing) {
    drop("memo=", slot(1, 0));
    EXPECT_EQ(remark(""), "");
    EXPECT_EQ(remark("QRP"), "memo=QRP");
}

TEST_F(RemarksOfARun, ShortItemIsFilledWithBlanksToItsLength) {
    start_with("Rmks1,Rmks2,,,,,", ",,,,,,", "10,0,0,0,0,0,");
    ASSERT_FALSE(kit.widget<QCheckBox>("Check1").isChecked());
    kit.type("txtRmks1", "abc");
    kit.type("txtRmks2", "|");
    EXPECT_EQ(remark(""), "abc       |");
}

TEST_F(RemarksOfARun, LengthCountsCharactersNotBytes) {
    start_with("Rmks1,Rmks2,,,,,", ",,,,,,", "4,0,0,0,0,0,");
    kit.type("txtRmks1", "漢字ab漢字");
    kit.type("txtRmks2", "|");
    EXPECT_EQ(remark(""), "漢字ab|");
}

// --- the length under the pointer ---

TEST_F(SlotsScreen, LengthIsShownOverASlotTwoSecondsAfterTheStart) {
    start_with("OP,Rcvd,,,,,", "Rmks2,,,,,,", "7,12,0,0,0,0,", "33,0,0,0,0,0,");
    point_at(slot(1, 0));
    EXPECT_FALSE(length().isVisible());
    ASSERT_TRUE(shows("7"));
    // The toolkit's clock may go a little before.
    EXPECT_GE(since_start.elapsed(), 1700);
    point_at(slot(1, 1));
    EXPECT_TRUE(shows("12"));
    point_at(slot(2, 0));
    EXPECT_TRUE(shows("33"));
    point_at(slot(2, 1));
    EXPECT_TRUE(shows("0")) << "an empty slot";
    point_at("lblRmks1(0)", QPoint(-30, 5));
    EXPECT_TRUE(hides());
    const int base = kit.widget<QWidget>(slot(2, 0)).height();
    point_at(slot(2, 0), QPoint(5, base + 10));
    EXPECT_TRUE(shows("33")) << "a little below the slot";
    point_at(slot(2, 0), QPoint(5, base + 20));
    EXPECT_TRUE(hides());
}

TEST_F(SlotsScreen, MemoWithItsNameHasNoLength) {
    start_with("OP,memo=,,,,,", ",,,,,,", "7,5,0,0,0,0,");
    point_at(slot(1, 0));
    ASSERT_TRUE(shows("7"));
    point_at(slot(1, 1));
    EXPECT_TRUE(shows("0"));
}

}  // namespace
}  // namespace veldrana
