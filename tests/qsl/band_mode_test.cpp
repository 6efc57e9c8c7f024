// The band letter and the mode digit: both tables row by row.
#include "qsl/band_mode.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace veldrana {
namespace {

char letter_of(const std::string& frequency) {
    return band_mode_of(frequency, "CW").letter;
}

char digit_of(const std::string& mode) {
    return band_mode_of("14", mode).digit;
}

// --- bands ---

struct Band {
    std::string just_below;
    std::string from;
    std::string between;
    std::string to;
    std::string just_above;
    char letter;
};

const std::vector<Band> bands{
    {"0.999", "1", "1.9125", "2", "2.001", 'A'},
    {"2.999", "3", "3.798", "4", "4.001", 'B'},
    {"6.999", "7", "7.195", "8", "8.001", 'C'},
    {"8.999", "9", "10.14", "11", "11.001", 'D'},
    {"12.999", "13", "14.349", "15", "15.001", 'E'},
    {"16.999", "17", "18.168", "19", "19.001", 'F'},
    {"19.999", "20", "21.449", "22", "22.001", 'G'},
    {"22.999", "23", "24.99", "25", "25.001", 'H'},
    {"26.999", "27", "28.5", "30", "30.001", 'I'},
    {"48.999", "49", "50.15", "54", "54.001", 'J'},
    {"142.999", "143", "145.99", "146", "146.001", 'K'},
    {"428.999", "429", "433.02", "440", "440.001", 'L'},
    {"1118.999", "1119", "1294.5", "1300", "1300.001", 'M'},
    {"2398.999", "2399", "2424", "2450", "2450.001", 'N'},
    {"5398.999", "5399", "5760", "5850", "5850.001", 'O'},
};

TEST(BandLetter, BothEndsBelongToEachBandAndNothingBesidesThem) {
    for (const Band& band : bands) {
        EXPECT_EQ(letter_of(band.just_below), 'Z') << band.just_below;
        EXPECT_EQ(letter_of(band.from), band.letter) << band.from;
        EXPECT_EQ(letter_of(band.between), band.letter) << band.between;
        EXPECT_EQ(letter_of(band.to), band.letter) << band.to;
        EXPECT_EQ(letter_of(band.just_above), 'Z') << band.just_above;
    }
}

struct Frequency {
    std::string text;
    char letter;
};

TEST(BandLetter, NamesOfBandsAsLogsWriteThem) {
    const std::vector<Frequency> rows{
        {"1.9", 'A'}, {"3.5", 'B'}, {"7", 'C'},    {"10", 'D'},   {"14", 'E'},
        {"18", 'F'},  {"21", 'G'},  {"24", 'H'},   {"28", 'I'},   {"50", 'J'},
        {"144", 'K'}, {"430", 'L'}, {"1200", 'M'}, {"2400", 'N'}, {"5600", 'O'},
    };
    for (const Frequency& row : rows) {
        EXPECT_EQ(letter_of(row.text), row.letter) << row.text;
    }
}

TEST(BandLetter, FrequenciesOutsideEveryBandAreOneBand) {
    for (const std::string text : {"2.5", "5", "26", "10000", "0", "0.136", "-7", "24000"}) {
        EXPECT_EQ(letter_of(text), 'Z') << text;
    }
}

TEST(BandLetter, TextCountsByTheNumberItBeginsWith) {
    const std::vector<Frequency> rows{
        {"7.012 MHz", 'C'}, {"430FM", 'L'}, {" 7", 'C'}, {"7.0.5", 'C'}, {"007", 'C'}, {"+7", 'C'},
        {"", 'Z'},          {"   ", 'Z'},   {"x7", 'Z'}, {"MHz 7", 'Z'}, {".", 'Z'},   {"７", 'Z'},
    };
    for (const Frequency& row : rows) {
        EXPECT_EQ(letter_of(row.text), row.letter) << "'" << row.text << "'";
    }
}

// --- modes ---

struct Mode {
    std::string text;
    char digit;
};

const std::vector<Mode> modes{
    {"SSB", '1'}, {"CW", '2'},  {"AM", '3'}, {"FM", '4'}, {"STV", '5'}, {"RTY", '6'},
    {"PSK", '7'}, {"A3J", '1'}, {"A1", '2'}, {"A3", '3'}, {"F3", '4'},
};

TEST(ModeDigit, EachModeHasItsDigit) {
    for (const Mode& mode : modes) {
        EXPECT_EQ(digit_of(mode.text), mode.digit) << mode.text;
    }
}

TEST(ModeDigit, BlanksAroundTheModeDoNotCount) {
    for (const Mode& mode : modes) {
        EXPECT_EQ(digit_of("  " + mode.text + " "), mode.digit) << mode.text;
    }
}

TEST(ModeDigit, NothingButTheWholeModeFits) {
    for (const Mode& mode : modes) {
        EXPECT_EQ(digit_of(mode.text + "X"), '9') << mode.text;
        EXPECT_EQ(digit_of("X" + mode.text), '9') << mode.text;
        EXPECT_EQ(digit_of(mode.text + " X"), '9') << mode.text;
    }
}

TEST(ModeDigit, EveryOtherModeIsNine) {
    for (const std::string text : {"", " ", "RTTY", "SSTV", "PSK31", "FT8", "DV", "USB", "LSB",
                                   "cw", "Ssb", "ＣＷ", "C", "A", "2"}) {
        EXPECT_EQ(digit_of(text), '9') << "'" << text << "'";
    }
}

// --- both ---

TEST(BandModeCode, IsTheLetterAndThenTheDigit) {
    const BandMode contact = band_mode_of("14.025", "CW");
    EXPECT_EQ(contact.letter, 'E');
    EXPECT_EQ(contact.digit, '2');
    EXPECT_EQ(contact.code(), "E2");
    EXPECT_EQ(band_mode_of("430", "FM").code(), "L4");
    EXPECT_EQ(band_mode_of("2.5", "FT8").code(), "Z9");
    EXPECT_EQ(band_mode_of("", "").code(), "Z9");
}

TEST(BandModeCode, TwoUnknownModesAreTheSame) {
    EXPECT_EQ(band_mode_of("14", "FT8"), band_mode_of("14", "JT65"));
    EXPECT_FALSE(band_mode_of("14", "FT8") == band_mode_of("14", "CW"));
}

}  // namespace
}  // namespace veldrana
