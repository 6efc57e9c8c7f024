// Owns Program, everything that lives as long as the program does, and its outermost frame. Two
// programs in one process do not disturb each other.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "app/counters.h"
#include "app/main_screen.h"
#include "app/paths.h"
#include "common/failure_report.h"
#include "common/person.h"
#include "common/trace_log.h"
#include "output/output_names.h"
#include "platform/clock.h"
#include "platform/disk.h"
#include "platform/stage.h"
#include "readers/input_kind.h"
#include "rows/call_sign.h"
#include "settings/environment_settings.h"
#include "settings/remark_items.h"

namespace veldrana {

// The outside world. Must outlive the program.
struct Ports {
    Disk& disk;
    Clock& clock;
    Person& person;
    SortService& sorter;
};

// The log that was chosen, and the names that follow from it.
struct ChosenLog {
    std::string chosen;   // full path of the file that the user chose; never written nor deleted
    std::string in_name;  // the same; a refusal text after it was refused
    std::string in_Dir;   // its folder, with a backslash at its end
    std::optional<InputKind> f_type;
    OutputNames names;
    std::string dup;
    std::string record_count;  // as shown, without its unit
};

// What the start button does.
enum class RunMode {
    conversion,   // 変換: a log becomes its result files
    replacement,  // 置換: the "#" of a contest file become blanks
};

// The No QSL period, two days as yyyymmdd.
struct Period {
    std::string Start_date = "19600101";
    std::string End_date;

    // What a run takes for a day that is not set.
    void fill_empty() {
        Start_date = Start_date.empty() ? "19600101" : Start_date;
        End_date = End_date.empty() ? "20100101" : End_date;
    }
};

struct Program {
    Program(const Ports& outside, std::string_view program_folder, std::string_view windows_folder);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program() = default;

    Disk& disk;
    Clock& clock;
    Person& person;
    SortService& sorter;

    Paths paths;
    EnvironmentSettings environment;
    TraceLog trace;
    MainScreen screen;
    ChosenLog log;
    Counters counters;
    RemarkUse remark_use;
    RemarkLengths remark_lengths;
    CallMemory call_memory;
    Period period;
    RunMode run_mode = RunMode::conversion;
    // Lines that the operator filter let through; .TXT logs are counted apart, and the warning
    // about an operator without lines looks at the first count alone.
    std::size_t kept_lines = 0;
    std::size_t kept_lines_of_txt = 0;
    bool run_finished = false;
    // Leaves the work files that the orderly end would delete.
    bool keep_work_files = false;

    Stage stage() { return {disk, trace, sorter, person, screen.lblCFG, screen.ProgressBar1}; }

    // Runs what a press or a start sets going. A failure that nobody handled is reported here and
    // ends the program; nothing that is thrown leaves. False if the program has ended, before or
    // now. An event within an event is part of it.
    bool event(const std::function<void()>& body);

    // How the program ended; nothing while it runs.
    std::optional<ProgramEnd::Cause> ended() const noexcept { return ended_; }

  private:
    // Shows the report; the cause is what the report ends the program with.
    void report(RunTimeError error);

    bool in_event_ = false;
    std::optional<ProgramEnd::Cause> ended_;
};

}  // namespace veldrana
