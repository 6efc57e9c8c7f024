#include "readers/adif.h"

#include <algorithm>
#include <string>

#include "common/procedure.h"
#include "common/text.h"
#include "readers/adif_record.h"
#include "readers/contact_writer.h"
#include "readers/log_line.h"

namespace veldrana {
namespace {

constexpr std::string_view call_tag = "<CALL:";
constexpr std::string_view end_of_heading = "<EOH>";
constexpr std::string_view end_of_record = "<EOR>";
constexpr std::size_t most_heading_lines = 20;
constexpr std::size_t most_record_lines = 5;

bool is_either_case(char capital, char byte) noexcept {
    return byte == capital || (byte >= 'a' && byte <= 'z' && byte - 'a' + 'A' == capital);
}

// Whether a line holds a mark, which begins with "<", in either case. Looks from place to place of
// that sign.
bool holds(std::string_view line, std::string_view mark) noexcept {
    for (std::size_t at = line.find(mark.front()); at != std::string_view::npos;
         at = line.find(mark.front(), at + 1)) {
        if (line.size() - at < mark.size()) {
            return false;
        }
        if (std::equal(mark.begin(), mark.end(), line.begin() + static_cast<Count>(at),
                       is_either_case)) {
            return true;
        }
    }
    return false;
}

// Puts records together from lines, a record at a time.
class RecordSource {
  public:
    explicit RecordSource(TextInput& input) : input_(input) {}

    // The text of the next record, its lines joined; false at the end of the log. Valid until the
    // next call.
    bool next(std::string_view& text, const Stage& stage);

  private:
    TextInput& input_;
    std::string joined_;
};

bool RecordSource::next(std::string_view& text, const Stage& stage) {
    std::string_view line;
    if (!input_.next_line(line)) {
        return false;
    }
    stage.ProgressBar1.step();
    if (holds(line, end_of_record)) {
        text = line;  // the usual record stands in one line
        return true;
    }
    joined_ = line;
    for (std::size_t lines = 1; lines < most_record_lines && input_.next_line(line); ++lines) {
        stage.ProgressBar1.step();
        joined_ += line;
        if (holds(line, end_of_record)) {
            break;
        }
    }
    text = joined_;
    return true;
}

void skip_heading(TextInput& input, const Stage& stage) {
    std::string_view line;
    for (std::size_t lines = 0; lines < most_heading_lines && input.next_line(line); ++lines) {
        stage.ProgressBar1.step();
        if (holds(line, end_of_heading)) {
            return;
        }
    }
}

}  // namespace

bool is_adif(const Stage& stage, std::string_view in_name) {
    TextInput input = stage.open_input(in_name);
    for (std::string_view line; input.next_line(line);) {
        if (holds(line, call_tag)) {
            return true;
        }
    }
    return false;
}

std::size_t count_in_name_ADIF(const Stage& stage, std::string_view in_name) {
    return enter_procedure(stage.trace, "Private Sub count_in_name_ADIF()", [&] {
        TextInput input = stage.open_input(in_name);
        std::size_t count = 0;
        for (std::string_view line; input.next_line(line);) {
            if (holds(line, call_tag)) {
                ++count;
            }
        }
        return count;
    });
}

std::size_t henkan_ADIF_2_t(const Stage& stage, const LogRequest& request) {
    return enter_procedure(stage.trace, "Private Sub henkan_ADIF_2_t()", [&] {
        stage.tell("入力ファイル読み込み中", colours::green);
        stage.count_file_rec(request.in_name);
        TextInput input = stage.open_input(request.in_name);
        ContactWriter writer(stage, request);
        skip_heading(input, stage);
        RecordSource records(input);
        AdifRecord record;
        for (std::string_view text; records.next(text, stage);) {
            if (trim(text).empty()) {
                continue;
            }
            read_adif_record(text, request.options, record);
            writer.write({.year = record.year,
                          .month = mid(record.date, 5, 2),
                          .day = mid(record.date, 7, 2),
                          .time = record.time,
                          .call = record.call,
                          .report_sent = record.report_sent,
                          .report_received = record.report_received,
                          .band = record.band,
                          .mode = record.mode,
                          .frequency = record.frequency,
                          .number_received = record.code});
        }
        return writer.close();
    });
}

}  // namespace veldrana
