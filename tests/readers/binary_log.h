// Records of binary logs, byte by byte.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/code_page_932.h"
#include "readers/rtcl_log.h"

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

// A record of an RTCL log; texts are filled with blanks, what no field covers with other bytes.
struct RtclContactBytes {
    std::string kind = "00001";
    std::string band = "7";
    std::uint32_t counter = 1521741824 + 64 * 12000;
    std::string mode = "CW";
    std::string second_mode = {};
    unsigned dupe = 0;
    double days = april_26 + day_part(21, 5, 59);
    std::string call = "JA1ZZA";
    std::string report_sent = "599";
    std::string exchange_sent = "11M";
    std::string text_sent = {};
    std::string report_received = "589";
    std::string exchange_received = "104M";
    std::string text_received = {};
    unsigned points = 1;
    std::string multiplier_1 = {};
    std::string multiplier_2 = {};
    std::string third_text = {};
    std::string op = {};
    std::string comment = {};

    std::string bytes(RtclForm form) const {
        const bool is_new = form == RtclForm::from_430;
        RecordBytes record(is_new ? 209 : 203, '\x7E');
        const auto text = [&](std::size_t old_at, std::size_t new_at, std::size_t size,
                              const std::string& value) {
            std::string page = to_code_page(value);
            page.resize(size, ' ');
            record.put(is_new ? new_at : old_at, page);
        };
        text(0, 0, 5, kind);
        text(5, 5, 4, band);
        record.put_number(is_new ? 12 : 9, counter, 4);
        text(14, 17, 5, mode);
        text(19, 22, 5, second_mode);
        record.put_number(is_new ? 27 : 24, dupe, 1);
        record.put_double(is_new ? 29 : 26, days);
        text(34, 37, 13, call);
        text(47, 50, 6, report_sent);
        text(53, 56, 25, exchange_sent);
        text(78, 81, 10, text_sent);
        text(88, 91, 6, report_received);
        text(94, 97, 25, exchange_received);
        text(119, 122, 10, text_received);
        record.put_number(is_new ? 132 : 129, points, 1);
        text(131, 134, is_new ? 10 : 6, multiplier_1);
        text(137, 144, is_new ? 8 : 6, multiplier_2);
        text(143, 152, 6, third_text);
        text(155, 164, 6, op);
        text(165, 174, 20, comment);
        return record.bytes();
    }
};

}  // namespace veldrana
