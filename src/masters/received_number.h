// Owns how a number received is cut. Numeric is a digit from 0 to 9 and nothing else, be it
// full-width or a sign. The functions return pieces of the text they are given.
#pragma once

#include <string_view>

namespace veldrana {

constexpr bool is_digit(char byte) noexcept {
    return byte >= '0' && byte <= '9';
}

// What stands in front of the first character that is no digit: "1234" of "1234H", nothing of
// "H1234".
std::string_view leading_digits(std::string_view number) noexcept;

// What stands in front of the first digit: "TK" of "TK12".
std::string_view leading_letters(std::string_view number) noexcept;

}  // namespace veldrana
