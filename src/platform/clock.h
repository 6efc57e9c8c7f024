// Owns the port to "now". Nothing else in the program asks the system for the time.
#pragma once

#include <cstdint>
#include <string>

namespace veldrana {

// A moment in local time, to the second.
struct LocalTime {
    int year = 0;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

class Clock {
  public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    virtual LocalTime now() = 0;
    // How far local time is ahead of UTC at the moment.
    virtual int minutes_ahead_of_utc() = 0;
};

class SystemClock : public Clock {
  public:
    LocalTime now() override;
    int minutes_ahead_of_utc() override;
};

// A count of seconds since the start of 1970 by the calendar, and back.
LocalTime calendar_time(std::int64_t seconds);
std::int64_t seconds_of(const LocalTime& time);

// One second later, by the calendar.
LocalTime next_second(const LocalTime& time);

// Four digits.
std::string present_year(Clock& clock);

// "yyyy/mm/dd"
std::string date_text(const LocalTime& time);
// "yyyy/mm/dd hh:mm:ss"
std::string date_time_text(const LocalTime& time);
// "yyyymmdd_hhmmss"
std::string file_stamp(const LocalTime& time);

}  // namespace veldrana
