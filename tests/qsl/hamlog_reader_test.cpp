// The reading of the log book: the steps in their order, what the three readers select, and the
// scratch file to the byte.
#include "qsl/hamlog_reader.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/failure_report.h"
#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/code_page_932.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/scripted_hamlog_library.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

using Lines = std::vector<std::string>;

const std::string database = "C:\\Hamlog\\Hamlog.hdb";
const std::string bak_1 = "C:\\bak_1.txt";
const std::string times_file = "C:\\veldrana\\Veldrana_fdt.ini";
const std::string database_time = "2026/05/01 10:20:30";

const std::string sentinels =
    "\"YYYYYYE2       \",\"YYYYYY       \",\"E2\"\r\n"
    "\"ZZZZZYE2       \",\"ZZZZZZ       \",\"E2\"\r\n";

constexpr std::array<HistoryKind, 3> kinds{HistoryKind::worked, HistoryKind::sent,
                                           HistoryKind::received};

std::string number_of(HistoryKind kind) {
    return std::to_string(static_cast<int>(kind));
}

// A record with these marks.
ScriptedRecord marked(const std::string& marks) {
    ScriptedRecord record;
    record.marks = marks;
    return record;
}
ScriptedRecord dated(const std::string& date) {
    ScriptedRecord record;
    record.date = date;
    return record;
}
ScriptedRecord called(const std::string& call) {
    ScriptedRecord record;
    record.call = call;
    return record;
}

class HamlogReader : public StageFixture {
  protected:
    HamlogReader() {
        disk.put(database, "the library alone knows what stands here");
        disk.set_modified(database, {2026, 5, 1, 10, 20, 30});
        disk.put_folder("C:\\veldrana");
    }

    void read(HistoryKind kind = HistoryKind::worked) {
        read_hl_hdb(failing_stage, library, kind, request, times);
    }

    // The lines in front of the sentinels, which must be there.
    std::string selected(HistoryKind kind = HistoryKind::worked) {
        read(kind);
        const std::string bytes = disk.bytes(bak_1);
        EXPECT_TRUE(bytes.ends_with(sentinels)) << bytes;
        return bytes.substr(0, bytes.size() - std::min(bytes.size(), sentinels.size()));
    }
    bool selects(const ScriptedRecord& record, HistoryKind kind = HistoryKind::worked) {
        library.records = {record};
        return !selected(kind).empty();
    }

    // Where the first line that holds a text stands in the trace log; behind its end if none does.
    std::size_t trace_place(std::string_view text) const {
        const auto found = std::find_if(
            trace.lines.begin(), trace.lines.end(),
            [text](const std::string& line) { return line.find(text) != std::string::npos; });
        return static_cast<std::size_t>(found - trace.lines.begin());
    }
    bool traced(std::string_view text) const { return trace_place(text) < trace.lines.size(); }

    FailingDisk failing{disk};
    const Stage failing_stage{failing, trace.log, sorter, person, lblCFG, bar};
    ScriptedHamlogLibrary library;
    LogBookRequest request{.hamlog_hdb_dir = database,
                           .drive_path = "C:\\",
                           .strPath = "C:\\veldrana\\",
                           .Start_Date = "19600101",
                           .End_Date = "20260504",
                           .End_Date_bak = "20100101"};
    HistoryTimes times;
};

// --- the operations of the library ---

TEST_F(HamlogReader, OperationsOfTheLibraryInTheirOrder) {
    library.records.resize(3);
    for (const HistoryKind kind : kinds) {
        library.calls.clear();
        read(kind);
        std::erase_if(library.calls,
                      [](const std::string& call) { return call.starts_with("ThwString "); });
        EXPECT_THAT(library.calls, ElementsAre("dbf_open " + database, "dbf_rcount", "dbf_close",
                                               "HamlogOpen " + database, "THW_read 1 2",
                                               "THW_read 2 2", "THW_read 3 2", "HamlogClose"))
            << number_of(kind);
    }
}

// The reader asks for the fields that it looks at alone; all fourteen are to be fetched of each
// record, in their order, one that is not selected too.
TEST_F(HamlogReader, EveryFieldIsFetchedInOrderWhateverIsSelected) {
    Lines expected;
    for (int field = 1; field <= 14; ++field) {
        expected.push_back("ThwString " + std::to_string(field));
    }
    library.records = {dated("59/12/31")};
    for (const HistoryKind kind : kinds) {
        library.calls.clear();
        read(kind);
        std::erase_if(library.calls,
                      [](const std::string& call) { return !call.starts_with("ThwString "); });
        EXPECT_THAT(library.calls, ElementsAreArray(expected)) << number_of(kind);
    }
}

TEST_F(HamlogReader, AnswerOfTheReadingOfARecordIsNotTested) {
    library.read_answer = 1;
    library.records.resize(2);
    EXPECT_EQ(selected(),
              "\"JA1ZZA       E2\",\"JA1ZZA       \",\"E2\"\r\n"
              "\"JA1ZZA       E2\",\"JA1ZZA       \",\"E2\"\r\n");
}

// --- steps ---

TEST_F(HamlogReader, StatusAndTimesComeBeforeTheDatabaseIsTouched) {
    bool looked = false;
    library.on_call = [&](const std::string& call) {
        if (call.starts_with("dbf_open")) {
            looked = true;
            EXPECT_EQ(lblCFG.caption.get(), "Hamlog. 読込 for No QSL");
            EXPECT_TRUE(traced("Hamlog. 読込 for No QSL"));
            EXPECT_EQ(times.QSO, database_time);
            EXPECT_THAT(disk.bytes(times_file),
                        HasSubstr("hamlog_hdb_dir_FileDateTime_QSO=" + database_time + "\r\n"));
            EXPECT_FALSE(disk.file_exists(bak_1));
        }
    };
    read();
    EXPECT_TRUE(looked);
}

TEST_F(HamlogReader, ScratchFileIsOpenedOnceTheDatabaseIs) {
    disk.put(bak_1, "of an earlier run");
    std::size_t looked = 0;
    library.records.resize(2);
    library.on_call = [&](const std::string& call) {
        if (call.starts_with("HamlogOpen")) {
            ++looked;
            EXPECT_EQ(disk.bytes(bak_1), "of an earlier run");
        } else if (call.starts_with("THW_read 1")) {
            ++looked;
            EXPECT_EQ(bar.maximum.get(), 2U);
            EXPECT_EQ(bar.value.get(), 0U);
            EXPECT_EQ(disk.bytes(bak_1), "");
        } else if (call.starts_with("THW_read 2")) {
            ++looked;
            EXPECT_EQ(bar.value.get(), 1U);
        } else if (call == "HamlogClose") {
            ++looked;
            EXPECT_TRUE(disk.bytes(bak_1).ends_with(sentinels));
            EXPECT_NO_THROW(disk.open_for_reading(bak_1)) << "closed";
            EXPECT_EQ(bar.value.get(), 0U);
        }
    };
    read();
    EXPECT_EQ(looked, 4U);
}

struct DatabaseName {
    std::string path;
    std::string caption;
};

TEST_F(HamlogReader, StatusTellsTheNameWithoutItsExtensionAndKeepsTheDot) {
    const std::vector<DatabaseName> rows{
        {"C:\\Hamlog\\Hamlog.hdb", "Hamlog. 読込 for No QSL"},
        {"C:\\Hamlog\\old.log.hdb", "old.log. 読込 for No QSL"},
        {"D:\\記録.csv", "記録. 読込 for No QSL"},
    };
    for (const DatabaseName& row : rows) {
        disk.put(row.path, "");
        request.hamlog_hdb_dir = row.path;
        trace.lines.clear();
        read();
        EXPECT_EQ(lblCFG.caption.get(), row.caption);
        EXPECT_THAT(trace.lines, Contains(HasSubstr(row.caption)));
        EXPECT_THAT(library.calls, Contains("HamlogOpen " + row.path));
    }
}

TEST_F(HamlogReader, ScratchFileLiesInTheScratchFolder) {
    disk.put_folder("D:\\");
    request.drive_path = "D:\\";
    read();
    EXPECT_EQ(disk.bytes("D:\\bak_1.txt"), sentinels);
    EXPECT_FALSE(disk.file_exists(bak_1));
}

TEST_F(HamlogReader, LeavesNothingButTheScratchFileAndTheTimes) {
    library.records.resize(3);
    const std::string before = disk.bytes(database);
    read();
    EXPECT_THAT(disk.files(), testing::UnorderedElementsAre(bak_1, database, times_file));
    EXPECT_EQ(disk.bytes(database), before);
    EXPECT_THAT(person.boxes, IsEmpty());
}

// --- the kept times ---

struct Kept {
    HistoryKind kind;
    std::string HistoryTimes::*time;
    std::string key;
};

const std::vector<Kept> kept_times{
    {HistoryKind::worked, &HistoryTimes::QSO, "hamlog_hdb_dir_FileDateTime_QSO"},
    {HistoryKind::sent, &HistoryTimes::QSL_sent, "hamlog_hdb_dir_FileDateTime_QSL_sent"},
    {HistoryKind::received, &HistoryTimes::QSL_rcvd, "hamlog_hdb_dir_FileDateTime_QSL_rcvd"},
};

TEST_F(HamlogReader, EachReaderKeepsTheTimeOfItsOwnKind) {
    for (const Kept& row : kept_times) {
        times = {.QSO = "a", .QSL_sent = "b", .QSL_rcvd = "c"};
        HistoryTimes expected = times;
        expected.*row.time = database_time;
        read(row.kind);
        EXPECT_EQ(times.QSO, expected.QSO);
        EXPECT_EQ(times.QSL_sent, expected.QSL_sent);
        EXPECT_EQ(times.QSL_rcvd, expected.QSL_rcvd);
        EXPECT_EQ(disk.bytes(times_file),
                  "[Veldrana_fdt.ini]\r\nversion=5.30\r\n"
                  "[Sansyou_files QSO]\r\nhamlog_hdb_dir_FileDateTime_QSO=" +
                      expected.QSO +
                      "\r\n[Sansyou_files QSL_sent]\r\nhamlog_hdb_dir_FileDateTime_QSL_sent=" +
                      expected.QSL_sent +
                      "\r\n[Sansyou_files QSL_rcvd]\r\nhamlog_hdb_dir_FileDateTime_QSL_rcvd=" +
                      expected.QSL_rcvd + "\r\n");
        EXPECT_EQ(time_of(times, row.kind), database_time);
    }
}

TEST_F(HamlogReader, TimesAreNotedThoughTheReadingFailsLater) {
    library.on_call = [](const std::string& call) {
        if (call == "THW_read 1 2") {
            throw RunTimeError(Failure::device_error);
        }
    };
    library.records.resize(1);
    EXPECT_EQ(failure_of([&] { read(HistoryKind::received); }), 57);
    EXPECT_THAT(disk.bytes(times_file),
                HasSubstr("hamlog_hdb_dir_FileDateTime_QSL_rcvd=" + database_time + "\r\n"));
}

// --- what is selected ---

struct Marks {
    std::string field;
    bool sent;
    bool received;
};

// Whatever the first mark is.
const std::vector<Marks> marks_rows{
    {"   ", false, false}, {"J  ", false, false}, {"N  ", false, false}, {"*  ", false, false},
    {"J* ", true, false},  {"J R", false, true},  {"J*R", true, true},   {" * ", true, false},
    {"  R", false, true},  {" *R", true, true},   {"", false, false},    {"J", false, false},
    {"J*", true, false},   {"Ｊ* ", true, false}, {"J　 ", true, false},
};

TEST_F(HamlogReader, SecondMarkSelectsForTheSentAndThirdForTheReceived) {
    for (const Marks& row : marks_rows) {
        EXPECT_TRUE(selects(marked(row.field), HistoryKind::worked)) << row.field;
        EXPECT_EQ(selects(marked(row.field), HistoryKind::sent), row.sent) << row.field;
        EXPECT_EQ(selects(marked(row.field), HistoryKind::received), row.received) << row.field;
    }
}

TEST_F(HamlogReader, SentSelectsNoneWithABlankAsSecondMarkWhateverTheFirstIs) {
    for (const std::string first : {" ", "J", "N", "*", "R", "X", "0"}) {
        EXPECT_FALSE(selects(marked(first + "  "), HistoryKind::sent)) << first;
        EXPECT_FALSE(selects(marked(first + " R"), HistoryKind::sent)) << first;
    }
}

// A quote is doubled as the field is fetched, which moves the marks behind it.
TEST_F(HamlogReader, ADoubledQuoteCountsAmongTheMarks) {
    const std::vector<Marks> rows{
        {"\"  ", true, false},  // ""__
        {"\" R", true, false},  // "" R
        {"\"* ", true, true},   // ""* _
        {"J\" ", true, true},   // J""_
        {"J \"", false, true},  // J ""
        {" \"R", true, true},   //  ""R
    };
    for (const Marks& row : rows) {
        EXPECT_EQ(selects(marked(row.field), HistoryKind::sent), row.sent) << row.field;
        EXPECT_EQ(selects(marked(row.field), HistoryKind::received), row.received) << row.field;
    }
}

TEST_F(HamlogReader, EachReaderKeepsItsRecordsInTheirOrder) {
    library.records = {{"JA3ZZC", "25/04/26", "7", "SSB", "J* "},
                       {"JA1ZZA", "25/04/26", "430", "FM", "J R"},
                       {"JA2ZZB", "24/04/26", "14", "CW", "J*R"},
                       {"JA4ZZD", "24/04/26", "2.5", "FT8", "   "}};
    const std::string c = "\"JA3ZZC       C1\",\"JA3ZZC       \",\"C1\"\r\n";
    const std::string a = "\"JA1ZZA       L4\",\"JA1ZZA       \",\"L4\"\r\n";
    const std::string b = "\"JA2ZZB       E2\",\"JA2ZZB       \",\"E2\"\r\n";
    const std::string d = "\"JA4ZZD       Z9\",\"JA4ZZD       \",\"Z9\"\r\n";
    EXPECT_EQ(selected(HistoryKind::worked), c + a + b + d);
    EXPECT_EQ(selected(HistoryKind::sent), c + b);
    EXPECT_EQ(selected(HistoryKind::received), a + b);
}

// --- the period ---

TEST_F(HamlogReader, BothEndsOfThePeriodBelongToIt) {
    request.Start_Date = "20250426";
    request.End_Date = "20250503";
    EXPECT_FALSE(selects(dated("25/04/25")));
    EXPECT_TRUE(selects(dated("25/04/26")));
    EXPECT_TRUE(selects(dated("25/04/30")));
    EXPECT_TRUE(selects(dated("25/05/03")));
    EXPECT_FALSE(selects(dated("25/05/04")));
    EXPECT_FALSE(selects(dated("24/04/30")));
    EXPECT_FALSE(selects(dated("26/04/30")));

    request.End_Date = "20250426";
    EXPECT_TRUE(selects(dated("25/04/26"))) << "a period of one day";
}

TEST_F(HamlogReader, YearFiftyIsOfThisCenturyAndFiftyOneOfTheLast) {
    request.Start_Date = "20500101";
    request.End_Date = "20501231";
    EXPECT_TRUE(selects(dated("50/06/01")));
    EXPECT_FALSE(selects(dated("51/06/01")));
    request.Start_Date = "19510101";
    request.End_Date = "19511231";
    EXPECT_TRUE(selects(dated("51/06/01")));
    EXPECT_FALSE(selects(dated("50/06/01")));
    request.Start_Date = "20000101";
    request.End_Date = "20001231";
    EXPECT_TRUE(selects(dated("00/06/01")));
    request.Start_Date = "19990101";
    request.End_Date = "19991231";
    EXPECT_TRUE(selects(dated("99/06/01")));
}

TEST_F(HamlogReader, DateCountsWithoutItsSlashes) {
    request.Start_Date = request.End_Date = "20250426";
    EXPECT_TRUE(selects(dated("250426")));
    EXPECT_TRUE(selects(dated("2/5/0/4/2/6")));
    EXPECT_TRUE(selects(dated("25/04/26 ")));
    EXPECT_TRUE(selects(dated("25/04/26x"))) << "by its leading digits";
    EXPECT_FALSE(selects(dated("25-04-26")));
}

TEST_F(HamlogReader, DateThatIsNoNumberFallsOutOfThePeriodWithoutAFailure) {
    for (const std::string date : {"", "/", "        ", "xx/yy/zz", "25/ab/cd", "二五", "5/1/1"}) {
        EXPECT_FALSE(selects(dated(date))) << date;
    }
    EXPECT_THAT(error_lines(), IsEmpty());
}

TEST_F(HamlogReader, APeriodThatEndsBeforeItBeginsSelectsNothing) {
    request.Start_Date = "20250427";
    request.End_Date = "20250425";
    EXPECT_FALSE(selects(dated("25/04/26")));
}

TEST_F(HamlogReader, WithoutAnEndTheKeptEndCounts) {
    request.End_Date = "";
    request.End_Date_bak = "20250426";
    EXPECT_TRUE(selects(dated("25/04/26")));
    EXPECT_FALSE(selects(dated("25/04/27")));
    EXPECT_THAT(trace.lines, Contains("     End_Date = End_Date_bak  20250426"));
}

TEST_F(HamlogReader, WithAnEndTheKeptEndDoesNotCount) {
    request.End_Date_bak = "20250101";
    EXPECT_TRUE(selects(dated("25/04/26")));
    EXPECT_FALSE(traced("End_Date_bak"));
}

// --- the scratch file ---

TEST_F(HamlogReader, EmptyDatabaseGivesTheSentinelsAlone) {
    read();
    EXPECT_EQ(disk.bytes(bak_1), sentinels);
    EXPECT_THAT(library.calls, Not(Contains(StartsWith("THW_read"))));
}

TEST_F(HamlogReader, PeriodOrRuleThatSelectsNothingGivesTheSentinelsAlone) {
    library.records = {dated("59/12/31"), marked("J  ")};
    request.Start_Date = "20260101";
    read(HistoryKind::worked);
    EXPECT_EQ(disk.bytes(bak_1), sentinels);
    request.Start_Date = "19600101";
    read(HistoryKind::sent);
    EXPECT_EQ(disk.bytes(bak_1), sentinels);
}

struct CallField {
    std::string call;
    std::string field;  // 13 characters
};

TEST_F(HamlogReader, CallFieldHasThirteenCharacters) {
    const std::vector<CallField> rows{
        {"JA1ZZA", "JA1ZZA       "},         {"", "             "},
        {"JR8YYX/1", "JR8YYX/1     "},       {"KH2/JA1ZZA/QR", "KH2/JA1ZZA/QR"},
        {"KH2/JA1ZZA/QRP", "KH2/JA1ZZA/QR"}, {" ja1zza ", " ja1zza      "},
    };
    for (const CallField& row : rows) {
        library.records = {called(row.call)};
        EXPECT_EQ(selected(), "\"" + row.field + "E2\",\"" + row.field + "\",\"E2\"\r\n");
    }
}

TEST_F(HamlogReader, CallsThatShareThirteenCharactersAreOne) {
    library.records = {called("KH2/JA1ZZA/QRP"), called("KH2/JA1ZZA/QRO")};
    const std::string line = "\"KH2/JA1ZZA/QRE2\",\"KH2/JA1ZZA/QR\",\"E2\"\r\n";
    EXPECT_EQ(selected(), line + line);
}

TEST_F(HamlogReader, ADoubledQuoteCountsInTheCallField) {
    library.records = {called("JA1\"ZZA"), called("KH2/\"JA1ZZA/1")};
    EXPECT_EQ(selected(),
              "\"JA1\"\"ZZA     E2\",\"JA1\"\"ZZA     \",\"E2\"\r\n"
              "\"KH2/\"\"JA1ZZA/E2\",\"KH2/\"\"JA1ZZA/\",\"E2\"\r\n");
}

TEST_F(HamlogReader, CallOfWideCharactersIsCountedInCharacters) {
    library.records = {called("ＪＡ１ＺＺＡ")};
    const std::string field = "ＪＡ１ＺＺＡ       ";
    EXPECT_EQ(selected(), to_code_page("\"" + field + "E2\",\"" + field + "\",\"E2\"\r\n"));
}

TEST_F(HamlogReader, CodeComesFromFrequencyAndMode) {
    ScriptedRecord record;
    record.frequency = "7.012";
    record.mode = " SSB ";
    library.records = {record};
    EXPECT_EQ(selected(), "\"JA1ZZA       C1\",\"JA1ZZA       \",\"C1\"\r\n");
}

TEST_F(HamlogReader, AnEarlierScratchFileGoes) {
    disk.put(bak_1, std::string(10000, 'x'));
    read();
    EXPECT_EQ(disk.bytes(bak_1), sentinels);
}

// --- progress ---

TEST_F(HamlogReader, ProgressGoesRecordByRecordAndIsCleared) {
    library.records = {{}, dated("59/12/31"), {}};
    std::vector<std::size_t> values;
    library.on_call = [&](const std::string& call) {
        if (call.starts_with("THW_read")) {
            EXPECT_EQ(bar.maximum.get(), 3U);
            values.push_back(bar.value);
        }
    };
    read();
    EXPECT_THAT(values, ElementsAre(0, 1, 2)) << "one that is not selected counts";
    EXPECT_EQ(bar.value.get(), 0U);
}

// --- trace ---

TEST_F(HamlogReader, TraceOfEachReader) {
    for (const HistoryKind kind : kinds) {
        trace.lines.clear();
        read(kind);
        const std::string entry = "Private Sub read_hl_hdb_" + number_of(kind) + "()";
        ASSERT_FALSE(trace.lines.empty());
        EXPECT_EQ(trace.lines.front(), entry);
        const std::size_t status = trace_place("Hamlog. 読込 for No QSL");
        const std::size_t time = trace_place(database_time);
        EXPECT_LT(0U, status);
        EXPECT_LT(status, time);
        EXPECT_LT(time, trace.lines.size());
        const auto end = std::find_if(
            trace.lines.begin() + static_cast<std::ptrdiff_t>(time), trace.lines.end(),
            [](const std::string& line) { return line.find("20260504") != std::string::npos; });
        EXPECT_NE(end, trace.lines.end()) << "the end of the period behind the time";
        EXPECT_THAT(error_lines(), IsEmpty());
    }
}

TEST_F(HamlogReader, SecondReaderTellsMore) {
    library.records = {marked("J* "), marked("J  "), marked("J*R")};
    read(HistoryKind::sent);
    EXPECT_TRUE(traced("19600101"));
    EXPECT_TRUE(traced("20260504"));
    EXPECT_THAT(trace.lines, Contains(HasSubstr(database)).Times(testing::Ge(2)));
    EXPECT_THAT(trace.lines, Contains("     recno = 3"));
    EXPECT_THAT(trace.lines, Contains("     HamlogOpen 成功　: " + database));
    Lines tail(trace.lines.begin() + static_cast<std::ptrdiff_t>(trace_place("成功")) + 1,
               trace.lines.end());
    std::erase_if(tail, [](const std::string& line) { return line.starts_with("Open "); });
    ASSERT_THAT(tail, SizeIs(4));
    EXPECT_EQ(trim(tail[0]), "1");
    EXPECT_EQ(trim(tail[1]), "2");
    EXPECT_EQ(trim(tail[2]), "3");
    // Two records and two sentinels, which a stream that was read to its end counts as one more.
    EXPECT_EQ(tail[3], "bak_1.txt の件数5");
    EXPECT_LT(trace_place("recno = 3"), trace_place("HamlogOpen 成功"));
}

TEST_F(HamlogReader, FirstAndThirdReaderDoNotTellThat) {
    library.records.resize(3);
    for (const HistoryKind kind : {HistoryKind::worked, HistoryKind::received}) {
        trace.lines.clear();
        read(kind);
        EXPECT_FALSE(traced("recno"));
        EXPECT_FALSE(traced("成功"));
        EXPECT_FALSE(traced("19600101"));
        EXPECT_THAT(trace.lines,
                    Not(Contains(testing::ResultOf(
                        [](const std::string& line) { return trim(line) == "1"; }, true))));
    }
}

// --- failures ---

TEST_F(HamlogReader, DatabaseThatDoesNotOpenEndsTheProgramWithoutAWord) {
    for (const HistoryKind kind : kinds) {
        for (const int answer : {1, -1, 5}) {
            library.open_answer = answer;
            library.records.resize(2);
            library.calls.clear();
            trace.lines.clear();
            disk.put(bak_1, "of an earlier run");
            try {
                read(kind);
                FAIL() << "goes on";
            } catch (const ProgramEnd& end) {
                EXPECT_EQ(end.cause, ProgramEnd::Cause::silent);
            }
            EXPECT_THAT(library.calls,
                        ElementsAre("dbf_open " + database, "dbf_rcount", "dbf_close",
                                    "HamlogOpen " + database, "HamlogClose"));
            EXPECT_THAT(person.boxes, IsEmpty());
            EXPECT_THAT(error_lines(), IsEmpty());
            EXPECT_FALSE(traced("成功"));
            EXPECT_EQ(disk.bytes(bak_1), "of an earlier run");
            EXPECT_THAT(disk.bytes(times_file), HasSubstr(database_time));
        }
    }
}

TEST_F(HamlogReader, OperationThatFailsLeavesTheLogBookClosedAndAnErrorLine) {
    library.records.resize(2);
    for (const HistoryKind kind : kinds) {
        for (const std::string operation : {"dbf_open", "dbf_rcount", "dbf_close", "HamlogOpen",
                                            "THW_read 1", "THW_read 2", "ThwString "}) {
            library.calls.clear();
            trace.lines.clear();
            library.on_call = [&](const std::string& call) {
                if (call.starts_with(operation)) {
                    throw RunTimeError(Failure::device_error);
                }
                if (call == "HamlogClose") {
                    EXPECT_THAT(error_lines(), IsEmpty()) << "closed first";
                }
            };
            EXPECT_EQ(failure_of([&] { read(kind); }), 57) << operation;
            EXPECT_EQ(library.calls.back(), "HamlogClose") << operation;
            EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub read_hl_hdb_" +
                                                   number_of(kind) + "() ：　57"))
                << operation;
        }
    }
}

TEST_F(HamlogReader, MissingDatabaseIsAFailureOfTheReader) {
    disk.remove(database);
    for (const HistoryKind kind : kinds) {
        trace.lines.clear();
        EXPECT_EQ(failure_of([&] { read(kind); }), 53);
        EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub read_hl_hdb_" +
                                               number_of(kind) + "() ：　53"));
        EXPECT_EQ(library.calls, Lines{"HamlogClose"});
        library.calls.clear();
    }
    EXPECT_FALSE(disk.file_exists(times_file));
}

TEST_F(HamlogReader, ScratchFileThatCannotBeWrittenIsAFailureOfTheReader) {
    failing.fail_writing("bak_1.txt", Failure::permission_denied);
    EXPECT_EQ(failure_of([&] { read(HistoryKind::sent); }), 70);
    EXPECT_EQ(library.calls.back(), "HamlogClose");
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub read_hl_hdb_2() ：　70"));
}

TEST_F(HamlogReader, TimesThatCannotBeWrittenDoNotKeepFromReading) {
    failing.fail_writing("Veldrana_fdt.ini", Failure::permission_denied);
    library.records.resize(1);
    EXPECT_EQ(selected(), "\"JA1ZZA       E2\",\"JA1ZZA       \",\"E2\"\r\n");
    EXPECT_EQ(times.QSO, database_time);
}

// Whatever fails on the disk: told and closed, or without effect.
TEST_F(HamlogReader, EveryOperationOfTheDiskMayFail) {
    library.records.resize(2000);  // more than one block
    for (const HistoryKind kind : kinds) {
        for (ScriptedRecord& record : library.records) {
            record.marks = "J*R";
        }
        std::size_t before = failing.operations();
        read(kind);
        const std::size_t operations = failing.operations() - before;
        const std::string whole = disk.bytes(bak_1);
        ASSERT_GT(operations, 3U);
        std::size_t failures = 0;
        for (std::size_t operation = 1; operation <= operations; ++operation) {
            disk.put(bak_1, "");
            library.calls.clear();
            trace.lines.clear();
            failing.fail_at(operation, Failure::disk_full);
            if (failure_of([&] { read(kind); }) == 0) {
                EXPECT_EQ(disk.bytes(bak_1), whole) << operation;
                EXPECT_THAT(error_lines(), IsEmpty());
            } else {
                ++failures;
                EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub read_hl_hdb_" +
                                                       number_of(kind) + "() ：　61"));
            }
            EXPECT_EQ(library.calls.back(), "HamlogClose") << operation;
        }
        EXPECT_GT(failures, 2U);
    }
}

}  // namespace
}  // namespace veldrana
