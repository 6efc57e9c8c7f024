// Records of binary logs, byte by byte.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/code_page_932.h"

namespace veldrana {

class RecordBytes {
  public:
    RecordBytes(std::size_t size, char filler) : bytes_(size, filler) {}

    RecordBytes& put(std::size_t at, std::string_view bytes) {
        bytes_.replace(at, bytes.size(), bytes);
        return *this;
    }
    // A number in so many bytes, the lowest first.
    RecordBytes& put_number(std::size_t at, std::uint64_t number, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            bytes_[at + i] = static_cast<char>(number >> (8 * i) & 0xFFU);
        }
        return *this;
    }
    RecordBytes& put_double(std::size_t at, double number) {
        return put_number(at, std::bit_cast<std::uint64_t>(number), 8);
    }
    // A byte with the length of the text's bytes, and the text behind it.
    RecordBytes& put_counted(std::size_t at, std::string_view text) {
        const std::string bytes = to_code_page(text);
        return put_number(at, bytes.size(), 1).put(at + 1, bytes);
    }

    const std::string& bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

// Days since 30 December 1899: 26 April 2025, and the part of a day.
constexpr double april_26 = 45773;
constexpr double day_part(int hour, int minute, int second = 0) {
    return ((hour * 60 + minute) * 60 + second) / 86400.0;
}

// A contact of a .ZLO with all that its record holds.
struct ZloContactBytes {
    double days = april_26 + day_part(21, 5);
    std::string call = "JA1ZZA";
    std::string number_sent = "11M";
    std::string number_received = "104M";
    unsigned report_sent = 599;
    unsigned report_received = 589;
    unsigned mode = 0;
    unsigned band = 2;
    std::string multiplier_1 = {};
    std::string multiplier_2 = {};
    bool multiplier_1_is_new = false;
    bool multiplier_2_is_new = false;
    unsigned points = 1;
    std::string op = {};
    std::string memo = {};

    // What no field covers is filled, so that a field taken from beside its place shows.
    std::string bytes() const {
        RecordBytes record(256, '\x7E');
        record.put_double(0, days);
        record.put_counted(8, call);
        record.put_counted(21, number_sent);
        record.put_counted(52, number_received);
        record.put_number(84, report_sent, 2);
        record.put_number(86, report_received, 2);
        record.put_number(92, mode, 1);
        record.put_number(93, band, 1);
        record.put_counted(95, multiplier_1);
        record.put_counted(126, multiplier_2);
        record.put_number(157, multiplier_1_is_new ? 1 : 0, 1);
        record.put_number(158, multiplier_2_is_new ? 1 : 0, 1);
        record.put_number(159, points, 1);
        record.put_counted(160, op);
        record.put_counted(175, memo);
        return record.bytes();
    }
};

// The heading of a .ZLO, whose contest name is as long as its byte tells.
inline std::string zlo_heading(std::string_view contest_name) {
    return RecordBytes(256, '\x7E').put_counted(175, contest_name).bytes();
}

}  // namespace veldrana
