#include "rows/code_stage.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "masters/code_flag.h"
#include "masters/received_number.h"
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

// How a stage comes to code and QTH of a contact.
using FindCode = std::function<CodeAndPlace(std::string_view call, std::string_view number)>;

// The way of a stage through the contacts.
struct Way {
    FindCode find_code;
    Number number_form = Number::as_received;
    std::optional<std::string_view> op = {};  // what stands in the operator's place
};

// The two files of a code stage: opened first, then the stage loads its master, then it goes
// through the contacts.
class ContactCoding {
  public:
    ContactCoding(const Stage& stage, std::string_view in_Dir, const RunOptions& options)
        : input_(stage.open_input(std::string(in_Dir).append(log_line_file))),
          output_(stage.open_output(std::string(in_Dir).append(coded_line_file))),
          options_(options) {}

    void run(const Way& way);

  private:
    void write(const RowReader& row, const Way& way);

    TextInput input_;
    TextOutput output_;
    const RunOptions& options_;
    QuotedLine line_;
    std::string date_;
};

void ContactCoding::run(const Way& way) {
    RowReader row(input_, log_line::count);
    do {  // a log without a contact ends here, in failure 62
        row.read();
        write(row, way);
    } while (!row.at_end());
    output_.close();
}

void ContactCoding::write(const RowReader& row, const Way& way) {
    date_ = right(row[log_line::year], 2);
    append_two_digits(date_, row[log_line::month]);
    append_two_digits(date_, row[log_line::day]);
    const std::string_view call = row[log_line::call];
    const std::string_view number = row[log_line::number_received];
    const std::string_view frequency = row[log_line::frequency];
    const bool use_frequency = options_.Check01 && !frequency.empty();
    const CallParts parts = split_portable(call);
    const CodeAndPlace found = way.find_code(call, number);

    std::array<std::string_view, coded_line::count> fields;
    fields[coded_line::date] = date_;
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
        way.number_form == Number::trimmed ? trim(number) : number;
    fields[coded_line::op] = way.op.value_or(row[log_line::op]);
    fields[coded_line::memo] = row[log_line::memo];
    fields[coded_line::call_as_logged] = call;
    line_.assign(fields);
    output_.write_line(line_.text());
}

// The code source of bak_sep2: what it has found lives from contact to contact.
class DatCoder {
  public:
    explicit DatCoder(const DatRequest& request)
        : request_(request), search_(search_of(request.Code_flag)) {}

    const CodeAndPlace& find(std::string_view call, std::string_view number_received);

  private:
    const DatRequest& request_;
    DatSearch search_;
    CodeAndPlace found_;
};

const CodeAndPlace& DatCoder::find(std::string_view call, std::string_view number_received) {
    const std::string_view number = searched_number(request_.Code_flag, trim(number_received));
    if (search_ != DatSearch::none && is_japanese(call)) {
        found_ = search_ == DatSearch::exact ? request_.table.find_exact(number)
                                             : request_.table.find_prefix(number);
    }
    if (number.empty()) {
        found_ = {};
    }
    if (request_.options.Option04 == 0) {
        found_.code.clear();
    }
    return found_;
}

}  // namespace

void bak_sep0(const Stage& stage, const HlCodeRequest& request) {
    enter_procedure(stage.trace, "Private Sub bak_sep0()", ErrorLine::number_only, [&] {
        ContactCoding contacts(stage, request.in_Dir, request.options);
        request.hl_code_mas.prepare(stage);
        contacts.run({.find_code = [&](std::string_view /*call*/, std::string_view number) {
            return request.hl_code_mas.find(leading_digits(number));
        }});
    });
}

void bak_sep1(const Stage& stage, const YubinRequest& request) {
    constexpr Count qth_width = 14;
    enter_procedure(stage.trace, "Private Sub bak_sep1()", ErrorLine::number_only, [&] {
        ContactCoding contacts(stage, request.in_Dir, request.options);
        if (request.yubin_mas != nullptr) {
            request.yubin_mas->prepare(stage);
        }
        const auto find_code = [&](std::string_view call, std::string_view number) {
            if (request.yubin_mas == nullptr || !is_japanese(call)) {
                return CodeAndPlace{};
            }
            CodeAndPlace found = request.yubin_mas->find(trim(number));
            found.qth = trim(MidMbcs(found.qth, 1, qth_width));
            return found;
        };
        contacts.run({.find_code = find_code, .op = trim(MidMbcs(request.dat_line, 68, 40))});
    });
}

void bak_sep2(const Stage& stage, const DatRequest& request) {
    enter_procedure(stage.trace, "Private Sub bak_sep2()", [&] {
        ContactCoding contacts(stage, request.in_Dir, request.options);
        request.table.load(stage, request.dat_in_name());
        DatCoder coder(request);
        contacts.run({.find_code = [&](std::string_view call, std::string_view number) {
            return coder.find(call, number);
        }});
    });
}

void bak_sep3(const Stage& stage, std::string_view in_Dir, const RunOptions& options) {
    enter_procedure(stage.trace, "Private Sub bak_sep3()", [&] {
        ContactCoding contacts(stage, in_Dir, options);
        contacts.run({.find_code = [](std::string_view /*call*/,
                                      std::string_view /*number*/) { return CodeAndPlace{}; },
                      .number_form = Number::trimmed});
    });
}

}  // namespace veldrana
