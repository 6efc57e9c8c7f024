// Owns the trace log: one text file that tells the procedures entered, the files opened and the
// stages passed since the program started. A user can send it after a failure, and the orderly end
// looks through it for failures before it is thrown away.
//
// Its strings are a format: whoever writes a line writes the exact string of the procedure.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "common/text_lines.h"

namespace veldrana {

class TraceLog {
  public:
    // What marks a failure in the log.
    static constexpr std::string_view failure_mark = "エラー発生";

    // Fixes where the log will be: what the error report names, also if the log cannot be opened.
    void set_path(std::string path);
    // Takes over the open file; a log that is open already is given up for it.
    void open(std::unique_ptr<LineSink> sink);

    bool is_open() const noexcept { return sink_ != nullptr; }
    // trace_log_path: full path of the log, before it is opened and after it is closed too.
    const std::string& path() const noexcept { return path_; }

    // Writes a line and hands it over at once, so that it survives whatever comes next. Does
    // nothing while the log is not open: a start that fails early has none.
    void write(std::string_view line);

    // "Open ", the path and the role of the file.
    void write_open_for_input(std::string_view path);
    void write_open_for_output(std::string_view path);

    void close();

  private:
    std::unique_ptr<LineSink> sink_;
    std::string path_;
};

}  // namespace veldrana
