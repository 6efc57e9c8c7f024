// A trace log whose lines a test can look at.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/trace_log.h"
#include "tests/doubles/string_lines.h"

namespace veldrana {

struct CollectedTrace {
    CollectedTrace() { log.open(std::make_unique<CollectedLines>(lines)); }
    CollectedTrace(const CollectedTrace&) = delete;
    CollectedTrace& operator=(const CollectedTrace&) = delete;
    ~CollectedTrace() = default;

    std::vector<std::string> lines;
    TraceLog log;
};

}  // namespace veldrana
