#include "readers/rtcl_to_zlog.h"

#include <algorithm>
#include <array>
#include <deque>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "readers/rtcl_log.h"

namespace veldrana {
namespace {

using namespace rtcl_line;

// How a mode of the logger is written. The widest form is that of .TXT; the other is its first
// three characters.
struct ModeName {
    std::string_view rtcl;
    std::string_view zlog;
    bool in_txt_only = false;
};

constexpr std::array<ModeName, 7> mode_names{{{"RTTY", "RTY "},
                                              {"PSK31", "PSK "},
                                              {"USB", "SSB "},
                                              {"LSB", "SSB "},
                                              {"PH", "SSB ", true},
                                              {"CW", "CW  "},
                                              {"FM", "FM  "}}};

enum class TextForm { all, txt };

// Follows the modes of the lines: one without a name keeps that of the line before.
class ModeOfLine {
  public:
    explicit ModeOfLine(TextForm form) : form_(form) {}

    std::string_view take(std::string_view rtcl_mode) noexcept {
        const auto* const name = std::find_if(
            mode_names.begin(), mode_names.end(), [this, rtcl_mode](const ModeName& candidate) {
                return candidate.rtcl == rtcl_mode &&
                       (form_ == TextForm::txt || !candidate.in_txt_only);
            });
        if (name != mode_names.end()) {
            mode_ = name->zlog.substr(0, form_ == TextForm::all ? 3 : 4);
        }
        return mode_;
    }

  private:
    TextForm form_;
    std::string_view mode_;
};

std::string_view points_of(const RowReader& row) {
    return row[dupe] == rtcl_dupe_mark ? "0" : row[points];
}

std::string_view multiplier_or_hyphen(std::string_view multiplier) {
    return multiplier.empty() ? "-" : multiplier;
}

void append_memo(const RowReader& row, std::string& line) {
    if (!row[op].empty()) {
        line.append("%%").append(row[op]).append("%% ");
    }
    line += row[dupe];
    if (!row[rounded_frequency].empty()) {
        line.append("(").append(row[rounded_frequency]).append(")");
    }
    if (!row[comment].empty()) {
        line.append(" ").append(row[comment]);
    }
}

void append_right_aligned(std::string_view text, std::size_t width, std::string& line) {
    const std::string filled = std::string(width, ' ').append(text);
    line += right(filled, static_cast<Count>(width));
}

void write_all_line(const RowReader& row, std::string_view mode_text, std::string& line) {
    const auto put = [&line](std::string_view text, std::size_t width) {
        append_fixed_width(line, text, width);
    };
    line.assign(row[date]).append(" ");
    line.append(divided_text(left(row[time], 4), 4, 2, ':')).append(" ");
    put(row[call], 13);
    put(row[report_sent], 4);
    put(row[exchange_sent], 8);
    put(row[report_received], 4);
    put(row[exchange_received], 7);
    line += ' ';
    put(multiplier_or_hyphen(row[multiplier_1]), 5);
    line += ' ';
    put(multiplier_or_hyphen(row[multiplier_2]), 5);
    line += ' ';
    put(row[band], 5);
    put(mode_text, 5);
    put(points_of(row), 4);
    append_memo(row, line);
}

void write_txt_line(const RowReader& row, std::string_view mode_text, std::string& line) {
    const auto put = [&line](std::string_view text, std::size_t width) {
        append_fixed_width(line, text, width);
    };
    std::string_view month = mid(row[date], 6, 2);
    if (month.starts_with('0')) {
        month.remove_prefix(1);
    }
    line.clear();
    put(month, 5);
    put(mid(row[date], 9, 2), 3);
    put(left(row[time], 4), 5);
    put(row[call], 11);
    append_right_aligned(row[report_sent], 3, line);
    put(row[exchange_sent], 13);
    append_right_aligned(row[report_received], 3, line);
    put(row[exchange_received], 11);
    append_right_aligned(multiplier_or_hyphen(row[multiplier_1]), 8, line);
    line += ' ';
    append_right_aligned(row[band], 4, line);
    line += ' ';
    put(mode_text, 4);
    line += points_of(row);
    append_memo(row, line);
}

// The same lines to several files. Two paths may lead to one file, which is written once.
class Outputs {
  public:
    Outputs(const Stage& stage, const std::vector<std::string>& paths) {
        for (auto path = paths.begin(); path != paths.end(); ++path) {
            const bool opened = std::any_of(paths.begin(), path, [&](const std::string& other) {
                return other == *path || stage.disk.same_file(other, *path);
            });
            if (!opened) {
                stage.trace.write_open_for_output(*path);
                files_.emplace_back(stage.disk, *path);
            }
        }
    }

    void write_line(std::string_view line) {
        for (TextOutput& file : files_) {
            file.write_line(line);
        }
    }

    void close() {
        for (TextOutput& file : files_) {
            file.close();
        }
    }

  private:
    std::deque<TextOutput> files_;
};

void convert(const Stage& stage, std::string_view rtcl_tmp, std::string_view heading, TextForm form,
             const std::vector<std::string>& paths) {
    TextInput input = stage.open_input(rtcl_tmp);
    Outputs output(stage, paths);
    output.write_line(heading);
    RowReader row(input, rtcl_line::count);
    ModeOfLine modes(form);
    std::string line;
    while (!row.at_end()) {
        row.read();
        const std::string_view mode_text = modes.take(row[mode]);
        if (form == TextForm::all) {
            write_all_line(row, mode_text, line);
        } else {
            write_txt_line(row, mode_text, line);
        }
        output.write_line(line);
    }
    output.close();
}

}  // namespace

void make_rtcl_log_to_zlog_all(const Stage& stage, std::string_view rtcl_tmp,
                               std::string_view heading, const std::vector<std::string>& outputs) {
    enter_procedure(stage.trace, "Private Sub make_rtcl_log_to_zlog_all()",
                    [&] { convert(stage, rtcl_tmp, heading, TextForm::all, outputs); });
}

void make_rtcl_log_to_zlog_txt(const Stage& stage, std::string_view rtcl_tmp,
                               std::string_view output) {
    enter_procedure(stage.trace, "Private Sub make_rtcl_log_to_zlog_txt()", [&] {
        convert(stage, rtcl_tmp,
                "mon day time  callsign      sent         rcvd      multi   MHz mode pts memo",
                TextForm::txt, {std::string(output)});
    });
}

}  // namespace veldrana
