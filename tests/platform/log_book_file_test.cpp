// The program's own reading of a log book: the forms that it knows, files that are none or broken,
// and that it never changes what it reads.
#include "platform/log_book_file.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/code_page_932.h"
#include "platform/host_disk.h"
#include "tests/doubles/log_book_table.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

using namespace std::string_literals;

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using namespace std::string_literals;

using Fields = std::vector<std::string>;

const std::string path = "C:\\Hamlog\\Hamlog.hdb";

// What a log book gave, read through the seven operations.
struct Reading {
    int opened = 0;
    std::int32_t count = 0;
    std::vector<Fields> records;
    friend bool operator==(const Reading&, const Reading&) = default;
};
void PrintTo(const Reading& reading, std::ostream* out) {
    *out << "opened " << reading.opened << ", " << reading.count << " records";
}

// Blanks that fill a field up make no difference to who reads it, except where three marks stand.
std::string value_of(int number, std::string_view field) {
    return std::string(number == 10 ? field : trim_right(field));
}

Fields current_fields(HamlogLibrary& library) {
    Fields fields;
    for (int number = 1; number <= HamlogLibrary::fields; ++number) {
        fields.push_back(value_of(number, library.ThwString(number)));
    }
    return fields;
}

Reading reading_of(Disk& disk, std::string_view file = path) {
    OwnHamlogLibrary library(disk);
    Reading reading;
    library.dbf_open(file);
    reading.count = library.dbf_rcount();
    library.dbf_close();
    reading.opened = library.HamlogOpen(file);
    for (std::int32_t record = 1; reading.opened == 0 && record <= reading.count; ++record) {
        EXPECT_EQ(library.THW_read(record, HamlogLibrary::by_number), 0) << record;
        reading.records.push_back(current_fields(library));
    }
    library.HamlogClose();
    return reading;
}

class LogBookFileTest : public testing::Test {
  protected:
    Reading read(std::string bytes) {
        disk.put(path, std::move(bytes));
        return reading_of(disk);
    }

    // The records of a file that must open.
    std::vector<Fields> records_of(std::string bytes) {
        const Reading reading = read(std::move(bytes));
        EXPECT_EQ(reading.opened, 0);
        EXPECT_EQ(reading.count, static_cast<std::int32_t>(reading.records.size()));
        return reading.records;
    }
    Fields only_record_of(std::string bytes) {
        const std::vector<Fields> records = records_of(std::move(bytes));
        EXPECT_THAT(records, SizeIs(1));
        return records.empty() ? Fields(14) : records.front();
    }
    std::string field_of(const LoggedContact& contact, std::size_t number) {
        return only_record_of(own_table({contact}).bytes()).at(number - 1);
    }

    // The open fails, and there is nothing to count.
    bool is_refused(std::string bytes) {
        const Reading reading = read(std::move(bytes));
        return reading.opened != 0 && reading.count == 0;
    }

    MemoryDisk disk;
};

// --- the log book's own table ---

TEST_F(LogBookFileTest, OwnTableGivesEachFieldUnderItsNumber) {
    LoggedContact contact;
    contact.CALLS = "JR8YYX";
    contact.IGN = "/1";
    contact.year = 2024;
    contact.month = 12;
    contact.day = 3;
    contact.hour = 7;
    contact.minute = 9;
    contact.FREQ = "430";
    contact.MODE = "FM";
    contact.QSL = "J*R";
    contact.CODE = "100101";
    contact.GL = "PM95UQ";
    contact.HIS = "59";
    contact.MY = "57";
    contact.NAME = "山田太郎";
    contact.QTH = "東京都千代田区";
    contact.RMK1 = "表に出ろ, \"ソ\"";
    contact.RMK2 = "ﾊﾝﾃﾞｨ 5W";
    EXPECT_THAT(
        only_record_of(own_table({contact}).bytes()),
        ElementsAre("JR8YYX/1", "24/12/03", "07:09J", "59", "57", "430", "FM", "100101", "PM95UQ",
                    "J*R", "山田太郎", "東京都千代田区", "表に出ろ, \"ソ\"", "ﾊﾝﾃﾞｨ 5W"));
}

TEST_F(LogBookFileTest, OwnTableGivesItsRecordsInOrder) {
    LoggedContact second;
    second.CALLS = "JA2ZZB";
    LoggedContact third;
    third.CALLS = "JA3ZZC";
    const std::vector<Fields> records = records_of(own_table({{}, second, third}).bytes());
    ASSERT_THAT(records, SizeIs(3));
    EXPECT_EQ(records[0][0], "JA1ZZA");
    EXPECT_EQ(records[1][0], "JA2ZZB");
    EXPECT_EQ(records[2][0], "JA3ZZC");
}

TEST_F(LogBookFileTest, ATableMayBeginWith83) {
    LogBookTable table = own_table({{}});
    table.first_byte = '\x83';
    EXPECT_EQ(only_record_of(table.bytes()).at(0), "JA1ZZA");
}

struct CallParts {
    std::string CALLS;
    std::string IGN;
    std::string call;
};

TEST_F(LogBookFileTest, CallIsJoinedFromTwoColumnsWithoutBlanks) {
    const std::vector<CallParts> rows{
        {"JA1ZZA", "", "JA1ZZA"},
        {"JA1ZZA", "/1", "JA1ZZA/1"},
        {"JA1ZZ", "", "JA1ZZ"},
        {"JA1ZZ", "/QRP", "JA1ZZ/QRP"},
        {"KH2/JA", "1ZZA", "KH2/JA1ZZA"},
        {"JA 1ZZ", "/ 1 /P", "JA1ZZ/1/P"},
        {"", "JA1ZZA", "JA1ZZA"},
        {" ZZ1A", "", "ZZ1A"},
        {"", "", ""},
        {"JA1ZZA", "/ABCDEFGHIJKLM", "JA1ZZA/ABCDEFGHIJKLM"},
    };
    for (const CallParts& row : rows) {
        LoggedContact contact;
        contact.CALLS = row.CALLS;
        contact.IGN = row.IGN;
        EXPECT_EQ(field_of(contact, 1), row.call);
    }
}

TEST_F(LogBookFileTest, ANulEndsEachPartOfTheCallByItself) {
    const std::vector<CallParts> rows{
        {"JA1\0ZZ"s, "/1", "JA1/1"},
        {"JA1ZZA", "/1\0/P"s, "JA1ZZA/1"},
        {"JA1ZZ\0"s, std::string(14, '\0'), "JA1ZZ"},
        {std::string(6, '\0'), std::string(14, '\0'), ""},
    };
    for (const CallParts& row : rows) {
        LoggedContact contact;
        contact.CALLS = row.CALLS;
        contact.IGN = row.IGN;
        EXPECT_EQ(field_of(contact, 1), row.call);
    }
}

struct DateRow {
    int year;
    int month;
    int day;
    std::string text;
};

TEST_F(LogBookFileTest, DateIsTheYearOfTheCenturyMonthAndDay) {
    const std::vector<DateRow> rows{
        {2025, 4, 26, "25/04/26"},
        {1951, 1, 1, "51/01/01"},
        {2050, 12, 31, "50/12/31"},
        {2000, 10, 9, "00/10/09"},
    };
    for (const DateRow& row : rows) {
        LoggedContact contact;
        contact.year = row.year;
        contact.month = row.month;
        contact.day = row.day;
        EXPECT_EQ(field_of(contact, 2), row.text);
    }
}

struct TimeRow {
    int hour;
    int minute;
    bool utc;
    std::string text;
};

TEST_F(LogBookFileTest, TimeHasTheLetterOfItsZone) {
    const std::vector<TimeRow> rows{
        {21, 5, false, "21:05J"}, {21, 5, true, "21:05U"},  {0, 0, false, "00:00J"},
        {0, 0, true, "00:00U"},   {23, 59, true, "23:59U"}, {9, 30, false, "09:30J"},
    };
    for (const TimeRow& row : rows) {
        LoggedContact contact;
        contact.hour = row.hour;
        contact.minute = row.minute;
        contact.utc = row.utc;
        EXPECT_EQ(field_of(contact, 3), row.text);
    }
}

TEST_F(LogBookFileTest, MarksKeepTheirPlaces) {
    for (const std::string marks : {"J*R", "J  ", " * ", "  R", "   ", "N  ", " *R"}) {
        LoggedContact contact;
        contact.QSL = marks;
        EXPECT_EQ(field_of(contact, 10), marks);
    }
}

TEST_F(LogBookFileTest, ColumnsAreFoundByTheirNames) {
    // Another order, other widths and a column that nobody knows.
    const std::vector<TableColumn> columns{{"RMK2", 3}, {"QSL", 3},    {"IGN", 2},  {"NEW", 5},
                                           {"TIME", 2}, {"CALLS", 10}, {"DATE", 4}, {"MY", 3},
                                           {"HIS", 3},  {"MODE", 6},   {"FREQ", 9}, {"CODE", 5},
                                           {"GL", 4},   {"NAME", 6},   {"QTH", 4},  {"RMK1", 3}};
    LogBookTable table(columns);
    table.add({"rm2", "J*R", "/1", "?????", time_bytes(1, 2, true), "7K1ZZA",
               date_bytes(2025, 3, 4), "57", "59", "RTTY", "7.012", "1001", "PM95", "name", "qth",
               "rm1"});
    EXPECT_THAT(only_record_of(table.bytes()),
                ElementsAre("7K1ZZA/1", "25/03/04", "01:02U", "59", "57", "7.012", "RTTY", "1001",
                            "PM95", "J*R", "name", "qth", "rm1", "rm2"));
}

TEST_F(LogBookFileTest, ColumnsThatAreMissingGiveEmptyFields) {
    LogBookTable table({{"CALLS", 6}, {"IGN", 14}, {"DATE", 4}});
    table.add({"JA1ZZA", "", date_bytes(2025, 4, 26)});
    EXPECT_THAT(only_record_of(table.bytes()),
                ElementsAre("JA1ZZA", "25/04/26", "", "", "", "", "", "", "", "", "", "", "", ""));
}

TEST_F(LogBookFileTest, ANulEndsAField) {
    LoggedContact contact;
    contact.RMK1 = "seen\0not seen"s;
    contact.MODE = "CW\0x"s;
    EXPECT_EQ(field_of(contact, 13), "seen");
    EXPECT_EQ(field_of(contact, 7), "CW");
}

TEST_F(LogBookFileTest, RecordMarkedDeletedIsReadAndSelectsNothing) {
    LogBookTable table(own_columns());
    table.add(own_values({.CALLS = "JA1ZZA"}));
    table.add(own_values({.CALLS = "JA2ZZB"}), '*');
    table.add(own_values({.CALLS = "JA3ZZC"}));
    const std::vector<Fields> records = records_of(table.bytes());
    ASSERT_THAT(records, SizeIs(3));
    EXPECT_EQ(records[0][0], "JA1ZZA");
    EXPECT_THAT(records[1], AllOf(SizeIs(14), Each("")));
    EXPECT_EQ(records[2][0], "JA3ZZC");
}

TEST_F(LogBookFileTest, TextCutWithinACharacterDoesNoHarm) {
    LoggedContact contact;
    contact.NAME = "a山田太郎山田";  // 13 bytes for a column of 12
    EXPECT_THAT(field_of(contact, 11), testing::StartsWith("a山田太郎山"));
}

// --- any other table ---

std::vector<TableColumn> numbered_columns(std::size_t count) {
    std::vector<TableColumn> columns;
    for (std::size_t i = 1; i <= count; ++i) {
        columns.push_back({"F" + std::to_string(i), i == 10 ? 3U : 12U});
    }
    return columns;
}

const Fields sixteen_values{"JA1ZZA", "25/04/26", "21:05J",  "599",    "589",  "7",
                            "CW",     "100101",   "PM95",    " * ",    "name", "qth",
                            "r1",     "r2",       "fifteen", "sixteen"};

TEST_F(LogBookFileTest, OtherTableGivesItsFirstFourteenColumns) {
    LogBookTable table(numbered_columns(16));
    table.add(sixteen_values);
    EXPECT_THAT(only_record_of(table.bytes()),
                ElementsAre("JA1ZZA", "25/04/26", "21:05J", "599", "589", "7", "CW", "100101",
                            "PM95", " * ", "name", "qth", "r1", "r2"));
}

TEST_F(LogBookFileTest, OtherTableOfFewerColumnsHasEmptyFieldsForTheRest) {
    LogBookTable table(numbered_columns(10));
    table.add(sixteen_values);
    EXPECT_THAT(only_record_of(table.bytes()),
                ElementsAre("JA1ZZA", "25/04/26", "21:05J", "599", "589", "7", "CW", "100101",
                            "PM95", " * ", "", "", "", ""));
}

TEST_F(LogBookFileTest, OneOfTheTwoColumnsOfTheCallMakesNoOwnTable) {
    for (const std::string name : {"CALLS", "IGN"}) {
        std::vector<TableColumn> columns = numbered_columns(14);
        columns[4].name = name;
        LogBookTable table(columns);
        table.add(sixteen_values);
        const Fields fields = only_record_of(table.bytes());
        EXPECT_EQ(fields[0], "JA1ZZA") << name;
        EXPECT_EQ(fields[4], "589") << name;
    }
}

TEST_F(LogBookFileTest, NamesOfElevenBytesAndWidthsOf255AreRead) {
    LogBookTable table({{"ABCDEFGHIJK", 255}, {"LMNOPQRSTUV", 255}, {"Z", 1}});
    const std::string long_text(255, 'x');
    table.add({long_text, "JA1ZZA", "!"});
    const Fields fields = only_record_of(table.bytes());
    EXPECT_EQ(fields[0], long_text);
    EXPECT_EQ(fields[1], "JA1ZZA");
    EXPECT_EQ(fields[2], "!");
}

TEST_F(LogBookFileTest, RecordsBeginWhereTheHeaderSaysSo) {
    LogBookTable table(numbered_columns(14));
    table.behind_columns = std::string(263, '\xEE');
    table.add(sixteen_values);
    EXPECT_EQ(only_record_of(table.bytes()).at(0), "JA1ZZA");
}

TEST_F(LogBookFileTest, RecordsAreAsLongAsTheHeaderSays) {
    std::vector<TableColumn> columns = numbered_columns(14);
    columns.push_back({"gap", 7});
    LogBookTable table(columns);
    table.add(sixteen_values);
    table.add({"JA2ZZB"});
    // The last descriptor is taken away: its bytes stay in the records.
    std::string bytes = table.bytes();
    const std::size_t last = 32 + 14 * 32;
    bytes[last] = '\x0D';
    disk.put(path, bytes);
    const Reading reading = reading_of(disk);
    ASSERT_THAT(reading.records, SizeIs(2));
    EXPECT_EQ(reading.records[0][13], "r2");
    EXPECT_EQ(reading.records[1][0], "JA2ZZB");
}

TEST_F(LogBookFileTest, WhatStandsBehindTheRecordsIsNoRecord) {
    LogBookTable table = own_table({{}, {}});
    table.behind_records = "\x1A" + std::string(1000, ' ');
    EXPECT_THAT(records_of(table.bytes()), SizeIs(2));
}

TEST_F(LogBookFileTest, TableWithoutARecordIsAnEmptyLogBook) {
    EXPECT_THAT(records_of(own_table({}).bytes()), IsEmpty());
}

// --- text ---

const Fields fourteen_columns{"JA1ZZA", "25/04/26", "21:05J", "599",  "589",  "7",  "CW",
                              "100101", "PM95",     "J*R",    "山田", "東京", "表", "r2"};

Fields with_call(const std::string& call) {
    Fields columns = fourteen_columns;
    columns[0] = call;
    return columns;
}

TEST_F(LogBookFileTest, TextGivesAContactALine) {
    EXPECT_THAT(records_of(quoted_row(fourteen_columns) + quoted_row(with_call("JA2ZZB/1"))),
                ElementsAre(fourteen_columns, with_call("JA2ZZB/1")));
}

TEST_F(LogBookFileTest, ColumnsOfATextBehindTheFourteenthAreNoFields) {
    Fields columns = fourteen_columns;
    columns.insert(columns.end(), {"0", "sixteen", "seventeen"});
    EXPECT_EQ(only_record_of(quoted_row(columns)), fourteen_columns);
}

TEST_F(LogBookFileTest, RowsOfFewerColumnsHaveEmptyFieldsForTheRest) {
    Fields ten(fourteen_columns.begin(), fourteen_columns.begin() + 10);
    Fields expected = ten;
    expected.resize(14);
    EXPECT_EQ(only_record_of(quoted_row(ten)), expected);

    // Only the first line must have ten.
    const std::vector<Fields> records =
        records_of(quoted_row(fourteen_columns) + "\"JA2ZZB\",\"25/04/27\"\r\nx\r\n");
    ASSERT_THAT(records, SizeIs(3));
    EXPECT_THAT(records[1],
                ElementsAre("JA2ZZB", "25/04/27", "", "", "", "", "", "", "", "", "", "", "", ""));
    EXPECT_EQ(records[2][0], "x");
}

TEST_F(LogBookFileTest, BlankLinesOfATextAreNoRecords) {
    const std::string row = quoted_row(fourteen_columns);
    EXPECT_THAT(records_of("\r\n   \r\n" + row + "\r\n" + row + "  \r\n\r\n"),
                ElementsAre(fourteen_columns, fourteen_columns));
}

TEST_F(LogBookFileTest, LastLineOfATextNeedsNoLineEnd) {
    std::string text = quoted_row(fourteen_columns) + quoted_row(with_call("JA2ZZB"));
    text.resize(text.size() - 2);
    EXPECT_THAT(records_of(text), ElementsAre(fourteen_columns, with_call("JA2ZZB")));
}

TEST_F(LogBookFileTest, LinesOfATextMayEndInALineFeedAlone) {
    std::string row = quoted_row(fourteen_columns);
    row.erase(row.size() - 2, 1);
    EXPECT_THAT(records_of(row + row), ElementsAre(fourteen_columns, fourteen_columns));
}

TEST_F(LogBookFileTest, ColumnsOfATextNeedNoQuotes) {
    EXPECT_THAT(only_record_of("JA1ZZA,25/04/26,21:05J,599,589,7,CW,100101,PM95,J*R,n,q\r\n"),
                ElementsAre("JA1ZZA", "25/04/26", "21:05J", "599", "589", "7", "CW", "100101",
                            "PM95", "J*R", "n", "q", "", ""));
}

TEST_F(LogBookFileTest, MarksOfATextKeepTheirPlaces) {
    Fields columns = fourteen_columns;
    columns[9] = " * ";
    EXPECT_EQ(only_record_of(quoted_row(columns)).at(9), " * ");
}

TEST_F(LogBookFileTest, ANulEndsAFieldOfATextToo) {
    Fields columns = with_call("JA2ZZB\0/1"s);
    const std::vector<Fields> records =
        records_of(quoted_row(fourteen_columns) + quoted_row(columns));
    ASSERT_THAT(records, SizeIs(2));
    EXPECT_EQ(records[1], with_call("JA2ZZB"));
}

TEST_F(LogBookFileTest, TextMayBeginWithATablesFirstByte) {
    // Katakana begin with 0x83.
    for (const std::string& heading : {"コール,日付,時刻,His,My,Freq,Mode,Code,GL,QSL\r\n"s,
                                       "ア,2,3,4,5,6,7,8,9,10,11,12,13,14\r\n"s}) {
        disk.put(path, to_code_page(heading) + "JA1ZZA,24/05/03,,,,7,CW,,,J* \r\n");
        const std::unique_ptr<LogBookFile> file = open_log_book(disk, path);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(file->count(), 2);
        ASSERT_TRUE(file->read(2));
        EXPECT_EQ(file->field(1), "JA1ZZA");
    }
}

TEST_F(LogBookFileTest, WhatTheFileHoldsTellsTheFormsApartNotItsName) {
    const std::string table = own_table({{}}).bytes();
    const std::string text = quoted_row(fourteen_columns);
    for (const std::string name : {"a.hdb", "a.csv", "a.txt", "a.dbf", "a"}) {
        for (const std::string& bytes : {table, text}) {
            disk.put("C:\\" + name, bytes);
            const Reading reading = reading_of(disk, "C:\\" + name);
            ASSERT_THAT(reading.records, SizeIs(1)) << name;
            EXPECT_EQ(reading.records[0][0], "JA1ZZA") << name;
        }
    }
}

TEST_F(LogBookFileTest, AnEmptyFileIsALogBookWithoutRecords) {
    EXPECT_THAT(records_of(""), IsEmpty());
}

// --- files that are no log book ---

TEST_F(LogBookFileTest, TextOfNineColumnsIsNoLogBook) {
    EXPECT_TRUE(is_refused(quoted_row(Fields(9, "x")) + quoted_row(fourteen_columns)));
    EXPECT_TRUE(is_refused("\r\n1,2,3,4,5,6,7,8,9\r\n"));
    EXPECT_TRUE(is_refused("This is a letter.\r\n"));
}

TEST_F(LogBookFileTest, BlankLinesAloneHoldNoRecord) {
    EXPECT_EQ(read("\r\n").count, 0);
    EXPECT_EQ(read("   \r\n\r\n").count, 0);
}

TEST_F(LogBookFileTest, TextWithANulInItsFirstLineIsNoLogBook) {
    EXPECT_TRUE(is_refused("\"JA1\0ZZA\",2,3,4,5,6,7,8,9,10,11\r\n"s));
    EXPECT_TRUE(is_refused("\r\n1,2,3,4,5,6,7,8,9,10,11\0\r\n"s));
}

TEST_F(LogBookFileTest, FilesOfOneByteOverAndOverAreNoLogBook) {
    for (const char byte : {'\0', '\xFF'}) {
        for (const std::size_t size : {1U, 2U, 31U, 32U, 33U, 64U, 1000U, 70000U}) {
            EXPECT_TRUE(is_refused(std::string(size, byte)))
                << int{static_cast<unsigned char>(byte)} << " " << size;
        }
    }
}

// Of these a table is promised, but none is there.
TEST_F(LogBookFileTest, FilesOfTheFirstByteOfATableAreNoLogBookWithRecords) {
    for (const char byte : {'\x03', '\x83'}) {
        for (std::size_t size = 1; size <= 100; ++size) {
            EXPECT_EQ(read(std::string(size, byte)).count, 0) << size;
        }
    }
}

TEST_F(LogBookFileTest, NoFileAndAFolderAreNoLogBook) {
    disk.put_folder("C:\\Hamlog");
    EXPECT_NE(reading_of(disk).opened, 0);
    EXPECT_EQ(reading_of(disk).count, 0);
    disk.put_folder(path);
    EXPECT_NE(reading_of(disk).opened, 0);
    EXPECT_EQ(reading_of(disk).count, 0);
    EXPECT_NE(reading_of(disk, "D:\\nowhere\\Hamlog.hdb").opened, 0);
    EXPECT_NE(reading_of(disk, "").opened, 0);
}

// --- broken tables ---

TEST_F(LogBookFileTest, HeaderOfUnder32BytesFailsTheOpen) {
    for (const std::size_t length : {0U, 1U, 31U}) {
        LogBookTable table = own_table({{}, {}});
        table.header_length = length;
        EXPECT_TRUE(is_refused(table.bytes())) << length;
    }
}

TEST_F(LogBookFileTest, RecordLengthOfZeroFailsTheOpen) {
    LogBookTable table = own_table({{}, {}});
    table.record_length = 0;
    EXPECT_TRUE(is_refused(table.bytes()));
}

TEST_F(LogBookFileTest, HeaderLongerThanTheFileLeavesNoRecord) {
    LogBookTable table = own_table({{}, {}});
    table.header_length = 65535;
    EXPECT_EQ(read(table.bytes()).count, 0);
}

TEST_F(LogBookFileTest, RecordLongerThanTheFileIsNotThere) {
    LogBookTable table = own_table({{}, {}});
    table.record_length = 65535;
    EXPECT_EQ(read(table.bytes()).count, 0);
}

TEST_F(LogBookFileTest, PromisedRecordsThatAreMissingAreNotThere) {
    for (const std::size_t promised : {std::size_t{4}, std::size_t{0x7FFFFFFF},
                                       std::size_t{0x80000000}, std::size_t{0xFFFFFFFF}}) {
        LogBookTable table = own_table({{}, {}, {}});
        table.count = promised;
        EXPECT_THAT(records_of(table.bytes()), SizeIs(3)) << promised;
    }
}

TEST_F(LogBookFileTest, RecordsThatNobodyPromisedAreNotRead) {
    LogBookTable table = own_table({{}, {}, {}});
    table.count = 2;
    EXPECT_THAT(records_of(table.bytes()), SizeIs(2));
}

TEST_F(LogBookFileTest, ColumnsThatReachBeyondTheRecordDoNoHarm) {
    for (std::size_t length = 1; length < own_table({}).own_record_length(); ++length) {
        LogBookTable table = own_table({{}});
        table.record_length = length;
        table.count = 1;
        const std::vector<Fields> records = records_of(table.bytes());
        ASSERT_THAT(records, SizeIs(1)) << length;
        // The call stands in the first six bytes behind the mark.
        EXPECT_EQ(records[0][0], std::string("JA1ZZA").substr(0, length - 1)) << length;
    }
}

TEST_F(LogBookFileTest, ColumnsWithoutAWidthAreEmpty) {
    LogBookTable table({{"CALLS", 6}, {"IGN", 0}, {"DATE", 0}, {"TIME", 0}, {"QSL", 0}});
    table.add({"JA1ZZA"});
    const Fields fields = only_record_of(table.bytes());
    EXPECT_EQ(fields[0], "JA1ZZA");
    EXPECT_EQ(fields[9], "");
}

TEST_F(LogBookFileTest, TableWithoutAnEndOfItsColumnsDoesNoHarm) {
    LogBookTable table = own_table({{}, {}});
    std::string bytes = table.bytes();
    bytes[table.own_header_length() - 1] = ' ';
    const Reading reading = read(bytes);
    EXPECT_LE(reading.count, 2);
    for (const Fields& record : reading.records) {
        EXPECT_EQ(record[0], "JA1ZZA");
    }
}

// As many whole records as the piece holds, each as it was.
void expect_table_piece(const Reading& piece, const Reading& whole, std::size_t size,
                        std::size_t header, std::size_t record) {
    if (piece.opened != 0) {
        EXPECT_LT(size, header);
        EXPECT_EQ(piece.count, 0);
        return;
    }
    const std::size_t there = size < header ? 0 : (size - header) / record;
    ASSERT_EQ(piece.records.size(), there) << size;
    for (std::size_t i = 0; i < there; ++i) {
        EXPECT_EQ(piece.records[i], whole.records[i]) << size;
    }
}

TEST_F(LogBookFileTest, TableCutAtEveryByte) {
    LogBookTable own = own_table({{.CALLS = "JA1ZZA"}, {.CALLS = "JA2ZZB"}, {.CALLS = "JA3ZZC"}});
    LogBookTable other(numbered_columns(14));
    other.add(sixteen_values).add({"JA2ZZB"});
    for (const LogBookTable* const table : {&own, &other}) {
        const std::string bytes = table->bytes();
        const Reading whole = read(bytes);
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            expect_table_piece(read(bytes.substr(0, size)), whole, size, table->own_header_length(),
                               table->own_record_length());
        }
    }
}

TEST_F(LogBookFileTest, TextCutAtEveryByte) {
    const std::string row = quoted_row(fourteen_columns);
    const std::string bytes = row + quoted_row(with_call("JA2ZZB"));
    const std::vector<Fields> whole{fourteen_columns, with_call("JA2ZZB")};
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        const Reading piece = read(bytes.substr(0, size));
        if (piece.opened != 0) {
            EXPECT_LT(size, row.size()) << "only the first line tells the form";
            continue;
        }
        const std::size_t lines = size == 0 ? 0 : 1 + (size > row.size() ? 1 : 0);
        ASSERT_EQ(piece.records.size(), lines) << size;
        for (std::size_t i = 0; (i + 1) * row.size() <= size; ++i) {
            EXPECT_EQ(piece.records[i], whole[i]) << size;
        }
    }
}

TEST_F(LogBookFileTest, EveryByteOfAHeaderMayBeWrong) {
    const LogBookTable table = own_table({{}, {}, {}});
    const std::string bytes = table.bytes();
    for (std::size_t place = 0; place < table.own_header_length(); ++place) {
        for (const char wrong : {'\0', '\x01', '\x0D', '*', '\x7F', '\x80', '\xFF'}) {
            std::string broken = bytes;
            broken[place] = wrong;
            const Reading reading = read(broken);
            EXPECT_GE(reading.count, 0) << place;
            EXPECT_LE(reading.count, static_cast<std::int32_t>(bytes.size())) << place;
            EXPECT_EQ(reading.records.size(), static_cast<std::size_t>(reading.count)) << place;
        }
    }
}

TEST_F(LogBookFileTest, EveryByteOfARecordMayBeWrong) {
    const LogBookTable table = own_table({{}});
    const std::string bytes = table.bytes();
    for (std::size_t place = table.own_header_length(); place < bytes.size(); ++place) {
        for (int value = 0; value < 256; value += 15) {  // 0 and 255 among them
            std::string broken = bytes;
            broken[place] = static_cast<char>(value);
            const std::vector<Fields> records = records_of(broken);
            ASSERT_THAT(records, SizeIs(1));
            EXPECT_THAT(records[0], SizeIs(14));
        }
    }
}

// --- back and forth ---

std::vector<LoggedContact> many_contacts(std::size_t count) {
    std::vector<LoggedContact> contacts(count);
    for (std::size_t i = 0; i < count; ++i) {
        contacts[i].RMK2 = "contact " + std::to_string(i + 1);
    }
    return contacts;
}

std::string text_of(const std::vector<LoggedContact>& contacts) {
    std::string text;
    for (const LoggedContact& contact : contacts) {
        Fields columns = fourteen_columns;
        columns[13] = contact.RMK2;
        text += quoted_row(columns);
    }
    return text;
}

// More than one block of the disk each.
class BothForms : public testing::TestWithParam<bool> {
  protected:
    BothForms() {
        const std::vector<LoggedContact> contacts = many_contacts(count);
        disk.put(path, GetParam() ? own_table(contacts).bytes() : text_of(contacts));
    }
    static constexpr int count = 700;
    MemoryDisk disk;
};
INSTANTIATE_TEST_SUITE_P(LogBookFile, BothForms, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& form) {
                             return form.param ? "Table" : "Text";
                         });

TEST_P(BothForms, IsReadInAnyOrder) {
    ASSERT_GT(disk.size(path), 2 * disk_block_size);
    const std::unique_ptr<LogBookFile> book = open_log_book(disk, path);
    ASSERT_NE(book, nullptr);
    EXPECT_EQ(book->count(), count);
    for (const std::int32_t record : {1, 2, 3, 3, 1, 699, 700, 700, 1, 350, 349, 348, 700, 2}) {
        ASSERT_TRUE(book->read(record)) << record;
        EXPECT_EQ(value_of(14, book->field(14)), "contact " + std::to_string(record));
        EXPECT_EQ(book->field(1), "JA1ZZA");
    }
}

TEST_P(BothForms, EveryRecordIsFoundFromTheFirstToTheLast) {
    const std::unique_ptr<LogBookFile> book = open_log_book(disk, path);
    ASSERT_NE(book, nullptr);
    for (std::int32_t record = 1; record <= count; ++record) {
        ASSERT_TRUE(book->read(record)) << record;
        ASSERT_EQ(value_of(14, book->field(14)), "contact " + std::to_string(record));
    }
}

TEST_P(BothForms, RecordsThatAreNotThereAreNotRead) {
    const std::unique_ptr<LogBookFile> book = open_log_book(disk, path);
    ASSERT_NE(book, nullptr);
    for (const std::int32_t record : {0, -1, count + 1, std::numeric_limits<std::int32_t>::max(),
                                      std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_FALSE(book->read(record)) << record;
        ASSERT_TRUE(book->read(count)) << "behind " << record;
        EXPECT_EQ(value_of(14, book->field(14)), "contact 700");
    }
}

TEST_P(BothForms, FailureOfTheDiskIsARunTimeErrorOrDoesNotShow) {
    FailingDisk counted(disk);
    const Reading whole = reading_of(counted);
    ASSERT_EQ(whole.opened, 0);
    ASSERT_EQ(whole.count, count);
    ASSERT_GT(counted.operations(), 6U);
    std::size_t failures = 0;
    for (std::size_t operation = 1; operation <= counted.operations(); ++operation) {
        FailingDisk failing(disk);
        failing.fail_at(operation, Failure::device_error);
        try {
            EXPECT_EQ(reading_of(failing), whole) << "operation " << operation;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 57);
            ++failures;
        }
    }
    EXPECT_GT(failures, 0U);
}

TEST_P(BothForms, TheFileStaysAsItIsAndIsFreeAfterwards) {
    disk.set_modified(path, {2026, 5, 1, 10, 20, 30});
    const std::string before = disk.bytes(path);
    reading_of(disk);
    EXPECT_EQ(disk.bytes(path), before);
    EXPECT_EQ(date_time_text(disk.modified(path)), "2026/05/01 10:20:30");
    EXPECT_THAT(disk.files(), ElementsAre(path));
    EXPECT_NO_THROW(disk.open_for_writing(path, WriteMode::append));
}

// The host tells whether a file was touched, and refuses where it must not be.
TEST_P(BothForms, FileOfTheHostIsNotTouched) {
    const ScratchFolder folder;
    const std::filesystem::path file = folder.path() / "Hamlog.hdb";
    write_bytes(file, disk.bytes(path));
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    const auto long_ago = std::filesystem::last_write_time(file) - std::chrono::hours(24 * 365);
    std::filesystem::last_write_time(file, long_ago);
    HostDisk host({{'H', folder.path()}}, folder.path());
    EXPECT_EQ(reading_of(host, "H:\\Hamlog.hdb").count, count);
    EXPECT_EQ(std::filesystem::last_write_time(file), long_ago);
    EXPECT_EQ(read_bytes(file), disk.bytes(path));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

// --- the operations ---

class OwnLibrary : public testing::Test {
  protected:
    OwnLibrary() { disk.put(path, own_table({{.CALLS = "JA1ZZA"}, {.CALLS = "JA2ZZB"}}).bytes()); }
    MemoryDisk disk;
    OwnHamlogLibrary library{disk};
};

TEST_F(OwnLibrary, FieldsThatNobodyHasAreEmpty) {
    ASSERT_EQ(library.HamlogOpen(path), 0);
    ASSERT_EQ(library.THW_read(1, HamlogLibrary::by_number), 0);
    for (const int field : {0, -1, 15, 1000}) {
        EXPECT_EQ(library.ThwString(field), "") << field;
    }
    EXPECT_EQ(trim_right(library.ThwString(1)), "JA1ZZA");
}

TEST_F(OwnLibrary, ARecordThatIsNotThereHasEmptyFieldsAndAnAnswer) {
    ASSERT_EQ(library.HamlogOpen(path), 0);
    for (const std::int32_t record : {0, -1, 3}) {
        ASSERT_EQ(library.THW_read(2, HamlogLibrary::by_number), 0);
        EXPECT_NE(library.THW_read(record, HamlogLibrary::by_number), 0) << record;
        EXPECT_THAT(current_fields(library), Each("")) << record;
    }
}

TEST_F(OwnLibrary, NothingIsReadWhileNothingIsOpen) {
    EXPECT_EQ(library.dbf_rcount(), 0);
    EXPECT_NE(library.THW_read(1, HamlogLibrary::by_number), 0);
    EXPECT_EQ(library.ThwString(1), "");
    library.HamlogClose();
    library.dbf_close();

    ASSERT_EQ(library.HamlogOpen(path), 0);
    ASSERT_EQ(library.THW_read(1, HamlogLibrary::by_number), 0);
    library.HamlogClose();
    library.HamlogClose();
    EXPECT_EQ(library.ThwString(1), "");
    EXPECT_NE(library.THW_read(1, HamlogLibrary::by_number), 0);
    library.dbf_open(path);
    library.dbf_close();
    EXPECT_EQ(library.dbf_rcount(), 0);
}

TEST_F(OwnLibrary, NoRecordIsCurrentBeforeOneIsRead) {
    ASSERT_EQ(library.HamlogOpen(path), 0);
    EXPECT_THAT(current_fields(library), Each(""));
}

TEST_F(OwnLibrary, AFailedOpenMayBeClosedAndFollowedByAnother) {
    disk.put("C:\\letter.txt", "no log book\r\n");
    EXPECT_NE(library.HamlogOpen("C:\\letter.txt"), 0);
    library.HamlogClose();
    ASSERT_EQ(library.HamlogOpen(path), 0);
    ASSERT_EQ(library.THW_read(2, HamlogLibrary::by_number), 0);
    EXPECT_EQ(trim_right(library.ThwString(1)), "JA2ZZB");
}

TEST_F(OwnLibrary, CountIsThatOfTheFileAsItIsNow) {
    library.dbf_open(path);
    EXPECT_EQ(library.dbf_rcount(), 2);
    library.dbf_close();
    disk.put(path, own_table({{}}).bytes());
    library.dbf_open(path);
    EXPECT_EQ(library.dbf_rcount(), 1);
    library.dbf_close();
    library.dbf_open("C:\\missing.hdb");
    EXPECT_EQ(library.dbf_rcount(), 0);
}

}  // namespace
}  // namespace veldrana
