// Owns how a conversion ends: the rows that the stages have left become the result files, and the
// counters of the run are shown.
#pragma once

#include <cstddef>

#include "app/program.h"
#include "output/split_merge.h"
#include "settings/run_options.h"

namespace veldrana {

// What the stages of a conversion hand over.
struct Conversion {
    RunOptions options;
    SplitCounts counts;
    std::size_t no_qsl = 0;  // contacts that the row builder marked as needing no card
};

// Marks of whole stations, the letter for "no card", the last pass, counters, and the files that
// nobody needs any more.
void end_conversion(Program& program, const Conversion& conversion);

}  // namespace veldrana
