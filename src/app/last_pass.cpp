#include "app/last_pass.h"

#include <string>

#include "common/quoted_fields.h"
#include "common/text.h"
#include "rows/row_formats.h"

namespace veldrana {
namespace {

constexpr std::string_view dx_mark = "$DX";

std::string_view long_mode(std::string_view mode) {
    if (mode == "RTY" || mode == "TTY") {
        return "RTTY";
    }
    if (mode == "STV" || mode == "SST") {
        return "SSTV";
    }
    if (mode == "PSK" || mode == "PS3") {
        return "PSK31";
    }
    return mode;
}

// A text from which pieces are taken out; copied only if there is something to take out.
class Stripped {
  public:
    void start(std::string_view text) { text_ = text; }
    void take_out(std::string_view piece) {
        if (!piece.empty() && text_.find(piece) != std::string_view::npos) {
            copy_ = replace_all(text_, piece, "");
            text_ = copy_;
        }
    }
    bool holds(std::string_view piece) const { return text_.find(piece) != std::string_view::npos; }
    std::string_view text() const noexcept { return text_; }

  private:
    std::string_view text_;
    std::string copy_;
};

// What the pass makes of one row.
struct Result {
    std::string_view mode;
    std::string qsl;
    bool utc = false;
    Stripped rmks1;
    Stripped rmks2;
};

// The columns from the date on, which both files have: those that the pass leaves alone go over in
// one piece where they stand as they are written.
void add_common_columns(QuotedLine& line, const RowReader& row, const Result& result) {
    const auto add_range = [&](std::size_t first, std::size_t last) {
        if (!row.written_line().empty()) {
            line.add_written(row.written_columns(first, last));
            return;
        }
        for (std::size_t column = first; column <= last; ++column) {
            line.add(row[column]);
        }
    };
    add_range(hamlog_row::date, hamlog_row::frequency);
    line.add(result.mode);
    add_range(hamlog_row::code, hamlog_row::gl);
    line.add(result.qsl);
    add_range(hamlog_row::name, hamlog_row::qth);
    line.add(result.rmks1.text()).add(result.rmks2.text());
}

}  // namespace

std::size_t write_results(const Stage& stage, const LastPassRequest& request) {
    TextInput input = stage.open_input(request.rows_file);
    TextOutput results = stage.open_output(request.result_file);
    TextOutput intermediate = stage.open_output(request.intermediate_file);
    const std::string sent_without_card = std::string(request.No_QSL_moji).append(request.txtQSL_S);
    const std::string no_card = std::string(request.No_QSL_moji) + " ";
    RowReader row(input, hamlog_row::count);
    QuotedLine line;
    Result result;
    std::size_t names = 0;
    do {
        row.read();
        result.rmks1.start(row[hamlog_row::rmks1]);
        result.rmks2.start(row[hamlog_row::rmks2]);
        if (result.rmks1.holds(dx_mark) || result.rmks2.holds(dx_mark)) {
            result.rmks1.take_out(dx_mark);
            result.rmks2.take_out(dx_mark);
        }
        result.mode = long_mode(row[hamlog_row::mode]);
        result.utc = row[hamlog_row::time].find('U') != std::string_view::npos;
        result.qsl = replace_all(row[hamlog_row::qsl], sent_without_card, no_card);
        names += trim(row[hamlog_row::name]).empty() ? 0U : 1U;

        line.clear().add(row[hamlog_row::call_base]).add(row[hamlog_row::portable]);
        add_common_columns(line, row, result);
        intermediate.write_line(line.text());

        // A remark that tells the call again is no news to the log book.
        result.rmks1.take_out(row[hamlog_row::call_1]);
        result.rmks2.take_out(row[hamlog_row::call_1]);
        result.rmks1.take_out(dx_mark);
        line.clear().add(row[hamlog_row::call_2]);
        add_common_columns(line, row, result);
        line.add(result.utc ? "8" : "0");
        results.write_line(line.text());
    } while (!row.at_end());
    results.close();
    intermediate.close();
    return names;
}

}  // namespace veldrana
