// Owns the dialog of the No QSL period: the days between which past contacts count. Days are three
// texts, year, month and day; the calendar is not asked, so the 31st of any month passes.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "common/controls.h"
#include "platform/clock.h"
#include "platform/disk.h"
#include "settings/settings_store.h"

namespace veldrana {

struct frmDate : WindowForm {
    // Loads the form. A stored day that no list holds and that is not one year past the last is
    // failure 5.
    frmDate(SettingsStore& settings, Disk& disk, Clock& clock, std::string strPath);

    Label lblStart{*this, "lblStart", "　抽 出 開 始 "};
    Label lblEnd{*this, "lblEnd", "　抽 出 終 了 "};
    Label lblYear{*this, "lblYear", "年"};
    Label lblMonth{*this, "lblMonth", "月"};
    Label lblDay{*this, "lblDay", "日"};
    // Year, month and day of the start, then of the end; the latest on top.
    ListBox List1{*this, "List1"};
    ListBox List2{*this, "List2"};
    ListBox List3{*this, "List3"};
    ListBox List4{*this, "List4"};
    ListBox List5{*this, "List5"};
    ListBox List6{*this, "List6"};
    CheckBox Check1{*this, "Check1", "終了日はｼｽﾃﾑ日付"};
    CommandButton cmdGet_date{*this, "cmdGet_date", "システム日付取得"};
    CommandButton cmdOK{*this, "cmdOK", "Ｏ Ｋ"};
    Label Label6{*this, "Label6", "変更したら必ず確定するために青地に白抜きにすること"};
    Label Label7{*this, "Label7"};

    // Leaves without taking a period over: one that was refused goes back to that of the load.
    void leave();

    // Runs when a period was taken over, before it is saved and the window goes.
    std::function<void()> period_changed;

  private:
    // A day as the lists give it: month and day may have one character.
    struct Day {
        std::string year;
        std::string month;
        std::string day;
    };
    // A list, the text that its rows set, and the number in its top row.
    struct Part {
        ListBox* list;
        std::string* text;
        int highest;
    };

    void fill_lists();
    void select_rows(std::size_t from);
    void Check1_Click();
    void cmdGet_date_Click();
    void cmdOK_Click();

    SettingsStore& settings_;
    Disk& disk_;
    Clock& clock_;
    std::string strPath_;
    std::string Start_date_before_;
    std::string End_date_before_;
    Day start_;
    Day end_;
    std::array<Part, 6> parts_;
};

// The title of the main window with the period in force, `blanks` blanks in front of it. Puts today
// into the end of the period first, if it follows the clock or is empty.
std::string set_period_caption(SettingsStore& settings, std::size_t blanks);

// The blanks of the title when the program starts, and after the dialog.
constexpr std::size_t period_blanks_at_start = 10;
constexpr std::size_t period_blanks_after_dialog = 15;

}  // namespace veldrana
