#include "platform/code_page_932.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "common/run_time_error.h"
#include "platform/system_charset.h"

namespace veldrana {
namespace {

constexpr bool is_lead(unsigned char byte) {
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

constexpr bool is_trail(unsigned char byte) {
    return byte >= 0x40 && byte <= 0xFC && byte != 0x7F;
}

constexpr char32_t half_width_distance = 0xFF61 - 0xA1;

constexpr bool is_half_width_katakana(unsigned char byte) {
    return byte >= 0xA1 && byte <= 0xDF;
}

// Both directions of the double-byte part, made once from the system's conversion.
class Table {
  public:
    Table();

    // 0 for a code that the page leaves open.
    char32_t character(std::uint16_t code) const { return characters_[code]; }
    // 0 for a character without a double-byte code.
    std::uint16_t code(char32_t character) const {
        return character < codes_.size() ? codes_[character] : std::uint16_t{0};
    }

  private:
    std::vector<char32_t> characters_ = std::vector<char32_t>(0x10000);
    std::vector<std::uint16_t> codes_ = std::vector<std::uint16_t>(0x10000);
};

// Of the codes of one character the one with the smallest rank is written: first the standard
// rows, then NEC's row 13, then IBM's rows, then NEC's selection of IBM's.
int rank(std::uint16_t code) {
    const int lead = code >> 8;
    if (lead == 0xED || lead == 0xEE) {
        return 3;
    }
    if (lead >= 0xFA) {
        return 2;
    }
    return lead == 0x87 ? 1 : 0;
}

Table::Table() {
    const SystemCharset charset;
    for (unsigned lead = 0x81; lead <= 0xFC; ++lead) {
        if (!is_lead(static_cast<unsigned char>(lead))) {
            continue;
        }
        for (unsigned trail = 0x40; trail <= 0xFC; ++trail) {
            if (!is_trail(static_cast<unsigned char>(trail))) {
                continue;
            }
            const auto code = static_cast<std::uint16_t>(lead << 8U | trail);
            const char32_t character = charset.character(code);
            characters_[code] = character;
            if (character != 0) {
                std::uint16_t& preferred = codes_.at(character);
                if (preferred == 0 || rank(code) < rank(preferred)) {
                    preferred = code;
                }
            }
        }
    }
}

const Table& table() {
    static const Table made;
    return made;
}

// Takes one character off the front of the bytes.
char32_t take_character(std::string_view& bytes) {
    const auto byte = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    if (byte < 0x80) {
        return byte;
    }
    if (is_half_width_katakana(byte)) {
        return byte + half_width_distance;
    }
    if (!is_lead(byte) || bytes.empty() || !is_trail(static_cast<unsigned char>(bytes.front()))) {
        return unreadable_byte + byte;
    }
    const auto code =
        static_cast<std::uint16_t>(byte << 8U | static_cast<unsigned char>(bytes.front()));
    bytes.remove_prefix(1);
    const char32_t character = table().character(code);
    return character != 0 ? character : unreadable_pair + code;
}

void append_code(std::string& bytes, char32_t code) {
    if (code > 0xFF) {
        bytes += static_cast<char>(code >> 8U);
    }
    bytes += static_cast<char>(code & 0xFFU);
}

// The code of a character above ASCII.
char32_t code_of(const Character& character) {
    const char32_t code = character.code;
    if (!character.well_formed) {
        return '?';
    }
    if (code >= 0xFF61 && code <= 0xFF9F) {
        return code - half_width_distance;
    }
    if (code > unreadable_byte && code <= unreadable_byte + 0xFF) {
        return code - unreadable_byte;
    }
    if (code > unreadable_pair && code <= unreadable_pair + 0xFFFF) {
        return code - unreadable_pair;
    }
    const std::uint16_t double_byte = table().code(code);
    return double_byte != 0 ? double_byte : U'?';
}

}  // namespace

void append_from_code_page(std::string& text, std::string_view bytes) {
    if (is_ascii(bytes)) {
        text += bytes;
        return;
    }
    while (!bytes.empty()) {
        const std::size_t ascii = ascii_prefix(bytes);
        text += bytes.substr(0, ascii);
        bytes.remove_prefix(ascii);
        if (!bytes.empty()) {
            append_character(text, take_character(bytes));
        }
    }
}

void append_to_code_page(std::string& bytes, std::string_view text) {
    if (is_ascii(text)) {
        bytes += text;
        return;
    }
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t ascii = ascii_prefix(text.substr(offset));
        bytes += text.substr(offset, ascii);
        offset += ascii;
        if (offset < text.size()) {
            const Character character = character_at(text, offset);
            append_code(bytes, code_of(character));
            offset += character.size;
        }
    }
}

std::string from_code_page(std::string_view bytes) {
    std::string text;
    append_from_code_page(text, bytes);
    return text;
}

std::string to_code_page(std::string_view text) {
    std::string bytes;
    append_to_code_page(bytes, text);
    return bytes;
}

std::string middle_bytes(std::string_view text, Count start, Count count) {
    if (start < 1 || count < 0) {
        throw RunTimeError(Failure::invalid_call);
    }
    const std::string bytes = to_code_page(text);
    const std::size_t from = std::min(static_cast<std::size_t>(start) - 1, bytes.size());
    return from_code_page(std::string_view(bytes).substr(from, static_cast<std::size_t>(count)));
}

}  // namespace veldrana
