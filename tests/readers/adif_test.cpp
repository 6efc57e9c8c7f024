// ADIF logs: the heading, how lines become records, and what is no log.
#include "readers/adif.h"

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

const std::string heading = "written by a logger <EOH>";

class Adif : public ReaderFixture {
  protected:
    // Behind a heading.
    std::vector<Contact> read(std::vector<std::string> lines) {
        lines.insert(lines.begin(), heading);
        return read_whole(lines);
    }

    std::vector<Contact> read_whole(const std::vector<std::string>& lines) {
        put_log_lines(lines);
        kept = henkan_ADIF_2_t(stage, request());
        return contacts();
    }

    std::vector<std::string> calls(const std::vector<Contact>& read_contacts) {
        std::vector<std::string> found;
        for (const Contact& contact : read_contacts) {
            found.push_back(contact[log_line::call]);
        }
        return found;
    }

    std::size_t kept = 0;
};

std::string record_of(const std::string& call) {
    return "<CALL:6>" + call + " <EOR>";
}

// --- the test of the file ---

TEST_F(Adif, IsToldByACallInSomeLine) {
    const std::vector<std::pair<std::string, bool>> logs{
        {"<CALL:6>JA1ZZA<EOR>", true},
        {"heading\r\n<EOH>\r\n<qso_date:8>20250426\r\n<Call:6>JA1ZZA\r\n", true},
        {"\xEF\xBB\xBF<call:6>JA1ZZA", true},
        {"heading <EOH>\r\n", false},
        {"<CALL 6>JA1ZZA", false},
        {"<EQ_CALL:6>JA1ZZA", false},
        {"<CAL\r\nL:6>JA1ZZA", false},
        {"<CALL", false},
        {"START-OF-LOG: 3.0\r\nCALLSIGN: JA1ZZZ\r\n", false},
    };
    for (const auto& [bytes, expected] : logs) {
        put_log(bytes);
        EXPECT_EQ(is_adif(stage, log_path), expected) << bytes;
    }
}

TEST_F(Adif, NoDamagedFileIsTakenForALog) {
    for (const Damage& damage : damaged_logs()) {
        put_log(damage.bytes);
        EXPECT_FALSE(is_adif(stage, log_path)) << damage.name;
        EXPECT_EQ(count_in_name_ADIF(stage, log_path), 0U) << damage.name;
    }
    EXPECT_EQ(failure_of([&] { is_adif(stage, "C:\\log\\missing.adi"); }), 53);
}

TEST_F(Adif, CountsTheLinesWithACall) {
    put_log_lines({"<call:1>x in the heading", "<EOH>", record_of("JA1ZZA"), "<QTH:1>x",
                   "<CALL:1>a<EOR><CALL:1>b<EOR>"});
    EXPECT_EQ(count_in_name_ADIF(stage, log_path), 3U);
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub count_in_name_ADIF()",
                                         "Open C:\\log\\x.log For Input As #f_i"));
}

// --- a record ---

TEST_F(Adif, RecordGivesTheThirteenFields) {
    options.Check27 = true;
    options.Check28 = true;
    EXPECT_THAT(
        read({"<CALL:8>JR8YYX/1 <QSO_DATE:8>20250426 <TIME_ON:6>120530 <BAND:3>20M <FREQ:8>14.02500"
              " <MODE:2>CW<RST_SENT:3>599 <RST_RCVD:3>589 <APP_N1MM_EXCHANGE1:5>1234H <EOR>"}),
        ElementsAre(ElementsAre("2025", "04", "26", "1205", "JR8YYX/1", "599", "589", "20M", "CW",
                                "", "", "14.0250", "1234")));
    EXPECT_EQ(kept, 1U);
}

TEST_F(Adif, FrequencyAndBandStandInTheLineAsTheyAreGiven) {
    const auto contact = read({"<FREQ:6>14.025<BAND:3>20M<EOR>"}).at(0);
    EXPECT_EQ(contact[log_line::band], "20M");
    EXPECT_EQ(contact[log_line::frequency], "14.025");
}

TEST_F(Adif, FrequencyDoesNotGoByCheck01) {
    options.Check01 = false;
    EXPECT_EQ(read({"<FREQ:6>14.025<EOR>"}).at(0)[log_line::frequency], "14.025");
}

TEST_F(Adif, BandAloneGivesTheFrequency) {
    EXPECT_EQ(read({"<BAND:3>20M<EOR>"}).at(0)[log_line::frequency], "14");
}

TEST_F(Adif, WithoutTheOptionAndATagOfItsOwnThereIsNoNumber) {
    EXPECT_EQ(read({"<CALL:6>JA1ZZA<APP_N1MM_EXCHANGE1:5>1234H<SRX:4>1234<EOR>"})
                  .at(0)[log_line::number_received],
              "");
}

TEST_F(Adif, RecordWithoutACallIsWritten) {
    EXPECT_THAT(read({"<MODE:2>CW<EOR>"}),
                ElementsAre(ElementsAre("", "", "", "", "", "", "", "", "CW", "", "", "", "")));
}

TEST_F(Adif, ShortDateHasTheDigitsThatItHas) {
    const auto contact = read({"<QSO_DATE:5>20254<EOR>"}).at(0);
    EXPECT_EQ(contact[log_line::year], "2025");
    EXPECT_EQ(contact[log_line::month], "4");
    EXPECT_EQ(contact[log_line::day], "");
}

TEST_F(Adif, FilterByANameDropsEveryRecord) {
    options.Check15 = true;
    EXPECT_THAT(read({record_of("JA1ZZA")}), SizeIs(1));
    options.txtOp_name = "JA1ZZZ";
    EXPECT_THAT(read({"<CALL:6>JA1ZZA<OPERATOR:6>JA1ZZZ<EOR>"}), IsEmpty());
    EXPECT_EQ(kept, 0U);
    options.Check15 = false;
    EXPECT_THAT(read({record_of("JA1ZZA")}), SizeIs(1));
}

// --- the heading ---

std::vector<std::string> heading_of_lines(std::size_t count) {
    return std::vector<std::string>(count, "free text");
}

TEST_F(Adif, HeadingEndsBehindItsMarkWithinTwentyLines) {
    for (const std::size_t lines : {0U, 1U, 19U}) {
        auto log = heading_of_lines(lines);
        log.insert(log.end(), {"x <eoh> <CALL:1>y", record_of("JA1ZZA")});
        EXPECT_THAT(calls(read_whole(log)), ElementsAre("JA1ZZA")) << lines;
    }
}

TEST_F(Adif, HeadingWhoseMarkComesLaterIsReadForRecords) {
    // Lines 21 to 25 of the heading are a record; so is the mark with what stands behind it.
    auto log = heading_of_lines(25);
    log.insert(log.end(), {"<EOH>", record_of("JA1ZZA"), record_of("JA1ZZB")});
    EXPECT_THAT(calls(read_whole(log)), ElementsAre("", "JA1ZZA", "JA1ZZB"));
    log = heading_of_lines(20);
    log.insert(log.end(), {"<EOH>", record_of("JA1ZZA")});
    EXPECT_THAT(calls(read_whole(log)), ElementsAre("JA1ZZA"));
}

TEST_F(Adif, WithoutAHeadingTwentyLinesAreLost) {
    std::vector<std::string> log;
    for (int i = 0; i < 22; ++i) {
        log.push_back(record_of("JA1ZZ" + std::string(1, static_cast<char>('A' + i))));
    }
    EXPECT_THAT(calls(read_whole(log)), ElementsAre("JA1ZZU", "JA1ZZV"));
    EXPECT_THAT(read_whole({record_of("JA1ZZA")}), IsEmpty());
}

// --- records and lines ---

TEST_F(Adif, LinesAreJoinedWithNothingBetween) {
    const auto contact =
        read({"<CALL:6>JA1", "ZZA<MO", "DE:2>CW ", "<RST_SENT:3>599", "<eor>"}).at(0);
    EXPECT_EQ(contact[log_line::call], "JA1ZZA");
    EXPECT_EQ(contact[log_line::mode], "CW ");
    EXPECT_EQ(contact[log_line::report_sent], "599");
}

TEST_F(Adif, RecordOfMoreThanFiveLinesIsCutInTwo) {
    const auto read_contacts =
        read({"<CALL:6>JA1ZZA", "<MODE:2>CW", "<RST_SENT:3>599", "<RST_RCVD:3>589", "<BAND:3>20M",
              "<JCC:4>1004", "<EOR>", record_of("JA1ZZB")});
    EXPECT_THAT(read_contacts,
                ElementsAre(ElementsAre("", "", "", "", "JA1ZZA", "599", "589", "20M", "CW", "", "",
                                        "14", ""),
                            ElementsAre("", "", "", "", "", "", "", "", "", "", "", "", "1004"),
                            ElementsAre("", "", "", "", "JA1ZZB", "", "", "", "", "", "", "", "")));
}

TEST_F(Adif, EndOfARecordInItsFifthLineDoesNotTouchTheNext) {
    EXPECT_THAT(calls(read({"<CALL:6>JA1ZZA", "", "", "", "<EOR>", record_of("JA1ZZB")})),
                ElementsAre("JA1ZZA", "JA1ZZB"));
}

TEST_F(Adif, TwoRecordsInALineAreOne) {
    EXPECT_THAT(calls(read({record_of("JA1ZZA") + record_of("JA1ZZB")})), ElementsAre("JA1ZZB"));
}

TEST_F(Adif, BlankLinesAreNoRecord) {
    EXPECT_THAT(calls(read({"", "  ", "", "", "", "", "", record_of("JA1ZZA"), "", " "})),
                ElementsAre("JA1ZZA"));
    EXPECT_THAT(read({"", "", "", "", "", ""}), IsEmpty());
    // A tab is no blank.
    EXPECT_THAT(read({"\t"}), SizeIs(1));
}

TEST_F(Adif, LastRecordNeedsNoEnd) {
    EXPECT_THAT(calls(read({record_of("JA1ZZA"), "<CALL:6>JA1ZZB"})),
                ElementsAre("JA1ZZA", "JA1ZZB"));
}

// --- the run ---

TEST_F(Adif, TracesAndShowsWhatItDoes) {
    read({"<CALL:6>JA1ZZA", "<EOR>", record_of("JA1ZZB")});
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub henkan_ADIF_2_t()", "count_file_rec C:\\log\\x.log",
                            "Open C:\\log\\x.log For Input As #f_i",
                            "Open C:\\log\\zlog_1.txt For Output As #f_o"));
    EXPECT_EQ(lblCFG.caption.get(), "入力ファイル読み込み中");
    EXPECT_EQ(lblCFG.fore_colour.get(), colours::green);
    // Four lines with their ends count five records; the bar ends one beyond.
    EXPECT_EQ(bar.maximum.get(), 6U);
    EXPECT_EQ(bar.value.get(), 4U);
}

TEST_F(Adif, FailureIsTracedOnce) {
    EXPECT_EQ(failure_of([&] { read({"<FREQ:5>1e999<EOR>"}); }), 6);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub henkan_ADIF_2_t() ：　6"));
}

// --- what is no log ---

TEST_F(Adif, LogCutAnywhereLosesItsEnd) {
    const std::string call = "<CALL:6>JA1ZZA";
    const std::string one = call + "<MODE:2>CW<EOR>\r\n";
    const std::string front = heading + "\r\n";
    const std::string whole = front + one + one;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        put_log(whole.substr(0, size));
        EXPECT_EQ(failure_of([&] { henkan_ADIF_2_t(stage, request()); }), 0) << size;
        // Without the whole mark the first lines are the heading. Behind it a line of one byte is a
        // record already, and a line that lacks its <EOR> takes the next to itself.
        std::size_t expected = 0;
        if (size > front.size()) {
            expected = (size - front.size() + one.size() - 1) / one.size();
        }
        // What is left of a cut line end is no record.
        if (size > front.size() && (size - front.size()) % one.size() == 0) {
            expected = (size - front.size()) / one.size();
        }
        EXPECT_THAT(contacts(), SizeIs(expected)) << size;
    }
}

TEST_F(Adif, DamagedFileHasNoContactWithACall) {
    for (const Damage& damage : damaged_logs()) {
        for (const char* const front : {"", "x<EOH>\r\n"}) {
            put_log(front + damage.bytes);
            EXPECT_EQ(failure_of([&] { henkan_ADIF_2_t(stage, request()); }), 0) << damage.name;
            for (const std::string& call : calls(contacts())) {
                EXPECT_EQ(call, "") << damage.name;
            }
        }
    }
}

TEST_F(Adif, LongLinesArePassedInOneGo) {
    // A mark that nearly stands everywhere, and a tag in each of many pieces.
    EXPECT_THAT(
        read({repeated("<EO", 300000), repeated("CALL:", 200000), repeated("<CALL:1>x", 100000)}),
        SizeIs(1));
}

TEST_F(Adif, BytesThatAreNoCharacterPassThrough) {
    const std::string call = "JA1\xFF" + std::string(1, '\0') + "ZZ\x83";
    put_log(heading + "\r\n<CALL:6>" + call + "\r\n<MODE:2>CW<EOR>\r\n");
    henkan_ADIF_2_t(stage, request());
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_1.txt"),
              "\"\",\"\",\"\",\"\",\"" + call + "\",\"\",\"\",\"\",\"CW\",\"\",\"\",\"\",\"\"\r\n");
}

}  // namespace
}  // namespace veldrana
