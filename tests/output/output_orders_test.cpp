#include "output/output_orders.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

using Fields = std::vector<std::string>;

std::string line_of(const Fields& fields) {
    std::string line;
    for (const std::string& field : fields) {
        line += (line.empty() ? "\"" : ",\"") + field + "\"";
    }
    return line + "\r\n";
}

// The tag stands in a column that no key holds: it tells contacts of one call apart.
std::string contest_line(const std::string& call, const std::string& tag) {
    return line_of({call, "1", "1001", "#", "7", "CW", "Name", "J", "", "", "250426", "2105U",
                    "599", "589", "QTH", "R1", tag, "C1", "C2"});
}

std::string hamlog_line(const std::string& call, const std::string& tag) {
    return line_of({call, "1", "25/04/26", "21:05U", "599", "589", "7", "CW", "1001", "#", "J*R",
                    "Name", "QTH", "R1", tag, "C1", "C2"});
}

constexpr std::size_t hamlog_tag = 14;
constexpr std::size_t keyed_contest_tag = 17;

// A log's rows on a disk in memory, as the row builder leaves them.
class OutputOrders : public StageFixture {
  protected:
    OutputOrders() { disk.put_folder("C:\\log"); }

    // Contacts with these calls, tagged with their number from 1.
    void put_log(const Fields& calls) {
        std::string contest;
        std::string hamlog;
        for (std::size_t i = 0; i < calls.size(); ++i) {
            contest += contest_line(calls[i], std::to_string(i + 1));
            hamlog += hamlog_line(calls[i], std::to_string(i + 1));
        }
        disk.put("C:\\temp_h_o.csv", contest);
        disk.put("C:\\temp_h_n.csv", hamlog);
    }

    // Rows behind the keys of an earlier sort.
    void put_keyed(const Fields& calls) {
        std::string keyed;
        for (std::size_t i = 0; i < calls.size(); ++i) {
            keyed += "\"the old key\"," + contest_line(calls[i], std::to_string(i + 1));
        }
        disk.put("C:\\temp_s.csv", keyed);
    }

    void order() { order_hamlog_file(stage, request); }

    std::vector<Fields> rows_of(const std::string& path) {
        std::vector<Fields> rows;
        TextInput input(disk, path);
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

    Fields calls_of_h0() { return column_of("C:\\log\\x_h0.csv", 0); }

    RunOptions options{.Option05 = 1, .Option09 = 1};
    const OutputNames names = make_output_names("C:\\log\\x.all");
    const OutputRequest request{
        .drive_path = "C:\\", .in_Dir = "C:\\log\\", .names = names, .options = options};
};

// --- the choice ---

struct Choice {
    bool Check08;
    int Option05;
    int Option09;
    std::string procedure;
    Fields calls;
};

TEST_F(OutputOrders, ChoiceOfTheOrder) {
    // Keys: 09JA9ZZA, 10JA0ZZA, 017N3ZZA, 01JA1ZZA, 0ZK1ZZA.
    const Fields log{"JA9ZZA", "JA0ZZA", "7N3ZZA", "JA1ZZA", "K1ZZA"};
    const Fields jarl{"7N3ZZA", "JA1ZZA", "JA9ZZA", "K1ZZA", "JA0ZZA"};
    const Fields jarl_reversed{"JA0ZZA", "K1ZZA", "JA9ZZA", "JA1ZZA", "7N3ZZA"};
    const std::vector<Choice> choices{
        {true, 0, 0, "NO_SORT", log},         {true, 0, 1, "NO_SORT", log},
        {true, 0, 2, "NO_SORT", log},         {true, 1, 0, "NO_SORT", log},
        {true, 1, 1, "NO_SORT", log},         {true, 1, 2, "NO_SORT", log},
        {false, 0, 0, "NO_SORT", log},        {false, 0, 1, "NO_SORT", log},
        {false, 0, 2, "NO_SORT", log},        {false, 1, 0, "ascii_sort", log},
        {false, 1, 1, "jarl_sort_a_h", jarl}, {false, 1, 2, "jarl_sort_r_h", jarl_reversed},
    };
    for (const Choice& choice : choices) {
        SCOPED_TRACE(testing::Message() << choice.Check08 << choice.Option05 << choice.Option09);
        options.Check08 = choice.Check08;
        options.Option05 = choice.Option05;
        options.Option09 = choice.Option09;
        put_log(log);
        trace.lines.clear();
        order();
        EXPECT_EQ(trace.lines.at(0), "Private Sub " + choice.procedure + "()");
        EXPECT_EQ(calls_of_h0(), choice.calls);
    }
}

// --- log order ---

TEST_F(OutputOrders, LogOrderCopiesEachRowUnchangedAndWritesTheSideList) {
    options.Option09 = 0;
    disk.put("C:\\temp_h_o.csv", contest_line("unread", ""));
    const std::string one = hamlog_line("JA9ZZA", "a\"b\"c, d");
    const std::string other = line_of({"JA1ZZA", "", "25/04/26", "21:06J", "", "", "3.5", "SSB", "",
                                       "", "", "", "", "", "  two  ", "JA1ZZA", "JA1ZZA"});
    disk.put("C:\\temp_h_n.csv", one + other);
    order();
    EXPECT_EQ(disk.bytes("C:\\log\\x_h0.csv"), one + other);
    // The letter is the first of the QSL column.
    EXPECT_EQ(disk.bytes("C:\\new_qsl_hamlog.csv"),
              line_of({"JA9ZZA", "1", "25/04/26", "21:05U", "J"}) +
                  line_of({"JA1ZZA", "", "25/04/26", "21:06J", ""}));
}

TEST_F(OutputOrders, AsciiOrderOfStationsTogetherKeepsTheLogOrder) {
    options.Option05 = 1;
    options.Option09 = 0;
    put_log({"JA9ZZA", "JA1ZZA", "JA5ZZA"});
    order();
    EXPECT_THAT(calls_of_h0(), ElementsAre("JA9ZZA", "JA1ZZA", "JA5ZZA"));
}

// --- JARL order ---

TEST_F(OutputOrders, AreaZeroStandsBehindNineAndBehindLetters) {
    put_log({"JA0ZZA", "JA9ZZA", "K1ZZA", "JA8ZZA"});
    order();
    EXPECT_THAT(calls_of_h0(), ElementsAre("JA8ZZA", "JA9ZZA", "K1ZZA", "JA0ZZA"));
}

TEST_F(OutputOrders, AreaZeroStandsFirstInReverse) {
    options.Option09 = 2;
    put_log({"JA9ZZA", "JA0ZZA", "K1ZZA", "JA8ZZA"});
    order();
    EXPECT_THAT(calls_of_h0(), ElementsAre("JA0ZZA", "K1ZZA", "JA9ZZA", "JA8ZZA"));
}

TEST_F(OutputOrders, CallThatBeginsWithSevenStandsFirstOfTheFirstGroupWhateverItsDigit) {
    put_log({"JA1ZZA", "JA3ZZA", "8J1ZZA", "7N3ZZA", "7J0ZZA"});
    order();
    EXPECT_THAT(calls_of_h0(), ElementsAre("7J0ZZA", "7N3ZZA", "8J1ZZA", "JA1ZZA", "JA3ZZA"));
}

TEST_F(OutputOrders, ForeignCallWithALetterInThirdPlaceStandsBetweenNineAndZero) {
    put_log({"JA0ZZA", "W1AZZ", "JA9ZZA", "K1ZZA"});
    order();
    EXPECT_THAT(calls_of_h0(), ElementsAre("JA9ZZA", "W1AZZ", "K1ZZA", "JA0ZZA"));
}

// Its key is one byte shorter, so its second letter stands where others have the third character.
TEST_F(OutputOrders, CallOfTwoCharactersStandsByItsFirst) {
    // Keys: 0KK1KZA, 0JA, 0IK1IZA.
    put_log({"K1KZA", "JA", "K1IZA"});
    order();
    EXPECT_THAT(calls_of_h0(), ElementsAre("K1IZA", "JA", "K1KZA"));
}

TEST_F(OutputOrders, CallsThatDifferInTheSeventhLetterKeepTheLogOrder) {
    for (const int Option09 : {1, 2}) {
        options.Option09 = Option09;
        put_log({"8N1ZZZB", "8N1ZZZA", "8N1ZZZC"});
        order();
        EXPECT_THAT(calls_of_h0(), ElementsAre("8N1ZZZB", "8N1ZZZA", "8N1ZZZC")) << Option09;
    }
}

TEST_F(OutputOrders, ContactsOfOneStationKeepTheLogOrderForwardAndReversed) {
    for (const int Option09 : {1, 2}) {
        options.Option09 = Option09;
        put_log({"JA1ZZA", "JA1ZZA", "JA1ZZA"});
        order();
        EXPECT_THAT(column_of("C:\\log\\x_h0.csv", hamlog_tag), ElementsAre("1", "2", "3"))
            << Option09;
    }
}

TEST_F(OutputOrders, JarlOrderWritesTheRowsWithoutTheirKeys) {
    put_log({"JA9ZZA", "JA1ZZA"});
    order();
    EXPECT_EQ(disk.bytes("C:\\log\\x_h0.csv"),
              hamlog_line("JA1ZZA", "2") + hamlog_line("JA9ZZA", "1"));
    EXPECT_EQ(disk.bytes("C:\\new_qsl_hamlog.csv"),
              line_of({"JA1ZZA", "1", "25/04/26", "21:05U", "J"}) +
                  line_of({"JA9ZZA", "1", "25/04/26", "21:05U", "J"}));
}

TEST_F(OutputOrders, ReverseOrderWritesTheContestRowsBesideTheLog) {
    options.Option09 = 2;
    put_log({"JA1ZZA", "JA9ZZA"});
    order();
    EXPECT_EQ(disk.bytes("C:\\log\\hamlogja_0.csv"),
              contest_line("JA9ZZA", "2") + contest_line("JA1ZZA", "1"));
}

struct FilesLeft {
    int Option05;
    int Option09;
    Fields files;
};

TEST_F(OutputOrders, FilesThatAreLeft) {
    const std::vector<FilesLeft> rows{
        {0, 0, {"C:\\log\\x_h0.csv", "C:\\new_qsl_hamlog.csv"}},
        {1, 0, {"C:\\log\\x_h0.csv", "C:\\new_qsl_hamlog.csv"}},
        {1, 1, {"C:\\log\\x_h0.csv", "C:\\new_qsl_hamlog.csv"}},
        {1, 2, {"C:\\log\\hamlogja_0.csv", "C:\\log\\x_h0.csv", "C:\\new_qsl_hamlog.csv"}},
    };
    for (const FilesLeft& row : rows) {
        options.Option05 = row.Option05;
        options.Option09 = row.Option09;
        put_log({"JA1ZZA"});
        order();
        EXPECT_EQ(disk.files(), row.files) << row.Option05 << row.Option09;
    }
}

// --- the contest file's rows ---

TEST_F(OutputOrders, ContestRowsGetTheJarlKeyInThePlaceOfTheOldOne) {
    put_keyed({"JA0ZZA", "AAAAAA", "7N3ZZA", "JA9ZZA"});
    jarl_sort_a(stage, request);
    EXPECT_EQ(disk.bytes("C:\\temp_s.csv"), "\"017N3ZZA\"," + contest_line("7N3ZZA", "3") +
                                                "\"09JA9ZZA\"," + contest_line("JA9ZZA", "4") +
                                                "\"0AAAAAAA\"," + contest_line("AAAAAA", "2") +
                                                "\"10JA0ZZA\"," + contest_line("JA0ZZA", "1"));
}

TEST_F(OutputOrders, ReversedContestRowsAreTheExactReverse) {
    put_keyed({"JA9ZZA", "AAAAAA", "7N3ZZA", "JA0ZZA"});
    jarl_sort_r(stage, request);
    EXPECT_THAT(column_of("C:\\temp_s.csv", 0),
                ElementsAre("10JA0ZZA", "0AAAAAAA", "09JA9ZZA", "017N3ZZA"));
}

TEST_F(OutputOrders, ContactsOfOneStationKeepTheOrderOfTheSortBefore) {
    put_keyed({"JA1ZZA", "JA2ZZA", "JA1ZZA", "JA2ZZA"});
    jarl_sort_a(stage, request);
    EXPECT_THAT(column_of("C:\\temp_s.csv", keyed_contest_tag), ElementsAre("1", "3", "2", "4"));
}

// The reverse is on the key alone.
TEST_F(OutputOrders, ReverseDoesNotReverseTheContactsOfOneStation) {
    put_keyed({"JA1ZZA", "JA2ZZA", "JA1ZZA", "JA2ZZA"});
    jarl_sort_r(stage, request);
    EXPECT_THAT(column_of("C:\\temp_s.csv", keyed_contest_tag), ElementsAre("2", "4", "1", "3"));
}

// --- the trace ---

TEST_F(OutputOrders, LogOrderTracesItsFilesAndDeletions) {
    options.Option05 = 0;
    put_log({"JA1ZZA"});
    order();
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub NO_SORT()",  //
                            "Open C:\\temp_h_n.csv For Input As #f_i",
                            "Open C:\\new_qsl_hamlog.csv For Output As #f_o",
                            "Open C:\\log\\x_h0.csv For Output As #f_o",
                            "Kill drive_path & temp_h_n.csv", "Kill drive_path & temp_h_o.csv"));
}

TEST_F(OutputOrders, JarlOrderTracesItsFilesSortsAndDeletions) {
    put_log({"JA1ZZA"});
    order();
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub jarl_sort_a_h()",              //
                            "Open C:\\temp_h_o.csv For Input As #f_i",  //
                            "Open C:\\temp_h.csv For Output As #f_o",   //
                            "sort C:\\temp_h.csv C:\\temp_hs.csv",      //
                            "Kill drive_path & temp_h.csv",             //
                            "Kill drive_path & temp_hs.csv",            //
                            "Open C:\\temp_h_n.csv For Input As #f_i",  //
                            "Open C:\\temp_h.csv For Output As #f_o",   //
                            "sort C:\\temp_h.csv C:\\temp_hs.csv",      //
                            "Open C:\\temp_hs.csv For Input As #f_i",   //
                            "Open C:\\new_qsl_hamlog.csv For Output As #f_o",
                            "Open C:\\log\\x_h0.csv For Output As #f_o",
                            "Kill drive_path & temp_h.csv",    //
                            "Kill drive_path & temp_hs.csv",   //
                            "Kill drive_path & temp_h_o.csv",  //
                            "Kill drive_path & temp_h_n.csv"));
}

struct FailingOperation {
    std::string procedure;
    int Option05;
    int Option09;
    std::function<void(const Stage&, const OutputRequest&)> run;
};

TEST_F(OutputOrders, EachOperationWritesItsOwnErrorLine) {
    const std::vector<FailingOperation> operations{
        {"NO_SORT", 0, 0, order_hamlog_file},       {"ascii_sort", 1, 0, order_hamlog_file},
        {"jarl_sort_a_h", 1, 1, order_hamlog_file}, {"jarl_sort_r_h", 1, 2, order_hamlog_file},
        {"jarl_sort_a", 1, 1, jarl_sort_a},         {"jarl_sort_r", 1, 2, jarl_sort_r},
    };
    for (const FailingOperation& operation : operations) {
        options.Option05 = operation.Option05;
        options.Option09 = operation.Option09;
        // Nothing to read, then files with no row in them.
        for (const int number : {53, 62}) {
            for (const std::string& file : disk.files()) {
                disk.remove(file);
            }
            if (number == 62) {
                put_log({});
                put_keyed({});
            }
            trace.lines.clear();
            EXPECT_THROW(operation.run(stage, request), RunTimeError);
            EXPECT_EQ(trace.lines.front(), "Private Sub " + operation.procedure + "()");
            EXPECT_EQ(trace.lines.back(), "エラー発生  Private Sub " + operation.procedure +
                                              "() ：　" + std::to_string(number));
        }
    }
}

}  // namespace
}  // namespace veldrana
