// Owns what every stage of a run is handed to do its work with: the disk, the trace log, and the
// two controls that show how far it is. A stage opens its files here, so that each opening stands
// in the trace log.
#pragma once

#include <cstddef>
#include <string_view>

#include "common/controls.h"
#include "common/trace_log.h"
#include "platform/disk.h"
#include "platform/text_file.h"

namespace veldrana {

struct Stage {
    Disk& disk;
    TraceLog& trace;
    Label& lblCFG;
    ProgressBar& ProgressBar1;

    TextInput open_input(std::string_view path) const;
    TextOutput open_output(std::string_view path) const;

    // Puts a caption into the status label.
    void tell(std::string_view caption, Colour colour) const;

    // Takes the count of records of a file, one more than its lines if it ends in a line end, and
    // starts the progress bar with it; the maximum is `beyond` more than the count. Returns the
    // count. The file is only read.
    std::size_t count_file_rec(std::string_view path, std::size_t beyond = 1) const;
};

}  // namespace veldrana
