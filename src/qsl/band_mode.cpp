#include "qsl/band_mode.h"

#include <algorithm>
#include <array>

#include "common/text.h"

namespace veldrana {
namespace {

// In MHz; both ends belong to the band.
struct Band {
    double from;
    double to;
    char letter;
};
constexpr std::array bands{
    Band{1, 2, 'A'},       Band{3, 4, 'B'},       Band{7, 8, 'C'},       Band{9, 11, 'D'},
    Band{13, 15, 'E'},     Band{17, 19, 'F'},     Band{20, 22, 'G'},     Band{23, 25, 'H'},
    Band{27, 30, 'I'},     Band{49, 54, 'J'},     Band{143, 146, 'K'},   Band{429, 440, 'L'},
    Band{1119, 1300, 'M'}, Band{2399, 2450, 'N'}, Band{5399, 5850, 'O'},
};

struct Mode {
    std::string_view name;
    char digit;
};
constexpr std::array modes{
    Mode{"SSB", '1'}, Mode{"CW", '2'},  Mode{"AM", '3'},  Mode{"FM", '4'},
    Mode{"STV", '5'}, Mode{"RTY", '6'}, Mode{"PSK", '7'}, Mode{"A3J", '1'},
    Mode{"A1", '2'},  Mode{"A3", '3'},  Mode{"F3", '4'},
};

}  // namespace

BandMode band_mode_of(std::string_view frequency, std::string_view mode) {
    const double megahertz = val(frequency);
    const std::string_view name = trim(mode);
    BandMode found;
    const auto* const band = std::find_if(bands.begin(), bands.end(), [megahertz](const Band& row) {
        return megahertz >= row.from && megahertz <= row.to;
    });
    if (band != bands.end()) {
        found.letter = band->letter;
    }
    const auto* const known = std::find_if(modes.begin(), modes.end(),
                                           [name](const Mode& row) { return row.name == name; });
    if (known != modes.end()) {
        found.digit = known->digit;
    }
    return found;
}

}  // namespace veldrana
