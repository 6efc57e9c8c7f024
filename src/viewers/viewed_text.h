// Owns the text of a file that a viewer shows: the bytes as they lie in the file, made into lines
// as they are asked for, so that a file of 100 MB opens at once.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/disk.h"

namespace veldrana {

class ViewedText {
  public:
    ViewedText() = default;
    // Reads the file whole. The failures of Disk::open_for_reading.
    ViewedText(Disk& disk, std::string_view path);

    // A line ends in CR LF or LF; an empty file has none.
    std::size_t count() const noexcept { return starts_.size(); }
    // By its place from 0; failure 9 if there is none.
    std::string line(std::size_t index) const;
    // The bytes of the longest line, which in a font of fixed width are its columns.
    std::size_t widest() const noexcept { return widest_; }

  private:
    std::string_view bytes_of(std::size_t index) const;

    std::string bytes_;
    std::vector<std::size_t> starts_;  // of the lines
    std::size_t widest_ = 0;
};

}  // namespace veldrana
