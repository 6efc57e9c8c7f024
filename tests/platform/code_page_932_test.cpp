#include "platform/code_page_932.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "common/text.h"

namespace veldrana {
namespace {

using testing::IsEmpty;

std::string single(unsigned byte) {
    return {static_cast<char>(byte)};
}

std::string pair(unsigned code) {
    return single(code >> 8U) + single(code & 0xFFU);
}

std::string text_of(char32_t character) {
    std::string text;
    append_character(text, character);
    return text;
}

std::string hex(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string shown;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        shown += digits[value >> 4U];
        shown += digits[value & 0xFU];
    }
    return shown;
}

std::string written_again(std::string_view bytes) {
    return to_code_page(from_code_page(bytes));
}

bool is_lead(unsigned byte) {
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

bool is_double_byte(unsigned code) {
    const unsigned trail = code & 0xFFU;
    return is_lead(code >> 8U) && trail >= 0x40 && trail <= 0xFC && trail != 0x7F;
}

std::vector<unsigned> double_byte_codes() {
    std::vector<unsigned> codes;
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        if (is_double_byte(code)) {
            codes.push_back(code);
        }
    }
    return codes;
}

// Every row has 188 codes: 40 to 7E and 80 to FC. Counted through all rows they make cells.
unsigned cell_of(unsigned code) {
    const unsigned trail = code & 0xFFU;
    return (code >> 8U) * 188 + trail - (trail > 0x7F ? 0x41 : 0x40);
}

unsigned code_of(unsigned cell) {
    const unsigned trail = cell % 188 + 0x40;
    return cell / 188 << 8U | (trail < 0x7F ? trail : trail + 1);
}

// The 398 codes of characters that have another, preferred code, in runs that go side by side.
struct DoubledRun {
    unsigned first;
    unsigned last;
    unsigned preferred;
};

constexpr std::array doubled_runs{
    // Mathematical signs of NEC's row 13 that the standard rows have
    DoubledRun{0x8790, 0x8790, 0x81E0},
    DoubledRun{0x8791, 0x8791, 0x81DF},
    DoubledRun{0x8792, 0x8792, 0x81E7},
    DoubledRun{0x8795, 0x8795, 0x81E3},
    DoubledRun{0x8796, 0x8796, 0x81DB},
    DoubledRun{0x8797, 0x8797, 0x81DA},
    DoubledRun{0x879A, 0x879A, 0x81E6},
    DoubledRun{0x879B, 0x879B, 0x81BF},
    DoubledRun{0x879C, 0x879C, 0x81BE},
    // IBM's Roman numerals and signs that NEC's row 13 or the standard rows have
    DoubledRun{0xFA4A, 0xFA53, 0x8754},
    DoubledRun{0xFA54, 0xFA54, 0x81CA},
    DoubledRun{0xFA58, 0xFA58, 0x878A},
    DoubledRun{0xFA59, 0xFA59, 0x8782},
    DoubledRun{0xFA5A, 0xFA5A, 0x8784},
    DoubledRun{0xFA5B, 0xFA5B, 0x81E6},
    // NEC's selection of IBM's characters: the kanji, the small Roman numerals, four signs
    DoubledRun{0xED40, 0xEEEC, 0xFA5C},
    DoubledRun{0xEEEF, 0xEEF8, 0xFA40},
    DoubledRun{0xEEF9, 0xEEF9, 0x81CA},
    DoubledRun{0xEEFA, 0xEEFC, 0xFA55},
};

unsigned preferred_code(unsigned code) {
    for (const DoubledRun& run : doubled_runs) {
        if (is_double_byte(code) && code >= run.first && code <= run.last) {
            return code_of(cell_of(run.preferred) + cell_of(code) - cell_of(run.first));
        }
    }
    return code;
}

TEST(CodePage932, ReadsEverySingleByteAsItsCharacterOrAsItself) {
    for (unsigned byte = 0; byte <= 0xFF; ++byte) {
        char32_t expected = unreadable_byte + byte;
        if (byte < 0x80) {
            expected = byte;
        } else if (byte >= 0xA1 && byte <= 0xDF) {
            expected = 0xFF61 + byte - 0xA1;
        }
        EXPECT_EQ(from_code_page(single(byte)), text_of(expected)) << hex(single(byte));
    }
}

TEST(CodePage932, WritesEverySingleByteAsItWas) {
    for (unsigned byte = 0; byte <= 0xFF; ++byte) {
        EXPECT_EQ(hex(written_again(single(byte))), hex(single(byte)));
    }
}

TEST(CodePage932, WritesEveryPairOfBytesAsItWasOrInThePreferredCode) {
    std::vector<std::string> wrong;
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        const std::string written = written_again(pair(code));
        if (written != pair(preferred_code(code))) {
            wrong.push_back(hex(pair(code)) + " as " + hex(written));
        }
    }
    EXPECT_THAT(wrong, IsEmpty());
}

TEST(CodePage932, ReadsADoubledCharacterAlikeFromBothItsCodes) {
    std::size_t doubled = 0;
    std::vector<std::string> wrong;
    for (const unsigned code : double_byte_codes()) {
        const unsigned preferred = preferred_code(code);
        if (preferred != code) {
            ++doubled;
        }
        if (from_code_page(pair(code)) != from_code_page(pair(preferred))) {
            wrong.push_back(hex(pair(code)));
        }
    }
    EXPECT_EQ(doubled, 398U);
    EXPECT_THAT(wrong, IsEmpty());
}

// The order that Windows prefers codes in, row by row.
unsigned rank_of_row(unsigned code) {
    const unsigned lead = code >> 8U;
    if (lead == 0xED || lead == 0xEE) {
        return 3;  // NEC's selection of IBM's characters
    }
    if (lead >= 0xFA) {
        return 2;  // IBM's rows
    }
    return lead == 0x87 ? 1 : 0;  // NEC's row 13; the standard rows
}

TEST(CodePage932, WritesACharacterInTheFirstOfTheRowsThatHoldIt) {
    std::map<std::string, unsigned> first_code;
    for (const unsigned code : double_byte_codes()) {
        const auto [known, added] = first_code.try_emplace(from_code_page(pair(code)), code);
        if (!added && rank_of_row(code) < rank_of_row(known->second)) {
            known->second = code;
        }
    }
    std::vector<std::string> wrong;
    for (const auto& [text, code] : first_code) {
        if (to_code_page(text) != pair(code)) {
            wrong.push_back(hex(pair(code)) + " as " + hex(to_code_page(text)));
        }
    }
    EXPECT_THAT(wrong, IsEmpty());
}

TEST(CodePage932, GivesEveryPairOfBytesWellFormedTextThatCountsTwoBytes) {
    std::vector<std::string> wrong;
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        const std::string text = from_code_page(pair(code));
        if (LenMbcs(text) != 2 || well_formed(text) != text) {
            wrong.push_back(hex(pair(code)));
        }
    }
    EXPECT_THAT(wrong, IsEmpty());
}

TEST(CodePage932, MakesOneCharacterOfEveryDoubleByteCode) {
    std::vector<std::string> wrong;
    for (const unsigned code : double_byte_codes()) {
        if (length(from_code_page(pair(code))) != 1) {
            wrong.push_back(hex(pair(code)));
        }
    }
    EXPECT_THAT(wrong, IsEmpty());
}

// Of 60 rows of 188 codes 6879 hold the standard's characters, 83 NEC's row 13, 374 NEC's
// selection, 388 IBM's characters and 1880 those of the user.
TEST(CodePage932, LeavesOpenTheCodesThatNobodyHasFilled) {
    std::size_t open = 0;
    for (const unsigned code : double_byte_codes()) {
        if (from_code_page(pair(code)) == text_of(unreadable_pair + code)) {
            ++open;
        }
    }
    EXPECT_EQ(double_byte_codes().size(), 60U * 188U);
    EXPECT_EQ(open, 60U * 188U - 6879U - 83U - 374U - 388U - 1880U);
}

TEST(CodePage932, KeepsCodesThatThePageLeavesOpen) {
    for (const unsigned code : {0x81ADU, 0x8540U, 0x879DU, 0x889EU, 0x9873U, 0xEAA5U, 0xEFFCU,
                                0xEEEDU, 0xEEEEU, 0xFC4CU, 0xFCFCU}) {
        const std::string text = from_code_page(pair(code));
        EXPECT_EQ(text, text_of(unreadable_pair + code)) << hex(pair(code));
        EXPECT_EQ(LenMbcs(text), 2U) << hex(pair(code));
        EXPECT_EQ(hex(to_code_page(text)), hex(pair(code)));
    }
}

struct Mapping {
    unsigned code;
    char32_t character;
};

TEST(CodePage932, MapsCharactersAsWindowsDoes) {
    constexpr std::array mappings{
        Mapping{0x8140, 0x3000},  // the full-width blank
        Mapping{0x815C, 0x2015},  // a dash
        Mapping{0x815F, 0xFF3C},  // the full-width backslash
        Mapping{0x8160, 0xFF5E},  // the wave dash
        Mapping{0x8161, 0x2225},  // the parallel sign
        Mapping{0x817C, 0xFF0D},  // the minus
        Mapping{0x818F, 0xFFE5},  // the full-width yen
        Mapping{0x8191, 0xFFE0},  // cent
        Mapping{0x8192, 0xFFE1},  // pound
        Mapping{0x81CA, 0xFFE2},  // not
        Mapping{0x81E6, 0x2235},  // because
        Mapping{0x824F, 0xFF10},  // ０
        Mapping{0x8260, 0xFF21},  // Ａ
        Mapping{0x829F, 0x3041},  // ぁ
        Mapping{0x82A0, 0x3042},  // あ
        Mapping{0x835C, 0x30BD},  // ソ
        Mapping{0x837C, 0x30DD},  // ポ
        Mapping{0x8740, 0x2460},  // ①
        Mapping{0x8754, 0x2160},  // Ⅰ
        Mapping{0x8782, 0x2116},  // №
        Mapping{0x878A, 0x3231},  // ㈱
        Mapping{0x889F, 0x4E9C},  // 亜
        Mapping{0x938C, 0x6771},  // 東
        Mapping{0x955C, 0x8868},  // 表
        Mapping{0xEAA4, 0x7199},  // 熙
        Mapping{0xF040, 0xE000},  // the first of the user
        Mapping{0xF9FC, 0xE757},  // the last of the user
        Mapping{0xFA40, 0x2170},  // ⅰ
        Mapping{0xFA55, 0xFFE4},  // the broken bar
        Mapping{0xFA5C, 0x7E8A},  // 纊
        Mapping{0xFAB1, 0xFA11},  // 﨑
        Mapping{0xFBFC, 0x9AD9},  // 髙
        Mapping{0xFC4B, 0x9ED1},  // 黑
    };
    for (const Mapping& mapping : mappings) {
        EXPECT_EQ(from_code_page(pair(mapping.code)), text_of(mapping.character))
            << hex(pair(mapping.code));
        EXPECT_EQ(hex(to_code_page(text_of(mapping.character))), hex(pair(mapping.code)));
    }
}

TEST(CodePage932, WritesDoubledCharactersInTheCodeThatWindowsPrefers) {
    struct Doubled {
        unsigned read;
        std::string_view text;
        unsigned written;
    };
    constexpr std::array cases{
        Doubled{0xEEE0, "髙", 0xFBFC}, Doubled{0xFA4A, "Ⅰ", 0x8754},  Doubled{0xFA58, "㈱", 0x878A},
        Doubled{0xEEF9, "￢", 0x81CA}, Doubled{0xFA54, "￢", 0x81CA}, Doubled{0x879A, "∵", 0x81E6},
        Doubled{0xFA5B, "∵", 0x81E6},  Doubled{0xEEEF, "ⅰ", 0xFA40},  Doubled{0xEEFA, "￤", 0xFA55},
        Doubled{0xED40, "纊", 0xFA5C}, Doubled{0xEEEC, "黑", 0xFC4B},
    };
    for (const Doubled& doubled : cases) {
        EXPECT_EQ(from_code_page(pair(doubled.read)), doubled.text) << hex(pair(doubled.read));
        EXPECT_EQ(hex(to_code_page(doubled.text)), hex(pair(doubled.written))) << doubled.text;
    }
}

TEST(CodePage932, WritesAQuestionMarkForWhatThePageLacks) {
    for (const char32_t lacking :
         {char32_t{0x80}, char32_t{0xA0}, char32_t{0xA5}, char32_t{0xE9}, char32_t{0x2016},
          char32_t{0x203E}, char32_t{0x2212}, char32_t{0x301C}, char32_t{0xD55C}, char32_t{0xFFFD},
          char32_t{0x1F600}, char32_t{0x20BB7}, char32_t{0x10FFFF}}) {
        EXPECT_EQ(to_code_page(text_of(lacking)), "?") << std::hex << std::uint32_t{lacking};
    }
    EXPECT_EQ(to_code_page("Café 😀 QSO"), "Caf? ? QSO");
}

TEST(CodePage932, WritesAQuestionMarkForAByteOfIllFormedText) {
    EXPECT_EQ(to_code_page("A\x82"
                           "B"),
              "A?B");
}

TEST(CodePage932, TurnsMixedTextBothWays) {
    const std::string text = "JA1ZZZ 東京ﾄｳｷｮｳ\\~";
    const std::string bytes = "JA1ZZZ \x93\x8C\x8B\x9E\xC4\xB3\xB7\xAE\xB3\\~";
    EXPECT_EQ(hex(to_code_page(text)), hex(bytes));
    EXPECT_EQ(from_code_page(bytes), text);
}

TEST(CodePage932, TakesASecondByteOf5COr7CAsPartOfItsCharacter) {
    const std::string bytes = "\x95\x5C\x83\x5C\x83\x7C";
    EXPECT_EQ(from_code_page(bytes), "表ソポ");
    EXPECT_EQ(hex(to_code_page("表ソポ")), hex(bytes));
}

TEST(CodePage932, TakesALeadByteWithoutItsSecondAlone) {
    const std::string before_blank = "\x82 \xA0";
    EXPECT_EQ(from_code_page(before_blank),
              text_of(unreadable_byte + 0x82) + " " + text_of(unreadable_byte + 0xA0));
    // 7F and FD are no second bytes.
    EXPECT_EQ(from_code_page("\x82\x7F\x82\xFD"), text_of(unreadable_byte + 0x82) + "\x7F" +
                                                      text_of(unreadable_byte + 0x82) +
                                                      text_of(unreadable_byte + 0xFD));
}

TEST(CodePage932, AppendsBehindWhatIsThere) {
    std::string text = "東";
    append_from_code_page(text, "QSO");
    append_from_code_page(text, "\x8B\x9E");
    EXPECT_EQ(text, "東QSO京");

    std::string bytes = "\x93\x8C";
    append_to_code_page(bytes, "QSO");
    append_to_code_page(bytes, "京");
    EXPECT_EQ(hex(bytes), hex("\x93\x8CQSO\x8B\x9E"));
}

TEST(CodePage932, KeepsEmptyTextEmpty) {
    EXPECT_EQ(from_code_page(""), "");
    EXPECT_EQ(to_code_page(""), "");
}

struct Piece {
    std::string_view text;
    Count start;
    Count count;
    std::string expected;
};

TEST(MiddleBytes, CountsBytesOfTheCodePage) {
    const std::vector<Piece> pieces{
        {"JA1ZZZ", 1, 3, "JA1"},
        {"JA1ZZZ", 4, 3, "ZZZ"},
        {"JA1ZZZ", 4, 0, ""},
        {"JA1ZZZ", 4, 100, "ZZZ"},
        {"JA1ZZZ", 4, std::numeric_limits<Count>::max(), "ZZZ"},
        {"JA1ZZZ", 7, 1, ""},
        {"JA1ZZZ", 100, 1, ""},
        {"JA1ZZZ", std::numeric_limits<Count>::max(), 1, ""},
        {"", 1, 1, ""},
        {"あいう", 1, 2, "あ"},
        {"あいう", 3, 2, "い"},
        {"あいう", 3, 100, "いう"},
        {"ｱｲｳ", 2, 1, "ｲ"},
        {"A東ｲB", 4, 2, "ｲB"},
    };
    for (const Piece& piece : pieces) {
        EXPECT_EQ(middle_bytes(piece.text, piece.start, piece.count), piece.expected)
            << piece.text << ", " << piece.start << ", " << piece.count;
    }
}

TEST(MiddleBytes, LeavesTheBytesOfASplitCharacter) {
    const std::vector<Piece> pieces{
        {"あ", 1, 1, text_of(unreadable_byte + 0x82)},
        {"あ", 2, 1, text_of(unreadable_byte + 0xA0)},
        {"あい", 2, 2, text_of(unreadable_byte + 0xA0) + text_of(unreadable_byte + 0x82)},
        // A second byte that is a character when it stands alone
        {"い", 2, 1, "｢"},
        {"ソ", 2, 1, "\\"},
        {"A表B", 1, 2, "A" + text_of(unreadable_byte + 0x95)},
        {"A表B", 3, 2, "\\B"},
        // A second byte and the lead byte behind it that make another character
        {"ャあ", 2, 2, "モ"},
        {"ア亜", 2, 2, "A" + text_of(unreadable_byte + 0x88)},
        {"髙", 1, 1, text_of(unreadable_byte + 0xFB)},
    };
    for (const Piece& piece : pieces) {
        EXPECT_EQ(middle_bytes(piece.text, piece.start, piece.count), piece.expected)
            << piece.text << ", " << piece.start << ", " << piece.count;
    }
}

TEST(MiddleBytes, JoinsTheHalvesOfACharacterAgainInTheFile) {
    const std::string text = "表ソ東京ｱ髙";
    const std::string bytes = to_code_page(text);
    ASSERT_EQ(bytes.size(), 11U);
    std::string joined;
    for (Count start = 1; start <= 11; ++start) {
        joined += middle_bytes(text, start, 1);
    }
    EXPECT_EQ(hex(to_code_page(joined)), hex(bytes));
}

TEST(MiddleBytes, RefusesANegativeCount) {
    try {
        middle_bytes("JA1ZZZ", 1, -1);
        FAIL() << "a negative count must not pass";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 5);
    }
}

}  // namespace
}  // namespace veldrana
