// Owns how the contest file gets its order: stations worked once and stations worked more than once
// are told apart, sorted, and written one behind the other or together, as HamlogRows to _c0.csv.
//
// Every file is read row first, end tested afterwards, so none may be empty: both group files end
// in a sentinel row, which sorts like any other and is left out of the result by its call sign. A
// station that is really logged as AAAAAA goes the same way; kept.
#pragma once

#include <cstddef>

#include "output/output_request.h"
#include "platform/stage.h"

namespace veldrana {

struct SplitCounts {
    std::size_t lines = 0;
    std::size_t multiples = 0;
    std::size_t singles = 0;
};

// Sort-out.dat to _c0.csv. A station is what stands behind one another with the same first column:
// the sort before looked at seven bytes of it, so a longer call with another of the same start
// between its contacts counts as two stations.
SplitCounts temp_sep(const Stage& stage, const OutputRequest& request);

}  // namespace veldrana
