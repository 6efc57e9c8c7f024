// A program on a disk in memory, with a person who answers by script.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "app/program.h"
#include "app/start_up.h"
#include "common/text.h"
#include "platform/code_page_932.h"
#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scripted_person.h"

namespace veldrana {

struct ProgramKit {
    explicit ProgramKit(std::string_view program_folder = "C:\\veldrana") {
        memory.put_folder(program_folder);
        program.emplace(Ports{disk, clock, person, sorter}, program_folder, "C:\\WINDOWS");
    }

    bool start() {
        return program->event([this] { Main(*program); });
    }

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
