#include "app/conversion_end.h"

#include <array>
#include <string>

#include "app/last_pass.h"
#include "app/work_files.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "platform/text_file.h"
#include "qsl/mark_substitution.h"
#include "rows/row_formats.h"

namespace veldrana {
namespace {

void warn_of_no_lines(MainScreen& screen) {
    screen.lblCFG.show("該当するデータは有りませんでした。", colours::red);
    screen.Check15.fore_colour = colours::red;
    screen.txtOp_name.fore_colour = colours::red;
}

// What is kept of the marks before the letter for "no card" comes in.
void write_org_qsl(Program& program) {
    const Stage stage = program.stage();
    TextInput input = stage.open_input(program.log.names.out_name_conj0);
    TextOutput output = stage.open_output(program.paths.qsl_dir + "org_qsl.csv");
    RowReader row(input, hamlog_row::count);
    QuotedLine line;
    do {
        row.read();
        line.assign(std::array{row[hamlog_row::call_base], row[hamlog_row::portable],
                               row[hamlog_row::date], row[hamlog_row::time],
                               left(row[hamlog_row::qsl], 1)});
        output.write_line(line.text());
    } while (!row.at_end());
    output.close();
}

void settle_marks(Program& program, const RunOptions& options) {
    const Stage stage = program.stage();
    const MarkRequest request{.contest_file = program.log.names.out_name_conj0,
                              .hamlog_file = program.log.names.out_name_hamj0,
                              .in_Dir = program.log.in_Dir,
                              .txtQSL_Q = options.txtQSL_Q,
                              .No_QSL_moji = options.No_QSL_moji};
    if (options.Check2) {
        all_NJ_Chikan_full(stage, request);
    } else if (options.Check3) {
        all_JN_Chikan_full(stage, request);
    }
    write_org_qsl(program);
    count_No_QSL(stage, request);
    if (options.No_QSL_moji != "N") {
        No_QSL_moji_ReWrite(stage, request);
    }
    // Finds nothing more where the letter has changed; it runs in any case.
    No_QSL_moji_ReWrite(stage, request);
}

// Rows to result files. Returns the count of names in the contest file.
std::size_t write_result_files(Program& program, const RunOptions& options) {
    const OutputNames& names = program.log.names;
    const Stage stage = program.stage();
    program.trace.write("Private Sub cmdStart_1() Ｖ５用に変換  out_name_hamj_new");
    write_results(stage, {.rows_file = names.out_name_hamj0,
                          .intermediate_file = names.out_name_hamj,
                          .result_file = names.out_name_hamj_new,
                          .No_QSL_moji = options.No_QSL_moji,
                          .txtQSL_S = options.txtQSL_S});
    program.screen.mnuDisp_ham_new.enabled = true;
    program.trace.write("Private Sub cmdStart_1() Ｖ５用に変換  out_name_conj_new");
    const std::size_t named = write_results(stage, {.rows_file = names.out_name_conj0,
                                                    .intermediate_file = names.out_name_conj,
                                                    .result_file = names.out_name_conj_new,
                                                    .No_QSL_moji = options.No_QSL_moji,
                                                    .txtQSL_S = options.txtQSL_S});
    program.screen.mnuDisp_con_new.enabled = true;
    return named;
}

}  // namespace

void end_conversion(Program& program, const Conversion& conversion) {
    MainScreen& screen = program.screen;
    // The count is zeroed at the end of a conversion, so this shows after each; kept.
    if (screen.Check15.value && program.kept_lines == 0) {
        warn_of_no_lines(screen);
    }
    settle_marks(program, conversion.options);
    // The run may have read a text in the place of the log.
    program.log.in_name = program.log.chosen;
    const std::size_t named = write_result_files(program, conversion.options);

    const SplitCounts& counts = conversion.counts;
    auto& shown = program.counters.values;
    shown[0] = counts.lines;
    shown[1] = counts.multiples;
    shown[2] = counts.singles;
    shown[3] = counts.multiples + counts.singles;
    shown[4] = conversion.no_qsl;
    shown[5] = named;
    const OutputNames& names = program.log.names;
    for (const std::string& file :
         {names.out_name_hamj0, names.out_name_conj0, names.out_name_hamj, names.out_name_conj}) {
        remove_if_there(program, file);
    }

    screen.lblCFG.show("処 理 終 了", colours::blue);
    program.trace.write("Private Sub cmdStart_1() lblCFG.Caption = 処 理 終 了");
    screen.disp_enable_t();
    screen.enable_member_search(true);
}

}  // namespace veldrana
