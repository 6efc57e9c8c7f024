// Owns Program, everything that lives as long as the program does, and its outermost frame. Two
// programs in one process do not disturb each other.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/counters.h"
#include "app/main_screen.h"
#include "app/paths.h"
#include "common/failure_report.h"
#include "common/person.h"
#include "common/trace_log.h"
#include "masters/code_masters.h"
#include "masters/dat_file.h"
#include "masters/station_masters.h"
#include "output/output_names.h"
#include "platform/clock.h"
#include "platform/disk.h"
#include "platform/hamlog_library.h"
#include "platform/process_starter.h"
#include "platform/services.h"
#include "platform/stage.h"
#include "qsl/history_times.h"
#include "readers/contest_refusals.h"
#include "readers/contest_selection.h"
#include "readers/input_kind.h"
#include "rows/call_sign.h"
#include "rows/slot_rows.h"
#include "settings/remark_items.h"
#include "settings/settings_store.h"
#include "viewers/frmDisp.h"

namespace veldrana {

// The outside world. Must outlive the program.
struct Ports {
    Disk& disk;
    Clock& clock;
    Person& person;
    SortService& sorter;
    Services& services;
    HamlogLibrary& log_book;
    ProcessStarter& processes;
};

// The log that was chosen, and the names that follow from it.
struct ChosenLog {
    std::string chosen;   // full path of the file that the user chose; never written nor deleted
    std::string in_name;  // the same; a refusal text after it was refused
    std::string in_Dir;   // its folder, with a backslash at its end
    std::optional<InputKind> f_type;
    bool accepted = false;     // it has passed the test of its kind
    std::string contest_name;  // as a binary log of zLog names it
    OutputNames names;
    std::string dup;
    std::string record_count;  // as shown, without its unit
};

// What the start button does.
enum class RunMode {
    conversion,   // 変換: a log becomes its result files
    replacement,  // 置換: the "#" of a contest file become blanks
};

// What a start came to.
struct Start {
    enum Reached { nothing, environment_dialog, main_screen };
    Reached reached = nothing;
    // The settings are those of an old version, which the environment dialog has to renew.
    bool old_version = false;
    // The version that was found.
    std::string version;
};

// The splash, up until the main screen is there.
struct ReadMaster : WindowForm {
    ReadMaster() : WindowForm("read_master") {}

    Label Label1{*this, "Label1", "　ファイルを読み込み中．．．．．"};
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
    Services& services;
    HamlogLibrary& log_book;
    ProcessStarter& processes;

    Paths paths;
    SettingsStore settings;
    HistoryTimes history_times;
    // The end of the No QSL period as of the start.
    std::string End_Date_bak;
    TraceLog trace;
    ReadMaster read_master;
    MainScreen screen;
    Start start;
    // The short name of the log book's database; empty until it is known.
    std::string hdb_name;
    ChosenLog log;
    Counters counters;
    RemarkUse remark_use;
    RemarkLengths remark_lengths;
    SlotRows slot_rows{screen.lblRmks1, screen.lblRmks2, screen.Command1};
    CallMemory call_memory;
    ContestSelection selection;
    ContestRefusals refusals;
    // The box about the contest data file keeps the caption of its kind from one showing to the
    // next.
    std::string dat_kind_caption;
    NameMas name_mas;
    std::size_t name_mas_max = 0;  // the highest number of a numbered name master
    HlCodeMas hl_code_mas;
    DatTable dat_table;
    // What the converter of Ctestwin logs has counted last.
    std::string lg8_qso_count;
    RunMode run_mode = RunMode::conversion;
    // Lines that the operator filter let through; .TXT logs are counted apart, and the warning
    // about an operator without lines looks at the first count alone.
    std::size_t kept_lines = 0;
    std::size_t kept_lines_of_txt = 0;
    bool run_finished = false;
    bool viewer_is_open = false;
    // The input, the .TXT and the .ALL of the tool for RTCL logs.
    std::array<std::unique_ptr<FreeViewer>, 3> free_viewers;
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
