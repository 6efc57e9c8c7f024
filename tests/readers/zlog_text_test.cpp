#include "readers/zlog_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/code_page_932.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// The fields of a LogLine, by their places.
enum Field {
    year,
    month,
    day,
    time_of_day,
    call,
    sent,
    received,
    band,
    mode,
    op,
    memo,
    frequency,
    number
};

// A line with texts at byte positions, blanks between.
std::string line_with(const std::vector<std::pair<std::size_t, std::string>>& columns) {
    std::string line;
    for (const auto& [start, text] : columns) {
        line.append(start - 1 - LenMbcs(line), ' ').append(text);
    }
    return line;
}

std::string all_line(const std::string& memo_column, const std::string& mode_column = "CW ") {
    return line_with({{1, "2025/04/26 21:05 JA1ZZA"},
                      {31, "599"},
                      {35, "11M"},
                      {43, "589"},
                      {47, "104M"},
                      {55, "104"},
                      {67, "7"},
                      {72, mode_column},
                      {75, "1"},
                      {80, memo_column}});
}

std::string txt_line(const std::string& memo_column) {
    return line_with({{1, "08"},
                      {5, "03"},
                      {8, "1205"},
                      {13, "JR8YYX/1"},
                      {24, "59"},
                      {37, "57"},
                      {40, "101"},
                      {58, "430"},
                      {64, "FM"},
                      {72, "1"},
                      {73, memo_column}});
}

// A log of one kind, read on a disk in memory.
class ZlogText : public StageFixture {
  protected:
    std::vector<std::vector<std::string>> read(InputKind kind,
                                               const std::vector<std::string>& lines) {
        std::string text = std::string(heading_of(kind)) + "\r\n";
        for (const std::string& line : lines) {
            text += line + "\r\n";
        }
        return read_bytes_of(kind, to_code_page(text));
    }

    std::vector<std::vector<std::string>> read_bytes_of(InputKind kind, const std::string& bytes) {
        disk.put("C:\\log\\x", bytes);
        const LogRequest request{
            .in_name = "C:\\log\\x", .in_Dir = "C:\\log\\", .options = options, .use = use};
        kept = kind == InputKind::all ? a_2_t(stage, request) : t_2_t(stage, request);
        std::vector<std::vector<std::string>> contacts;
        TextInput written(disk, "C:\\log\\zlog_1.txt");
        for (std::string_view line; written.next_line(line);) {
            contacts.push_back(split_quoted_fields(line));
        }
        return contacts;
    }

    std::string read_field(InputKind kind, const std::string& line, Field field) {
        return read(kind, {line}).at(0).at(field);
    }

    RunOptions options{.Check01 = true, .Check15 = false, .txtOp_name = "", .txtYYYY = "2025"};
    RemarkUse use;
    std::size_t kept = 0;
};

// --- fields and columns ---

TEST_F(ZlogText, AllLineGivesTheThirteenFields) {
    use.mark(RemarkItem::memo);
    use.mark(RemarkItem::op);
    EXPECT_THAT(read(InputKind::all, {all_line("%%JA1ZZZ%% SSN (7012)")}),
                ElementsAre(ElementsAre("2025", "04", "26", "2105", "JA1ZZA", "599", "589", "7",
                                        "CW ", "JA1ZZZ", "SSN", "7.012", "104M")));
}

TEST_F(ZlogText, TxtLineGivesTheThirteenFields) {
    use.mark(RemarkItem::memo);
    use.mark(RemarkItem::op_percent);
    EXPECT_THAT(read(InputKind::txt, {txt_line("%%JA1ZZZ%% SSN (430120)")}),
                ElementsAre(ElementsAre("2025", "08", "03", "1205", "JR8YYX/1", "59", "57", "430",
                                        "FM ", "JA1ZZZ", "SSN", "430.120", "101")));
}

TEST_F(ZlogText, EveryLineIsWrittenInQuotesWithCrLf) {
    read(InputKind::all, {all_line("")});
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_1.txt"),
              "\"2025\",\"04\",\"26\",\"2105\",\"JA1ZZA\",\"599\",\"589\",\"7\",\"CW \",\"\",\"\","
              "\"\",\"104M\"\r\n");
}

struct ColumnCase {
    InputKind kind;
    std::size_t start;
    std::size_t width;
    Field field;
};

class ZlogTextColumn : public ZlogText, public testing::WithParamInterface<ColumnCase> {};

// Every byte of the column is the field's, and no byte beside it.
TEST_P(ZlogTextColumn, StandsWhereTheTableTells) {
    const ColumnCase& column = GetParam();
    const std::string marks = std::string("abcdefghijklmnop").substr(0, column.width);
    std::string line(130, '.');
    line.replace(column.start - 1, column.width, marks);
    EXPECT_EQ(read_field(column.kind, line, column.field), marks);
}

INSTANTIATE_TEST_SUITE_P(All, ZlogTextColumn,
                         testing::Values(ColumnCase{InputKind::all, 1, 4, year},
                                         ColumnCase{InputKind::all, 6, 2, month},
                                         ColumnCase{InputKind::all, 9, 2, day},
                                         ColumnCase{InputKind::all, 18, 12, call},
                                         ColumnCase{InputKind::all, 31, 3, sent},
                                         ColumnCase{InputKind::all, 43, 3, received},
                                         ColumnCase{InputKind::all, 47, 8, number},
                                         ColumnCase{InputKind::all, 67, 4, band},
                                         ColumnCase{InputKind::all, 72, 3, mode}));

INSTANTIATE_TEST_SUITE_P(Txt, ZlogTextColumn,
                         testing::Values(ColumnCase{InputKind::txt, 1, 2, month},
                                         ColumnCase{InputKind::txt, 5, 2, day},
                                         ColumnCase{InputKind::txt, 8, 4, time_of_day},
                                         ColumnCase{InputKind::txt, 13, 11, call},
                                         ColumnCase{InputKind::txt, 24, 3, sent},
                                         ColumnCase{InputKind::txt, 37, 3, received},
                                         ColumnCase{InputKind::txt, 40, 7, number},
                                         ColumnCase{InputKind::txt, 58, 4, band},
                                         ColumnCase{InputKind::txt, 64, 3, mode}));

TEST_F(ZlogText, TimeOfAnAllLineLeavesOutTheColon) {
    std::string line(130, '.');
    line.replace(11, 5, "ab:cd");
    EXPECT_EQ(read_field(InputKind::all, line, time_of_day), "abcd");
}

TEST_F(ZlogText, MemoStartsAtItsByte) {
    use.mark(RemarkItem::memo);
    EXPECT_EQ(read_field(InputKind::all, std::string(78, 'x') + "x|memo", memo), "|memo");
    EXPECT_EQ(read_field(InputKind::txt, std::string(71, 'x') + "x|memo", memo), "|memo");
}

// --- what the edge cases of the two forms come to ---

TEST_F(ZlogText, OperatorMemoAndFrequencyComeEachIfItsOptionIsOn) {
    const std::string line = all_line("%%JA1ZZZ%% SSN (7012)");
    options.Check01 = false;
    EXPECT_EQ(read_field(InputKind::all, line, op), "");
    EXPECT_EQ(read_field(InputKind::all, line, memo), "");
    EXPECT_EQ(read_field(InputKind::all, line, frequency), "");
    options.Check01 = true;
    EXPECT_EQ(read_field(InputKind::all, line, frequency), "7.012");
    use.mark(RemarkItem::op);
    EXPECT_EQ(read_field(InputKind::all, line, op), "JA1ZZZ");
    EXPECT_EQ(read_field(InputKind::all, line, memo), "");
    use.mark(RemarkItem::memo);
    EXPECT_EQ(read_field(InputKind::all, line, memo), "SSN");
}

TEST_F(ZlogText, FrequencyInMegahertzWithItsPointSurvives) {
    EXPECT_EQ(read_field(InputKind::all, all_line("(7.012)"), frequency), "7.012");
}

TEST_F(ZlogText, DupeMarkDisappearsFromTheMemoButTheContactIsKept) {
    use.mark(RemarkItem::memo);
    const auto contacts = read(InputKind::all, {all_line("-DUPE- SSN")});
    ASSERT_THAT(contacts, SizeIs(1));
    EXPECT_EQ(contacts[0][memo], "SSN");
}

TEST_F(ZlogText, FilterWithoutANameLetsEveryLinePass) {
    options.Check15 = true;
    EXPECT_THAT(
        read(InputKind::all, {all_line("%%JA1ZZA%%"), all_line("%%JA1ZZB%%"), all_line("")}),
        SizeIs(3));
    EXPECT_EQ(kept, 3U);
}

TEST_F(ZlogText, FilterTakesTheOperatorsNameToTheLetter) {
    options.Check15 = true;
    options.txtOp_name = "Taro";
    const auto contacts = read(InputKind::all, {all_line("%%TARO%%"), all_line("%%Taro%% QRP"),
                                                all_line("%%Taro2%%"), all_line("")});
    ASSERT_THAT(contacts, SizeIs(1));
    EXPECT_EQ(contacts[0][op], "Taro");
    EXPECT_EQ(kept, 1U);
}

TEST_F(ZlogText, NameWithoutTheFilterDropsNothing) {
    options.txtOp_name = "JA1ZZZ";
    EXPECT_THAT(read(InputKind::all, {all_line("")}), SizeIs(1));
}

TEST_F(ZlogText, ModeKeepsItsTrailingBlank) {
    EXPECT_EQ(read_field(InputKind::all, all_line("", "CW"), mode), "CW ");
    EXPECT_EQ(read_field(InputKind::txt, txt_line(""), mode), "FM ");
}

TEST_F(ZlogText, OneDigitMonthIsShiftedByALeadingZero) {
    // As the logger writes it: the month in one column, everything behind it one byte early.
    const std::string line = txt_line("").substr(1);
    const auto contact = read(InputKind::txt, {line}).at(0);
    EXPECT_EQ(contact[month], "08");
    EXPECT_EQ(contact[day], "03");
    EXPECT_EQ(contact[time_of_day], "1205");
    EXPECT_EQ(contact[call], "JR8YYX/1");
}

TEST_F(ZlogText, OneDigitMonthBehindBlanksIsShiftedToo) {
    EXPECT_EQ(read_field(InputKind::txt, "   " + txt_line("").substr(1), call), "JR8YYX/1");
}

TEST_F(ZlogText, TwoDigitMonthBehindABlankStaysWhereItIs) {
    // Every column reads one byte further left, as it stands.
    const auto contact = read(InputKind::txt, {" 12" + txt_line("").substr(2)}).at(0);
    EXPECT_EQ(contact[month], "01");
    EXPECT_EQ(contact[time_of_day], " 120");
}

TEST_F(ZlogText, LogWithoutAContactLeavesAnEmptyFile) {
    EXPECT_THAT(read(InputKind::all, {}), IsEmpty());
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_1.txt"), "");
    EXPECT_EQ(kept, 0U);
}

TEST_F(ZlogText, BlankLineIsAContactWithEmptyFields) {
    EXPECT_THAT(read(InputKind::txt, {""}),
                ElementsAre(ElementsAre("2025", "0", "0", "", "", "", "", "", "", "", "", "", "")));
}

TEST_F(ZlogText, EmptyFileFailsAtItsHeading) {
    try {
        read_bytes_of(InputKind::all, "");
        FAIL() << "no failure";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.failure(), Failure::input_past_end);
    }
}

// --- modes ---

TEST_F(ZlogText, ShortModesOfAnAllLogBecomeSsb) {
    for (const char* const short_form : {"SS", "SB", " SS", "SB ", "RT", "TY"}) {
        EXPECT_EQ(read_field(InputKind::all, all_line("", short_form), mode), "SSB") << short_form;
    }
    for (const char* const other : {"SSB", "CW ", "FM ", "AM ", "RTT", "TTY", "ss "}) {
        EXPECT_EQ(read_field(InputKind::all, all_line("", other), mode), other);
    }
}

TEST_F(ZlogText, ModesOfATxtLogStayAsTheyAre) {
    std::string line = txt_line("");
    for (const char* const short_form : {"SS ", "SB ", "RT ", "TY "}) {
        line.replace(63, 3, short_form);
        EXPECT_EQ(read_field(InputKind::txt, line, mode), short_form);
    }
}

// --- when an operator is looked for ---

struct OperatorCase {
    bool op_item;
    bool op_percent_item;
    bool Check15;
    bool all_looks;
    bool txt_looks;
};

class ZlogTextOperator : public ZlogText, public testing::WithParamInterface<OperatorCase> {};

TEST_P(ZlogTextOperator, IsLookedForByTheRuleOfTheForm) {
    const OperatorCase& given = GetParam();
    if (given.op_item) {
        use.mark(RemarkItem::op);
    }
    if (given.op_percent_item) {
        use.mark(RemarkItem::op_percent);
    }
    options.Check15 = given.Check15;
    EXPECT_EQ(read_field(InputKind::all, all_line("%%JA1ZZZ%%"), op),
              given.all_looks ? "JA1ZZZ" : "");
    EXPECT_EQ(read_field(InputKind::txt, txt_line("%%JA1ZZZ%%"), op),
              given.txt_looks ? "JA1ZZZ" : "");
}

INSTANTIATE_TEST_SUITE_P(EveryCombination, ZlogTextOperator,
                         testing::Values(OperatorCase{false, false, false, false, false},
                                         OperatorCase{false, false, true, true, false},
                                         OperatorCase{false, true, false, true, true},
                                         OperatorCase{false, true, true, true, true},
                                         OperatorCase{true, false, false, true, false},
                                         OperatorCase{true, false, true, true, true},
                                         OperatorCase{true, true, false, true, true},
                                         OperatorCase{true, true, true, true, true}));

TEST_F(ZlogText, FilterOfATxtLogDropsEverythingWithoutAnOperatorItem) {
    options.Check15 = true;
    options.txtOp_name = "JA1ZZZ";
    EXPECT_THAT(read(InputKind::txt, {txt_line("%%JA1ZZZ%%")}), IsEmpty());
}

// --- the pieces ---

TEST(GetFreqAll, TakesFourToSevenCharacters) {
    struct {
        const char* line;
        const char* frequency;
    } const cases[] = {
        {"(7012)", "7.012"},
        {"x (14012) ", "14.012"},
        {"(144012)", "144.012"},
        {"(1296012)", "1296.012"},
        {"(7.012)", "7.012"},
        {"(14.012)", "14.012"},
        {"(430.12)", "430.12"},
        {"(701)", ""},
        {"(12960123)", ""},
        {"no parenthesis", ""},
        {"7012)", ""},
        {"()", ""},
        {"( 7012 )", "7.012"},
        {"(7012) QRP 5W", ""},        // the text behind makes the piece longer
        {"(7012) Q", "701.2 Q"},      // or not too long
        {"(7012(14012)", "7.012"},    // up to the next parenthesis
        {") (7012)", "7.012"},        // a parenthesis that closes nothing
        {"(移動運用)", "移.動運用"},  // characters, not bytes
    };
    for (const auto& [line, frequency] : cases) {
        EXPECT_EQ(get_freq_all(line), frequency) << line;
    }
}

TEST(GetOpAll, TakesWhatStandsBetweenTheMarks) {
    EXPECT_EQ(get_op_all("x %%JA1ZZZ%% memo"), "JA1ZZZ");
    EXPECT_EQ(get_op_all("%% JA1ZZZ %%"), "JA1ZZZ");
    EXPECT_EQ(get_op_all("%%山田%%"), "山田");
    EXPECT_EQ(get_op_all("%%ﾔﾏﾀﾞ%%"), "ﾔﾏﾀﾞ");
    EXPECT_EQ(get_op_all("%%JA1ZZZ%"), "JA1ZZZ");
    EXPECT_EQ(get_op_all("%%first%% %%second%%"), "first");
    EXPECT_EQ(get_op_all("%%%%"), "");
    EXPECT_EQ(get_op_all("%%JA1ZZZ"), "");
    EXPECT_EQ(get_op_all("no mark"), "");
    EXPECT_EQ(get_op_all(""), "");
}

TEST(GetOpAll, PassesTwoBytesBehindTheFirstMark) {
    EXPECT_EQ(get_op_all("%xJA1ZZZ%"), "JA1ZZZ");
    // A double-byte character takes the second byte and one more.
    EXPECT_EQ(get_op_all("%山JA1ZZZ%"), "JA1ZZZ");
    EXPECT_EQ(get_op_all("%ﾔJA1ZZZ%"), "JA1ZZZ");
}

TEST(GetOpAll, LooksAtTheFirst120Bytes) {
    const std::string line = std::string(110, '.') + "%%JA1ZZZ%%";  // ends at byte 120
    EXPECT_EQ(get_op_all(line), "JA1ZZZ");
    EXPECT_EQ(get_op_all("." + line), "JA1ZZZ");  // the last mark is cut, the one before is there
    EXPECT_EQ(get_op_all(".." + line), "");       // both are
}

class GetMemoAll : public testing::Test {
  protected:
    std::string memo_of(const std::string& area) {
        return get_memo_all(std::string(79, 'x') + area, InputKind::all, use);
    }
    RemarkUse use;
};

TEST_F(GetMemoAll, TakesTheTextBehindTheLastOperatorMark) {
    EXPECT_EQ(memo_of("%%JA1ZZZ%% SSN "), "SSN");
    EXPECT_EQ(memo_of("SSN %%JA1ZZZ%%"), "");
    EXPECT_EQ(memo_of("a %%b%% c %%d"), "d");
    EXPECT_EQ(memo_of(" SSN "), "SSN");
    EXPECT_EQ(memo_of("50% off"), "50% off");
}

TEST_F(GetMemoAll, TakesTheFirstParenthesesOut) {
    EXPECT_EQ(memo_of("SSN (7012)"), "SSN");
    EXPECT_EQ(memo_of("(7012) SSN"), "SSN");
    EXPECT_EQ(memo_of("a(7012)b"), "a b");
    EXPECT_EQ(memo_of("a (1) b (2)"), "a   b (2)");
}

TEST_F(GetMemoAll, WithoutAClosingParenthesisTheTextStandsTwice) {
    EXPECT_EQ(memo_of("SSN (7012"), "SSN  SSN (7012");
}

TEST_F(GetMemoAll, AnEarlierClosingParenthesisEndsTheFront) {
    EXPECT_EQ(memo_of("a) b (7012)"), "a) b   b (7012)");
}

TEST_F(GetMemoAll, MemoEqualsStandsInFrontOfATextOnly) {
    use.mark(RemarkItem::memo_equals);
    EXPECT_EQ(memo_of("SSN"), "memo=SSN");
    EXPECT_EQ(memo_of(" SSN"), "memo= SSN");
    EXPECT_EQ(memo_of("%%JA1ZZZ%% SSN"), "memo=SSN");
    EXPECT_EQ(memo_of("   "), "");
    EXPECT_EQ(memo_of("(7012)"), "");
}

TEST_F(GetMemoAll, DupeMarkIsTakenOutWhereverItStands) {
    EXPECT_EQ(memo_of("-DUPE-SSN"), "SSN");
    EXPECT_EQ(memo_of("SS-DUPE-N-DUPE-"), "SSN");
}

TEST_F(GetMemoAll, LineOfJustTheColumnsHasNoMemo) {
    EXPECT_EQ(get_memo_all(std::string(79, 'x'), InputKind::all, use), "");
    EXPECT_EQ(get_memo_all(std::string(72, 'x'), InputKind::txt, use), "");
}

TEST_F(GetMemoAll, ShorterLineFails) {
    for (const auto& [kind, size] : {std::pair{InputKind::all, 78}, {InputKind::txt, 71}}) {
        try {
            get_memo_all(std::string(static_cast<std::size_t>(size), 'x'), kind, use);
            ADD_FAILURE() << "no failure at " << size;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.failure(), Failure::invalid_call);
        }
    }
}

TEST_F(GetMemoAll, CountsItsColumnsInCharacters) {
    // Ten double-byte characters take 20 bytes of the columns, so the area starts 10 bytes later.
    std::string line;
    for (int i = 0; i < 10; ++i) {
        line += "表";
    }
    line += std::string(59, 'x') + "0123456789memo";
    EXPECT_EQ(get_memo_all(line, InputKind::all, use), "memo");
}

// --- the run of a reader ---

TEST_F(ZlogText, ShortLineWithMemoInUseEndsInItsErrorLine) {
    use.mark(RemarkItem::memo);
    EXPECT_THROW(read(InputKind::txt, {txt_line("memo"), std::string(71, 'x')}), RunTimeError);
    EXPECT_THAT(trace.lines, Contains("エラー発生 ：　5"));
    // What was written before stays.
    EXPECT_THAT(disk.bytes("C:\\log\\zlog_1.txt"), HasSubstr("\"memo\""));
}

TEST_F(ZlogText, AnAllLineOf49CharactersPassesWithoutAMemo) {
    use.mark(RemarkItem::memo);
    EXPECT_EQ(read_field(InputKind::all, std::string(49, 'x'), memo), "");
    EXPECT_THROW(read(InputKind::all, {std::string(48, 'x')}), RunTimeError);
}

TEST_F(ZlogText, TracesWhatItDoes) {
    read(InputKind::all, {all_line("")});
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub a_2_t()", "count_file_rec C:\\log\\x",
                                         "Open C:\\log\\x For Input As #f_i",
                                         "Open C:\\log\\zlog_1.txt For Output As #f_o"));
    trace.lines.clear();
    read(InputKind::txt, {txt_line("")});
    EXPECT_EQ(trace.lines.front(), "Private Sub t_2_t()");
}

TEST_F(ZlogText, ShowsItsStateAndProgress) {
    read(InputKind::all, {all_line(""), all_line("")});
    EXPECT_EQ(lblCFG.caption.get(), "入力ファイル読み込み中");
    EXPECT_EQ(lblCFG.fore_colour.get(), colours::green);
    // Three lines with their ends count four records; the bar ends one beyond.
    EXPECT_EQ(bar.maximum.get(), 5U);
    EXPECT_EQ(bar.value.get(), 2U);
    read(InputKind::txt, {txt_line(""), txt_line("")});
    EXPECT_EQ(bar.maximum.get(), 6U);
}

TEST_F(ZlogText, DroppedLinesMoveTheBarToo) {
    options.Check15 = true;
    options.txtOp_name = "JA1ZZZ";
    read(InputKind::all, {all_line(""), all_line("%%JA1ZZZ%%")});
    EXPECT_EQ(bar.value.get(), 2U);
    EXPECT_EQ(kept, 1U);
}

TEST_F(ZlogText, EachContactStartsWithAnEmptyMemoAndFrequency) {
    use.mark(RemarkItem::memo);
    use.mark(RemarkItem::op);
    const auto contacts = read(InputKind::all, {all_line("%%JA1ZZZ%% SSN (7012)"), all_line("")});
    EXPECT_EQ(contacts[1][op], "");
    EXPECT_EQ(contacts[1][memo], "");
    EXPECT_EQ(contacts[1][frequency], "");
}

}  // namespace
}  // namespace veldrana
