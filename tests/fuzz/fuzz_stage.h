// A stage on a disk in memory for a target, and what a target holds its reader to.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "common/failure_report.h"
#include "common/run_time_error.h"
#include "platform/stage.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scripted_person.h"

namespace veldrana {

// Stops the process, in every build.
inline void require(bool holds, const char* what) {
    if (!holds) {
        static_cast<void>(std::fprintf(stderr, "does not hold: %s\n", what));
        std::abort();
    }
}

// One input as a file of the disk, and a stage beside it.
class FuzzStage {
  public:
    FuzzStage(std::string_view path, std::string_view bytes) : path_(path), bytes_(bytes) {
        disk.put(path, std::string(bytes));
    }

    // Runs a reader. A failure and an end of the program are right ways for it to end; the input
    // must be as it was.
    template <class Read>
    void run(Read read) {
        try {
            read();
        } catch (const RunTimeError&) {
        } catch (const ProgramEnd&) {
        }
        require(disk.bytes(path_) == bytes_, "the input is unchanged");
    }

    MemoryDisk disk;
    TraceLog trace;
    StableSort sorter{disk};
    ScriptedPerson person;
    Form form;
    Label lblCFG{form, "lblCFG"};
    ProgressBar bar{form, "ProgressBar1"};
    const Stage stage{disk, trace, sorter, person, lblCFG, bar};

  private:
    std::string path_;
    std::string bytes_;
};

}  // namespace veldrana
