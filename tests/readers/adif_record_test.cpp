// The tags of one ADIF record, and the two tables of its bands.
#include "readers/adif_record.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/doubles/failure_of.h"

namespace veldrana {
namespace {

class AdifTags : public testing::Test {
  protected:
    // The text stays for the record's views.
    const AdifRecord& read(std::string given) {
        text = std::move(given);
        read_adif_record(text, options, record);
        return record;
    }

    std::string text;
    RunOptions options;
    AdifRecord record;
};

TEST_F(AdifTags, EachGivesItsField) {
    read(
        "<CALL:6>JA1ZZA<FREQ:6>14.025<BAND:3>20M<RST_SENT:3>599<RST_RCVD:3>589<MODE:2>CW"
        "<QSO_DATE:8>20250426<TIME_ON:6>120530<JCC:4>1004<EOR>");
    EXPECT_EQ(record.call, "JA1ZZA");
    EXPECT_EQ(record.frequency, "14.025");
    EXPECT_EQ(record.band, "20M");
    EXPECT_EQ(record.report_sent, "599");
    EXPECT_EQ(record.report_received, "589");
    EXPECT_EQ(record.mode, "CW");
    EXPECT_EQ(record.date, "20250426");
    EXPECT_EQ(record.year, "2025");
    EXPECT_EQ(record.time, "1205");
    EXPECT_EQ(record.code, "1004");
}

TEST_F(AdifTags, EitherCaseCounts) {
    read(
        "<call:6>ja1zza<Freq:6>14.025<band:3>20m<rst_Sent:3>599<rst_rcvd:3>589<mode:2>cw"
        "<qso_date:8>20250426<time_on:4>1205<jcg:5>10004<eor>");
    EXPECT_EQ(record.call, "ja1zza");
    EXPECT_EQ(record.frequency, "14.025");
    EXPECT_EQ(record.band, "20m");
    EXPECT_EQ(record.report_sent, "599");
    EXPECT_EQ(record.report_received, "589");
    EXPECT_EQ(record.mode, "cw");
    EXPECT_EQ(record.year, "2025");
    EXPECT_EQ(record.time, "1205");
    EXPECT_EQ(record.code, "10004");
}

TEST_F(AdifTags, RecordBeforeLeavesNothing) {
    options.Check27 = true;
    options.Check28 = true;
    read(
        "<CALL:6>JA1ZZA<FREQ:6>14.025<BAND:3>20M<RST_SENT:3>599<RST_RCVD:3>589<MODE:2>CW"
        "<QSO_DATE:8>20250426<TIME_ON:6>120530<APP_N1MM_EXCHANGE1:5>1234H<EOR>");
    EXPECT_EQ(record.code, "1234");
    read("<QTH:5>TOKYO<EOR>");
    for (const std::string_view field :
         {record.call, record.frequency, record.band, record.mode, record.report_sent,
          record.report_received, record.date, record.year, record.time, record.code}) {
        EXPECT_EQ(field, "");
    }
}

TEST_F(AdifTags, OtherTagsAreDropped) {
    read(
        "<NAME:4>Taro<QTH:5>Tokyo<CQZ:2>25<ITUZ:2>45<STATE:2>10<CNTY:4>1004<QSL_VIA:3>JRL"
        "<QSL_SENT:1>Y<QSL_RCVD:1>N<GRIDSQUARE:6>PM95TK<COMMENT:4>memo<IOTA:6>AS-007<DXCC:3>339"
        "<SECTION:2>KT<SRX:3>104<STX:3>001<OPERATOR:6>JA1ZZZ<APP_N1MM_POINTS:1>1"
        "<APP_N1MM_RADIO_NR:1>1<CONTEST_ID:4>ACAG<SUBMODE:3>USB<FREQ_RX:5>7.100<TIME_OFF:4>1300"
        "<BAND_RX:3>40M<QSO_DATE_OFF:8>20250427<STATION_CALLSIGN:6>JA1ZZZ<EOR>");
    for (const std::string_view field :
         {record.call, record.frequency, record.band, record.mode, record.report_sent,
          record.report_received, record.date, record.year, record.time, record.code}) {
        EXPECT_EQ(field, "");
    }
}

TEST_F(AdifTags, TextWithinALongerNameCounts) {
    EXPECT_EQ(read("<CALL:6>JA1ZZA<EQ_CALL:6>JA1ZZB").call, "JA1ZZB");
    EXPECT_EQ(read("<MY_JCC:4>1004").code, "1004");
    EXPECT_EQ(read("<APP_X_TIME_ON:4>1205").time, "1205");
}

TEST_F(AdifTags, TextWithinAValueCountsToo) {
    // Both texts hit, and both take the value behind the first ">".
    read("<COMMENT:20>my CALL: is <CALL:6>JA1ZZA");
    EXPECT_EQ(record.call, "JA1ZZA");
    read("<CALL:6>JA1ZZA<COMMENT:12>CALL: twice");
    EXPECT_EQ(record.call, "CALL: twice");
}

TEST_F(AdifTags, ModeHitsAtTheStartOfItsPieceAlone) {
    EXPECT_EQ(read("<MODE:2>CW<SUBMODE:3>USB<APP_MODE:1>x<COMMENT:6>a MODE: b").mode, "CW");
    EXPECT_EQ(read("MODE:2>FM").mode, "FM");  // also without a sign in front of the first piece
}

TEST_F(AdifTags, ModeIsNotTrimmedOthersAre) {
    read("<MODE:3> CW <CALL:8> JA1ZZA <RST_SENT:3> 599 <JCC:4> 1004 ");
    EXPECT_EQ(record.mode, " CW ");
    EXPECT_EQ(record.call, "JA1ZZA");
    EXPECT_EQ(record.report_sent, "599");
    EXPECT_EQ(record.code, "1004");
}

TEST_F(AdifTags, StatedLengthIsNotUsed) {
    EXPECT_EQ(read("<CALL:2>JA1ZZA/1<X>").call, "JA1ZZA/1");
    EXPECT_EQ(read("<CALL:60>JA1ZZA<X>").call, "JA1ZZA");
    EXPECT_EQ(read("<CALL:6:S>JA1ZZA<X>").call, "JA1ZZA");
}

TEST_F(AdifTags, ValueThatHoldsALessSignIsCutThere) {
    EXPECT_EQ(read("<CALL:7>JA1<ZZA<EOR>").call, "JA1");
}

TEST_F(AdifTags, ValueThatHoldsAGreaterSignKeepsIt) {
    EXPECT_EQ(read("<CALL:7>JA1>ZZA<EOR>").call, "JA1>ZZA");
}

TEST_F(AdifTags, TagWithoutItsEndIsItsOwnValue) {
    EXPECT_EQ(read("<CALL:6 JA1ZZA<EOR>").call, "CALL:6 JA1ZZA");
}

TEST_F(AdifTags, LongFrequencyIsCutToSevenCharacters) {
    EXPECT_EQ(read("<FREQ:9>14.025000").frequency, "14.0250");
    EXPECT_EQ(read("<FREQ:7>14.0250").frequency, "14.0250");
    EXPECT_EQ(read("<FREQ:8>1296.0125").frequency, "1296.01");
    // Four characters of two bytes are eight bytes, and no more than seven characters.
    EXPECT_EQ(read("<FREQ:8>１４．０").frequency, "１４．０");
    EXPECT_EQ(read("<FREQ:8>１４．０２５００").frequency, "１４．０２５０");
}

TEST_F(AdifTags, TimeHasItsLengthInItsTag) {
    EXPECT_EQ(read("<TIME_ON:4>1205").time, "1205");
    EXPECT_EQ(read("<TIME_ON:4>120530").time, "120530");
    EXPECT_EQ(read("<TIME_ON:6>120530").time, "1205");
    EXPECT_EQ(read("<TIME_ON:5>12053").time, "");
    EXPECT_EQ(read("<TIME_ON:").time, "");
}

TEST_F(AdifTags, DateWhoseTagHasABlankIsNone) {
    for (const char* const tag :
         {"<qso date:8:d>", "<QSO DATE:8>", "<QSO DATE:8:D>", "<QSO DATE:8:d>"}) {
        EXPECT_EQ(read(std::string(tag) + "20250426").date, "") << tag;
        EXPECT_EQ(record.year, "") << tag;
    }
    EXPECT_EQ(read("<QSO_DATE:8:D>20250426").date, "20250426");
}

// --- the code ---

struct ExchangeCase {
    bool Check27;
    bool Check28;
    const char* code;
};

class AdifExchange : public AdifTags, public testing::WithParamInterface<ExchangeCase> {};

TEST_P(AdifExchange, GoesByBothOptions) {
    options.Check27 = GetParam().Check27;
    options.Check28 = GetParam().Check28;
    EXPECT_EQ(read("<APP_N1MM_EXCHANGE1:5>1234H").code, GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(EveryCombination, AdifExchange,
                         testing::Values(ExchangeCase{false, false, ""},
                                         ExchangeCase{true, false, ""},
                                         ExchangeCase{false, true, "1234H"},
                                         ExchangeCase{true, true, "1234"}));

TEST_F(AdifTags, EveryPowerLetterIsTakenOut) {
    options.Check27 = true;
    options.Check28 = true;
    EXPECT_EQ(read("<APP_N1MM_EXCHANGE1:9> HMLP1 M2hmlpX ").code, "1 2hmlpX");
    EXPECT_EQ(read("<APP_N1MM_EXCHANGE1:1>H").code, "");
}

TEST_F(AdifTags, LaterTagOfTheListWinsWithinAPiece) {
    options.Check27 = true;
    options.Check28 = true;
    // All three texts stand in one piece: the value is the same but for its letters.
    EXPECT_EQ(read("<APP_N1MM_EXCHANGE1:JCC:JCG:5>1234H").code, "1234");
    EXPECT_EQ(read("<JCG:JCC:APP_N1MM_EXCHANGE1:5>1234H").code, "1234");
    // The time of six digits stands behind that of four.
    EXPECT_EQ(read("<TIME_ON:6:TIME_ON:4>120530").time, "1205");
}

TEST_F(AdifTags, LaterPieceWinsInARecord) {
    options.Check28 = true;
    EXPECT_EQ(read("<APP_N1MM_EXCHANGE1:4>1234<JCC:4>1004").code, "1004");
    EXPECT_EQ(read("<JCC:4>1004<APP_N1MM_EXCHANGE1:4>1234").code, "1234");
    EXPECT_EQ(read("<JCG:5>10004<JCC:4>1004").code, "1004");
    options.Check28 = false;
    EXPECT_EQ(read("<JCC:4>1004<APP_N1MM_EXCHANGE1:4>1234").code, "1004");
}

// --- band and frequency ---

TEST_F(AdifTags, FrequencyAndBandStandAsTheyAreGiven) {
    for (const char* const given : {"<FREQ:6>14.025<BAND:3>20M", "<BAND:3>20M<FREQ:6>14.025"}) {
        read(given);
        EXPECT_EQ(record.frequency, "14.025") << given;
        EXPECT_EQ(record.band, "20M") << given;
    }
    // Also where they contradict each other.
    read("<FREQ:5>7.012<BAND:3>20m");
    EXPECT_EQ(record.frequency, "7.012");
    EXPECT_EQ(record.band, "20m");
}

TEST_F(AdifTags, BandAloneGivesTheFrequency) {
    EXPECT_EQ(read("<BAND:3>20M").frequency, "14");
    EXPECT_EQ(read("<BAND:3>20m<CALL:6>JA1ZZA").frequency, "14");
    EXPECT_EQ(read("<BAND:3>99M").frequency, "");
}

TEST_F(AdifTags, FrequencyAloneGivesTheBand) {
    EXPECT_EQ(read("<FREQ:6>14.025").band, "20M");
    EXPECT_EQ(read("<FREQ:2>12").band, "");
    EXPECT_EQ(read("<FREQ:3>10G").band, "3CM");
}

TEST_F(AdifTags, WhatFollowsIsSettledAsSoonAsOneIsKnown) {
    // The first band gives the frequency; the second finds one there and changes nothing of it.
    read("<BAND:3>20M<BAND:3>40M");
    EXPECT_EQ(record.band, "40M");
    EXPECT_EQ(record.frequency, "14");
    // A band that gives none leaves the frequency open for the next.
    read("<BAND:3>99M<BAND:3>40M");
    EXPECT_EQ(record.frequency, "7");
    read("<FREQ:6>14.025<FREQ:5>7.012");
    EXPECT_EQ(record.band, "20M");
    read("<BAND:3>20M<FREQ:0>");
    EXPECT_EQ(record.frequency, "14");
}

TEST_F(AdifTags, FrequencyTooLargeForANumberOverflows) {
    EXPECT_EQ(failure_of([&] { read("<FREQ:5>1e999"); }), 6);
}

TEST(AdifBands, EachNameHasItsFrequency) {
    const std::vector<std::pair<const char*, const char*>> rows{
        {"160M", "1.9"},  {"80M", "3.5"},   {"40M", "7"},     {"30M", "10"},    {"20M", "14"},
        {"17M", "18"},    {"15M", "21"},    {"12M", "24"},    {"10M", "28"},    {"6M", "50"},
        {"2M", "144"},    {"1.25M", "220"}, {"70CM", "432"},  {"35M", "902"},   {"23CM", "1300"},
        {"13CM", "2300"}, {"9CM", "3300"},  {"6CM", "5660"},  {"3CM", "10000"}, {"1.25CM", "24000"},
        {"6MM", "47"},    {"4MM", "75"},    {"2.5MM", "120"}, {"2MM", "142"},   {"1MM", "24"},
        {"20m", "14"},    {"70cm", "432"},  {"2.5Mm", "120"}, {"", ""},         {"60M", ""},
        {"M", ""},        {"5M", ""},       {"0M", ""},       {"120M", ""},     {"２0M", ""}};
    for (const auto& [band, frequency] : rows) {
        EXPECT_EQ(frequency_of_adif_band(band), frequency) << band;
    }
}

TEST(AdifBands, BothEndsOfARowBelongToIt) {
    const struct {
        const char* below;
        const char* from;
        const char* to;
        const char* above;
        const char* band;
    } rows[] = {{"0.99", "1", "2", "2.01", "160M"},
                {"2.99", "3", "4", "4.01", "80M"},
                {"6.99", "7", "8", "8.01", "40M"},
                {"9.99", "10", "11", "11.01", "30M"},
                {"13.99", "14", "15", "15.01", "20M"},
                {"17.99", "18", "19", "19.01", "17M"},
                {"20.99", "21", "22", "22.01", "15M"},
                {"23.99", "24", "25", "25.01", "12M"},
                {"27.99", "28", "30", "30.01", "10M"},
                {"49.99", "50", "54", "54.01", "6M"},
                {"143.99", "144", "146", "146.01", "2M"},
                {"429.99", "430", "440", "440.01", "70CM"},
                {"1199.9", "1200", "1300", "1300.1", "23CM"},
                {"2299.9", "2300", "2450", "2450.1", "13CM"},
                {"5599.9", "5600", "5850", "5850.1", "6CM"},
                {"9999.9", "10000", "10250", "10250.1", "3CM"}};
    for (const auto& [below, from, to, above, band] : rows) {
        EXPECT_EQ(adif_band_of_frequency(below), "") << band;
        EXPECT_EQ(adif_band_of_frequency(from), band);
        EXPECT_EQ(adif_band_of_frequency(to), band);
        EXPECT_EQ(adif_band_of_frequency(above), "") << band;
    }
    EXPECT_EQ(adif_band_of_frequency("10G"), "3CM");
    EXPECT_EQ(adif_band_of_frequency("10g"), "30M");  // a number then
    EXPECT_EQ(adif_band_of_frequency(""), "");
    EXPECT_EQ(adif_band_of_frequency("x"), "");
}

}  // namespace
}  // namespace veldrana
