// Owns what looks at several bytes of a text at once, as one number.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace veldrana {

constexpr std::size_t block_size = sizeof(std::uint64_t);

// The block at a byte offset, with at least so many bytes behind it.
inline std::uint64_t block_at(std::string_view text, std::size_t offset) noexcept {
    std::uint64_t block = 0;
    std::memcpy(&block, text.data() + offset, block_size);
    return block;
}

// How many bytes of the text stand in front of the blanks at its end.
inline std::size_t size_without_blanks(std::string_view text) noexcept {
    // Fixed columns end in long runs of blanks.
    constexpr std::uint64_t block_of_blanks = 0x2020202020202020U;
    std::size_t size = text.size();
    if constexpr (std::endian::native == std::endian::little) {
        while (size >= block_size) {
            // The last byte of a block stands in its highest bits.
            const std::uint64_t others = block_at(text, size - block_size) ^ block_of_blanks;
            if (others != 0) {
                return size - static_cast<std::size_t>(std::countl_zero(others)) / 8;
            }
            size -= block_size;
        }
    }
    while (size > 0 && text[size - 1] == ' ') {
        --size;
    }
    return size;
}

}  // namespace veldrana
