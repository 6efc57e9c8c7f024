// Owns what the reader of a log is told, whatever the form of the log.
#pragma once

#include <string_view>

#include "settings/remark_items.h"
#include "settings/run_options.h"

namespace veldrana {

struct LogRequest {
    std::string_view in_name;  // full path of the log
    std::string_view in_Dir;   // folder of zlog_1.txt, with a backslash at its end
    const RunOptions& options;
    const RemarkUse& use;
};

}  // namespace veldrana
