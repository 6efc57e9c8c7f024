// Binary logs of zLog: heading, records, and what is no log.
#include "readers/zlo_log.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/readers/binary_log.h"
#include "tests/readers/reader_fixture.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Zlo : public ReaderFixture {
  protected:
    std::vector<Contact> read(const std::vector<ZloContactBytes>& given) {
        std::string bytes = zlo_heading("x");
        for (const ZloContactBytes& contact : given) {
            bytes += contact.bytes();
        }
        put_log(bytes);
        kept = read_zlo(stage, request());
        return contacts();
    }

    Contact read_one(const ZloContactBytes& given) { return read({given}).at(0); }

    // The memo and the frequency of a contact on 7 MHz with that memo.
    std::pair<std::string, std::string> memo_and_frequency(const std::string& memo) {
        const Contact contact = read_one({.memo = memo});
        return {contact[log_line::memo], contact[log_line::frequency]};
    }

    std::size_t kept = 0;
};

using Texts = std::pair<std::string, std::string>;

// --- the heading ---

class ZloHeading : public ReaderFixture {
  protected:
    ZloHeader header_of(std::string bytes) {
        put_log(std::move(bytes));
        return zlo_header(stage, log_path);
    }
};

TEST_F(ZloHeading, NamesTheContest) {
    const ZloHeader header = header_of(zlo_heading(" 全市全郡コンテスト "));
    EXPECT_EQ(header.contest_name, "全市全郡コンテスト");
    EXPECT_EQ(header.name_length, 20U);
    EXPECT_EQ(header.records, 1U);
}

TEST_F(ZloHeading, PathOfTheSettingsStandsThereToo) {
    EXPECT_EQ(header_of(zlo_heading("C:\\表\\Fham.cfg")).contest_name, "C:\\表\\Fham.cfg");
}

TEST_F(ZloHeading, LengthOfZeroIsNoName) {
    const ZloHeader header = header_of(zlo_heading(""));
    EXPECT_EQ(header.name_length, 0U);
    EXPECT_EQ(header.contest_name, "");
}

TEST_F(ZloHeading, LengthPastTheSpaceMeansTheWholeSpace) {
    RecordBytes record(256, 'x');
    record.put(176, std::string(60, 'n')).put_number(175, 61, 1);
    EXPECT_EQ(header_of(record.bytes()).contest_name, std::string(60, 'n'));
    record.put_number(175, 255, 1);
    EXPECT_EQ(header_of(record.bytes()).contest_name, std::string(60, 'n'));
    EXPECT_EQ(header_of(record.bytes()).name_length, 255U);
}

TEST_F(ZloHeading, FileOf256BytesHasNoContact) {
    EXPECT_EQ(header_of(zlo_heading("x")).contacts(), 0);
}

TEST_F(ZloHeading, CountsWholeRecords) {
    const std::string three =
        zlo_heading("x") + ZloContactBytes{}.bytes() + ZloContactBytes{}.bytes();
    EXPECT_EQ(header_of(three).contacts(), 2);
    EXPECT_EQ(header_of(three + std::string(255, 'x')).contacts(), 2);
}

TEST_F(ZloHeading, FileWithoutAWholeRecordNamesNoContest) {
    for (const std::size_t size : {0U, 1U, 180U, 255U}) {
        const ZloHeader header = header_of(zlo_heading("contest").substr(0, size));
        EXPECT_EQ(header.contacts(), -1) << size;
        EXPECT_EQ(header.name_length, 0U) << size;
        EXPECT_EQ(header.contest_name, "") << size;
    }
    EXPECT_EQ(failure_of([&] { zlo_header(stage, "C:\\log\\missing.zlo"); }), 53);
}

// --- a contact ---

TEST_F(Zlo, RecordGivesTheThirteenFields) {
    use.mark(RemarkItem::op);
    EXPECT_THAT(read_one({.call = "JR8YYX/1", .op = "JA1ZZZ", .memo = "SSN (7012)"}),
                ElementsAre("2025", "04", "26", "2105", "JR8YYX/1", "599", "589", "7", "CW",
                            "JA1ZZZ", "SSN ", "7.012", "104M"));
    EXPECT_EQ(kept, 1U);
}

TEST_F(Zlo, HeadingIsNoContact) {
    EXPECT_THAT(read({}), IsEmpty());
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_1.txt"), "");
}

TEST_F(Zlo, EveryByteOfAFieldIsTheFieldsAndNoneBesideIt) {
    const Contact contact = read_one({.call = "abcdefghijkl",
                                      .number_received = "123456789",
                                      .memo = std::string(66, 'm') + "n"});
    EXPECT_EQ(contact[log_line::call], "abcdefghijkl");
    EXPECT_EQ(contact[log_line::number_received], "123456789");
    EXPECT_EQ(contact[log_line::memo], std::string(66, 'm') + "n");
    options.Check15 = true;
    EXPECT_EQ(read_one({.op = "ABCDEFGHIJKLMN"})[log_line::op], "ABCDEFGHIJKLMN");
}

TEST_F(Zlo, NumberStoredWithTwelveBytesComesThroughWithNine) {
    RecordBytes record(256, ' ');
    record.put(0, ZloContactBytes{}.bytes()).put_counted(52, "123456789ABC");
    put_log(zlo_heading("x") + record.bytes());
    read_zlo(stage, request());
    EXPECT_EQ(contacts().at(0)[log_line::number_received], "123456789");
}

TEST_F(Zlo, LengthPastTheSpaceMeansTheWholeSpace) {
    use.mark(RemarkItem::op_percent);
    std::string bytes = ZloContactBytes{.call = "abcdefghijkl",
                                        .number_received = "123456789",
                                        .op = "ABCDEFGHIJKLMN",
                                        .memo = std::string(67, 'm')}
                            .bytes();
    for (const std::size_t at : {8U, 52U, 160U, 175U}) {
        bytes[at] = '\xFF';
    }
    put_log(zlo_heading("x") + bytes);
    read_zlo(stage, request());
    const Contact contact = contacts().at(0);
    EXPECT_EQ(contact[log_line::call], "abcdefghijkl");
    EXPECT_EQ(contact[log_line::number_received], "123456789");
    EXPECT_EQ(contact[log_line::op], "ABCDEFGHIJKLMN");
    EXPECT_EQ(contact[log_line::memo], std::string(67, 'm'));
}

TEST_F(Zlo, OperatorOfTwoByteCharactersComesInWhole) {
    options.Check15 = true;
    EXPECT_EQ(read_one({.op = "山田太郎"})[log_line::op], "山田太郎");
    EXPECT_EQ(read_one({.op = "ﾔﾏﾀﾞ"})[log_line::op], "ﾔﾏﾀﾞ");
}

TEST_F(Zlo, LengthThatEndsWithinACharacterLeavesItOut) {
    std::string bytes = ZloContactBytes{.memo = "移動"}.bytes();
    bytes[175] = 3;
    put_log(zlo_heading("x") + bytes);
    read_zlo(stage, request());
    EXPECT_EQ(contacts().at(0)[log_line::memo], "移");
}

TEST_F(Zlo, ReportsAreNumbersOfTwoBytes) {
    const Contact contact = read_one({.report_sent = 59, .report_received = 0xFFFE});
    EXPECT_EQ(contact[log_line::report_sent], "59");
    EXPECT_EQ(contact[log_line::report_received], "65534");
}

TEST_F(Zlo, EachModeHasItsName) {
    const std::vector<const char*> names{"CW", "SSB", "FM", "AM", "RTY", "Other"};
    for (unsigned mode = 0; mode < names.size(); ++mode) {
        EXPECT_EQ(read_one({.mode = mode})[log_line::mode], names[mode]);
    }
}

TEST_F(Zlo, EachBandHasItsName) {
    const std::vector<const char*> names{"1.9", "3.5", "7",   "10",  "14",   "18",   "21",   "24",
                                         "28",  "50",  "144", "430", "1200", "2400", "5600", "10G"};
    for (unsigned band = 0; band < names.size(); ++band) {
        const Contact contact = read_one({.band = band});
        EXPECT_EQ(contact[log_line::band], names[band]);
        EXPECT_EQ(contact[log_line::frequency], names[band]);
    }
}

TEST_F(Zlo, NumberBesideATableKeepsTheValueBefore) {
    const auto read_contacts = read({{.mode = 6, .band = 16},
                                     {.mode = 2, .band = 11},
                                     {.mode = 255, .band = 16},
                                     {.mode = 6, .band = 255}});
    EXPECT_EQ(read_contacts[0][log_line::mode], "");
    EXPECT_EQ(read_contacts[0][log_line::band], "");
    for (const std::size_t i : {1U, 2U, 3U}) {
        EXPECT_EQ(read_contacts[i][log_line::mode], "FM");
        EXPECT_EQ(read_contacts[i][log_line::band], "430");
    }
}

TEST_F(Zlo, TimeStandsAsItIsToTheNearestSecond) {
    EXPECT_EQ(read_one({.days = april_26})[log_line::time], "0000");
    EXPECT_EQ(read_one({.days = april_26 + day_part(21, 4, 59)})[log_line::time], "2104");
    EXPECT_EQ(read_one({.days = april_26 + 75899.7 / 86400})[log_line::time], "2105");
    const Contact next_day = read_one({.days = april_26 + 86399.8 / 86400});
    EXPECT_EQ(next_day[log_line::day], "27");
    EXPECT_EQ(next_day[log_line::time], "0000");
}

TEST_F(Zlo, TimeOfNoCalendarOverflows) {
    for (const double days : {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e9, 3e6}) {
        EXPECT_EQ(failure_of([&] { read({{.days = days}}); }), 6) << days;
    }
    EXPECT_THAT(trace.lines, Contains("エラー発生  Private Sub read_zlo() ：　6"));
}

// --- the operator ---

struct OperatorUse {
    bool Check15;
    bool op_item;
    bool op_percent_item;
    bool stays;
};

class ZloOperator : public Zlo, public testing::WithParamInterface<OperatorUse> {};

TEST_P(ZloOperator, StaysWhereItIsWanted) {
    options.Check15 = GetParam().Check15;
    if (GetParam().op_item) {
        use.mark(RemarkItem::op);
    }
    if (GetParam().op_percent_item) {
        use.mark(RemarkItem::op_percent);
    }
    EXPECT_EQ(read_one({.op = "JA1ZZZ"})[log_line::op], GetParam().stays ? "JA1ZZZ" : "");
}

INSTANTIATE_TEST_SUITE_P(
    EveryCombination, ZloOperator,
    testing::Values(OperatorUse{false, false, false, false}, OperatorUse{false, false, true, true},
                    OperatorUse{false, true, false, true}, OperatorUse{false, true, true, true},
                    OperatorUse{true, false, false, true}, OperatorUse{true, false, true, true},
                    OperatorUse{true, true, false, true}, OperatorUse{true, true, true, true}));

TEST_F(Zlo, MemoItemsDoNotWantTheOperator) {
    use.mark(RemarkItem::memo);
    use.mark(RemarkItem::memo_equals);
    EXPECT_EQ(read_one({.op = "JA1ZZZ"})[log_line::op], "");
}

TEST_F(Zlo, FilterKeepsTheContactsOfOneOperator) {
    options.Check15 = true;
    EXPECT_THAT(read({{.op = "JA1ZZZ"}, {.op = ""}}), SizeIs(2));
    options.txtOp_name = "JA1ZZZ";
    const auto read_contacts =
        read({{.call = "JA1ZZA", .op = "JA1ZZY"}, {.call = "JA1ZZB", .op = "JA1ZZZ"}, {.op = ""}});
    ASSERT_THAT(read_contacts, SizeIs(1));
    EXPECT_EQ(read_contacts[0][log_line::call], "JA1ZZB");
    EXPECT_EQ(kept, 1U);
}

// --- memo and frequency ---

TEST_F(Zlo, MemoStandsWhetherAnItemUsesItOrNot) {
    EXPECT_EQ(read_one({.memo = " SSN "})[log_line::memo], " SSN ");
}

TEST_F(Zlo, FrequencyInBracketsLeavesTheMemo) {
    EXPECT_EQ(memo_and_frequency("SSN (7012)"), Texts("SSN ", "7.012"));
    EXPECT_EQ(memo_and_frequency("(7012) SSN"), Texts(" SSN", "7.012"));
    EXPECT_EQ(memo_and_frequency("(7.012)"), Texts("", "7.012"));
    EXPECT_EQ(memo_and_frequency("移動 (14012)運用"), Texts("移動 運用", "14.012"));
    // Text behind the bracket does not make the piece longer.
    EXPECT_EQ(memo_and_frequency("(7012) QRP 5W"), Texts(" QRP 5W", "7.012"));
}

TEST_F(Zlo, PieceThatIsNoFrequencyLeavesTheMemoToo) {
    EXPECT_EQ(memo_and_frequency("a (QRP) b"), Texts("a  b", ""));
    EXPECT_EQ(memo_and_frequency("a (portable) b"), Texts("a  b", ""));
}

TEST_F(Zlo, EveryPlaceOfThePieceIsTakenOutAndEmptyBracketsBecomeABlank) {
    EXPECT_EQ(memo_and_frequency("(7012)a(7012)b"), Texts("ab", "7.012"));
    EXPECT_EQ(memo_and_frequency("(7012)a()b"), Texts("a b", "7.012"));
    // The piece "()" is taken out first.
    EXPECT_EQ(memo_and_frequency("a()b"), Texts("ab", ""));
    EXPECT_EQ(memo_and_frequency("((7012)"), Texts("", ""));
}

TEST_F(Zlo, ZeroInBracketsMakesTheBandTheFrequencyAndStays) {
    EXPECT_EQ(memo_and_frequency("(0)"), Texts("(0)", "7"));
    EXPECT_EQ(memo_and_frequency("(7012) (0)"), Texts("(7012) (0)", "7"));
    EXPECT_EQ(memo_and_frequency("() (0)"), Texts("() (0)", "7"));
}

TEST_F(Zlo, BracketsThatEncloseNothingGiveNoFrequency) {
    EXPECT_EQ(memo_and_frequency("SSN (7012"), Texts("SSN (7012", ""));
    EXPECT_EQ(memo_and_frequency("a) b (7012)"), Texts("a) b (7012)", ""));
    EXPECT_EQ(memo_and_frequency("a) (b () c"), Texts("a) (b   c", ""));
}

TEST_F(Zlo, MemoWithoutABracketGivesTheBand) {
    EXPECT_EQ(memo_and_frequency("SSN"), Texts("SSN", "7"));
    EXPECT_EQ(memo_and_frequency("7012)"), Texts("7012)", "7"));
    EXPECT_EQ(memo_and_frequency(""), Texts("", "7"));
}

TEST_F(Zlo, WithoutTheOptionTheBandIsTheFrequency) {
    options.Check01 = false;
    EXPECT_EQ(memo_and_frequency("SSN (7012)"), Texts("SSN (7012)", "7"));
    EXPECT_EQ(memo_and_frequency("a ()"), Texts("a ()", "7"));
}

TEST_F(Zlo, ContactBeforeLeavesNothingInMemoAndFrequency) {
    const auto read_contacts = read({{.memo = "SSN (7012)"}, {.memo = ""}, {.memo = "(x"}});
    EXPECT_EQ(read_contacts[1][log_line::memo], "");
    EXPECT_EQ(read_contacts[1][log_line::frequency], "7");
    EXPECT_EQ(read_contacts[2][log_line::memo], "(x");
    EXPECT_EQ(read_contacts[2][log_line::frequency], "");
}

// --- the run ---

TEST_F(Zlo, TracesAndShowsWhatItDoes) {
    read({{}, {}});
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub read_zlo()", "Open C:\\log\\x.log For Input As #f_i",
                            "Open C:\\log\\zlog_1.txt For Output As #f_o"));
    EXPECT_EQ(lblCFG.caption.get(), "入力ファイルを読み込み中");
    EXPECT_EQ(lblCFG.fore_colour.get(), colours::green);
    EXPECT_EQ(bar.maximum.get(), 4U);
    EXPECT_EQ(bar.value.get(), 0U);
}

// --- what is no log ---

TEST_F(Zlo, FileCutAnywhereLosesItsLastRecord) {
    const std::string whole =
        zlo_heading("x") + ZloContactBytes{}.bytes() + ZloContactBytes{}.bytes();
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        put_log(whole.substr(0, size));
        EXPECT_EQ(failure_of([&] { read_zlo(stage, request()); }), 0) << size;
        EXPECT_THAT(contacts(), SizeIs(size < 512 ? 0 : size / 256 - 1)) << size;
    }
}

TEST_F(Zlo, ZerosAreContactsOfTheFirstDay) {
    put_log(std::string(3 * 256, '\0'));
    read_zlo(stage, request());
    EXPECT_THAT(
        contacts(),
        ElementsAre(
            ElementsAre("1899", "12", "30", "0000", "", "0", "0", "1.9", "CW", "", "", "1.9", ""),
            ElementsAre("1899", "12", "30", "0000", "", "0", "0", "1.9", "CW", "", "", "1.9", "")));
}

TEST_F(Zlo, OtherFilesFailAtTheirTimeOrHaveNoContact) {
    for (const Damage& damage : damaged_logs()) {
        put_log(damage.bytes);
        // Read as a time, the bytes are no number or a huge one, or one next to nothing.
        const int number = failure_of([&] { read_zlo(stage, request()); });
        const bool has_contact = damage.bytes.size() >= 512;
        const std::string_view name = damage.name;
        const bool is_time = name == "zeros" || name == "1 MB of blanks" ||
                             name == "1 MB of colons" || name == "1 MB of brackets" ||
                             name == "blank lines";
        EXPECT_EQ(number, has_contact && !is_time ? 6 : 0) << damage.name;
    }
}

TEST_F(Zlo, BytesThatAreNoCharacterPassThrough) {
    const std::string call("J\xFF\0\x80YX", 6);
    put_log(zlo_heading("x") + ZloContactBytes{.call = "JR8YYX"}.bytes().replace(9, 6, call));
    read_zlo(stage, request());
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_1.txt"),
              "\"2025\",\"04\",\"26\",\"2105\",\"" + call +
                  "\",\"599\",\"589\",\"7\",\"CW\",\"\",\"\",\"7\",\"104M\"\r\n");
}

}  // namespace
}  // namespace veldrana
