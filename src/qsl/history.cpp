#include "qsl/history.h"

#include <algorithm>
#include <array>
#include <vector>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "common/text.h"
#include "qsl/hamlog_reader.h"

namespace veldrana {
namespace {

constexpr std::string_view sorted_records_file = "bak_2.txt";
constexpr std::string_view pairs_file = "bak_3.txt";
constexpr std::string_view last_line = "ZZZ/ZZZZZZ,E2";

std::string in_folder(std::string_view folder, std::string_view file) {
    return std::string(folder).append(file);
}

// A line of the sorted records: key, call field, code.
struct SortedRecord {
    std::string line;  // without its quotes
    std::string_view key;
    std::string_view call;
    std::string_view code;

    void read(LineSource& source) {
        const std::string_view read = read_line(source);
        line.clear();
        std::remove_copy(read.begin(), read.end(), std::back_inserter(line), '"');
        const std::string_view text = line;
        const std::size_t first = text.find(',');
        const std::size_t second =
            first == std::string_view::npos ? first : text.find(',', first + 1);
        if (second == std::string_view::npos) {
            throw RunTimeError(Failure::subscript);
        }
        key = text.substr(0, first);
        call = text.substr(first + 1, second - first - 1);
        code = text.substr(second + 1);
        code = code.substr(0, code.find(','));
    }
};

void write_pair(TextOutput& output, QuotedLine& line, std::string_view call,
                std::string_view codes) {
    line.assign(std::array{call, codes});
    output.write_line(line.text());
}

}  // namespace

std::string history_path(std::string_view strPath, int Option07) {
    const std::string file = "Temp_Files\\bak_qso.mas" + std::to_string(Option07) + "_p";
    return replace_all(in_folder(strPath, file), "\\\\", "\\");
}

void sum_bak_2(const Stage& stage, std::string_view drive_path) {
    enter_procedure(stage.trace, "Private Sub sum_bak_2()", [&] {
        const std::string sorted = in_folder(drive_path, sorted_records_file);
        stage.lblCFG.caption = "  ソ ー ト 中 ．．．１";
        stage.sort({.start = 1,
                    .length = 16,
                    .from = in_folder(drive_path, selected_records_file),
                    .to = sorted});
        stage.trace.write("bak_2.txt の件数" + std::to_string(stage.count_file_rec(sorted)));
        stage.lblCFG.caption = "  処　理　中 ．．．１";
        TextInput input = stage.open_input(sorted);
        TextOutput output = stage.open_output(in_folder(drive_path, pairs_file));
        QuotedLine line;
        std::array<SortedRecord, 2> records;
        SortedRecord* previous = records.data();
        SortedRecord* current = previous + 1;
        previous->read(input);
        do {
            current->read(input);
            if (current->key != previous->key) {
                write_pair(output, line, previous->call, previous->code);
            }
            std::swap(previous, current);
            stage.ProgressBar1.step();
        } while (!input.at_end());
        write_pair(output, line, previous->call, previous->code);
        output.close();
    });
}

void sum_bak_3(const Stage& stage, std::string_view drive_path, const std::string& history_file) {
    enter_procedure(stage.trace, "Private Sub sum_bak_3()", [&] {
        constexpr std::uint64_t shortest = 10;  // bytes
        stage.lblCFG.caption = "  処　理　中 ．．．．．．２";
        TextInput input = stage.open_input(in_folder(drive_path, pairs_file));
        TextOutput output = stage.open_output(history_file);
        RowReader pair(input, 2);
        QuotedLine line;
        pair.read();
        std::string call(pair[0]);
        std::string codes(pair[1]);
        do {
            pair.read();
            if (pair[0] != call) {
                write_pair(output, line, trim(call), trim(codes));
                codes.clear();
            }
            call = pair[0];
            codes += pair[1];
        } while (!pair.at_end());
        write_pair(output, line, trim(call), trim(codes));
        output.write_line(last_line);
        output.close();
        if (stage.disk.size(history_file) < shortest) {
            stage.trace.write("エラー発生 ：　ファイル不良" + history_file);
            RunTimeError error(Failure::internal);
            error.mark_traced();
            throw error;
        }
    });
}

bool chk_qso_1(const Likeness& likeness, const BandMode& contact, std::string_view codes) {
    // What need not be alike is "0" on both sides.
    const std::string wanted{likeness.same_band ? contact.letter : '0',
                             likeness.same_mode ? contact.digit : '0'};
    if (!likeness.same_band && !likeness.same_mode) {
        return true;  // the whole list is then "00"
    }
    std::string list(codes);
    if (!likeness.same_mode) {
        std::replace_if(
            list.begin(), list.end(), [](char c) { return c >= '0' && c <= '9'; }, '0');
    }
    if (!likeness.same_band) {
        std::replace_if(
            list.begin(), list.end(), [](char c) { return c >= 'A' && c <= 'Z'; }, '0');
    }
    return list.find(wanted) != std::string::npos;
}

void QsoHistory::sum_bak_4_bas(const Stage& stage) {
    stage.trace.write("Private Sub sum_bak_4_bas()");
    codes_.clear();
    TextInput input = stage.open_input(history_file_);
    RowReader station(input, 2);
    while (!station.at_end()) {
        station.read();
        codes_.add(std::string(station[0]), std::string(station[1]));
    }
    codes_.add({}, {});  // the first place that is left over
}

bool QsoHistory::covers(std::string_view call, std::string_view frequency,
                        std::string_view mode) const {
    std::string_view station = trim(call);
    if (std::count(station.begin(), station.end(), '/') >= 2) {
        station = station.substr(0, station.rfind('/'));
    }
    const std::string* const codes = codes_.find(station);
    return codes != nullptr && chk_qso_1(likeness_, band_mode_of(frequency, mode), *codes);
}

}  // namespace veldrana
