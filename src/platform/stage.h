// Owns what every stage of a run is handed to do its work with: the disk, the trace log, the sort
// service, and the two controls that show how far it is. A stage opens its files here, so that each
// opening stands in the trace log.
#pragma once

#include <cstddef>
#include <string_view>

#include "common/controls.h"
#include "common/person.h"
#include "common/trace_log.h"
#include "platform/disk.h"
#include "platform/sort_service.h"
#include "platform/text_file.h"

namespace veldrana {

struct Stage {
    Disk& disk;
    TraceLog& trace;
    SortService& sorter;
    Person& person;
    Label& lblCFG;
    ProgressBar& ProgressBar1;

    TextInput open_input(std::string_view path) const;
    TextOutput open_output(std::string_view path, WriteMode mode = WriteMode::replace) const;

    // Puts a caption into the status label.
    void tell(std::string_view caption, Colour colour) const;

    // Copies a file line by line, over another or behind its end.
    void copy_lines(std::string_view from, std::string_view to,
                    WriteMode mode = WriteMode::replace) const;

    // Takes the count of records of a file, one more than its lines if it ends in a line end, and
    // starts the progress bar with it; the maximum is `beyond` more than the count. Returns the
    // count. The file is only read, so a write-protected log has its count too.
    std::size_t count_file_rec(std::string_view path, std::size_t beyond = 1) const;

    // Has a file sorted; events of the screen run before each attempt while the service is busy.
    void sort(const SortCommand& command) const;

    // Deletes a file, which must be there.
    void remove(std::string_view path) const;
};

}  // namespace veldrana
