// Owns the copying of fields and columns, which are mostly a few bytes long: a call of the library
// for each costs more than their bytes.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace veldrana {

// Copies a text that is mostly a few bytes long; returns the place behind it. Copies may lie over
// each other, so that hardly anything depends on the exact size.
inline char* copy_short(std::string_view text, char* to) noexcept {
    const char* const from = text.data();
    const std::size_t size = text.size();
    if (size >= 8) {
        for (std::size_t at = 0; at + 8 < size; at += 8) {
            std::memcpy(to + at, from + at, 8);
        }
        std::memcpy(to + size - 8, from + size - 8, 8);
    } else if (size >= 4) {
        std::memcpy(to, from, 4);
        std::memcpy(to + size - 4, from + size - 4, 4);
    } else if (size > 0) {
        to[0] = from[0];
        to[size / 2] = from[size / 2];
        to[size - 1] = from[size - 1];
    }
    return to + size;
}

}  // namespace veldrana
