#include "readers/record_file.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/code_page_932.h"

namespace veldrana {
namespace {

constexpr double first_day = -657434;        // 1 January 100
constexpr double day_behind_last = 2958466;  // 1 January 10000
constexpr std::int64_t day_of_1970 = 25569;

// The time of the day as the fraction tells it, to the nearest second: up to a whole day.
std::int64_t seconds_of_day(double days) noexcept {
    const double fraction = std::abs(days - static_cast<double>(static_cast<std::int64_t>(days)));
    return static_cast<std::int64_t>(
        std::floor(fraction * static_cast<double>(seconds_in_day) + 0.5));
}

template <class Number>
Number number_at(std::string_view record, std::size_t offset) noexcept {
    Number number = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&number, record.data() + offset, sizeof number);
        return number;
    }
    for (std::size_t i = sizeof(Number); i > 0; --i) {
        number = static_cast<Number>(static_cast<std::uint64_t>(number) << 8U |
                                     static_cast<unsigned char>(record[offset + i - 1]));
    }
    return number;
}

}  // namespace

RecordFile::RecordFile(const Stage& stage, std::string_view path, std::size_t record_size)
    : RecordFile((stage.trace.write_open_for_input(path), stage.disk), path, record_size) {}

RecordFile::RecordFile(Disk& disk, std::string_view path, std::size_t record_size)
    : source_(disk.open_for_reading(path)),
      record_size_(record_size),
      count_(static_cast<std::size_t>(disk.size(path) / record_size)),
      left_(count_),
      buffer_(disk_block_size + record_size, '\0') {}

bool RecordFile::next(std::string_view& record) {
    if (left_ == 0) {
        return false;
    }
    if (end_ - begin_ < record_size_) {
        std::copy(buffer_.begin() + static_cast<Count>(begin_),
                  buffer_.begin() + static_cast<Count>(end_), buffer_.begin());
        end_ -= begin_;
        begin_ = 0;
        while (end_ < record_size_) {
            const std::size_t read = source_->read(buffer_.data() + end_, disk_block_size);
            if (read == 0) {
                left_ = 0;  // the file became shorter
                return false;
            }
            end_ += read;
        }
    }
    record = std::string_view(buffer_).substr(begin_, record_size_);
    begin_ += record_size_;
    --left_;
    return true;
}

std::uint8_t byte_at(std::string_view record, std::size_t offset) noexcept {
    return number_at<std::uint8_t>(record, offset);
}

std::uint16_t word_at(std::string_view record, std::size_t offset) noexcept {
    return number_at<std::uint16_t>(record, offset);
}

std::uint32_t double_word_at(std::string_view record, std::size_t offset) noexcept {
    return number_at<std::uint32_t>(record, offset);
}

double double_at(std::string_view record, std::size_t offset) noexcept {
    return std::bit_cast<double>(number_at<std::uint64_t>(record, offset));
}

std::string_view page_text(std::string_view bytes, std::string& own) {
    if (is_ascii(bytes)) {
        return bytes;
    }
    own.clear();
    append_from_code_page(own, bytes);
    return own;
}

std::string_view counted_text(std::string_view bytes, std::size_t count, std::string& own) {
    const std::string_view counted = bytes.substr(0, count);
    if (is_ascii(counted)) {
        return counted;
    }
    return MidMbcs(page_text(bytes, own), 1, static_cast<Count>(counted.size()));
}

bool is_calendar_time(double days) noexcept {
    // False for what is no number too. The last half second would be the first of a day that no
    // calendar holds.
    return days > first_day - 1 && days < day_behind_last &&
           (days < day_behind_last - 1 || seconds_of_day(days) < seconds_in_day);
}

std::int64_t seconds_of_days(double days) {
    if (!is_calendar_time(days)) {
        throw RunTimeError(Failure::overflow);
    }
    return (static_cast<std::int64_t>(days) - day_of_1970) * seconds_in_day + seconds_of_day(days);
}

LocalTime time_of_days(double days) {
    return calendar_time(seconds_of_days(days));
}

std::string MomentDigits::date() const {
    std::string text(year());
    return text.append("/").append(month()).append("/").append(day());
}

}  // namespace veldrana
