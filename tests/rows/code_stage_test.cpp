// The code stage without a master: LogLines become CodedLines.
#include "rows/code_stage.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "platform/code_page_932.h"
#include "readers/coded_line.h"
#include "readers/log_line.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

// The contact that tests start from.
const LogLine sample{.year = "2021",
                     .month = "8",
                     .day = "1",
                     .time = "0218",
                     .call = "JA1ABC/1",
                     .report_sent = "599",
                     .report_received = "589",
                     .band = "7",
                     .mode = "CW ",
                     .op = "JA1ZZZ",
                     .memo = "memo=nice fist",
                     .frequency = "7.012",
                     .number_received = "104M"};

class CodeStage : public StageFixture {
  protected:
    std::vector<std::vector<std::string>> coded(const std::vector<LogLine>& contacts) {
        std::string text;
        for (const LogLine& contact : contacts) {
            QuotedLine line;
            put(line, contact);
            text += std::string(line.text()) + "\r\n";
        }
        disk.put("C:\\log\\zlog_1.txt", to_code_page(text));
        bak_sep3(stage, "C:\\log\\", options);
        std::vector<std::vector<std::string>> lines;
        TextInput written(disk, "C:\\log\\zlog_2.txt");
        for (std::string_view line; written.next_line(line);) {
            lines.push_back(split_quoted_fields(line));
        }
        return lines;
    }

    std::string coded_field(const LogLine& contact, coded_line::Field field) {
        return coded({contact}).at(0).at(field);
    }

    RunOptions options;
};

TEST_F(CodeStage, ALogLineGivesTheSeventeenFields) {
    EXPECT_THAT(coded({sample}),
                ElementsAre(ElementsAre("210801", "0218", "JA1ABC/1", "599", "589", "JA1ABC", "1",
                                        "7.012", "CW ", "", "", "", "", "104M", "JA1ZZZ",
                                        "memo=nice fist", "JA1ABC/1")));
}

TEST_F(CodeStage, FieldsStandInTheirPlaces) {
    struct Row {
        coded_line::Field field;
        std::size_t number;  // from 1
    };
    const std::vector<Row> rows{{coded_line::date, 1},
                                {coded_line::time, 2},
                                {coded_line::call, 3},
                                {coded_line::report_sent, 4},
                                {coded_line::report_received, 5},
                                {coded_line::call_base, 6},
                                {coded_line::portable, 7},
                                {coded_line::frequency, 8},
                                {coded_line::mode, 9},
                                {coded_line::reserved_1, 10},
                                {coded_line::reserved_2, 11},
                                {coded_line::code, 12},
                                {coded_line::qth, 13},
                                {coded_line::number_received, 14},
                                {coded_line::op, 15},
                                {coded_line::memo, 16},
                                {coded_line::call_as_logged, 17}};
    for (const Row& row : rows) {
        EXPECT_EQ(static_cast<std::size_t>(row.field) + 1, row.number);
    }
    EXPECT_EQ(static_cast<std::size_t>(coded_line::count), 17U);
}

TEST_F(CodeStage, EveryFieldIsWrittenInQuotesWithCrLf) {
    LogLine contact = sample;
    contact.memo = "東京";
    coded({contact});
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_2.txt"),
              "\"210801\",\"0218\",\"JA1ABC/1\",\"599\",\"589\",\"JA1ABC\",\"1\",\"7.012\","
              "\"CW \",\"\",\"\",\"\",\"\",\"104M\",\"JA1ZZZ\",\"\x93\x8C\x8B\x9E\","
              "\"JA1ABC/1\"\r\n");
}

TEST_F(CodeStage, DateIsTheLastTwoCharactersOfEachPart) {
    struct Row {
        std::string_view year;
        std::string_view month;
        std::string_view day;
        std::string_view date;
    };
    const std::vector<Row> rows{
        {"2021", "08", "01", "210801"}, {"2021", "8", "1", "210801"},
        {"2021", "12", "31", "211231"}, {"1999", "1", "10", "990110"},
        {"21", "8", "1", "210801"},     {"2000", "010", "002", "001002"},
        {"2021", "", "1", "21001"},     {"", "8", "1", "0801"},
    };
    for (const Row& row : rows) {
        LogLine contact = sample;
        contact.year = row.year;
        contact.month = row.month;
        contact.day = row.day;
        EXPECT_EQ(coded_field(contact, coded_line::date), row.date);
    }
}

TEST_F(CodeStage, FrequencyIsThatOfTheLogLineIfWantedAndThere) {
    struct Row {
        bool check_01;
        std::string_view frequency;
        std::string_view expected;
    };
    const std::vector<Row> rows{
        {true, "7.012", "7.012"}, {true, "", "7"}, {false, "7.012", "7"}, {false, "", "7"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.check_01 ? "Check01" : "no Check01");
        options.Check01 = row.check_01;
        LogLine contact = sample;
        contact.frequency = row.frequency;
        EXPECT_EQ(coded_field(contact, coded_line::frequency), row.expected);
    }
}

TEST_F(CodeStage, CallIsSplitAndKeptWhole) {
    struct Row {
        std::string_view call;
        std::string_view base;
        std::string_view portable;
    };
    const std::vector<Row> rows{{"JA1ABC", "JA1ABC", ""},
                                {"JA1ABC/1", "JA1ABC", "1"},
                                {"JA1ABC/1/QRP", "JA1ABC", "1"},
                                {"KH2/JA1ABC", "KH2", "JA1ABC"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.call);
        LogLine contact = sample;
        contact.call = row.call;
        const std::vector<std::string> line = coded({contact}).at(0);
        EXPECT_EQ(line.at(coded_line::call), row.call);
        EXPECT_EQ(line.at(coded_line::call_base), row.base);
        EXPECT_EQ(line.at(coded_line::portable), row.portable);
        EXPECT_EQ(line.at(coded_line::call_as_logged), row.call);
    }
}

TEST_F(CodeStage, NumberReceivedIsTrimmed) {
    LogLine contact = sample;
    contact.number_received = "  10 4M ";
    EXPECT_EQ(coded_field(contact, coded_line::number_received), "10 4M");
}

TEST_F(CodeStage, OtherTextsKeepTheirBlanks) {
    LogLine contact = sample;
    contact.mode = "FM ";
    contact.op = " A ";
    contact.memo = " b ";
    const std::vector<std::string> line = coded({contact}).at(0);
    EXPECT_EQ(line.at(coded_line::mode), "FM ");
    EXPECT_EQ(line.at(coded_line::op), " A ");
    EXPECT_EQ(line.at(coded_line::memo), " b ");
}

TEST_F(CodeStage, EveryContactIsCodedInItsOrder) {
    LogLine second = sample;
    second.call = "JR8YYX";
    second.frequency = "";
    second.month = "11";
    const auto lines = coded({sample, second, sample});
    ASSERT_THAT(lines, SizeIs(3));
    EXPECT_EQ(lines[0].at(coded_line::call), "JA1ABC/1");
    EXPECT_EQ(lines[1].at(coded_line::call), "JR8YYX");
    EXPECT_EQ(lines[1].at(coded_line::portable), "");  // nothing stays from the contact before
    EXPECT_EQ(lines[1].at(coded_line::frequency), "7");
    EXPECT_EQ(lines[1].at(coded_line::date), "211101");
    EXPECT_EQ(lines[2], lines[0]);
}

TEST_F(CodeStage, TraceNamesTheProcedureAndItsFiles) {
    coded({sample});
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub bak_sep3()", "Open C:\\log\\zlog_1.txt For Input As #f_i",
                            "Open C:\\log\\zlog_2.txt For Output As #f_o"));
}

TEST_F(CodeStage, LogWithoutAContactReadsPastTheEnd) {
    EXPECT_THAT([this] { coded({}); }, testing::Throws<RunTimeError>(testing::Property(
                                           &RunTimeError::failure, Failure::input_past_end)));
}

TEST_F(CodeStage, FileOfTheReaderIsNotChanged) {
    coded({sample});
    const std::string before = disk.bytes("C:\\log\\zlog_1.txt");
    bak_sep3(stage, "C:\\log\\", options);
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_1.txt"), before);
    EXPECT_THAT(disk.files(), ElementsAre("C:\\log\\zlog_1.txt", "C:\\log\\zlog_2.txt"));
}

}  // namespace
}  // namespace veldrana
