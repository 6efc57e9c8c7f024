#include "readers/cabrillo.h"

#include <algorithm>
#include <array>

#include "common/procedure.h"
#include "common/text.h"
#include "readers/contact_writer.h"
#include "readers/log_line.h"

namespace veldrana {
namespace {

constexpr std::string_view heading_mark = "START-OF-LOG:";
constexpr std::string_view contact_mark = "QSO:";
constexpr std::string_view wide_blank = "　";

// The places of a contact's tokens that are read.
enum Token : std::size_t {
    frequency = 1,
    mode = 2,
    date = 3,
    time_of_day = 4,
    report_sent = 6,
    call = 8,
    report_received = 9,
    number_received = 10,
    token_count
};
using Tokens = std::array<std::string_view, token_count>;

struct BandRow {
    double from;  // kHz
    double to;
    std::string_view band;
};

// 1200 begins far below its band; kept, as the table has always stood.
constexpr std::array<BandRow, 15> bands{{{1000, 2000, "1.9"},
                                         {3000, 4000, "3.5"},
                                         {7000, 8000, "7"},
                                         {9000, 11000, "10"},
                                         {13000, 15000, "14"},
                                         {17000, 19000, "18"},
                                         {20000, 22000, "21"},
                                         {23000, 25000, "24"},
                                         {27000, 30000, "28"},
                                         {49000, 54000, "50"},
                                         {143000, 146000, "144"},
                                         {429000, 440000, "430"},
                                         {1119000, 1300000, "1200"},
                                         {2399000, 2450000, "2400"},
                                         {5399000, 5850000, "5600"}}};

// How many bytes the blank, tab or full-width blank at a place takes; 0 if none stands there.
std::size_t blank_size(std::string_view line, std::size_t at) noexcept {
    if (line[at] == ' ' || line[at] == '\t') {
        return 1;
    }
    return line[at] == wide_blank.front() && line.substr(at).starts_with(wide_blank)
               ? wide_blank.size()
               : 0;
}

// Blanks in front of which a token ends.
struct BlankRun {
    std::size_t end;     // the byte behind it
    std::size_t blanks;  // that are left of it
};

// What eleven rounds leave of a run of blanks, each of which halves the blanks beside each other
// and then makes blanks of tabs and full-width blanks. So the first round does not halve those, and
// the other ten take 1024 for one.
BlankRun pass_blanks(std::string_view line, std::size_t at) noexcept {
    constexpr std::size_t taken_for_one = 1024;
    std::size_t first_round = 0;
    std::size_t plain = 0;  // blanks beside each other
    while (at < line.size()) {
        const std::size_t size = blank_size(line, at);
        if (size == 0) {
            break;
        }
        if (line[at] == ' ') {
            ++plain;
        } else {
            first_round += (plain + 1) / 2 + 1;
            plain = 0;
        }
        at += size;
    }
    first_round += (plain + 1) / 2;
    return {at, (first_round + taken_for_one - 1) / taken_for_one};
}

// Where the token that begins at a place ends.
std::size_t token_end(std::string_view line, std::size_t at) noexcept {
    while (at < line.size() && blank_size(line, at) == 0) {
        ++at;
    }
    return at;
}

// Failure 9 for a line of too few tokens; those behind the eleventh are not looked at. Blanks at
// either end of the line have an empty token beside them.
void take_tokens(std::string_view line, Tokens& tokens) {
    std::size_t count = 0;
    for (std::size_t at = 0;;) {
        const std::size_t end = token_end(line, at);
        tokens[count++] = line.substr(at, end - at);
        if (count == token_count) {
            return;
        }
        if (end == line.size()) {
            throw RunTimeError(Failure::subscript);
        }
        const BlankRun run = pass_blanks(line, end);
        for (std::size_t blank = 1; blank < run.blanks && count < token_count; ++blank) {
            tokens[count++] = {};
        }
        if (count == token_count) {
            return;
        }
        at = run.end;
    }
}

std::string_view mode_of(std::string_view token) noexcept {
    if (token == "PH") {
        return "SSB";
    }
    return token == "RY" ? "RTY" : token;
}

// Failure 9 for a date of fewer than three parts.
void take_date(std::string_view token, LogLine& contact) {
    const std::size_t first = token.find('-');
    const std::size_t second = first == std::string_view::npos ? first : token.find('-', first + 1);
    if (second == std::string_view::npos) {
        throw RunTimeError(Failure::subscript);
    }
    contact.year = token.substr(0, first);
    contact.month = token.substr(first + 1, second - first - 1);
    const std::string_view rest = token.substr(second + 1);
    contact.day = rest.substr(0, rest.find('-'));
}

bool is_contact(std::string_view line) noexcept {
    return line.find(contact_mark) != std::string_view::npos;
}

}  // namespace

std::string_view cabrillo_band(double kilohertz) noexcept {
    const auto* const row =
        std::find_if(bands.begin(), bands.end(), [kilohertz](const BandRow& candidate) {
            return kilohertz >= candidate.from && kilohertz <= candidate.to;
        });
    return row == bands.end() ? std::string_view{} : row->band;
}

bool is_cabrillo(const Stage& stage, std::string_view in_name) {
    TextInput input = stage.open_input(in_name);
    std::string_view line;
    return input.next_line(line) && line.find(heading_mark) != std::string_view::npos;
}

std::size_t count_in_name_cbr(const Stage& stage, std::string_view in_name) {
    return enter_procedure(stage.trace, "Private Sub count_in_name_cbr()", [&] {
        TextInput input = stage.open_input(in_name);
        std::size_t count = 0;
        for (std::string_view line; input.next_line(line);) {
            if (is_contact(line)) {
                ++count;
            }
        }
        return count;
    });
}

CabrilloContacts henkan_cbr_2_t(const Stage& stage, const LogRequest& request) {
    return enter_procedure(stage.trace, "Private Sub henkan_cbr_2_t()", [&] {
        stage.tell("入力ファイル読み込み中", colours::green);
        CabrilloContacts result;
        result.counted = count_in_name_cbr(stage, request.in_name);
        stage.ProgressBar1.restart(result.counted + 1);
        TextInput input = stage.open_input(request.in_name);
        ContactWriter writer(stage, request);
        read_line(input);  // the heading
        Tokens tokens;
        std::string_view band;  // that of the contact before stays for a frequency beside the bands
        for (std::string_view line; input.next_line(line);) {
            if (!is_contact(line)) {
                continue;
            }
            take_tokens(line, tokens);
            const std::string_view own_band = cabrillo_band(val(tokens[frequency]));
            band = own_band.empty() ? band : own_band;
            LogLine contact{.time = tokens[time_of_day],
                            .call = tokens[call],
                            .report_sent = tokens[report_sent],
                            .report_received = tokens[report_received],
                            .band = band,
                            .mode = mode_of(tokens[mode]),
                            .number_received = tokens[number_received]};
            take_date(tokens[date], contact);
            writer.write(contact);
            stage.ProgressBar1.step();
        }
        result.kept = writer.close();
        stage.ProgressBar1.value = 0;
        return result;
    });
}

}  // namespace veldrana
