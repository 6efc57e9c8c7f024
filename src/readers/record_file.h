// Owns binary logs: a file of records of one size, and the numbers, counted days and texts that
// stand in a record. Numbers are little-endian; texts are Shift_JIS.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/stage.h"

namespace veldrana {

// Reads the whole records of a file in their order, a block at a time; what is left behind the last
// one is passed over.
class RecordFile {
  public:
    // The failures of Disk::open_for_reading.
    RecordFile(const Stage& stage, std::string_view path, std::size_t record_size);
    // The same without a line in the trace log, for a file that has its line already.
    RecordFile(Disk& disk, std::string_view path, std::size_t record_size);

    // How many whole records the file has.
    std::size_t count() const noexcept { return count_; }

    // The next record; false behind the last one. Valid until the next call.
    bool next(std::string_view& record);

  private:
    std::unique_ptr<ByteSource> source_;
    std::size_t record_size_;
    std::size_t count_;
    std::size_t left_;
    std::string buffer_;
    std::size_t begin_ = 0;  // of what was not handed out yet
    std::size_t end_ = 0;    // of what was read
};

// The numbers at a byte offset, which must lie in the record.
std::uint8_t byte_at(std::string_view record, std::size_t offset) noexcept;
std::uint16_t word_at(std::string_view record, std::size_t offset) noexcept;
std::uint32_t double_word_at(std::string_view record, std::size_t offset) noexcept;
double double_at(std::string_view record, std::size_t offset) noexcept;

// The text of a piece of a record: a view of it, or of `own` where it is not all ASCII.
std::string_view page_text(std::string_view bytes, std::string& own);

// The same of as many bytes as a count tells, never past the piece; a character that does not fit
// as a whole is left out.
std::string_view counted_text(std::string_view bytes, std::size_t count, std::string& own);

// The moment that days since the start of 30 December 1899 stand for, to the nearest second. The
// fraction is the time of its day in front of that day too. What is no number or lies outside of
// the years 100 to 9999 is failure 6.
LocalTime time_of_days(double days);
// The same as seconds since the start of 1970 by the calendar.
std::int64_t seconds_of_days(double days);
// Whether both do without a failure.
bool is_calendar_time(double days) noexcept;

constexpr std::int64_t seconds_in_day = 86400;

// The digits of a moment.
class MomentDigits {
  public:
    explicit MomentDigits(const LocalTime& time) noexcept {
        put(0, time.year / 100);
        put(2, time.year % 100);
        put(4, time.month);
        put(6, time.day);
        put(8, time.hour);
        put(10, time.minute);
        put(12, time.second);
    }

    std::string_view year() const noexcept { return piece(0, 4); }
    std::string_view month() const noexcept { return piece(4, 2); }
    std::string_view day() const noexcept { return piece(6, 2); }
    std::string_view hour() const noexcept { return piece(8, 2); }
    std::string_view minute() const noexcept { return piece(10, 2); }
    std::string_view hhmm() const noexcept { return piece(8, 4); }
    std::string_view hhmmss() const noexcept { return piece(8, 6); }
    std::string date() const;  // yyyy/mm/dd

  private:
    std::string_view piece(std::size_t start, std::size_t size) const noexcept {
        return std::string_view(digits_.data(), digits_.size()).substr(start, size);
    }

    void put(std::size_t at, int two_digits) noexcept {
        digits_[at] = static_cast<char>('0' + two_digits / 10);
        digits_[at + 1] = static_cast<char>('0' + two_digits % 10);
    }

    std::array<char, 14> digits_{};
};

}  // namespace veldrana
