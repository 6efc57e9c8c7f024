// A test of a stage: a disk in memory, a trace log whose lines can be looked at, and the two
// controls that a stage shows its state in.
#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/stage.h"
#include "tests/doubles/collected_trace.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scripted_person.h"

namespace veldrana {

class StageFixture : public testing::Test {
  protected:
    // The lines of the trace log that tell of a failure.
    std::vector<std::string> error_lines() const {
        std::vector<std::string> lines;
        std::copy_if(
            trace.lines.begin(), trace.lines.end(), std::back_inserter(lines),
            [](const std::string& line) { return line.starts_with(TraceLog::failure_mark); });
        return lines;
    }

    Form form;
    Label lblCFG{form, "lblCFG"};
    ProgressBar bar{form, "ProgressBar1"};
    MemoryDisk disk;
    CollectedTrace trace;
    StableSort sorter{disk};
    ScriptedPerson person;
    const Stage stage{disk, trace.log, sorter, person, lblCFG, bar};
};

}  // namespace veldrana
