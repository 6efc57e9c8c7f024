// Binary logs of RTCL: the test of a file, the records of both forms, and the frequency counter.
#include "readers/rtcl_log.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/readers/binary_log.h"
#include "tests/readers/reader_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Verdict = RtclCheck::Verdict;

class Rtcl : public ReaderFixture, public testing::WithParamInterface<RtclForm> {
  protected:
    Rtcl() { disk.put_folder("C:\\veldrana"); }

    std::vector<Contact> unpack(const std::string& bytes, RtclForm shape) {
        put_log(bytes);
        EXPECT_EQ(unpack_rtcl_log(stage, log_path, shape, "C:\\veldrana\\"),
                  "C:\\veldrana\\rtcl_tmp.txt");
        return lines();
    }

    std::vector<Contact> unpack(const std::vector<RtclContactBytes>& given) {
        std::string bytes;
        for (const RtclContactBytes& contact : given) {
            bytes += contact.bytes(GetParam());
        }
        return unpack(bytes, GetParam());
    }

    // The fields of each line of rtcl_tmp.txt.
    std::vector<Contact> lines() {
        std::vector<Contact> read;
        TextInput text(disk, "C:\\veldrana\\rtcl_tmp.txt");
        for (std::string_view line; text.next_line(line);) {
            read.push_back(split_quoted_fields(line));
        }
        return read;
    }
};

INSTANTIATE_TEST_SUITE_P(BothForms, Rtcl,
                         testing::Values(RtclForm::before_430, RtclForm::from_430));

// --- the test of a file ---

class RtclFile : public ReaderFixture {
  protected:
    Verdict verdict(const std::string& bytes, RtclForm shape) {
        put_log(bytes);
        check = chk_log(stage, log_path, shape);
        return check.verdict;
    }
    RtclCheck check;
};

TEST_F(RtclFile, FirstByteIsADigitZero) {
    for (const RtclForm shape : {RtclForm::before_430, RtclForm::from_430}) {
        EXPECT_EQ(verdict("", shape), Verdict::no_rtcl_log);
        EXPECT_EQ(verdict("1" + std::string(202, ' '), shape), Verdict::no_rtcl_log);
        EXPECT_EQ(verdict(std::string(209, '\0'), shape), Verdict::no_rtcl_log);
        for (const Damage& damage : damaged_logs()) {
            EXPECT_EQ(verdict(damage.bytes, shape), Verdict::no_rtcl_log) << damage.name;
        }
    }
}

TEST_F(RtclFile, LengthFitsTheForm) {
    for (std::size_t size = 1; size <= 2 * 209; ++size) {
        const std::string bytes(size, '0');
        EXPECT_EQ(verdict(bytes, RtclForm::before_430),
                  size == 203 || size == 406 ? Verdict::good : Verdict::no_whole_records)
            << size;
        EXPECT_EQ(verdict(bytes, RtclForm::from_430),
                  size == 209 || size == 418 ? Verdict::good : Verdict::no_whole_records)
            << size;
    }
}

TEST_F(RtclFile, LengthMayFitBothForms) {
    const std::string bytes(203 * 209, '0');
    EXPECT_EQ(verdict(bytes, RtclForm::before_430), Verdict::good);
    EXPECT_EQ(check.records, 209U);
    EXPECT_EQ(verdict(bytes, RtclForm::from_430), Verdict::good);
    EXPECT_EQ(check.records, 203U);
    EXPECT_TRUE(check.good());
}

TEST_F(RtclFile, RefusalTellsWhy) {
    const std::string path = "C:\\表\\x.log";
    EXPECT_EQ(rtcl_refusal(Verdict::no_rtcl_log, RtclForm::before_430, path).text,
              "C:\\表\\x.log　は RTCL ver 4.0 のｌｏｇ ファイルではありません");
    EXPECT_EQ(rtcl_refusal(Verdict::no_rtcl_log, RtclForm::from_430, path).text,
              "C:\\表\\x.log　は RTCL ver 4.0 のｌｏｇ ファイルではありません");
    EXPECT_EQ(rtcl_refusal(Verdict::no_whole_records, RtclForm::before_430, path).text,
              "C:\\表\\x.log　は RTCL ver 4.30 より前のｌｏｇ ファイルではありません");
    EXPECT_EQ(rtcl_refusal(Verdict::no_whole_records, RtclForm::from_430, path).text,
              "C:\\表\\x.log　は RTCL ver 4.30 以降のｌｏｇ ファイルではありません");
}

TEST_F(RtclFile, DialogNamesFolderAndForm) {
    const FileDialog before = rtcl_dialog(RtclForm::before_430, "C:\\log\\");
    EXPECT_EQ(before.title, "　C:\\log\\　のＲＴＣＬ ｖｅｒ　４＊．ｌｏｇ ファイルを  開く ....");
    EXPECT_EQ(before.filter, "RTCL テキストファイル( *.log )|*.log|");
    EXPECT_EQ(before.folder, "C:\\log\\");
    EXPECT_EQ(rtcl_dialog(RtclForm::from_430, "C:\\log\\").title,
              "　C:\\log\\　のＲＴＣＬ ｖｅｒ　４３０以降　＊．ｌｏｇ ファイルを  開く ....");
}

TEST(RtclFrequencyRounding, KilohertzAreRoundedFromTheCounterNotFromWholeHertz) {
    RtclFrequency frequency;
    // 12,499.5 Hz above 7 MHz: the Hz go up, the kHz do not.
    EXPECT_EQ(frequency.hertz(1521741824 + 12499 * 64 + 32, "7"), 7012500U);
    EXPECT_EQ(frequency.rounded_kilohertz(), 7012U);
    EXPECT_EQ(frequency.hertz(1521741824 + 12500 * 64, "7"), 7012500U);
    EXPECT_EQ(frequency.rounded_kilohertz(), 7013U);
    EXPECT_EQ(frequency.hertz(0, "7"), 7000000U);
    EXPECT_EQ(frequency.rounded_kilohertz(), 7000U);
}

TEST_F(RtclFile, MissingFileFails) {
    disk.put_folder("C:\\log");
    EXPECT_EQ(failure_of([&] { chk_log(stage, log_path, RtclForm::from_430); }), 53);
}

// --- a record ---

TEST_P(Rtcl, RecordGivesTwentyThreeFields) {
    EXPECT_THAT(
        unpack({{.kind = "00001",
                 .band = "14",
                 .counter = 1790177280 + 32 * 12600,  // 14.0126 MHz
                 .mode = "CW",
                 .second_mode = "CWN",
                 .call = "JR8YYX/1",
                 .report_sent = "599",
                 .exchange_sent = "11M",
                 .text_sent = "out",
                 .report_received = "589",
                 .exchange_received = "104M",
                 .text_received = "in",
                 .points = 1,
                 .multiplier_1 = "104",
                 .multiplier_2 = "JA8",
                 .third_text = "third",
                 .op = "JA1ZZZ",
                 .comment = "移動 運用"}}),
        ElementsAre(ElementsAre("00001", "14", "2025/04/26", "210559", "14", "  14012.600", "14013",
                                "CW", "CWN", "JR8YYX/1", "599", "11M", "out", "589", "104M", "in",
                                "1", "104", "JA8", "third", "", "JA1ZZZ", "移動 運用")));
}

// Every byte of a text's place is the text's, and none beside it.
TEST_P(Rtcl, TextsFillTheirPlaces) {
    const bool is_new = GetParam() == RtclForm::from_430;
    const std::string alphabet = "abcdefghijklmnopqrstuvwxy";
    const auto letters = [&](std::size_t count) { return alphabet.substr(0, count); };
    const Contact line = unpack({{.kind = letters(5),
                                  .band = letters(4),
                                  .mode = letters(5),
                                  .second_mode = letters(5),
                                  .call = letters(13),
                                  .report_sent = letters(6),
                                  .exchange_sent = letters(25),
                                  .text_sent = letters(10),
                                  .report_received = letters(6),
                                  .exchange_received = letters(25),
                                  .text_received = letters(10),
                                  .multiplier_1 = letters(is_new ? 10 : 6),
                                  .multiplier_2 = letters(is_new ? 8 : 6),
                                  .third_text = letters(6),
                                  .op = letters(6),
                                  .comment = letters(20)}})
                             .at(0);
    const std::vector<std::pair<rtcl_line::Field, std::size_t>> sizes{
        {rtcl_line::kind, 5},
        {rtcl_line::band, 4},
        {rtcl_line::band_again, 4},
        {rtcl_line::mode, 5},
        {rtcl_line::second_mode, 5},
        {rtcl_line::call, 13},
        {rtcl_line::report_sent, 6},
        {rtcl_line::exchange_sent, 25},
        {rtcl_line::text_sent, 10},
        {rtcl_line::report_received, 6},
        {rtcl_line::exchange_received, 25},
        {rtcl_line::text_received, 10},
        {rtcl_line::multiplier_1, is_new ? 10 : 6},
        {rtcl_line::multiplier_2, is_new ? 8 : 6},
        {rtcl_line::third_text, 6},
        {rtcl_line::op, 6},
        {rtcl_line::comment, 20}};
    for (const auto& [field, size] : sizes) {
        EXPECT_EQ(line[field], letters(size)) << field;
    }
}

TEST_P(Rtcl, QtcRecordIsLeftOut) {
    const auto read = unpack({{.call = "JA1ZZA"},
                              {.kind = "QTC", .call = "JA1ZZB"},
                              {.kind = "QTC12", .call = "JA1ZZC"},
                              {.kind = "qtc", .call = "JA1ZZD"},
                              {.kind = "0QTC", .call = "JA1ZZE"}});
    std::vector<std::string> calls;
    for (const Contact& line : read) {
        calls.push_back(line[rtcl_line::call]);
    }
    EXPECT_THAT(calls, ElementsAre("JA1ZZA", "JA1ZZD", "JA1ZZE"));
}

// A record that is left out is not looked at, whatever time it has.
TEST_P(Rtcl, QtcRecordMayHoldAnything) {
    EXPECT_THAT(unpack({{.kind = "QTC", .days = std::numeric_limits<double>::quiet_NaN()}}),
                IsEmpty());
}

TEST_P(Rtcl, DupeIsMarked) {
    const auto read = unpack({{.dupe = 0}, {.dupe = 1}, {.dupe = 255}});
    EXPECT_EQ(read[0][rtcl_line::dupe], "");
    EXPECT_EQ(read[1][rtcl_line::dupe], "-DUPE- ");
    EXPECT_EQ(read[2][rtcl_line::dupe], "-DUPE- ");
}

TEST_P(Rtcl, PointsAreReadAsHexadecimal) {
    const auto read = unpack({{.points = 9}, {.points = 10}, {.points = 99}, {.points = 255}});
    EXPECT_EQ(read[0][rtcl_line::points], "9");
    EXPECT_EQ(read[1][rtcl_line::points], "16");
    EXPECT_EQ(read[2][rtcl_line::points], "153");
    EXPECT_EQ(read[3][rtcl_line::points], "597");
}

TEST(RtclNumber, TakesDecimalDigitsForHexadecimal) {
    EXPECT_EQ(rtcl_number(0), 0U);
    EXPECT_EQ(rtcl_number(1), 1U);
    EXPECT_EQ(rtcl_number(10), 0x10U);
    EXPECT_EQ(rtcl_number(42), 0x42U);
    EXPECT_EQ(rtcl_number(100), 0x100U);
    EXPECT_EQ(rtcl_number(255), 0x255U);
}

TEST_P(Rtcl, CounterOfZeroShowsTheLowerEdge) {
    const Contact line = unpack({{.band = "7", .counter = 0}}).at(0);
    EXPECT_EQ(line[rtcl_line::frequency], "   7000.000");
    EXPECT_EQ(line[rtcl_line::rounded_frequency], "7000");
}

TEST_P(Rtcl, FrequencyIsRoundedUpFromAHalf) {
    const auto rounded = [this](std::uint32_t hertz_above_7_mhz) {
        return unpack({{.band = "7", .counter = 1521741824 + 64 * hertz_above_7_mhz}})
            .at(0)[rtcl_line::rounded_frequency];
    };
    EXPECT_EQ(rounded(12499), "7012");
    EXPECT_EQ(rounded(12500), "7013");
    EXPECT_EQ(rounded(0), "7000");
}

TEST_P(Rtcl, RecordBesideTheTableStaysAtTheBaseBefore) {
    const auto read = unpack({{.band = "7", .counter = 5},
                              {.band = "7", .counter = 1521741824 + 64 * 12000},
                              {.band = "7", .counter = 5},
                              {.band = "50", .counter = 0},
                              {.band = "x", .counter = 0},
                              {.band = "7", .counter = 997670910}});
    std::vector<std::string> rounded;
    for (const Contact& line : read) {
        rounded.push_back(line[rtcl_line::rounded_frequency]);
    }
    EXPECT_THAT(rounded, ElementsAre("0", "7012", "7000", "50000", "50000", "50000"));
    EXPECT_EQ(read[0][rtcl_line::frequency], "       .  0");
}

TEST_P(Rtcl, TextsAreTrimmedAndMayBeEmpty) {
    const Contact line = unpack({{.call = "  JA1 A "}}).at(0);
    EXPECT_EQ(line[rtcl_line::call], "JA1 A");
    EXPECT_EQ(line[rtcl_line::op], "");
}

// The bytes of a text come out as they went in, whatever they are and whatever stands beside them.
TEST_P(Rtcl, TextsKeepTheirBytes) {
    for (int byte = 0x21; byte <= 0xFF; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        for (const std::string& bytes : {one, "1" + one + "2", "\x88\xDA" + one}) {
            put_log(RtclContactBytes{.call = from_code_page(bytes),
                                     .exchange_sent = from_code_page(" " + bytes),
                                     .comment = from_code_page(bytes)}
                        .bytes(GetParam()));
            unpack_rtcl_log(stage, log_path, GetParam(), "C:\\veldrana\\");
            std::string expected = R"("00001","7","2025/04/26","210559","7","   7012.000","7012",)";
            expected += R"("CW","",")" + bytes + R"(","599",")" + bytes + R"(","","589",)";
            expected += R"("104M","","1","","","","","",")" + bytes + "\"\r\n";
            EXPECT_EQ(disk.bytes("C:\\veldrana\\rtcl_tmp.txt"), expected) << byte;
        }
    }
}

TEST_P(Rtcl, DateFollowsTheDays) {
    const auto read = unpack({{.days = april_26 + 0.25},
                              {.days = april_26 + 0.75},
                              {.days = april_26 + 1.0},
                              {.days = april_26},
                              {.days = april_26 - 1.0 / 86400},
                              {.days = -1.25},
                              {.days = 0.5}});
    std::vector<std::string> moments;
    for (const Contact& line : read) {
        moments.push_back(line[rtcl_line::date] + " " + line[rtcl_line::time]);
    }
    EXPECT_THAT(moments, ElementsAre("2025/04/26 060000", "2025/04/26 180000", "2025/04/27 000000",
                                     "2025/04/26 000000", "2025/04/25 235959", "1899/12/29 060000",
                                     "1899/12/30 120000"));
}

TEST_P(Rtcl, LongFrequencyKeepsAllItsDigits) {
    // (3521225471 - 3114354560) * 10000 Hz above 430 MHz
    const Contact line = unpack({{.band = "5600", .counter = 3521225471}}).at(0);
    EXPECT_EQ(line[rtcl_line::frequency], "4069139110.000");
    EXPECT_EQ(line[rtcl_line::rounded_frequency], "4069139110");
    EXPECT_EQ(unpack({{.band = "1.8", .counter = 0}}).at(0)[rtcl_line::frequency], "   1800.000");
}

TEST_P(Rtcl, TimeOfNoCalendarOverflows) {
    for (const double days : {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e9}) {
        EXPECT_EQ(failure_of([&] { unpack({{.days = days}}); }), 6) << days;
    }
}

TEST_P(Rtcl, TimeGoesToTheNearestSecond) {
    const Contact line = unpack({{.days = april_26 + 86399.7 / 86400}}).at(0);
    EXPECT_EQ(line[rtcl_line::date], "2025/04/27");
    EXPECT_EQ(line[rtcl_line::time], "000000");
}

// --- the counter ---

struct CounterCase {
    std::uint32_t counter;
    const char* band;
    std::uint64_t hertz;
};

class RtclCounter : public testing::TestWithParam<CounterCase> {};

TEST_P(RtclCounter, GivesAFrequency) {
    EXPECT_EQ(RtclFrequency().hertz(GetParam().counter, GetParam().band), GetParam().hertz);
}

INSTANTIATE_TEST_SUITE_P(
    Thresholds, RtclCounter,
    testing::Values(CounterCase{997670912, "", 1800000}, CounterCase{1023270912, "", 1900000},
                    CounterCase{1253306368, "", 3500000}, CounterCase{1521741824, "", 7000000},
                    CounterCase{1662177280, "", 10000000}, CounterCase{1790177280, "", 14000000},
                    CounterCase{1898612736, "", 18000000}, CounterCase{1946612736, "", 21000000},
                    CounterCase{1994612736, "", 24000000}, CounterCase{2058612736, "", 28000000},
                    CounterCase{2074612736, "", 29000000}, CounterCase{2279048192, "", 50000000},
                    CounterCase{2287048192, "", 51000000}, CounterCase{2295048192, "", 52000000},
                    CounterCase{2303048192, "", 53000000}, CounterCase{2311048192, "", 54000000},
                    CounterCase{2703919104, "", 144000000}, CounterCase{3114354560, "", 430000000},
                    CounterCase{3521225472, "", 1200000000},
                    CounterCase{3789660928, "", 2400000000},
                    CounterCase{4108096384, "", 5600000000}));

// Fractions worked out by hand: the way from the lower threshold by the lower divider.
INSTANTIATE_TEST_SUITE_P(
    OneBelowAThresholdGoesByTheLowerRow, RtclCounter,
    testing::Values(CounterCase{997670911, "", 1800000}, CounterCase{1023270911, "", 1900000},
                    CounterCase{1253306367, "", 2798576}, CounterCase{1521741823, "", 5597152},
                    CounterCase{1662177279, "", 9194304}, CounterCase{1790177279, "", 14000000},
                    CounterCase{1898612735, "", 17388608}, CounterCase{1946612735, "", 21000000},
                    CounterCase{1994612735, "", 24000000}, CounterCase{2058612735, "", 28000000},
                    CounterCase{2074612735, "", 29000000}, CounterCase{2279048191, "", 41777216},
                    CounterCase{2287048191, "", 51000000}, CounterCase{2295048191, "", 52000000},
                    CounterCase{2303048191, "", 53000000}, CounterCase{2311048191, "", 54000000},
                    CounterCase{2703919103, "", 103108864}, CounterCase{3114354559, "", 349217728},
                    CounterCase{3521225471, "", 836870911}, CounterCase{3789660927, "", 1210737418},
                    CounterCase{4108096383, "", 2402547484}));

INSTANTIATE_TEST_SUITE_P(
    OneStepOfADivider, RtclCounter,
    testing::Values(
        CounterCase{997670912 + 256, "", 1800001}, CounterCase{1023270912 + 256, "", 1900001},
        CounterCase{1253306368 + 128, "", 3500001}, CounterCase{1521741824 + 64, "", 7000001},
        CounterCase{1662177280 + 32, "", 10000001}, CounterCase{1790177280 + 32, "", 14000001},
        CounterCase{1898612736 + 16, "", 18000001}, CounterCase{1946612736 + 16, "", 21000001},
        CounterCase{1994612736 + 16, "", 24000001}, CounterCase{2058612736 + 16, "", 28000001},
        CounterCase{2074612736 + 16, "", 29000001}, CounterCase{2279048192 + 8, "", 50000001},
        CounterCase{2287048192 + 8, "", 51000001}, CounterCase{2295048192 + 8, "", 52000001},
        CounterCase{2303048192 + 8, "", 53000001}, CounterCase{2311048192 + 8, "", 54000001},
        CounterCase{2703919104 + 2, "", 144000001}, CounterCase{3114354560 + 1, "", 430000001},
        CounterCase{3521225472 + 25, "", 1200000001}, CounterCase{3789660928 + 125, "", 2400000001},
        CounterCase{4108096384 + 625, "", 5600000001}));

INSTANTIATE_TEST_SUITE_P(BandsLengthenTheWay, RtclCounter,
                         testing::Values(CounterCase{3521225472 + 250, "1200", 1200001000},
                                         CounterCase{3789660928 + 125, "2400", 2400001000},
                                         CounterCase{4108096384 + 625, "5600", 5600010000},
                                         // Also where band and counter contradict each other.
                                         CounterCase{2703919104 + 5, "5600", 144025000},
                                         CounterCase{3521225472 + 250, "430", 1200000010}));

INSTANTIATE_TEST_SUITE_P(PartsOfAHertzGoToTheNearest, RtclCounter,
                         testing::Values(CounterCase{1521741824 + 31, "7", 7000000},
                                         CounterCase{1521741824 + 32, "7", 7000001},
                                         CounterCase{4294967295, "430",
                                                     5600298993}));  // 298993.46 Hz

INSTANTIATE_TEST_SUITE_P(
    ZeroIsTheEdgeOfTheBand, RtclCounter,
    testing::Values(CounterCase{0, "1.8", 1800000}, CounterCase{0, "1.9", 1900000},
                    CounterCase{0, "3.5", 3500000}, CounterCase{0, "7", 7000000},
                    CounterCase{0, "10", 10000000}, CounterCase{0, "14", 14000000},
                    CounterCase{0, "18", 18000000}, CounterCase{0, "21", 21000000},
                    CounterCase{0, "24", 24000000}, CounterCase{0, "28", 28000000},
                    CounterCase{0, "29", 29000000}, CounterCase{0, "50", 50000000},
                    CounterCase{0, "144", 144000000}, CounterCase{0, "430", 430000000},
                    CounterCase{0, "1200", 1200000000}, CounterCase{0, "2400", 2400000000},
                    CounterCase{0, "5600", 5600000000}, CounterCase{0, "", 0}));

TEST(RtclCounterTest, BelowEveryThresholdNothingIsKnownAtFirst) {
    EXPECT_EQ(RtclFrequency().hertz(1, "7"), 0U);
    EXPECT_EQ(RtclFrequency().hertz(997670910, "7"), 0U);
}

TEST(DividedText, IsFilledFromItsEnd) {
    EXPECT_EQ(divided_text("7012345", 10, 3, '.'), "   7012.345");
    EXPECT_EQ(divided_text("5600000000", 10, 3, '.'), "5600000.000");
    EXPECT_EQ(divided_text("2052177275000", 10, 3, '.'), "2052177275.000");
    EXPECT_EQ(divided_text("0", 10, 3, '.'), "       .  0");
    EXPECT_EQ(divided_text("2105", 4, 2, ':'), "21:05");
    EXPECT_EQ(divided_text("105", 4, 2, ':'), " 1:05");
    EXPECT_EQ(divided_text("", 4, 2, ':'), "  :  ");
    EXPECT_EQ(divided_text("山5", 4, 2, ':'), "  :山5");
}

// --- the run ---

TEST_P(Rtcl, TracesTheFilesItOpens) {
    unpack(std::vector<RtclContactBytes>{{}});
    EXPECT_THAT(trace.lines, ElementsAre("Open C:\\log\\x.log For Input As #f_i",
                                         "Open C:\\veldrana\\rtcl_tmp.txt For Output As #f_o"));
}

TEST_P(Rtcl, TextOfTheLogBeforeIsReplaced) {
    unpack({{.call = "JA1ZZA"}, {.call = "JA1ZZB"}});
    EXPECT_THAT(unpack({{.call = "JA1ZZC"}}), SizeIs(1));
}

// --- what is no log ---

TEST_P(Rtcl, FileCutAnywhereLosesItsLastRecord) {
    const std::string one = RtclContactBytes{}.bytes(GetParam());
    const std::string whole = one + one;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        EXPECT_THAT(unpack(whole.substr(0, size), GetParam()), SizeIs(size / one.size())) << size;
    }
}

TEST_P(Rtcl, RecordOfZerosIsALine) {
    const Contact line = unpack(std::string(rtcl_record_size(GetParam()), '\0'), GetParam()).at(0);
    EXPECT_EQ(line[rtcl_line::date], "1899/12/30");
    EXPECT_EQ(line[rtcl_line::call], std::string(13, '\0'));
    EXPECT_EQ(line[rtcl_line::rounded_frequency], "0");
}

TEST_P(Rtcl, RecordOfTheHighestBytesOverflows) {
    EXPECT_EQ(failure_of([&] { unpack(std::string(418, '\xFF'), GetParam()); }), 6);
}

TEST_P(Rtcl, BytesThatAreNoCharacterPassThrough) {
    std::string bytes = RtclContactBytes{.call = "JR8YYX"}.bytes(GetParam());
    const std::size_t call = bytes.find("JR8YYX");
    bytes.replace(call, 6, std::string("J\xFF\0\x80YX", 6));
    unpack(bytes, GetParam());
    EXPECT_NE(disk.bytes("C:\\veldrana\\rtcl_tmp.txt").find(std::string("\"J\xFF\0\x80YX\"", 8)),
              std::string::npos);
}

}  // namespace
}  // namespace veldrana
