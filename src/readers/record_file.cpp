#include "readers/record_file.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/code_page_932.h"

namespace veldrana {
namespace {

constexpr double first_day = -657434;        // 1 January 100
constexpr double day_behind_last = 2958466;  // 1 January 10000
constexpr std::int64_t day_of_1970 = 25569;
constexpr std::int64_t seconds_in_day = 86400;

template <class Number>
Number number_at(std::string_view record, std::size_t offset) noexcept {
    Number number = 0;
    for (std::size_t i = sizeof(Number); i > 0; --i) {
        number = static_cast<Number>(static_cast<std::uint64_t>(number) << 8U |
                                     static_cast<unsigned char>(record[offset + i - 1]));
    }
    return number;
}

}  // namespace

RecordFile::RecordFile(const Stage& stage, std::string_view path, std::size_t record_size)
    : record_size_(record_size) {
    stage.trace.write_open_for_input(path);
    source_ = stage.disk.open_for_reading(path);
    count_ = static_cast<std::size_t>(stage.disk.size(path) / record_size);
    left_ = count_;
    buffer_.resize(disk_block_size + record_size);
}

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

LocalTime time_of_days(double days) {
    // Also false for what is no number.
    if (!(days > first_day - 1 && days < day_behind_last)) {
        throw RunTimeError(Failure::overflow);
    }
    const double whole = std::trunc(days);
    const auto seconds = static_cast<std::int64_t>(
        std::floor(std::abs(days - whole) * static_cast<double>(seconds_in_day) + 0.5));
    if (whole == day_behind_last - 1 && seconds == seconds_in_day) {
        throw RunTimeError(Failure::overflow);
    }
    return calendar_time((static_cast<std::int64_t>(whole) - day_of_1970) * seconds_in_day +
                         seconds);
}

MomentDigits::MomentDigits(const LocalTime& time) noexcept {
    const auto put = [this](std::size_t end, int value, std::size_t count) {
        for (; count > 0; --count, value /= 10) {
            digits_[--end] = static_cast<char>('0' + value % 10);
        }
    };
    put(4, time.year, 4);
    put(6, time.month, 2);
    put(8, time.day, 2);
    put(10, time.hour, 2);
    put(12, time.minute, 2);
    put(14, time.second, 2);
}

std::string MomentDigits::date() const {
    std::string text(year());
    return text.append("/").append(month()).append("/").append(day());
}

}  // namespace veldrana
