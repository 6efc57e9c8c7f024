// Owns what the stages of the output are told: folders, names and options of the run.
#pragma once

#include <string>
#include <string_view>

#include "output/output_names.h"
#include "settings/run_options.h"

namespace veldrana {

struct OutputRequest {
    std::string_view drive_path;  // folder of the scratch files, with a backslash at its end
    std::string_view in_Dir;      // folder of the log, the same
    const OutputNames& names;
    const RunOptions& options;

    // A scratch file.
    std::string scratch(std::string_view name) const {
        return std::string(drive_path).append(name);
    }
};

}  // namespace veldrana
