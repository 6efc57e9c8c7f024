// A program on a disk in memory, with a person who answers by script.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "app/program.h"
#include "app/start_up.h"
#include "common/text.h"
#include "platform/code_page_932.h"
#include "platform/log_book_file.h"
#include "platform/profile_file.h"
#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scripted_person.h"
#include "tests/doubles/scripted_processes.h"

namespace veldrana {

// Services that are there unless a test takes one away.
class ScriptedServices : public Services {
  public:
    std::optional<Service> missing;
    bool is_there(Service service) override { return service != missing; }
};

// What lies in the program's folder before the start.
enum class Installed { bare, ready };

// The environment of a station with everything set.
inline constexpr std::string_view ready_environment =
    "[Veldrana_cfg.ini]\r\nversion=5.30\r\nzlog_dat_dir=C:\\zLog\\\r\n"
    "name_mas_dir=使用しない\r\nqth_mas_dir=使用しない\r\nyubin_mas_dir=使用しない\r\n"
    "hamlog_hdb_dir=C:\\Hamlog\\Hamlog.hdb\r\nhamlog_hdb_2_dir=C:\\Hamlog\\Hamlog.hdb\r\n"
    "zlo_dir=C:\\log\\\r\nall_dir=C:\\log\\\r\nMyCalls=JA1ZZZ\r\nPassWords=secret\r\n"
    "No_QSL_moji=N\r\nNo_QSL_moji_set_flag=1\r\n";

// A contest list of two contests, one of them without a data file.
inline constexpr std::string_view ready_contest_list =
    "No,Cfg_name,Dat_name,Con_name,Code_flag,Con_no_1,Con_no_2,\r\n"
    "1,acag.cfg,acag.dat,全市全郡コンテスト,31,JCC・JCG + 電力,,\r\n"
    "2,dx.cfg,no.dat,DXコンテスト,00,連番号,,\r\n";

struct ProgramKit {
    // A bare folder holds what is laid there with the program; a ready one has the options of a new
    // one besides and has been started before.
    explicit ProgramKit(std::string_view program_folder = "C:\\veldrana",
                        Installed installed = Installed::ready) {
        memory.put_folder(program_folder);
        program.emplace(Ports{disk, clock, person, sorter, services, log_book, processes},
                        program_folder, "C:\\WINDOWS");
        if (installed == Installed::ready) {
            SettingsStore options(memory, clock, program->paths.strPath);
            options.set_default_options();
            options.write_Veldrana_new_ini();
            put_text(program->paths.strPath + "Veldrana_cfg.ini", ready_environment);
        }
        put_text(program->paths.contest_name_csv, ready_contest_list);
    }

    // Whether the start came to the main screen.
    bool start() {
        program->event([this] { Main(*program); });
        return program->start.reached == Start::main_screen;
    }

    // A value of a profile file as it lies on the disk.
    std::string stored(std::string_view file, std::string_view section, std::string_view key) {
        return ProfileFile(memory, program->paths.strPath + std::string(file)).value(section, key);
    }
    // The same of the option file's main section.
    std::string stored_option(std::string_view key) { return stored(new_ini, new_ini, key); }

    // Presses the entry that asks for a file, and answers with this one.
    void open(std::string_view path) {
        person.files = {std::string(path)};
        screen().mnuOpen.press();
    }

    void put_text(std::string_view path, std::string_view text) {
        memory.put(path, to_code_page(text));
    }

    MainScreen& screen() { return program->screen; }

    // The lines of the trace log as they lie on the disk.
    std::vector<std::string> trace_lines() {
        std::vector<std::string> lines;
        const std::string bytes = memory.bytes(program->trace.path());
        const std::string text = from_code_page(bytes);
        for (const std::string_view line : split(text, "\r\n")) {
            lines.emplace_back(line);
        }
        if (!lines.empty()) {
            lines.pop_back();  // behind the last line end
        }
        return lines;
    }

    MemoryDisk memory;
    FailingDisk disk{memory};
    FixedClock clock;
    ScriptedPerson person;
    StableSort sorter{disk};
    ScriptedServices services;
    OwnHamlogLibrary log_book{disk};
    ScriptedProcesses processes;
    std::optional<Program> program;
};

// A .ALL log of two contacts with operators, frequencies and memos.
inline constexpr std::string_view sample_all_log =
    "zLog for Windows \r\n"
    "2025/04/26 21:05 JA1ZZA       599 11M     589 104M    104   -     7    CW   1  "
    "%%JA1ZZZ%% SSN (7012)\r\n"
    "2025/04/26 21:06 JR8YYX/1     59  11M     57  101H    101   -     430  FM   1  "
    "%%JA1ZZY%%\r\n";

// A .TXT log of one contact.
inline constexpr std::string_view sample_txt_log =
    "mon day time  callsign      sent\r\n"
    "08  03 1205 JA1ZZA     59          59 101               430   FM      1\r\n";

}  // namespace veldrana
