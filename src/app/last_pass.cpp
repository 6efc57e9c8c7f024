#include "app/last_pass.h"

#include <array>
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

}  // namespace

std::size_t write_results(const Stage& stage, const LastPassRequest& request) {
    TextInput input = stage.open_input(request.rows_file);
    TextOutput results = stage.open_output(request.result_file);
    TextOutput intermediate = stage.open_output(request.intermediate_file);
    const std::string sent_without_card = std::string(request.No_QSL_moji).append(request.txtQSL_S);
    const std::string no_card = std::string(request.No_QSL_moji) + " ";
    RowReader row(input, hamlog_row::count);
    QuotedLine line;
    Stripped rmks1;
    Stripped rmks2;
    std::string qsl;
    std::size_t names = 0;
    do {
        row.read();
        rmks1.start(row[hamlog_row::rmks1]);
        rmks2.start(row[hamlog_row::rmks2]);
        if (rmks1.holds(dx_mark) || rmks2.holds(dx_mark)) {
            rmks1.take_out(dx_mark);
            rmks2.take_out(dx_mark);
        }
        const std::string_view mode = long_mode(row[hamlog_row::mode]);
        const bool utc = row[hamlog_row::time].find('U') != std::string_view::npos;
        qsl = replace_all(row[hamlog_row::qsl], sent_without_card, no_card);
        names += trim(row[hamlog_row::name]).empty() ? 0U : 1U;

        line.assign(std::array{row[hamlog_row::call_base], row[hamlog_row::portable],
                               row[hamlog_row::date], row[hamlog_row::time],
                               row[hamlog_row::report_sent], row[hamlog_row::report_received],
                               row[hamlog_row::frequency], mode, row[hamlog_row::code],
                               row[hamlog_row::gl], std::string_view(qsl), row[hamlog_row::name],
                               row[hamlog_row::qth], rmks1.text(), rmks2.text()});
        intermediate.write_line(line.text());

        // A remark that tells the call again is no news to the log book.
        rmks1.take_out(row[hamlog_row::call_1]);
        rmks2.take_out(row[hamlog_row::call_1]);
        rmks1.take_out(dx_mark);
        line.assign(std::array{row[hamlog_row::call_2], row[hamlog_row::date],
                               row[hamlog_row::time], row[hamlog_row::report_sent],
                               row[hamlog_row::report_received], row[hamlog_row::frequency], mode,
                               row[hamlog_row::code], row[hamlog_row::gl], std::string_view(qsl),
                               row[hamlog_row::name], row[hamlog_row::qth], rmks1.text(),
                               rmks2.text(), std::string_view(utc ? "8" : "0")});
        results.write_line(line.text());
    } while (!row.at_end());
    results.close();
    intermediate.close();
    return names;
}

}  // namespace veldrana
