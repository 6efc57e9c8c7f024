// Files of records, and what stands in a record.
#include "readers/record_file.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/code_page_932.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Records : public StageFixture {
  protected:
    std::vector<std::string> read(const std::string& bytes, std::size_t size) {
        disk.put("C:\\x.log", bytes);
        RecordFile file(stage, "C:\\x.log", size);
        count = file.count();
        std::vector<std::string> records;
        for (std::string_view record; file.next(record);) {
            records.emplace_back(record);
        }
        return records;
    }

    std::size_t count = 0;
};

TEST_F(Records, WholeRecordsAreHandedOut) {
    EXPECT_THAT(read("abcdefghi", 3), ElementsAre("abc", "def", "ghi"));
    EXPECT_EQ(count, 3U);
    EXPECT_THAT(trace.lines, ElementsAre("Open C:\\x.log For Input As #f_i"));
}

TEST_F(Records, WhatIsLeftBehindTheLastIsPassedOver) {
    EXPECT_THAT(read("abcdefgh", 3), ElementsAre("abc", "def"));
    EXPECT_THAT(read("ab", 3), IsEmpty());
    EXPECT_THAT(read("", 3), IsEmpty());
    EXPECT_EQ(count, 0U);
}

TEST_F(Records, RecordsLieAcrossTheBlocksOfTheFile) {
    std::string bytes;
    for (std::size_t i = 0; i < 2 * disk_block_size; ++i) {
        bytes += static_cast<char>(i * 31 % 251);
    }
    for (const std::size_t size : {203U, 209U, 256U}) {
        const std::vector<std::string> records = read(bytes, size);
        ASSERT_EQ(records.size(), bytes.size() / size);
        std::string joined;
        for (const std::string& record : records) {
            joined += record;
        }
        EXPECT_EQ(joined, bytes.substr(0, joined.size())) << size;
    }
}

TEST_F(Records, MissingFileFails) {
    disk.put_folder("C:\\log");
    EXPECT_EQ(failure_of([&] { RecordFile(stage, "C:\\log\\none", 3); }), 53);
}

TEST(RecordNumbers, LowestByteStandsFirst) {
    const std::string record("x\x01\x02\x03\xFF\x00\x00\x00\x00\x00\x00\xF8\x3F", 13);
    EXPECT_EQ(byte_at(record, 4), 0xFF);
    EXPECT_EQ(word_at(record, 1), 0x0201);
    EXPECT_EQ(word_at(record, 3), 0xFF03);
    EXPECT_EQ(double_word_at(record, 1), 0xFF030201U);
    EXPECT_EQ(double_at(record, 5), 1.5);
}

TEST(RecordTexts, AreAsLongAsTheyAreCounted) {
    std::string own;
    EXPECT_EQ(counted_text("abcdef", 0, own), "");
    EXPECT_EQ(counted_text("abcdef", 3, own), "abc");
    EXPECT_EQ(counted_text("abcdef", 6, own), "abcdef");
    EXPECT_EQ(counted_text("abcdef", 255, own), "abcdef");
    EXPECT_EQ(counted_text(std::string_view("a\0b", 3), 3, own), std::string_view("a\0b", 3));
}

TEST(RecordTexts, NoCharacterIsBroken) {
    std::string own;
    const std::string_view name = "\x8E\x52\x93\x63";  // 山田
    EXPECT_EQ(counted_text(name, 4, own), "山田");
    EXPECT_EQ(counted_text(name, 3, own), "山");
    EXPECT_EQ(counted_text(name, 2, own), "山");
    EXPECT_EQ(counted_text(name, 1, own), "");
    EXPECT_EQ(counted_text("\xD4\xCF\xC0\xDE", 2, own), "ﾔﾏ");
    // What no second byte follows stands as the byte that it is.
    EXPECT_EQ(to_code_page(counted_text("a\x8E", 9, own)), "a\x8E");
}

struct MomentCase {
    double days;
    const char* text;
};

class DaysOfALog : public testing::TestWithParam<MomentCase> {};

TEST_P(DaysOfALog, StandForAMoment) {
    EXPECT_TRUE(is_calendar_time(GetParam().days));
    EXPECT_EQ(date_time_text(time_of_days(GetParam().days)), GetParam().text);
}

// Whole days were counted by hand from the lengths of the years.
INSTANTIATE_TEST_SUITE_P(
    Moments, DaysOfALog,
    testing::Values(
        MomentCase{0, "1899/12/30 00:00:00"}, MomentCase{1, "1899/12/31 00:00:00"},
        MomentCase{2, "1900/01/01 00:00:00"}, MomentCase{61, "1900/03/01 00:00:00"},
        MomentCase{36585, "2000/02/29 00:00:00"}, MomentCase{45773, "2025/04/26 00:00:00"},
        MomentCase{45773.5, "2025/04/26 12:00:00"},
        MomentCase{45773 + 75900 / 86400.0, "2025/04/26 21:05:00"},
        // To the nearest second, up to the next day.
        MomentCase{45773 + 75899.4 / 86400.0, "2025/04/26 21:04:59"},
        MomentCase{45773 + 75899.6 / 86400.0, "2025/04/26 21:05:00"},
        MomentCase{45773 + 86399.6 / 86400.0, "2025/04/27 00:00:00"},
        // In front of the first day the fraction still counts from midnight.
        MomentCase{-1, "1899/12/29 00:00:00"}, MomentCase{-1.25, "1899/12/29 06:00:00"},
        MomentCase{-0.25, "1899/12/30 06:00:00"}, MomentCase{-657434, "0100/01/01 00:00:00"},
        MomentCase{-657434.5, "0100/01/01 12:00:00"}, MomentCase{2958465, "9999/12/31 00:00:00"},
        MomentCase{2958465.5, "9999/12/31 12:00:00"}));

TEST(DaysOfNoCalendar, Overflow) {
    using Limits = std::numeric_limits<double>;
    for (const double days :
         {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(),
          Limits::lowest(), 1e300, -1e300, 9.3e18, -657435.0, 2958466.0, 2958465.999999}) {
        EXPECT_FALSE(is_calendar_time(days)) << days;
        EXPECT_EQ(failure_of([days] { time_of_days(days); }), 6) << days;
    }
}

TEST(MomentDigitsTest, StandInTheirPlaces) {
    const MomentDigits moment({2025, 4, 6, 1, 2, 3});
    EXPECT_EQ(moment.year(), "2025");
    EXPECT_EQ(moment.month(), "04");
    EXPECT_EQ(moment.day(), "06");
    EXPECT_EQ(moment.hour(), "01");
    EXPECT_EQ(moment.minute(), "02");
    EXPECT_EQ(moment.hhmm(), "0102");
    EXPECT_EQ(moment.hhmmss(), "010203");
    EXPECT_EQ(moment.date(), "2025/04/06");
    EXPECT_EQ(MomentDigits({100, 1, 1, 0, 0, 0}).year(), "0100");
}

}  // namespace
}  // namespace veldrana
