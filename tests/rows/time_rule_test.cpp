// In which time a contact is written: the five choices, the calendar behind them, and what is no
// date.
#include "rows/time_rule.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"

namespace veldrana {
namespace {

constexpr int japan_log = 1;  // Option1
constexpr int utc_log = 0;
constexpr int no_change = 0;  // Option08
constexpr int all_j = 1;
constexpr int all_u = 2;
constexpr int dx_u = 3;
constexpr int ja_j = 4;

constexpr std::string_view ja_call = "JA1ABC";
constexpr std::string_view dx_call = "KH2XYZ";

std::string log_time(int option_1, std::string_view four_digits) {
    return std::string(four_digits) + (option_1 == japan_log ? "J" : "U");
}

// Date and time behind the rule, with a blank between.
std::string converted(int option_08, int option_1, std::string_view call, std::string_view date,
                      std::string_view four_digits, CallMemory& memory) {
    ContactTime contact{.date = std::string(date), .time = log_time(option_1, four_digits)};
    apply_time_rule({.Option08 = option_08, .Option1 = option_1}, call, contact, memory);
    return contact.date + " " + contact.time;
}

std::string converted(int option_08, int option_1, std::string_view call, std::string_view date,
                      std::string_view four_digits) {
    CallMemory memory;
    return converted(option_08, option_1, call, date, four_digits, memory);
}

auto fails_with(Failure failure) {
    return testing::Throws<RunTimeError>(testing::Property(&RunTimeError::failure, failure));
}

TEST(ZoneOfLog, IsJForJapanTimeElseU) {
    EXPECT_EQ(zone_of_log({.Option1 = japan_log}), 'J');
    EXPECT_EQ(zone_of_log({.Option1 = utc_log}), 'U');
}

TEST(TimeRule, EveryChoiceForEveryLogAndStation) {
    struct Row {
        int option_08;
        int option_1;
        std::string_view call;
        std::string_view expected;  // of the first of August 2021, 0218
    };
    const std::vector<Row> rows{
        {no_change, japan_log, ja_call, "210801 0218J"},
        {no_change, japan_log, dx_call, "210801 0218J"},
        {no_change, utc_log, ja_call, "210801 0218U"},
        {no_change, utc_log, dx_call, "210801 0218U"},
        {all_j, japan_log, ja_call, "210801 0218J"},
        {all_j, japan_log, dx_call, "210801 0218J"},
        {all_j, utc_log, ja_call, "210801 1118J"},
        {all_j, utc_log, dx_call, "210801 1118J"},
        {all_u, japan_log, ja_call, "210731 1718U"},
        {all_u, japan_log, dx_call, "210731 1718U"},
        {all_u, utc_log, ja_call, "210801 0218U"},
        {all_u, utc_log, dx_call, "210801 0218U"},
        {dx_u, japan_log, ja_call, "210801 0218J"},
        {dx_u, japan_log, dx_call, "210731 1718U"},
        {dx_u, utc_log, ja_call, "210801 0218U"},
        {dx_u, utc_log, dx_call, "210801 0218U"},
        {ja_j, japan_log, ja_call, "210801 0218J"},
        {ja_j, japan_log, dx_call, "210801 0218J"},
        {ja_j, utc_log, ja_call, "210801 1118J"},
        {ja_j, utc_log, dx_call, "210801 0218U"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE("Option08 " + std::to_string(row.option_08) + ", Option1 " +
                     std::to_string(row.option_1) + ", " + std::string(row.call));
        EXPECT_EQ(converted(row.option_08, row.option_1, row.call, "210801", "0218"), row.expected);
    }
}

TEST(TimeRule, NewYearInJapanIsStillTheOldYearInUtc) {
    EXPECT_EQ(converted(all_u, japan_log, ja_call, "210101", "0015"), "201231 1515U");
}

// Of all years only 00 is a leap year in one century and none in the other, so the century of 50
// and 51 does not show in six digits; that both can be converted and roll over does.
TEST(TimeRule, Years50And51RollOver) {
    EXPECT_EQ(converted(all_u, japan_log, ja_call, "500101", "0015"), "491231 1515U");
    EXPECT_EQ(converted(all_u, japan_log, ja_call, "510101", "0015"), "501231 1515U");
    EXPECT_EQ(converted(all_j, utc_log, ja_call, "491231", "1500"), "500101 0000J");
    EXPECT_EQ(converted(all_j, utc_log, ja_call, "501231", "1500"), "510101 0000J");
}

TEST(TimeRule, Year00IsALeapYear) {
    EXPECT_EQ(converted(all_j, utc_log, ja_call, "000228", "1500"), "000229 0000J");
}

TEST(TimeRule, DatesRollByTheCalendar) {
    struct Row {
        int option_08;
        std::string_view date;
        std::string_view four_digits;
        std::string_view expected;
    };
    const std::vector<Row> rows{
        {all_u, "210801", "0859", "210731 2359U"},  // the minute before the day is the same
        {all_u, "210801", "0900", "210801 0000U"},  //
        {all_u, "210801", "2359", "210801 1459U"},  //
        {all_u, "210301", "0000", "210228 1500U"},  // no leap year
        {all_u, "240301", "0000", "240229 1500U"},  // leap year
        {all_u, "000101", "0000", "991231 1500U"},  // over the century
        {all_u, "210501", "0100", "210430 1600U"},  // a month of 30 days
        {all_j, "210731", "1459", "210731 2359J"},  //
        {all_j, "210731", "1500", "210801 0000J"},  //
        {all_j, "210228", "2359", "210301 0859J"},  //
        {all_j, "240228", "2359", "240229 0859J"},  //
        {all_j, "991231", "1500", "000101 0000J"},  //
        {all_j, "201231", "1515", "210101 0015J"},  //
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.date) + " " + std::string(row.four_digits));
        const int option_1 = row.option_08 == all_u ? japan_log : utc_log;
        EXPECT_EQ(converted(row.option_08, option_1, ja_call, row.date, row.four_digits),
                  row.expected);
    }
}

TEST(TimeRule, DxStationsToUtcDoesNothingToALogInUtc) {
    EXPECT_EQ(converted(dx_u, utc_log, dx_call, "210101", "0015"), "210101 0015U");
}

TEST(TimeRule, JaStationsToJapanTimeDoesNothingToALogInJapanTime) {
    EXPECT_EQ(converted(ja_j, japan_log, ja_call, "210101", "0015"), "210101 0015J");
}

TEST(TimeRule, WhereAPortableStationIsDecides) {
    struct Row {
        std::string_view call;
        bool japanese;
    };
    const std::vector<Row> rows{{"KH2/JA1ABC", false}, {"JA1ABC/KH2", false}, {"JA1ABC/1", true},
                                {"JA1ABC/JA2", true},  {"JA1ABC/MM", true},   {"JA1ABC/QRPP", true},
                                {"JA1ABC/CM", false},  {"ja1abc", false},     {"ja1abc/p", true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.call);
        EXPECT_EQ(converted(dx_u, japan_log, row.call, "210801", "0218"),
                  row.japanese ? "210801 0218J" : "210731 1718U");
        EXPECT_EQ(converted(ja_j, utc_log, row.call, "210801", "0218"),
                  row.japanese ? "210801 1118J" : "210801 0218U");
    }
}

TEST(TimeRule, ACallThatTellsNothingGoesByTheContactBefore) {
    CallMemory memory;
    const std::string_view of_one_length = "JA1ABC/KH2XYZ";
    converted(dx_u, japan_log, ja_call, "210801", "0218", memory);
    EXPECT_EQ(converted(dx_u, japan_log, of_one_length, "210801", "0218", memory), "210801 0218J");
    converted(dx_u, japan_log, dx_call, "210801", "0218", memory);
    EXPECT_EQ(converted(dx_u, japan_log, of_one_length, "210801", "0218", memory), "210731 1718U");
}

TEST(TimeRule, TheKeyIsNotedUnderEveryChoice) {
    for (const int option_08 : {no_change, all_j, all_u, dx_u, ja_j}) {
        SCOPED_TRACE(option_08);
        CallMemory memory;
        converted(option_08, japan_log, "JA1ABC/1", "210801", "0218", memory);
        EXPECT_EQ(memory.ja_key, "JA1ABC");
    }
}

struct NoMoment {
    std::string_view date;
    std::string_view four_digits;
};

const std::vector<NoMoment> no_moments{
    {"210230", "0218"}, {"210229", "0218"}, {"211301", "0218"}, {"210001", "0218"},
    {"210800", "0218"}, {"210832", "0218"}, {"21AB01", "0218"}, {"XX0801", "0218"},
    {"", "0218"},       {"210801", "2400"}, {"210801", "0260"}, {"210801", "AB18"},
    {"210801", "02XX"}, {"210801", ""},
};

TEST(TimeRule, WhatIsNoDateFailsInAConversion) {
    for (const NoMoment& row : no_moments) {
        SCOPED_TRACE(std::string(row.date) + " " + std::string(row.four_digits));
        const auto convert = [&row](int option_08, int option_1, std::string_view call) {
            return converted(option_08, option_1, call, row.date, row.four_digits);
        };
        EXPECT_THAT([&] { convert(all_j, utc_log, ja_call); }, fails_with(Failure::type_mismatch));
        EXPECT_THAT([&] { convert(all_u, japan_log, ja_call); },
                    fails_with(Failure::type_mismatch));
        EXPECT_THAT([&] { convert(dx_u, japan_log, dx_call); }, fails_with(Failure::type_mismatch));
        EXPECT_THAT([&] { convert(ja_j, utc_log, ja_call); }, fails_with(Failure::type_mismatch));
    }
}

TEST(TimeRule, WhatIsNoDatePassesWhereNothingIsConverted) {
    for (const NoMoment& row : no_moments) {
        const std::string date(row.date);
        const std::string time(row.four_digits);
        SCOPED_TRACE(date + " " + time);
        const std::string as_it_was_in_japan = date + " " + time + "J";
        const std::string as_it_was_in_utc = date + " " + time + "U";
        EXPECT_EQ(converted(no_change, japan_log, ja_call, date, time), as_it_was_in_japan);
        EXPECT_EQ(converted(all_j, japan_log, ja_call, date, time), as_it_was_in_japan);
        EXPECT_EQ(converted(all_u, utc_log, ja_call, date, time), as_it_was_in_utc);
        EXPECT_EQ(converted(dx_u, japan_log, ja_call, date, time), as_it_was_in_japan);
        EXPECT_EQ(converted(ja_j, utc_log, dx_call, date, time), as_it_was_in_utc);
    }
}

TEST(DatePieces, AreTheFirstTwoTheThirdAndFourthAndTheLastTwo) {
    struct Row {
        std::string_view date;
        std::string_view year;
        std::string_view month;
        std::string_view day;
    };
    const std::vector<Row> rows{{"210426", "21", "04", "26"}, {"21426", "21", "42", "26"},
                                {"2101", "21", "01", "01"},   {"211", "21", "1", "11"},
                                {"21", "21", "", "21"},       {"", "", "", ""}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.date);
        const DatePieces pieces = split_date(row.date);
        EXPECT_EQ(pieces.year, row.year);
        EXPECT_EQ(pieces.month, row.month);
        EXPECT_EQ(pieces.day, row.day);
    }
}

TEST(TimeRule, AShortDateIsReadByItsPieces) {
    EXPECT_EQ(converted(all_j, utc_log, ja_call, "2108", "1500"), "210809 0000J");
    EXPECT_EQ(converted(all_j, utc_log, ja_call, "211", "0015"), "210111 0915J");
}

}  // namespace
}  // namespace veldrana
