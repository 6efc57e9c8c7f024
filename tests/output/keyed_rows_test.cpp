#include "output/keyed_rows.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "rows/row_formats.h"

namespace veldrana {
namespace {

struct Contact {
    std::string call = "JA1ZZA";
    std::string frequency = "7";
    std::string mode = "CW";
    std::string date = "250426";
    std::string time = "2105U";
};

std::string contest_key(const Contact& contact, std::size_t call_width, const RunOptions& options) {
    // What is no part of the key holds a text that would show in it.
    std::array<std::string_view, contest_row::count> row;
    row.fill("?");
    row[contest_row::call_base] = contact.call;
    row[contest_row::frequency] = contact.frequency;
    row[contest_row::mode] = contact.mode;
    row[contest_row::date] = contact.date;
    row[contest_row::time] = contact.time;
    std::string key = "left from before";
    make_contest_key(key, row, call_width, options);
    return key;
}

struct KeyOfRow {
    std::string call;
    std::size_t call_width;
    int Option06;
    std::string key;
};

TEST(ContestKey, HasItsFieldsInTheOrderOfTheOptionAndTheCallInItsWidth) {
    const std::vector<KeyOfRow> rows{
        {"JA1ZZA", 7, 0, "JA1ZZA 000000007CW 2504262105U"},
        {"JA1ZZA", 7, 1, "JA1ZZA 2504262105U000000007CW "},
        {"JA1ZZA", 14, 0, "JA1ZZA        000000007CW 2504262105U"},
        {"JA1ZZA", 14, 1, "JA1ZZA        2504262105U000000007CW "},
        {"JA1ZZABCD", 7, 0, "JA1ZZAB000000007CW 2504262105U"},
        {"JA1ZZABCD", 7, 1, "JA1ZZAB2504262105U000000007CW "},
        {"JA1ZZABCD", 14, 0, "JA1ZZABCD     000000007CW 2504262105U"},
        {"JA1ZZABCD", 14, 1, "JA1ZZABCD     2504262105U000000007CW "},
        {"JA1ZZABCDEFGHIJ", 14, 0, "JA1ZZABCDEFGHI000000007CW 2504262105U"},
        {"", 7, 0, "       000000007CW 2504262105U"},
    };
    for (const KeyOfRow& row : rows) {
        EXPECT_EQ(
            contest_key({.call = row.call}, row.call_width, RunOptions{.Option06 = row.Option06}),
            row.key)
            << row.call;
    }
}

TEST(ContestKey, WidthsOfTheCallAndTheWindow) {
    EXPECT_EQ(single_call_width, 7U);
    EXPECT_EQ(multiple_call_width, 14U);
    EXPECT_EQ(contest_key_width, 30U);
    // The key of a single fills the window, that of a multiple is longer.
    for (const int Option06 : {0, 1}) {
        const RunOptions options{.Option06 = Option06};
        EXPECT_EQ(contest_key({}, single_call_width, options).size(), 30U);
        EXPECT_EQ(contest_key({}, multiple_call_width, options).size(), 37U);
    }
}

struct FrequencyField {
    std::string frequency;
    bool Check01;
    std::string field;
};

TEST(ContestKey, FrequencyField) {
    const std::vector<FrequencyField> rows{
        {"7", false, "000000007"},         {"7", true, "000000007"},
        {"3.5", false, "000000003"},       {"3.5", true, "0000003.5"},
        {"1.9", false, "000000001"},       {"1.9", true, "0000001.9"},
        {"10.1", false, "000000001"},  // the first character alone
        {"10.1", true, "0000010.1"},       {"430", false, "000000430"},
        {"1200", false, "000001200"},      {"10G", false, "00000010G"},
        {" 7 ", false, "000000007"},       {" 7.012 ", true, "00007.012"},
        {" .5", false, "00000000 "},  // first character, then no trimming
        {"1296.125", true, "01296.125"},   {"10368.100", true, "10368.100"},
        {"24048.1005", true, "4048.1005"}, {"", false, "00000000"},  // eight zeros are all there is
    };
    for (const FrequencyField& row : rows) {
        EXPECT_EQ(contest_key({.frequency = row.frequency}, 7, RunOptions{.Check01 = row.Check01}),
                  "JA1ZZA " + row.field + "CW 2504262105U")
            << row.frequency;
    }
}

TEST(ContestKey, FrequenciesOfThreeAndThreeAndAHalfAreAlikeUnlessTheMemoIsTaken) {
    const RunOptions band_only{.Check01 = false};
    EXPECT_EQ(contest_key({.frequency = "3.5"}, 7, band_only),
              contest_key({.frequency = "3"}, 7, band_only));
    const RunOptions with_memo{.Check01 = true};
    EXPECT_NE(contest_key({.frequency = "3.5"}, 7, with_memo),
              contest_key({.frequency = "3"}, 7, with_memo));
}

struct ModeField {
    std::string mode;
    std::string field;
};

// A mode of one letter makes the field, and so the key, one character shorter.
TEST(ContestKey, ModeField) {
    const std::vector<ModeField> rows{
        {"CW", "CW "}, {"FM", "FM "}, {"SSB", "SSB"}, {"RTTY", "RTT"}, {"F", "F "}, {"", " "},
    };
    for (const ModeField& row : rows) {
        EXPECT_EQ(contest_key({.mode = row.mode}, 7, RunOptions{.Option06 = 0}),
                  "JA1ZZA 000000007" + row.field + "2504262105U")
            << row.mode;
        EXPECT_EQ(contest_key({.mode = row.mode}, 7, RunOptions{.Option06 = 1}),
                  "JA1ZZA 2504262105U000000007" + row.field)
            << row.mode;
    }
}

std::string seen_of_multiple(const Contact& contact, int Option06) {
    return contest_key(contact, multiple_call_width, RunOptions{.Option06 = Option06})
        .substr(0, contest_key_width);
}

TEST(ContestKey, OfAMultipleTheSortSeesTheMonthButNotTheDay) {
    EXPECT_EQ(seen_of_multiple({}, 0), "JA1ZZA        000000007CW 2504");
    EXPECT_EQ(seen_of_multiple({.date = "250401", .time = "0000U"}, 0),
              seen_of_multiple({.date = "250430", .time = "2359U"}, 0));
    EXPECT_LT(seen_of_multiple({.date = "250430"}, 0), seen_of_multiple({.date = "250501"}, 0));
}

TEST(ContestKey, OfAMultipleTheSortSeesTheMinuteButNoFrequencyBelowTenThousand) {
    EXPECT_EQ(seen_of_multiple({}, 1), "JA1ZZA        2504262105U00000");
    EXPECT_EQ(seen_of_multiple({.frequency = "7"}, 1), seen_of_multiple({.frequency = "9999"}, 1));
    EXPECT_LT(seen_of_multiple({.frequency = "9999"}, 1),
              seen_of_multiple({.frequency = "10000"}, 1));
    EXPECT_LT(seen_of_multiple({.time = "2105U"}, 1), seen_of_multiple({.time = "2106U"}, 1));
}

struct JarlKey {
    std::string call;
    std::string key;
};

TEST(JarlKey, GroupOfTwoCharactersAndSixOfTheCall) {
    const std::vector<JarlKey> rows{
        {"JA1ZZA", "01JA1ZZA"},   {"JE9ZZA", "09JE9ZZA"},
        {"JA0ZZA", "10JA0ZZA"},   {"KH0ZZ", "10KH0ZZ "},
        {"K10ZZ", "10K10ZZ "},    {"7N3ZZA", "017N3ZZA"},
        {"7J0ZZA", "017J0ZZA"},  // the first character is looked at before the third
        {"K1ZZA", "0ZK1ZZA "},    {"W1AZZ", "0AW1AZZ "},
        {"JA1ZZABC", "01JA1ZZA"}, {"JA1", "01JA1   "},
        {"7K", "017K    "},       {"JA", "0JA    "},  // no third character: one less
        {"J", "0J     "},         {"", "0      "},
    };
    for (const JarlKey& row : rows) {
        std::string key = "left from before";
        make_jarl_key(key, row.call);
        EXPECT_EQ(key, row.key) << row.call;
    }
}

TEST(JarlKey, CallsThatDifferBehindTheSixthCharacterHaveEqualKeys) {
    std::string one;
    std::string other;
    make_jarl_key(one, "8N1ZZZA");
    make_jarl_key(other, "8N1ZZZB");
    EXPECT_EQ(one, other);
    EXPECT_EQ(one, "018N1ZZZ");
}

TEST(KeyedLine, PutsTheKeyAsAColumnInFrontSoThatItBeginsAtTheSecondByte) {
    KeyedLine line;
    line.assign("of the row before", std::array<std::string_view, 3>{"x", "y", "z"});
    line.assign("01JA1ZZA", std::array<std::string_view, 2>{"JA1ZZA", ""});
    EXPECT_EQ(line.text(), "\"01JA1ZZA\",\"JA1ZZA\",\"\"");
    EXPECT_EQ(line.text().substr(1, 8), "01JA1ZZA");
}

}  // namespace
}  // namespace veldrana
