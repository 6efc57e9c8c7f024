#include "platform/sort_service.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "platform/stage.h"
#include "tests/doubles/collected_trace.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scripted_person.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

using Lines = std::vector<std::string>;

std::string file_of(const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line + "\r\n";
    }
    return bytes;
}

// The number of the failure that a body ends in; 0 if it ends in none.
template <class Body>
int failure_of(Body&& body) {
    try {
        body();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

// --- command texts ---

struct CommandText {
    std::string text;
    std::size_t start;
    std::size_t length;
    bool descending;
    std::string from;
    std::string to;
};

// Every command that the program sends; the one with relative paths has a single blank.
const std::vector<CommandText> commands{
    {"/k(1:8)  'C:\\Sort-in.dat'  'C:\\Sort-out.dat'", 1, 8, false, "C:\\Sort-in.dat",
     "C:\\Sort-out.dat"},
    {"/k(2:30)  'C:\\semp_s.csv'  'C:\\temp_s.csv'", 2, 30, false, "C:\\semp_s.csv",
     "C:\\temp_s.csv"},
    {"/k(2:30)  'C:\\semp_d.csv'  'C:\\temp_d.csv'", 2, 30, false, "C:\\semp_d.csv",
     "C:\\temp_d.csv"},
    {"/k(2:8)  'C:\\temp_sj.csv'  'C:\\temp_s.csv'", 2, 8, false, "C:\\temp_sj.csv",
     "C:\\temp_s.csv"},
    {"/k(2:8) /r  'C:\\temp_sj.csv'  'C:\\temp_s.csv'", 2, 8, true, "C:\\temp_sj.csv",
     "C:\\temp_s.csv"},
    {"/k(2:8)  'C:\\temp_h.csv'  'C:\\temp_hs.csv'", 2, 8, false, "C:\\temp_h.csv",
     "C:\\temp_hs.csv"},
    {"/k(2:8) /r  'C:\\temp_h.csv'  'C:\\temp_hs.csv'", 2, 8, true, "C:\\temp_h.csv",
     "C:\\temp_hs.csv"},
    {"/k(1:16)  'C:\\bak_1.txt'  'C:\\bak_2.txt'", 1, 16, false, "C:\\bak_1.txt", "C:\\bak_2.txt"},
    {"/k(1:15)  'C:\\zlog_3.txt'  'C:\\zlog_4.txt'", 1, 15, false, "C:\\zlog_3.txt",
     "C:\\zlog_4.txt"},
    {"/k(2:8) 'syubetu1.csv'  'syubetu2.csv'", 2, 8, false, "syubetu1.csv", "syubetu2.csv"},
    {"/k(12:6)  'C:\\Master_hl_1.txt'  'C:\\Master_hl_2.txt'", 12, 6, false, "C:\\Master_hl_1.txt",
     "C:\\Master_hl_2.txt"},
    {"/k(1:15)  'C:\\Controls.lst_0'  'C:\\Controls.lst'", 1, 15, false, "C:\\Controls.lst_0",
     "C:\\Controls.lst"},
};

TEST(SortCommand, ParsesEveryCommandOfTheProgram) {
    for (const CommandText& row : commands) {
        const SortCommand command = SortCommand::parse(row.text);
        EXPECT_EQ(command.start, row.start) << row.text;
        EXPECT_EQ(command.length, row.length) << row.text;
        EXPECT_EQ(command.descending, row.descending) << row.text;
        EXPECT_EQ(command.from, row.from) << row.text;
        EXPECT_EQ(command.to, row.to) << row.text;
    }
}

TEST(SortCommand, WritesItsTextWithTwoBlanksInFrontOfEachPath) {
    for (const CommandText& row : commands) {
        if (row.from == "syubetu1.csv") {
            continue;  // a fixed text that is not put together
        }
        const SortCommand command{.start = row.start,
                                  .length = row.length,
                                  .descending = row.descending,
                                  .from = row.from,
                                  .to = row.to};
        EXPECT_EQ(command.text(), row.text);
    }
}

TEST(SortCommand, PathsMayHoldBlanks) {
    const SortCommand command =
        SortCommand::parse("/k(1:3) /r  'C:\\my  logs\\a b.txt'  'C:\\my  logs\\ c.txt '");
    EXPECT_EQ(command.from, "C:\\my  logs\\a b.txt");
    EXPECT_EQ(command.to, "C:\\my  logs\\ c.txt ");
}

TEST(SortCommand, OptionWithinAPathIsNone) {
    EXPECT_FALSE(SortCommand::parse("/k(1:3)  'C:\\a /r'  'C:\\b'").descending);
}

TEST(SortCommand, RefusesATextOfAnotherForm) {
    for (const std::string text : {
             "",
             "  'a'  'b'",
             "k(1:8)  'a'  'b'",
             "/k1:8  'a'  'b'",
             "/k(:8)  'a'  'b'",
             "/k(1)  'a'  'b'",
             "/k(1:)  'a'  'b'",
             "/k(x:8)  'a'  'b'",
             "/k(1;8)  'a'  'b'",
             "/k(1:8  'a'  'b'",
             "/k(0:8)  'a'  'b'",  // bytes count from 1
             "/k(1:8)",
             "/k(1:8)  'a'",
             "/k(1:8)  a  b",
             "/k(1:8)  'a'  'b",
             "/k(1:8)  'a'  'b'  'c'",
             "/k(1:8) /d  'a'  'b'",
         }) {
        EXPECT_EQ(failure_of([&] { SortCommand::parse(text); }), 5) << text;
    }
}

// --- the sort itself ---

class StableSortTest : public testing::Test {
  protected:
    // Sorts these lines with a key such as "/k(1:8)" and returns the bytes of the result.
    std::string sorted_bytes(const std::string& options, const std::string& bytes) {
        disk.put("C:\\in.txt", bytes);
        std::string buffer(256, '\0');
        EXPECT_NE(sorter.ksort(options + "  'C:\\in.txt'  'C:\\out.txt'", buffer),
                  SortService::busy);
        return disk.bytes("C:\\out.txt");
    }

    MemoryDisk disk;
    StableSort sorter{disk};
};

struct SortedLines {
    std::string shows;
    std::string options;
    Lines in;
    Lines out;
};

// What each window of the program sees, and that it sees no byte more: lines that are alike inside
// of it stay as they came.
TEST_F(StableSortTest, EachWindowOfTheProgramSeesItsBytesAlone) {
    const std::vector<SortedLines> rows{
        {"quote and seven bytes of the call",
         "/k(1:8)",
         {"\"JB1ZZXB9\"", "\"JB1ZZXB1\"", "\"JB1ZZXA5\""},
         {"\"JB1ZZXA5\"", "\"JB1ZZXB9\"", "\"JB1ZZXB1\""}},
        {"a short call's quote and comma, not its portable part",
         "/k(1:8)",
         {"\"JA1ZZA\",\"\"", "\"JA1ZZ\",\"2\"", "\"JA1ZZ\",\"1\""},
         {"\"JA1ZZ\",\"2\"", "\"JA1ZZ\",\"1\"", "\"JA1ZZA\",\"\""}},
        {"30 bytes behind the quote",
         "/k(2:30)",
         {"z12345678901234567890123456789C9", "y12345678901234567890123456789C1",
          "x12345678901234567890123456789A5"},
         {"x12345678901234567890123456789A5", "z12345678901234567890123456789C9",
          "y12345678901234567890123456789C1"}},
        {"eight bytes behind the quote",
         "/k(2:8)",
         {"z01JA1ZZB9", "y01JA1ZZB1", "x01JA1ZZA5"},
         {"x01JA1ZZA5", "z01JA1ZZB9", "y01JA1ZZB1"}},
        {"the same, the other way round",
         "/k(2:8) /r",
         {"x01JA1ZZA5", "z01JA1ZZB9", "y01JA1ZZB1"},
         {"z01JA1ZZB9", "y01JA1ZZB1", "x01JA1ZZA5"}},
        {"16 bytes from the first",
         "/k(1:16)",
         {"12345678901234_B9", "12345678901234_B1", "12345678901234_A5"},
         {"12345678901234_A5", "12345678901234_B9", "12345678901234_B1"}},
        {"15 bytes from the first",
         "/k(1:15)",
         {"12345678901234B9", "12345678901234B1", "12345678901234A5"},
         {"12345678901234A5", "12345678901234B9", "12345678901234B1"}},
        {"six bytes from the twelfth",
         "/k(12:6)",
         {"aaaaaaaaaaa12345B9", "bbbbbbbbbbb12345B1", "ccccccccccc12345A5", "ddddddddddd02345Z0"},
         {"ddddddddddd02345Z0", "ccccccccccc12345A5", "aaaaaaaaaaa12345B9", "bbbbbbbbbbb12345B1"}},
    };
    for (const SortedLines& row : rows) {
        EXPECT_EQ(sorted_bytes(row.options, file_of(row.in)), file_of(row.out)) << row.shows;
    }
}

TEST_F(StableSortTest, KeyOfAShortLineIsWhatItHas) {
    // Keys: "bc", "", "b", "", "bcd".
    const Lines lines{"xbc", "x", "xb", "", "xbcd"};
    EXPECT_EQ(sorted_bytes("/k(2:3)", file_of(lines)), file_of({"x", "", "xb", "xbc", "xbcd"}));
    EXPECT_EQ(sorted_bytes("/k(2:3) /r", file_of(lines)), file_of({"xbcd", "xbc", "xb", "x", ""}));
}

// What is missing at a key's end is less than any byte, the lowest too.
TEST_F(StableSortTest, ShorterKeyStandsInFrontOfOneWithZeroBytesBehind) {
    const std::string zeros("ab\0\0", 4);
    EXPECT_EQ(sorted_bytes("/k(1:8)", zeros + "\r\nab\r\n"), "ab\r\n" + zeros + "\r\n");
    EXPECT_EQ(sorted_bytes("/k(1:8) /r", "ab\r\n" + zeros + "\r\n"), zeros + "\r\nab\r\n");
}

TEST_F(StableSortTest, ComparesBytesUnsigned) {
    const Lines lines{"\xFC", "\x80", "\x7E", "\xB1", " "};
    EXPECT_EQ(sorted_bytes("/k(1:1)", file_of(lines)),
              file_of({" ", "\x7E", "\x80", "\xB1", "\xFC"}));
    // A high byte leaves the bytes in front of it what they are.
    EXPECT_EQ(sorted_bytes("/k(1:2)", file_of({"bx", "a\xB1", "ax"})),
              file_of({"ax", "a\xB1", "bx"}));
    // The same behind the first eight bytes of a long key.
    const Lines long_lines{"12345678\xB1", "12345678z"};
    EXPECT_EQ(sorted_bytes("/k(1:9)", file_of(long_lines)), file_of({"12345678z", "12345678\xB1"}));
}

TEST_F(StableSortTest, ComparesBytesAndNotLetters) {
    EXPECT_EQ(sorted_bytes("/k(1:1)", file_of({"a", "B", "9", "A", "\""})),
              file_of({"\"", "9", "A", "B", "a"}));
}

TEST_F(StableSortTest, EqualKeysKeepTheirOrderAscendingAndDescending) {
    Lines lines;
    for (int i = 0; i < 100; ++i) {
        lines.push_back(std::string(i % 2 == 0 ? "b" : "a") + std::to_string(1000 - i));
    }
    Lines ascending = lines;
    std::stable_partition(ascending.begin(), ascending.end(),
                          [](const std::string& line) { return line.starts_with('a'); });
    Lines descending = lines;
    std::stable_partition(descending.begin(), descending.end(),
                          [](const std::string& line) { return line.starts_with('b'); });
    EXPECT_EQ(sorted_bytes("/k(1:1)", file_of(lines)), file_of(ascending));
    EXPECT_EQ(sorted_bytes("/k(1:1) /r", file_of(lines)), file_of(descending));
}

TEST_F(StableSortTest, WritesEveryLineWholeAndUnchanged) {
    const std::string long_line = "2" + std::string(300000, 'x') + "  ";
    // Two characters of code page 932, one with a backslash for its second byte.
    const Lines lines{long_line, "0 \"a\",,'b'\t \r ", "1\x83\x5C\x8E\xA6  "};
    EXPECT_EQ(sorted_bytes("/k(1:1)", file_of(lines)),
              file_of({"0 \"a\",,'b'\t \r ", "1\x83\x5C\x8E\xA6  ", long_line}));
}

TEST_F(StableSortTest, KeepsEmptyLinesAndLinesThatAreAlike) {
    EXPECT_EQ(sorted_bytes("/k(1:8)", file_of({"b", "", "a", "a", ""})),
              file_of({"", "", "a", "a", "b"}));
}

TEST_F(StableSortTest, LastLineWithoutAnEndIsALine) {
    EXPECT_EQ(sorted_bytes("/k(1:1)", "b\r\na"), "a\r\nb\r\n");
}

TEST_F(StableSortTest, EmptyFileGivesAnEmptyFile) {
    EXPECT_EQ(sorted_bytes("/k(1:8)", ""), "");
}

TEST_F(StableSortTest, InputFileStays) {
    sorted_bytes("/k(1:1)", "b\r\na\r\n");
    EXPECT_EQ(disk.bytes("C:\\in.txt"), "b\r\na\r\n");
}

TEST_F(StableSortTest, ReplacesAnEarlierOutput) {
    disk.put("C:\\out.txt", file_of({"something", "much", "longer"}));
    EXPECT_EQ(sorted_bytes("/k(1:1)", "a\r\n"), "a\r\n");
}

TEST_F(StableSortTest, SortsFilesWhosePathsHoldBlanks) {
    disk.put("C:\\my logs\\in put.txt", "b\r\na\r\n");
    std::string buffer;
    sorter.ksort("/k(1:1)  'C:\\my logs\\in put.txt'  'C:\\my logs\\out put.txt'", buffer);
    EXPECT_EQ(disk.bytes("C:\\my logs\\out put.txt"), "a\r\nb\r\n");
}

TEST_F(StableSortTest, PassesOnTheFailuresOfTheDisk) {
    disk.put("C:\\in.txt", "a\r\n");
    std::string buffer;
    EXPECT_EQ(failure_of([&] { sorter.ksort("/k(1:1)  'C:\\none'  'C:\\out.txt'", buffer); }), 53);
    EXPECT_EQ(failure_of([&] { sorter.ksort("/k(1:1)  'C:\\in.txt'  'C:\\no\\o'", buffer); }), 76);
    EXPECT_THAT(disk.files(), ElementsAre("C:\\in.txt"));
}

// --- how a stage asks the service ---

// Is busy for a while, then gives its answer; keeps what it was asked, and how often events had
// been let through by then.
class BusySorter : public SortService {
  public:
    BusySorter(const ScriptedPerson& person, int times_busy, int answer)
        : person_(person), times_busy_(times_busy), answer_(answer) {}

    int ksort(const std::string& command, std::string& /*buffer*/) override {
        asked.push_back(command);
        let_through.push_back(person_.times_let_through);
        return static_cast<int>(asked.size()) <= times_busy_ ? 7000 : answer_;
    }

    Lines asked;
    std::vector<int> let_through;

  private:
    const ScriptedPerson& person_;
    int times_busy_;
    int answer_;
};

class StageSort : public testing::Test {
  protected:
    void sort_with(SortService& sorter) {
        const Stage stage{disk, trace.log, sorter, person, lblCFG, bar};
        stage.sort({.start = 2,
                    .length = 8,
                    .descending = true,
                    .from = "C:\\a b.csv",
                    .to = "C:\\c.csv"});
    }

    Form form;
    Label lblCFG{form, "lblCFG"};
    ProgressBar bar{form, "ProgressBar1"};
    MemoryDisk disk;
    CollectedTrace trace;
    ScriptedPerson person;
};

TEST_F(StageSort, AsksABusyServiceAgainWithEventsInBetween) {
    BusySorter sorter(person, 3, 0);
    sort_with(sorter);
    const std::string command = "/k(2:8) /r  'C:\\a b.csv'  'C:\\c.csv'";
    EXPECT_THAT(sorter.asked, ElementsAre(command, command, command, command));
    // Events run before each attempt, the first included.
    EXPECT_THAT(sorter.let_through, ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(person.times_let_through, 4);
}

TEST_F(StageSort, TakesAnyOtherAnswerForDone) {
    for (const int answer : {0, 1, -1, 5, 6999, 7001}) {
        BusySorter sorter(person, 0, answer);
        sort_with(sorter);
        EXPECT_EQ(sorter.asked.size(), 1U) << answer;
    }
}

TEST_F(StageSort, TracesTheTwoPathsOnceHoweverOftenItAsks) {
    BusySorter sorter(person, 2, 0);
    sort_with(sorter);
    EXPECT_THAT(trace.lines, ElementsAre("sort C:\\a b.csv C:\\c.csv"));
}

}  // namespace
}  // namespace veldrana
