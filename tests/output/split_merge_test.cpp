#include "output/split_merge.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "output/output_orders.h"
#include "tests/doubles/collected_trace.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scripted_person.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Fields = std::vector<std::string>;

const std::string sentinel_line =
    "AAAAAA,,566A,,28,CW,,J, , ,001211,0218U,599,599,Taiwan,,,AAAAA,AAAAA\r\n";

std::string line_of(const Fields& fields) {
    std::string line;
    for (const std::string& field : fields) {
        line += (line.empty() ? "\"" : ",\"") + field + "\"";
    }
    return line + "\r\n";
}

struct Contact {
    std::string call;
    std::string portable = "";
    std::string gl = "";
    std::string frequency = "7";
    std::string mode = "CW";
    std::string date = "250426";
    std::string time = "2105U";
    std::string tag = "";  // stands in a column that no key holds
};

std::string contest_line(const Contact& contact) {
    return line_of({contact.call, contact.portable, "1001", contact.gl, contact.frequency,
                    contact.mode, "Name", "J", "", "", contact.date, contact.time, "599", "589",
                    "QTH", "R1", contact.tag, "C1", "C2"});
}

// Columns of a row of _c0.csv.
constexpr std::size_t call_column = 0;
constexpr std::size_t frequency_column = 6;
constexpr std::size_t gl_column = 9;
constexpr std::size_t tag_column = 14;

// Fails at the first sort: what was written before it stays as it stands.
class FailingSorter : public SortService {
  public:
    int ksort(const std::string& /*command*/, std::string& /*buffer*/) override {
        throw RunTimeError(Failure::device_error);
    }
};

// Keeps the commands and sorts.
class RecordingSorter : public SortService {
  public:
    explicit RecordingSorter(Disk& disk) : sorter_(disk) {}
    int ksort(const std::string& command, std::string& buffer) override {
        commands.push_back(command);
        return sorter_.ksort(command, buffer);
    }

    Fields commands;

  private:
    StableSort sorter_;
};

class SplitMerge : public testing::Test {
  protected:
    SplitMerge() { memory.put_folder("C:\\log"); }

    // Rows as the sort by call leaves them.
    void put_sorted(const std::vector<Contact>& contacts) {
        std::string bytes;
        for (const Contact& contact : contacts) {
            bytes += contest_line(contact);
        }
        memory.put("C:\\Sort-out.dat", bytes);
    }

    SplitCounts run_with(SortService& service) {
        return temp_sep({disk, trace.log, service, person, lblCFG, bar}, request);
    }

    SplitCounts run(const std::vector<Contact>& contacts) {
        put_sorted(contacts);
        return run_with(sorter);
    }

    // The two group files as the split leaves them.
    void split_alone(const std::vector<Contact>& contacts) {
        put_sorted(contacts);
        FailingSorter failing;
        options.Option05 = 0;  // sorts both groups: neither is read before
        EXPECT_THROW(run_with(failing), RunTimeError);
    }

    int failure_number(SortService& service) {
        try {
            run_with(service);
        } catch (const RunTimeError& error) {
            return error.number();
        }
        return 0;
    }

    std::vector<Fields> rows_of(const std::string& path) {
        std::vector<Fields> rows;
        TextInput input(memory, path);
        for (std::string_view line; input.next_line(line);) {
            rows.push_back(split_quoted_fields(line));
        }
        return rows;
    }

    Fields column_of(const std::string& path, std::size_t column) {
        Fields texts;
        for (const Fields& row : rows_of(path)) {
            texts.push_back(row.at(column));
        }
        return texts;
    }

    Fields result(std::size_t column) { return column_of("C:\\log\\x_c0.csv", column); }

    Fields error_lines() {
        Fields lines;
        std::copy_if(trace.lines.begin(), trace.lines.end(), std::back_inserter(lines),
                     [](const std::string& line) { return line.starts_with("エラー発生"); });
        return lines;
    }

    Form form;
    Label lblCFG{form, "lblCFG"};
    ProgressBar bar{form, "ProgressBar1"};
    MemoryDisk memory;
    FailingDisk disk{memory};
    CollectedTrace trace;
    RecordingSorter sorter{disk};
    ScriptedPerson person;
    RunOptions options;
    const OutputNames names = make_output_names("C:\\log\\x.all");
    const OutputRequest request{
        .drive_path = "C:\\", .in_Dir = "C:\\log\\", .names = names, .options = options};
};

// --- the split ---

struct Groups {
    std::string shows;
    Fields calls;
    Fields singles;
    Fields multiples;
};

TEST_F(SplitMerge, TellsStationsWorkedOnceFromThoseWorkedMoreOften) {
    const std::string end = "AAAAAA";
    const std::vector<Groups> rows{
        {"one contact", {"A"}, {"A", end}, {end}},
        {"one station twice", {"A", "A"}, {end}, {"A", "A", end}},
        {"one station three times", {"A", "A", "A"}, {end}, {"A", "A", "A", end}},
        {"singles alone", {"A", "B", "C"}, {"A", "B", "C", end}, {end}},
        {"single between", {"A", "A", "B", "C", "C"}, {"B", end}, {"A", "A", "C", "C", end}},
        {"single at the end", {"A", "A", "B"}, {"B", end}, {"A", "A", end}},
        {"multiple at the end", {"A", "B", "B"}, {"A", end}, {"B", "B", end}},
        {"two multiples side by side", {"A", "A", "B", "B"}, {end}, {"A", "A", "B", "B", end}},
        {"longer call with the same start", {"A", "AB", "AB"}, {"A", end}, {"AB", "AB", end}},
    };
    for (const Groups& row : rows) {
        std::vector<Contact> contacts;
        for (const std::string& call : row.calls) {
            contacts.push_back({.call = call});
        }
        split_alone(contacts);
        EXPECT_EQ(column_of("C:\\temp_s.csv", 0), row.singles) << row.shows;
        EXPECT_EQ(column_of("C:\\temp_d.csv", 0), row.multiples) << row.shows;
    }
}

TEST_F(SplitMerge, CountsLinesMultiplesAndSingles) {
    const SplitCounts counts =
        run({{.call = "A"}, {.call = "B"}, {.call = "B"}, {.call = "B"}, {.call = "C"}});
    EXPECT_EQ(counts.lines, 5U);
    EXPECT_EQ(counts.multiples, 3U);
    EXPECT_EQ(counts.singles, 2U);
}

TEST_F(SplitMerge, LogWithOneContact) {
    split_alone({{.call = "JA1ZZA"}});
    EXPECT_EQ(memory.bytes("C:\\temp_s.csv"), contest_line({.call = "JA1ZZA"}) + sentinel_line);
    EXPECT_EQ(memory.bytes("C:\\temp_d.csv"), sentinel_line);
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        run({{.call = "JA1ZZA"}});
        EXPECT_THAT(result(call_column), ElementsAre("JA1ZZA")) << Option05;
    }
}

TEST_F(SplitMerge, LogInWhichEveryStationIsWorkedTwice) {
    const std::vector<Contact> contacts{
        {.call = "JA1ZZA"}, {.call = "JA1ZZA"}, {.call = "JA2ZZA"}, {.call = "JA2ZZA"}};
    split_alone(contacts);
    EXPECT_EQ(memory.bytes("C:\\temp_s.csv"), sentinel_line);
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        run(contacts);
        EXPECT_THAT(result(call_column), ElementsAre("JA1ZZA", "JA1ZZA", "JA2ZZA", "JA2ZZA"))
            << Option05;
    }
}

TEST_F(SplitMerge, LogWithNoContactFailsAtTheFirstRead) {
    memory.put("C:\\Sort-out.dat", "");
    EXPECT_EQ(failure_number(sorter), 62);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 Private Sub temp_sep()：　62"));
    EXPECT_FALSE(memory.file_exists("C:\\log\\x_c0.csv"));
}

TEST_F(SplitMerge, CopiesTheLinesAsTheyStand) {
    const std::string multiples = "\"A\",one\r\n\"A\", two \"\"\r\n";
    const std::string single = "\"B\",  no quotes , \"\" \r\n";
    // Fields of no row: nothing behind the split can read them.
    memory.put("C:\\Sort-out.dat", multiples + single);
    EXPECT_NE(failure_number(sorter), 0);
    EXPECT_EQ(memory.bytes("C:\\temp_d.csv"), multiples + sentinel_line);
    EXPECT_EQ(memory.bytes("C:\\temp_s.csv"), single + sentinel_line);
}

// The sort before looks at seven bytes of the call.
TEST_F(SplitMerge, StationWithAnotherLongCallBetweenCountsAsTwoSingles) {
    const SplitCounts counts =
        run({{.call = "8N1ZZZZA"}, {.call = "8N1ZZZZB"}, {.call = "8N1ZZZZA"}});
    EXPECT_EQ(counts.singles, 3U);
    EXPECT_EQ(counts.multiples, 0U);
}

TEST_F(SplitMerge, CallsThatDifferBehindTheSeventhByteAreDifferentGroups) {
    split_alone({{.call = "8N1ZZZZA"}, {.call = "8N1ZZZZB"}, {.call = "8N1ZZZZB"}});
    EXPECT_THAT(column_of("C:\\temp_s.csv", 0), ElementsAre("8N1ZZZZA", "AAAAAA"));
    EXPECT_THAT(column_of("C:\\temp_d.csv", 0), ElementsAre("8N1ZZZZB", "8N1ZZZZB", "AAAAAA"));
}

// The first column holds no portable part.
TEST_F(SplitMerge, PortableFormsOfOneCallAreOneGroup) {
    split_alone({{.call = "JA1ZZA", .portable = "1"}, {.call = "JA1ZZA", .portable = "2"}});
    EXPECT_THAT(column_of("C:\\temp_d.csv", 1), ElementsAre("1", "2", ""));
    EXPECT_EQ(memory.bytes("C:\\temp_s.csv"), sentinel_line);
}

// --- the sentinel ---

TEST_F(SplitMerge, SentinelNeverReachesTheResult) {
    // By their call some sort in front of it, some behind.
    const std::vector<Contact> contacts{{.call = "8J1ZZA"}, {.call = "9A1ZZ"},  {.call = "9A1ZZ"},
                                        {.call = "AA1ZZ"},  {.call = "JA1ZZA"}, {.call = "JA1ZZA"}};
    for (const int Option05 : {0, 1}) {
        for (const int Option09 : {0, 1, 2}) {
            options.Option05 = Option05;
            options.Option09 = Option09;
            run(contacts);
            Fields calls = result(call_column);
            std::sort(calls.begin(), calls.end());
            EXPECT_THAT(calls, ElementsAre("8J1ZZA", "9A1ZZ", "9A1ZZ", "AA1ZZ", "JA1ZZA", "JA1ZZA"))
                << Option05 << Option09;
        }
    }
}

TEST_F(SplitMerge, ContactWithTheSentinelsCallIsCountedAndDropped) {
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        const SplitCounts counts =
            run({{.call = "AAAAAA"}, {.call = "AAAAAAA"}, {.call = "JA1ZZA"}});
        EXPECT_EQ(counts.singles, 3U) << Option05;
        EXPECT_THAT(result(call_column), ElementsAre("AAAAAAA", "JA1ZZA")) << Option05;
    }
}

// --- G/L ---

struct GlRow {
    int Option05;
    bool Check21;
    bool Check14;
    std::string single;
    std::string multiple;
};

TEST_F(SplitMerge, GlOfSinglesAndMultiples) {
    const std::vector<GlRow> rows{
        {0, false, false, "s", "m"}, {0, false, true, "s", "m"},  // apart, nothing is blanked
        {0, true, false, "#", "m"},  {0, true, true, "#", "m"},   //
        {1, false, false, "s", "m"}, {1, false, true, "", "m"},   //
        {1, true, false, "#", "m"},  {1, true, true, "#", "m"},
    };
    for (const GlRow& row : rows) {
        options.Option05 = row.Option05;
        options.Check21 = row.Check21;
        options.Check14 = row.Check14;
        run({{.call = "JA1ZZA", .gl = "s"},
             {.call = "JA2ZZA", .gl = "m"},
             {.call = "JA2ZZA", .gl = "m"}});
        EXPECT_THAT(result(gl_column), ElementsAre(row.single, row.multiple, row.multiple))
            << row.Option05 << row.Check21 << row.Check14;
    }
}

// --- the result ---

// A row with another text in each column.
const Fields contest_fields{"JA1ZZA", "p2",   "c3",   "g4",     "5",     "M6",  "n7",
                            "Q",      "s9",   "r10",  "250426", "2105J", "t13", "v14",
                            "q15",    "ra16", "rb17", "x18",    "y19"};
const Fields hamlog_fields{"JA1ZZA", "p2",  "25/04/26", "21:05J", "t13",  "v14",  "5",   "M6", "c3",
                           "g4",     "Q  ", "n7",       "q15",    "ra16", "rb17", "x18", "y19"};

TEST_F(SplitMerge, EachColumnGoesToItsPlace) {
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        memory.put("C:\\Sort-out.dat", line_of(contest_fields));
        run_with(sorter);
        EXPECT_THAT(rows_of("C:\\log\\x_c0.csv"), ElementsAre(hamlog_fields)) << "a single";
        memory.put("C:\\Sort-out.dat", line_of(contest_fields) + line_of(contest_fields));
        run_with(sorter);
        EXPECT_THAT(rows_of("C:\\log\\x_c0.csv"), ElementsAre(hamlog_fields, hamlog_fields))
            << "a multiple";
    }
}

TEST_F(SplitMerge, ResultIsQuotedThroughoutWithWindowsLineEnds) {
    memory.put("C:\\Sort-out.dat", line_of(contest_fields));
    run_with(sorter);
    EXPECT_EQ(memory.bytes("C:\\log\\x_c0.csv"), line_of(hamlog_fields));
}

TEST_F(SplitMerge, SideListHoldsSixColumnsOfEachSingle) {
    options.Option05 = 0;
    memory.put("C:\\Sort-out.dat", line_of(contest_fields));
    run_with(sorter);
    EXPECT_EQ(memory.bytes("C:\\new_qsl_contest.csv"),
              line_of({"JA1ZZA", "p2", "25/04/26", "21:05J", "Q", "x18"}));
}

TEST_F(SplitMerge, LineOfTheSideListForAMultipleHasNineteenColumns) {
    options.Option05 = 0;
    run({{.call = "JA1ZZA"}, {.call = "JA1ZZA"}});
    const std::vector<Fields> rows = rows_of("C:\\new_qsl_contest.csv");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].size(), 19U);
    EXPECT_EQ(rows[1].size(), 19U);
}

TEST_F(SplitMerge, ApartTheSinglesOfTheWholeLogComeFirstEachBlockInKeyOrder) {
    options.Option05 = 0;
    run({{.call = "JA3ZZA"},
         {.call = "JA3ZZA"},
         {.call = "JA1ZZA"},
         {.call = "JA1ZZA"},
         {.call = "JA4ZZA"},
         {.call = "JA2ZZA"}});
    EXPECT_THAT(result(call_column),
                ElementsAre("JA2ZZA", "JA4ZZA", "JA1ZZA", "JA1ZZA", "JA3ZZA", "JA3ZZA"));
}

TEST_F(SplitMerge, TogetherSinglesAndMultiplesStandInOneKeyOrder) {
    options.Option05 = 1;
    run({{.call = "JA3ZZA"},
         {.call = "JA3ZZA"},
         {.call = "JA1ZZA"},
         {.call = "JA1ZZA"},
         {.call = "JA4ZZA"},
         {.call = "JA2ZZA"}});
    EXPECT_THAT(result(call_column),
                ElementsAre("JA1ZZA", "JA1ZZA", "JA2ZZA", "JA3ZZA", "JA3ZZA", "JA4ZZA"));
}

// Behind seven bytes alike a multiple has a blank of its call's width, a single a zero.
TEST_F(SplitMerge, WithSevenBytesAlikeTheMultipleStandsInFrontOfTheSingle) {
    options.Option05 = 1;
    run({{.call = "8N1ZZZZA", .tag = "single"},
         {.call = "8N1ZZZZ", .tag = "one"},
         {.call = "8N1ZZZZ", .tag = "two"}});
    EXPECT_THAT(result(tag_column), ElementsAre("one", "two", "single"));
}

TEST_F(SplitMerge, ContactsOfAStationStandByBandAndMonthOrByTime) {
    const std::vector<Contact> contacts{
        {.call = "JA1ZZA", .frequency = "14", .date = "250401", .tag = "14 April"},
        {.call = "JA1ZZA", .frequency = "7", .date = "250501", .tag = "7 May"},
        {.call = "JA1ZZA", .frequency = "7", .mode = "SSB", .date = "250301", .tag = "7 SSB"},
        {.call = "JA1ZZA", .frequency = "7", .date = "250402", .tag = "7 April"}};
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        options.Option06 = 0;
        run(contacts);
        EXPECT_THAT(result(tag_column), ElementsAre("7 April", "7 May", "7 SSB", "14 April"))
            << Option05;
        options.Option06 = 1;
        run(contacts);
        EXPECT_THAT(result(tag_column), ElementsAre("7 SSB", "14 April", "7 April", "7 May"))
            << Option05;
    }
}

TEST_F(SplitMerge, WithinAMonthTheContactsOfAStationKeepTheirOrder) {
    options.Option06 = 0;
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        run({{.call = "JA1ZZA", .date = "250430", .tag = "first"},
             {.call = "JA1ZZA", .date = "250401", .tag = "second"}});
        EXPECT_THAT(result(tag_column), ElementsAre("first", "second")) << Option05;
    }
}

TEST_F(SplitMerge, WithinAMinuteTheContactsOfAStationKeepTheirOrder) {
    options.Option06 = 1;
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        run({{.call = "JA1ZZA", .frequency = "430"}, {.call = "JA1ZZA", .frequency = "7"}});
        EXPECT_THAT(result(frequency_column), ElementsAre("430", "7")) << Option05;
    }
}

// The key of a multiple without the point is "3", so neither is in front of the other.
TEST_F(SplitMerge, FrequencyBehindThePointCountsOnlyWithTheMemo) {
    const std::vector<Contact> contacts{{.call = "JA1ZZA", .frequency = "3.56"},
                                        {.call = "JA1ZZA", .frequency = "3.51"}};
    options.Check01 = false;
    run(contacts);
    EXPECT_THAT(result(frequency_column), ElementsAre("3.56", "3.51"));
    options.Check01 = true;
    run(contacts);
    EXPECT_THAT(result(frequency_column), ElementsAre("3.51", "3.56"));
}

TEST_F(SplitMerge, ModeOfOneLetterMovesTheDateOnePlace) {
    options.Option06 = 0;
    // So the first digit of the day comes into the window: "F 25042" against "F 25041".
    run({{.call = "JA1ZZA", .mode = "F", .date = "250426", .tag = "26th"},
         {.call = "JA1ZZA", .mode = "F", .date = "250419", .tag = "19th"},
         {.call = "JA1ZZA", .mode = "F", .date = "250411", .tag = "11th"}});
    EXPECT_THAT(result(tag_column), ElementsAre("19th", "11th", "26th"));
}

TEST_F(SplitMerge, ThirdLetterOfTheModeIsTheLastThatCounts) {
    options.Option06 = 0;
    run({{.call = "JA1ZZA", .mode = "RTTY", .date = "250501", .tag = "May"},
         {.call = "JA1ZZA", .mode = "RTTA", .date = "250601", .tag = "June"},
         {.call = "JA1ZZA", .mode = "RTTZ", .date = "250401", .tag = "April"}});
    EXPECT_THAT(result(tag_column), ElementsAre("April", "May", "June"));
}

// --- the JARL order ---

const std::vector<Contact> mixed_log{{.call = "7N3ZZA"},
                                     {.call = "JA0ZZA"},
                                     {.call = "JA1ZZA"},
                                     {.call = "JA9ZZA", .tag = "1"},
                                     {.call = "JA9ZZA", .tag = "2"}};

TEST_F(SplitMerge, TogetherTheJarlOrderIsThatOfItsKeys) {
    options.Option05 = 1;
    options.Option09 = 1;
    run(mixed_log);
    EXPECT_THAT(result(call_column), ElementsAre("7N3ZZA", "JA1ZZA", "JA9ZZA", "JA9ZZA", "JA0ZZA"));
    options.Option09 = 2;
    run(mixed_log);
    EXPECT_THAT(result(call_column), ElementsAre("JA0ZZA", "JA9ZZA", "JA9ZZA", "JA1ZZA", "7N3ZZA"));
    EXPECT_THAT(result(tag_column), ElementsAre("", "1", "2", "", ""))
        << "the contacts of a station are not reversed";
}

// Both files of one run; the log had the calls in this order.
class BothFiles : public SplitMerge {
  protected:
    void run_both() {
        std::string contest;
        std::string hamlog;
        for (const std::string call : {"JA9ZZA", "JA0ZZA", "JA1ZZA", "JA9ZZA"}) {
            contest += contest_line({.call = call});
            hamlog += line_of({call, "", "25/04/26", "21:05U", "", "", "7", "CW", "", "", "J  ", "",
                               "", "", "", call, call});
        }
        memory.put("C:\\temp_h_o.csv", contest);
        memory.put("C:\\temp_h_n.csv", hamlog);
        order_hamlog_file({disk, trace.log, sorter, person, lblCFG, bar}, request);
        run({{.call = "JA0ZZA"}, {.call = "JA1ZZA"}, {.call = "JA9ZZA"}, {.call = "JA9ZZA"}});
    }

    Fields hamlog_calls() { return column_of("C:\\log\\x_h0.csv", call_column); }
};

TEST_F(BothFiles, ChosenOrderForTheContestFileOnlyLeavesTheOtherInLogOrder) {
    options.Check08 = true;
    options.Option05 = 1;
    options.Option09 = 1;
    run_both();
    EXPECT_THAT(hamlog_calls(), ElementsAre("JA9ZZA", "JA0ZZA", "JA1ZZA", "JA9ZZA"));
    EXPECT_THAT(result(call_column), ElementsAre("JA1ZZA", "JA9ZZA", "JA9ZZA", "JA0ZZA"));
}

TEST_F(BothFiles, ApartNeitherFileIsInJarlOrder) {
    options.Option05 = 0;
    options.Option09 = 1;
    run_both();
    EXPECT_THAT(hamlog_calls(), ElementsAre("JA9ZZA", "JA0ZZA", "JA1ZZA", "JA9ZZA"));
    EXPECT_THAT(result(call_column), ElementsAre("JA0ZZA", "JA1ZZA", "JA9ZZA", "JA9ZZA"));
}

// --- commands, trace, screen ---

struct Commands {
    int Option05;
    int Option09;
    Fields texts;
};

TEST_F(SplitMerge, SortCommands) {
    const std::string singles = "/k(2:30)  'C:\\semp_s.csv'  'C:\\temp_s.csv'";
    const std::string multiples = "/k(2:30)  'C:\\semp_d.csv'  'C:\\temp_d.csv'";
    const std::vector<Commands> rows{
        {0, 0, {singles, multiples}},
        {0, 1, {singles, multiples}},
        {0, 2, {singles, multiples}},
        {1, 0, {singles}},
        {1, 1, {singles, "/k(2:8)  'C:\\temp_sj.csv'  'C:\\temp_s.csv'"}},
        {1, 2, {singles, "/k(2:8) /r  'C:\\temp_sj.csv'  'C:\\temp_s.csv'"}},
    };
    for (const Commands& row : rows) {
        options.Option05 = row.Option05;
        options.Option09 = row.Option09;
        sorter.commands.clear();
        run({{.call = "JA1ZZA"}});
        EXPECT_EQ(sorter.commands, row.texts) << row.Option05 << row.Option09;
    }
}

TEST_F(SplitMerge, KeyedFilesHoldTheKeyOfTheirWidthInFront) {
    options.Option05 = 0;
    run({{.call = "JA1ZZA"}, {.call = "JA2ZZA"}, {.call = "JA2ZZA"}});
    EXPECT_THAT(column_of("C:\\semp_s.csv", 0),
                ElementsAre("JA1ZZA 000000007CW 2504262105U", "AAAAAA 000000028CW 0012110218U"));
    EXPECT_THAT(column_of("C:\\semp_d.csv", 0),
                ElementsAre("JA2ZZA        000000007CW 2504262105U",
                            "JA2ZZA        000000007CW 2504262105U",
                            "AAAAAA        000000028CW 0012110218U"));
    EXPECT_EQ(rows_of("C:\\semp_s.csv").at(0).size(), 20U);

    options.Option05 = 1;
    run({{.call = "JA1ZZA"}, {.call = "JA2ZZA"}, {.call = "JA2ZZA"}});
    EXPECT_THAT(column_of("C:\\semp_s.csv", 0),
                ElementsAre("JA1ZZA 000000007CW 2504262105U",         //
                            "AAAAAA 000000028CW 0012110218U",         //
                            "JA2ZZA        000000007CW 2504262105U",  //
                            "JA2ZZA        000000007CW 2504262105U",
                            "AAAAAA        000000028CW 0012110218U"));
}

TEST_F(SplitMerge, KeyedSentinelIsQuotedLikeAnyRow) {
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        run({{.call = "JA1ZZA"}});
        EXPECT_THAT(memory.bytes("C:\\semp_s.csv"),
                    HasSubstr("\r\n" + line_of({"AAAAAA 000000028CW 0012110218U",
                                                "AAAAAA",
                                                "",
                                                "566A",
                                                "",
                                                "28",
                                                "CW",
                                                "",
                                                "J",
                                                "",
                                                "",
                                                "001211",
                                                "0218U",
                                                "599",
                                                "599",
                                                "Taiwan",
                                                "",
                                                "",
                                                "AAAAA",
                                                "AAAAA"})))
            << Option05;
    }
}

// A line that was put together by hand: fields without quotes, blanks between.
TEST_F(SplitMerge, RowsOfAnotherFormAreWrittenInTheirOwn) {
    memory.put("C:\\Sort-out.dat",
               "JA1ZZA, p2 ,c3,\"g4\",5, M6,n7,Q,,,250426,2105J,t13,v14,q15,ra16,rb17,x18,y19\r\n");
    for (const int Option05 : {0, 1}) {
        for (const int Option09 : {0, 1, 2}) {
            options.Option05 = Option05;
            options.Option09 = Option09;
            run_with(sorter);
            EXPECT_EQ(memory.bytes("C:\\log\\x_c0.csv"), line_of(hamlog_fields))
                << Option05 << Option09;
        }
    }
}

struct Told {
    int Option05;
    std::string caption;
    Fields procedures;
};

TEST_F(SplitMerge, TellsTheStatusLabelAndTracesItsProcedures) {
    const std::vector<Told> rows{
        {0,
         "　　sort_wakeru_c 処理中．．．",
         {"Private Sub temp_sep()", "Private Sub sort_wakeru_c_1()", "Private Sub temp_marge()"}},
        {1,
         "　　sort_wakenai_c 処理中．．．",
         {"Private Sub temp_sep()", "Private Sub sort_wakenai_c_1()", "Private Sub jarl_sort_a()"}},
    };
    options.Option09 = 1;
    for (const Told& row : rows) {
        options.Option05 = row.Option05;
        trace.lines.clear();
        run({{.call = "JA1ZZA"}});
        EXPECT_EQ(lblCFG.caption.get(), row.caption);
        Fields procedures;
        std::copy_if(trace.lines.begin(), trace.lines.end(), std::back_inserter(procedures),
                     [](const std::string& line) { return line.starts_with("Private Sub "); });
        EXPECT_EQ(procedures, row.procedures);
    }
}

TEST_F(SplitMerge, TracesTheCountAndTheOpeningOfTheInput) {
    run({{.call = "JA1ZZA"}});
    EXPECT_THAT(trace.lines, Contains("count_file_rec C:\\Sort-out.dat"));
    EXPECT_THAT(trace.lines, Contains("Open C:\\Sort-out.dat For Input As #f_i"));
}

TEST_F(SplitMerge, ClearsTheProgressBarAtTheEnd) {
    for (const int Option05 : {0, 1}) {
        options.Option05 = Option05;
        std::size_t furthest = 0;
        bar.listener = [&] { furthest = std::max(furthest, bar.value.get()); };
        run({{.call = "JA1ZZA"}, {.call = "JA2ZZA"}, {.call = "JA3ZZA"}});
        // Three singles and a sentinel; together, a second sentinel with them.
        EXPECT_EQ(furthest, Option05 == 0 ? 4U : 5U);
        EXPECT_EQ(bar.value.get(), 0U);
        bar.listener = nullptr;
    }
}

// --- failures ---

TEST_F(SplitMerge, MissingInputIsTempSepsFailure) {
    EXPECT_EQ(failure_number(sorter), 53);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 Private Sub temp_sep()：　53"));
}

TEST_F(SplitMerge, GroupFileThatCannotBeWrittenIsTempSepsFailure) {
    put_sorted({{.call = "JA1ZZA"}});
    disk.fail_writing("temp_d.csv", Failure::permission_denied);
    EXPECT_EQ(failure_number(sorter), 70);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 Private Sub temp_sep()：　70"));
}

struct FailureLine {
    int Option05;
    int Option09;
    std::string unwritable;
    std::string line;
};

// Each has blanks of its own; only the procedure that failed writes.
TEST_F(SplitMerge, ErrorLines) {
    const std::vector<FailureLine> rows{
        {0, 0, "semp_s.csv", "エラー発生 Private Sub sort_wakeru_c() ：　61"},
        {0, 0, "semp_d.csv", "エラー発生 Private Sub sort_wakeru_c() ：　61"},
        {0, 0, "new_qsl_contest.csv", "エラー発生  Private Sub temp_marge() ：　61"},
        {0, 0, "x_c0.csv", "エラー発生  Private Sub temp_marge() ：　61"},
        {1, 0, "semp_s.csv", "エラー発生  Private Sub sort_wakenai_c()：　61"},
        {1, 0, "x_c0.csv", "エラー発生  Private Sub sort_wakenai_c()：　61"},
        {1, 1, "temp_sj.csv", "エラー発生  Private Sub jarl_sort_a() ：　61"},
        {1, 2, "temp_sj.csv", "エラー発生  Private Sub jarl_sort_r() ：　61"},
    };
    put_sorted({{.call = "JA1ZZA"}});
    for (const FailureLine& row : rows) {
        FailingDisk full(memory);
        full.fail_writing(row.unwritable, Failure::disk_full);
        StableSort stable(memory);
        options.Option05 = row.Option05;
        options.Option09 = row.Option09;
        trace.lines.clear();
        EXPECT_THROW(temp_sep({full, trace.log, stable, person, lblCFG, bar}, request),
                     RunTimeError);
        EXPECT_THAT(error_lines(), ElementsAre(row.line)) << row.unwritable;
    }
}

TEST_F(SplitMerge, FailureOfTheSortIsThatOfTheProcedureThatAskedForIt) {
    FailingSorter failing;
    put_sorted({{.call = "JA1ZZA"}});
    options.Option05 = 0;
    EXPECT_EQ(failure_number(failing), 57);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 Private Sub sort_wakeru_c() ：　57"));
    trace.lines.clear();
    options.Option05 = 1;
    EXPECT_EQ(failure_number(failing), 57);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub sort_wakenai_c()：　57"));
}

TEST_F(SplitMerge, RunWithoutAFailureWritesNoErrorLine) {
    run({{.call = "JA1ZZA"}});
    EXPECT_THAT(error_lines(), IsEmpty());
}

}  // namespace
}  // namespace veldrana
