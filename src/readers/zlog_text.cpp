#include "readers/zlog_text.h"

#include <string>

#include "common/procedure.h"
#include "common/text.h"
#include "readers/contact_writer.h"
#include "readers/log_line.h"

namespace veldrana {
namespace {

// Byte positions of a column, from 1.
struct Column {
    std::size_t start;
    std::size_t width;
};

// The fields of a contact that point to a text of their own, not into the line.
struct OwnTexts {
    std::string month;
    std::string day;
    std::string time;
    std::string memo;
    std::string frequency;
};

// One of the two forms: where its columns stand, and what is its own way.
struct Form {
    InputKind kind;
    Column call;
    Column report_sent;
    Column report_received;
    Column number_received;
    Column band;
    Column mode;
    Count in_front_of_memo;       // characters
    std::size_t progress_beyond;  // by how much the progress bar exceeds the count
    void (*prepare)(std::string_view read, std::string& line);
    void (*take_date)(const FixedColumns& line, const RunOptions& options, OwnTexts& texts,
                      LogLine& contact);
    std::string_view (*mode_of)(std::string_view mode);
    bool (*wants_operator)(const RunOptions& options, const RemarkUse& use);
};

constexpr std::string_view dupe_mark = "-DUPE-";
constexpr std::string_view memo_prefix = "memo=";

// Where the text behind the last "%%" begins. Goes by single characters: a search for a text from
// the end compares at every place.
std::size_t behind_last_mark(std::string_view text) noexcept {
    std::size_t last = text.rfind('%');
    while (last != std::string_view::npos && last > 0) {
        if (text[last - 1] == '%') {
            return last + 1;
        }
        last = text.rfind('%', last - 1);
    }
    return std::string_view::npos;
}

bool holds(std::string_view text, char byte) {
    return text.find(byte) != std::string_view::npos;
}

// --- .ALL ---

// Blanks behind the line, so that every column is there.
void pad(std::string_view read, std::string& line) {
    line.assign(read).append(30, ' ');
}

// As the columns stand, untrimmed.
void take_full_date(const FixedColumns& line, const RunOptions& /*options*/, OwnTexts& texts,
                    LogLine& contact) {
    texts.time.assign(line.column(12, 2)).append(line.column(15, 2));
    contact.year = line.column(1, 4);
    contact.month = line.column(6, 2);
    contact.day = line.column(9, 2);
    contact.time = texts.time;
}

// "SSB" for the short forms of it; the two of RTTY are taken for it too. Kept: marks of past runs
// rest on it.
std::string_view long_mode(std::string_view mode) {
    const std::string_view trimmed = trim(mode);
    const bool is_short = trimmed == "SS" || trimmed == "SB" || trimmed == "RT" || trimmed == "TY";
    return is_short ? "SSB" : mode;
}

bool operator_for_remarks_or_filter(const RunOptions& options, const RemarkUse& use) {
    return use.in_use(RemarkItem::op_percent) || use.in_use(RemarkItem::op) || options.Check15;
}

constexpr Form all_form{.kind = InputKind::all,
                        .call = {18, 12},
                        .report_sent = {31, 3},
                        .report_received = {43, 3},
                        .number_received = {47, 8},
                        .band = {67, 4},
                        .mode = {72, 3},
                        .in_front_of_memo = 79,
                        .progress_beyond = 1,
                        .prepare = pad,
                        .take_date = take_full_date,
                        .mode_of = long_mode,
                        .wants_operator = operator_for_remarks_or_filter};

// --- .TXT ---

// A line that begins with a month of one digit gets the "0" that its columns need; all other lines
// stay as they are.
void mend_month(std::string_view read, std::string& line) {
    const std::string_view trimmed = trim(read);
    if (length(trimmed.substr(0, trimmed.find(' '))) == 1) {
        line.assign("0").append(trimmed);
    } else {
        line.assign(read);
    }
}

// The last two characters behind a leading "0".
void take_two_digits(std::string_view column, std::string& digits) {
    digits = right("0" + std::string(trim(column)), 2);
}

// The form has no year: the contest year stands for it.
void take_short_date(const FixedColumns& line, const RunOptions& options, OwnTexts& texts,
                     LogLine& contact) {
    take_two_digits(line.column(1, 2), texts.month);
    take_two_digits(line.column(5, 2), texts.day);
    contact.year = options.txtYYYY;
    contact.month = texts.month;
    contact.day = texts.day;
    contact.time = line.column(8, 4);
}

std::string_view same_mode(std::string_view mode) {
    return mode;
}

// The filter alone does not make the reader look.
bool operator_for_remarks(const RunOptions& options, const RemarkUse& use) {
    return use.in_use(RemarkItem::op_percent) || (use.in_use(RemarkItem::op) && options.Check15);
}

constexpr Form txt_form{.kind = InputKind::txt,
                        .call = {13, 11},
                        .report_sent = {24, 3},
                        .report_received = {37, 3},
                        .number_received = {40, 7},
                        .band = {58, 4},
                        .mode = {64, 3},
                        .in_front_of_memo = 72,
                        .progress_beyond = 2,
                        .prepare = mend_month,
                        .take_date = take_short_date,
                        .mode_of = same_mode,
                        .wants_operator = operator_for_remarks};

// --- both ---

// What stands in the columns of a line, at the same kind of place in both forms.
LogLine take_columns(const FixedColumns& line, const Form& form) {
    const auto trimmed = [&line](Column column) {
        return line.trimmed(column.start, column.width);
    };
    LogLine contact;
    contact.call = trimmed(form.call);
    contact.report_sent = trimmed(form.report_sent);
    contact.report_received = trimmed(form.report_received);
    contact.band = trimmed(form.band);
    contact.mode = form.mode_of(line.column(form.mode.start, form.mode.width));
    contact.number_received = trimmed(form.number_received);
    return contact;
}

std::size_t read_log(const Stage& stage, const LogRequest& request, const Form& form) {
    const RunOptions& options = request.options;
    const RemarkUse& use = request.use;
    const bool want_operator = form.wants_operator(options, use);
    const bool want_memo = use.in_use(RemarkItem::memo) || use.in_use(RemarkItem::memo_equals);

    stage.tell("入力ファイル読み込み中", colours::green);
    stage.count_file_rec(request.in_name, form.progress_beyond);
    TextInput input = stage.open_input(request.in_name);
    ContactWriter writer(stage, request);
    read_line(input);  // the heading
    std::string line;
    OwnTexts texts;
    for (std::string_view read; input.next_line(read);) {
        form.prepare(read, line);
        const FixedColumns columns(line);
        LogLine contact = take_columns(columns, form);
        form.take_date(columns, options, texts, contact);
        if (want_operator && holds(line, '%')) {
            contact.op = get_op_all(line);
        }
        if (options.Check01 && holds(line, '(')) {
            texts.frequency = get_freq_all(line);
            contact.frequency = trim(texts.frequency);
        }
        if (want_memo) {
            texts.memo = get_memo_all(line, form.kind, use);
            contact.memo = texts.memo;
        }
        writer.write(contact);
        stage.ProgressBar1.step();
    }
    return writer.close();
}

}  // namespace

std::string_view heading_of(InputKind kind) {
    return kind == InputKind::all ? "zLog for Windows" : "mon day time  callsign";
}

std::string get_freq_all(std::string_view line) {
    const std::size_t open = line.find('(');
    if (open == std::string_view::npos) {
        return {};
    }
    std::string_view piece = line.substr(open + 1);
    piece = piece.substr(0, piece.find('('));
    std::string without_close;
    for (const char byte : trim_right(piece)) {
        if (byte != ')') {
            without_close += byte;
        }
    }
    const std::string_view kilohertz = trim(without_close);
    const auto size = static_cast<Count>(length(kilohertz));
    if (size < 4 || size > 7) {
        return {};
    }
    const std::string_view megahertz = left(kilohertz, size - 3);
    std::string frequency(megahertz);
    frequency.append(".").append(kilohertz.substr(megahertz.size()));
    if (holds(kilohertz, '.')) {
        // A frequency given in MHz brings its own point.
        return replace_all(frequency, "..", ".");
    }
    return frequency;
}

std::string_view get_op_all(std::string_view line) {
    constexpr Count searched = 120;
    const std::string_view work = trim(MidMbcs(line, 1, searched));
    const std::size_t mark = work.find('%');
    if (mark == std::string_view::npos) {
        return {};
    }
    // Two bytes on, so that the second "%" of the opening pair is passed.
    const std::string_view behind = trim(MidMbcs(work.substr(mark + 1), 2));
    const std::size_t end = behind.find('%');
    return end == std::string_view::npos ? std::string_view{} : trim(behind.substr(0, end));
}

std::string get_memo_all(std::string_view line, InputKind kind, const RemarkUse& use) {
    std::string without_mark;
    std::string_view whole = line;
    // Looked for without its first character: lines are full of "-".
    if (line.find(dupe_mark.substr(1)) != std::string_view::npos) {
        whole = without_mark = replace_all(line, dupe_mark, "");
    }
    const auto size = static_cast<Count>(length(whole));
    const Count columns = (kind == InputKind::all ? all_form : txt_form).in_front_of_memo;
    if (size == columns) {
        return {};
    }
    if (size < columns) {
        throw RunTimeError(Failure::invalid_call);
    }
    // Blanks at the end never reach the memo, whatever is taken out of the area.
    std::string_view area = trim_right(mid(whole, columns + 1));
    if (const std::size_t behind = behind_last_mark(area); behind != std::string_view::npos) {
        area = trim(area.substr(behind));
    }
    std::string memo;
    const std::size_t open = area.find('(');
    if (open == std::string_view::npos) {
        memo = area;
    } else {
        // Without a ")" the whole text stands behind the blank once more; kept.
        const std::size_t close = area.find(')');
        memo.append(area.substr(0, open)).append(" ");
        memo.append(close == std::string_view::npos ? area : area.substr(close + 1));
    }
    if (use.in_use(RemarkItem::memo_equals) && !trim(memo).empty()) {
        memo.insert(0, memo_prefix);
    }
    return std::string(trim(memo));
}

std::size_t a_2_t(const Stage& stage, const LogRequest& request) {
    return enter_procedure(stage.trace, "Private Sub a_2_t()", ErrorLine::number_only,
                           [&] { return read_log(stage, request, all_form); });
}

std::size_t t_2_t(const Stage& stage, const LogRequest& request) {
    return enter_procedure(stage.trace, "Private Sub t_2_t()", ErrorLine::number_only,
                           [&] { return read_log(stage, request, txt_form); });
}

}  // namespace veldrana
