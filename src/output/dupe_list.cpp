#include "output/dupe_list.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "output/output_names.h"
#include "readers/coded_line.h"

namespace veldrana {
namespace {

struct Band {
    std::string_view field;     // four characters, as in the key
    std::string_view tag;       // in the names of its files
    std::string_view shown;     // in its heading
    std::string_view sentinel;  // behind its contacts
};

// In the order of the list.
constexpr std::array<Band, 13> bands{{{"1   ", "19_", "1.9", "1.9 ZZZZZ"},
                                      {"3   ", "35_", "3.5", "3.5 ZZZZZ"},
                                      {"7   ", "7__", "7 ", "7   ZZZZZ"},
                                      {"14  ", "14_", "14 ", "14  ZZZZZ"},
                                      {"21  ", "21_", "21 ", "21  ZZZZZ"},
                                      {"28  ", "28_", "28 ", "28  ZZZZZ"},
                                      {"50  ", "50_", "50 ", "50  ZZZZZ"},
                                      {"144 ", "144", "144 ", "144 ZZZZZ"},
                                      {"430 ", "430", "430 ", "430 ZZZZZ"},
                                      {"1200", "120", "1200 ", "1200ZZZZZ"},
                                      {"2400", "240", "2400 ", "2400ZZZZZ"},
                                      {"5600", "560", "5600 ", "5600ZZZZZ"},
                                      {"10G ", "10G", "10G ", "10G ZZZZZ"}}};

constexpr std::size_t band_field_width = 4;
constexpr std::size_t key_width = 15;
constexpr std::size_t call_field_width = 12;
constexpr int calls_in_a_line = 6;

// The columns of the working files.
enum Column : std::size_t { key, letter, call, column_count };

std::string in_file(const DupeRequest& request, const Band& band) {
    return std::string(request.strPath).append("zg_i").append(band.tag).append(".txt");
}

std::string out_file(const DupeRequest& request, const Band& band) {
    return std::string(request.strPath).append("zg_o").append(band.tag).append(".txt");
}

// Four characters of the frequency: without what stands behind a point, the short forms of three
// bands made whole.
std::string band_field(std::string_view frequency) {
    std::string band(frequency);
    if (band == "120" || band == "240" || band == "560") {
        band += '0';
    }
    band = band.substr(0, band.find('.'));
    return std::string(left(band + "    ", band_field_width));
}

// A text cut or filled to so many characters.
std::string cell(std::string_view text, std::size_t width) {
    return std::string(
        left(std::string(text) + std::string(width, ' '), static_cast<Count>(width)));
}

void wpx_dupe_chk_6(const Stage& stage, const DupeRequest& request, const Band& band) {
    enter_procedure(stage.trace, "Private Sub wpx_dupe_chk_6()", [&] {
        TextInput input = stage.open_input(in_file(request, band));
        TextOutput output = stage.open_output(out_file(request, band));
        RowReader row(input, column_count);
        const bool in_gigahertz = band.field == "10G ";
        row.read();
        std::size_t lines = 1;
        output.write_line("                     ---  Check List  Band: " + std::string(band.shown) +
                          (in_gigahertz ? " Hz  ---" : " MHz  ---"));
        output.write_line("");
        std::string kept_letter;
        std::string text;
        int cells = 1;
        const auto start_group = [&] {
            kept_letter = row[letter];
            text.assign("[")
                .append(kept_letter)
                .append("] ")
                .append(cell(row[call], call_field_width));
            cells = 1;
        };
        start_group();
        while (!row.at_end()) {
            row.read();
            ++lines;
            if (row[letter] != kept_letter) {
                output.write_line(text);
                output.write_line("");
                start_group();
            } else if (cells == calls_in_a_line) {
                output.write_line(text);
                text.assign("    ").append(cell(row[call], call_field_width));
                cells = 1;
            } else {
                text += cell(row[call], call_field_width);
                ++cells;
            }
        }
        // The sentinel was the last line: it has ended the last group and is no contact.
        output.write_line(
            "                            ---  Stations: " + std::to_string(lines - 1) + " ---");
        output.write_line("      ");
        output.write_line("      ");
        output.close();
    });
}

// Whether the first line is the sentinel.
bool wpx_dupe_chk_5(const Stage& stage, const DupeRequest& request, const Band& band) {
    return enter_procedure(stage.trace, "Private Sub wpx_dupe_chk_5()", [&] {
        TextInput input = stage.open_input(in_file(request, band));
        RowReader row(input, column_count);
        row.read();
        return mid(row[key], 5, 5) == "ZZZZZ";
    });
}

// The first section of the list.
void wpx_dupe_chk_out(const Stage& stage, const std::string& section, const std::string& list) {
    enter_procedure(stage.trace, "Private Sub wpx_dupe_chk_out()",
                    [&] { stage.copy_lines(section, list); });
}

}  // namespace

void wpx_dupe_chk(const Stage& stage, const DupeRequest& request) {
    enter_procedure(stage.trace, "Private Sub wpx_dupe_chk()", [&] {
        const std::string unsorted = std::string(request.drive_path).append("zlog_3.txt");
        const std::string sorted = std::string(request.drive_path).append("zlog_4.txt");
        {
            TextInput input = stage.open_input(std::string(request.in_Dir).append(coded_line_file));
            TextOutput output = stage.open_output(unsorted);
            RowReader row(input, coded_line::count);
            QuotedLine line;
            do {
                row.read();
                const std::string_view whole_call = row[coded_line::call];
                const std::string_view last = right(row[coded_line::call_base], 1);
                const std::string text = band_field(row[coded_line::frequency])
                                             .append(last)
                                             .append(cell(whole_call, 10));
                line.assign(std::array{std::string_view(text), last, whole_call});
                output.write_line(line.text());
            } while (!row.at_end());
            output.close();
        }
        stage.sort({.start = 1, .length = key_width, .from = unsorted, .to = sorted});
    });
}

void wpx_dupe_chk_2(const Stage& stage, const DupeRequest& request) {
    enter_procedure(stage.trace, "Private Sub wpx_dupe_chk_2()", [&] {
        TextInput input = stage.open_input(std::string(request.drive_path).append("zlog_4.txt"));
        std::vector<std::unique_ptr<TextOutput>> outputs;
        for (const Band& band : bands) {
            outputs.push_back(std::make_unique<TextOutput>(stage.disk, in_file(request, band)));
            stage.trace.write_open_for_output(in_file(request, band));
        }
        QuotedFields fields;
        for (std::string_view line; input.next_line(line);) {
            fields.split(line);
            std::string_view field = left(fields[key], band_field_width);
            if (field == "29  ") {
                field = "28  ";
            }
            for (std::size_t i = 0; i < bands.size(); ++i) {
                if (bands[i].field == field) {
                    outputs[i]->write_line(line);
                }
            }
        }
        QuotedLine sentinel;
        for (std::size_t i = 0; i < bands.size(); ++i) {
            const std::string_view text = bands[i].sentinel;
            sentinel.assign(std::array{text, text, text});
            outputs[i]->write_line(sentinel.text());
            outputs[i]->close();
        }
    });
}

void wpx_dupe_chk_4(const Stage& stage, const DupeRequest& request) {
    enter_procedure(stage.trace, "Private Sub wpx_dupe_chk_4()", [&] {
        for (const Band& band : bands) {
            if (!wpx_dupe_chk_5(stage, request, band)) {
                wpx_dupe_chk_6(stage, request, band);
            }
        }
    });
}

void wpx_dupe_chk_7(const Stage& stage, const DupeRequest& request) {
    enter_procedure(stage.trace, "Private Sub wpx_dupe_chk_7()", [&] {
        const std::string list = dup_name(request.in_name);
        if (stage.disk.file_exists(list)) {
            stage.remove(list);
        }
        for (const Band& band : bands) {
            const std::string section = out_file(request, band);
            if (!stage.disk.file_exists(section)) {
                continue;
            }
            if (stage.disk.file_exists(list)) {
                stage.copy_lines(section, list, WriteMode::append);
            } else {
                wpx_dupe_chk_out(stage, section, list);
            }
        }
    });
}

}  // namespace veldrana
