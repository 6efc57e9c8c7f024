#include "rows/time_rule.h"

#include <charconv>
#include <chrono>

#include "common/run_time_error.h"
#include "common/text.h"

namespace veldrana {
namespace {

using std::chrono::hours;

constexpr hours japan_ahead{9};

int number_of(std::string_view text) {
    const std::string_view digits = trim(text);
    int number = 0;
    const auto [stop, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || stop != digits.data() + digits.size() || number < 0) {
        throw RunTimeError(Failure::type_mismatch);
    }
    return number;
}

void append_two_digits(std::string& text, int number) {
    text += static_cast<char>('0' + number / 10);
    text += static_cast<char>('0' + number % 10);
}

void convert(ContactTime& contact, hours shift, char zone) {
    namespace chrono = std::chrono;
    const DatePieces date = split_date(contact.date);
    const int two_digits = number_of(date.year);
    const chrono::year_month_day day{chrono::year{two_digits + (two_digits <= 50 ? 2000 : 1900)},
                                     chrono::month{static_cast<unsigned>(number_of(date.month))},
                                     chrono::day{static_cast<unsigned>(number_of(date.day))}};
    const int hour = number_of(mid(contact.time, 1, 2));
    const int minute = number_of(mid(contact.time, 3, 2));
    if (!day.ok() || hour > 23 || minute > 59) {
        throw RunTimeError(Failure::type_mismatch);
    }
    const auto moment = chrono::sys_days{day} + hours{hour} + chrono::minutes{minute} + shift;
    const auto new_day = chrono::floor<chrono::days>(moment);
    const chrono::year_month_day converted{new_day};
    const chrono::hh_mm_ss time_of_day{moment - new_day};

    contact.date.clear();
    append_two_digits(contact.date, static_cast<int>(converted.year()) % 100);
    append_two_digits(contact.date, static_cast<int>(static_cast<unsigned>(converted.month())));
    append_two_digits(contact.date, static_cast<int>(static_cast<unsigned>(converted.day())));
    contact.time.clear();
    append_two_digits(contact.time, static_cast<int>(time_of_day.hours().count()));
    append_two_digits(contact.time, static_cast<int>(time_of_day.minutes().count()));
    contact.time += zone;
}

bool holds(std::string_view text, char letter) {
    return text.find(letter) != std::string_view::npos;
}

}  // namespace

DatePieces split_date(std::string_view date) {
    return {left(date, 2), mid(date, 3, 2), right(date, 2)};
}

char zone_of_log(const RunOptions& options) {
    return options.Option1 == 1 ? 'J' : 'U';
}

void apply_time_rule(const RunOptions& options, std::string_view call, ContactTime& contact,
                     CallMemory& memory) {
    const bool japan_time = zone_of_log(options) == 'J';
    if (options.Option08 == 1 && !japan_time) {
        convert(contact, japan_ahead, 'J');
    }
    if (options.Option08 == 2 && japan_time) {
        convert(contact, -japan_ahead, 'U');
    }
    find_ja_key(call, memory);
    if (options.Option08 == 3 && holds(contact.time, 'J') && !is_japanese(memory.ja_key)) {
        convert(contact, -japan_ahead, 'U');
    }
    if (options.Option08 == 4 && holds(contact.time, 'U') && is_japanese(memory.ja_key)) {
        convert(contact, japan_ahead, 'J');
    }
}

}  // namespace veldrana
