// What the contest dialog shows of a log: a row for each contact, and the shapes of the numbers.
#include "readers/contest_survey.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* log_path = "C:\\log\\x.log";

class ContestSurvey : public StageFixture {
  protected:
    ContestSurvey() { disk.put_folder("C:\\work"); }

    // The rows that a reader makes of a log.
    template <class Reader>
    SampleRows rows_of(Reader reader, const std::vector<std::string>& lines) {
        put_lines(disk, log_path, lines);
        return reader(stage, request);
    }

    // The numbers as the reader has left them for the survey.
    std::string numbers() { return from_code_page(disk.bytes("C:\\work\\syubetu0.csv")); }

    NumberShapes shapes_of(const std::vector<std::string>& received) {
        put_lines(disk, "C:\\work\\syubetu0.csv", received);
        return check_con_nr(stage, request);
    }

    const SurveyRequest request{.in_name = log_path, .current_folder = "C:\\work\\"};
};

constexpr auto all_reader = [](const Stage& stage, const SurveyRequest& request) {
    return read_all(stage, request);
};

// --- readers ---

TEST_F(ContestSurvey, AllLogHasTheReportInBytes43To45AndTheNumberIn47To54) {
    EXPECT_THAT(rows_of(all_reader,
                        {"zLog for Windows", line_of({{18, "JA1ABC"}, {42, "x599x 1234H xx"}})}),
                ElementsAre("599 1234H x"));
    EXPECT_EQ(numbers(), "1234H x\r\n");
}

TEST_F(ContestSurvey, TxtLogHasTheReportInBytes38To40AndTheNumberIn41To48) {
    EXPECT_THAT(rows_of(read_txt, {"mon day", line_of({{37, "x59 1234567890"}})}),
                ElementsAre("59  12345678"));
    EXPECT_EQ(numbers(), "12345678\r\n");
}

TEST_F(ContestSurvey, CabrilloLogIsReadByTheColumnsOfTheTxtLog) {
    // In bytes 38 to 40 stands the report sent, in 41 to 48 what follows it.
    const std::vector<std::string> lines{
        "START-OF-LOG: 3.0", "QSO:  7012 CW 2021-08-01 0218 JA1ZZZ 599 104M JA1ABC 589 1004"};
    EXPECT_THAT(rows_of(read_cbr, lines), ElementsAre("599 104M JA"));
    EXPECT_THAT(rows_of(read_txt, lines), ElementsAre("599 104M JA"));
}

TEST_F(ContestSurvey, FirstLineOfATextLogIsSkippedAndAnEmptyLogHasNoRows) {
    EXPECT_THAT(rows_of(all_reader, {line_of({{43, "599"}})}), IsEmpty());
    EXPECT_EQ(numbers(), "");
    EXPECT_EQ(failure_of([this] { rows_of(all_reader, {}); }), 62);
}

TEST_F(ContestSurvey, ReportIsFilledWithTwoBlanksAndCutToFourCharacters) {
    struct Row {
        std::string_view report;
        std::string_view shown;
    };
    for (const Row& row :
         std::vector<Row>{{"599", "599 N"}, {"59", "59  N"}, {"5", "5  N"}, {"", "  N"}}) {
        EXPECT_THAT(rows_of(read_txt, {"", line_of({{38, row.report}, {41, "N"}})}),
                    ElementsAre(std::string(row.shown)));
    }
}

TEST_F(ContestSurvey, ShortLinesGiveEmptyFields) {
    EXPECT_THAT(rows_of(all_reader, {"zLog for Windows", "", "2021/08/01"}),
                ElementsAre("  ", "  "));
    EXPECT_EQ(numbers(), "\r\n\r\n");
}

TEST_F(ContestSurvey, ColumnsAreBytesAndNoCharacterIsCut) {
    EXPECT_THAT(rows_of(read_txt, {"", line_of({{1, "東京"}, {38, "59"}, {41, "東京都千代田"}})}),
                ElementsAre("59  東京都千"));
}

TEST_F(ContestSurvey, AdifLogHasItsValuesBehindTheirTags) {
    EXPECT_THAT(
        rows_of(read_adif,
                {"header <EOH>", "<CALL:6>JA1ABC <RST_RCVD:3>599 <APP_N1MM_EXCHANGE1:4>104M <EOR>",
                 "<RST_RCVD:2>57 <APP_N1MM_EXCHANGE1:2>99 <EOR>", "<call:6>JA1ABC <RST_RCVD:2>57",
                 "<CALL:6>JR8YYX <APP_N1MM_EXCHANGE1:3>101 <RST_RCVD:2>59 <EOR>"}),
        ElementsAre("599 104M", "59  101"));
    EXPECT_EQ(numbers(), "104M\r\n101\r\n");
}

TEST_F(ContestSurvey, AdifLineWithoutATagKeepsTheValueOfTheLineBefore) {
    EXPECT_THAT(
        rows_of(read_adif, {"<CALL:4>W1AW", "<CALL:4>W1AW<RST_RCVD:3>599<APP_N1MM_EXCHANGE1:2>14",
                            "<CALL:4>W1AW<rst_rcvd:3>579<APP_N1MM_EXCHANGE1:2>15"}),
        ElementsAre("  ", "599 14", "599 15"));
}

TEST_F(ContestSurvey, AdifLengthIsTheOneDigitBehindTheTag) {
    struct Row {
        std::string_view value;
        std::string_view expected;
    };
    for (const Row& row : std::vector<Row>{{":4>104M", "104M"},
                                           {":2>104M", "10"},
                                           {":9>104M", "104M"},
                                           {":0>104M", ""},
                                           {":12>104M", ">"},
                                           {":x>104M", ""},
                                           {":", ""},
                                           {":3>東京都", "東京都"}}) {
        EXPECT_THAT(
            rows_of(read_adif, {"<CALL:4>W1AW<APP_N1MM_EXCHANGE1" + std::string(row.value)}),
            ElementsAre("  " + std::string(row.expected)))
            << row.value;
    }
}

// --- shapes ---

TEST_F(ContestSurvey, EachShapeHasItsLabel) {
    struct Row {
        std::string_view number;
        std::string_view text;
    };
    for (const Row& row : std::vector<Row>{{"1234", "1 : 数字  ,  "},
                                           {"TK", "2 : 英字  ,  "},
                                           {"12AB", "12 : 数字 + 英字  ,  "},
                                           {"AB12", "21 : 英字 + 数字  ,  "},
                                           {"A1B", "212 : 英 + 数 + 英  ,  "},
                                           {"1A2", "121 : 数 + 英 + 数  ,  "}}) {
        EXPECT_EQ(shapes_of({std::string(row.number)}).text, row.text) << row.number;
    }
}

TEST_F(ContestSurvey, NumbersOfDigitsAndOfDigitsWithLettersGiveBothShapes) {
    const NumberShapes shapes = shapes_of({"1234", "12AB"});
    EXPECT_EQ(shapes.text, "1 : 数字  ,  12 : 数字 + 英字  ,  ");
    EXPECT_TRUE(shapes.has_digit);
    EXPECT_TRUE(shapes.has_letter);
}

TEST_F(ContestSurvey, FlagsTellWhatTheNumbersHold) {
    EXPECT_TRUE(shapes_of({"1004", "101"}).has_digit);
    EXPECT_FALSE(shapes_of({"1004", "101"}).has_letter);
    EXPECT_FALSE(shapes_of({"TK"}).has_digit);
    EXPECT_TRUE(shapes_of({"TK"}).has_letter);
}

TEST_F(ContestSurvey, ShapesAreToldOnceInTheOrderOfTheirKeys) {
    EXPECT_EQ(shapes_of({"TK", "A1", "A1B", "1A", "1A2", "1", "22", "TK"}).text,
              "1 : 数字  ,  12 : 数字 + 英字  ,  121 : 数 + 英 + 数  ,  2 : 英字  ,  "
              "21 : 英字 + 数字  ,  212 : 英 + 数 + 英  ,  ");
}

TEST_F(ContestSurvey, OtherShapeReusesTheLabelOfTheOneBefore) {
    EXPECT_EQ(shapes_of({"1A2B", "1A2"}).text, "121 : 数 + 英 + 数  ,  1212 : 数 + 英 + 数  ,  ");
    EXPECT_EQ(shapes_of({"1A2B"}).text, "1212 :   ,  ");
}

TEST_F(ContestSurvey, SignsAndBlanksInsideAreLettersAndABlankLineHasNoShape) {
    EXPECT_EQ(shapes_of({"-"}).text, "2 : 英字  ,  ");
    EXPECT_EQ(shapes_of({"1 2"}).text, "121 : 数 + 英 + 数  ,  ");
    const NumberShapes none = shapes_of({"", ""});
    EXPECT_EQ(none.text, "");
    EXPECT_FALSE(none.has_digit);
    EXPECT_FALSE(none.has_letter);
    EXPECT_EQ(shapes_of({"", "-", "10"}).text, "1 : 数字  ,  2 : 英字  ,  ");
}

TEST_F(ContestSurvey, AsManyBytesAreLookedAtAsTheNumberHasCharacters) {
    EXPECT_EQ(shapes_of({"東京1"}).text, "2 : 英字  ,  ");         // 3 of 5 bytes
    EXPECT_EQ(shapes_of({"1東2"}).text, "12 : 数字 + 英字  ,  ");  // 3 of 4 bytes
    EXPECT_EQ(shapes_of({"１"}).text, "2 : 英字  ,  ");
}

TEST_F(ContestSurvey, ShapesThatShareTheirFirstEightCharactersAreToldAsTheFirstOfThem) {
    EXPECT_EQ(shapes_of({"1A1A1A1A", "1A1A1A1"}).text, "12121212 :   ,  ");
    EXPECT_EQ(shapes_of({"1A1A1A1", "1A1A1A1A"}).text, "1212121 :   ,  ");
}

TEST_F(ContestSurvey, LogWithoutNumbersHasNoShapes) {
    EXPECT_EQ(shapes_of({}).text, "");
}

TEST_F(ContestSurvey, WorkFilesAreGoneBehindTheSurvey) {
    disk.put("C:\\work\\syubetu9.csv", "x");
    disk.put("C:\\work\\syubetu.csv", "x");
    shapes_of({"1004"});
    EXPECT_THAT(disk.files(), ElementsAre("C:\\work\\syubetu.csv"));
}

TEST_F(ContestSurvey, NumbersPassThroughTheWorkFilesAndTheSortService) {
    shapes_of({"1004"});
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub check_con_nr()",
                                         "Open C:\\work\\syubetu0.csv For Input As #f_i",
                                         "Open C:\\work\\syubetu1.csv For Output As #f_o",
                                         "sort C:\\work\\syubetu1.csv C:\\work\\syubetu2.csv",
                                         "Open C:\\work\\syubetu2.csv For Input As #f_i",
                                         "Open C:\\work\\syubetu3.csv For Output As #f_o",
                                         "Open C:\\work\\syubetu3.csv For Input As #f_i"));
}

// A sort service that is busy for a while, and keeps what it was asked.
class BusySort : public SortService {
  public:
    explicit BusySort(Disk& disk) : sort_(disk) {}
    int ksort(const std::string& command, std::string& buffer) override {
        commands.push_back(command);
        return commands.size() < 3 ? busy : sort_.ksort(command, buffer);
    }
    std::vector<std::string> commands;

  private:
    StableSort sort_;
};

TEST_F(ContestSurvey, SortIsAskedAgainWhileTheServiceIsBusy) {
    BusySort busy(disk);
    const Stage waiting{disk, trace.log, busy, person, lblCFG, bar};
    put_lines(disk, "C:\\work\\syubetu0.csv", {"TK", "1004"});
    EXPECT_EQ(check_con_nr(waiting, request).text, "1 : 数字  ,  2 : 英字  ,  ");
    EXPECT_EQ(busy.commands.size(), 3U);
    EXPECT_EQ(person.times_let_through, 3);
    EXPECT_EQ(busy.commands.back(), "/k(2:8)  'C:\\work\\syubetu1.csv'  'C:\\work\\syubetu2.csv'");
}

TEST_F(ContestSurvey, WorkFilesHoldKeyAndShape) {
    // The last stage cannot be written, so that those before it stay to be looked at.
    FailingDisk failing(disk);
    failing.fail_writing("syubetu3.csv", Failure::disk_full);
    StableSort sort(failing);
    const Stage broken{failing, trace.log, sort, person, lblCFG, bar};
    put_lines(disk, "C:\\work\\syubetu0.csv", {"TK", "1004", ""});
    EXPECT_EQ(failure_of([&] { check_con_nr(broken, request); }), 61);
    EXPECT_EQ(disk.bytes("C:\\work\\syubetu1.csv"),
              "\"(2)     \",\"(2)\"\r\n\"(1)     \",\"(1)\"\r\n\"()      \",\"()\"\r\n"
              "\"zzzz\",\"dummy\"\r\n");
    EXPECT_EQ(disk.bytes("C:\\work\\syubetu2.csv"),
              "\"()      \",\"()\"\r\n\"(1)     \",\"(1)\"\r\n\"(2)     \",\"(2)\"\r\n"
              "\"zzzz\",\"dummy\"\r\n");
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 ：　61"));
}

// --- by the kind of the log ---

TEST_F(ContestSurvey, ReaderIsThatOfTheKind) {
    const std::vector<std::string> lines{
        "first", line_of({{1, "<CALL:4>W1AW<RST_RCVD:2>57"}, {38, "5912"}, {43, "599 1004"}})};
    struct Row {
        InputKind kind;
        std::string_view procedure;
        std::string_view row;
    };
    for (const Row& row :
         std::vector<Row>{{InputKind::all, "Private Sub read_all()", "599 1004"},
                          {InputKind::txt, "Private Sub read_txt()", "591 2 599 10"},
                          {InputKind::cbr, "Private Sub read_cbr()", "591 2 599 10"},
                          {InputKind::ADIF, "Private Sub read_adif()", "57  "}}) {
        put_lines(disk, log_path, lines);
        trace.lines.clear();
        const LogSurvey survey = survey_log(stage, row.kind, request);
        EXPECT_EQ(trace.lines.at(0), row.procedure);
        EXPECT_THAT(survey.rows, ElementsAre(std::string(row.row)));
    }
}

TEST_F(ContestSurvey, SurveyEndsWithTheShapes) {
    put_lines(disk, log_path, {"first", line_of({{47, "104M"}})});
    const LogSurvey survey = survey_log(stage, InputKind::all, request);
    EXPECT_EQ(survey.shapes.text, "12 : 数字 + 英字  ,  ");
    EXPECT_THAT(disk.names("C:\\work\\*"), IsEmpty());
}

TEST_F(ContestSurvey, OtherKindsHaveNoReader) {
    for (const std::optional<InputKind> kind :
         std::vector<std::optional<InputKind>>{InputKind::zlo, InputKind::lg8, InputKind::log_v4,
                                               InputKind::log_v430, std::nullopt}) {
        const LogSurvey survey = survey_log(stage, kind, request);
        EXPECT_THAT(survey.rows, IsEmpty());
        EXPECT_EQ(survey.shapes.text, "");
        EXPECT_FALSE(survey.shapes.has_digit);
        EXPECT_FALSE(survey.shapes.has_letter);
    }
    EXPECT_THAT(trace.lines, IsEmpty());
}

}  // namespace
}  // namespace veldrana
