#include "rows/row_builder.h"

#include <array>
#include <string>

#include "common/quoted_fields.h"
#include "common/text.h"
#include "readers/coded_line.h"
#include "rows/remarks.h"
#include "rows/row_formats.h"
#include "rows/source_priority.h"
#include "rows/time_rule.h"

namespace veldrana {
namespace {

// One contact on its way from a CodedLine to its rows. Views are of the line that was read or of
// the run's request.
struct Contact {
    std::string_view call;  // as logged
    std::string_view call_base;
    std::string_view portable;
    std::string_view report_received;
    std::string_view transfer_mark;
    std::string_view sent_mark;
    std::string_view name;
    std::string_view code;
    std::string_view qth;
    ContactTime when;
    std::string rmks1;
    std::string rmks2;
    std::string short_base;  // a call base cut for qth_mas
    Candidates candidates;
};

// The files that the row builder writes, and the texts of the line under way.
class RowWriter {
  public:
    RowWriter(const Stage& stage, std::string_view drive_path)
        : sort_in_(stage.open_output(std::string(drive_path).append(sort_in_file))),
          contest_rows_(stage.open_output(std::string(drive_path).append(contest_rows_file))),
          hamlog_rows_(stage.open_output(std::string(drive_path).append(hamlog_rows_file))) {}

    void write(const RowReader& coded, const Contact& contact);

    void close() {
        sort_in_.close();
        contest_rows_.close();
        hamlog_rows_.close();
    }

  private:
    TextOutput sort_in_;
    TextOutput contest_rows_;
    TextOutput hamlog_rows_;
    QuotedLine line_;
    std::string date_;
    std::string time_;
    std::string qsl_;
};

void RowWriter::write(const RowReader& coded, const Contact& contact) {
    std::array<std::string_view, contest_row::count> row;
    row[contest_row::call_base] = trim(contact.call_base);
    row[contest_row::portable] = contact.portable;
    row[contest_row::code] = contact.code;
    row[contest_row::gl] = contact.candidates.qth_mas.gl;
    row[contest_row::frequency] = coded[coded_line::frequency];
    row[contest_row::mode] = coded[coded_line::mode];
    row[contest_row::name] = contact.name;
    row[contest_row::transfer_mark] = contact.transfer_mark;
    row[contest_row::date] = contact.when.date;
    row[contest_row::time] = contact.when.time;
    row[contest_row::report_sent] = coded[coded_line::report_sent];
    row[contest_row::report_received] = contact.report_received;
    row[contest_row::qth] = contact.qth;
    row[contest_row::rmks1] = contact.rmks1;
    row[contest_row::rmks2] = contact.rmks2;
    row[contest_row::call_1] = coded[coded_line::call_as_logged];
    row[contest_row::call_2] = coded[coded_line::call];
    line_.assign(row);
    sort_in_.write_line(line_.text());
    row[contest_row::sent_mark] = contact.sent_mark;
    line_.assign(row);
    contest_rows_.write_line(line_.text());

    write_date(date_, contact.when.date);
    write_time(time_, contact.when.time);
    qsl_.assign(contact.transfer_mark).append(contact.sent_mark).append(" ");
    const std::array<std::string_view, hamlog_row::count> hamlog{row[contest_row::call_base],
                                                                 row[contest_row::portable],
                                                                 date_,
                                                                 time_,
                                                                 row[contest_row::report_sent],
                                                                 row[contest_row::report_received],
                                                                 row[contest_row::frequency],
                                                                 row[contest_row::mode],
                                                                 row[contest_row::code],
                                                                 row[contest_row::gl],
                                                                 qsl_,
                                                                 row[contest_row::name],
                                                                 row[contest_row::qth],
                                                                 row[contest_row::rmks1],
                                                                 row[contest_row::rmks2],
                                                                 row[contest_row::call_1],
                                                                 row[contest_row::call_2]};
    line_.assign(hamlog);
    hamlog_rows_.write_line(line_.text());
}

// Decides everything of one contact after the other.
class RowBuilder {
  public:
    RowBuilder(const RowRequest& request, CallMemory& memory)
        : request_(request), options_(request.options), memory_(memory) {}

    const Contact& build(const RowReader& coded);
    std::size_t no_qsl_count() const noexcept { return no_qsl_count_; }

  private:
    void compose_remarks(const RowReader& coded);
    void decide_marks(const RowReader& coded);
    void ask_sources(const RowReader& coded);
    void add_text_data_remark();

    const RowRequest& request_;
    const RunOptions& options_;
    CallMemory& memory_;
    Contact contact_;
    RemarkTexts texts_;
    std::size_t no_qsl_count_ = 0;
};

const Contact& RowBuilder::build(const RowReader& coded) {
    contact_.call = coded[coded_line::call_as_logged];
    contact_.call_base = coded[coded_line::call_base];
    contact_.portable = coded[coded_line::portable];
    contact_.when.date = coded[coded_line::date];
    contact_.when.time.assign(coded[coded_line::time]) += zone_of_log(options_);
    contact_.report_received = trim(left(coded[coded_line::report_received], 3));
    apply_time_rule(options_, contact_.call, contact_.when, memory_);
    compose_remarks(coded);
    decide_marks(coded);
    ask_sources(coded);
    contact_.name = choose_name(options_, contact_.candidates);
    contact_.code = choose_code(options_, contact_.candidates, coded[coded_line::code]);
    contact_.qth = choose_qth(options_, contact_.candidates, coded[coded_line::qth]);
    if (options_.Check8) {
        add_text_data_remark();
    }
    return contact_;
}

void RowBuilder::compose_remarks(const RowReader& coded) {
    texts_.memo = coded[coded_line::memo];
    texts_.op = coded[coded_line::op];
    texts_.contest = request_.contest_name;
    texts_.number_received = coded[coded_line::number_received];
    texts_.rmks1 = options_.txtRmks1;
    texts_.rmks2 = options_.txtRmks2;
    contact_.rmks1 =
        compose_remark(request_.layout_1.items, request_.lengths, options_.Check1, texts_);
    contact_.rmks2 =
        compose_remark(request_.layout_2.items, request_.lengths, options_.Check1, texts_);
}

void RowBuilder::decide_marks(const RowReader& coded) {
    contact_.transfer_mark = options_.txtQSL_Q;
    if (request_.past != nullptr &&
        request_.past->covers(coded[coded_line::call], coded[coded_line::frequency],
                              coded[coded_line::mode])) {
        contact_.transfer_mark = "N";
        ++no_qsl_count_;
    }
    if (options_.Check10 && is_club(contact_.call_base, memory_)) {
        contact_.transfer_mark = "N";
        ++no_qsl_count_;
    }
    contact_.sent_mark = contact_.transfer_mark == "N" ? " " : std::string_view(options_.txtQSL_S);
}

void RowBuilder::ask_sources(const RowReader& coded) {
    const StationSources& sources = request_.sources;
    const bool portable = !contact_.portable.empty();
    // A source that is asked for one contact of a run is asked for all, so nothing is left over of
    // the contact before.
    Candidates& found = contact_.candidates;
    if (sources.name_mas != nullptr && options_.Check03) {
        found.name_mas = sources.name_mas->find(contact_.call_base);
    }
    if (options_.Option02 != 0 && options_.Option04 == 1) {
        found.dat_mas.code = coded[coded_line::code];
        found.dat_mas.qth = coded[coded_line::qth];
    }
    if (sources.text_data != nullptr && options_.Check8) {
        found.text_data = sources.text_data->find(contact_.call_base);
        filter_text_data(options_, portable, found.text_data);
    }
    if (sources.qth_mas != nullptr && options_.Check14) {
        // Six characters are the width of that master; the rows keep the cut form.
        contact_.short_base = left(std::string(contact_.call_base) + "      ", 6);
        contact_.call_base = contact_.short_base;
        found.qth_mas = sources.qth_mas->find(contact_.call_base);
        filter_qth_mas(options_, portable, found.qth_mas);
    }
}

void RowBuilder::add_text_data_remark() {
    const std::string& addition = contact_.candidates.text_data.rmks;
    std::string& remark = options_.Option4 <= 1 ? contact_.rmks1 : contact_.rmks2;
    const bool on_the_left = options_.Option4 == 0 || options_.Option4 == 2;
    remark = trim(on_the_left ? addition + " " + remark : remark + " " + addition);
}

// What is read anew for each pass, in the order in which it is read.
void prepare_sources(const Stage& stage, const RowRequest& request) {
    const StationSources& sources = request.sources;
    if (request.past != nullptr) {
        request.past->prepare(stage);
    }
    if (sources.qth_mas != nullptr && request.options.Check14) {
        sources.qth_mas->prepare(stage);
    }
    if (sources.text_data != nullptr && request.options.Check8) {
        sources.text_data->prepare(stage);
    }
}

}  // namespace

std::size_t build_rows(const Stage& stage, const RowRequest& request, CallMemory& memory) {
    stage.tell("変換処理中", colours::green);
    const std::string coded_lines = std::string(request.in_Dir).append(coded_line_file);
    stage.count_file_rec(coded_lines);
    TextInput input = stage.open_input(coded_lines);
    RowReader coded(input, coded_line::count);
    RowWriter writer(stage, request.drive_path);
    RowBuilder builder(request, memory);
    prepare_sources(stage, request);
    do {
        coded.read();
        writer.write(coded, builder.build(coded));
        stage.ProgressBar1.step();
    } while (!coded.at_end());
    writer.close();
    return builder.no_qsl_count();
}

}  // namespace veldrana
