// Owns the two ports through which text passes line by line: where lines come from and where they
// go. platform/text_file.h makes files of them; tests use strings.
#pragma once

#include <string_view>

namespace veldrana {

class LineSource {
  public:
    LineSource() = default;
    LineSource(const LineSource&) = delete;
    LineSource& operator=(const LineSource&) = delete;
    virtual ~LineSource() = default;

    // The next line without its end; false when there is none. The view is valid until the next
    // call.
    virtual bool next_line(std::string_view& line) = 0;

    // Whether every line was read. Gives up the line that next_line gave.
    virtual bool at_end() = 0;
};

// The next line; failure 62 when there is none.
std::string_view read_line(LineSource& source);

class LineSink {
  public:
    LineSink() = default;
    LineSink(const LineSink&) = delete;
    LineSink& operator=(const LineSink&) = delete;
    virtual ~LineSink() = default;

    // Writes the line and its end.
    virtual void write_line(std::string_view line) = 0;

    // Hands over what was written so far, so that it survives a sudden end of the program.
    virtual void flush() = 0;

    // Finishes the file; a failure of the last bytes shows here. A sink that is destroyed without
    // it, as when a failure passes, hands over what it can and says nothing.
    virtual void close() = 0;
};

}  // namespace veldrana
