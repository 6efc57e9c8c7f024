// Owns what the program reads from a call sign: its parts, whether the station is a Japanese one,
// and whether it is a Japanese club station.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldrana {

// JA1ABC/1 is JA1ABC and 1; JA1ABC/1/QRP is that too; KH2/JA1ABC is KH2 and JA1ABC. Views of the
// call.
struct CallParts {
    std::string_view base;
    std::string_view portable;  // empty without a "/"
};
CallParts split_portable(std::string_view call);

// What is carried from contact to contact, and from run to run: the rules below look back at it.
struct CallMemory {
    std::string ja_key;
    // Of the second letter of the last call that began with "J" among A to S, from 1; 0 for none.
    std::size_t club_position = 0;
};

// The part of a call that tells its country; stays what it was for a call whose two parts tell
// nothing. Trailing marks such as /P and /QRP are taken out first, in an order that leaves a letter
// behind: JA1ABC/MM ends up as JA1ABCM, JA1ABC/QRPP as JA1ABCP. Kept.
void find_ja_key(std::string_view call, CallMemory& memory);

// Whether a key fits 7[J-N], 8[J-N] or J[A-S] with a digit behind; small letters do not.
bool is_japanese(std::string_view ja_key);

// Whether the call base is that of a club: its fourth character is Y or Z, behind a J with a letter
// from A to S. Five characters never are; for a call that does not begin with "J" the letter of the
// last one that did counts.
bool is_club(std::string_view call_base, CallMemory& memory);

}  // namespace veldrana
