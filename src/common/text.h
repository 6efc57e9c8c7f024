// Owns text inside the program: UTF-8 in std::string, counted in characters or in the bytes that
// the text takes in a file.
//
// Text is well-formed UTF-8. Bytes of a file that are no character in code page 932 travel inside
// as private characters (see unreadable_byte and unreadable_pair), so that a text read from a file
// goes back to it unchanged; platform/code_page_932.h does both ways.
//
// Functions that return a std::string_view return a piece of the text they were given and are
// valid as long as it is. Positions count from 1, as in every file format of the program; a
// negative length is failure 5. Blanks are 0x20 alone.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace veldrana {

// A count of characters or bytes as a procedure works it out; may come out negative by mistake.
using Count = std::ptrdiff_t;

// A byte that is no character stands inside as unreadable_byte + its value (80, A0, FD to FF, and
// a lead byte without its second); a double-byte code that the page leaves open as
// unreadable_pair + its two bytes. Both lie in Unicode's private planes.
constexpr char32_t unreadable_byte = 0x10F700;
constexpr char32_t unreadable_pair = 0xF0000;

bool is_ascii(std::string_view text) noexcept;

// How many bytes at the start of the text are ASCII, looking no further than `limit`. There a byte
// is a character is a byte of the code page, so positions need no counting.
std::size_t ascii_prefix(std::string_view text,
                         std::size_t limit = std::string_view::npos) noexcept;

// The character that starts at a byte offset of the text, and the bytes that it takes there. A
// byte that belongs to no well-formed character counts as one character of one byte.
struct Character {
    char32_t code;
    std::size_t size;
    bool well_formed;
};
Character character_at(std::string_view text, std::size_t offset) noexcept;

void append_character(std::string& text, char32_t code);

// The text with every byte that is not part of well-formed UTF-8 replaced by "?". For what comes
// from outside: names of files, arguments of a command.
std::string well_formed(std::string_view text);

// --- by characters ---

std::size_t length(std::string_view text) noexcept;
std::string_view left(std::string_view text, Count count);
std::string_view right(std::string_view text, Count count);
// Start below 1 is failure 5; a start behind the end gives an empty piece.
std::string_view mid(std::string_view text, Count start);
std::string_view mid(std::string_view text, Count start, Count count);
// The position of the first occurrence at or behind start, 0 if there is none. An empty piece is
// found at start. Start below 1 is failure 5.
std::size_t find(std::string_view text, std::string_view piece, std::size_t start = 1);

// Every occurrence, from left to right, not looking back at what was put in. An empty piece
// changes nothing.
std::string replace_all(std::string_view text, std::string_view piece, std::string_view with);

// ASCII and full-width letters.
std::string upper(std::string_view text);
std::string lower(std::string_view text);

// Full-width characters by their half-width forms: the letters, digits and signs of ASCII, the
// blank, katakana and their punctuation; a voiced katakana becomes two characters. What has no
// half-width form stays.
std::string narrow(std::string_view text);

std::string_view trim(std::string_view text) noexcept;
std::string_view trim_left(std::string_view text) noexcept;
std::string_view trim_right(std::string_view text) noexcept;

// The pieces between separators; an empty text has no piece. An empty separator divides nothing.
std::vector<std::string_view> split(std::string_view text, std::string_view separator);

// The text up to its first NUL.
std::string_view until_nul(std::string_view text) noexcept;

// --- numbers ---

// The number at the start of a text as BASIC reads it: blanks, tabs and line ends are skipped
// wherever they stand, then sign, digits, one point, an exponent by E or D; reading stops at the
// first character that does not fit. &H and &O, without a sign, give 16 or, if that is too few,
// 32 bits with sign: &HFFFF is -1; a trailing "&" asks for 32 bits: &HFFFF& is 65535. No number is
// 0; one that is too large for its form is failure 6.
double val(std::string_view text);

// The number right aligned in a width; a longer one is not cut.
std::string right_aligned(Count number, std::size_t width);

// --- by the bytes that the text takes in code page 932 ---

// ASCII, half-width katakana and unreadable single bytes take 1, all other characters 2.
std::size_t LenMbcs(std::string_view text) noexcept;

// The piece behind the first whole character after which at least start - 1 bytes have passed, as
// many whole characters as fit in count bytes. A character is never cut; without count the rest of
// the text. A start below 1 counts as 1.
std::string_view MidMbcs(std::string_view text, Count start);
std::string_view MidMbcs(std::string_view text, Count start, Count count);

// The text in exactly width bytes: filled with blanks, or cut, where half of a double-byte
// character at the cut becomes a blank. For writing fixed columns.
std::string fixed_width(std::string_view text, std::size_t width);
// The same behind the end of a line that is put together.
void append_fixed_width(std::string& line, std::string_view text, std::size_t width);

// A line in fixed columns: MidMbcs for many columns of one line. Columns in the ASCII part at the
// line's start, nearly all of a log's, are cut without counting. Keeps a view of the line.
class FixedColumns {
  public:
    explicit FixedColumns(std::string_view line) noexcept;

    std::string_view column(std::size_t start, std::size_t count) const;
    std::string_view trimmed(std::size_t start, std::size_t count) const {
        return trim(column(start, count));
    }

  private:
    std::string_view line_;
    std::size_t ascii_;  // bytes of the part
};

}  // namespace veldrana
