#include "readers/rtcl_log.h"

#include <algorithm>
#include <array>

#include "common/procedure.h"
#include "common/quoted_fields.h"
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
    std::string_view band;
    std::uint64_t base;    // Hz
    std::uint64_t factor;  // of the counter's way from its threshold
};

constexpr std::array<BandRow, 17> band_rows{{{"1.8", 1800000, 1},
                                             {"1.9", 1900000, 1},
                                             {"3.5", 3500000, 1},
                                             {"7", 7000000, 1},
                                             {"10", 10000000, 1},
                                             {"14", 14000000, 1},
                                             {"18", 18000000, 1},
                                             {"21", 21000000, 1},
                                             {"24", 24000000, 1},
                                             {"28", 28000000, 1},
                                             {"29", 29000000, 1},
                                             {"50", 50000000, 1},
                                             {"144", 144000000, 1},
                                             {"430", 430000000, 1},
                                             {"1200", 1200000000, 100},
                                             {"2400", 2400000000, 1000},
                                             {"5600", 5600000000, 10000}}};

const BandRow* row_of_band(std::string_view band) noexcept {
    const auto* const row =
        std::find_if(band_rows.begin(), band_rows.end(),
                     [band](const BandRow& candidate) { return candidate.band == band; });
    return row == band_rows.end() ? nullptr : row;
}

// A counter one short of a threshold belongs to the row in front of it, and to the first row where
// there is none. The last row has no end.
const CounterRow* row_of_counter(std::uint64_t counter) noexcept {
    for (std::size_t i = 0; i < counter_rows.size(); ++i) {
        const bool is_last = i + 1 == counter_rows.size();
        if (counter + 1 >= counter_rows[i].threshold &&
            (is_last || counter + 1 <= counter_rows[i + 1].threshold)) {
            return &counter_rows[i];
        }
    }
    return nullptr;
}

// The texts of one record that are not all ASCII.
using OwnTexts = std::array<std::string, rtcl_line::count>;

// Writes the line of a record; false for one that has none.
class Unpacker {
  public:
    explicit Unpacker(const Layout& layout) : layout_(layout) {}

    bool unpack(std::string_view record, QuotedLine& line);

  private:
    const Layout& layout_;
    OwnTexts own_;
    RtclFrequency frequency_;
};

bool Unpacker::unpack(std::string_view record, QuotedLine& line) {
    using namespace rtcl_line;
    if (record.substr(layout_.kind.offset).starts_with("QTC")) {
        return false;
    }
    const auto text = [this, record](Place place, Field field) {
        // Trimmed as bytes, where a blank is nothing else: most places hold few characters.
        return page_text(trim_left(trim_right(record.substr(place.offset, place.size))),
                         own_[field]);
    };
    const std::string_view band_text = text(layout_.band, band);
    const MomentDigits moment(time_of_days(double_at(record, layout_.days)));
    const std::string date_text = moment.date();
    const std::uint64_t hertz =
        frequency_.hertz(double_word_at(record, layout_.counter), band_text);
    const std::string frequency_text = divided_text(std::to_string(hertz), 10, 3, '.');
    const std::string rounded_text = std::to_string((hertz + 500) / 1000);
    const std::string points_text = std::to_string(rtcl_number(byte_at(record, layout_.points)));
    const bool is_dupe = rtcl_number(byte_at(record, layout_.dupe)) > 0;
    line.assign(std::array<std::string_view, rtcl_line::count>{
        text(layout_.kind, kind),
        band_text,
        date_text,
        moment.hhmmss(),
        band_text,
        frequency_text,
        rounded_text,
        text(layout_.mode, mode),
        text(layout_.second_mode, second_mode),
        text(layout_.call, call),
        text(layout_.report_sent, report_sent),
        text(layout_.exchange_sent, exchange_sent),
        text(layout_.text_sent, text_sent),
        text(layout_.report_received, report_received),
        text(layout_.exchange_received, exchange_received),
        text(layout_.text_received, text_received),
        points_text,
        text(layout_.multiplier_1, multiplier_1),
        text(layout_.multiplier_2, multiplier_2),
        text(layout_.third_text, third_text),
        is_dupe ? rtcl_dupe_mark : std::string_view{},
        text(layout_.op, op),
        text(layout_.comment, comment)});
    return true;
}

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
    const std::uint64_t way = (counter - row->threshold) * factor;
    return base_ + (2 * way + row->divider) / (2 * row->divider);
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

std::string unpack_rtcl_log(const Stage& stage, std::string_view in_name, RtclForm form,
                            std::string_view strPath) {
    const Layout& layout = layout_of(form);
    RecordFile file(stage, in_name, layout.record_size);
    std::string path = std::string(strPath).append(rtcl_tmp_file);
    TextOutput output = stage.open_output(path);
    Unpacker unpacker(layout);
    QuotedLine line;
    for (std::string_view record; file.next(record);) {
        if (unpacker.unpack(record, line)) {
            output.write_line(line.text());
        }
    }
    output.close();
    return path;
}

}  // namespace veldrana
