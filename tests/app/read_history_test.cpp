// Whole runs with a log book: whether it is read, what its history does to the marks, and that the
// database is never changed.
#include "app/read_history.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "tests/app/stored_settings.h"
#include "tests/doubles/log_book_table.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using testing::SizeIs;
using testing::UnorderedElementsAre;

using Lines = std::vector<std::string>;

const std::string database = "C:\\Hamlog\\Hamlog.hdb";
const std::string history_1 = "C:\\veldrana\\Temp_Files\\bak_qso.mas1_p";
const std::string history_2 = "C:\\veldrana\\Temp_Files\\bak_qso.mas2_p";
const std::string history_3 = "C:\\veldrana\\Temp_Files\\bak_qso.mas3_p";
const std::string times_file = "C:\\veldrana\\Veldrana_fdt.ini";

const std::string history_end = "\"YYYYYY\",\"E2\"\r\n\"ZZZZZZ\",\"E2\"\r\nZZZ/ZZZZZZ,E2\r\n";

constexpr LocalTime morning{2026, 5, 1, 10, 20, 30};
constexpr LocalTime evening{2026, 5, 1, 20, 20, 30};

// JA1ZZA on 7 MHz in CW and on 14 MHz in SSB, JR8YYX/1 on 430 MHz in FM.
constexpr std::string_view log_of_three =
    "zLog for Windows \r\n"
    "2025/04/26 21:05 JA1ZZA       599 11M     589 104M    104   -     7    CW   1  "
    "%%JA1ZZZ%% SSN\r\n"
    "2025/04/26 21:06 JR8YYX/1     59  11M     57  101H    101   -     430  FM   1  "
    "%%JA1ZZY%%\r\n"
    "2025/04/26 21:07 JA1ZZA       59  11M     59  104M    104   -     14   SSB  1  "
    "%%JA1ZZZ%%\r\n";

LoggedContact worked(const std::string& call, const std::string& frequency = "7",
                     const std::string& mode = "CW", const std::string& marks = "J  ") {
    LoggedContact contact;
    contact.CALLS = call.substr(0, 6);
    contact.IGN = call.size() > 6 ? call.substr(6) : "";
    contact.year = 2024;
    contact.FREQ = frequency;
    contact.MODE = mode;
    contact.QSL = marks;
    return contact;
}

class ReadHistory : public testing::Test {
  protected:
    ReadHistory() {
        kit.put_text("C:\\log\\x.all", log_of_three);
        put_database({worked("JA1ZZA")});
        // A program that opened the database for writing would fail here.
        kit.disk.fail_writing("Hamlog.hdb", Failure::permission_denied);
        kit.start();
        kit.open("C:\\log\\x.all");
        screen.Option07.index = 1;
    }

    void put_database(const std::vector<LoggedContact>& contacts, const LocalTime& time = morning) {
        put_database_bytes(own_table(contacts).bytes(), time);
    }
    void put_database_bytes(const std::string& bytes, const LocalTime& time = morning) {
        kit.memory.put(database, bytes);
        kit.memory.set_modified(database, time);
    }

    // One run; the readers that ran in it, by their names in the trace log.
    Lines run() {
        const bool there = kit.memory.file_exists(database);
        const std::string bytes = there ? kit.memory.bytes(database) : std::string();
        const std::string time = there ? date_time_text(kit.memory.modified(database)) : "";
        const std::size_t before = kit.trace_lines().size();
        screen.cmdStart.press();
        EXPECT_EQ(kit.memory.file_exists(database), there);
        if (there) {
            EXPECT_EQ(kit.memory.bytes(database), bytes);
            EXPECT_EQ(date_time_text(kit.memory.modified(database)), time);
        }
        EXPECT_THAT(kit.memory.names("C:\\Hamlog\\*"), SizeIs(there ? 1 : 0));
        Lines readers;
        const Lines lines = kit.trace_lines();
        for (std::size_t i = before; i < lines.size(); ++i) {
            if (lines[i].starts_with("Private Sub read_hl_hdb_")) {
                readers.push_back(lines[i].substr(std::string_view("Private Sub ").size()));
            }
        }
        return readers;
    }
    // The same of a run that must come to its end.
    Lines finished_run() {
        Lines readers = run();
        EXPECT_FALSE(program.ended());
        EXPECT_TRUE(program.run_finished);
        return readers;
    }

    // The QSL column of each contact of a result, by call, frequency and mode.
    std::map<std::string, std::string> marks_of(const std::string& file) {
        std::map<std::string, std::string> marks;
        TextInput input(kit.memory, file);
        for (std::string_view line; input.next_line(line);) {
            const Lines row = split_quoted_fields(line);
            marks[row.at(0) + " " + row.at(5) + " " + std::string(trim(row.at(6)))] = row.at(9);
        }
        return marks;
    }
    // Of both results. The contest file has no marks of cards sent; else they must be alike.
    std::map<std::string, std::string> marks() {
        const std::map<std::string, std::string> hamlog = marks_of("C:\\log\\x_hjn.csv");
        std::map<std::string, std::string> contest = hamlog;
        for (auto& [contact, mark] : contest) {
            mark.replace(1, 1, " ");
        }
        EXPECT_EQ(marks_of("C:\\log\\x_cjn.csv"), contest);
        return hamlog;
    }

    std::size_t no_qsl_count() { return program.counters.values.at(4); }

    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
};

// --- whether the log book is read ---

TEST_F(ReadHistory, WithoutARuleNothingIsRead) {
    screen.Option07.index = 0;
    screen.Check18.value = true;
    kit.memory.protect_log_book({});  // another program may do so
    kit.memory.remove(database);
    EXPECT_THAT(finished_run(), IsEmpty());
    EXPECT_EQ(no_qsl_count(), 0U);
    EXPECT_THAT(kit.memory.names("C:\\veldrana\\Temp_Files\\bak_qso.*"), IsEmpty());
}

struct Rule {
    int Option07;
    std::string reader;
    std::string history;
    std::string key;
};

const std::vector<Rule> rules{
    {1, "read_hl_hdb_1()", history_1, "hamlog_hdb_dir_FileDateTime_QSO"},
    {2, "read_hl_hdb_2()", history_2, "hamlog_hdb_dir_FileDateTime_QSL_sent"},
    {3, "read_hl_hdb_3()", history_3, "hamlog_hdb_dir_FileDateTime_QSL_rcvd"},
};

TEST_F(ReadHistory, EachRuleHasItsReaderItsHistoryAndItsTime) {
    put_database({worked("JA1ZZA", "7", "CW", "J  "), worked("JA2ZZB", "7", "CW", "J* "),
                  worked("JA3ZZC", "7", "CW", "J R"), worked("JA4ZZD", "7", "CW", "J*R")});
    const std::string a = "\"JA1ZZA\",\"C2\"\r\n";
    const std::string b = "\"JA2ZZB\",\"C2\"\r\n";
    const std::string c = "\"JA3ZZC\",\"C2\"\r\n";
    const std::string d = "\"JA4ZZD\",\"C2\"\r\n";
    const std::map<int, std::string> selected{{1, a + b + c + d}, {2, b + d}, {3, c + d}};
    for (const Rule& rule : rules) {
        screen.Option07.index = rule.Option07;
        EXPECT_THAT(finished_run(), ElementsAre(rule.reader));
        EXPECT_EQ(kit.memory.bytes(rule.history), selected.at(rule.Option07) + history_end);
        EXPECT_THAT(kit.memory.bytes(times_file), HasSubstr(rule.key + "=2026/05/01 10:20:30\r\n"));
    }
    EXPECT_THAT(kit.memory.names("C:\\veldrana\\Temp_Files\\bak_qso.*"), SizeIs(3));
}

TEST_F(ReadHistory, ARunReadsForItsOwnRuleAlone) {
    finished_run();
    EXPECT_EQ(kit.memory.bytes(times_file),
              "[Veldrana_fdt.ini]\r\nversion=5.30\r\n"
              "[Sansyou_files QSO]\r\n"
              "hamlog_hdb_dir_FileDateTime_QSO=2026/05/01 10:20:30\r\n"
              "[Sansyou_files QSL_sent]\r\nhamlog_hdb_dir_FileDateTime_QSL_sent=\r\n"
              "[Sansyou_files QSL_rcvd]\r\nhamlog_hdb_dir_FileDateTime_QSL_rcvd=\r\n");
    EXPECT_THAT(kit.memory.names("C:\\veldrana\\Temp_Files\\bak_qso.*"),
                ElementsAre("bak_qso.mas1_p"));
}

TEST_F(ReadHistory, SecondRunDoesNotReadAgain) {
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_EQ(no_qsl_count(), 2U);
    // It would be noticed: there is another contact now, but the time is the same.
    put_database({worked("JR8YYX/1")});
    EXPECT_THAT(finished_run(), IsEmpty());
    EXPECT_EQ(no_qsl_count(), 2U);
    EXPECT_EQ(kit.memory.bytes(history_1), "\"JA1ZZA\",\"C2\"\r\n" + history_end);
}

TEST_F(ReadHistory, NextStartDoesNotReadAgainEither) {
    finished_run();
    NextStart next(kit);
    kit.person.files = {"C:\\log\\x.all"};
    next.screen.mnuOpen.press();
    EXPECT_EQ(next.screen.Option07.index.get(), 1);
    next.screen.cmdStart.press();
    EXPECT_TRUE(next.program.run_finished);
    EXPECT_EQ(next.program.counters.values.at(4), 2U);
    const std::string trace = from_code_page(kit.memory.bytes(next.program.trace.path()));
    EXPECT_THAT(trace, HasSubstr("Private Sub cmd_henkan()"));
    EXPECT_THAT(trace, Not(HasSubstr("read_hl_hdb")));
}

TEST_F(ReadHistory, DatabaseOfAnotherTimeIsReadAgain) {
    finished_run();
    put_database({worked("JR8YYX/1")}, evening);
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_EQ(no_qsl_count(), 1U);
    EXPECT_THAT(finished_run(), IsEmpty());
    // An earlier one too, as of a copy that was put back.
    put_database({worked("JA1ZZA")}, morning);
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_EQ(no_qsl_count(), 2U);
}

TEST_F(ReadHistory, WithCheck18EveryRunReads) {
    screen.Check18.value = true;
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    put_database({worked("JR8YYX/1")});
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_EQ(no_qsl_count(), 1U);
}

TEST_F(ReadHistory, HistoryDeletedByHandIsReadAgainWhateverTheTimeSays) {
    finished_run();
    const std::string history = kit.memory.bytes(history_1);
    kit.memory.remove(history_1);
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_EQ(kit.memory.bytes(history_1), history);
}

TEST_F(ReadHistory, HistoryWhoseTimeIsNotKnownIsReadAgain) {
    finished_run();
    kit.memory.remove(times_file);
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_THAT(finished_run(), IsEmpty());
}

TEST_F(ReadHistory, ChangeOfTheRuleAndBackReadsEachOnce) {
    put_database({worked("JA1ZZA", "7", "CW", "J  "), worked("JR8YYX/1", "430", "FM", "J* ")});
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_EQ(no_qsl_count(), 3U);
    screen.Option07.index = 2;
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_2()"));
    EXPECT_EQ(no_qsl_count(), 1U);
    screen.Option07.index = 1;
    EXPECT_THAT(finished_run(), IsEmpty());
    EXPECT_EQ(no_qsl_count(), 3U);
    screen.Option07.index = 2;
    EXPECT_THAT(finished_run(), IsEmpty());
    EXPECT_EQ(no_qsl_count(), 1U);
}

TEST_F(ReadHistory, ChangeOfThePeriodKeepsTheOldHistory) {
    finished_run();
    const std::string history = kit.memory.bytes(history_1);
    program.settings.options.Start_date = "20250101";
    EXPECT_THAT(finished_run(), IsEmpty());
    EXPECT_EQ(kit.memory.bytes(history_1), history);
    EXPECT_EQ(no_qsl_count(), 2U);
}

TEST_F(ReadHistory, ChangeOfThePeriodWithCheck18MakesTheHistoryAnew) {
    finished_run();
    screen.Check18.value = true;
    program.settings.options.Start_date = "20250101";
    EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_EQ(kit.memory.bytes(history_1), history_end);
    EXPECT_EQ(no_qsl_count(), 0U);
    program.settings.options.Start_date = "20240426";
    program.settings.options.End_date = "20240426";
    finished_run();
    EXPECT_EQ(no_qsl_count(), 2U) << "both ends belong to the period";
    program.settings.options.End_date = "20240425";
    finished_run();
    EXPECT_EQ(no_qsl_count(), 0U);
}

// Only the rule "none" loses its selection; the history of another is asked as it is.
TEST_F(ReadHistory, WithoutTheLogBookAsItsSourceNothingIsRead) {
    finished_run();
    put_database({worked("JR8YYX/1")}, evening);
    screen.Check18.value = true;
    screen.Option01.index = OptionGroup::none;
    EXPECT_THAT(finished_run(), IsEmpty());
    EXPECT_EQ(kit.memory.bytes(history_1), "\"JA1ZZA\",\"C2\"\r\n" + history_end);
    EXPECT_EQ(no_qsl_count(), 2U);
}

TEST_F(ReadHistory, HistoryIsMadeBeforeTheLogIsRead) {
    finished_run();
    Lines lines = kit.trace_lines();
    const Lines steps{"Private Sub count_in_name()", "Private Sub read_hl_hdb_1()",
                      "Private Sub sum_bak_2()", "Private Sub sum_bak_3()",
                      "Private Sub henkan_at_2_t()"};
    std::erase_if(lines, [&steps](const std::string& line) {
        return std::find(steps.begin(), steps.end(), line) == steps.end();
    });
    EXPECT_EQ(lines, steps);
}

// --- what the history does ---

TEST_F(ReadHistory, ContactsOfAKnownStationNeedNoCard) {
    finished_run();
    EXPECT_THAT(marks(),
                UnorderedElementsAre(Pair("JA1ZZA 7 CW", "N  "), Pair("JA1ZZA 14 SSB", "N  "),
                                     Pair("JR8YYX/1 430 FM", "J* ")));
    EXPECT_EQ(no_qsl_count(), 2U);
    EXPECT_EQ(screen.MSFlexGrid1.cell(4, 1).text, "2");
}

struct LikenessRow {
    bool Check19;
    bool Check20;
    std::string on_7_cw;
    std::string on_14_ssb;
    std::size_t no_qsl;
};

TEST_F(ReadHistory, SameBandAndSameModeNarrowIt) {
    put_database({worked("JA1ZZA", "7", "CW"), worked("JA1ZZA", "14", "CW")});
    const std::vector<LikenessRow> rows{
        {false, false, "N  ", "N  ", 2},
        {true, false, "N  ", "N  ", 2},
        {false, true, "N  ", "J* ", 1},
        {true, true, "N  ", "J* ", 1},
    };
    for (const LikenessRow& row : rows) {
        screen.Check19.value = row.Check19;
        screen.Check20.value = row.Check20;
        finished_run();
        EXPECT_THAT(marks(), UnorderedElementsAre(Pair("JA1ZZA 7 CW", row.on_7_cw),
                                                  Pair("JA1ZZA 14 SSB", row.on_14_ssb),
                                                  Pair("JR8YYX/1 430 FM", "J* ")))
            << row.Check19 << row.Check20;
        EXPECT_EQ(no_qsl_count(), row.no_qsl);
    }
}

TEST_F(ReadHistory, SameBandAloneCountsInAnyMode) {
    put_database({worked("JA1ZZA", "14", "FM")});
    screen.Check19.value = true;
    finished_run();
    EXPECT_THAT(marks(), Contains(Pair("JA1ZZA 7 CW", "J* ")));
    EXPECT_THAT(marks(), Contains(Pair("JA1ZZA 14 SSB", "N  ")));
}

TEST_F(ReadHistory, PortableCallIsFoundAsLogged) {
    put_database({worked("JR8YYX")});
    finished_run();
    EXPECT_THAT(marks(), Contains(Pair("JR8YYX/1 430 FM", "J* ")));
    put_database({worked("JR8YYX/1")}, evening);
    finished_run();
    EXPECT_THAT(marks(), Contains(Pair("JR8YYX/1 430 FM", "N  ")));
}

TEST_F(ReadHistory, LetterOfTheUserTakesThePlaceOfN) {
    program.settings.environment.No_QSL_moji = "X";
    finished_run();
    EXPECT_THAT(marks(),
                UnorderedElementsAre(Pair("JA1ZZA 7 CW", "X  "), Pair("JA1ZZA 14 SSB", "X  "),
                                     Pair("JR8YYX/1 430 FM", "J* ")));
}

// Each rule by itself raises the counter.
TEST_F(ReadHistory, ClubStationOfTheHistoryCountsTwice) {
    screen.Check10.value = true;
    put_database({worked("JA1ZZA")});
    finished_run();
    // JA1ZZA twice by the history, all three by the fourth letter of their calls.
    EXPECT_EQ(no_qsl_count(), 5U);
    EXPECT_THAT(marks(),
                UnorderedElementsAre(Pair("JA1ZZA 7 CW", "N  "), Pair("JA1ZZA 14 SSB", "N  "),
                                     Pair("JR8YYX/1 430 FM", "N  ")));
}

TEST_F(ReadHistory, OneContactWithoutACardTurnsTheStation) {
    screen.Check19.value = true;
    screen.Check3.value = true;
    finished_run();
    EXPECT_THAT(marks(),
                UnorderedElementsAre(Pair("JA1ZZA 7 CW", "N  "), Pair("JA1ZZA 14 SSB", "N  "),
                                     Pair("JR8YYX/1 430 FM", "J* ")));
    EXPECT_EQ(no_qsl_count(), 1U) << "counted before it turns";
}

TEST_F(ReadHistory, OneContactWithACardTurnsTheStation) {
    screen.Check19.value = true;
    screen.Check2.value = true;
    finished_run();
    EXPECT_THAT(marks(),
                UnorderedElementsAre(Pair("JA1ZZA 7 CW", "J  "), Pair("JA1ZZA 14 SSB", "J  "),
                                     Pair("JR8YYX/1 430 FM", "J  ")));
    EXPECT_EQ(no_qsl_count(), 1U);
}

TEST_F(ReadHistory, StationWithoutAnyCardStaysSo) {
    screen.Check2.value = true;
    finished_run();
    EXPECT_THAT(marks(),
                UnorderedElementsAre(Pair("JA1ZZA 7 CW", "N  "), Pair("JA1ZZA 14 SSB", "N  "),
                                     Pair("JR8YYX/1 430 FM", "J  ")));
}

TEST_F(ReadHistory, LogBookAsTextCountsJustAsWell) {
    put_database_bytes(quoted_row({"JR8YYX/1", "24/04/26", "21:05J", "59", "59", "430", "FM", "",
                                   "", "J  ", "", "", "", ""}));
    finished_run();
    EXPECT_THAT(marks(), Contains(Pair("JR8YYX/1 430 FM", "N  ")));
    EXPECT_EQ(no_qsl_count(), 1U);
}

TEST_F(ReadHistory, RecordMarkedDeletedDoesNotCount) {
    LogBookTable table(own_columns());
    table.add(own_values(worked("JA1ZZA")), '*');
    table.add(own_values(worked("JR8YYX/1")));
    put_database_bytes(table.bytes());
    finished_run();
    EXPECT_EQ(kit.memory.bytes(history_1), "\"JR8YYX/1\",\"C2\"\r\n" + history_end);
    EXPECT_EQ(no_qsl_count(), 1U);
}

TEST_F(ReadHistory, EmptyLogBookCoversNothing) {
    for (const std::string& bytes : {std::string(), own_table({}).bytes()}) {
        kit.memory.protect_log_book({});  // another program may do so
        kit.memory.remove(database);
        put_database_bytes(bytes, bytes.empty() ? morning : evening);
        EXPECT_THAT(finished_run(), ElementsAre("read_hl_hdb_1()"));
        EXPECT_EQ(kit.memory.bytes(history_1), history_end);
        EXPECT_EQ(no_qsl_count(), 0U);
    }
}

// --- files ---

TEST_F(ReadHistory, WorkFilesGoAndTheHistoryStays) {
    finished_run();
    EXPECT_THAT(kit.memory.names("C:\\bak_*"), IsEmpty());
    EXPECT_THAT(kit.memory.names("C:\\log\\bak_*"), IsEmpty());
    EXPECT_EQ(kit.memory.bytes(history_1), "\"JA1ZZA\",\"C2\"\r\n" + history_end);
    screen.tool_end.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::orderly);
    EXPECT_EQ(kit.memory.bytes(history_1), "\"JA1ZZA\",\"C2\"\r\n" + history_end);
    EXPECT_TRUE(kit.memory.file_exists(times_file));
}

TEST_F(ReadHistory, FileThatNothingWritesGoesAtTheStart) {
    kit.put_text("C:\\veldrana\\Temp_Files\\bak_qso.HDX", "x");
    kit.put_text("C:\\veldrana\\bak_qso.mas1_p", "of an older place");
    finished_run();
    EXPECT_FALSE(kit.memory.file_exists("C:\\veldrana\\Temp_Files\\bak_qso.HDX"));
    EXPECT_FALSE(kit.memory.file_exists("C:\\veldrana\\bak_qso.mas1_p"));
    EXPECT_TRUE(kit.memory.file_exists(history_1));
}

// --- failures ---

TEST_F(ReadHistory, DatabaseThatDoesNotOpenEndsTheProgramWithoutAWord) {
    for (const std::string& bytes : {std::string("This is no log book.\r\n"),
                                     std::string(500, '\0'), std::string("\x03\0\0", 3)}) {
        ProgramKit other;
        other.put_text("C:\\log\\x.all", log_of_three);
        other.memory.put(database, bytes);
        other.memory.set_modified(database, morning);
        other.start();
        other.open("C:\\log\\x.all");
        other.screen().Option07.index = 2;
        other.screen().cmdStart.press();
        EXPECT_EQ(other.program->ended(), ProgramEnd::Cause::silent);
        EXPECT_THAT(other.person.boxes, IsEmpty());
        EXPECT_THAT(other.trace_lines(), Not(Contains(HasSubstr("エラー発生"))));
        EXPECT_FALSE(other.memory.file_exists("C:\\log\\x_hjn.csv"));
        EXPECT_FALSE(other.memory.file_exists(history_2));
        EXPECT_EQ(other.memory.bytes(database), bytes);
        EXPECT_EQ(other.memory.bytes("C:\\log\\x.all"), log_of_three);
        EXPECT_THAT(from_code_page(other.memory.bytes(times_file)),
                    HasSubstr("QSL_sent=2026/05/01 10:20:30"));
    }
}

TEST_F(ReadHistory, MissingDatabaseIsReported) {
    kit.memory.protect_log_book({});  // another program may do so
    kit.memory.remove(database);
    run();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　53"));
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub read_hl_hdb_1() ：　53"));
}

TEST_F(ReadHistory, DatabaseThatGoesMissingAfterARunIsReportedWhereItsTimeIsAskedFor) {
    finished_run();
    kit.memory.protect_log_book({});  // another program may do so
    kit.memory.remove(database);
    kit.person.boxes.clear();
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub cmd_henkan() ：　53"));
}

// The new time is noted before the reading, so the next start takes the old history for good.
TEST_F(ReadHistory, ReadingThatFailedIsNotMadeUpForAsLongAsThereIsAHistory) {
    finished_run();
    put_database({worked("JR8YYX/1")}, evening);
    kit.disk.fail_writing("bak_1.txt", Failure::disk_full);
    EXPECT_THAT(run(), ElementsAre("read_hl_hdb_1()"));
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub read_hl_hdb_1() ：　61"));

    NextStart next(kit);
    kit.person.files = {"C:\\log\\x.all"};
    next.screen.mnuOpen.press();
    next.screen.cmdStart.press();
    EXPECT_TRUE(next.program.run_finished);
    EXPECT_EQ(next.program.counters.values.at(4), 2U) << "of the old history";
}

TEST_F(ReadHistory, HistoryOfAnOddCountOfValuesIsReportedByTheRowBuilder) {
    finished_run();
    kit.put_text(history_1, "\"JA1ZZA\"\r\n");
    kit.person.boxes.clear();
    run();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生  Private Sub Henkan_txt_2() ：　62"));
}

// Whatever fails, the run ends in the report or comes to its end, and neither the database nor the
// log is touched.
TEST(ReadHistoryFaults, EveryOperationMayFail) {
    const std::string bytes = own_table({worked("JA1ZZA"), worked("JR8YYX/1")}).bytes();
    const auto prepare = [&bytes](ProgramKit& kit) {
        kit.put_text("C:\\log\\x.all", log_of_three);
        kit.memory.put(database, bytes);
        kit.memory.set_modified(database, morning);
        kit.start();
        kit.open("C:\\log\\x.all");
        kit.screen().Option07.index = 1;
    };
    std::size_t operations = 0;
    std::string result;
    {
        ProgramKit kit;
        prepare(kit);
        const std::size_t before = kit.disk.operations();
        kit.screen().cmdStart.press();
        operations = kit.disk.operations() - before;
        result = kit.memory.bytes("C:\\log\\x_hjn.csv");
    }
    EXPECT_THAT(result, HasSubstr("\"N  \""));
    ASSERT_GT(operations, 50U);
    std::size_t unnoticed = 0;
    for (std::size_t n = 1; n <= operations; ++n) {
        ProgramKit kit;
        prepare(kit);
        kit.disk.fail_at(n, Failure::device_error);
        kit.screen().cmdStart.press();
        EXPECT_EQ(kit.memory.bytes(database), bytes) << n;
        EXPECT_EQ(date_time_text(kit.memory.modified(database)), "2026/05/01 10:20:30") << n;
        EXPECT_EQ(kit.memory.bytes("C:\\log\\x.all"), log_of_three) << n;
        if (!kit.program->ended()) {
            // Options or times were not saved, which nobody is told.
            EXPECT_EQ(kit.memory.bytes("C:\\log\\x_hjn.csv"), result) << n;
            ++unnoticed;
            continue;
        }
        EXPECT_EQ(kit.program->ended(), ProgramEnd::Cause::reported) << n;
        ASSERT_THAT(kit.person.boxes, SizeIs(2)) << n;
        EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　57"));
    }
    EXPECT_LT(unnoticed, 30U);
}

}  // namespace
}  // namespace veldrana
