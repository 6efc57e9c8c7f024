// Owns the building of a line from pieces and fixed columns.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "common/copy_short.h"

namespace veldrana {

// A column: a text in so many bytes of the code page, as append_fixed_width puts it down, with
// blanks behind it.
struct FixedText {
    std::string_view text;
    std::size_t width;
    std::size_t blanks = 0;
};

// Keeps its memory from line to line.
class ColumnLine {
  public:
    ColumnLine& clear() noexcept {
        size_ = 0;
        return *this;
    }

    template <std::convertible_to<std::string_view>... Pieces>
    ColumnLine& add(const Pieces&... pieces) {
        char* to = room_for((std::string_view(pieces).size() + ...));
        ((to = copy_short(pieces, to)), ...);
        size_ = static_cast<std::size_t>(to - buffer_.data());
        return *this;
    }

    ColumnLine& add_columns(std::span<const FixedText> columns);
    ColumnLine& add_column(std::string_view text, std::size_t width) {
        return add_columns(std::array{FixedText{text, width}});
    }

    std::string_view text() const noexcept { return {buffer_.data(), size_}; }

  private:
    // Where the next bytes go, with room for so many of them.
    char* room_for(std::size_t count) {
        if (buffer_.size() - size_ < count) {
            buffer_.resize(2 * (size_ + count));
        }
        return buffer_.data() + size_;
    }

    std::vector<char> buffer_;
    std::size_t size_ = 0;  // of the line
};

}  // namespace veldrana
