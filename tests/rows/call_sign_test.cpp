// What is read from a call sign: its parts, the JA key and the JA test, and the club rule with the
// values that live from contact to contact.
#include "rows/call_sign.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldrana {
namespace {

// --- parts ---

TEST(PortableSplit, TakesTheTextBehindOneSlashOrBetweenTheFirstAndTheLast) {
    struct Row {
        std::string_view call;
        std::string_view base;
        std::string_view portable;
    };
    const std::vector<Row> rows{
        {"JA1ABC", "JA1ABC", ""},         // no slash
        {"JA1ABC/1", "JA1ABC", "1"},      // one
        {"KH2/JA1ABC", "KH2", "JA1ABC"},  // one, with the country in front
        {"JA1ABC/", "JA1ABC", ""},        // one, with nothing behind
        {"/1", "", "1"},                  // one, with nothing in front
        {"JA1ABC/1/QRP", "JA1ABC", "1"},  // two: what stands behind the last is in neither
        {"KH2/JA1ABC/P", "KH2", "JA1ABC"},
        {"JA1ABC//1", "JA1ABC", ""},           // two, with nothing between
        {"JA1ABC/1/M/QRP", "JA1ABC", "1/M"},   // three: the middle slash stays
        {"JA1ABC/1/M/P/2", "JA1ABC", "1/M/P"}  // four
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.call);
        const CallParts parts = split_portable(row.call);
        EXPECT_EQ(parts.base, row.base);
        EXPECT_EQ(parts.portable, row.portable);
    }
}

// --- JA key ---

constexpr std::string_view key_before = "JA9PRV";

std::string key_of(std::string_view call) {
    CallMemory memory;
    memory.ja_key = key_before;
    find_ja_key(call, memory);
    return memory.ja_key;
}

struct KeyRow {
    std::string_view call;
    std::string_view key;
};

void expect_keys(const std::vector<KeyRow>& rows) {
    for (const KeyRow& row : rows) {
        SCOPED_TRACE(row.call);
        EXPECT_EQ(key_of(row.call), row.key);
    }
}

TEST(JaKey, IsTheWholeCallAsLoggedWithoutASlash) {
    expect_keys({{"JA1ABC", "JA1ABC"}, {"ja1abc", "ja1abc"}, {"K1AYBB", "K1AYBB"}});
}

TEST(JaKey, EachTrailingMarkIsTakenOut) {
    expect_keys({{"JA1ABC/P", "JA1ABC"}, {"JA1ABC/M", "JA1ABC"}, {"JA1ABC/QRP", "JA1ABC"}});
}

// The shorter mark goes first and leaves the last letter of the longer one.
TEST(JaKey, TrailingMmLeavesAnM) {
    EXPECT_EQ(key_of("JA1ABC/MM"), "JA1ABCM");
}

TEST(JaKey, TrailingQrppLeavesAP) {
    EXPECT_EQ(key_of("JA1ABC/QRPP"), "JA1ABCP");
}

TEST(JaKey, ATrailingMarkTakesTheOthersWithItEverywhere) {
    expect_keys({
        {"JA1ABC/P/M", "JA1ABC"},
        {"JA1ABC/CM/P", "JA1ABC"},  // here /CM goes too
        {"JA1ABC/QRP/QRP", "JA1ABC"},
        {"JA1ABC/MM/P", "JA1ABCM"},
        {"JA1ABC/QRPP/P", "JA1ABCP"},
        {"JA1ABC/PX2/M", "JA1ABCX2"},  // "/P" is looked for inside a piece too
        {"JA1ABC/1/P", "JA1ABC"},      // leaves JA1ABC/1
        {"KH2/JA1ABC/P", "KH2"},       // leaves KH2/JA1ABC
    });
}

// The pieces are told apart by length then, and the mark is the shorter one.
TEST(JaKey, ATrailingCmAloneIsNotStripped) {
    expect_keys({{"JA1ABC/CM", "CM"}, {"ja1abc/cm", "cm"}});
}

TEST(JaKey, EachInnerMarkIsTakenOut) {
    // With any of them left in, the second piece would be the key or a mark of one letter would
    // hide the next piece.
    expect_keys({{"JA1ABC/QRP/KH2", "KH2"},
                 {"JA1ABC/QRPP/KH2", "KH2"},
                 {"JA1ABC/M/KH2", "KH2"},
                 {"JA1ABC/MM/KH2", "KH2"},
                 {"JA1ABC/CM/KH2", "KH2"},
                 {"JA1ABC/P/KH2", "KH2"},
                 {"JA1ABC/QRP/1", "JA1ABC"},
                 {"JA1ABC/MM/1", "JA1ABC"}});
}

TEST(JaKey, InnerMarksGoInTheirOrderAndEverywhere) {
    expect_keys({
        {"JA1ABC/QRP/QRPP/1", "JA1ABCP"},  // /QRP is taken out of /QRPP
        {"JA1ABC/M/MM/1", "JA1ABCM"},
        {"JA1ABC/MM/M/1", "JA1ABCM"},    // /M goes first wherever it stands
        {"JA1ABC/M/MX1", "JA1ABCX1"},    // also at the start of a piece
        {"JA1ABC/P/QRP/KH2", "KH2"},     // two different marks
        {"JA1ABC/QRP/P/CM/KH2", "KH2"},  // three
    });
}

TEST(JaKey, MarksAreTakenOutInCapitals) {
    expect_keys({
        {"ja1abc/p", "JA1ABC"},    // a trailing mark is found in any case
        {"ja1abc/mm", "JA1ABCM"},  //
        {"ja1abc/M/1", "JA1ABC"},  // an inner mark makes the text capital
        {"ja1abc/m/1", "ja1abc"},  // but is found in capitals alone
        {"ja1abc/1", "ja1abc"},    // without a mark all stays
    });
}

TEST(JaKey, TwoPiecesAreToldApartByTheirLengths) {
    expect_keys({
        {"JA1ABC/1", "JA1ABC"},     // b is one character
        {"K/1", "K"},               // b is one character, a too
        {"JA1ABC/KH2", "KH2"},      // a is longer
        {"JA1ABC/JA2", "JA2"},      // a is longer
        {"KH2/JA1ABC", "KH2"},      // a is shorter
        {"W/JA1ABC", "W"},          // a is shorter, one character
        {"/JA1ABC", ""},            // a is shorter, nothing at all
        {"KH2/JA1ABC/1", "KH2"},    // only the first two pieces are looked at
        {"JA1ABC/1/KH2", "JA1ABC"}  //
    });
}

TEST(JaKey, StaysThatOfTheContactBeforeForPiecesOfOneLength) {
    EXPECT_EQ(key_of("JA1ABC/KH2XYZ"), key_before);
    EXPECT_EQ(key_of("W1/KH"), key_before);
}

TEST(JaKey, StaysThatOfTheContactBeforeForAnEmptySecondPiece) {
    EXPECT_EQ(key_of("JA1ABC/"), key_before);
    EXPECT_EQ(key_of("JA1ABC//1"), key_before);
}

TEST(JaKey, StartsEmpty) {
    CallMemory memory;
    find_ja_key("JA1ABC/JR2XYZ", memory);
    EXPECT_EQ(memory.ja_key, "");
}

TEST(JaKey, PortableAbroadAndAtHome) {
    struct Row {
        std::string_view call;
        std::string_view key;
        bool japanese;
    };
    const std::vector<Row> rows{{"KH2/JA1ABC", "KH2", false},
                                {"JA1ABC/KH2", "KH2", false},
                                {"JA1ABC/1", "JA1ABC", true},
                                {"JA1ABC/JA2", "JA2", true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.call);
        EXPECT_EQ(key_of(row.call), row.key);
        EXPECT_EQ(is_japanese(key_of(row.call)), row.japanese);
    }
}

// --- JA test ---

TEST(JaTest, EveryLetterBehindEachFirstCharacter) {
    struct Row {
        std::string_view first;
        std::string_view second;  // the letters that fit
    };
    const std::vector<Row> rows{{"7", "JKLMN"}, {"8", "JKLMN"}, {"J", "ABCDEFGHIJKLMNOPQRS"},
                                {"K", ""},      {"6", ""},      {"9", ""}};
    for (const Row& row : rows) {
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            const std::string key = std::string(row.first) + letter + "1XYZ";
            const bool fits = row.second.find(letter) != std::string_view::npos;
            EXPECT_EQ(is_japanese(key), fits) << key;
        }
    }
}

TEST(JaTest, EveryDigitInThirdPlaceFits) {
    for (char digit = '0'; digit <= '9'; ++digit) {
        EXPECT_TRUE(is_japanese(std::string("JA") + digit)) << digit;
    }
}

TEST(JaTest, WhatDoesNotFitThePatterns) {
    for (const std::string_view key :
         {"", "J", "JA", "JAA", "JAA1", "J1A", "7", "7K", "7KA1", "71K", "1JA1ABC", " JA1ABC"}) {
        EXPECT_FALSE(is_japanese(key)) << key;
    }
}

TEST(JaTest, SmallLettersDoNotFit) {
    for (const std::string_view key : {"ja1abc", "jA1ABC", "Ja1ABC", "7k1ABC", "8n1ABC"}) {
        EXPECT_FALSE(is_japanese(key)) << key;
    }
    EXPECT_TRUE(is_japanese("JA1abc"));  // behind the digit anything goes
}

TEST(JaTest, ACallInSmallLettersFitsOnlyIfATrailingMarkMadeItCapital) {
    EXPECT_FALSE(is_japanese(key_of("ja1abc")));
    EXPECT_FALSE(is_japanese(key_of("ja1abc/1")));
    EXPECT_TRUE(is_japanese(key_of("ja1abc/p")));
    EXPECT_TRUE(is_japanese(key_of("ja1abc/qrp")));
}

// --- club rule ---

TEST(ClubRule, FourthCharacterYOrZBehindAJ) {
    struct Row {
        std::string_view call_base;
        bool club;
    };
    const std::vector<Row> rows{
        {"JA1ZZZ", true},  {"JA1YAA", true},  {"JA1ZAA", true},  {"JS1YAA", true},
        {"JA1YABC", true}, {"JA1Y", true},    {"JA1ABC", false}, {"JA1XYZ", false},
        {"JA1AYZ", false}, {"JAY1AA", false}, {"JA1yAA", false}, {"JA1zAA", false},
        {"JA1", false},    {"", false},       {"JT1YAA", false},  // T is behind S
        {"JZ1YAA", false}, {"J11YAA", false}, {"Ja1YAA", false},  // no capital from A to S
        {"8J1YAA", false}, {"jA1YAA", false}, {"W1AYBB", false},  // no J, and none before
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.call_base);
        CallMemory memory;
        EXPECT_EQ(is_club(row.call_base, memory), row.club);
    }
}

TEST(ClubRule, FiveCharactersNeverAreAClub) {
    for (const std::string_view call_base : {"JA1ZY", "JA1YZ", "JA1YA", "K1YAA", "K1AYB"}) {
        SCOPED_TRACE(call_base);
        CallMemory memory;
        memory.club_position = 1;
        EXPECT_FALSE(is_club(call_base, memory));
    }
}

TEST(ClubRule, PositionIsThatOfTheSecondLetterFromAToS) {
    const std::string_view letters = "ABCDEFGHIJKLMNOPQRS";
    for (std::size_t i = 0; i < letters.size(); ++i) {
        CallMemory memory;
        is_club(std::string("J") + letters[i] + "1ABC", memory);
        EXPECT_EQ(memory.club_position, i + 1) << letters[i];
    }
}

TEST(ClubRule, StartsAsNotFound) {
    CallMemory memory;
    EXPECT_EQ(memory.club_position, 0U);
    EXPECT_FALSE(is_club("W1AYBB", memory));
}

TEST(ClubRule, OtherFirstCharactersKeepThePositionOfTheContactBefore) {
    CallMemory memory;
    EXPECT_FALSE(is_club("JR2ABC", memory));
    EXPECT_TRUE(is_club("W1AYBB", memory));
    EXPECT_TRUE(is_club("8J1ZAA", memory));  // and the one before that
    EXPECT_EQ(memory.club_position, 18U);    // R
}

TEST(ClubRule, ASecondLetterOutOfRangeIsRememberedAsNotFound) {
    CallMemory memory;
    memory.club_position = 1;
    EXPECT_FALSE(is_club("JT1ABC", memory));
    EXPECT_FALSE(is_club("W1AYBB", memory));
}

TEST(ClubRule, FiveCharactersLeaveThePositionAlone) {
    CallMemory memory;
    memory.club_position = 4;
    EXPECT_FALSE(is_club("JT1AB", memory));  // would be not found
    EXPECT_EQ(memory.club_position, 4U);
    EXPECT_FALSE(is_club("JA1AB", memory));  // would be 1
    EXPECT_EQ(memory.club_position, 4U);
}

TEST(ClubRule, TheTwoMemoriesDoNotTouchEachOther) {
    CallMemory memory;
    is_club("JC1ABC", memory);
    EXPECT_EQ(memory.ja_key, "");
    find_ja_key("JA9XYZ", memory);
    EXPECT_EQ(memory.club_position, 3U);
    EXPECT_EQ(memory.ja_key, "JA9XYZ");
}

}  // namespace
}  // namespace veldrana
