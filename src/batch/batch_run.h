// Owns the commands of the batch program: the same program, pressed by rule instead of by hand.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "common/person.h"
#include "readers/input_kind.h"

namespace veldrana {

enum ExitStatus : int {
    exit_done = 0,
    exit_refused = 1,  // before the run: not a log of that kind, something missing
    exit_usage = 2,
    exit_reported = 3,  // the run ended in the error report
};

struct BatchOptions {
    std::filesystem::path home;  // the program's folder
    std::map<char, std::filesystem::path> drives;
    // Controls of the main screen and what to enter there, in order.
    std::vector<std::pair<std::string, std::string>> settings;
    Answer answer = Answer::cancel;
    bool keep_work = false;
};

struct ConvertCommand {
    std::filesystem::path log;
    std::optional<InputKind> kind = {};  // as readers/kind_of_log.h tells where not given
    std::string contest = {};  // the contest's data file as the contest list names it; empty: none
};

// Where the batch program writes.
struct BatchOutput {
    std::ostream& results;
    std::ostream& messages;
    bool show_progress = false;
};

// Converts a log, and writes the result counters, a line each: label, TAB, number.
ExitStatus convert(const BatchOptions& options, const ConvertCommand& command,
                   const BatchOutput& output);

// Makes the .ALL text of a binary log of zLog beside it, and writes the path of the text.
ExitStatus z2a(const BatchOptions& options, const std::filesystem::path& log,
               const BatchOutput& output);

}  // namespace veldrana
