#include "readers/zlo_log.h"

#include <array>

#include "common/procedure.h"
#include "common/text.h"
#include "readers/contact_writer.h"
#include "readers/log_line.h"
#include "readers/zlog_text.h"

namespace veldrana {
namespace {

constexpr std::size_t mode_at = 92;
constexpr std::size_t band_at = 93;
constexpr std::size_t contest_name_at = 175;
constexpr std::size_t contest_name_space = 60;

constexpr std::array<std::string_view, 6> modes{"CW", "SSB", "FM", "AM", "RTY", "Other"};
constexpr std::array<std::string_view, 16> bands{"1.9",  "3.5",  "7",    "10", "14",  "18",
                                                 "21",   "24",   "28",   "50", "144", "430",
                                                 "1200", "2400", "5600", "10G"};

// What the memo of a contact gives.
struct MemoTexts {
    std::string_view memo;
    std::string_view frequency;
    std::string own_memo;  // where something was taken out
    std::string own_frequency;
};

// The piece from the first "(" to the first ")", with both; empty if either is missing or they
// stand the other way round.
std::string_view bracketed(std::string_view memo) noexcept {
    const std::size_t open = memo.find('(');
    const std::size_t close = memo.find(')');
    return open == std::string_view::npos || close == std::string_view::npos || close < open
               ? std::string_view{}
               : memo.substr(open, close - open + 1);
}

void take_memo(std::string_view memo, std::string_view band, const RunOptions& options,
               MemoTexts& texts) {
    texts.memo = memo;
    texts.frequency = band;
    // "(0)" stands for a frequency that the logger did not know, and stays in the memo.
    if (!options.Check01 || memo.find('(') == std::string_view::npos ||
        memo.find("(0)") != std::string_view::npos) {
        return;
    }
    const std::string_view piece = bracketed(memo);
    texts.own_frequency = get_freq_all(piece);
    texts.frequency = trim(texts.own_frequency);
    texts.own_memo = replace_all(replace_all(memo, piece, ""), "()", " ");
    texts.memo = texts.own_memo;
}

}  // namespace

ZloHeader zlo_header(const Stage& stage, std::string_view in_name) {
    RecordFile file(stage, in_name, zlo_record_size);
    ZloHeader header{.records = file.count()};
    if (std::string_view record; file.next(record)) {
        std::string own;
        header.name_length = byte_at(record, contest_name_at);
        header.contest_name = trim(counted_text(
            record.substr(contest_name_at + 1, contest_name_space), header.name_length, own));
    }
    return header;
}

void ZloRecord::take(std::string_view record) noexcept {
    record_ = record;
    const std::size_t mode = byte_at(record, mode_at);
    if (mode < modes.size()) {
        mode_ = modes[mode];
    }
    const std::size_t band = byte_at(record, band_at);
    if (band < bands.size()) {
        band_ = bands[band];
    }
}

std::string_view ZloRecord::text(std::size_t length_at, std::size_t space, std::string& own) {
    return counted_text(record_.substr(length_at + 1, space), byte_at(record_, length_at), own);
}

std::size_t read_zlo(const Stage& stage, const LogRequest& request) {
    return enter_procedure(stage.trace, "Private Sub read_zlo()", [&] {
        const RunOptions& options = request.options;
        const bool wants_operator = options.Check15 || request.use.in_use(RemarkItem::op) ||
                                    request.use.in_use(RemarkItem::op_percent);
        stage.tell("入力ファイルを読み込み中", colours::green);
        RecordFile file(stage, request.in_name, zlo_record_size);
        ContactWriter writer(stage, request);
        stage.ProgressBar1.restart(file.count() + 1);
        std::string_view record;
        file.next(record);  // the heading
        ZloRecord contact;
        MemoTexts texts;
        while (file.next(record)) {
            contact.take(record);
            const MomentDigits moment(contact.time());
            const std::string report_sent = std::to_string(contact.report_sent());
            const std::string report_received = std::to_string(contact.report_received());
            take_memo(contact.memo(), contact.band(), options, texts);
            writer.write({.year = moment.year(),
                          .month = moment.month(),
                          .day = moment.day(),
                          .time = moment.hhmm(),
                          .call = contact.call(),
                          .report_sent = report_sent,
                          .report_received = report_received,
                          .band = contact.band(),
                          .mode = contact.mode(),
                          .op = wants_operator ? contact.op() : std::string_view{},
                          .memo = texts.memo,
                          .frequency = texts.frequency,
                          .number_received = contact.number_received()});
            stage.ProgressBar1.step();
        }
        stage.ProgressBar1.value = 0;
        return writer.close();
    });
}

}  // namespace veldrana
