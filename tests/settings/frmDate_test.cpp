#include "settings/frmDate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/profile_file.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string folder = "C:\\veldrana\\";

// A list from one number down to another.
std::vector<std::string> countdown(int from, int to) {
    std::vector<std::string> rows;
    for (int number = from; number >= to; --number) {
        rows.push_back(std::to_string(number));
    }
    return rows;
}

// On 2026-05-04 with a period of 2020-01-31 to 2021-02-28 that does not follow the clock.
class FrmDateTest : public testing::Test {
  protected:
    FrmDateTest() {
        disk.put_folder("C:\\veldrana");
        settings.options.Start_date = "20200131";
        settings.options.End_date = "20210228";
        settings.options.use_system_date_flag = "0";
    }

    void open() {
        form.emplace(settings, disk, clock, folder);
        form->window.visible = true;
    }
    // The chosen rows of the six lists.
    std::vector<int> rows() const {
        return {form->List1.index, form->List2.index, form->List3.index,
                form->List4.index, form->List5.index, form->List6.index};
    }
    // The texts of the chosen rows of three lists.
    static std::string chosen(const ListBox& list) {
        return list.index < 0 ? "" : list.rows.get().at(static_cast<std::size_t>(list.index));
    }
    std::string chosen_start() const {
        return chosen(form->List1) + "-" + chosen(form->List2) + "-" + chosen(form->List3);
    }
    std::string chosen_end() const {
        return chosen(form->List4) + "-" + chosen(form->List5) + "-" + chosen(form->List6);
    }
    std::string stored(std::string_view key) {
        return ProfileFile(disk, folder + std::string(new_ini)).value(new_ini, key);
    }
    int failure_of_loading() {
        return failure_of([this] { frmDate(settings, disk, clock, folder); });
    }

    MemoryDisk disk;
    FixedClock clock;
    SettingsStore settings{disk, clock, folder};
    std::optional<frmDate> form;
};

// --- load ---

TEST_F(FrmDateTest, HasItsTitleAndCaptions) {
    open();
    EXPECT_EQ(form->window.name(), "frmDate");
    EXPECT_EQ(form->window.caption.get(), "  No QSL とする期間の設定");
    EXPECT_EQ(form->lblStart.caption.get(), "　抽 出 開 始 ");
    EXPECT_EQ(form->lblEnd.caption.get(), "　抽 出 終 了 ");
    EXPECT_EQ(form->Check1.caption.get(), "終了日はｼｽﾃﾑ日付");
    EXPECT_EQ(form->cmdGet_date.caption.get(), "システム日付取得");
    EXPECT_EQ(form->cmdOK.caption.get(), "Ｏ Ｋ");
    EXPECT_EQ(form->Label6.caption.get(), "変更したら必ず確定するために青地に白抜きにすること");
    EXPECT_EQ(form->Label7.caption.get(), "");
}

TEST_F(FrmDateTest, YearsReachFromThePresentOneDownTo1930) {
    open();
    EXPECT_EQ(form->List1.rows.get(), countdown(2026, 1930));
    EXPECT_EQ(form->List4.rows.get(), countdown(2026, 1930));
}

TEST_F(FrmDateTest, YearsBeginWithThatOfTheClock) {
    clock.time.year = 2031;
    open();
    EXPECT_EQ(form->List1.rows.get(), countdown(2031, 1930));
    EXPECT_THAT(rows(), ElementsAre(11, 11, 0, 10, 10, 3));
}

TEST_F(FrmDateTest, MonthsAndDaysRunDownWithoutLeadingZeros) {
    open();
    EXPECT_EQ(form->List2.rows.get(), countdown(12, 1));
    EXPECT_EQ(form->List3.rows.get(), countdown(31, 1));
    EXPECT_EQ(form->List5.rows.get(), countdown(12, 1));
    EXPECT_EQ(form->List6.rows.get(), countdown(31, 1));
}

TEST_F(FrmDateTest, SelectsTheRowsOfTheStoredPeriod) {
    open();
    // 2026 - 2020, 12 - 1, 31 - 31; 2026 - 2021, 12 - 2, 31 - 28
    EXPECT_THAT(rows(), ElementsAre(6, 11, 0, 5, 10, 3));
}

TEST_F(FrmDateTest, AnEmptyStartBecomesTheFirstDayOf1960) {
    settings.options.Start_date = "";
    open();
    EXPECT_EQ(chosen_start(), "1960-1-1");
}

TEST_F(FrmDateTest, AnEmptyEndBecomesToday) {
    settings.options.End_date = "";
    open();
    EXPECT_EQ(chosen_end(), "2026-5-4");
    EXPECT_FALSE(form->Check1.value);
}

TEST_F(FrmDateTest, SeparatorsAreTakenOutOfTheEnd) {
    for (const std::string date : {"2021/02/28", "2021-02-28"}) {
        settings.options.End_date = date;
        open();
        EXPECT_EQ(chosen_end(), "2021-2-28") << date;
    }
}

TEST_F(FrmDateTest, AnEndThatFollowsTheClockShowsToday) {
    settings.options.use_system_date_flag = "1";
    open();
    EXPECT_TRUE(form->Check1.value);
    EXPECT_FALSE(form->cmdGet_date.enabled);
    EXPECT_EQ(chosen_end(), "2026-5-4");
    EXPECT_EQ(chosen_start(), "2020-1-31");
}

TEST_F(FrmDateTest, AnEndThatDoesNotFollowTheClockLeavesTheButtonEnabled) {
    open();
    EXPECT_FALSE(form->Check1.value);
    EXPECT_TRUE(form->cmdGet_date.enabled);
}

TEST_F(FrmDateTest, TheYearBehindThePresentOneChoosesNothing) {
    settings.options.Start_date = "20270131";
    open();
    EXPECT_THAT(rows(), ElementsAre(-1, 11, 0, 5, 10, 3));
}

TEST_F(FrmDateTest, AYearBehindThatFails) {
    settings.options.Start_date = "20280131";
    EXPECT_EQ(failure_of_loading(), 5);
}

TEST_F(FrmDateTest, TheSameHoldsForTheEnd) {
    settings.options.End_date = "20270131";
    open();
    EXPECT_EQ(form->List4.index.get(), -1);
    settings.options.End_date = "20280131";
    EXPECT_EQ(failure_of_loading(), 5);
}

TEST_F(FrmDateTest, TheLastYearOfTheListIsChosen) {
    settings.options.Start_date = "19300101";
    open();
    EXPECT_EQ(chosen_start(), "1930-1-1");
}

TEST_F(FrmDateTest, AYearInFrontOfTheListFails) {
    settings.options.Start_date = "19291231";
    EXPECT_EQ(failure_of_loading(), 5);
}

TEST_F(FrmDateTest, MonthAndDayHaveTheirEdgesToo) {
    settings.options.Start_date = "20201332";
    open();
    EXPECT_THAT(rows(), ElementsAre(6, -1, -1, 5, 10, 3));
    for (const std::string date : {"20201401", "20200133", "20200001", "20200100"}) {
        settings.options.Start_date = date;
        EXPECT_EQ(failure_of_loading(), 5) << date;
    }
}

TEST_F(FrmDateTest, LoadingWritesNothing) {
    settings.options.Start_date = "";
    open();
    EXPECT_THAT(disk.files(), IsEmpty());
}

TEST_F(FrmDateTest, ComesBackWhereItWasLeft) {
    disk.put(folder + "Veldrana_posi.ini",
             "[Position_frmDate]\r\nWindowState=0\r\nLeft=10\r\nTop=20\r\nWidth=300\r\n"
             "Height=400\r\n");
    open();
    ASSERT_TRUE(form->window.placement.get().has_value());
    EXPECT_EQ(form->window.placement.get()->left, 10);
    EXPECT_EQ(form->window.placement.get()->height, 400);
}

// --- the check box and the button ---

TEST_F(FrmDateTest, CheckingTakesTodayAndDisablesTheButton) {
    open();
    form->Check1.value = true;
    EXPECT_EQ(settings.options.use_system_date_flag, "1");
    EXPECT_FALSE(form->cmdGet_date.enabled);
    EXPECT_EQ(chosen_end(), "2026-5-4");
    EXPECT_EQ(chosen_start(), "2020-1-31");
}

TEST_F(FrmDateTest, UncheckingEnablesTheButtonAndKeepsTheDay) {
    settings.options.use_system_date_flag = "1";
    open();
    form->Check1.value = false;
    EXPECT_EQ(settings.options.use_system_date_flag, "0");
    EXPECT_TRUE(form->cmdGet_date.enabled);
    EXPECT_EQ(chosen_end(), "2026-5-4");
}

TEST_F(FrmDateTest, TheButtonTakesTodayIntoTheEnd) {
    open();
    form->cmdGet_date.press();
    EXPECT_EQ(chosen_end(), "2026-5-4");
    EXPECT_EQ(chosen_start(), "2020-1-31");
    EXPECT_EQ(settings.options.use_system_date_flag, "0");
    form->cmdOK.press();
    EXPECT_EQ(settings.options.End_date, "20260504");
}

TEST_F(FrmDateTest, TheCheckAloneIsNotYetSaved) {
    open();
    form->Check1.value = true;
    EXPECT_THAT(disk.files(), IsEmpty());
}

// --- taking over ---

TEST_F(FrmDateTest, AnUnchangedPeriodIsTakenOverAsItIs) {
    open();
    form->cmdOK.press();
    EXPECT_EQ(settings.options.Start_date, "20200131");
    EXPECT_EQ(settings.options.End_date, "20210228");
}

TEST_F(FrmDateTest, AMonthOfOneCharacterIsPaddedOnlyWhenItIsTakenOver) {
    open();
    form->List2.select(12 - 3);
    EXPECT_EQ(chosen(form->List2), "3");
    EXPECT_EQ(settings.options.Start_date, "20200131");
    form->cmdOK.press();
    EXPECT_EQ(settings.options.Start_date, "20200331");
    EXPECT_EQ(stored("Start_date"), "20200331");
}

TEST_F(FrmDateTest, EachListSetsItsPart) {
    open();
    form->List1.select(2026 - 2001);
    form->List2.select(12 - 2);
    form->List3.select(31 - 3);
    form->List4.select(2026 - 2004);
    form->List5.select(12 - 5);
    form->List6.select(31 - 6);
    form->cmdOK.press();
    EXPECT_EQ(settings.options.Start_date, "20010203");
    EXPECT_EQ(settings.options.End_date, "20040506");
}

TEST_F(FrmDateTest, AYearThatNoRowShowsIsKept) {
    settings.options.Start_date = "20270131";
    settings.options.End_date = "20270201";
    open();
    ASSERT_EQ(chosen_start(), "-1-31");
    form->cmdOK.press();
    EXPECT_EQ(settings.options.Start_date, "20270131");
    EXPECT_EQ(settings.options.End_date, "20270201");
    EXPECT_FALSE(form->window.visible);
}

TEST_F(FrmDateTest, ADayOfTwoCharactersIsNotPadded) {
    open();
    form->List5.select(0);
    form->List6.select(0);
    form->cmdOK.press();
    EXPECT_EQ(settings.options.End_date, "20211231");
}

TEST_F(FrmDateTest, TheCalendarIsNotAsked) {
    open();
    form->List2.select(12 - 2);
    form->List3.select(31 - 31);
    form->cmdOK.press();
    EXPECT_EQ(settings.options.Start_date, "20200231");
    EXPECT_FALSE(form->window.visible);
}

TEST_F(FrmDateTest, ThePeriodIsSavedAndTheDialogCloses) {
    open();
    form->cmdOK.press();
    EXPECT_EQ(stored("Start_date"), "20200131");
    EXPECT_EQ(stored("End_date"), "20210228");
    EXPECT_EQ(stored("use_system_date_flag"), "0");
    EXPECT_FALSE(form->window.visible);
}

TEST_F(FrmDateTest, TheWindowsPositionIsSaved) {
    open();
    form->window.placement =
        WindowPlacement{.state = 0, .left = 10, .top = 20, .width = 300, .height = 400};
    form->cmdOK.press();
    const ProfileFile file(disk, folder + "Veldrana_posi.ini");
    EXPECT_EQ(file.value("Position_frmDate", "Left"), "10");
    EXPECT_EQ(file.value("Position_frmDate", "Height"), "400");
}

TEST_F(FrmDateTest, AnEndEqualToTheStartIsAccepted) {
    settings.options.End_date = "20200131";
    open();
    form->cmdOK.press();
    EXPECT_EQ(stored("End_date"), "20200131");
    EXPECT_FALSE(form->window.visible);
    EXPECT_EQ(form->Label7.caption.get(), "");
}

TEST_F(FrmDateTest, TheTitleIsRenewedBeforeThePeriodIsSaved) {
    open();
    std::vector<std::string> seen;
    form->period_changed = [&] {
        seen.push_back(settings.options.Start_date);
        EXPECT_EQ(stored("Start_date"), "");
        EXPECT_TRUE(form->window.visible);
    };
    form->List1.select(2026 - 2019);
    form->cmdOK.press();
    EXPECT_THAT(seen, ElementsAre("20190131"));
}

TEST_F(FrmDateTest, AnEndThatFollowsTheClockIsOverwrittenByTheTitle) {
    settings.options.use_system_date_flag = "1";
    open();
    form->period_changed = [&] { set_period_caption(settings, period_blanks_after_dialog); };
    form->List4.select(2026 - 2025);
    form->cmdOK.press();
    EXPECT_EQ(settings.options.End_date, "20260504");
    EXPECT_EQ(stored("End_date"), "20260504");
}

// --- a period that ends before it starts ---

class FrmDateWrong : public FrmDateTest {
  protected:
    FrmDateWrong() {
        open();
        form->period_changed = [this] { ++changes; };
        form->List4.select(2026 - 2019);
        form->cmdOK.press();
    }
    int changes = 0;
};

TEST_F(FrmDateWrong, IsTold) {
    EXPECT_EQ(form->Label7.caption.get(), "日付けの設定エラーです。 抽出開始 ＞ 抽出終了");
}

TEST_F(FrmDateWrong, GoesBackToThePeriodBeforeWhenTheDialogIsLeft) {
    form->window.placement =
        WindowPlacement{.state = 0, .left = 10, .top = 20, .width = 300, .height = 400};
    form->leave();
    EXPECT_EQ(settings.options.Start_date, "20200131");
    EXPECT_EQ(settings.options.End_date, "20210228");
    EXPECT_FALSE(form->window.visible);
    EXPECT_EQ(ProfileFile(disk, folder + "Veldrana_posi.ini").value("Position_frmDate", "Left"),
              "10");
}

TEST_F(FrmDateWrong, LeavesTheDialogOpen) {
    EXPECT_TRUE(form->window.visible);
}

TEST_F(FrmDateWrong, IsNotSaved) {
    EXPECT_EQ(stored("End_date"), "");
    EXPECT_EQ(changes, 0);
}

TEST_F(FrmDateWrong, StaysAsItWasPutTogether) {
    EXPECT_EQ(settings.options.Start_date, "20200131");
    EXPECT_EQ(settings.options.End_date, "20190228");
}

TEST_F(FrmDateWrong, IsSavedWhenItIsCorrected) {
    form->List1.select(2026 - 2018);
    form->cmdOK.press();
    EXPECT_EQ(stored("Start_date"), "20180131");
    EXPECT_EQ(stored("End_date"), "20190228");
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(form->window.visible);
}

TEST_F(FrmDateTest, TheWindowsPositionIsSavedEvenIfThePeriodIsWrong) {
    open();
    form->window.placement =
        WindowPlacement{.state = 0, .left = 10, .top = 20, .width = 300, .height = 400};
    form->List4.select(2026 - 2019);
    form->cmdOK.press();
    EXPECT_EQ(ProfileFile(disk, folder + "Veldrana_posi.ini").value("Position_frmDate", "Top"),
              "20");
}

TEST_F(FrmDateTest, OneDayTooEarlyIsWrong) {
    settings.options.Start_date = "20210301";
    open();
    form->cmdOK.press();
    EXPECT_TRUE(form->window.visible);
    EXPECT_NE(form->Label7.caption.get(), "");
}

// --- the title ---

class PeriodCaption : public FrmDateTest {};

TEST_F(PeriodCaption, ShowsThePeriodDigitByDigit) {
    EXPECT_THAT(set_period_caption(settings, 10),
                testing::StartsWith("  Veldrana  ver 5.30          参照抽出期間 2020 年 01 月 31 日"
                                    "　～  2021 年 02 月 28 日     "));
}

TEST_F(PeriodCaption, HasTheBlanksThatItIsTold) {
    EXPECT_THAT(set_period_caption(settings, 15),
                testing::StartsWith("  Veldrana  ver 5.30               参照抽出期間 2020 年"));
}

TEST_F(PeriodCaption, HasFewerBlanksAtTheStartThanAfterTheDialog) {
    EXPECT_EQ(period_blanks_at_start, 10U);
    EXPECT_EQ(period_blanks_after_dialog, 15U);
}

TEST_F(PeriodCaption, PutsTodayIntoAnEndThatFollowsTheClock) {
    settings.options.use_system_date_flag = "1";
    EXPECT_THAT(set_period_caption(settings, 10),
                testing::HasSubstr("　～  2026 年 05 月 04 日     "));
    EXPECT_EQ(settings.options.End_date, "20260504");
}

TEST_F(PeriodCaption, PutsTodayIntoAnEmptyEnd) {
    settings.options.End_date = "";
    EXPECT_THAT(set_period_caption(settings, 10),
                testing::HasSubstr("　～  2026 年 05 月 04 日     "));
    EXPECT_EQ(settings.options.End_date, "20260504");
}

TEST_F(PeriodCaption, KeepsAnEndThatIsSet) {
    set_period_caption(settings, 10);
    EXPECT_EQ(settings.options.End_date, "20210228");
}

}  // namespace
}  // namespace veldrana
