// The readers of logs that are text, and the survey that the contest dialog makes of them.
#include <algorithm>
#include <array>

#include "readers/adif.h"
#include "readers/cabrillo.h"
#include "readers/contest_survey.h"
#include "readers/zlog_text.h"
#include "tests/fuzz/log_input.h"
#include "tests/fuzz/targets.h"

namespace veldrana {
namespace {

std::size_t lines_in(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// Runs a reader that tells how many lines it has kept.
template <class Read>
void read_lines(std::string_view bytes, Read read) {
    LogInput input(bytes);
    input.fuzz.run([&] {
        const std::size_t kept = read(input);
        require(kept == lines_in(input.fuzz.disk.bytes(LogInput::lines_file)), "a line each");
    });
}

}  // namespace

void fuzz_zlog_all(std::string_view bytes) {
    read_lines(bytes, [](LogInput& input) { return a_2_t(input.fuzz.stage, input.request()); });
}

void fuzz_zlog_txt(std::string_view bytes) {
    read_lines(bytes, [](LogInput& input) { return t_2_t(input.fuzz.stage, input.request()); });
}

void fuzz_cabrillo(std::string_view bytes) {
    read_lines(bytes, [](LogInput& input) {
        const Stage& stage = input.fuzz.stage;
        const bool is_one = is_cabrillo(stage, LogInput::path);
        const CabrilloContacts contacts = henkan_cbr_2_t(stage, input.request());
        require(contacts.counted == count_in_name_cbr(stage, LogInput::path), "one count");
        require(contacts.kept <= contacts.counted, "no more than were counted");
        require(is_one == is_cabrillo(stage, LogInput::path), "one verdict");
        return contacts.kept;
    });
}

void fuzz_adif(std::string_view bytes) {
    read_lines(bytes, [](LogInput& input) {
        const Stage& stage = input.fuzz.stage;
        const bool has_calls = count_in_name_ADIF(stage, LogInput::path) > 0;
        require(has_calls == is_adif(stage, LogInput::path), "what has calls is one");
        return henkan_ADIF_2_t(stage, input.request());
    });
}

void fuzz_contest_dialog(std::string_view bytes) {
    constexpr std::array kinds{InputKind::all, InputKind::txt, InputKind::cbr, InputKind::ADIF};
    LogInput input(bytes);
    input.fuzz.disk.put_folder("C:\\veldrana");
    input.fuzz.run([&] {
        const LogSurvey survey =
            survey_log(input.fuzz.stage, kinds[bytes.size() % kinds.size()],
                       {.in_name = LogInput::path, .current_folder = "C:\\veldrana\\"});
        require(survey.rows.size() <= bytes.size() + 1, "a row takes bytes");
        require(input.fuzz.disk.names("C:\\veldrana\\*").empty(), "no work file is left");
    });
}

}  // namespace veldrana
