#include "qsl/mark_substitution.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "rows/row_formats.h"

namespace veldrana {
namespace {

constexpr std::string_view dx_mark = "$DX";

bool is_no_qsl(std::string_view qsl) {
    return qsl.starts_with('N');
}

bool holds(std::string_view text, std::string_view piece) {
    return text.find(piece) != std::string_view::npos;
}

void write_form_of(std::string& form, const RowReader& row) {
    write_station_form(
        form, trim(row[hamlog_row::call_base]), trim(row[hamlog_row::portable]),
        holds(row[hamlog_row::rmks1], dx_mark) || holds(row[hamlog_row::rmks2], dx_mark));
}

// One of the two rules: which rows note their station, and what a noted station's rows become.
struct Rule {
    std::string_view name;
    std::string_view error_line;
    bool notes_no_qsl;
    std::string mark;
};

std::string scratch(const MarkRequest& request, std::string_view name) {
    return std::string(request.in_Dir).append(name);
}

// Copies _c0.csv with call and portable part trimmed, and notes the stations that the rule looks
// for.
std::unordered_set<std::string> note_stations(const Stage& stage, const MarkRequest& request,
                                              const Rule& rule, const std::string& copy) {
    std::unordered_set<std::string> stations;
    TextInput input = stage.open_input(request.contest_file);
    TextOutput output = stage.open_output(copy);
    TextOutput list = stage.open_output(scratch(request, "contest_n_2.csv"));
    RowReader row(input, hamlog_row::count);
    QuotedLine line;
    std::string form;
    std::array<std::string_view, hamlog_row::count> columns;
    do {
        row.read();
        std::copy(row.columns().begin(), row.columns().end(), columns.begin());
        columns[hamlog_row::call_base] = trim(columns[hamlog_row::call_base]);
        columns[hamlog_row::portable] = trim(columns[hamlog_row::portable]);
        line.assign(columns);
        output.write_line(line.text());
        if (is_no_qsl(row[hamlog_row::qsl]) == rule.notes_no_qsl) {
            write_form_of(form, row);
            line.assign(std::array{std::string_view(form), row[hamlog_row::qsl]});
            list.write_line(line.text());
            stations.insert(form);
        }
    } while (!row.at_end());
    output.close();
    list.close();
    return stations;
}

void rewrite_marks(const Stage& stage, const Rule& rule,
                   const std::unordered_set<std::string>& stations, const std::string& from,
                   std::string_view to) {
    TextInput input = stage.open_input(from);
    TextOutput output = stage.open_output(to);
    RowReader row(input, hamlog_row::count);
    QuotedLine line;
    std::string form;
    std::array<std::string_view, hamlog_row::count> columns;
    do {
        row.read();
        std::copy(row.columns().begin(), row.columns().end(), columns.begin());
        write_form_of(form, row);
        if (stations.contains(form)) {
            columns[hamlog_row::qsl] = rule.mark;
        }
        if (is_no_qsl(columns[hamlog_row::qsl])) {
            columns[hamlog_row::qsl] = "N  ";
        }
        line.assign(columns);
        output.write_line(line.text());
    } while (!row.at_end());
    output.close();
}

void substitute(const Stage& stage, const MarkRequest& request, const Rule& rule) {
    const std::string name(rule.name);
    trap_failures(stage.trace, name, ErrorLine{rule.error_line}, [&] {
        stage.trace.write(name + "_1");
        stage.count_file_rec(request.hamlog_file);
        const std::string contest_copy = scratch(request, "contest_n_1.csv");
        const std::unordered_set<std::string> stations =
            note_stations(stage, request, rule, contest_copy);
        stage.trace.write(name + "_2");
        rewrite_marks(stage, rule, stations, contest_copy, request.contest_file);
        stage.remove(contest_copy);
        stage.trace.write(name + "_3");
        const std::string hamlog_copy = scratch(request, "hamlog_n_1.csv");
        stage.copy_lines(request.hamlog_file, hamlog_copy);
        stage.trace.write(name + "_4");
        rewrite_marks(stage, rule, stations, hamlog_copy, request.hamlog_file);
        stage.remove(hamlog_copy);
        stage.remove(scratch(request, "contest_n_2.csv"));
    });
}

void rewrite_letter(const Stage& stage, std::string_view file, std::string_view letter) {
    const std::string copy = std::string(file) + "_1";
    {
        TextInput input = stage.open_input(file);
        TextOutput output = stage.open_output(copy);
        RowReader row(input, hamlog_row::count);
        QuotedLine line;
        std::string qsl;
        std::array<std::string_view, hamlog_row::count> columns;
        do {
            row.read();
            if (!is_no_qsl(row[hamlog_row::qsl]) && !row.written_line().empty()) {
                output.write_line(row.written_line());
                continue;
            }
            std::copy(row.columns().begin(), row.columns().end(), columns.begin());
            if (is_no_qsl(columns[hamlog_row::qsl])) {
                qsl.assign(letter).append(mid(columns[hamlog_row::qsl], 2, 1)).append(" ");
                columns[hamlog_row::qsl] = qsl;
            }
            line.assign(columns);
            output.write_line(line.text());
        } while (!row.at_end());
        output.close();
    }
    // The new file takes the old one's place, and its own name is free again.
    stage.disk.replace(copy, file);
}

}  // namespace

void write_station_form(std::string& form, std::string_view call, std::string_view portable,
                        bool portable_in_front) {
    if (portable.empty()) {
        form = call;
    } else if (portable_in_front) {
        form.assign(portable).append("/").append(call);
    } else {
        form.assign(call).append("/").append(portable);
    }
}

void all_JN_Chikan_full(const Stage& stage, const MarkRequest& request) {
    substitute(stage, request,
               {.name = "Private Sub all_JN_Chikan_full()",
                .error_line = "エラー発生  Private Sub all_JN_Chikan_full() ：　",
                .notes_no_qsl = true,
                .mark = "N  "});
}

void all_NJ_Chikan_full(const Stage& stage, const MarkRequest& request) {
    substitute(stage, request,
               {.name = "Private Sub all_NJ_Chikan_full()",
                .error_line = "エラー発生  Private Sub all_NJ_Chikan_full() ：　",
                .notes_no_qsl = false,
                .mark = std::string(request.txtQSL_Q) + "  "});
}

std::size_t count_No_QSL(const Stage& stage, const MarkRequest& request) {
    return enter_procedure(stage.trace, "Private Sub count_No_QSL()", [&] {
        stage.tell("No QSL 件数カウント中", colours::green);
        TextInput input = stage.open_input(request.contest_file);
        RowReader row(input, hamlog_row::count);
        std::size_t count = 0;
        do {
            row.read();
            count += is_no_qsl(row[hamlog_row::qsl]) ? 1U : 0U;
        } while (!row.at_end());
        return count;
    });
}

void No_QSL_moji_ReWrite(const Stage& stage, const MarkRequest& request) {
    stage.trace.write("Private Sub No_QSL_moji_ReWrite");
    rewrite_letter(stage, request.hamlog_file, request.No_QSL_moji);
    rewrite_letter(stage, request.contest_file, request.No_QSL_moji);
}

}  // namespace veldrana
