// Text by characters, by bytes of code page 932, and as numbers.
#include "common/text.h"

#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Count far_behind = std::numeric_limits<Count>::max();
constexpr Count far_before = std::numeric_limits<Count>::min();

// Bytes that no character of the code page has, as they travel inside: U+10F780 and so on.
const std::string byte_80 = "\xF4\x8F\x9E\x80";
const std::string byte_A0 = "\xF4\x8F\x9E\xA0";
const std::string byte_FD = "\xF4\x8F\x9F\xBD";
const std::string byte_FF = "\xF4\x8F\x9F\xBF";
// The open double-byte code 8540: U+F8540.
const std::string pair_8540 = "\xF3\xB8\x95\x80";

auto fails_with(Failure failure) {
    return testing::Throws<RunTimeError>(testing::Property(&RunTimeError::failure, failure));
}

std::string quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

// A line as a list of characters with their widths: the plain reading of every rule.
using PlainLine = std::vector<std::pair<std::string, std::size_t>>;

// The text of some of its characters.
std::string joined(const PlainLine& line, std::size_t from = 0,
                   std::size_t count = std::string::npos) {
    std::string text;
    for (std::size_t i = from; i < line.size() && i - from < count; ++i) {
        text += line[i].first;
    }
    return text;
}

std::string plain_piece(const PlainLine& line, std::size_t start, std::size_t count) {
    std::string piece;
    std::size_t passed = 0;
    std::size_t taken = 0;
    for (const auto& [character, width] : line) {
        if (passed < start - 1) {
            passed += width;
            continue;
        }
        if (taken + width > count) {
            break;
        }
        taken += width;
        piece += character;
    }
    return piece;
}

// Lines of ASCII alone, of characters mixed, and of ASCII with others behind: what is quick for
// ASCII must give the same as what counts.
std::vector<PlainLine> random_lines() {
    const PlainLine characters{{"a", 1},     {"Z", 1},    {" ", 1},       {"9", 1},
                               {"漢", 2},    {"　", 2},   {"Ａ", 2},      {"ｱ", 1},
                               {"ﾟ", 1},     {"é", 2},    {"𠮷", 2},      {byte_80, 1},
                               {byte_FD, 1}, {"\xFF", 1}, {pair_8540, 2}, {"\x80", 1}};
    constexpr std::size_t ascii_characters = 4;
    std::mt19937 random(20250704);
    std::vector<PlainLine> lines;
    for (std::size_t number = 0; number < 450; ++number) {
        PlainLine line(random() % 30);
        const std::size_t ascii_part = std::vector<std::size_t>{30, 0, random() % 30}[number % 3];
        for (std::size_t i = 0; i < line.size(); ++i) {
            line[i] =
                characters[random() % (i < ascii_part ? ascii_characters : characters.size())];
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

// --- bytes and characters ---

TEST(IsAscii, LooksAtEveryByteWhateverTheLength) {
    for (std::size_t size = 0; size < 40; ++size) {
        const std::string plain(size, '\x7F');
        EXPECT_TRUE(is_ascii(plain)) << size;
        for (std::size_t at = 0; at < size; ++at) {
            std::string spoilt = plain;
            spoilt[at] = '\x80';
            EXPECT_FALSE(is_ascii(spoilt)) << at << " of " << size;
        }
    }
}

TEST(AsciiPrefix, EndsAtTheFirstOtherByteOrAtTheLimit) {
    for (std::size_t size = 0; size < 80; ++size) {
        const std::string text = std::string(size, '\x7F') + "漢abc";
        EXPECT_EQ(ascii_prefix(text), size);
        EXPECT_EQ(ascii_prefix(std::string_view(text).substr(0, size)), size);
        EXPECT_EQ(ascii_prefix(text, size / 2), size / 2);
        EXPECT_EQ(ascii_prefix(text, size + 1), size);
    }
}

TEST(IsAscii, DoesNotReadPastAPieceOfALongerText) {
    const std::string text = "JA1QZX 599漢";
    EXPECT_TRUE(is_ascii(std::string_view(text).substr(0, 10)));
    EXPECT_FALSE(is_ascii(text));
}

struct Encoded {
    char32_t code;
    std::string bytes;
};

// The first and last characters of every length, and those beside the surrogates.
const std::vector<Encoded> encoded_characters{
    {0x0, std::string(1, '\0')},
    {0x41, "A"},
    {0x7F, "\x7F"},
    {0x80, "\xC2\x80"},
    {0x7FF, "\xDF\xBF"},
    {0x800, "\xE0\xA0\x80"},
    {0x6F22, "\xE6\xBC\xA2"},
    {0xD7FF, "\xED\x9F\xBF"},
    {0xE000, "\xEE\x80\x80"},
    {0xFFFF, "\xEF\xBF\xBF"},
    {0x10000, "\xF0\x90\x80\x80"},
    {unreadable_pair + 0x8540, pair_8540},
    {unreadable_byte + 0x80, byte_80},
    {unreadable_byte + 0xA0, byte_A0},
    {unreadable_byte + 0xFD, byte_FD},
    {unreadable_byte + 0xFF, byte_FF},
    {0x10FFFF, "\xF4\x8F\xBF\xBF"},
};

TEST(AppendCharacter, WritesTheBytesOfUtf8BehindTheText) {
    for (const Encoded& it : encoded_characters) {
        std::string text = "x";
        append_character(text, it.code);
        EXPECT_EQ(text, "x" + it.bytes) << std::hex << static_cast<std::uint32_t>(it.code);
    }
}

TEST(CharacterAt, ReadsACharacterOfEveryLength) {
    for (const Encoded& it : encoded_characters) {
        SCOPED_TRACE(testing::Message() << std::hex << static_cast<std::uint32_t>(it.code));
        const Character character = character_at("漢" + it.bytes + "z", 3);
        EXPECT_EQ(character.code, it.code);
        EXPECT_EQ(character.size, it.bytes.size());
        EXPECT_TRUE(character.well_formed);
    }
}

TEST(CharacterAt, ReadsBackEveryCharacterThatCanBeAppended) {
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        if (code == 0xD800) {
            code = 0xE000;  // surrogates are no characters
        }
        std::string text;
        append_character(text, code);
        const Character character = character_at(text, 0);
        ASSERT_TRUE(character.well_formed) << static_cast<std::uint32_t>(code);
        ASSERT_EQ(character.code, code);
        ASSERT_EQ(character.size, text.size());
    }
}

TEST(CharacterAt, TakesAByteOfNoCharacterAlone) {
    const std::vector<std::string> malformed{
        "\x80",                      // continuation without a lead
        "\xBF",                      //
        "\xC2",                      // lead at the end of the text
        "\xE6\xBC",                  //
        "\xF0\xA0\xAE",              //
        "\xC2x",                     // lead before something else
        "\xE6x\xBC",                 //
        "\xE6\xBCx",                 //
        "\xF0\xA0\xAEx",             //
        "\xC0\x80",                  // longer than need be
        "\xC1\xBF",                  //
        "\xE0\x9F\xBF",              //
        "\xF0\x8F\xBF\xBF",          //
        "\xED\xA0\x80",              // surrogates
        "\xED\xBF\xBF",              //
        "\xF4\x90\x80\x80",          // behind the last character
        "\xF5\x80\x80\x80",          //
        "\xF8\x88\x80\x80\x80",      // more bytes than a character has
        "\xF8\x80\x81\x81\x81",      //
        "\xFC\x84\x80\x80\x80\x80",  //
        "\xFE",
        "\xFF",
    };
    for (const std::string& text : malformed) {
        const Character character = character_at(text, 0);
        EXPECT_FALSE(character.well_formed) << testing::PrintToString(text);
        EXPECT_EQ(character.size, 1U) << testing::PrintToString(text);
    }
}

TEST(CharacterAt, SeesNoCharacterFromItsMiddle) {
    EXPECT_FALSE(character_at("漢字", 1).well_formed);
    EXPECT_FALSE(character_at("漢字", 2).well_formed);
    EXPECT_EQ(character_at("漢字", 3).code, U'字');
}

TEST(WellFormed, PutsAQuestionMarkForEveryByteOfNoCharacter) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"", ""},
        {"JA1QZX 漢字 ｱ", "JA1QZX 漢字 ｱ"},
        {"𠮷" + byte_FD, "𠮷" + byte_FD},
        {"a\xFFz", "a?z"},
        {"\x80", "?"},
        {"\xE6\xBC", "??"},
        {"\xE6\xBCx", "??x"},
        {"\xE6漢", "?漢"},
        {"\xC0\x80", "??"},
        {"\xED\xA0\x80", "???"},
        {"\xF4\x90\x80\x80", "????"},
        {"\x8A\xBF\x8E\x9A", "????"},  // a word of a file, not yet decoded
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(well_formed(text), expected) << testing::PrintToString(text);
    }
}

// --- by characters ---

TEST(Length, CountsCharacters) {
    EXPECT_EQ(length(""), 0U);
    EXPECT_EQ(length("JA1QZX"), 6U);
    EXPECT_EQ(length("東京都"), 3U);
    EXPECT_EQ(length("ｱｲｳ7漢𠮷"), 6U);
    EXPECT_EQ(length(byte_FD + pair_8540), 2U);
    EXPECT_EQ(length("a\xFF\xE6\xBC"), 4U);
}

TEST(Length, IsTheSameOnBothPaths) {
    for (std::size_t size = 0; size < 40; ++size) {
        const std::string plain(size, 'x');
        EXPECT_EQ(length(plain), size);
        EXPECT_EQ(length(plain + "漢"), size + 1);
    }
}

TEST(Left, TakesCharactersFromTheStart) {
    EXPECT_EQ(left("東京都港区", 2), "東京");
    EXPECT_EQ(left("ｱ漢b", 2), "ｱ漢");
    EXPECT_EQ(left("abc", 0), "");
    EXPECT_EQ(left("abc", 3), "abc");
    EXPECT_EQ(left("abc", 4), "abc");
    EXPECT_EQ(left("東京", far_behind), "東京");
    EXPECT_EQ(left("", 1), "");
    EXPECT_EQ(left(byte_FD + "a", 1), byte_FD);
    EXPECT_EQ(left("\xE6\xBC漢", 2), "\xE6\xBC");
}

TEST(Right, TakesCharactersFromTheEnd) {
    EXPECT_EQ(right("東京都港区", 2), "港区");
    EXPECT_EQ(right("b漢ｱ", 2), "漢ｱ");
    EXPECT_EQ(right("abc", 0), "");
    EXPECT_EQ(right("abc", 3), "abc");
    EXPECT_EQ(right("abc", 4), "abc");
    EXPECT_EQ(right("東京", far_behind), "東京");
    EXPECT_EQ(right("", 1), "");
    EXPECT_EQ(right("a" + byte_FD, 1), byte_FD);
    EXPECT_EQ(right("漢\xFF", 1), "\xFF");
}

TEST(Mid, TakesCharactersFromAPosition) {
    EXPECT_EQ(mid("東京都港区", 3), "都港区");
    EXPECT_EQ(mid("東京都港区", 3, 2), "都港");
    EXPECT_EQ(mid("東京都港区", 1, 1), "東");
    EXPECT_EQ(mid("東京都港区", 5, 1), "区");
    EXPECT_EQ(mid("東京都港区", 4, 9), "港区");
    EXPECT_EQ(mid("abc", 2, 0), "");
    EXPECT_EQ(mid("abc", 2, far_behind), "bc");
}

TEST(Mid, IsEmptyBehindTheEnd) {
    EXPECT_EQ(mid("abc", 4), "");
    EXPECT_EQ(mid("abc", 4, 1), "");
    EXPECT_EQ(mid("漢", 2), "");
    EXPECT_EQ(mid("漢", far_behind, 1), "");
    EXPECT_EQ(mid("", 1), "");
}

TEST(Mid, RefusesAStartBelowOne) {
    for (const Count start : {Count{0}, Count{-1}, far_before}) {
        EXPECT_THAT([=] { mid("abc", start); }, fails_with(Failure::invalid_call)) << start;
        EXPECT_THAT([=] { mid("abc", start, 1); }, fails_with(Failure::invalid_call)) << start;
    }
}

TEST(Pieces, OfNegativeLengthAreRefused) {
    for (const Count count : {Count{-1}, far_before}) {
        for (const std::string_view text : {"", "abc", "漢字"}) {
            SCOPED_TRACE(testing::Message() << quoted(text) << ", " << count);
            EXPECT_THAT([=] { left(text, count); }, fails_with(Failure::invalid_call));
            EXPECT_THAT([=] { right(text, count); }, fails_with(Failure::invalid_call));
            EXPECT_THAT([=] { mid(text, 1, count); }, fails_with(Failure::invalid_call));
            EXPECT_THAT([=] { mid(text, 9, count); }, fails_with(Failure::invalid_call));
            EXPECT_THAT([=] { MidMbcs(text, 1, count); }, fails_with(Failure::invalid_call));
            EXPECT_THAT([=] { MidMbcs(text, 9, count); }, fails_with(Failure::invalid_call));
        }
    }
}

TEST(Pieces, LieInTheTextTheyWereTakenFrom) {
    const std::string text = " 漢ab,c";
    const auto offset = [&text](std::string_view piece) { return piece.data() - text.data(); };
    EXPECT_EQ(offset(left(text, 2)), 0);
    EXPECT_EQ(offset(right(text, 2)), 6);
    EXPECT_EQ(offset(mid(text, 3)), 4);
    EXPECT_EQ(offset(mid(text, 3, 1)), 4);
    EXPECT_EQ(offset(trim(text)), 1);
    EXPECT_EQ(offset(trim_left(text)), 1);
    EXPECT_EQ(offset(trim_right(text)), 0);
    EXPECT_EQ(offset(until_nul(text)), 0);
    EXPECT_EQ(offset(split(text, ",").at(1)), 7);
    EXPECT_EQ(offset(MidMbcs(text, 4)), 4);
    EXPECT_EQ(offset(MidMbcs(text, 4, 1)), 4);
    EXPECT_EQ(offset(FixedColumns(text).column(4, 1)), 4);
}

TEST(Pieces, ByCharactersAreTheSameOfAnyLine) {
    for (const PlainLine& line : random_lines()) {
        const std::string text = joined(line);
        SCOPED_TRACE(testing::PrintToString(text));
        const std::size_t all = line.size();
        ASSERT_EQ(length(text), all);
        for (std::size_t count = 0; count <= all; ++count) {
            ASSERT_EQ(left(text, static_cast<Count>(count)), joined(line, 0, count));
            ASSERT_EQ(right(text, static_cast<Count>(count)), joined(line, all - count));
            ASSERT_EQ(mid(text, static_cast<Count>(count + 1)), joined(line, count));
            ASSERT_EQ(mid(text, static_cast<Count>(count + 1), 9), joined(line, count, 9));
        }
    }
}

TEST(Find, TellsThePositionInCharacters) {
    EXPECT_EQ(find("東京都港区", "港"), 4U);
    EXPECT_EQ(find("東京都港区", "東京"), 1U);
    EXPECT_EQ(find("東京都港区", "区"), 5U);
    EXPECT_EQ(find("ｱ漢/1", "/"), 3U);
    EXPECT_EQ(find(byte_FD + "\xFF%", "%"), 3U);
    EXPECT_EQ(find("JA1QZX/1", "/"), 7U);
}

TEST(Find, LooksAtAndBehindTheStartOnly) {
    EXPECT_EQ(find("漢字漢字", "漢", 1), 1U);
    EXPECT_EQ(find("漢字漢字", "漢", 2), 3U);
    EXPECT_EQ(find("漢字漢字", "漢", 3), 3U);
    EXPECT_EQ(find("漢字漢字", "漢", 4), 0U);
    EXPECT_EQ(find("漢字漢字", "漢", 5), 0U);
    EXPECT_EQ(find("漢字漢字", "漢", 99), 0U);
}

TEST(Find, TellsZeroForWhatIsNotThere) {
    EXPECT_EQ(find("abc", "B"), 0U);
    EXPECT_EQ(find("abc", "abcd"), 0U);
    EXPECT_EQ(find("", "a"), 0U);
    // A piece of a full-width letter is no letter.
    EXPECT_EQ(find("Ａ", "A"), 0U);
}

TEST(Find, FindsAnEmptyPieceAtTheStart) {
    EXPECT_EQ(find("漢字", ""), 1U);
    EXPECT_EQ(find("漢字", "", 2), 2U);
}

TEST(ReplaceAll, ReplacesFromLeftToRightAndNotInWhatItPutIn) {
    struct Case {
        std::string text, piece, with, expected;
    };
    const std::vector<Case> cases{
        {"a-b-c", "-", "+", "a+b+c"},
        {"-a-", "-", "--", "--a--"},
        {"aaaa", "aa", "a", "aa"},
        {"aaa", "aa", "b", "ba"},
        {"abab", "ab", "ba", "baba"},
        {"xaab", "ab", "b", "xab"},  // the new "ab" is not looked at again
        {"東京　都", "　", "", "東京都"},
        {"abc", "b", "漢字", "a漢字c"},
        {"abc", "abc", "", ""},
        {"abc", "B", "x", "abc"},
        {"abc", "abcd", "x", "abc"},
        {"", "a", "b", ""},
    };
    for (const Case& it : cases) {
        EXPECT_EQ(replace_all(it.text, it.piece, it.with), it.expected)
            << quoted(it.text) << ", " << quoted(it.piece);
    }
}

TEST(ReplaceAll, ChangesNothingForAnEmptyPiece) {
    EXPECT_EQ(replace_all("abc", "", "x"), "abc");
    EXPECT_EQ(replace_all("", "", "x"), "");
}

TEST(Upper, CoversAsciiAndFullWidthLettersAlone) {
    EXPECT_EQ(upper("abcdefghijklmnopqrstuvwxyz"), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(upper("ａｂｃｄｅｆｇｈｉｊｋｌｍｎｏｐｑｒｓｔｕｖｗｘｙｚ"),
              "ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ");
    EXPECT_EQ(upper("Ja1qzx/1 ＪＡ１ｑｚｘ漢ｱ"), "JA1QZX/1 ＪＡ１ＱＺＸ漢ｱ");
    // The neighbours of the letters, and letters of other scripts.
    EXPECT_EQ(upper("`{@[ ｀｛＠［"), "`{@[ ｀｛＠［");
    EXPECT_EQ(upper("éαжⅰ"), "éαжⅰ");
    EXPECT_EQ(upper(""), "");
}

TEST(Lower, CoversAsciiAndFullWidthLettersAlone) {
    EXPECT_EQ(lower("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(lower("ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ"),
              "ａｂｃｄｅｆｇｈｉｊｋｌｍｎｏｐｑｒｓｔｕｖｗｘｙｚ");
    EXPECT_EQ(lower("Ja1QZX/1 ｊａ１ＱＺＸ漢ｱ"), "ja1qzx/1 ｊａ１ｑｚｘ漢ｱ");
    EXPECT_EQ(lower("@[`{ ＠［｀｛"), "@[`{ ＠［｀｛");
    EXPECT_EQ(lower("ÉΑЖⅠ"), "ÉΑЖⅠ");
    EXPECT_EQ(lower(""), "");
}

TEST(Narrow, TakesTheSignsOfAscii) {
    std::string wide;
    std::string ascii;
    for (char32_t code = '!'; code <= '~'; ++code) {
        append_character(ascii, code);
        append_character(wide, code + 0xFEE0);
    }
    ASSERT_EQ(length(wide), 94U);
    EXPECT_EQ(narrow(wide), ascii);
    EXPECT_EQ(narrow("ＪＡ１ＺＺＺ／１　ｊａ"), "JA1ZZZ/1 ja");
}

TEST(Narrow, TakesKatakanaAndTheirPunctuation) {
    EXPECT_EQ(narrow("アイウエオカキクケコサシスセソタチツテトナニヌネノ"),
              "ｱｲｳｴｵｶｷｸｹｺｻｼｽｾｿﾀﾁﾂﾃﾄﾅﾆﾇﾈﾉ");
    EXPECT_EQ(narrow("ハヒフヘホマミムメモヤユヨラリルレロワヲン"), "ﾊﾋﾌﾍﾎﾏﾐﾑﾒﾓﾔﾕﾖﾗﾘﾙﾚﾛﾜｦﾝ");
    EXPECT_EQ(narrow("ァィゥェォャュョッー。「」、・゛゜"), "ｧｨｩｪｫｬｭｮｯｰ｡｢｣､･ﾞﾟ");
}

TEST(Narrow, AVoicedKatakanaBecomesTwoCharacters) {
    EXPECT_EQ(narrow("ガギグゲゴザジズゼゾダヂヅデドバビブベボヴ"),
              "ｶﾞｷﾞｸﾞｹﾞｺﾞｻﾞｼﾞｽﾞｾﾞｿﾞﾀﾞﾁﾞﾂﾞﾃﾞﾄﾞﾊﾞﾋﾞﾌﾞﾍﾞﾎﾞｳﾞ");
    EXPECT_EQ(narrow("パピプペポ"), "ﾊﾟﾋﾟﾌﾟﾍﾟﾎﾟ");
}

TEST(Narrow, WhatHasNoHalfWidthFormStays) {
    for (const std::string text :
         {"", "JA1ZZZ/1 ", "ｱｶﾞ", "漢字", "ひらがな", "ヶヮヰ", "é", "￥"}) {
        EXPECT_EQ(narrow(text), text);
    }
    const std::string odd = byte_80 + byte_FD + pair_8540 + "\xE1\xFA\xC1";
    EXPECT_EQ(narrow("Ａ" + odd + "ア"), "A" + odd + "ｱ");
}

TEST(Case, LeavesUnreadableAndMalformedBytesAsTheyAre) {
    const std::string odd = byte_80 + byte_FD + pair_8540 + "\xE1\xFA\xC1";
    EXPECT_EQ(upper("a" + odd + "a"), "A" + odd + "A");
    EXPECT_EQ(lower("A" + odd + "A"), "a" + odd + "a");
}

TEST(Trim, RemovesBlanksAtBothEndsAndNothingElse) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("a b"), "a b");
    EXPECT_EQ(trim(" 漢 "), "漢");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
    for (const std::string other : {"\t", "\r", "\n", "　", "\xC2\xA0"}) {
        EXPECT_EQ(trim(" " + other + "a" + other + " "), other + "a" + other);
    }
    const std::string nul(1, '\0');
    EXPECT_EQ(trim(" " + nul + " "), nul);
}

TEST(Trim, RemovesARunOfBlanksOfAnyLength) {
    for (std::size_t blanks = 0; blanks < 40; ++blanks) {
        const std::string run(blanks, ' ');
        for (std::size_t size = 0; size < 20; ++size) {
            const std::string kept(size, '!');
            ASSERT_EQ(trim_right(kept + run), kept) << size << " and " << blanks;
            ASSERT_EQ(trim_left(run + kept), kept) << blanks << " and " << size;
            ASSERT_EQ(trim(run + kept + run), kept) << size << " and " << blanks;
        }
    }
}

TEST(Trim, StopsAtEveryByteButABlank) {
    for (int byte = 0; byte < 256; ++byte) {
        if (byte == ' ') {
            continue;
        }
        const std::string stop(1, static_cast<char>(byte));
        for (std::size_t blanks = 0; blanks < 20; ++blanks) {
            const std::string run(blanks, ' ');
            ASSERT_EQ(trim_right("1 2 3 4 5" + stop + run), "1 2 3 4 5" + stop) << byte;
            ASSERT_EQ(trim_left(run + stop + "1 2 3 4 5"), stop + "1 2 3 4 5") << byte;
        }
    }
}

TEST(Trim, DoesNotLookBeyondAPieceOfALongerText) {
    const std::string text = "abc                xyz                def";
    EXPECT_EQ(trim_right(std::string_view(text).substr(0, 19)), "abc");
    EXPECT_EQ(trim_right(std::string_view(text).substr(3, 16)), "");
    EXPECT_EQ(trim_left(std::string_view(text).substr(22, 16)), "");
    EXPECT_EQ(trim(std::string_view(text).substr(3, 35)), "xyz");
}

TEST(Trim, OnOneSideLeavesTheOther) {
    EXPECT_EQ(trim_left("  a b  "), "a b  ");
    EXPECT_EQ(trim_left("   "), "");
    EXPECT_EQ(trim_left(""), "");
    EXPECT_EQ(trim_left("　 a"), "　 a");
    EXPECT_EQ(trim_right("  a b  "), "  a b");
    EXPECT_EQ(trim_right("   "), "");
    EXPECT_EQ(trim_right(""), "");
    EXPECT_EQ(trim_right("a 　"), "a 　");
}

TEST(Split, GivesThePiecesBetweenSeparators) {
    EXPECT_THAT(split("a,b,c", ","), ElementsAre("a", "b", "c"));
    EXPECT_THAT(split("abc", ","), ElementsAre("abc"));
    EXPECT_THAT(split("a,,b", ","), ElementsAre("a", "", "b"));
    EXPECT_THAT(split(",a,", ","), ElementsAre("", "a", ""));
    EXPECT_THAT(split(",", ","), ElementsAre("", ""));
    EXPECT_THAT(split(" a , b ", ","), ElementsAre(" a ", " b "));
    EXPECT_THAT(split("a//b/c", "//"), ElementsAre("a", "b/c"));
    EXPECT_THAT(split("///", "//"), ElementsAre("", "/"));
    EXPECT_THAT(split("東京、大阪", "、"), ElementsAre("東京", "大阪"));
}

TEST(Split, GivesNoPieceOfAnEmptyText) {
    EXPECT_THAT(split("", ","), IsEmpty());
}

TEST(UntilNul, CutsAtTheFirstNul) {
    using namespace std::string_view_literals;
    EXPECT_EQ(until_nul("漢ab\0cd\0"sv), "漢ab");
    EXPECT_EQ(until_nul("\0ab"sv), "");
    EXPECT_EQ(until_nul("ab"), "ab");
    EXPECT_EQ(until_nul(""), "");
}

// --- numbers ---

struct Number {
    std::string text;
    double value;
};

void expect_values(const std::vector<Number>& numbers) {
    for (const Number& it : numbers) {
        EXPECT_EQ(val(it.text), it.value) << quoted(it.text);
    }
}

TEST(Val, ReadsSignDigitsAndOnePoint) {
    expect_values({
        {"0", 0},
        {"599", 599},
        {"007", 7},
        {"+12", 12},
        {"-12", -12},
        {"7.0625", 7.0625},
        {"-0.5", -0.5},
        {".5", 0.5},
        {"-.5", -0.5},
        {"+.5", 0.5},
        {"5.", 5},
        {"4294967297", 4294967297.0},
        {"1.7976931348623157E308", 1.7976931348623157E308},
    });
}

TEST(Val, SkipsBlanksTabsAndLineEndsWhereverTheyStand) {
    expect_values({
        {"  42", 42},
        {"1 2 3", 123},
        {"- 1 2", -12},
        {"1 . 5", 1.5},
        {"\t1\t2\r\n3\n", 123},
        {"5 E 2", 500},
        {"5E - 1", 0.5},
        {" & H 1 F ", 31},
    });
}

TEST(Val, StopsAtTheFirstCharacterThatDoesNotFit) {
    expect_values({
        {"7.5MHz", 7.5},
        {"1,900", 1},
        {"1.5.3", 1.5},
        {"14-CW", 14},
        {"5+3", 5},
        {"59漢", 59},
        {"1　2", 1},  // a full-width blank is no blank
        {"0x10", 0},
        {std::string("1\0002", 3), 1},
        {"1\v2", 1},
    });
}

TEST(Val, ReadsAnExponentByEOrD) {
    expect_values({
        {"5E2", 500},
        {"5e2", 500},
        {"5D2", 500},
        {"5d2", 500},
        {"5E+2", 500},
        {"5D+2", 500},
        {"125E-2", 1.25},
        {"125d-2", 1.25},
        {"-2.5D1", -25},
        {".5E1", 5},
        {"5.E1", 50},
        {"5E02", 500},
        {"5E2.5", 500},
        {"5E2E3", 500},
        {"5D2E3", 500},
        {"0E999", 0},
    });
}

TEST(Val, LeavesAnExponentWithoutDigitsAlone) {
    expect_values({{"5E", 5}, {"5D", 5}, {"5E+", 5}, {"5D-", 5}, {"5EX", 5}, {"5 DX", 5}});
}

TEST(Val, IsZeroForNoNumber) {
    for (const std::string text :
         {"",     "   ", "\t\r\n", "-",  "+",   ".",   "-.",  "+.",   "--1",      "++1", "+-1",
          "-+1",  "abc", "E5",     "D5", ".E5", "-E5", "inf", "-inf", "Infinity", "nan", "NAN(1)",
          "１２", "漢",  "#5",     "&",  "&H",  "&O",  "&X1", "&HG",  "&O8",      "\xFF"}) {
        EXPECT_EQ(val(text), 0) << quoted(text);
    }
}

TEST(Val, ReadsHexadecimalNumbersOf16And32Bits) {
    expect_values({
        {"&H0", 0},
        {"&H1F", 31},
        {"&hff", 255},
        {"&H7FFF", 32767},
        {"&H8000", -32768},
        {"&HFFFF", -1},
        {"&H10000", 65536},
        {"&H7FFFFFFF", 2147483647.0},
        {"&H80000000", -2147483648.0},
        {"&HFFFFFFFF", -1},
        {"&H1FG5", 31},
        {"&H1.5", 1},
        {"&H1E2", 0x1E2},  // no exponent
        {"&HD2", 0xD2},
    });
}

TEST(Val, ReadsOctalNumbersOf16And32Bits) {
    expect_values({
        {"&O0", 0},
        {"&O17", 15},
        {"&o17", 15},
        {"&O77777", 32767},
        {"&O100000", -32768},
        {"&O177777", -1},
        {"&O200000", 65536},
        {"&O17777777777", 2147483647.0},
        {"&O37777777777", -1},
        {"&O178", 15},
    });
}

TEST(Val, FailsForANumberThatNoDoubleHolds) {
    for (const std::string& text :
         {std::string("1E309"), std::string("-1E309"), std::string("1D400"), std::string("1 E 999"),
          std::string("1E99999999999999999999"), std::string(400, '9')}) {
        EXPECT_THAT([&] { val(text); }, fails_with(Failure::overflow)) << quoted(text);
    }
}

TEST(Val, TakesTooSmallANumberAsZero) {
    expect_values({{"1E-400", 0}, {"-1E-400", 0}, {"1E-99999999999999999999", 0}});
}

TEST(Val, HoldsTheSmallestNumbersOfADouble) {
    expect_values({{"1E-310", 1E-310}, {"5E-324", 5E-324}});
}

TEST(RightAligned, FillsWithBlanksAndNeverCuts) {
    EXPECT_EQ(right_aligned(7, 5), "    7");
    EXPECT_EQ(right_aligned(0, 1), "0");
    EXPECT_EQ(right_aligned(-12, 5), "  -12");
    EXPECT_EQ(right_aligned(12345, 5), "12345");
    EXPECT_EQ(right_aligned(123456, 5), "123456");
    EXPECT_EQ(right_aligned(-5, 1), "-5");
    EXPECT_EQ(right_aligned(42, 0), "42");
    EXPECT_EQ(right_aligned(far_before, 22), "  -9223372036854775808");
}

// --- by the bytes of code page 932 ---

TEST(LenMbcs, CountsTheBytesOfTheCodePage) {
    const std::vector<std::pair<std::string, std::size_t>> cases{
        {"", 0},
        {"JA1QZX", 6},
        {"東京都", 6},
        {"ｱｲｳﾞﾟ", 5},
        {"。", 2},
        {"｡", 1},             // U+FF61, the first of half width
        {"ﾟ", 1},             // U+FF9F, the last
        {"｠", 2},            // U+FF60, in front of them
        {"\xEF\xBE\xA0", 2},  // U+FFA0, behind them
        {"ＪＡ１", 6},
        {"　", 2},
        {"é", 2},
        {"𠮷", 2},
        {"a漢ｱ", 4},
        {byte_80, 1},
        {byte_A0, 1},
        {byte_FD, 1},
        {byte_FF, 1},
        {pair_8540, 2},
        {"\xF4\x8F\x9B\xBF", 2},  // U+10F6FF, in front of the unreadable bytes
        {"\xF4\x8F\xA0\x80", 2},  // U+10F800, behind them
        {"\xFF", 1},
        {"\xE6\xBC", 2},
        {"漢\xE6", 3},
    };
    for (const auto& [text, width] : cases) {
        EXPECT_EQ(LenMbcs(text), width) << testing::PrintToString(text);
    }
}

TEST(LenMbcs, IsTheSameOnBothPaths) {
    for (std::size_t size = 0; size < 40; ++size) {
        const std::string plain(size, '~');
        EXPECT_EQ(LenMbcs(plain), size);
        EXPECT_EQ(LenMbcs(plain + "漢"), size + 2);
    }
}

struct Piece {
    std::string text;
    Count start;
    Count count;
    std::string expected;
};

void expect_pieces(const std::vector<Piece>& pieces) {
    for (const Piece& it : pieces) {
        EXPECT_EQ(MidMbcs(it.text, it.start, it.count), it.expected)
            << quoted(it.text) << ", " << it.start << ", " << it.count;
    }
}

TEST(MidMbcs, TakesWholeCharactersThatFit) {
    // Bytes: a 1, b 2, 漢 3-4, 字 5-6, c 7, d 8.
    expect_pieces({
        {"ab漢字cd", 1, 8, "ab漢字cd"},
        {"ab漢字cd", 1, 2, "ab"},
        {"ab漢字cd", 1, 3, "ab"},
        {"ab漢字cd", 1, 4, "ab漢"},
        {"ab漢字cd", 3, 2, "漢"},
        {"ab漢字cd", 3, 1, ""},
        {"ab漢字cd", 3, 3, "漢"},
        {"ab漢字cd", 5, 3, "字c"},
        {"ab漢字cd", 7, 9, "cd"},
        {"ab漢字cd", 8, 1, "d"},
        {"ab漢字cd", 9, 1, ""},
        {"ab漢字cd", 99, 1, ""},
        {"ab漢字cd", 1, far_behind, "ab漢字cd"},
        {"ab漢字cd", far_behind, far_behind, ""},
        {"", 1, 5, ""},
    });
}

TEST(MidMbcs, BeginsBehindACharacterThatTheStartByteCuts) {
    // The second byte of 漢 is 4, that of 字 is 6.
    expect_pieces({
        {"ab漢字cd", 4, 2, "字"},
        {"ab漢字cd", 4, 3, "字c"},
        {"ab漢字cd", 4, 1, ""},
        {"ab漢字cd", 6, 1, "c"},
        {"ab漢字cd", 6, 2, "cd"},
        {"漢", 2, 2, ""},
    });
    EXPECT_EQ(MidMbcs("ab漢字cd", 4), "字cd");
}

TEST(MidMbcs, GivesTheRestWithoutACount) {
    EXPECT_EQ(MidMbcs("ab漢字cd", 1), "ab漢字cd");
    EXPECT_EQ(MidMbcs("ab漢字cd", 3), "漢字cd");
    EXPECT_EQ(MidMbcs("ab漢字cd", 8), "d");
    EXPECT_EQ(MidMbcs("ab漢字cd", 9), "");
    EXPECT_EQ(MidMbcs("ab漢字cd", far_behind), "");
    EXPECT_EQ(MidMbcs("", 1), "");
}

TEST(MidMbcs, IsEmptyForACountOfZero) {
    expect_pieces({{"abc", 1, 0, ""}, {"漢字", 1, 0, ""}, {"漢字", 2, 0, ""}, {"", 1, 0, ""}});
}

TEST(MidMbcs, TakesAStartBelowOneAsOne) {
    for (const Count start : {Count{0}, Count{-1}, far_before}) {
        EXPECT_EQ(MidMbcs("a漢b", start, 3), "a漢") << start;
        EXPECT_EQ(MidMbcs("a漢b", start), "a漢b") << start;
    }
}

TEST(MidMbcs, GivesSingleBytesOnePositionEach) {
    expect_pieces({
        {"ｱ漢ｲ", 1, 1, "ｱ"},
        {"ｱ漢ｲ", 2, 2, "漢"},
        {"ｱ漢ｲ", 3, 1, "ｲ"},
        {"ｱ漢ｲ", 4, 1, "ｲ"},
        {byte_80 + byte_A0 + byte_FD, 2, 1, byte_A0},
        {byte_80 + byte_A0 + byte_FD, 2, 2, byte_A0 + byte_FD},
        {"a\xFF漢", 2, 1, "\xFF"},
        {"a\xFF漢", 3, 2, "漢"},
        {"\xE6\xBC漢", 2, 3, "\xBC漢"},
    });
}

TEST(MidMbcs, TakesAnOpenDoubleByteCodeAsOneCharacter) {
    expect_pieces({
        {pair_8540 + "a", 1, 1, ""},
        {pair_8540 + "a", 1, 2, pair_8540},
        {pair_8540 + "a", 2, 1, "a"},
        {pair_8540 + "a", 3, 1, "a"},
    });
}

TEST(FixedColumns, AndMidMbcsGiveTheSamePiecesOfAnyLine) {
    for (const PlainLine& line : random_lines()) {
        const std::string text = joined(line);
        const FixedColumns columns(text);
        const std::size_t width = LenMbcs(text);
        for (std::size_t start = 1; start <= width + 2; ++start) {
            for (std::size_t count = 0; count <= width + 2; ++count) {
                const std::string expected = plain_piece(line, start, count);
                ASSERT_EQ(MidMbcs(text, static_cast<Count>(start), static_cast<Count>(count)),
                          expected)
                    << testing::PrintToString(text) << ", " << start << ", " << count;
                ASSERT_EQ(columns.column(start, count), expected)
                    << testing::PrintToString(text) << ", " << start << ", " << count;
            }
        }
    }
}

TEST(FixedColumns, CutALineOfAscii) {
    const FixedColumns line("2025 07 04 JA1QZX");
    EXPECT_EQ(line.column(1, 4), "2025");
    EXPECT_EQ(line.column(6, 2), "07");
    EXPECT_EQ(line.column(12, 99), "JA1QZX");
    EXPECT_EQ(line.column(17, 1), "X");
    EXPECT_EQ(line.column(18, 1), "");
    EXPECT_EQ(line.column(99, 1), "");
    EXPECT_EQ(line.column(6, 0), "");
}

TEST(FixedColumns, CutALineOfWideCharacters) {
    // Bytes: 東 1-2, 京 3-4, blank 5, ｱ 6, 7 7.
    const FixedColumns line("東京 ｱ7");
    EXPECT_EQ(line.column(1, 4), "東京");
    EXPECT_EQ(line.column(2, 2), "京");
    EXPECT_EQ(line.column(3, 1), "");
    EXPECT_EQ(line.column(6, 1), "ｱ");
    EXPECT_EQ(line.column(7, 9), "7");
    EXPECT_EQ(line.column(8, 1), "");
}

TEST(FixedColumns, TakeAStartBelowOneAsOneLikeMidMbcs) {
    EXPECT_EQ(FixedColumns("abc").column(0, 0), "");
    EXPECT_EQ(FixedColumns("abc").column(0, 2), "ab");
    EXPECT_EQ(FixedColumns("漢ab").column(0, 1), "");
    EXPECT_EQ(FixedColumns("漢ab").column(0, 3), "漢a");
}

TEST(FixedColumns, TakeTheRestForAnyLargeCount) {
    constexpr auto large = static_cast<std::size_t>(far_behind);
    EXPECT_EQ(FixedColumns("abc").column(2, large), "bc");
    EXPECT_EQ(FixedColumns("a漢字").column(2, large), "漢字");
    EXPECT_EQ(FixedColumns("a漢字").column(4, large), "字");
    EXPECT_EQ(FixedColumns("a漢字").column(large, large), "");
}

TEST(FixedColumns, AreEmptyOnAnEmptyLine) {
    EXPECT_EQ(FixedColumns("").column(1, 5), "");
    EXPECT_EQ(FixedColumns("").trimmed(1, 5), "");
}

TEST(FixedColumns, TrimmedLoseBlanksAloneAtBothEnds) {
    EXPECT_EQ(FixedColumns("x 5 9 x").trimmed(2, 5), "5 9");
    EXPECT_EQ(FixedColumns("x     x").trimmed(2, 5), "");
    EXPECT_EQ(FixedColumns("x　漢 x").trimmed(2, 5), "　漢");
    EXPECT_EQ(FixedColumns("x\t5\t x").trimmed(2, 4), "\t5\t");
}

TEST(FixedWidth, FillsWithBlanksOrCuts) {
    EXPECT_EQ(fixed_width("abc", 5), "abc  ");
    EXPECT_EQ(fixed_width("abc", 3), "abc");
    EXPECT_EQ(fixed_width("abcd", 3), "abc");
    EXPECT_EQ(fixed_width("", 3), "   ");
    EXPECT_EQ(fixed_width("abc", 0), "");
    EXPECT_EQ(fixed_width("漢字", 6), "漢字  ");
    EXPECT_EQ(fixed_width("漢字", 2), "漢");
    EXPECT_EQ(fixed_width("ｱｲｳ", 2), "ｱｲ");
    EXPECT_EQ(fixed_width("ｱ", 2), "ｱ ");
    EXPECT_EQ(fixed_width(byte_FD, 2), byte_FD + " ");
}

TEST(AppendFixedWidth, LeavesWhatStandsInFront) {
    std::string line = "表";
    append_fixed_width(line, "ab", 4);
    append_fixed_width(line, "abcdef", 3);
    append_fixed_width(line, "", 2);
    append_fixed_width(line, "a山田", 4);  // half of the last character is a blank
    append_fixed_width(line, "abc山", 3);
    append_fixed_width(line, "x", 0);
    EXPECT_EQ(line, "表ab  abc  a山 abc");
}

TEST(FixedWidth, PutsABlankForHalfACharacterAtTheCut) {
    EXPECT_EQ(fixed_width("漢字", 3), "漢 ");
    EXPECT_EQ(fixed_width("漢字", 1), " ");
    EXPECT_EQ(fixed_width("a漢b", 2), "a ");
    EXPECT_EQ(fixed_width(pair_8540 + "a", 1), " ");
}

TEST(FixedWidth, IsAsWideAsToldForAnyText) {
    for (const PlainLine& line : random_lines()) {
        const std::string text = joined(line);
        for (std::size_t width = 0; width < 70; ++width) {
            ASSERT_EQ(LenMbcs(fixed_width(text, width)), width) << testing::PrintToString(text);
        }
    }
}

}  // namespace
}  // namespace veldrana
