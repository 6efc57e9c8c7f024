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
