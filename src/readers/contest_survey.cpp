#include "readers/contest_survey.h"

#include <algorithm>
#include <array>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "masters/received_number.h"
#include "platform/code_page_932.h"

namespace veldrana {
namespace {

// The stages of the survey, by the digit in their names.
enum class WorkFile { numbers, shapes, sorted, distinct };

constexpr std::size_t key_width = 8;
constexpr std::string_view sentinel_shape = "dummy";

std::string path_of(const SurveyRequest& request, WorkFile file) {
    return std::string(request.current_folder)
        .append("syubetu")
        .append(std::to_string(static_cast<int>(file)))
        .append(".csv");
}

// Writes the contacts of a log to the sample.
class SampleWriter {
  public:
    SampleWriter(const Stage& stage, const SurveyRequest& request)
        : output_(stage.open_output(path_of(request, WorkFile::numbers))) {}

    void write(std::string_view report, std::string_view number) {
        output_.write_line(number);
        rows_.emplace_back(left(std::string(report).append("  "), 4)).append(number);
    }

    SampleRows close() {
        output_.close();
        return std::move(rows_);
    }

  private:
    TextOutput output_;
    SampleRows rows_;
};

// --- logs in columns ---

using TakeContact = void (*)(const FixedColumns& line, SampleWriter& sample);

void take_all(const FixedColumns& line, SampleWriter& sample) {
    sample.write(line.column(43, 3), line.trimmed(47, 8));
}

void take_txt(const FixedColumns& line, SampleWriter& sample) {
    sample.write(line.trimmed(38, 3), line.trimmed(41, 8));
}

SampleRows read_columns(const Stage& stage, std::string_view procedure,
                        const SurveyRequest& request, TakeContact take) {
    return enter_procedure(stage.trace, procedure, ErrorLine::number_only, [&] {
        TextInput input = stage.open_input(request.in_name);
        SampleWriter sample(stage, request);
        read_line(input);  // the heading
        for (std::string_view line; input.next_line(line);) {
            take(FixedColumns(line), sample);
        }
        return sample.close();
    });
}

// --- ADIF ---

// A line without the tag leaves the value as it is.
void take_tag(std::string_view line, std::string_view tag, std::string& value) {
    const std::size_t found = line.find(tag);
    if (found != std::string_view::npos) {
        const std::string_view behind = line.substr(found + tag.size());
        value = mid(behind, 3, static_cast<Count>(val(left(behind, 1))));
    }
}

// --- the survey ---

std::string shape_of(std::string_view number) {
    const std::string bytes = to_code_page(number);
    std::string shape;
    for (const char byte : std::string_view(bytes).substr(0, length(number))) {
        shape += is_digit(byte) ? '1' : '2';
    }
    shape.erase(std::unique(shape.begin(), shape.end()), shape.end());
    return shape;
}

void write_shapes(const Stage& stage, const SurveyRequest& request) {
    TextInput numbers = stage.open_input(path_of(request, WorkFile::numbers));
    TextOutput shapes = stage.open_output(path_of(request, WorkFile::shapes));
    QuotedLine row;
    for (std::string_view number; numbers.next_line(number);) {
        const std::string shape = "(" + shape_of(number) + ")";
        row.assign(
            std::array{std::string_view(fixed_width(shape, key_width)), std::string_view(shape)});
        shapes.write_line(row.text());
    }
    row.assign(std::array{std::string_view("zzzz"), sentinel_shape});
    shapes.write_line(row.text());
    shapes.close();
}

// Of shapes with one key the first.
void write_distinct_shapes(const Stage& stage, const SurveyRequest& request) {
    TextInput sorted = stage.open_input(path_of(request, WorkFile::sorted));
    TextOutput distinct = stage.open_output(path_of(request, WorkFile::distinct));
    RowReader row(sorted, 2);
    std::string key;
    do {
        row.read();
        if (row[0] != key && row[1] != sentinel_shape) {
            distinct.write_line(row[1]);
        }
        key = row[0];
    } while (!row.at_end());
    distinct.close();
}

// Empty for a shape without a label of its own.
std::string_view label_of(std::string_view shape) {
    struct Label {
        std::string_view shape;
        std::string_view text;
    };
    constexpr std::array<Label, 6> labels{{{"1", "数字"},
                                           {"2", "英字"},
                                           {"12", "数字 + 英字"},
                                           {"21", "英字 + 数字"},
                                           {"212", "英 + 数 + 英"},
                                           {"121", "数 + 英 + 数"}}};
    for (const Label& label : labels) {
        if (label.shape == shape) {
            return label.text;
        }
    }
    return {};
}

NumberShapes tell_shapes(const Stage& stage, const SurveyRequest& request) {
    TextInput distinct = stage.open_input(path_of(request, WorkFile::distinct));
    NumberShapes shapes;
    std::string_view label;  // that of the shape before stays for a shape without one
    for (std::string_view line; distinct.next_line(line);) {
        shapes.has_digit = shapes.has_digit || line.find('1') != std::string_view::npos;
        shapes.has_letter = shapes.has_letter || line.find('2') != std::string_view::npos;
        const std::string bare = replace_all(replace_all(line, "(", ""), ")", "");
        const std::string_view shape = trim(bare);
        if (shape.empty()) {
            continue;
        }
        if (const std::string_view own = label_of(shape); !own.empty()) {
            label = own;
        }
        shapes.text.append(shape).append(" : ").append(label).append("  ,  ");
    }
    return shapes;
}

}  // namespace

SampleRows read_all(const Stage& stage, const SurveyRequest& request) {
    return read_columns(stage, "Private Sub read_all()", request, take_all);
}

SampleRows read_txt(const Stage& stage, const SurveyRequest& request) {
    return read_columns(stage, "Private Sub read_txt()", request, take_txt);
}

SampleRows read_cbr(const Stage& stage, const SurveyRequest& request) {
    return read_columns(stage, "Private Sub read_cbr()", request, take_txt);
}

SampleRows read_adif(const Stage& stage, const SurveyRequest& request) {
    return enter_procedure(stage.trace, "Private Sub read_adif()", ErrorLine::number_only, [&] {
        TextInput input = stage.open_input(request.in_name);
        SampleWriter sample(stage, request);
        std::string report;
        std::string number;
        for (std::string_view line; input.next_line(line);) {
            if (line.find("<CALL:") == std::string_view::npos) {
                continue;
            }
            take_tag(line, "<RST_RCVD:", report);
            take_tag(line, "<APP_N1MM_EXCHANGE1:", number);
            sample.write(report, number);
        }
        return sample.close();
    });
}

NumberShapes check_con_nr(const Stage& stage, const SurveyRequest& request) {
    return enter_procedure(stage.trace, "Private Sub check_con_nr()", ErrorLine::number_only, [&] {
        write_shapes(stage, request);
        stage.sort({.start = 2,
                    .length = key_width,
                    .from = path_of(request, WorkFile::shapes),
                    .to = path_of(request, WorkFile::sorted)});
        write_distinct_shapes(stage, request);
        NumberShapes shapes = tell_shapes(stage, request);
        remove_matching(stage.disk, std::string(request.current_folder).append("syubetu?.csv"),
                        request.in_name);
        return shapes;
    });
}

LogSurvey survey_log(const Stage& stage, std::optional<InputKind> f_type,
                     const SurveyRequest& request) {
    using Reader = SampleRows (*)(const Stage&, const SurveyRequest&);
    const auto reader_of = [&f_type]() -> Reader {
        switch (f_type.value_or(InputKind::zlo)) {
            case InputKind::all:
                return read_all;
            case InputKind::txt:
                return read_txt;
            case InputKind::cbr:
                return read_cbr;
            case InputKind::ADIF:
                return read_adif;
            default:
                return nullptr;
        }
    };
    const Reader reader = reader_of();
    if (reader == nullptr) {
        return {};
    }
    LogSurvey survey;
    survey.rows = reader(stage, request);
    survey.shapes = check_con_nr(stage, request);
    return survey;
}

}  // namespace veldrana
