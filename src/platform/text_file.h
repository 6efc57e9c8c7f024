// Owns text files: lines of UTF-8 inside, bytes of code page 932 with CR LF outside. One line is in
// memory at a time, however long the file is.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "common/text_lines.h"
#include "platform/disk.h"

namespace veldrana {

// A line ends in CR LF; a lone LF is accepted, and a last line without an end counts.
class TextInput : public LineSource {
  public:
    // The failures of Disk::open_for_reading.
    TextInput(Disk& disk, std::string_view path);

    bool next_line(std::string_view& line) override;
    bool at_end() override;

  private:
    // Reads on behind what is in the buffer; false at the end of the file.
    bool fill();

    std::unique_ptr<ByteSource> source_;
    std::string buffer_;
    std::size_t begin_ = 0;  // of what was not handed out yet
    std::size_t end_ = 0;    // of what was read
    bool exhausted_ = false;
    std::string line_;  // a line that is not all ASCII, as UTF-8
};

class TextOutput final : public LineSink {
  public:
    // The failures of Disk::open_for_writing.
    TextOutput(Disk& disk, std::string_view path, WriteMode mode = WriteMode::replace);
    explicit TextOutput(std::unique_ptr<ByteSink> sink);
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;
    ~TextOutput() override;

    void write_line(std::string_view line) override;
    // The same for a line in the bytes of the code page.
    void write_bytes(std::string_view line);
    void flush() override;
    void close() override;

  private:
    void end_line();
    // Writes so many bytes from the front of the buffer.
    void hand_over(std::size_t count);

    std::unique_ptr<ByteSink> sink_;  // null once closed
    std::string buffer_;
};

// How many lines a file has, as a stream that has read it to its end tells it: the line ends in it
// plus one. A file that ends in a line end so counts one more than it has lines.
std::size_t line_number_at_end(Disk& disk, std::string_view path);

}  // namespace veldrana
