// Owns the binary log of zLog, .ZLO: records of 256 bytes, the first one a heading, then a contact
// in each; docs/formats/zlo.md has the offsets. A text is a byte with its length and a space behind
// it; a length past the space means the whole space.
//
// Nothing is checked: any file is records, and the bytes behind the last whole one are passed over.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/stage.h"
#include "readers/log_request.h"
#include "readers/record_file.h"

namespace veldrana {

constexpr std::size_t zlo_record_size = 256;

// What the heading tells, and the count of records.
struct ZloHeader {
    std::size_t records = 0;        // the heading included
    std::size_t name_length = 0;    // as the byte tells it; 0: the log names no contest
    std::string contest_name = {};  // or the path of the contest's settings file; trimmed

    // -1 for a file without a whole record.
    std::ptrdiff_t contacts() const noexcept { return static_cast<std::ptrdiff_t>(records) - 1; }
};

// A file without a whole record names no contest.
ZloHeader zlo_header(const Stage& stage, std::string_view in_name);

// One contact of a log. Texts are views of the record or of texts of its own.
class ZloRecord {
  public:
    // Takes a record of zlo_record_size bytes, which stays as long as its texts are asked for. Mode
    // and band of a number beside the tables stay as they were in the record before.
    void take(std::string_view record) noexcept;

    // When the contact was; failure 6 for a time that no calendar holds.
    LocalTime time() const { return time_of_days(double_at(record_, 0)); }
    std::string_view call() { return text(8, 12, call_); }
    std::string_view number_sent() { return text(21, 9, number_sent_); }
    std::string_view number_received() { return text(52, 9, number_received_); }
    unsigned report_sent() const noexcept { return word_at(record_, 84); }
    unsigned report_received() const noexcept { return word_at(record_, 86); }
    std::string_view mode() const noexcept { return mode_; }
    std::string_view band() const noexcept { return band_; }
    std::string_view multiplier_1() { return text(95, 30, multiplier_1_); }
    std::string_view multiplier_2() { return text(126, 30, multiplier_2_); }
    bool multiplier_1_is_new() const noexcept { return byte_at(record_, 157) == 1; }
    bool multiplier_2_is_new() const noexcept { return byte_at(record_, 158) == 1; }
    unsigned points() const noexcept { return byte_at(record_, 159); }
    std::string_view op() { return text(160, 14, op_); }
    std::string_view memo() { return text(175, 67, memo_); }

  private:
    // A length byte and the space behind it.
    std::string_view text(std::size_t length_at, std::size_t space, std::string& own);

    std::string_view record_;
    std::string_view mode_;
    std::string_view band_;
    std::string call_;
    std::string number_sent_;
    std::string number_received_;
    std::string multiplier_1_;
    std::string multiplier_2_;
    std::string op_;
    std::string memo_;
};

// Writes zlog_1.txt anew; how many contacts were kept. A contact whose memo gives no frequency has
// its band in the place of it, unless Check01 looked into a "(" and found none.
std::size_t read_zlo(const Stage& stage, const LogRequest& request);

}  // namespace veldrana
