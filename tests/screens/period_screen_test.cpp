// The dialog of the period whose contacts count as past ones.
#include <QCheckBox>
#include <QDate>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "app/program_end.h"
#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

std::string today() {
    return QDate::currentDate().toString("yyyyMMdd").toStdString();
}

class PeriodScreen : public DesktopTest {
  protected:
    // The program again, with these values in its settings.
    void start_with(const std::string& start, const std::string& end, const std::string& flag) {
        kit.end();
        kit.store(options, "Start_date", start);
        kit.store(options, "End_date", end);
        kit.store(options, "use_system_date_flag", flag);
        kit.accept_box();  // the hint that name masters are there
        ASSERT_TRUE(kit.start());
        kit.seen.clear();
    }
    void open(std::function<void(QDialog&)> act) {
        kit.on_dialog(std::move(act));
        kit.click("cmdDate");
    }
    static QListWidget& list(QDialog& dialog, int number) {
        return DesktopKit::part<QListWidget>(dialog, "List" + std::to_string(number));
    }
    static std::string row(QDialog& dialog, int number) {
        const auto chosen = list(dialog, number).selectedItems();
        return chosen.isEmpty() ? "" : chosen.front()->text().toStdString();
    }
    static std::vector<std::string> rows(QDialog& dialog) {
        std::vector<std::string> chosen;
        for (int number = 1; number <= 6; ++number) {
            chosen.push_back(row(dialog, number));
        }
        return chosen;
    }
    // With the mouse, on the row of that text.
    static void choose(QDialog& dialog, int number, const std::string& text) {
        QListWidget& shown = list(dialog, number);
        const auto found = shown.findItems(QString::fromStdString(text), Qt::MatchExactly);
        ASSERT_THAT(found, SizeIs(1)) << text;
        shown.scrollToItem(found.front());
        QTest::mouseClick(shown.viewport(), Qt::LeftButton, Qt::NoModifier,
                          shown.visualItemRect(found.front()).center());
        ASSERT_EQ(row(dialog, number), text);
    }
    static void choose_dates(QDialog& dialog, const std::vector<std::string>& parts) {
        for (int number = 1; number <= 6; ++number) {
            choose(dialog, number, parts[static_cast<std::size_t>(number - 1)]);
        }
    }
    static void press(QDialog& dialog, const char* button) {
        QTest::mouseClick(&DesktopKit::part<QPushButton>(dialog, button), Qt::LeftButton);
    }
    static bool follows_clock(QDialog& dialog) {
        return DesktopKit::part<QCheckBox>(dialog, "Check1").isChecked();
    }
    void click_follow(QDialog& dialog) { kit.click(DesktopKit::part<QCheckBox>(dialog, "Check1")); }
    std::string caption() { return kit.window().windowTitle().toStdString(); }

    static constexpr const char* options = "Veldrana_new.ini";
};

TEST_F(PeriodScreen, RowsOfTheStoredDatesAreChosen) {
    start_with("19991231", "20050102", "0");
    open([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "No QSL とする期間の設定");
        EXPECT_THAT(rows(dialog), testing::ElementsAre("1999", "12", "31", "2005", "1", "2"));
        EXPECT_FALSE(follows_clock(dialog));
        EXPECT_EQ(list(dialog, 1).item(list(dialog, 1).count() - 1)->text(), "1930");
        EXPECT_EQ(list(dialog, 2).count(), 12);
        EXPECT_EQ(list(dialog, 3).count(), 31);
        press(dialog, "cmdOK");
    });
}

TEST_F(PeriodScreen, EndThatEqualsTheStartIsTaken) {
    start_with("19600101", "20100101", "0");
    open([](QDialog& dialog) {
        choose_dates(dialog, {"2001", "5", "17", "2001", "5", "17"});
        press(dialog, "cmdOK");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(kit.stored(options, "Start_date"), "20010517");
    EXPECT_EQ(kit.stored(options, "End_date"), "20010517");
}

TEST_F(PeriodScreen, EndBeforeTheStartIsToldAndTheDialogStays) {
    start_with("19600101", "20100101", "0");
    const std::string before = caption();
    open([&](QDialog& dialog) {
        choose_dates(dialog, {"2001", "5", "17", "2001", "5", "16"});
        press(dialog, "cmdOK");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(DesktopKit::part<QLabel>(dialog, "Label7").text(),
                  "日付けの設定エラーです。 抽出開始 ＞ 抽出終了");
        EXPECT_EQ(caption(), before);
        EXPECT_EQ(kit.stored(options, "Start_date"), "19600101");
        choose(dialog, 6, "18");
        press(dialog, "cmdOK");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(kit.stored(options, "End_date"), "20010518");
}

TEST_F(PeriodScreen, ShortMonthsAndDaysGetTheirZeroWhenTheDialogIsLeft) {
    start_with("19600101", "20100101", "0");
    open([&](QDialog& dialog) {
        choose_dates(dialog, {"2001", "3", "4", "2002", "5", "6"});
        EXPECT_EQ(kit.stored(options, "Start_date"), "19600101") << "not before";
        press(dialog, "cmdOK");
    });
    EXPECT_EQ(kit.stored(options, "Start_date"), "20010304");
    EXPECT_EQ(kit.stored(options, "End_date"), "20020506");
    EXPECT_THAT(caption(),
                testing::MatchesRegex("  Veldrana  ver 5.30 {15}参照抽出期間 2001 年 03 月 04 "
                                      "日　～  2002 年 05 月 06 日 {5}[^ ].*"));
}

TEST_F(PeriodScreen, NoCalendarIsLookedAt) {
    start_with("19600101", "20100101", "0");
    open([](QDialog& dialog) {
        choose_dates(dialog, {"2001", "2", "31", "2001", "6", "31"});
        press(dialog, "cmdOK");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(kit.stored(options, "Start_date"), "20010231");
    EXPECT_EQ(kit.stored(options, "End_date"), "20010631");
}

TEST_F(PeriodScreen, StartStandsInTheCaptionFromTheStart) {
    start_with("20010304", "20020506", "0");
    EXPECT_THAT(caption(),
                testing::MatchesRegex("  Veldrana  ver 5.30 {10}参照抽出期間 2001 年 03 月 04 "
                                      "日　～  2002 年 05 月 06 日 {5}[^ ].*"));
}

TEST_F(PeriodScreen, YearAfterTheLastOfTheListLeavesItWithoutAChoice) {
    const int next = QDate::currentDate().year() + 1;
    start_with(std::to_string(next) + "0704", "20100101", "0");
    open([](QDialog& dialog) {
        EXPECT_EQ(row(dialog, 1), "");
        EXPECT_EQ(row(dialog, 2), "7");
        EXPECT_EQ(row(dialog, 3), "4");
        choose(dialog, 1, "2000");
        press(dialog, "cmdOK");
    });
    EXPECT_EQ(kit.stored(options, "Start_date"), "20000704");
}

TEST_F(PeriodScreen, YearThatIsNotInTheListStaysUntilAnotherIsChosen) {
    const std::string next = std::to_string(QDate::currentDate().year() + 1);
    start_with("19600101", next + "0704", "0");
    open([](QDialog& dialog) {
        list(dialog, 1).setFocus();
        list(dialog, 4).setFocus();
        press(dialog, "cmdOK");
    });
    EXPECT_EQ(kit.stored(options, "End_date"), next + "0704");
}

TEST_F(PeriodScreen, LaterYearIsAFailure) {
    const int later = QDate::currentDate().year() + 2;
    start_with(std::to_string(later) + "0704", "20100101", "0");
    kit.accept_box();  // the report, and its second box
    kit.accept_box();
    kit.click("cmdDate");
    ASSERT_THAT(kit.seen, SizeIs(2));
    EXPECT_THAT(kit.seen[0].text, HasSubstr("エラー発生 ：　"));
    EXPECT_EQ(kit.program().ended(), ProgramEnd::Cause::reported);
}

TEST_F(PeriodScreen, EndThatFollowsTheClockIsTodayAtEveryStart) {
    start_with("19600101", "20010101", "1");
    EXPECT_EQ(kit.stored(options, "End_date"), today());
    const std::string in_words = QDate::currentDate().toString("yyyy 年 MM 月 dd 日").toStdString();
    EXPECT_THAT(caption(), HasSubstr("日　～  " + in_words));
}

TEST_F(PeriodScreen, EndThatFollowsTheClockIsTodayAgainWhateverWasChosen) {
    start_with("19600101", "20010101", "1");
    open([](QDialog& dialog) {
        EXPECT_TRUE(follows_clock(dialog));
        EXPECT_FALSE(DesktopKit::part<QPushButton>(dialog, "cmdGet_date").isEnabled());
        choose(dialog, 4, "2005");
        press(dialog, "cmdOK");
    });
    EXPECT_EQ(kit.stored(options, "End_date"), today());
}

TEST_F(PeriodScreen, BoxOfTheClockTakesTodayAndGivesTheButtonBack) {
    start_with("19600101", "20010203", "0");
    const QDate date = QDate::currentDate();
    open([&](QDialog& dialog) {
        auto& get_date = DesktopKit::part<QPushButton>(dialog, "cmdGet_date");
        EXPECT_TRUE(get_date.isEnabled());
        click_follow(dialog);
        EXPECT_TRUE(follows_clock(dialog));
        EXPECT_FALSE(get_date.isEnabled());
        EXPECT_EQ(row(dialog, 4), std::to_string(date.year()));
        EXPECT_EQ(row(dialog, 5), std::to_string(date.month()));
        EXPECT_EQ(row(dialog, 6), std::to_string(date.day()));
        EXPECT_EQ(row(dialog, 1), "1960") << "of the end alone";
        click_follow(dialog);
        EXPECT_TRUE(get_date.isEnabled());
        choose(dialog, 4, "2003");
        press(dialog, "cmdGet_date");
        EXPECT_EQ(row(dialog, 4), std::to_string(date.year()));
        choose(dialog, 4, "2003");
        choose(dialog, 5, "1");
        choose(dialog, 6, "9");
        press(dialog, "cmdOK");
    });
    EXPECT_EQ(kit.stored(options, "End_date"), "20030109");
    EXPECT_EQ(kit.stored(options, "use_system_date_flag"), "0");
}

}  // namespace
}  // namespace veldrana
