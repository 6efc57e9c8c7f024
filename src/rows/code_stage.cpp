#include "rows/code_stage.h"

#include <array>
#include <string>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "readers/coded_line.h"
#include "readers/log_line.h"
#include "rows/call_sign.h"

namespace veldrana {
namespace {

// The last two characters behind a leading "0".
void append_two_digits(std::string& date, std::string_view text) {
    if (length(text) < 2) {
        date += '0';
    }
    date += right(text, 2);
}

// A contact's number as it is passed on.
enum class Number { as_received, trimmed };

// Goes through the contacts; the source, if there is one, gives the code and QTH of a number.
void code_contacts(const Stage& stage, std::string_view in_Dir, const RunOptions& options,
                   CodeSource* source, Number number_form) {
    TextInput input = stage.open_input(std::string(in_Dir).append(log_line_file));
    TextOutput output = stage.open_output(std::string(in_Dir).append(coded_line_file));
    RowReader row(input, log_line::count);
    QuotedLine line;
    std::string date;
    do {  // a log without a contact ends here, in failure 62
        row.read();
        date = right(row[log_line::year], 2);
        append_two_digits(date, row[log_line::month]);
        append_two_digits(date, row[log_line::day]);
        const std::string_view call = row[log_line::call];
        const std::string_view number = row[log_line::number_received];
        const std::string_view frequency = row[log_line::frequency];
        const bool use_frequency = options.Check01 && !frequency.empty();
        const CallParts parts = split_portable(call);
        const CodeAndPlace found = source != nullptr ? source->find(number) : CodeAndPlace{};

        std::array<std::string_view, coded_line::count> fields;
        fields[coded_line::date] = date;
        fields[coded_line::time] = row[log_line::time];
        fields[coded_line::call] = call;
        fields[coded_line::report_sent] = row[log_line::report_sent];
        fields[coded_line::report_received] = row[log_line::report_received];
        fields[coded_line::call_base] = parts.base;
        fields[coded_line::portable] = parts.portable;
        fields[coded_line::frequency] = use_frequency ? frequency : row[log_line::band];
        fields[coded_line::mode] = row[log_line::mode];
        fields[coded_line::code] = found.code;
        fields[coded_line::qth] = found.qth;
        fields[coded_line::number_received] =
            number_form == Number::trimmed ? trim(number) : number;
        fields[coded_line::op] = row[log_line::op];
        fields[coded_line::memo] = row[log_line::memo];
        fields[coded_line::call_as_logged] = call;
        line.assign(fields);
        output.write_line(line.text());
    } while (!row.at_end());
    output.close();
}

}  // namespace

void bak_sep3(const Stage& stage, std::string_view in_Dir, const RunOptions& options) {
    enter_procedure(stage.trace, "Private Sub bak_sep3()",
                    [&] { code_contacts(stage, in_Dir, options, nullptr, Number::trimmed); });
}

}  // namespace veldrana
