// Owns the binary logs of RTCL, .LOG: records of one size without a heading, of 203 bytes before
// version 4.30 and of 209 from then on; docs/formats/rtcl.md has the offsets. A log is not read by
// itself: it is unpacked to a text of quoted fields first, which readers/rtcl_to_zlog.h takes on.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "common/person.h"
#include "platform/stage.h"
#include "readers/record_file.h"

namespace veldrana {

enum class RtclForm {
    before_430,
    from_430,
};

std::size_t rtcl_record_size(RtclForm form) noexcept;

// The dialog in which a log of that form is chosen; `folder` is where logs lie.
FileDialog rtcl_dialog(RtclForm form, std::string_view folder);

// What the test of a file has found.
struct RtclCheck {
    enum class Verdict {
        good,
        no_rtcl_log,      // the first byte is no "0"
        no_whole_records  // the length does not fit the form
    };
    Verdict verdict = Verdict::good;
    std::size_t records = 0;  // of a good one

    bool good() const noexcept { return verdict == Verdict::good; }
};

RtclCheck chk_log(const Stage& stage, std::string_view in_name, RtclForm form);

// The box that tells why a file was refused; not for a good one.
MessageBox rtcl_refusal(RtclCheck::Verdict verdict, RtclForm form, std::string_view in_name);

// The text that a log is unpacked to, in the program's folder.
constexpr std::string_view rtcl_tmp_file = "rtcl_tmp.txt";

// The fields of a line of that text, their places from 0.
namespace rtcl_line {
enum Field : std::size_t {
    kind,
    band,
    date,  // yyyy/mm/dd
    time,  // hhmmss
    band_again,
    frequency,          // kHz with a point, eleven characters
    rounded_frequency,  // kHz
    mode,
    second_mode,
    call,
    report_sent,
    exchange_sent,
    text_sent,
    report_received,
    exchange_received,
    text_received,
    points,
    multiplier_1,
    multiplier_2,
    third_text,
    dupe,  // rtcl_dupe_mark or empty
    op,
    comment,
    count
};
}  // namespace rtcl_line

// As a line has them, by their places.
using RtclFields = std::array<std::string_view, rtcl_line::count>;

constexpr std::string_view rtcl_dupe_mark = "-DUPE- ";

// Frequencies come as a counter that runs at a pace of its own in each band. Keeps the base of the
// record before, which a record beside the table stays at.
class RtclFrequency {
  public:
    // The frequency in Hz, to the nearest, of a counter in a band by its text. 0 stands for the
    // lower edge of that band. 0 Hz where no record has had a base yet.
    std::uint64_t hertz(std::uint32_t counter, std::string_view band) noexcept;

    // The last frequency in kHz, rounded up from a half; from the counter itself, not from whole
    // Hz.
    std::uint64_t rounded_kilohertz() const noexcept {
        return (base_ * divider_ + way_ + 500 * divider_) / (1000 * divider_);
    }

  private:
    std::uint64_t base_ = 0;
    // What the counter adds to the base, in parts of a Hz.
    std::uint64_t way_ = 0;
    std::uint64_t divider_ = 1;
};

// A number read from a byte in the way of the logger's tools: its decimal digits taken for
// hexadecimal ones, so that 10 is 16.
unsigned rtcl_number(std::uint8_t byte) noexcept;

// A text of characters right-aligned in a width, with a sign in front of its last ones; a longer
// text keeps all of them. "7012345" in 10 with a point in front of 3 is "   7012.345".
std::string divided_text(std::string_view text, std::size_t width, std::size_t behind, char sign);

// Writes rtcl_tmp.txt into the folder strPath, a line for each record that is no QTC. Texts are
// trimmed.
class RtclUnpacker {
  public:
    // Opens both files.
    RtclUnpacker(const Stage& stage, std::string_view in_name, RtclForm form,
                 std::string_view strPath);
    RtclUnpacker(const RtclUnpacker&) = delete;
    RtclUnpacker& operator=(const RtclUnpacker&) = delete;
    ~RtclUnpacker();

    // Looks through the log. True if all of it can be unpacked and every field is read from
    // rtcl_tmp.txt as it was written, so that nobody needs to read it who sees the fields.
    bool fields_read_back() const;

    // Writes the line of the next record; false behind the last one. Failure 6 for a time that no
    // calendar holds.
    bool next();

    // The fields of that line; valid until the next call of next.
    const RtclFields& fields() const noexcept;

    // Writes what is left and closes the text; its path.
    const std::string& finish();
    const std::string& path() const noexcept;

  private:
    struct Work;

    Disk& disk_;
    std::string in_name_;
    std::unique_ptr<Work> work_;
};

// All of that in one.
std::string unpack_rtcl_log(const Stage& stage, std::string_view in_name, RtclForm form,
                            std::string_view strPath);

}  // namespace veldrana
