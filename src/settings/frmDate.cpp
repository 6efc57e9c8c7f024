#include "settings/frmDate.h"

#include <utility>
#include <vector>

#include "common/text.h"
#include "common/version.h"
#include "settings/option_defaults.h"
#include "settings/window_positions.h"

namespace veldrana {
namespace {

constexpr int first_year = 1930;
constexpr int months = 12;
constexpr int days = 31;
constexpr std::size_t parts_of_start = 0;
constexpr std::size_t parts_of_end = 3;

std::vector<std::string> rows_down(int from, int to) {
    std::vector<std::string> rows;
    for (int number = from; number >= to; --number) {
        rows.push_back(std::to_string(number));
    }
    return rows;
}

std::string two_digits(const std::string& text) {
    return length(text) == 1 ? "0" + text : text;
}

std::string year_of(std::string_view date) {
    return std::string(left(date, 4));
}

std::string month_of(std::string_view date) {
    return std::string(mid(date, 5, 2));
}

std::string day_of(std::string_view date) {
    return std::string(right(date, 2));
}

std::string in_words(std::string_view date) {
    return year_of(date) + " 年 " + month_of(date) + " 月 " + day_of(date) + " 日";
}

}  // namespace

frmDate::frmDate(SettingsStore& settings, Disk& disk, Clock& clock, std::string strPath)
    : WindowForm("frmDate", "  No QSL とする期間の設定"),
      settings_(settings),
      disk_(disk),
      clock_(clock),
      strPath_(std::move(strPath)),
      parts_{{{&List1, &start_.year, clock_.now().year},
              {&List2, &start_.month, months},
              {&List3, &start_.day, days},
              {&List4, &end_.year, clock_.now().year},
              {&List5, &end_.month, months},
              {&List6, &end_.day, days}}} {
    load_position(disk_, strPath_, window);
    fill_lists();
    Check1.value.on_change = [this] { Check1_Click(); };
    cmdGet_date.Click = [this] { cmdGet_date_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };

    OptionSettings& options = settings_.options;
    if (options.Start_date.empty()) {
        options.Start_date = first_period_day;
    }
    start_ = {year_of(options.Start_date), month_of(options.Start_date),
              day_of(options.Start_date)};
    options.End_date =
        options.End_date.empty() ? settings_.today() : without_separators(options.End_date);
    end_ = {year_of(options.End_date), month_of(options.End_date), day_of(options.End_date)};
    Start_date_before_ = options.Start_date;
    End_date_before_ = options.End_date;
    Check1.value = settings_.end_follows_clock();
    select_rows(parts_of_start);
    select_rows(parts_of_end);
}

void frmDate::fill_lists() {
    for (Part& part : parts_) {
        const bool is_year = part.text == &start_.year || part.text == &end_.year;
        part.list->rows = rows_down(part.highest, is_year ? first_year : 1);
        part.list->index.on_change = [part] {
            if (part.list->index != ListBox::none) {
                *part.text =
                    part.list->rows.get()[static_cast<std::size_t>(part.list->index.get())];
            }
        };
    }
}

// The rows of one day. One year past the last is a row that is none.
void frmDate::select_rows(std::size_t from) {
    constexpr std::size_t parts_of_day = 3;
    for (std::size_t i = from; i < from + parts_of_day; ++i) {
        const Part& part = parts_[i];
        part.list->select(part.highest - stored_number(*part.text));
    }
}

void frmDate::Check1_Click() {
    settings_.options.use_system_date_flag = Check1.value ? "1" : "0";
    if (Check1.value) {
        cmdGet_date.press();
    }
    cmdGet_date.enabled = !Check1.value;
}

void frmDate::cmdGet_date_Click() {
    const std::string today = settings_.today();
    end_ = {year_of(today), month_of(today), day_of(today)};
    select_rows(parts_of_end);
}

void frmDate::cmdOK_Click() {
    for (std::string* const text : {&start_.month, &start_.day, &end_.month, &end_.day}) {
        *text = two_digits(*text);
    }
    OptionSettings& options = settings_.options;
    options.Start_date = start_.year + start_.month + start_.day;
    options.End_date = end_.year + end_.month + end_.day;
    save_position(disk_, strPath_, window);
    if (val(options.End_date) < val(options.Start_date)) {
        Label7.caption = "日付けの設定エラーです。 抽出開始 ＞ 抽出終了";
        return;
    }
    if (period_changed) {
        period_changed();
    }
    settings_.write_Veldrana_new_ini();
    window.visible = false;
}

void frmDate::leave() {
    settings_.options.Start_date = Start_date_before_;
    settings_.options.End_date = End_date_before_;
    save_position(disk_, strPath_, window);
    window.visible = false;
}

std::string set_period_caption(SettingsStore& settings, std::size_t blanks) {
    constexpr std::size_t blanks_behind = 5;
    OptionSettings& options = settings.options;
    if (settings.end_follows_clock() || options.End_date.empty()) {
        options.End_date = settings.today();
    }
    return "  Veldrana  ver " + std::string(program_version) + std::string(blanks, ' ') +
           "参照抽出期間 " + in_words(options.Start_date) + "　～  " + in_words(options.End_date) +
           std::string(blanks_behind, ' ') + "コンテストログ変換";
}

}  // namespace veldrana
