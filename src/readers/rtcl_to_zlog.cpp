#include "readers/rtcl_to_zlog.h"

#include <algorithm>
#include <array>
#include <memory>

#include "common/column_line.h"
#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"

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

// The fields of a line of rtcl_tmp.txt.
using Row = std::span<const std::string_view>;

std::string_view points_of(Row row) {
    return row[dupe] == rtcl_dupe_mark ? "0" : row[points];
}

std::string_view multiplier_or_hyphen(std::string_view multiplier) {
    return multiplier.empty() ? "-" : multiplier;
}

void add_memo(Row row, ColumnLine& line) {
    if (!row[op].empty()) {
        line.add("%%", row[op], "%% ");
    }
    line.add(row[dupe]);
    if (!row[rounded_frequency].empty()) {
        line.add("(", row[rounded_frequency], ")");
    }
    if (!row[comment].empty()) {
        line.add(" ", row[comment]);
    }
}

void add_right_aligned(std::string_view text, std::size_t width, ColumnLine& line) {
    const std::string filled = std::string(width, ' ').append(text);
    line.add(right(filled, static_cast<Count>(width)));
}

// hh:mm of hhmmss.
void add_clock(std::string_view hhmmss, ColumnLine& line) {
    constexpr std::size_t hhmm = 4;
    if (ascii_prefix(hhmmss, hhmm) == hhmm) {
        line.add(hhmmss.substr(0, 2), ":", hhmmss.substr(2, 2));
    } else {
        line.add(divided_text(left(hhmmss, hhmm), hhmm, 2, ':'));
    }
}

void write_all_line(Row row, std::string_view mode_text, ColumnLine& line) {
    line.clear().add(row[date], " ");
    add_clock(row[time], line);
    line.add(" ");
    line.add_columns(std::array<FixedText, 10>{{{row[call], 13},
                                                {row[report_sent], 4},
                                                {row[exchange_sent], 8},
                                                {row[report_received], 4},
                                                {row[exchange_received], 7, 1},
                                                {multiplier_or_hyphen(row[multiplier_1]), 5, 1},
                                                {multiplier_or_hyphen(row[multiplier_2]), 5, 1},
                                                {row[band], 5},
                                                {mode_text, 5},
                                                {points_of(row), 4}}});
    add_memo(row, line);
}

void write_txt_line(Row row, std::string_view mode_text, ColumnLine& line) {
    std::string_view month = mid(row[date], 6, 2);
    if (month.starts_with('0')) {
        month.remove_prefix(1);
    }
    line.clear();
    line.add_column(month, 5).add_column(mid(row[date], 9, 2), 3);
    line.add_column(left(row[time], 4), 5).add_column(row[call], 11);
    add_right_aligned(row[report_sent], 3, line);
    line.add_column(row[exchange_sent], 13);
    add_right_aligned(row[report_received], 3, line);
    line.add_column(row[exchange_received], 11);
    add_right_aligned(multiplier_or_hyphen(row[multiplier_1]), 8, line);
    line.add(" ");
    add_right_aligned(row[band], 4, line);
    line.add(" ").add_column(mode_text, 4).add(points_of(row));
    add_memo(row, line);
}

// The same bytes to several files. Two paths may lead to one file, which is written once.
class SameFiles : public ByteSink {
  public:
    SameFiles(const Stage& stage, const std::vector<std::string>& paths) {
        for (auto path = paths.begin(); path != paths.end(); ++path) {
            const bool opened = std::any_of(paths.begin(), path, [&](const std::string& other) {
                return other == *path || stage.disk.same_file(other, *path);
            });
            if (!opened) {
                stage.trace.write_open_for_output(*path);
                files_.push_back(stage.disk.open_for_writing(*path, WriteMode::replace));
            }
        }
    }

    void write(std::string_view bytes) override {
        for (const std::unique_ptr<ByteSink>& file : files_) {
            file->write(bytes);
        }
    }

    void close() override {
        for (const std::unique_ptr<ByteSink>& file : files_) {
            file->close();
        }
    }

  private:
    std::vector<std::unique_ptr<ByteSink>> files_;
};

// A text of zLog while it is written.
class ZlogText {
  public:
    ZlogText(const Stage& stage, std::string_view heading, TextForm form,
             const std::vector<std::string>& paths)
        : form_(form), modes_(form), output_(std::make_unique<SameFiles>(stage, paths)) {
        output_.write_line(heading);
    }

    void write(Row row) {
        const std::string_view mode_text = modes_.take(row[mode]);
        if (form_ == TextForm::all) {
            write_all_line(row, mode_text, line_);
        } else {
            write_txt_line(row, mode_text, line_);
        }
        output_.write_line(line_.text());
    }

    void close() { output_.close(); }

  private:
    TextForm form_;
    ModeOfLine modes_;
    TextOutput output_;
    ColumnLine line_;
};

void convert(const Stage& stage, std::string_view rtcl_tmp, std::string_view heading, TextForm form,
             const std::vector<std::string>& paths) {
    TextInput input = stage.open_input(rtcl_tmp);
    ZlogText text(stage, heading, form, paths);
    RowReader row(input, rtcl_line::count);
    while (!row.at_end()) {
        row.read();
        text.write(row.columns());
    }
    text.close();
}

// Writes the .ALL line by line with rtcl_tmp.txt, which read again would only tell the same; for
// the trace log it counts as read. What the .ALL meets does not keep that text from being finished:
// it comes first.
void convert_while_unpacking(const Stage& stage, RtclUnpacker& unpacker, std::string_view heading,
                             const std::vector<std::string>& paths) {
    try {
        stage.trace.write_open_for_input(unpacker.path());
        ZlogText text(stage, heading, TextForm::all, paths);
        while (unpacker.next()) {
            text.write(unpacker.fields());
        }
        unpacker.finish();
        text.close();
    } catch (const RunTimeError&) {
        unpacker.finish();
        throw;
    }
}

constexpr std::string_view all_procedure = "Private Sub make_rtcl_log_to_zlog_all()";

}  // namespace

void make_rtcl_log_to_zlog_all(const Stage& stage, std::string_view rtcl_tmp,
                               std::string_view heading, const std::vector<std::string>& outputs) {
    enter_procedure(stage.trace, all_procedure,
                    [&] { convert(stage, rtcl_tmp, heading, TextForm::all, outputs); });
}

void unpack_rtcl_log_to_zlog_all(const Stage& stage, const RtclRun& run, std::string_view heading,
                                 const std::vector<std::string>& outputs) {
    RtclUnpacker unpacker(stage, run.in_name, run.form, run.strPath);
    if (!unpacker.fields_read_back()) {
        make_rtcl_log_to_zlog_all(stage, unpacker.finish(), heading, outputs);
        return;
    }
    enter_procedure(stage.trace, all_procedure,
                    [&] { convert_while_unpacking(stage, unpacker, heading, outputs); });
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
