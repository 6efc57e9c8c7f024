// Owns how the history tells bands and modes apart: a letter for the band and a digit for the mode,
// such as "E2" for CW on 14 MHz.
#pragma once

#include <string>
#include <string_view>

namespace veldrana {

struct BandMode {
    char letter = 'Z';  // 'A' to 'O'; 'Z' for every frequency that stands on none of the bands
    char digit = '9';   // '1' to '7'; '9' for every other mode

    std::string code() const { return {letter, digit}; }
    friend bool operator==(const BandMode&, const BandMode&) = default;
};

// Of a frequency in MHz, the number that its text begins with, and a mode, trimmed here; capitals
// count.
BandMode band_mode_of(std::string_view frequency, std::string_view mode);

}  // namespace veldrana
