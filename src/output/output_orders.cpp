#include "output/output_orders.h"

#include <array>
#include <string>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "output/keyed_rows.h"
#include "rows/row_builder.h"
#include "rows/row_formats.h"

namespace veldrana {
namespace {

constexpr std::size_t jarl_key_width = 8;
constexpr std::string_view keyed_file = "temp_h.csv";
constexpr std::string_view sorted_file = "temp_hs.csv";

void kill(const Stage& stage, const OutputRequest& request, std::string_view name) {
    stage.trace.write("Kill drive_path & " + std::string(name));
    stage.remove(request.scratch(name));
}

// Writes _h0.csv and, beside it, a list of five columns for the cards.
class HamlogFileWriter {
  public:
    HamlogFileWriter(const Stage& stage, const OutputRequest& request)
        : side_list_(stage.open_output(request.scratch("new_qsl_hamlog.csv"))),
          output_(stage.open_output(request.names.out_name_hamj0)) {}

    // `written` is the row as it stood in its file, empty if it has to be written anew.
    void write(std::span<const std::string_view> row, std::string_view written) {
        line_.assign(std::array{row[hamlog_row::call_base], row[hamlog_row::portable],
                                row[hamlog_row::date], row[hamlog_row::time],
                                left(row[hamlog_row::qsl], 1)});
        side_list_.write_line(line_.text());
        if (written.empty()) {
            line_.assign(row);
            written = line_.text();
        }
        output_.write_line(written);
    }

    void close() {
        side_list_.close();
        output_.close();
    }

  private:
    TextOutput side_list_;
    TextOutput output_;
    QuotedLine line_;
};

// In the order of the log.
void copy_in_log_order(const Stage& stage, const OutputRequest& request) {
    TextInput input = stage.open_input(request.scratch(hamlog_rows_file));
    HamlogFileWriter writer(stage, request);
    RowReader row(input, hamlog_row::count);
    do {
        row.read();
        writer.write(row.columns(), row.written_line());
    } while (!row.at_end());
    writer.close();
}

void NO_SORT(const Stage& stage, const OutputRequest& request, std::string_view procedure) {
    enter_procedure(stage.trace, procedure, [&] {
        copy_in_log_order(stage, request);
        kill(stage, request, hamlog_rows_file);
        kill(stage, request, contest_rows_file);
    });
}

// What a sort by JARL key works on: rows with or without a key of another kind in front.
struct JarlSort {
    std::string rows;
    std::string keyed;
    std::string sorted;
    std::size_t columns;
    bool has_key;
    bool descending;
};

// Writes the rows with their JARL keys and has them sorted.
void sort_by_jarl_key(const Stage& stage, const JarlSort& sort) {
    {
        TextInput input = stage.open_input(sort.rows);
        TextOutput output = stage.open_output(sort.keyed);
        const std::size_t key_columns = sort.has_key ? 1 : 0;
        RowReader row(input, sort.columns + key_columns);
        std::string key;
        KeyedLine line;
        do {
            row.read();
            const auto columns = row.columns().subspan(key_columns);
            const std::string_view written = row.written_line();
            make_jarl_key(key, columns[0]);  // the call base, in both kinds of rows
            line.assign(key, columns, sort.has_key ? behind_key(written) : written);
            output.write_line(line.text());
        } while (!row.at_end());
        output.close();
    }
    stage.sort({.start = 2,
                .length = jarl_key_width,
                .descending = sort.descending,
                .from = sort.keyed,
                .to = sort.sorted});
}

// The contest rows in reversed order beside the log; nothing reads them.
void write_hamlogja_0(const Stage& stage, const OutputRequest& request) {
    TextInput input = stage.open_input(request.scratch(sorted_file));
    TextOutput output = stage.open_output(std::string(request.in_Dir).append("hamlogja_0.csv"));
    RowReader row(input, contest_row::count + 1);
    QuotedLine line;
    do {
        row.read();
        line.assign(row.columns().subspan(1));
        output.write_line(line.text());
    } while (!row.at_end());
    output.close();
}

void jarl_sort_h(const Stage& stage, const OutputRequest& request, std::string_view procedure,
                 bool descending) {
    const auto sort_rows = [&](std::string_view rows_file, std::size_t columns) {
        sort_by_jarl_key(stage, {.rows = request.scratch(rows_file),
                                 .keyed = request.scratch(keyed_file),
                                 .sorted = request.scratch(sorted_file),
                                 .columns = columns,
                                 .has_key = false,
                                 .descending = descending});
    };
    enter_procedure(stage.trace, procedure, [&] {
        // Forward, the first pass leaves nothing behind; it is part of the procedure all the same.
        sort_rows(contest_rows_file, contest_row::count);
        if (descending) {
            write_hamlogja_0(stage, request);
        }
        kill(stage, request, keyed_file);
        kill(stage, request, sorted_file);

        sort_rows(hamlog_rows_file, hamlog_row::count);
        {
            TextInput input = stage.open_input(request.scratch(sorted_file));
            HamlogFileWriter writer(stage, request);
            RowReader row(input, hamlog_row::count + 1);
            do {
                row.read();
                writer.write(row.columns().subspan(1), behind_key(row.written_line()));
            } while (!row.at_end());
            writer.close();
        }
        kill(stage, request, keyed_file);
        kill(stage, request, sorted_file);
        kill(stage, request, contest_rows_file);
        kill(stage, request, hamlog_rows_file);
    });
}

void jarl_sort_contest(const Stage& stage, const OutputRequest& request, std::string_view procedure,
                       bool descending) {
    enter_procedure(stage.trace, procedure, [&] {
        const std::string rows = request.scratch("temp_s.csv");
        sort_by_jarl_key(stage, {.rows = rows,
                                 .keyed = request.scratch("temp_sj.csv"),
                                 .sorted = rows,
                                 .columns = contest_row::count,
                                 .has_key = true,
                                 .descending = descending});
    });
}

}  // namespace

void order_hamlog_file(const Stage& stage, const OutputRequest& request) {
    const RunOptions& options = request.options;
    if (options.Check08 || options.Option05 != 1) {
        NO_SORT(stage, request, "Private Sub NO_SORT()");
    } else if (options.Option09 == 1) {
        jarl_sort_h(stage, request, "Private Sub jarl_sort_a_h()", false);
    } else if (options.Option09 == 2) {
        jarl_sort_h(stage, request, "Private Sub jarl_sort_r_h()", true);
    } else {
        NO_SORT(stage, request, "Private Sub ascii_sort()");
    }
}

void jarl_sort_a(const Stage& stage, const OutputRequest& request) {
    jarl_sort_contest(stage, request, "Private Sub jarl_sort_a()", false);
}

void jarl_sort_r(const Stage& stage, const OutputRequest& request) {
    jarl_sort_contest(stage, request, "Private Sub jarl_sort_r()", true);
}

}  // namespace veldrana
