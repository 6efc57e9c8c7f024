#include "app/last_pass.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "qsl/mark_substitution.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

using Fields = std::vector<std::string>;

const std::string rows_file = "C:\\log\\x_h0.csv";
const std::string intermediate_file = "C:\\log\\x_hj.csv";
const std::string result_file = "C:\\log\\x_hjn.csv";

std::string line_of(const Fields& fields) {
    std::string line;
    for (const std::string& field : fields) {
        line += (line.empty() ? "\"" : ",\"") + field + "\"";
    }
    return line + "\r\n";
}

struct Row {
    std::string call = "JA1ZZA";
    std::string portable = "";
    std::string time = "21:05J";
    std::string mode = "CW";
    std::string qsl = "J  ";
    std::string name = "Name";
    std::string rmks1 = "";
    std::string rmks2 = "";
    std::string column_16 = "JA1ZZA";
};

std::string line_of(const Row& row) {
    return line_of(Fields{row.call, row.portable, "25/04/26", row.time, "599", "589", "7", row.mode,
                          "1001", "#", row.qsl, row.name, "QTH", row.rmks1, row.rmks2,
                          row.column_16, "as logged"});
}

// Places in a row of the result and of the intermediate file, from 0.
constexpr std::size_t mode_of_result = 6;
constexpr std::size_t qsl_of_result = 9;
constexpr std::size_t rmks1_of_result = 12;
constexpr std::size_t rmks2_of_result = 13;
constexpr std::size_t zone_of_result = 14;
constexpr std::size_t mode_of_intermediate = 7;
constexpr std::size_t qsl_of_intermediate = 10;
constexpr std::size_t rmks1_of_intermediate = 13;
constexpr std::size_t rmks2_of_intermediate = 14;

class LastPass : public StageFixture {
  protected:
    std::size_t run(const std::vector<Row>& rows) {
        std::string bytes;
        for (const Row& row : rows) {
            bytes += line_of(row);
        }
        disk.put(rows_file, bytes);
        return write_results(stage, request);
    }

    // The only row of a file.
    Fields row_of(const std::string& path) {
        TextInput input(disk, path);
        const Fields row = split_quoted_fields(read_line(input));
        EXPECT_TRUE(input.at_end());
        return row;
    }

    std::string result(std::size_t column) { return row_of(result_file).at(column); }
    std::string intermediate(std::size_t column) { return row_of(intermediate_file).at(column); }

    int failure_number() {
        try {
            write_results(stage, request);
        } catch (const RunTimeError& error) {
            return error.number();
        }
        return 0;
    }

    LastPassRequest request{.rows_file = rows_file,
                            .intermediate_file = intermediate_file,
                            .result_file = result_file,
                            .No_QSL_moji = "N",
                            .txtQSL_S = "*"};
};

// --- the two row formats ---

TEST_F(LastPass, EachColumnGoesToItsPlace) {
    disk.put(rows_file,
             line_of(Fields{"JA1ZZA", "p2", "25/04/26", "21:05U", "s5", "r6", "f7", "M8", "c9",
                            "g10", "Q11", "n12", "q13", "ra", "rb", "call 16", "call 17"}));
    write_results(stage, request);
    EXPECT_EQ(disk.bytes(result_file),
              line_of(Fields{"call 17", "25/04/26", "21:05U", "s5", "r6", "f7", "M8", "c9", "g10",
                             "Q11", "n12", "q13", "ra", "rb", "8"}));
    EXPECT_EQ(disk.bytes(intermediate_file),
              line_of(Fields{"JA1ZZA", "p2", "25/04/26", "21:05U", "s5", "r6", "f7", "M8", "c9",
                             "g10", "Q11", "n12", "q13", "ra", "rb"}));
}

TEST_F(LastPass, KeepsTheOrderOfTheRows) {
    disk.put(rows_file, line_of(Row{.rmks1 = "one"}) + line_of(Row{.rmks1 = "two"}) +
                            line_of(Row{.rmks1 = "one"}));
    write_results(stage, request);
    Fields remarks;
    TextInput input(disk, result_file);
    for (std::string_view line; input.next_line(line);) {
        remarks.push_back(split_quoted_fields(line).at(rmks1_of_result));
    }
    EXPECT_THAT(remarks, ElementsAre("one", "two", "one"));
}

// --- mode, zone, QSL ---

struct ModeName {
    std::string mode;
    std::string long_name;
};

TEST_F(LastPass, ModeNames) {
    const std::vector<ModeName> rows{
        {"RTY", "RTTY"},  {"TTY", "RTTY"},    {"STV", "SSTV"}, {"SST", "SSTV"}, {"PSK", "PSK31"},
        {"PS3", "PSK31"}, {"RTTY", "RTTY"},   {"CW", "CW"},    {"SSB", "SSB"},  {"FM", "FM"},
        {"rty", "rty"},   {"PSK31", "PSK31"}, {"F", "F"},      {"", ""},
    };
    for (const ModeName& row : rows) {
        run({{.mode = row.mode}});
        EXPECT_EQ(result(mode_of_result), row.long_name) << row.mode;
        EXPECT_EQ(intermediate(mode_of_intermediate), row.long_name) << row.mode;
    }
}

struct ZoneFlag {
    std::string time;
    std::string flag;
};

TEST_F(LastPass, FlagOfTheZone) {
    const std::vector<ZoneFlag> rows{
        {"21:05U", "8"}, {"21:05J", "0"}, {"U21:05", "8"}, {"21:05u", "0"}, {"", "0"},
    };
    for (const ZoneFlag& row : rows) {
        run({{.time = row.time}});
        EXPECT_EQ(result(zone_of_result), row.flag) << row.time;
    }
}

struct QslRow {
    std::string No_QSL_moji;
    std::string txtQSL_S;
    std::string before;
    std::string after;
};

TEST_F(LastPass, NoCardLetterLosesTheSentMarkBehindIt) {
    const std::vector<QslRow> rows{
        {"N", "*", "N*R", "N R"}, {"N", "*", "N* ", "N  "}, {"N", "*", "J*R", "J*R"},
        {"N", "*", "N  ", "N  "}, {"N", "*", "NSR", "NSR"}, {"X", "*", "X*R", "X R"},
        {"X", "*", "N*R", "N*R"}, {"N", "S", "NSR", "N R"}, {"N", "*", "JN*", "JN "},
        {"N", " ", "N R", "N R"},  // no sent mark is one blank
        {"N", "N", "NN ", "N  "},
    };
    for (const QslRow& row : rows) {
        request.No_QSL_moji = row.No_QSL_moji;
        request.txtQSL_S = row.txtQSL_S;
        run({{.qsl = row.before}});
        EXPECT_EQ(result(qsl_of_result), row.after) << row.No_QSL_moji << row.before;
        EXPECT_EQ(intermediate(qsl_of_intermediate), row.after) << row.No_QSL_moji << row.before;
    }
}

TEST_F(LastPass, SentMarkOfARowWithoutACardOutlivesTheRewriteAndGoesHere) {
    const std::string other_file = "C:\\log\\x_c0.csv";
    disk.put(rows_file, line_of(Row{.qsl = "N*R"}));
    disk.put(other_file, line_of(Row{.qsl = "N*R"}));
    No_QSL_moji_ReWrite(stage, {.contest_file = other_file,
                                .hamlog_file = rows_file,
                                .in_Dir = "C:\\log\\",
                                .txtQSL_Q = "J",
                                .No_QSL_moji = "X"});
    ASSERT_EQ(row_of(rows_file).at(10), "X* ");
    request.No_QSL_moji = "X";
    write_results(stage, request);
    EXPECT_EQ(result(qsl_of_result), "X  ");
}

// --- remarks ---

struct RemarkRow {
    std::string shows;
    Row row;
    std::string intermediate_1;
    std::string intermediate_2;
    std::string result_1;
    std::string result_2;
};

TEST_F(LastPass, Remarks) {
    const std::vector<RemarkRow> rows{
        {"nothing to take out", {.rmks1 = "one", .rmks2 = "two"}, "one", "two", "one", "two"},
        {"own call goes from the result alone",
         {.rmks1 = "QSO JA1ZZA!", .rmks2 = "JA1ZZA"},
         "QSO JA1ZZA!",
         "JA1ZZA",
         "QSO !",
         ""},
        {"own call goes wherever it stands",
         {.rmks1 = "JA1ZZA JA1ZZA/1", .rmks2 = "xJA1ZZAy"},
         "JA1ZZA JA1ZZA/1",
         "xJA1ZZAy",
         " /1",
         "xy"},
        {"column 16 tells the call, not the first",
         {.rmks1 = "JA1ZZA", .rmks2 = "JA1ZZA/2", .column_16 = "JA1ZZA/2"},
         "JA1ZZA",
         "JA1ZZA/2",
         "JA1ZZA",
         ""},
        {"nor the last", {.rmks1 = "as logged"}, "as logged", "", "as logged", ""},
        {"case counts", {.rmks1 = "ja1zza"}, "ja1zza", "", "ja1zza", ""},
        {"no call in column 16", {.rmks1 = "one", .column_16 = ""}, "one", "", "one", ""},
        {"mark of a station abroad in Rmks 1",
         {.portable = "KH2", .rmks1 = "a$DXb$DX", .rmks2 = "two"},
         "ab",
         "two",
         "ab",
         "two"},
        {"in Rmks 2", {.rmks1 = "one", .rmks2 = "a$DXb"}, "one", "ab", "one", "ab"},
        {"in both", {.rmks1 = "$DX", .rmks2 = "$DX"}, "", "", "", ""},
        {"case of the mark counts", {.rmks1 = "$dx", .rmks2 = "$Dx"}, "$dx", "$Dx", "$dx", "$Dx"},
        // What comes together when the mark is taken out is taken out of Rmks 1 once more.
        {"mark around a mark", {.rmks1 = "$D$DXX", .rmks2 = "$D$DXX"}, "$DX", "$DX", "", "$DX"},
        {"mark around the call",
         {.rmks1 = "$DJA1ZZAX", .rmks2 = "$DJA1ZZAX"},
         "$DJA1ZZAX",
         "$DJA1ZZAX",
         "",
         "$DX"},
        {"call around a mark",
         {.rmks1 = "JA1$DXZZA", .rmks2 = "JA1$DXZZA"},
         "JA1ZZA",
         "JA1ZZA",
         "",
         ""},
    };
    for (const RemarkRow& row : rows) {
        run({row.row});
        EXPECT_EQ(intermediate(rmks1_of_intermediate), row.intermediate_1) << row.shows;
        EXPECT_EQ(intermediate(rmks2_of_intermediate), row.intermediate_2) << row.shows;
        EXPECT_EQ(result(rmks1_of_result), row.result_1) << row.shows;
        EXPECT_EQ(result(rmks2_of_result), row.result_2) << row.shows;
    }
}

TEST_F(LastPass, RemarkWithItsOwnCallLosesItInTheResultButNotInTheIntermediateFile) {
    run({{.rmks1 = "via JA1ZZA"}});
    EXPECT_EQ(result(rmks1_of_result), "via ");
    EXPECT_EQ(intermediate(rmks1_of_intermediate), "via JA1ZZA");
}

TEST_F(LastPass, MarkOfAStationAbroadNeverReachesRmks1OfTheResult) {
    for (const std::string remark : {"$DX", "a $DX b", "$DX$DX", "$D$DXX", "$JA1ZZADX"}) {
        run({{.rmks1 = remark}});
        EXPECT_EQ(result(rmks1_of_result).find("$DX"), std::string::npos) << remark;
    }
}

// Both remarks are cleared whichever holds the mark.
TEST_F(LastPass, MarkOfAStationAbroadGoesFromRmks2WhicheverRemarkHoldsIt) {
    run({{.rmks1 = "", .rmks2 = "x$DX"}});
    EXPECT_EQ(result(rmks2_of_result), "x");
    run({{.rmks1 = "$DX", .rmks2 = "x$DX"}});
    EXPECT_EQ(result(rmks2_of_result), "x");
    // Nobody took that branch: what only now becomes the mark stays.
    run({{.rmks1 = "", .rmks2 = "x$JA1ZZADX"}});
    EXPECT_EQ(result(rmks2_of_result), "x$DX");
}

TEST_F(LastPass, WhatIsTakenFromOneRowDoesNotShowInTheNext) {
    disk.put(rows_file, line_of(Row{.rmks1 = "$DX JA1ZZA long", .rmks2 = "$DX"}) +
                            line_of(Row{.rmks1 = "JA1ZZA", .rmks2 = "two"}));
    write_results(stage, request);
    TextInput input(disk, result_file);
    const Fields first = split_quoted_fields(read_line(input));
    const Fields second = split_quoted_fields(read_line(input));
    EXPECT_EQ(first.at(rmks1_of_result), "  long");
    EXPECT_EQ(second.at(rmks1_of_result), "");
    EXPECT_EQ(second.at(rmks2_of_result), "two");
}

// The call put together with its portable part goes nowhere.
TEST_F(LastPass, FirstColumnsStayAsTheyAreWithAndWithoutTheMarkOfAStationAbroad) {
    for (const std::string remark : {"", "$DX"}) {
        run({{.portable = "KH2", .rmks1 = remark}});
        EXPECT_EQ(result(0), "as logged");
        EXPECT_EQ(intermediate(0), "JA1ZZA");
        EXPECT_EQ(intermediate(1), "KH2");
    }
}

// --- names, failures ---

TEST_F(LastPass, CountsTheRowsWithANameThatIsNotBlank) {
    EXPECT_EQ(run({{.name = "Name"}, {.name = ""}, {.name = "   "}, {.name = " x "}}), 2U);
    EXPECT_EQ(run({{.name = " "}}), 0U);
}

TEST_F(LastPass, FileWithoutARowFailsAtTheFirstRead) {
    disk.put(rows_file, "");
    EXPECT_EQ(failure_number(), 62);
}

TEST_F(LastPass, MissingRowsFailBeforeAnEarlierResultIsTouched) {
    disk.put(result_file, "of an earlier run");
    EXPECT_EQ(failure_number(), 53);
    EXPECT_EQ(disk.bytes(result_file), "of an earlier run");
}

TEST_F(LastPass, ReplacesAnEarlierResult) {
    disk.put(result_file, "of an earlier run\r\n");
    disk.put(intermediate_file, "of an earlier run\r\n");
    run({{}});
    EXPECT_EQ(row_of(result_file).size(), 15U);
    EXPECT_EQ(row_of(intermediate_file).size(), 15U);
}

TEST_F(LastPass, TracesTheFilesItOpens) {
    run({{}});
    EXPECT_THAT(trace.lines,
                testing::UnorderedElementsAre("Open C:\\log\\x_h0.csv For Input As #f_i",
                                              "Open C:\\log\\x_hjn.csv For Output As #f_o",
                                              "Open C:\\log\\x_hj.csv For Output As #f_o"));
}

}  // namespace
}  // namespace veldrana
