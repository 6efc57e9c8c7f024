// The code stages: LogLines become CodedLines, with hl_code.mas, the postal masters, a contest data
// file, or without a master.
#include "rows/code_stage.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "masters/code_masters.h"
#include "platform/code_page_932.h"
#include "readers/coded_line.h"
#include "readers/log_line.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

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
    void put_contacts(const std::vector<LogLine>& contacts) {
        std::string text;
        for (const LogLine& contact : contacts) {
            QuotedLine line;
            put(line, contact);
            text += std::string(line.text()) + "\r\n";
        }
        disk.put("C:\\log\\zlog_1.txt", to_code_page(text));
    }

    std::vector<std::vector<std::string>> coded_lines() {
        std::vector<std::vector<std::string>> lines;
        TextInput written(disk, "C:\\log\\zlog_2.txt");
        for (std::string_view line; written.next_line(line);) {
            lines.push_back(split_quoted_fields(line));
        }
        return lines;
    }

    std::vector<std::vector<std::string>> coded(const std::vector<LogLine>& contacts) {
        put_contacts(contacts);
        bak_sep3(stage, "C:\\log\\", options);
        return coded_lines();
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

// --- with a master ---

// A contact with that call and number.
LogLine contact_with(std::string_view call, std::string_view number) {
    LogLine contact = sample;
    contact.call = call;
    contact.number_received = number;
    return contact;
}

// A master of a few numbers that remembers what it was asked for.
class FewNumbers : public CodeSource {
  public:
    std::map<std::string, CodeAndPlace> numbers;
    std::vector<std::string> asked;

    void prepare(const Stage& stage) override { stage.trace.write("prepared"); }
    CodeAndPlace find(std::string_view number) override {
        asked.emplace_back(number);
        const auto found = numbers.find(std::string(number));
        return found == numbers.end() ? CodeAndPlace{} : found->second;
    }
};

// What a stage has made of the code and QTH of a contact.
std::string code_and_qth(const std::vector<std::string>& line) {
    return line.at(coded_line::code) + "/" + line.at(coded_line::qth);
}

class CodeStageWithMaster : public CodeStage {
  protected:
    // Code and QTH of each contact, in order.
    std::vector<std::string> codes() {
        std::vector<std::string> found;
        for (const std::vector<std::string>& line : coded_lines()) {
            found.push_back(code_and_qth(line));
        }
        return found;
    }

    FewNumbers master;
};

// --- hl_code.mas ---

class HlCodeStage : public CodeStageWithMaster {
  protected:
    void run(const std::vector<LogLine>& contacts) {
        put_contacts(contacts);
        bak_sep0(stage, {.in_Dir = "C:\\log\\", .options = options, .hl_code_mas = master});
    }
};

TEST_F(HlCodeStage, CodeAndQthGoIntoTheLineAndAllElseIsAsWithoutAMaster) {
    master.numbers["104"] = {"104", "北海道"};
    run({sample});
    std::vector<std::string> expected = coded_lines().at(0);
    EXPECT_THAT(expected, ElementsAre("210801", "0218", "JA1ABC/1", "599", "589", "JA1ABC", "1",
                                      "7.012", "CW ", "", "", "104", "北海道", "104M", "JA1ZZZ",
                                      "memo=nice fist", "JA1ABC/1"));
}

TEST_F(HlCodeStage, NumberIsCutAtItsFirstCharacterThatIsNoDigit) {
    run({contact_with("JA1ABC", "1234H"), contact_with("JA1ABC", "1234"),
         contact_with("JA1ABC", "H1234"), contact_with("JA1ABC", " 1234"),
         contact_with("JA1ABC", "12 34"), contact_with("JA1ABC", "")});
    EXPECT_THAT(master.asked, ElementsAre("1234", "1234", "", "", "12", ""));
}

TEST_F(HlCodeStage, NumberWithAndWithoutAPowerLetterYieldsTheSameRow) {
    put_master(disk, "C:\\hl_code.mas", {line_of({{2, "1234"}, {20, "1234"}, {26, "ある市"}})});
    HlCodeMas hl_code("C:\\hl_code.mas");
    put_contacts({contact_with("JA1ABC", "1234H"), contact_with("JR8YYX", "1234")});
    bak_sep0(stage, {.in_Dir = "C:\\log\\", .options = options, .hl_code_mas = hl_code});
    EXPECT_THAT(codes(), ElementsAre("1234/ある市", "1234/ある市"));
}

TEST_F(HlCodeStage, EmptyNumberFindsNothing) {
    put_master(disk, "C:\\hl_code.mas", {line_of({{20, "9999"}, {26, "nowhere"}})});
    HlCodeMas hl_code("C:\\hl_code.mas");
    put_contacts({contact_with("JA1ABC", ""), contact_with("JA1ABC", "H")});
    bak_sep0(stage, {.in_Dir = "C:\\log\\", .options = options, .hl_code_mas = hl_code});
    EXPECT_THAT(codes(), ElementsAre("/", "/"));
}

TEST_F(HlCodeStage, ForeignStationsAreLookedUpToo) {
    master.numbers["14"] = {"14", "Z14"};
    run({contact_with("W1AW", "14")});
    EXPECT_THAT(codes(), ElementsAre("14/Z14"));
}

TEST_F(HlCodeStage, NothingIsInheritedFromTheContactBefore) {
    master.numbers["1004"] = {"1004", "武蔵野市"};
    run({contact_with("JA1ABC", "1004"), contact_with("JA1ABC", "9999")});
    EXPECT_THAT(codes(), ElementsAre("1004/武蔵野市", "/"));
}

TEST_F(HlCodeStage, NumberIsPassedOnAsItStood) {
    run({contact_with("JA1ABC", " 104M ")});
    EXPECT_EQ(coded_lines().at(0).at(coded_line::number_received), " 104M ");
}

TEST_F(HlCodeStage, MasterIsLoadedWhenTheFilesAreOpen) {
    run({sample});
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub bak_sep0()", "Open C:\\log\\zlog_1.txt For Input As #f_i",
                            "Open C:\\log\\zlog_2.txt For Output As #f_o", "prepared"));
}

// --- yubin_m?.mas ---

class YubinStage : public CodeStageWithMaster {
  protected:
    void run(const std::vector<LogLine>& contacts, std::string_view dat_line = {}) {
        put_contacts(contacts);
        bak_sep1(stage, {.in_Dir = "C:\\log\\",
                         .options = options,
                         .yubin_mas = &master,
                         .dat_line = dat_line});
    }
};

TEST_F(YubinStage, WholeTrimmedNumberIsSearched) {
    run({contact_with("JA1ABC", " 4500002 "), contact_with("JA1ABC", "450H")});
    EXPECT_THAT(master.asked, ElementsAre("4500002", "450H"));
}

TEST_F(YubinStage, PostalCodeOfSevenDigitsIsSearchedInTheFileOfItsFirst) {
    put_master(disk, "C:\\yubin\\yubin_m4.mas",
               {line_of({{2, "500002"}, {20, "2001"}, {26, "名古屋市"}})});
    YubinMas yubin(stage, "C:\\yubin\\");
    put_contacts({contact_with("JA2ABC", "4500002")});
    bak_sep1(stage,
             {.in_Dir = "C:\\log\\", .options = options, .yubin_mas = &yubin, .dat_line = {}});
    EXPECT_THAT(codes(), ElementsAre("2001/名古屋市"));
}

TEST_F(YubinStage, JapaneseStationsAloneAreLookedUp) {
    master.numbers["1000001"] = {"10", "東京都"};
    struct Row {
        std::string_view call;
        bool is_asked;
    };
    for (const Row& row : std::vector<Row>{{"JA1ABC", true},
                                           {"JS6XYZ", true},
                                           {"JA1ABC/KH2", true},
                                           {"7J1ABC", true},
                                           {"7N4XYZ", true},
                                           {"8J1RL", true},
                                           {"8N1ABC/1", true},
                                           {"W1AW", false},
                                           {"KH2/JA1ABC", false},
                                           {"JT1ABC", false},
                                           {"7I1ABC", false},
                                           {"8O1ABC", false},
                                           {"JAABC", false},
                                           {"ja1abc", false},
                                           {"", false}}) {
        master.asked.clear();
        run({contact_with(row.call, "1000001")});
        EXPECT_THAT(master.asked, SizeIs(row.is_asked ? 1 : 0)) << row.call;
        EXPECT_THAT(codes(), ElementsAre(row.is_asked ? "10/東京都" : "/")) << row.call;
    }
}

TEST_F(YubinStage, ForeignStationBehindAJapaneseOneHasNothing) {
    master.numbers["1000001"] = {"10", "東京都"};
    run({contact_with("JA1ABC", "1000001"), contact_with("W1AW", "1000001")});
    EXPECT_THAT(codes(), ElementsAre("10/東京都", "/"));
}

TEST_F(YubinStage, FileIsNotReadForAForeignStation) {
    YubinMas yubin(stage, "C:\\yubin\\");  // there is no such folder
    put_contacts({contact_with("W1AW", "4500002")});
    bak_sep1(stage,
             {.in_Dir = "C:\\log\\", .options = options, .yubin_mas = &yubin, .dat_line = {}});
    EXPECT_THAT(codes(), ElementsAre("/"));
    EXPECT_THAT(error_lines(), testing::IsEmpty());
}

TEST_F(YubinStage, WithoutAFolderNothingIsAsked) {
    put_contacts({contact_with("JA1ABC", "")});
    bak_sep1(stage,
             {.in_Dir = "C:\\log\\", .options = options, .yubin_mas = nullptr, .dat_line = {}});
    EXPECT_THAT(codes(), ElementsAre("/"));
}

TEST_F(YubinStage, NumberThatDoesNotBeginWithADigitEndsInTheErrorReport) {
    disk.put_folder("C:\\yubin");
    YubinMas yubin(stage, "C:\\yubin\\");
    for (const std::string_view number : {"", "TK12", "H1004"}) {
        put_contacts({contact_with("JA1ABC", number)});
        EXPECT_EQ(failure_of([&] {
                      bak_sep1(stage, {.in_Dir = "C:\\log\\",
                                       .options = options,
                                       .yubin_mas = &yubin,
                                       .dat_line = {}});
                  }),
                  53);
    }
    EXPECT_THAT(error_lines(),
                ElementsAre("エラー発生 ：　53", "エラー発生 ：　53", "エラー発生 ：　53"));
}

TEST_F(YubinStage, QthIsCutTo14BytesInFrontOfACharacterThatDoesNotFit) {
    struct Row {
        std::string_view qth;
        std::string_view expected;
    };
    for (const Row& row : std::vector<Row>{{"東京都千代田区", "東京都千代田区"},
                                           {"東京都千代田区a", "東京都千代田区"},
                                           {"a東京都千代田区", "a東京都千代田"},
                                           {"abcdefghijklmno", "abcdefghijklmn"},
                                           {"abcdefghijkl  m", "abcdefghijkl"}}) {
        master.numbers["1000001"] = {"10", std::string(row.qth)};
        run({contact_with("JA1ABC", "1000001")});
        EXPECT_EQ(coded_lines().at(0).at(coded_line::qth), row.expected);
    }
}

TEST_F(YubinStage, NumberIsPassedOnAsItCame) {
    run({contact_with("JA1ABC", " 1000001 ")});
    EXPECT_EQ(coded_lines().at(0).at(coded_line::number_received), " 1000001 ");
}

TEST_F(YubinStage, OperatorDoesNotSurvive) {
    run({sample, contact_with("W1AW", "5")});
    EXPECT_EQ(coded_lines().at(0).at(coded_line::op), "");
    EXPECT_EQ(coded_lines().at(1).at(coded_line::op), "");
    EXPECT_EQ(coded_lines().at(0).at(coded_line::memo), "memo=nice fist");
}

TEST_F(YubinStage, BytesOfADataFileLoadedBeforeStandInTheOperatorsPlace) {
    const std::string dat_line = std::string(67, 'x') + "  " + std::string(38, 'o') + "x";
    run({sample}, dat_line);
    EXPECT_EQ(coded_lines().at(0).at(coded_line::op), std::string(38, 'o'));
    run({sample}, std::string(67, 'x'));
    EXPECT_EQ(coded_lines().at(0).at(coded_line::op), "");
}

TEST_F(YubinStage, TraceNamesTheProcedureAndItsFiles) {
    run({sample});
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub bak_sep1()", "Open C:\\log\\zlog_1.txt For Input As #f_i",
                            "Open C:\\log\\zlog_2.txt For Output As #f_o", "prepared"));
}

// --- a contest data file ---

class DatStage : public CodeStageWithMaster {
  protected:
    DatStage() {
        options.Option04 = 1;
        put_dat({"1234", "1004", "TK", "W12", "12AB", "101"});
    }

    // A data file whose QTH tell their keys.
    void put_dat(const std::vector<std::string>& keys) {
        std::vector<std::string> lines{"heading"};
        for (const std::string& key : keys) {
            lines.push_back(line_of({{1, key}, {12, "Q" + key}}));
        }
        put_lines(disk, "C:\\zlog\\x.dat", lines);
    }

    void run(std::string_view Code_flag, const std::vector<LogLine>& contacts) {
        put_contacts(contacts);
        bak_sep2(stage, {.in_Dir = "C:\\log\\",
                         .options = options,
                         .dat_in_name = [] { return std::string("C:\\zlog\\x.dat"); },
                         .Code_flag = Code_flag,
                         .table = table});
    }

    // What a contact with this number gets.
    std::string found(std::string_view Code_flag, std::string_view number) {
        run(Code_flag, {contact_with("JA1ABC", number)});
        return codes().at(0);
    }

    DatTable table;
};

TEST_F(DatStage, CodeAndQthGoIntoTheLineAndAllElseIsAsWithoutAMaster) {
    run("31", {contact_with("JA1ABC/1", "101H")});
    EXPECT_THAT(
        coded_lines().at(0),
        ElementsAre("210801", "0218", "JA1ABC/1", "599", "589", "JA1ABC", "1", "7.012", "CW ", "",
                    "", "101", "Q101", "101H", "JA1ZZZ", "memo=nice fist", "JA1ABC/1"));
}

TEST_F(DatStage, Type3FindsTheDigitsAtTheHeadAndType1TheWholeNumber) {
    EXPECT_EQ(found("31", "1234H"), "1234/Q1234");
    EXPECT_EQ(found("11", "1234H"), "/");
    EXPECT_EQ(found("11", "1234"), "1234/Q1234");
}

TEST_F(DatStage, Type4SearchesTheLettersAtTheHead) {
    EXPECT_EQ(found("41", "TK12"), "TK/QTK");
}

TEST_F(DatStage, Type5LeavesTheNumberWhole) {
    EXPECT_EQ(found("51", "TK"), "TK/QTK");
    EXPECT_EQ(found("51", "TK1"), "/");
}

TEST_F(DatStage, Flag64SearchesByPrefix) {
    EXPECT_EQ(found("64", "W1234"), "W12/QW12");
    EXPECT_EQ(found("64", "TK12"), "TK/QTK");
}

TEST_F(DatStage, Flag71SearchesTheNumberAsItStands) {
    EXPECT_EQ(found("71", "12AB"), "12AB/Q12AB");
}

TEST_F(DatStage, NumbersThatDifferInCaseAreDifferent) {
    EXPECT_EQ(found("21", "tk"), "/");
    EXPECT_EQ(found("21", "TK"), "TK/QTK");
}

TEST_F(DatStage, NumberIsTrimmedForTheSearchAndPassedOnAsItCame) {
    EXPECT_EQ(found("11", " 1234 "), "1234/Q1234");
    EXPECT_EQ(coded_lines().at(0).at(coded_line::number_received), " 1234 ");
}

TEST_F(DatStage, NumberThatIsNotThereLeavesCodeAndQthEmpty) {
    run("11", {contact_with("JA1ABC", "1234"), contact_with("JA1ABC", "9999")});
    EXPECT_THAT(codes(), ElementsAre("1234/Q1234", "/"));
}

TEST_F(DatStage, ForeignStationInheritsFromTheContactBefore) {
    run("11", {contact_with("W1AW", "14"), contact_with("JA1ABC", "1234"),
               contact_with("W1AW", "14"), contact_with("KH2/JA1ABC", "1004"),
               contact_with("JA1ABC", "1004"), contact_with("W1AW", "14")});
    EXPECT_THAT(codes(), ElementsAre("/", "1234/Q1234", "1234/Q1234", "1234/Q1234", "1004/Q1004",
                                     "1004/Q1004"));
}

TEST_F(DatStage, ForeignStationWithAnEmptyNumberHasNothing) {
    run("11",
        {contact_with("JA1ABC", "1234"), contact_with("W1AW", ""), contact_with("W1AW", "14")});
    EXPECT_THAT(codes(), ElementsAre("1234/Q1234", "/", "/"));
}

TEST_F(DatStage, NumberThatIsEmptyBehindItsTransformationHasNothing) {
    put_dat({"", "1234"});  // an empty key is never searched
    run("31", {contact_with("JA1ABC", "1234H"), contact_with("W1AW", "H"),
               contact_with("JA1ABC", "H1234"), contact_with("JA1ABC", "")});
    EXPECT_THAT(codes(), ElementsAre("1234/Q1234", "/", "/", "/"));
}

TEST_F(DatStage, FlagWithoutASearchLeavesEveryContactWithoutCode) {
    for (const std::string_view flag : {"00", "10", "14", "52", "61", "62", "63", ""}) {
        EXPECT_EQ(found(flag, "1234"), "/") << flag;
    }
}

TEST_F(DatStage, NothingIsInheritedFromTheRunBefore) {
    run("11", {contact_with("JA1ABC", "1234")});
    run("11", {contact_with("W1AW", "14")});
    EXPECT_THAT(codes(), ElementsAre("/"));
}

TEST_F(DatStage, Option04WithoutCodeKeepsTheQth) {
    options.Option04 = 0;
    run("11", {contact_with("JA1ABC", "1234"), contact_with("W1AW", "14")});
    EXPECT_THAT(codes(), ElementsAre("/Q1234", "/Q1234"));
}

TEST_F(DatStage, KeysOf11BytesShareTheCodeOfTheirFirstSeven) {
    put_lines(disk, "C:\\zlog\\x.dat", {"heading", "12345678901first", "12345679999second"});
    run("71", {contact_with("JA1ABC", "12345678901"), contact_with("JA1ABC", "12345679999")});
    EXPECT_THAT(codes(), ElementsAre("1234567/first", "1234567/second"));
}

TEST_F(DatStage, TableIsLoadedAnewWhenTheFilesAreOpen) {
    run("11", {sample});
    put_dat({"1005"});
    EXPECT_EQ(found("11", "1234"), "/");
    trace.lines.clear();
    EXPECT_EQ(found("11", "1005"), "1005/Q1005");
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub bak_sep2()", "Open C:\\log\\zlog_1.txt For Input As #f_i",
                            "Open C:\\log\\zlog_2.txt For Output As #f_o",
                            "Open C:\\zlog\\x.dat For Input As #f_i"));
}

TEST_F(DatStage, FileOfMoreThan4500RowsFails) {
    put_dat(std::vector<std::string>(4501, "1234"));
    EXPECT_EQ(failure_of([this] { found("11", "1234"); }), 9);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub bak_sep2() ：　9"));
}

// --- all ---

TEST_F(CodeStageWithMaster, LogWithoutAContactReadsPastTheEndInEveryStage) {
    put_contacts({});
    put_lines(disk, "C:\\zlog\\x.dat", {"heading"});
    DatTable table;
    EXPECT_EQ(failure_of([this] {
                  bak_sep0(stage,
                           {.in_Dir = "C:\\log\\", .options = options, .hl_code_mas = master});
              }),
              62);
    EXPECT_EQ(
        failure_of([this] {
            bak_sep1(
                stage,
                {.in_Dir = "C:\\log\\", .options = options, .yubin_mas = &master, .dat_line = {}});
        }),
        62);
    EXPECT_EQ(failure_of([&] {
                  bak_sep2(stage, {.in_Dir = "C:\\log\\",
                                   .options = options,
                                   .dat_in_name = [] { return std::string("C:\\zlog\\x.dat"); },
                                   .Code_flag = "11",
                                   .table = table});
              }),
              62);
}

}  // namespace
}  // namespace veldrana
