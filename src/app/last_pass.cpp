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

// The columns from the date to the QTH, which both files have alike.
void write_common_columns(QuotedLine& common, const RowReader& row, std::string_view mode,
                          std::string_view qsl) {
    common.clear();
    row.add_columns(hamlog_row::date, hamlog_row::frequency, common);
    common.add(mode);
    row.add_columns(hamlog_row::code, hamlog_row::gl, common);
    common.add(qsl);
    row.add_columns(hamlog_row::name, hamlog_row::qth, common);
}

}  // namespace

std::size_t write_results(const Stage& stage, const LastPassRequest& request) {
    TextInput input = stage.open_input(request.rows_file);
    TextOutput results = stage.open_output(request.result_file);
    TextOutput intermediate = stage.open_output(request.intermediate_file);
    const std::string sent_without_card = std::string(request.No_QSL_moji).append(request.txtQSL_S);
    const std::string no_card = std::string(request.No_QSL_moji) + " ";
    RowReader row(input, hamlog_row::count);
    QuotedLine common;
    QuotedLine line;
    Stripped rmks1;
    Stripped rmks2;
    std::size_t names = 0;
    do {
        row.read();
        rmks1.start(row[hamlog_row::rmks1]);
        rmks2.start(row[hamlog_row::rmks2]);
        if (rmks1.holds(dx_mark) || rmks2.holds(dx_mark)) {
            rmks1.take_out(dx_mark);
            rmks2.take_out(dx_mark);
        }
        const bool utc = row[hamlog_row::time].find('U') != std::string_view::npos;
        write_common_columns(common, row, long_mode(row[hamlog_row::mode]),
                             replace_all(row[hamlog_row::qsl], sent_without_card, no_card));
        names += trim(row[hamlog_row::name]).empty() ? 0U : 1U;

        line.clear().add(row[hamlog_row::call_base]).add(row[hamlog_row::portable]);
        line.add_written(common.text()).add(rmks1.text()).add(rmks2.text());
        intermediate.write_line(line.text());

        // A remark that tells the call again is no news to the log book.
        rmks1.take_out(row[hamlog_row::call_1]);
        rmks2.take_out(row[hamlog_row::call_1]);
        rmks1.take_out(dx_mark);
        line.clear().add(row[hamlog_row::call_2]);
        line.add_written(common.text()).add(rmks1.text()).add(rmks2.text());
        line.add(utc ? "8" : "0");
        results.write_line(line.text());
    } while (!row.at_end());
    results.close();
    intermediate.close();
    return names;
}

}  // namespace veldrana
