#include "output/split_merge.h"

#include <algorithm>
#include <array>
#include <string>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "output/keyed_rows.h"
#include "output/output_orders.h"
#include "rows/row_builder.h"
#include "rows/row_formats.h"

namespace veldrana {
namespace {

constexpr std::string_view sentinel_call = "AAAAAA";
constexpr std::string_view sentinel_row =
    "AAAAAA,,566A,,28,CW,,J, , ,001211,0218U,599,599,Taiwan,,,AAAAA,AAAAA";

constexpr std::string_view singles_file = "temp_s.csv";
constexpr std::string_view multiples_file = "temp_d.csv";

// The text of the first column as it stands in the line, with its quotes.
std::string_view group_of(std::string_view line) {
    return line.substr(0, line.find(','));
}

// Copies lines to the group files; a line is known to be single or not when the next one is there.
class GroupSplitter {
  public:
    GroupSplitter(const Stage& stage, const OutputRequest& request)
        : singles_(stage.open_output(request.scratch(singles_file))),
          multiples_(stage.open_output(request.scratch(multiples_file))) {}

    void take(std::string_view line) {
        ++counts_.lines;
        if (!previous_.empty()) {
            const bool same = group_of(line) == group_of(previous_);
            put_previous(same || in_group_);
            in_group_ = same;
        }
        previous_.assign(line);
    }

    SplitCounts close() {
        put_previous(in_group_);
        singles_.write_line(sentinel_row);
        multiples_.write_line(sentinel_row);
        singles_.close();
        multiples_.close();
        return counts_;
    }

  private:
    void put_previous(bool multiple) {
        (multiple ? multiples_ : singles_).write_line(previous_);
        ++(multiple ? counts_.multiples : counts_.singles);
    }

    TextOutput singles_;
    TextOutput multiples_;
    std::string previous_;
    bool in_group_ = false;
    SplitCounts counts_;
};

// Writes the rows of _c0.csv.
class ContestFileWriter {
  public:
    ContestFileWriter(const Stage& stage, const OutputRequest& request)
        : output_(stage.open_output(request.names.out_name_conj0)) {}

    // A keyed row; date and time get the form that they have in the result.
    void write(const RowReader& keyed, std::string_view gl) {
        const auto add = [&](std::size_t first, std::size_t last) {
            keyed.add_columns(first + 1, last + 1, line_);
        };
        write_date(date_, keyed[contest_row::date + 1]);
        write_time(time_, keyed[contest_row::time + 1]);
        qsl_.assign(keyed[contest_row::transfer_mark + 1]).append("  ");
        line_.clear();
        add(contest_row::call_base, contest_row::portable);
        line_.add(date_).add(time_);
        add(contest_row::report_sent, contest_row::report_received);
        add(contest_row::frequency, contest_row::mode);
        add(contest_row::code, contest_row::code);
        line_.add(gl).add(qsl_);
        add(contest_row::name, contest_row::name);
        add(contest_row::qth, contest_row::call_2);
        output_.write_line(line_.text());
    }

    std::string_view date() const noexcept { return date_; }
    std::string_view time() const noexcept { return time_; }
    void close() { output_.close(); }

  private:
    TextOutput output_;
    QuotedLine line_;
    std::string date_;
    std::string time_;
    std::string qsl_;
};

// A keyed row behind its key.
std::span<const std::string_view> behind_key(const RowReader& row) {
    return row.columns().subspan(1);
}

// What G/L of a station worked once becomes.
enum class SingleGl { kept, sharp, blank };

// Reads a group file and writes its rows with their keys.
void write_keyed(const Stage& stage, const OutputRequest& request, std::string_view group_file,
                 std::size_t call_width, SingleGl gl, TextOutput& output) {
    const std::string path = request.scratch(group_file);
    stage.count_file_rec(path);
    TextInput input = stage.open_input(path);
    RowReader row(input, contest_row::count);
    std::string key;
    KeyedLine line;
    std::array<std::string_view, contest_row::count> columns;
    do {
        row.read();
        make_contest_key(key, row.columns(), call_width, request.options);
        if (gl == SingleGl::kept) {
            line.assign(key, row.columns(), row.written_line());
        } else {
            std::copy(row.columns().begin(), row.columns().end(), columns.begin());
            columns[contest_row::gl] = gl == SingleGl::sharp ? "#" : "";
            line.assign(key, columns);
        }
        output.write_line(line.text());
        stage.ProgressBar1.step();
    } while (!row.at_end());
    stage.ProgressBar1.restart(1);
}

void sort_by_contest_key(const Stage& stage, const std::string& from, const std::string& to) {
    stage.sort({.start = 2, .length = contest_key_width, .from = from, .to = to});
}

// The two groups one behind the other; a side list for the cards beside them.
void temp_marge(const Stage& stage, const OutputRequest& request) {
    enter_procedure(stage.trace, "Private Sub temp_marge()", [&] {
        TextOutput side_list = stage.open_output(request.scratch("new_qsl_contest.csv"));
        ContestFileWriter writer(stage, request);
        QuotedLine side_line;
        const auto merge = [&](std::string_view group_file, bool singles) {
            const std::string path = request.scratch(group_file);
            stage.count_file_rec(path);
            TextInput input = stage.open_input(path);
            RowReader keyed(input, contest_row::count + 1);
            do {
                keyed.read();
                const auto row = behind_key(keyed);
                stage.ProgressBar1.step();
                if (row[contest_row::call_base] == sentinel_call) {
                    continue;
                }
                const bool sharp = singles && request.options.Check21;
                writer.write(keyed, sharp ? std::string_view("#") : row[contest_row::gl]);
                if (singles) {
                    side_line.assign(std::array{
                        row[contest_row::call_base], row[contest_row::portable], writer.date(),
                        writer.time(), row[contest_row::transfer_mark], row[contest_row::call_1]});
                } else {
                    side_line.assign(row);
                }
                side_list.write_line(side_line.text());
            } while (!keyed.at_end());
            stage.ProgressBar1.restart(1);
        };
        merge(singles_file, true);
        merge(multiples_file, false);
        writer.close();
        side_list.close();
    });
}

void sort_wakeru_c_1(const Stage& stage, const OutputRequest& request) {
    enter_procedure(
        stage.trace, "Private Sub sort_wakeru_c_1()",
        ErrorLine{"エラー発生 Private Sub sort_wakeru_c() ：　"}, [&] {
            stage.tell("　　sort_wakeru_c 処理中．．．", colours::green);
            const auto sort_group = [&](std::string_view group_file, std::string_view keyed_file,
                                        std::size_t call_width) {
                const std::string keyed_path = request.scratch(keyed_file);
                TextOutput keyed = stage.open_output(keyed_path);
                write_keyed(stage, request, group_file, call_width, SingleGl::kept, keyed);
                keyed.close();
                sort_by_contest_key(stage, keyed_path, request.scratch(group_file));
            };
            sort_group(singles_file, "semp_s.csv", single_call_width);
            sort_group(multiples_file, "semp_d.csv", multiple_call_width);
        });
    temp_marge(stage, request);
}

void sort_wakenai_c_1(const Stage& stage, const OutputRequest& request) {
    enter_procedure(stage.trace, "Private Sub sort_wakenai_c_1()",
                    ErrorLine{"エラー発生  Private Sub sort_wakenai_c()：　"}, [&] {
                        const RunOptions& options = request.options;
                        stage.tell("　　sort_wakenai_c 処理中．．．", colours::green);
                        SingleGl gl = SingleGl::kept;
                        if (options.Check21) {
                            gl = SingleGl::sharp;
                        } else if (options.Check14) {
                            gl = SingleGl::blank;
                        }
                        const std::string keyed_path = request.scratch("semp_s.csv");
                        TextOutput keyed = stage.open_output(keyed_path);
                        write_keyed(stage, request, singles_file, single_call_width, gl, keyed);
                        write_keyed(stage, request, multiples_file, multiple_call_width,
                                    SingleGl::kept, keyed);
                        keyed.close();
                        const std::string sorted_path = request.scratch(singles_file);
                        sort_by_contest_key(stage, keyed_path, sorted_path);
                        if (options.Option05 == 1 && options.Option09 == 1) {
                            jarl_sort_a(stage, request);
                        } else if (options.Option05 == 1 && options.Option09 == 2) {
                            jarl_sort_r(stage, request);
                        }

                        stage.count_file_rec(sorted_path);
                        TextInput input = stage.open_input(sorted_path);
                        RowReader row(input, contest_row::count + 1);
                        ContestFileWriter writer(stage, request);
                        do {
                            row.read();
                            const auto columns = behind_key(row);
                            stage.ProgressBar1.step();
                            if (columns[contest_row::call_base] != sentinel_call) {
                                writer.write(row, columns[contest_row::gl]);
                            }
                        } while (!row.at_end());
                        writer.close();
                        stage.ProgressBar1.restart(1);
                    });
}

}  // namespace

SplitCounts temp_sep(const Stage& stage, const OutputRequest& request) {
    return enter_procedure(stage.trace, "Private Sub temp_sep()",
                           ErrorLine{"エラー発生 Private Sub temp_sep()：　"}, [&] {
                               const std::string sorted = request.scratch(sort_out_file);
                               stage.count_file_rec(sorted);
                               TextInput input = stage.open_input(sorted);
                               GroupSplitter splitter(stage, request);
                               do {
                                   splitter.take(read_line(input));
                                   stage.ProgressBar1.step();
                               } while (!input.at_end());
                               const SplitCounts counts = splitter.close();
                               stage.ProgressBar1.restart(1);
                               if (request.options.Option05 == 0) {
                                   sort_wakeru_c_1(stage, request);
                               } else {
                                   sort_wakenai_c_1(stage, request);
                               }
                               return counts;
                           });
}

}  // namespace veldrana
