// Lines from and to memory.
#pragma once

#include <string>
#include <vector>

#include "common/text_lines.h"

namespace veldrana {

class StringLines : public LineSource {
  public:
    explicit StringLines(std::vector<std::string> lines) : lines_(std::move(lines)) {}
    bool next_line(std::string_view& line) override {
        if (at_end()) {
            return false;
        }
        line = lines_[next_++];
        return true;
    }
    bool at_end() override { return next_ == lines_.size(); }

  private:
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
};

// Keeps its lines where the test can see them after the sink is gone.
class CollectedLines : public LineSink {
  public:
    explicit CollectedLines(std::vector<std::string>& lines) : lines_(lines) {}
    void write_line(std::string_view line) override { lines_.emplace_back(line); }
    void flush() override {}
    void close() override {}

  private:
    std::vector<std::string>& lines_;
};

}  // namespace veldrana
