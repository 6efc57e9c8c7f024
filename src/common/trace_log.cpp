#include "common/trace_log.h"

#include <utility>

namespace veldrana {

void TraceLog::set_path(std::string path) {
    path_ = std::move(path);
}

void TraceLog::open(std::unique_ptr<LineSink> sink) {
    sink_ = std::move(sink);
}

void TraceLog::write(std::string_view line) {
    if (sink_ != nullptr) {
        sink_->write_line(line);
        sink_->flush();
    }
}

void TraceLog::write_open_for_input(std::string_view path) {
    write("Open " + std::string(path) + " For Input As #f_i");
}

void TraceLog::write_open_for_output(std::string_view path) {
    write("Open " + std::string(path) + " For Output As #f_o");
}

void TraceLog::close() {
    // Forgotten first: a close that fails must not leave a log that fails again at every line.
    if (const std::unique_ptr<LineSink> sink = std::move(sink_)) {
        sink->close();
    }
}

}  // namespace veldrana
