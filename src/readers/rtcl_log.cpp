#include "readers/rtcl_log.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>

#include "common/byte_blocks.h"
#include "common/copy_short.h"
#include "common/procedure.h"
#include "common/text.h"

namespace veldrana {
namespace {

// Where a text stands in a record.
struct Place {
    std::size_t offset;
    std::size_t size;
};

// One of the two forms of a record.
struct Layout {
    std::size_t record_size;
    Place kind;
    Place band;
    std::size_t counter;
    Place mode;
    Place second_mode;
    std::size_t dupe;
    std::size_t days;
    Place call;
    Place report_sent;
    Place exchange_sent;
    Place text_sent;
    Place report_received;
    Place exchange_received;
    Place text_received;
    std::size_t points;
    Place multiplier_1;
    Place multiplier_2;
    Place third_text;
    Place op;
    Place comment;
};

constexpr Layout layout_before_430{.record_size = 203,
                                   .kind = {0, 5},
                                   .band = {5, 4},
                                   .counter = 9,
                                   .mode = {14, 5},
                                   .second_mode = {19, 5},
                                   .dupe = 24,
                                   .days = 26,
                                   .call = {34, 13},
                                   .report_sent = {47, 6},
                                   .exchange_sent = {53, 25},
                                   .text_sent = {78, 10},
                                   .report_received = {88, 6},
                                   .exchange_received = {94, 25},
                                   .text_received = {119, 10},
                                   .points = 129,
                                   .multiplier_1 = {131, 6},
                                   .multiplier_2 = {137, 6},
                                   .third_text = {143, 6},
                                   .op = {155, 6},
                                   .comment = {165, 20}};

constexpr Layout layout_from_430{.record_size = 209,
                                 .kind = {0, 5},
                                 .band = {5, 4},
                                 .counter = 12,
                                 .mode = {17, 5},
                                 .second_mode = {22, 5},
                                 .dupe = 27,
                                 .days = 29,
                                 .call = {37, 13},
                                 .report_sent = {50, 6},
                                 .exchange_sent = {56, 25},
                                 .text_sent = {81, 10},
                                 .report_received = {91, 6},
                                 .exchange_received = {97, 25},
                                 .text_received = {122, 10},
                                 .points = 132,
                                 .multiplier_1 = {134, 10},
                                 .multiplier_2 = {144, 8},
                                 .third_text = {152, 6},
                                 .op = {164, 6},
                                 .comment = {174, 20}};

// No place is wider, and the start of each has so many bytes of the record behind it.
constexpr std::size_t widest_place = 32;

constexpr std::array<Place, 16> text_places(const Layout& layout) {
    return {layout.kind,
            layout.band,
            layout.mode,
            layout.second_mode,
            layout.call,
            layout.report_sent,
            layout.exchange_sent,
            layout.text_sent,
            layout.report_received,
            layout.exchange_received,
            layout.text_received,
            layout.multiplier_1,
            layout.multiplier_2,
            layout.third_text,
            layout.op,
            layout.comment};
}

constexpr bool has_room_behind_places(const Layout& layout) {
    for (const Place place : text_places(layout)) {
        if (place.size > widest_place || place.offset + widest_place > layout.record_size) {
            return false;
        }
    }
    return true;
}
static_assert(has_room_behind_places(layout_before_430));
static_assert(has_room_behind_places(layout_from_430));

const Layout& layout_of(RtclForm form) noexcept {
    return form == RtclForm::before_430 ? layout_before_430 : layout_from_430;
}

struct CounterRow {
    std::uint64_t threshold;
    std::uint64_t base;  // Hz
    std::uint64_t divider;
};

constexpr std::array<CounterRow, 21> counter_rows{
    {{997670912, 1800000, 256},    {1023270912, 1900000, 256},    {1253306368, 3500000, 128},
     {1521741824, 7000000, 64},    {1662177280, 10000000, 32},    {1790177280, 14000000, 32},
     {1898612736, 18000000, 16},   {1946612736, 21000000, 16},    {1994612736, 24000000, 16},
     {2058612736, 28000000, 16},   {2074612736, 29000000, 16},    {2279048192, 50000000, 8},
     {2287048192, 51000000, 8},    {2295048192, 52000000, 8},     {2303048192, 53000000, 8},
     {2311048192, 54000000, 8},    {2703919104, 144000000, 2},    {3114354560, 430000000, 1},
     {3521225472, 1200000000, 25}, {3789660928, 2400000000, 125}, {4108096384, 5600000000, 625}}};

// What goes by the text of the band.
struct BandRow {
    std::uint64_t band;    // band_key of the text
    std::uint64_t base;    // Hz
    std::uint64_t factor;  // of the counter's way from its threshold
};

// The bytes of a text behind a 1 as one number, for those that are short enough to be a band; 0 for
// all others.
constexpr std::uint64_t band_key(std::string_view band) noexcept {
    if (band.size() > 4) {
        return 0;
    }
    std::uint64_t key = 1;
    for (const char byte : band) {
        key = key << 8U | static_cast<unsigned char>(byte);
    }
    return key;
}

constexpr std::array<BandRow, 17> band_rows{{{band_key("1.8"), 1800000, 1},
                                             {band_key("1.9"), 1900000, 1},
                                             {band_key("3.5"), 3500000, 1},
                                             {band_key("7"), 7000000, 1},
                                             {band_key("10"), 10000000, 1},
                                             {band_key("14"), 14000000, 1},
                                             {band_key("18"), 18000000, 1},
                                             {band_key("21"), 21000000, 1},
                                             {band_key("24"), 24000000, 1},
                                             {band_key("28"), 28000000, 1},
                                             {band_key("29"), 29000000, 1},
                                             {band_key("50"), 50000000, 1},
                                             {band_key("144"), 144000000, 1},
                                             {band_key("430"), 430000000, 1},
                                             {band_key("1200"), 1200000000, 100},
                                             {band_key("2400"), 2400000000, 1000},
                                             {band_key("5600"), 5600000000, 10000}}};

const BandRow* row_of_band(std::string_view band) noexcept {
    const auto* const row = std::find_if(
        band_rows.begin(), band_rows.end(),
        [key = band_key(band)](const BandRow& candidate) { return candidate.band == key; });
    return row == band_rows.end() ? nullptr : row;
}

// A counter one short of a threshold belongs to the row in front of it, and to the first row where
// there is none. The last row has no end.
const CounterRow* row_of_counter(std::uint64_t counter) noexcept {
    if (counter + 1 < counter_rows.front().threshold) {
        return nullptr;
    }
    const auto* const next =
        std::find_if(counter_rows.begin() + 1, counter_rows.end(),
                     [counter](const CounterRow& row) { return counter + 1 <= row.threshold; });
    return next - 1;
}

// Both forms begin with the kind.
bool is_qtc(std::string_view record) noexcept {
    return record.starts_with("QTC");
}

using rtcl_line::Field;

// Whether all that the texts of a record are cut from is ASCII, so that none of them needs to be
// looked at. The numbers between them are passed over.
bool has_ascii_texts(std::string_view record, const Layout& layout) noexcept {
    const auto is_ascii_from = [record](Place first, Place last) {
        return is_ascii(record.substr(first.offset, last.offset + last.size - first.offset));
    };
    return is_ascii_from(layout.kind, layout.band) &&
           is_ascii_from(layout.mode, layout.second_mode) &&
           is_ascii_from(layout.call, layout.comment);
}

// Where one of them stands in a field, its line is read as other fields.
bool holds_quote_or_line_end(std::string_view bytes) noexcept {
    return bytes.find('"') != std::string_view::npos || bytes.find('\n') != std::string_view::npos;
}

bool texts_read_back(std::string_view record, const Layout& layout) {
    // Nearly always there is none; one that is there may be a byte of a number.
    if (!holds_quote_or_line_end(record)) {
        return true;
    }
    const auto places = text_places(layout);
    return std::none_of(places.begin(), places.end(), [record](Place place) {
        return holds_quote_or_line_end(record.substr(place.offset, place.size));
    });
}

// Builds the line of a record. Room for all of it is there from the start, and a text is copied
// with what stands behind it in the record and cut afterwards: copying just its bytes costs more
// than they do. Each step takes the place where the line goes on and returns the next one: kept
// here, it would have to be written back for every field.
class RecordLine {
  public:
    char* begin(std::string_view record, const Layout& layout) noexcept {
        record_ = record.data();
        is_ascii_ = has_ascii_texts(record, layout);
        buffer_.front() = '"';
        return buffer_.data() + 1;
    }

    // The next field, the text of a place. It is trimmed as bytes, where a blank is nothing else.
    template <Place place>
    char* add(Field field, char* to) {
        const std::size_t size = size_at<place>();
        const char* const text = record_ + place.offset;
        if (!is_ascii_ || (size > 0 && *text == ' ')) {
            return add(field, page_text(trim_left({text, size}), own_), to);
        }
        std::memcpy(to, text, widest_place);
        return end_field(field, to, size);
    }

    // A text that is not longer than a place may be.
    char* add(Field field, std::string_view text, char* to) noexcept {
        copy_short(text, to);
        return end_field(field, to, text.size());
    }

    char* add(Field field, std::uint64_t number, char* to) noexcept {
        const char* const end = std::to_chars(to, buffer_.data() + buffer_.size(), number).ptr;
        return end_field(field, to, static_cast<std::size_t>(end - to));
    }

    void end(const char* to) noexcept {
        // Without what stands behind the last quote.
        size_ = static_cast<std::size_t>(to - buffer_.data()) - 2;
    }

    template <Place place>
    std::string_view trimmed() const noexcept {
        return trim_left({record_ + place.offset, size_at<place>()});
    }

    const RtclFields& fields() const noexcept { return fields_; }

    void write_to(TextOutput& output) const {
        const std::string_view line(buffer_.data(), size_);
        if (is_ascii_) {
            output.write_bytes(line);
        } else {
            output.write_line(line);
        }
    }

  private:
    // Without the blanks at its end. Looked for from the start of the record, so that eight bytes
    // can be tested at once in a narrow place too.
    template <Place place>
    std::size_t size_at() const noexcept {
        const std::size_t end = size_without_blanks({record_, place.offset + place.size});
        return end > place.offset ? end - place.offset : 0;
    }

    char* end_field(Field field, char* to, std::size_t size) noexcept {
        fields_[field] = {to, size};
        to += size;
        *to++ = '"';
        *to++ = ',';
        *to++ = '"';
        return to;
    }

    const char* record_ = nullptr;
    bool is_ascii_ = false;
    std::string own_;  // a text that is not all ASCII
    // A byte of a record is at most four of the text; quotes, date and numbers take far less.
    std::array<char, 1280> buffer_;
    std::size_t size_ = 0;
    RtclFields fields_;  // as they stand in the line
};

// A frequency in kHz with a point: "       .  0" to "5600000.000", and longer.
class FrequencyText {
  public:
    explicit FrequencyText(std::uint64_t hertz) noexcept {
        std::array<char, 20> digits;
        const char* const end =
            std::to_chars(digits.data(), digits.data() + digits.size(), hertz).ptr;
        const auto count = static_cast<std::size_t>(end - digits.data());
        // On the right of ten places, or of as many as it takes; then those of the kHz move to make
        // room for the point.
        const std::size_t places = std::max<std::size_t>(count, 10);
        text_.fill(' ');
        copy_short({digits.data(), count}, text_.data() + 1 + places - count);
        std::copy_n(text_.begin() + 1, places - 3, text_.begin());
        text_[places - 3] = '.';
        size_ = places + 1;
    }

    std::string_view text() const noexcept { return {text_.data(), size_}; }

  private:
    std::array<char, 24> text_;
    std::size_t size_;
};

// The date and time of the records. The date is kept, since most records are of the day of the one
// before.
class RecordTime {
  public:
    // Failure 6 for a time that no calendar holds.
    void take(double days) {
        const std::int64_t seconds = seconds_of_days(days);
        if (seconds < midnight_ || seconds - midnight_ >= seconds_in_day) {
            const LocalTime time = calendar_time(seconds);
            date_ = MomentDigits(time).date();
            midnight_ = seconds_of({.year = time.year, .month = time.month, .day = time.day});
        }
        const auto second = static_cast<int>(seconds - midnight_);
        clock_ = MomentDigits(
            {.hour = second / 3600, .minute = second / 60 % 60, .second = second % 60});
    }

    std::string_view date() const noexcept { return date_; }  // yyyy/mm/dd
    std::string_view hhmmss() const noexcept { return clock_.hhmmss(); }

  private:
    std::string date_;
    std::int64_t midnight_ = std::numeric_limits<std::int64_t>::max();  // in front of date_
    MomentDigits clock_{LocalTime{}};
};

}  // namespace

std::size_t rtcl_record_size(RtclForm form) noexcept {
    return layout_of(form).record_size;
}

FileDialog rtcl_dialog(RtclForm form, std::string_view folder) {
    return {.title = std::string("　").append(folder).append(
                form == RtclForm::before_430
                    ? "　のＲＴＣＬ ｖｅｒ　４＊．ｌｏｇ ファイルを  開く ...."
                    : "　のＲＴＣＬ ｖｅｒ　４３０以降　＊．ｌｏｇ ファイルを  開く ...."),
            .filter = "RTCL テキストファイル( *.log )|*.log|",
            .folder = std::string(folder)};
}

RtclCheck chk_log(const Stage& stage, std::string_view in_name, RtclForm form) {
    return enter_procedure(stage.trace, "Private Sub chk_log()", [&] {
        stage.trace.write_open_for_input(in_name);
        char first = '\0';
        const bool has_first = stage.disk.open_for_reading(in_name)->read(&first, 1) == 1;
        if (!has_first || first != '0') {
            return RtclCheck{RtclCheck::Verdict::no_rtcl_log};
        }
        const std::uint64_t size = stage.disk.size(in_name);
        const std::size_t record_size = rtcl_record_size(form);
        if (size % record_size != 0) {
            return RtclCheck{RtclCheck::Verdict::no_whole_records};
        }
        return RtclCheck{RtclCheck::Verdict::good, static_cast<std::size_t>(size / record_size)};
    });
}

MessageBox rtcl_refusal(RtclCheck::Verdict verdict, RtclForm form, std::string_view in_name) {
    std::string text(in_name);
    if (verdict == RtclCheck::Verdict::no_rtcl_log) {
        text += "　は RTCL ver 4.0 のｌｏｇ ファイルではありません";
    } else if (form == RtclForm::before_430) {
        text += "　は RTCL ver 4.30 より前のｌｏｇ ファイルではありません";
    } else {
        text += "　は RTCL ver 4.30 以降のｌｏｇ ファイルではありません";
    }
    return {.text = std::move(text)};
}

std::uint64_t RtclFrequency::hertz(std::uint32_t counter, std::string_view band) noexcept {
    const BandRow* const band_row = row_of_band(band);
    way_ = 0;
    divider_ = 1;
    if (counter == 0) {
        base_ = band_row != nullptr ? band_row->base : base_;
        return base_;
    }
    const CounterRow* const row = row_of_counter(counter);
    if (row == nullptr) {
        return base_;  // below every threshold there is no way to go
    }
    base_ = row->base;
    if (counter <= row->threshold) {
        return base_;
    }
    const std::uint64_t factor = band_row != nullptr ? band_row->factor : 1;
    way_ = (counter - row->threshold) * factor;
    divider_ = row->divider;
    return base_ + (2 * way_ + divider_) / (2 * divider_);
}

unsigned rtcl_number(std::uint8_t byte) noexcept {
    return byte % 10U + byte / 10U % 10U * 16U + byte / 100U * 256U;
}

std::string divided_text(std::string_view text, std::size_t width, std::size_t behind, char sign) {
    const std::size_t size = length(text);
    std::string divided(width > size ? width - size : 0, ' ');
    divided += text;
    const std::string_view tail = right(divided, static_cast<Count>(behind));
    divided.insert(divided.size() - tail.size(), 1, sign);
    return divided;
}

struct RtclUnpacker::Work {
    Work(const Stage& stage, std::string_view in_name, RtclForm log_form, std::string tmp_path)
        : form(log_form),
          log(stage, in_name, rtcl_record_size(form)),
          path(std::move(tmp_path)),
          output(stage.open_output(path)) {}

    // Writes the line of a record; false for one that has none.
    template <const Layout& layout>
    bool unpack(std::string_view record);

    RtclForm form;
    RecordFile log;
    std::string path;
    TextOutput output;
    RecordTime moment;
    RtclFrequency counted;
    RecordLine line;
};

template <const Layout& layout>
bool RtclUnpacker::Work::unpack(std::string_view record) {
    using namespace rtcl_line;
    if (is_qtc(record)) {
        return false;
    }
    moment.take(double_at(record, layout.days));
    char* to = line.begin(record, layout);
    const FrequencyText khz(
        counted.hertz(double_word_at(record, layout.counter), line.trimmed<layout.band>()));
    const bool is_dupe = rtcl_number(byte_at(record, layout.dupe)) > 0;
    to = line.add<layout.kind>(kind, to);
    to = line.add<layout.band>(band, to);
    to = line.add(date, moment.date(), to);
    to = line.add(time, moment.hhmmss(), to);
    to = line.add<layout.band>(band_again, to);
    to = line.add(frequency, khz.text(), to);
    to = line.add(rounded_frequency, counted.rounded_kilohertz(), to);
    to = line.add<layout.mode>(mode, to);
    to = line.add<layout.second_mode>(second_mode, to);
    to = line.add<layout.call>(call, to);
    to = line.add<layout.report_sent>(report_sent, to);
    to = line.add<layout.exchange_sent>(exchange_sent, to);
    to = line.add<layout.text_sent>(text_sent, to);
    to = line.add<layout.report_received>(report_received, to);
    to = line.add<layout.exchange_received>(exchange_received, to);
    to = line.add<layout.text_received>(text_received, to);
    to = line.add(points, rtcl_number(byte_at(record, layout.points)), to);
    to = line.add<layout.multiplier_1>(multiplier_1, to);
    to = line.add<layout.multiplier_2>(multiplier_2, to);
    to = line.add<layout.third_text>(third_text, to);
    to = line.add(dupe, is_dupe ? rtcl_dupe_mark : std::string_view{}, to);
    to = line.add<layout.op>(op, to);
    to = line.add<layout.comment>(comment, to);
    line.end(to);
    line.write_to(output);
    return true;
}

RtclUnpacker::RtclUnpacker(const Stage& stage, std::string_view in_name, RtclForm form,
                           std::string_view strPath)
    : disk_(stage.disk),
      in_name_(in_name),
      work_(std::make_unique<Work>(stage, in_name, form,
                                   std::string(strPath).append(rtcl_tmp_file))) {}

RtclUnpacker::~RtclUnpacker() = default;

bool RtclUnpacker::next() {
    for (std::string_view record; work_->log.next(record);) {
        if (work_->form == RtclForm::before_430 ? work_->unpack<layout_before_430>(record)
                                                : work_->unpack<layout_from_430>(record)) {
            return true;
        }
    }
    return false;
}

const RtclFields& RtclUnpacker::fields() const noexcept {
    return work_->line.fields();
}

const std::string& RtclUnpacker::finish() {
    for (bool more = true; more;) {
        more = next();
    }
    work_->output.close();
    return path();
}

const std::string& RtclUnpacker::path() const noexcept {
    return work_->path;
}

bool RtclUnpacker::fields_read_back() const {
    const Layout& layout = layout_of(work_->form);
    RecordFile log(disk_, in_name_, layout.record_size);
    for (std::string_view record; log.next(record);) {
        if (!is_qtc(record) && !(is_calendar_time(double_at(record, layout.days)) &&
                                 texts_read_back(record, layout))) {
            return false;
        }
    }
    return true;
}

std::string unpack_rtcl_log(const Stage& stage, std::string_view in_name, RtclForm form,
                            std::string_view strPath) {
    return RtclUnpacker(stage, in_name, form, strPath).finish();
}

}  // namespace veldrana
