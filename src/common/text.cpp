#include "common/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "common/byte_blocks.h"
#include "common/run_time_error.h"

namespace veldrana {
namespace {

constexpr std::uint64_t high_bits = 0x8080808080808080U;

// The bits that are set in any of four blocks.
std::uint64_t four_blocks_at(std::string_view text, std::size_t offset) noexcept {
    return block_at(text, offset) | block_at(text, offset + block_size) |
           block_at(text, offset + 2 * block_size) | block_at(text, offset + 3 * block_size);
}

constexpr bool is_continuation(char byte) noexcept {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

void require_not_negative(Count count) {
    if (count < 0) {
        throw RunTimeError(Failure::invalid_call);
    }
}

// The byte offset behind the first `count` characters.
std::size_t offset_of(std::string_view text, std::size_t count) noexcept {
    std::size_t offset = ascii_prefix(text, count);
    for (count -= offset; count > 0 && offset < text.size(); --count) {
        offset += character_at(text, offset).size;
    }
    return offset;
}

std::size_t page_width(const Character& character) noexcept {
    const char32_t code = character.code;
    const bool half_width_katakana = code >= 0xFF61 && code <= 0xFF9F;
    const bool single_byte = code >= unreadable_byte && code <= unreadable_byte + 0xFF;
    return code < 0x80 || half_width_katakana || single_byte || !character.well_formed ? 1 : 2;
}

// The byte offset behind whole characters, as many as fit in `room` bytes of the code page or, to
// cover it, one more.
enum class Cover { fit, reach };
std::size_t offset_of_bytes(std::string_view text, std::size_t room, Cover cover) noexcept {
    std::size_t offset = ascii_prefix(text, room);
    std::size_t passed = offset;
    while (offset < text.size() && passed < room) {
        const Character character = character_at(text, offset);
        passed += page_width(character);
        if (passed > room && cover == Cover::fit) {
            break;
        }
        offset += character.size;
    }
    return offset;
}

std::string shift_letters(std::string_view text, char first, char last, char32_t wide_first,
                          int distance) {
    std::string shifted(text);
    const char32_t wide_last = wide_first + 25;
    for (std::size_t offset = 0; offset < shifted.size();) {
        const Character character = character_at(shifted, offset);
        if (character.size == 1 && shifted[offset] >= first && shifted[offset] <= last) {
            shifted[offset] = static_cast<char>(shifted[offset] + distance);
        } else if (character.code >= wide_first && character.code <= wide_last) {
            std::string wide;
            append_character(wide,
                             static_cast<char32_t>(static_cast<int>(character.code) + distance));
            shifted.replace(offset, character.size, wide);
        }
        offset += character.size;
    }
    return shifted;
}

// The full-width forms of U+FF61 to U+FF9F, in their order.
constexpr std::u32string_view wide_katakana =
    U"。「」、・ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホ"
    U"マミムメモヤユヨラリルレロワン゛゜";
constexpr char32_t first_narrow_katakana = 0xFF61;
constexpr char32_t voiced_mark = 0xFF9E;
constexpr char32_t half_voiced_mark = 0xFF9F;
// Each stands one, or two, behind the one that it is made of.
constexpr std::u32string_view voiced_katakana = U"ガギグゲゴザジズゼゾダヂヅデドバビブベボ";
constexpr std::u32string_view half_voiced_katakana = U"パピプペポ";

// Nothing is appended if the character has no half-width form.
bool append_narrow(std::string& text, char32_t code) {
    constexpr char32_t to_wide_ascii = 0xFEE0;
    if (code >= U'！' && code <= U'～') {
        append_character(text, code - to_wide_ascii);
        return true;
    }
    if (code == U'　') {
        text += ' ';
        return true;
    }
    char32_t base = code;
    char32_t mark = 0;
    if (voiced_katakana.find(code) != std::u32string_view::npos) {
        base = code - 1;
        mark = voiced_mark;
    } else if (half_voiced_katakana.find(code) != std::u32string_view::npos) {
        base = code - 2;
        mark = half_voiced_mark;
    } else if (code == U'ヴ') {
        base = U'ウ';
        mark = voiced_mark;
    }
    const std::size_t place = wide_katakana.find(base);
    if (place == std::u32string_view::npos) {
        return false;
    }
    append_character(text, first_narrow_katakana + static_cast<char32_t>(place));
    if (mark != 0) {
        append_character(text, mark);
    }
    return true;
}

// The value of digits in a base of 8 or 16 as a 16- or 32-bit number with sign.
double radix_value(std::string_view digits, int base) {
    std::uint64_t value = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, base);
    if (stop == digits.data()) {
        return 0;
    }
    if (error != std::errc{} || value > std::numeric_limits<std::uint32_t>::max()) {
        throw RunTimeError(Failure::overflow);
    }
    // A trailing "&" asks for the wide form: &HFFFF is -1, &HFFFF& is 65535.
    const bool wide = stop != end && *stop == '&';
    if (!wide && value <= std::numeric_limits<std::uint16_t>::max()) {
        return static_cast<std::int16_t>(value);
    }
    return static_cast<std::int32_t>(value);
}

}  // namespace

bool is_ascii(std::string_view text) noexcept {
    if (text.size() < block_size) {
        return ascii_prefix(text, text.size()) == text.size();
    }
    // The last block may lie over the one before it: so no bytes are left for the end.
    std::uint64_t bits = block_at(text, text.size() - block_size);
    std::size_t offset = 0;
    for (; offset + 4 * block_size <= text.size(); offset += 4 * block_size) {
        bits |= four_blocks_at(text, offset);
    }
    for (; offset + block_size <= text.size(); offset += block_size) {
        bits |= block_at(text, offset);
    }
    return (bits & high_bits) == 0;
}

std::size_t ascii_prefix(std::string_view text, std::size_t limit) noexcept {
    const std::size_t end = std::min(text.size(), limit);
    std::size_t offset = 0;
    while (offset + 4 * block_size <= end && (four_blocks_at(text, offset) & high_bits) == 0) {
        offset += 4 * block_size;
    }
    while (offset + block_size <= end && (block_at(text, offset) & high_bits) == 0) {
        offset += block_size;
    }
    while (offset < end && static_cast<unsigned char>(text[offset]) < 0x80) {
        ++offset;
    }
    return offset;
}

Character character_at(std::string_view text, std::size_t offset) noexcept {
    const auto lead = static_cast<unsigned char>(text[offset]);
    if (lead < 0x80) {
        return {lead, 1, true};
    }
    const auto size = static_cast<std::size_t>(std::countl_one(lead));
    if (size < 2 || size > 4 || offset + size > text.size()) {
        return {lead, 1, false};
    }
    char32_t code = lead & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        if (!is_continuation(text[offset + i])) {
            return {lead, 1, false};
        }
        code = code << 6U | (static_cast<unsigned char>(text[offset + i]) & 0x3FU);
    }
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < smallest[size] || code > 0x10FFFF || surrogate) {
        return {lead, 1, false};
    }
    return {code, size, true};
}

void append_character(std::string& text, char32_t code) {
    const auto byte = [&text](char32_t value) { text += static_cast<char>(value); };
    const auto tail = [&byte, code](unsigned shift) { byte(0x80U | (code >> shift & 0x3FU)); };
    if (code < 0x80) {
        byte(code);
    } else if (code < 0x800) {
        byte(0xC0U | code >> 6U);
        tail(0);
    } else if (code < 0x10000) {
        byte(0xE0U | code >> 12U);
        tail(6);
        tail(0);
    } else {
        byte(0xF0U | code >> 18U);
        tail(12);
        tail(6);
        tail(0);
    }
}

std::string well_formed(std::string_view text) {
    std::string result(text);
    for (std::size_t offset = 0; offset < result.size();) {
        const Character character = character_at(result, offset);
        if (!character.well_formed) {
            result[offset] = '?';
        }
        offset += character.size;
    }
    return result;
}

std::size_t length(std::string_view text) noexcept {
    std::size_t offset = ascii_prefix(text, text.size());
    std::size_t count = offset;
    for (; offset < text.size(); ++count) {
        offset += character_at(text, offset).size;
    }
    return count;
}

std::string_view left(std::string_view text, Count count) {
    require_not_negative(count);
    return text.substr(0, offset_of(text, static_cast<std::size_t>(count)));
}

std::string_view right(std::string_view text, Count count) {
    require_not_negative(count);
    const std::size_t all = length(text);
    const auto wanted = static_cast<std::size_t>(count);
    if (wanted >= all) {
        return text;
    }
    // With one byte to a character there is nothing to count.
    return text.substr(all == text.size() ? all - wanted : offset_of(text, all - wanted));
}

std::string_view mid(std::string_view text, Count start) {
    if (start < 1) {
        throw RunTimeError(Failure::invalid_call);
    }
    return text.substr(offset_of(text, static_cast<std::size_t>(start) - 1));
}

std::string_view mid(std::string_view text, Count start, Count count) {
    return left(mid(text, start), count);
}

std::size_t find(std::string_view text, std::string_view piece, std::size_t start) {
    if (start < 1) {
        throw RunTimeError(Failure::invalid_call);
    }
    const std::size_t from = offset_of(text, start - 1);
    const std::size_t found = text.find(piece, from);
    return found == std::string_view::npos ? 0 : length(text.substr(0, found)) + 1;
}

std::string replace_all(std::string_view text, std::string_view piece, std::string_view with) {
    std::string result;
    std::size_t from = 0;
    if (!piece.empty()) {
        for (std::size_t found = text.find(piece); found != std::string_view::npos;
             found = text.find(piece, from)) {
            result += text.substr(from, found - from);
            result += with;
            from = found + piece.size();
        }
    }
    result += text.substr(from);
    return result;
}

std::string upper(std::string_view text) {
    return shift_letters(text, 'a', 'z', U'ａ', 'A' - 'a');
}

std::string lower(std::string_view text) {
    return shift_letters(text, 'A', 'Z', U'Ａ', 'a' - 'A');
}

std::string narrow(std::string_view text) {
    std::string narrowed;
    for (std::size_t offset = 0; offset < text.size();) {
        const Character character = character_at(text, offset);
        if (!character.well_formed || !append_narrow(narrowed, character.code)) {
            narrowed += text.substr(offset, character.size);
        }
        offset += character.size;
    }
    return narrowed;
}

std::string_view trim_left(std::string_view text) noexcept {
    const std::size_t start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? text.substr(text.size()) : text.substr(start);
}

std::string_view trim_right(std::string_view text) noexcept {
    return text.substr(0, size_without_blanks(text));
}

std::string_view trim(std::string_view text) noexcept {
    return trim_right(trim_left(text));
}

std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> pieces;
    if (text.empty()) {
        return pieces;
    }
    if (separator.empty()) {
        return {text};
    }
    std::size_t from = 0;
    for (std::size_t found = text.find(separator); found != std::string_view::npos;
         found = text.find(separator, from)) {
        pieces.push_back(text.substr(from, found - from));
        from = found + separator.size();
    }
    pieces.push_back(text.substr(from));
    return pieces;
}

std::string_view until_nul(std::string_view text) noexcept {
    return text.substr(0, text.find('\0'));
}

double val(std::string_view text) {
    std::string packed;
    for (const char byte : text) {
        if (byte != ' ' && byte != '\t' && byte != '\n' && byte != '\r') {
            packed += byte;
        }
    }
    if (packed.size() > 2 && packed[0] == '&') {
        const char base = packed[1];
        if (base == 'H' || base == 'h') {
            return radix_value(std::string_view(packed).substr(2), 16);
        }
        if (base == 'O' || base == 'o') {
            return radix_value(std::string_view(packed).substr(2), 8);
        }
    }
    std::replace(packed.begin(), packed.end(), 'd', 'e');
    std::replace(packed.begin(), packed.end(), 'D', 'e');
    const char* first = packed.data();
    const char* const last = first + packed.size();
    if (first != last && *first == '+') {
        ++first;
        if (first != last && *first == '-') {
            return 0;
        }
    }
    // from_chars would read words such as "inf"; a number starts with a digit or a point.
    const char* const digits = first != last && *first == '-' ? first + 1 : first;
    if (digits == last || (*digits != '.' && (*digits < '0' || *digits > '9'))) {
        return 0;
    }
    double value = 0;
    const auto [stop, error] = std::from_chars(first, last, value);
    if (error == std::errc::result_out_of_range) {
        // Too small a number is 0, too large a one fails; from_chars does not tell which it met.
        const double magnitude = std::strtod(std::string(first, stop).c_str(), nullptr);
        if (std::isinf(magnitude)) {
            throw RunTimeError(Failure::overflow);
        }
        return 0;
    }
    return value;
}

std::string right_aligned(Count number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return digits.size() >= width ? digits : std::string(width - digits.size(), ' ') + digits;
}

std::size_t LenMbcs(std::string_view text) noexcept {
    std::size_t offset = ascii_prefix(text, text.size());
    std::size_t width = offset;
    while (offset < text.size()) {
        const Character character = character_at(text, offset);
        width += page_width(character);
        offset += character.size;
    }
    return width;
}

std::string_view MidMbcs(std::string_view text, Count start) {
    const std::size_t before = start > 1 ? static_cast<std::size_t>(start) - 1 : 0;
    return text.substr(offset_of_bytes(text, before, Cover::reach));
}

std::string_view MidMbcs(std::string_view text, Count start, Count count) {
    require_not_negative(count);
    const std::string_view rest = MidMbcs(text, start);
    return rest.substr(0, offset_of_bytes(rest, static_cast<std::size_t>(count), Cover::fit));
}

std::string fixed_width(std::string_view text, std::size_t width) {
    std::string piece;
    append_fixed_width(piece, text, width);
    return piece;
}

void append_fixed_width(std::string& line, std::string_view text, std::size_t width) {
    // Of a text that is ASCII as far as it is taken, a byte is a byte of the code page.
    const std::string_view start = text.substr(0, width);
    if (is_ascii(start)) {
        line.append(start).append(width - start.size(), ' ');
        return;
    }
    const std::string_view piece = MidMbcs(text, 1, static_cast<Count>(width));
    line.append(piece).append(width - LenMbcs(piece), ' ');
}

FixedColumns::FixedColumns(std::string_view line) noexcept
    : line_(line), ascii_(ascii_prefix(line, line.size())) {}

std::string_view FixedColumns::column(std::size_t start, std::size_t count) const {
    const std::size_t before = start > 1 ? start - 1 : 0;
    if (before <= ascii_ && count <= ascii_ - before) {
        return line_.substr(before, count);
    }
    return MidMbcs(line_, static_cast<Count>(start), static_cast<Count>(count));
}

}  // namespace veldrana
