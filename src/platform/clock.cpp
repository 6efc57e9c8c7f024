#include "platform/clock.h"

#include <chrono>

#include "common/text.h"
#include "platform/local_time.h"

namespace veldrana {
namespace {

std::string digits(int value, std::size_t width) {
    const std::string text = std::to_string(value);
    return text.size() >= width ? text : std::string(width - text.size(), '0') + text;
}

}  // namespace

LocalTime SystemClock::now() {
    return local_time(std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()));
}

int SystemClock::minutes_ahead_of_utc() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    constexpr int seconds_in_minute = 60;
    return static_cast<int>((seconds_of(local_time(now)) - now) / seconds_in_minute);
}

std::int64_t seconds_of(const LocalTime& time) {
    namespace chrono = std::chrono;
    const chrono::sys_days day{chrono::year{time.year} / time.month / time.day};
    const chrono::sys_seconds moment = day + chrono::hours{time.hour} +
                                       chrono::minutes{time.minute} + chrono::seconds{time.second};
    return moment.time_since_epoch().count();
}

LocalTime calendar_time(std::int64_t seconds) {
    namespace chrono = std::chrono;
    const chrono::sys_seconds moment{chrono::seconds{seconds}};
    const auto day = chrono::floor<chrono::days>(moment);
    const chrono::year_month_day date{day};
    const chrono::hh_mm_ss clock{moment - day};
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = static_cast<int>(clock.hours().count()),
            .minute = static_cast<int>(clock.minutes().count()),
            .second = static_cast<int>(clock.seconds().count())};
}

LocalTime next_second(const LocalTime& time) {
    return calendar_time(seconds_of(time) + 1);
}

std::string present_year(Clock& clock) {
    return digits(clock.now().year, 4);
}

std::string date_text(const LocalTime& time) {
    return digits(time.year, 4) + "/" + digits(time.month, 2) + "/" + digits(time.day, 2);
}

std::string date_time_text(const LocalTime& time) {
    return date_text(time) + " " + digits(time.hour, 2) + ":" + digits(time.minute, 2) + ":" +
           digits(time.second, 2);
}

std::string file_stamp(const LocalTime& time) {
    std::string stamp = date_time_text(time);
    for (const char* const separator : {"/", "-", ":"}) {
        stamp = replace_all(stamp, separator, "");
    }
    return replace_all(stamp, " ", "_");
}

}  // namespace veldrana
