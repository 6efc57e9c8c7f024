// Cabrillo: what a line gives, the table of the bands, and lines that are none.
#include "readers/cabrillo.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/readers/reader_fixture.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::string heading = "START-OF-LOG: 3.0";

class Cabrillo : public ReaderFixture {
  protected:
    std::vector<Contact> read(std::vector<std::string> lines) {
        lines.insert(lines.begin(), heading);
        put_log_lines(lines);
        result = henkan_cbr_2_t(stage, request());
        return contacts();
    }

    Contact read_one(const std::string& line) { return read({line}).at(0); }

    int failure(const std::string& line) {
        return failure_of([&] { read({line}); });
    }

    CabrilloContacts result;
};

std::string contact_at(const std::string& kilohertz, const std::string& mode = "CW") {
    return "QSO: " + kilohertz + " " + mode + " 2025-04-26 1205 JA1ZZZ 599 11M JR8YYX/1 589 104M";
}

// --- the test of the file ---

TEST_F(Cabrillo, IsToldByItsFirstLine) {
    const std::vector<std::pair<std::string, bool>> logs{
        {"START-OF-LOG: 3.0\r\n", true},  {"\xEF\xBB\xBFSTART-OF-LOG: 3.0\r\n", true},
        {"  x START-OF-LOG:", true},      {"start-of-log: 3.0\r\n", false},
        {"START-OF-LOG 3.0\r\n", false},  {"\r\nSTART-OF-LOG: 3.0\r\n", false},
        {"zLog for Windows \r\n", false},
    };
    for (const auto& [bytes, expected] : logs) {
        put_log(bytes);
        EXPECT_EQ(is_cabrillo(stage, log_path), expected) << bytes;
    }
}

TEST_F(Cabrillo, NoDamagedFileIsTakenForALog) {
    for (const Damage& damage : damaged_logs()) {
        put_log(damage.bytes);
        EXPECT_FALSE(is_cabrillo(stage, log_path)) << damage.name;
        EXPECT_EQ(count_in_name_cbr(stage, log_path), 0U) << damage.name;
    }
    EXPECT_EQ(failure_of([&] { is_cabrillo(stage, "C:\\log\\missing.log"); }), 53);
}

TEST_F(Cabrillo, CountsEveryLineWithTheMark) {
    put_log_lines({"START-OF-LOG: QSO:", contact_at("7012"), "CONTEST: X", "SOAPBOX: QSO: good",
                   "qso: 7012", "END-OF-LOG:"});
    EXPECT_EQ(count_in_name_cbr(stage, log_path), 3U);
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub count_in_name_cbr()",
                                         "Open C:\\log\\x.log For Input As #f_i"));
}

// --- a contact ---

TEST_F(Cabrillo, LineGivesTheThirteenFields) {
    EXPECT_THAT(read_one(contact_at("7012")),
                ElementsAre("2025", "04", "26", "1205", "JR8YYX/1", "599", "589", "7", "CW", "", "",
                            "", "104M"));
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_1.txt"),
              "\"2025\",\"04\",\"26\",\"1205\",\"JR8YYX/1\",\"599\",\"589\",\"7\",\"CW\",\"\","
              "\"\",\"\",\"104M\"\r\n");
}

TEST_F(Cabrillo, LinesWithoutTheMarkArePassedOver) {
    EXPECT_THAT(read({"CONTEST: X", "", contact_at("7012"), "X-QSO 1", "qso: short",
                      contact_at("14012"), "END-OF-LOG:"}),
                SizeIs(2));
    EXPECT_EQ(result.counted, 2U);
    EXPECT_EQ(result.kept, 2U);
}

TEST_F(Cabrillo, TabsAndFullWidthBlanksDivideToo) {
    EXPECT_THAT(
        read_one("QSO:\t7012　CW \t 2025-04-26　　1205\t\tJA1ZZZ 599   11M　 JR8YYX 589\t　104M"),
        ElementsAre("2025", "04", "26", "1205", "JR8YYX", "599", "589", "7", "CW", "", "", "",
                    "104M"));
}

// A full-width blank is divided from its neighbours by its first byte, which others share.
TEST_F(Cabrillo, OtherDoubleByteCharactersStayInTheirToken) {
    EXPECT_EQ(read_one("QSO: 7012 CW 2025-04-26 1205 JA1ZZZ 599 11M JR8YYX 589 、あ東京")[12],
              "、あ東京");
}

// Eleven rounds over one text, as they are told: what the reader works out in one go.
std::vector<std::string> tokens_by_rounds(std::string line) {
    for (int round = 0; round < 11; ++round) {
        line = replace_all(line, "  ", " ");
        line = replace_all(line, "　", " ");
        line = replace_all(line, "\t", " ");
    }
    const auto pieces = split(line, " ");
    return {pieces.begin(), pieces.end()};
}

TEST_F(Cabrillo, RunsOfBlanksFallAsElevenRoundsLeaveThem) {
    const std::string front = "QSO: 7012 CW 2025-04-26 1205 JA1ZZZ 599 11M";
    const std::string back = "JR8YYX 589 104M x y z";
    const std::vector<std::string> runs{
        std::string(2, ' '),
        std::string(2047, ' '),
        std::string(2048, ' '),
        std::string(2049, ' '),
        std::string(4096, ' '),
        std::string(4097, ' '),
        std::string(1024, '\t'),
        std::string(1025, '\t'),
        repeated("　", 1024),
        repeated("　", 1025),
        repeated(" \t", 512),
        repeated("   　", 342),
        std::string(1000, ' ') + "\t" + std::string(1049, ' '),
    };
    for (const std::string& run : runs) {
        const std::string line = front + run + back;
        const std::vector<std::string> tokens = tokens_by_rounds(line);
        ASSERT_GE(tokens.size(), 11U);
        const Contact contact = read_one(line);
        EXPECT_EQ(contact[4], tokens[8]) << run.size();
        EXPECT_EQ(contact[6], tokens[9]) << run.size();
        EXPECT_EQ(contact[12], tokens[10]) << run.size();
    }
}

TEST_F(Cabrillo, BlankInFrontShiftsEveryToken) {
    // The mode stands where the frequency is looked for, the time where the date is.
    EXPECT_EQ(failure(" " + contact_at("7012")), 9);
    const Contact contact = read_one(" QSO: 7012 2025-04-26 CW 1-2-3 own 59 sent JR8YYX 589 104M");
    EXPECT_EQ(contact[7], "");      // token 1 is "QSO:"
    EXPECT_EQ(contact[8], "7012");  // token 2
}

TEST_F(Cabrillo, BlankBehindIsATokenWithoutText) {
    const std::string ten = "QSO: 7012 CW 2025-04-26 1205 JA1ZZZ 599 11M JR8YYX 589";
    EXPECT_EQ(failure(ten), 9);
    EXPECT_EQ(read_one(ten + " ")[12], "");
}

TEST_F(Cabrillo, TokensBehindTheEleventhAreIgnored) {
    EXPECT_EQ(read_one(contact_at("7012") + " 0 x y")[12], "104M");
}

// --- modes ---

TEST_F(Cabrillo, PhoneAndTeletypeHaveTheirLongNames) {
    EXPECT_EQ(read_one(contact_at("7012", "PH"))[8], "SSB");
    EXPECT_EQ(read_one(contact_at("7012", "RY"))[8], "RTY");
}

TEST_F(Cabrillo, OtherModesStand) {
    for (const char* const mode : {"CW", "FM", "DG", "ph", "PHX", "SSB"}) {
        EXPECT_EQ(read_one(contact_at("7012", mode))[8], mode);
    }
}

// --- bands ---

TEST(CabrilloBand, BothEndsOfARowBelongToIt) {
    const struct {
        double from;
        double to;
        const char* band;
    } rows[] = {{1000, 2000, "1.9"},        {3000, 4000, "3.5"},        {7000, 8000, "7"},
                {9000, 11000, "10"},        {13000, 15000, "14"},       {17000, 19000, "18"},
                {20000, 22000, "21"},       {23000, 25000, "24"},       {27000, 30000, "28"},
                {49000, 54000, "50"},       {143000, 146000, "144"},    {429000, 440000, "430"},
                {1119000, 1300000, "1200"}, {2399000, 2450000, "2400"}, {5399000, 5850000, "5600"}};
    for (const auto& [from, to, band] : rows) {
        EXPECT_EQ(cabrillo_band(from - 0.5), "") << band;
        EXPECT_EQ(cabrillo_band(from), band);
        EXPECT_EQ(cabrillo_band(to), band);
        EXPECT_EQ(cabrillo_band(to + 0.5), "") << band;
    }
    EXPECT_EQ(cabrillo_band(0), "");
}

TEST_F(Cabrillo, FrequencyBesideTheBandsKeepsTheFormerBand) {
    const auto read_contacts =
        read({contact_at("12000"), contact_at("14000"), contact_at("12000"), contact_at("146000"),
              contact_at("146001"), contact_at("50"), contact_at("1119000")});
    std::vector<std::string> bands;
    for (const Contact& contact : read_contacts) {
        bands.push_back(contact[7]);
    }
    EXPECT_THAT(bands, ElementsAre("", "14", "14", "144", "144", "144", "1200"));
}

TEST_F(Cabrillo, NumberAtTheStartOfTheFrequencyCounts) {
    EXPECT_EQ(read_one(contact_at("7012.5kHz"))[7], "7");
    EXPECT_EQ(read_one(contact_at("7G"))[7], "");
}

// --- no guard ---

TEST_F(Cabrillo, MarkInACommentFails) {
    EXPECT_EQ(failure("SOAPBOX: my first QSO: was good"), 9);
    EXPECT_THAT(trace.lines, Contains("エラー発生  Private Sub henkan_cbr_2_t() ：　9"));
    EXPECT_THAT(error_lines(), SizeIs(1));
}

TEST_F(Cabrillo, MarkInALongCommentIsMisread) {
    const Contact contact = read_one("SOAPBOX: a QSO: 1-2-3 d e f g h i j");
    EXPECT_THAT(contact,
                ElementsAre("1", "2", "3", "d", "h", "f", "i", "", "QSO:", "", "", "", "j"));
}

TEST_F(Cabrillo, DateOfTooFewPartsFails) {
    for (const char* const date : {"20250426", "2025-04", "2025/04/26"}) {
        EXPECT_EQ(failure("QSO: 7012 CW " + std::string(date) + " 1205 a 599 b c 599 d"), 9)
            << date;
    }
    const Contact contact = read_one("QSO: 7012 CW 1--3-4 1205 a 599 b c 599 d");
    EXPECT_EQ(contact[0], "1");
    EXPECT_EQ(contact[1], "");
    EXPECT_EQ(contact[2], "3");
}

TEST_F(Cabrillo, FirstLineIsNeverAContact) {
    put_log_lines({contact_at("7012"), contact_at("14012")});
    EXPECT_EQ(henkan_cbr_2_t(stage, request()).kept, 1U);
    EXPECT_EQ(contacts().at(0)[7], "14");
}

TEST_F(Cabrillo, FrequencyTooLargeForANumberOverflows) {
    EXPECT_EQ(failure(contact_at("1e999")), 6);
}

// --- the operator ---

TEST_F(Cabrillo, ContactHasNoOperatorEvenWhereOneIsWanted) {
    options.Check15 = true;
    use.mark(RemarkItem::op);
    EXPECT_EQ(read_one(contact_at("7012") + " %%JA1ZZZ%%")[9], "");
}

TEST_F(Cabrillo, FilterByANameDropsEveryContact) {
    options.Check15 = true;
    options.txtOp_name = "JA1ZZZ";
    EXPECT_THAT(read({contact_at("7012") + " %%JA1ZZZ%%", contact_at("14012")}), IsEmpty());
    EXPECT_EQ(result.counted, 2U);
    EXPECT_EQ(result.kept, 0U);
    options.Check15 = false;
    EXPECT_THAT(read({contact_at("7012")}), SizeIs(1));
}

// --- the run ---

TEST_F(Cabrillo, CountsThenReads) {
    read({contact_at("7012")});
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub henkan_cbr_2_t()", "Private Sub count_in_name_cbr()",
                            "Open C:\\log\\x.log For Input As #f_i",
                            "Open C:\\log\\x.log For Input As #f_i",
                            "Open C:\\log\\zlog_1.txt For Output As #f_o"));
    EXPECT_EQ(lblCFG.caption.get(), "入力ファイル読み込み中");
    EXPECT_EQ(lblCFG.fore_colour.get(), colours::green);
    EXPECT_EQ(bar.maximum.get(), 2U);
    EXPECT_EQ(bar.value.get(), 0U);
}

// --- what is no log ---

TEST_F(Cabrillo, LogCutAnywhereFailsOrLosesItsEnd) {
    const std::string whole = heading + "\r\nCONTEST: X\r\n" + contact_at("7012") + "\r\n" +
                              contact_at("14012", "PH") + "\r\nEND-OF-LOG:\r\n";
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const std::string cut = whole.substr(0, size);
        // What is left of the last line decides: a contact without its eleventh token or without
        // the parts of its date fails.
        int expected = size == 0 ? 62 : 0;
        std::size_t complete = 0;
        const std::string last = cut.substr(cut.rfind('\n') + 1);
        for (std::size_t at = cut.find("QSO:"); at != std::string::npos;
             at = cut.find("QSO:", at + 1)) {
            ++complete;
        }
        if (last.starts_with("QSO:") && std::count(last.begin(), last.end(), ' ') < 10) {
            expected = 9;
        }
        put_log(cut);
        EXPECT_EQ(failure_of([&] { henkan_cbr_2_t(stage, request()); }), expected) << size;
        if (expected == 0) {
            EXPECT_THAT(contacts(), SizeIs(complete)) << size;
        }
    }
}

TEST_F(Cabrillo, DamagedFileHasNoContact) {
    for (const Damage& damage : damaged_logs()) {
        put_log(damage.bytes);
        EXPECT_EQ(failure_of([&] { henkan_cbr_2_t(stage, request()); }),
                  damage.bytes.empty() ? 62 : 0)
            << damage.name;
        EXPECT_THAT(contacts(), IsEmpty()) << damage.name;
    }
}

TEST_F(Cabrillo, BytesThatAreNoCharacterPassThrough) {
    const std::string number = "1" + std::string(1, '\0') + "\x83";
    put_log(heading + "\r\nQSO: 7012 CW 2025-04-26 1205 JA1ZZZ 599 11M JR8\xFFYX 589 " + number +
            "\r\n");
    henkan_cbr_2_t(stage, request());
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_1.txt"),
              "\"2025\",\"04\",\"26\",\"1205\",\"JR8\xFFYX\",\"599\",\"589\",\"7\",\"CW\",\"\","
              "\"\",\"\",\"" +
                  number + "\"\r\n");
}

TEST_F(Cabrillo, LineOfAMegabyteOfTokensIsRead) {
    EXPECT_EQ(read_one(contact_at("7012") + repeated(" x", 500000))[12], "104M");
    EXPECT_EQ(failure("QSO:" + std::string(1000000, ' ')), 9);
    // A blank for each 2048 of them is left, and between two of those is a token without text.
    EXPECT_EQ(failure("QSO:" + std::string(8 * 2048, ' ') + "7012 1-2-3"), 9);
}

}  // namespace
}  // namespace veldrana
