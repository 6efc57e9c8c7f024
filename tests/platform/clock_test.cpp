#include "platform/clock.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/local_time.h"

namespace veldrana {
namespace {

// Puts the process into another time zone for one test.
class TimeZone {
  public:
    explicit TimeZone(const char* zone) {
        if (const char* const old = std::getenv("TZ")) {
            old_ = old;
            was_set_ = true;
        }
        setenv("TZ", zone, 1);
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone() {
        if (was_set_) {
            setenv("TZ", old_.c_str(), 1);
        } else {
            unsetenv("TZ");
        }
        tzset();
    }

  private:
    std::string old_;
    bool was_set_ = false;
};

TEST(TimeTexts, FillEveryPartWithZeros) {
    struct Row {
        LocalTime time;
        std::string_view date;
        std::string_view date_time;
        std::string_view stamp;
    };
    constexpr std::array rows{
        Row{{2026, 5, 4, 3, 2, 9}, "2026/05/04", "2026/05/04 03:02:09", "20260504_030209"},
        Row{{2000, 1, 1, 0, 0, 0}, "2000/01/01", "2000/01/01 00:00:00", "20000101_000000"},
        Row{{1999, 12, 31, 23, 59, 59}, "1999/12/31", "1999/12/31 23:59:59", "19991231_235959"},
        Row{{2024, 2, 29, 10, 20, 30}, "2024/02/29", "2024/02/29 10:20:30", "20240229_102030"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(date_text(row.time), row.date);
        EXPECT_EQ(date_time_text(row.time), row.date_time);
        EXPECT_EQ(file_stamp(row.time), row.stamp);
    }
}

TEST(LocalTime, IsCountedInTheZoneOfTheSystem) {
    struct Row {
        const char* zone;
        std::time_t seconds;
        std::string_view text;
    };
    constexpr std::array rows{
        Row{"UTC0", 0, "1970/01/01 00:00:00"},
        Row{"JST-9", 0, "1970/01/01 09:00:00"},
        // 30 years with 7 leap days are 10957 days; 59 more are the leap day of 2000.
        Row{"JST-9", (10957 + 59) * std::time_t{86400} - 1, "2000/02/29 08:59:59"},
        Row{"JST-9", (10957 + 59) * std::time_t{86400} + std::time_t{15} * 3600,
            "2000/03/01 00:00:00"},
        Row{"EST5", 10957 * std::time_t{86400}, "1999/12/31 19:00:00"},
    };
    for (const Row& row : rows) {
        const TimeZone zone(row.zone);
        EXPECT_EQ(date_time_text(local_time(row.seconds)), row.text) << row.zone;
    }
}

TEST(SystemClock, TellsTheLocalTimeOfTheMoment) {
    const TimeZone zone("JST-9");
    const std::string before = date_time_text(local_time(std::time(nullptr)));
    const std::string now = date_time_text(SystemClock().now());
    // One second of grace: the two calls may read clocks of different fineness.
    const std::string after = date_time_text(local_time(std::time(nullptr) + 1));
    EXPECT_GE(now, before);
    EXPECT_LE(now, after);
}

}  // namespace
}  // namespace veldrana
