#include "masters/contest_list.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "common/procedure.h"
#include "common/text.h"
#include "masters/ending_boxes.h"

namespace veldrana {
namespace {

constexpr std::size_t field_count = 8;
constexpr std::string_view fault_file = "ERR_contest_name_csv.txt";

// What may be wrong with a line. The box tells it without the blanks in front.
struct Fault {
    std::string_view message;
    bool (*is_in)(std::string_view line);
};

bool has_too_many_fields(std::string_view line) {
    return static_cast<std::size_t>(std::count(line.begin(), line.end(), ',')) >= field_count;
}

constexpr std::string_view indent = "　　";

constexpr std::array<Fault, 3> faults{
    {{"各項目内には半角カンマ [ ，]  は使用しないで下さい。", has_too_many_fields},
     {"各項目内には半角ダブルコーテイション [ \" ] は使用しないで下さい。",
      [](std::string_view line) { return line.find('"') != std::string_view::npos; }},
     {"各項目内には半角アンパーサント [ ＆ ] は使用しないで下さい。",
      [](std::string_view line) { return line.find('&') != std::string_view::npos; }}}};

using FaultsMet = std::array<bool, faults.size()>;

// Writes the faults of all lines to their file, which is made when the first one is met.
FaultsMet write_faults(const Stage& stage, TextInput& input, const std::string& fault_path) {
    FaultsMet met{};
    std::optional<TextOutput> output;
    read_line(input);  // the heading
    for (std::string_view line; input.next_line(line);) {
        for (std::size_t i = 0; i < faults.size(); ++i) {
            if (!faults[i].is_in(line)) {
                continue;
            }
            if (!output) {
                stage.trace.write_open_for_output(fault_path);
                output.emplace(stage.disk, fault_path);
            }
            met[i] = true;
            output->write_line(std::string(indent).append(faults[i].message));
            output->write_line(line);
        }
    }
    if (output) {
        output->close();
    }
    return met;
}

}  // namespace

ContestList::ContestList(const Stage& stage, std::string_view contest_name_csv, Heading heading)
    : input_(stage.open_input(contest_name_csv)), row_(input_, field_count) {
    if (heading == Heading::skipped) {
        read_line(input_);
    }
}

bool ContestList::next(ContestEntry& entry) {
    if (row_.at_end()) {
        return false;
    }
    row_.read();
    entry = {.Cfg_name = std::string(row_[1]),
             .Dat_name = std::string(row_[2]),
             .Con_name = std::string(row_[3]),
             .Code_flag = std::string(row_[4]),
             .Con_no_1 = std::string(row_[5]),
             .Con_no_2 = std::string(row_[6])};
    return true;
}

void Check_contest_name_csv(const Stage& stage, std::string_view contest_name_csv,
                            std::string_view strPath) {
    enter_procedure(stage.trace, "Private Sub Check_contest_name_csv()", [&] {
        TextInput input = stage.open_input(contest_name_csv);
        const FaultsMet met = write_faults(stage, input, std::string(strPath).append(fault_file));
        std::string text;
        for (std::size_t i = 0; i < faults.size(); ++i) {
            if (met[i]) {
                text.append(faults[i].message).append("\n\n");
            }
        }
        if (text.empty()) {
            return;
        }
        text += spaced_lines({"エラーのある行は下記ファイルを確認して下さい。", fault_file,
                              std::string(contest_name_csv) + " を修正してから起動して下さい。"});
        show_and_end(stage.person, " ファイルを修正して下さい。", text);
    });
}

}  // namespace veldrana
