#include "output/dupe_list.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

using Lines = std::vector<std::string>;

std::string line_of(const Lines& fields) {
    std::string line;
    for (const std::string& field : fields) {
        line += (line.empty() ? "\"" : ",\"") + field + "\"";
    }
    return line + "\r\n";
}

struct Contact {
    std::string frequency;
    std::string call;
    std::string portable = "";
};

std::string coded_line_of(const Contact& contact) {
    const std::string whole =
        contact.portable.empty() ? contact.call : contact.call + "/" + contact.portable;
    return line_of({"250426", "2105", whole, "599", "599", contact.call, contact.portable,
                    contact.frequency, "CW", "", "", "", "", "", "", "", whole});
}

// What stands in front of the band in a heading, and of the number below it.
const std::string heading = std::string(21, ' ') + "---  Check List  Band: ";
const std::string stations = std::string(28, ' ') + "---  Stations: ";
const std::string six_blanks = "      ";

std::string file_of(const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line + "\r\n";
    }
    return bytes;
}

class DupeList : public StageFixture {
  protected:
    DupeList() {
        disk.put_folder("C:\\log");
        disk.put_folder("C:\\prog");
    }

    void put_log(const std::vector<Contact>& contacts) {
        std::string bytes;
        for (const Contact& contact : contacts) {
            bytes += coded_line_of(contact);
        }
        disk.put("C:\\log\\zlog_2.txt", bytes);
    }

    // Whether there is a list.
    bool run(const std::vector<Contact>& contacts) {
        put_log(contacts);
        wpx_dupe_chk(stage, request);
        wpx_dupe_chk_2(stage, request);
        wpx_dupe_chk_4(stage, request);
        wpx_dupe_chk_7(stage, request);
        return disk.file_exists("C:\\log\\x.dup");
    }

    std::string list() { return disk.bytes("C:\\log\\x.dup"); }

    DupeRequest request{.in_name = "C:\\log\\x.all",
                        .in_Dir = "C:\\log\\",
                        .drive_path = "C:\\",
                        .strPath = "C:\\prog\\"};
};

// --- the bands ---

struct BandRow {
    std::string frequency;
    std::string field;
    std::string in_file;
    std::string out_file;
    std::string heading_end;
    std::string sentinel;
};

// In the order of the list.
const std::vector<BandRow> band_rows{
    {"1.9", "1   ", "zg_i19_.txt", "zg_o19_.txt", "1.9 MHz  ---", "1.9 ZZZZZ"},
    {"3.5", "3   ", "zg_i35_.txt", "zg_o35_.txt", "3.5 MHz  ---", "3.5 ZZZZZ"},
    {"7", "7   ", "zg_i7__.txt", "zg_o7__.txt", "7  MHz  ---", "7   ZZZZZ"},
    {"14", "14  ", "zg_i14_.txt", "zg_o14_.txt", "14  MHz  ---", "14  ZZZZZ"},
    {"21", "21  ", "zg_i21_.txt", "zg_o21_.txt", "21  MHz  ---", "21  ZZZZZ"},
    {"28", "28  ", "zg_i28_.txt", "zg_o28_.txt", "28  MHz  ---", "28  ZZZZZ"},
    {"50", "50  ", "zg_i50_.txt", "zg_o50_.txt", "50  MHz  ---", "50  ZZZZZ"},
    {"144", "144 ", "zg_i144.txt", "zg_o144.txt", "144  MHz  ---", "144 ZZZZZ"},
    {"430", "430 ", "zg_i430.txt", "zg_o430.txt", "430  MHz  ---", "430 ZZZZZ"},
    {"1200", "1200", "zg_i120.txt", "zg_o120.txt", "1200  MHz  ---", "1200ZZZZZ"},
    {"2400", "2400", "zg_i240.txt", "zg_o240.txt", "2400  MHz  ---", "2400ZZZZZ"},
    {"5600", "5600", "zg_i560.txt", "zg_o560.txt", "5600  MHz  ---", "5600ZZZZZ"},
    {"10G", "10G ", "zg_i10G.txt", "zg_o10G.txt", "10G  Hz  ---", "10G ZZZZZ"},
};

TEST_F(DupeList, EachBandHasItsFilesItsHeadingAndItsSentinel) {
    for (const BandRow& row : band_rows) {
        SCOPED_TRACE(row.frequency);
        for (const std::string& file : disk.names("C:\\prog\\zg_????.txt")) {
            disk.remove("C:\\prog\\" + file);
        }
        ASSERT_TRUE(run({{.frequency = row.frequency, .call = "JA1ZZA"}}));
        const std::string contact = line_of({row.field + "AJA1ZZA    ", "A", "JA1ZZA"});
        for (const BandRow& other : band_rows) {
            const std::string sentinel = line_of({other.sentinel, other.sentinel, other.sentinel});
            const bool same = other.frequency == row.frequency;
            EXPECT_EQ(disk.bytes("C:\\prog\\" + other.in_file),
                      same ? contact + sentinel : sentinel);
            EXPECT_EQ(disk.file_exists("C:\\prog\\" + other.out_file), same);
        }
        const std::string section = file_of({heading + row.heading_end, "", "[A] JA1ZZA      ", "",
                                             stations + "1 ---", six_blanks, six_blanks});
        EXPECT_EQ(disk.bytes("C:\\prog\\" + row.out_file), section);
        EXPECT_EQ(list(), section);
    }
}

TEST_F(DupeList, BandsStandInTheOrderOfTheirTable) {
    std::vector<Contact> contacts;
    std::string expected;
    for (const BandRow& row : band_rows) {
        // The last one first.
        contacts.insert(contacts.begin(), {.frequency = row.frequency, .call = "JA1ZZA"});
        expected += file_of({heading + row.heading_end, "", "[A] JA1ZZA      ", "",
                             stations + "1 ---", six_blanks, six_blanks});
    }
    run(contacts);
    EXPECT_EQ(list(), expected);
}

struct FrequencyBand {
    std::string frequency;
    std::string field;
};

TEST_F(DupeList, BandFieldOfAFrequency) {
    const std::vector<FrequencyBand> rows{
        {"120", "1200"},   {"240", "2400"},   {"560", "5600"},    {"1200", "1200"},
        {"1.9", "1   "},   {"1.908", "1   "}, {"3.5", "3   "},    {"7.012", "7   "},
        {"430.1", "430 "}, {"10.1", "10  "},  {"1294.5", "1294"}, {"24000", "2400"},
        {"120.5", "120 "},  // made whole only as it stands
        {"10G", "10G "},   {"", "    "},
    };
    for (const FrequencyBand& row : rows) {
        put_log({{.frequency = row.frequency, .call = "JA1ZZA"}});
        wpx_dupe_chk(stage, request);
        EXPECT_EQ(disk.bytes("C:\\zlog_4.txt"), line_of({row.field + "AJA1ZZA    ", "A", "JA1ZZA"}))
            << row.frequency;
    }
}

TEST_F(DupeList, ShortFormsOfThreeBandsAreListed) {
    run({{"120", "JA1ZZA"}, {"240", "JA1ZZA"}, {"560", "JA1ZZA"}});
    EXPECT_THAT(list(), HasSubstr("Band: 1200  MHz"));
    EXPECT_THAT(list(), HasSubstr("Band: 2400  MHz"));
    EXPECT_THAT(list(), HasSubstr("Band: 5600  MHz"));
}

TEST_F(DupeList, ContactOnABandOutsideTheTableIsNotListed) {
    run({{"10.1", "JA1ZZX"}, {"18", "JA1ZZY"}, {"24.9", "JA1ZZZ"}, {"7", "JA1ZZA"}});
    EXPECT_EQ(list(), file_of({heading + "7  MHz  ---", "", "[A] JA1ZZA      ", "",
                               stations + "1 ---", six_blanks, six_blanks}));
}

// The file of the band gets the line as it stands, so what was worked on 29 comes behind.
TEST_F(DupeList, ContactOn29IsListedUnder28) {
    run({{"29", "JA1ZZA"}, {"29.02", "JA2ZZB"}, {"28", "JA3ZZB"}});
    EXPECT_EQ(disk.bytes("C:\\prog\\zg_i28_.txt"),
              line_of({"28  BJA3ZZB    ", "B", "JA3ZZB"}) +
                  line_of({"29  AJA1ZZA    ", "A", "JA1ZZA"}) +
                  line_of({"29  BJA2ZZB    ", "B", "JA2ZZB"}) +
                  line_of({"28  ZZZZZ", "28  ZZZZZ", "28  ZZZZZ"}));
    EXPECT_EQ(list(),
              file_of({heading + "28  MHz  ---", "", "[B] JA3ZZB      ", "", "[A] JA1ZZA      ", "",
                       "[B] JA2ZZB      ", "", stations + "3 ---", six_blanks, six_blanks}));
}

TEST_F(DupeList, LogWithNoContactOnAListedBandGivesNoList) {
    EXPECT_FALSE(run({{"10.1", "JA1ZZA"}, {"18", "JA1ZZB"}}));
    EXPECT_THAT(disk.names("C:\\prog\\zg_o*.txt"), IsEmpty());
}

TEST_F(DupeList, ListOfAnEarlierRunGoesEvenIfNoneFollows) {
    disk.put("C:\\log\\x.dup", "of an earlier run");
    EXPECT_FALSE(run({{"10.1", "JA1ZZA"}}));
}

TEST_F(DupeList, ListOfAnEarlierRunIsReplaced) {
    disk.put("C:\\log\\x.dup", "of an earlier run");
    EXPECT_TRUE(run({{"7", "JA1ZZA"}}));
    EXPECT_THAT(list(), StartsWith(heading + "7  MHz"));
    EXPECT_THAT(list(), Not(HasSubstr("earlier")));
}

// --- calls ---

struct GroupLines {
    int contacts;
    Lines lines;
};

TEST_F(DupeList, SixCallsFillALineAndTheNextOpensOneWithFourBlanks) {
    const std::string six =
        "JA1ZZA      JA2ZZA      JA3ZZA      JA4ZZA      JA5ZZA      JA6ZZA      ";
    const std::string six_more =
        "JB1ZZA      JB2ZZA      JB3ZZA      JB4ZZA      JB5ZZA      JB6ZZA      ";
    const std::vector<GroupLines> rows{
        {1, {"[A] JA1ZZA      "}},
        {6, {"[A] " + six}},
        {7, {"[A] " + six, "    JB1ZZA      "}},
        {12, {"[A] " + six, "    " + six_more}},
        {13, {"[A] " + six, "    " + six_more, "    JC1ZZA      "}},
    };
    for (const GroupLines& row : rows) {
        std::vector<Contact> contacts;
        for (int i = 0; i < row.contacts; ++i) {
            contacts.push_back({"7", std::string("J") + "ABC"[i / 6] + "123456"[i % 6] + "ZZA"});
        }
        run(contacts);
        Lines lines{heading + "7  MHz  ---", ""};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        lines.insert(lines.end(), {"", stations + std::to_string(row.contacts) + " ---", six_blanks,
                                   six_blanks});
        EXPECT_EQ(list(), file_of(lines)) << row.contacts;
    }
}

TEST_F(DupeList, FirstLineOfAGroupBehindAFullOneCountsItsCallsAnew) {
    std::vector<Contact> contacts;
    for (const char letter : {'A', 'B'}) {
        for (const char area : {'1', '2', '3', '4', '5', '6'}) {
            contacts.push_back({"7", std::string("JA") + area + "ZZ" + letter});
        }
    }
    run(contacts);
    EXPECT_EQ(list(), file_of({heading + "7  MHz  ---", "",
                               "[A] JA1ZZA      JA2ZZA      JA3ZZA      JA4ZZA      JA5ZZA      "
                               "JA6ZZA      ",
                               "",
                               "[B] JA1ZZB      JA2ZZB      JA3ZZB      JA4ZZB      JA5ZZB      "
                               "JA6ZZB      ",
                               "", stations + "12 ---", six_blanks, six_blanks}));
}

TEST_F(DupeList, CallOfMoreThanTwelveCharactersIsCutInTheList) {
    run({{"7", "8N1ZZZ", "8N2ZZX"}, {"7", "8N1ZZZZZ", "1234"}, {"7", "JA1ZZZ", "QRPPP"}});
    EXPECT_THAT(list(), HasSubstr("[Z] 8N1ZZZ/8N2ZZ8N1ZZZZZ/123JA1ZZZ/QRPPP\r\n"));
}

TEST_F(DupeList, LetterComesFromTheCallWithoutItsPortablePartAndTheWholeCallIsShown) {
    run({{"7", "JA1ZZA", "P"}, {"7", "JA1ZZP"}});
    EXPECT_EQ(disk.bytes("C:\\zlog_4.txt"), line_of({"7   AJA1ZZA/P  ", "A", "JA1ZZA/P"}) +
                                                line_of({"7   PJA1ZZP    ", "P", "JA1ZZP"}));
    EXPECT_THAT(list(), HasSubstr("[A] JA1ZZA/P    \r\n\r\n[P] JA1ZZP      \r\n"));
}

TEST_F(DupeList, KeyHoldsTenCharactersOfTheWholeCall) {
    put_log({{"7", "JA1ZZA", "JD1XY"}});
    wpx_dupe_chk(stage, request);
    EXPECT_EQ(disk.bytes("C:\\zlog_3.txt"), line_of({"7   AJA1ZZA/JD1", "A", "JA1ZZA/JD1XY"}));
}

// The sort's window begins at the quote, so it ends one character before the key does.
TEST_F(DupeList, CallsAlikeInNineCharactersKeepTheLogOrder) {
    run({{"7", "8N1ZZZZZZ3A"}, {"7", "8N1ZZZZZZ1A"}, {"7", "8N1ZZZZZY2A"}});
    EXPECT_THAT(list(), HasSubstr("[A] 8N1ZZZZZY2A 8N1ZZZZZZ3A 8N1ZZZZZZ1A "));
}

TEST_F(DupeList, StationWorkedTwiceStandsSideBySideAndCountsTwice) {
    run({{"7", "JA1ZZA"}, {"7", "JA2ZZA"}, {"7", "JA1ZZA"}, {"14", "JA1ZZA"}});
    EXPECT_EQ(list(), file_of({heading + "7  MHz  ---", "",                     //
                               "[A] JA1ZZA      JA1ZZA      JA2ZZA      ",      //
                               "", stations + "3 ---", six_blanks, six_blanks,  //
                               heading + "14  MHz  ---", "",                    //
                               "[A] JA1ZZA      ",                              //
                               "", stations + "1 ---", six_blanks, six_blanks}));
}

TEST_F(DupeList, GroupsStandInTheOrderOfTheirLetters) {
    run({{"7", "JA1ZZC"}, {"7", "JA9ZZA"}, {"7", "JA1ZZB"}, {"7", "JA1ZZA"}});
    EXPECT_EQ(list(), file_of({heading + "7  MHz  ---", "", "[A] JA1ZZA      JA9ZZA      ", "",
                               "[B] JA1ZZB      ", "", "[C] JA1ZZC      ", "", stations + "4 ---",
                               six_blanks, six_blanks}));
}

// --- names, commands, trace ---

TEST_F(DupeList, PointInAFolderCutsTheListsName) {
    disk.put_folder("C:\\2025.04");
    request.in_name = "C:\\2025.04\\x.all";
    run({{"7", "JA1ZZA"}});
    EXPECT_THAT(disk.bytes("C:\\2025.dup"), HasSubstr("JA1ZZA"));
    EXPECT_FALSE(disk.file_exists("C:\\2025.04\\x.dup"));
}

// Keeps the commands and sorts.
class RecordingSorter : public SortService {
  public:
    explicit RecordingSorter(Disk& disk) : sorter_(disk) {}
    int ksort(const std::string& command, std::string& buffer) override {
        commands.push_back(command);
        return sorter_.ksort(command, buffer);
    }

    Lines commands;

  private:
    StableSort sorter_;
};

TEST_F(DupeList, SortCommand) {
    put_log({{"7", "JA1ZZA"}});
    RecordingSorter recording(disk);
    wpx_dupe_chk({disk, trace.log, recording, person, lblCFG, bar}, request);
    EXPECT_THAT(recording.commands, ElementsAre("/k(1:15)  'C:\\zlog_3.txt'  'C:\\zlog_4.txt'"));
}

TEST_F(DupeList, TracesEachOperationAndTheFilesItOpens) {
    run({{"7", "JA1ZZA"}});
    for (const std::string line :
         {"Private Sub wpx_dupe_chk()", "Open C:\\log\\zlog_2.txt For Input As #f_i",
          "Private Sub wpx_dupe_chk_2()", "Open C:\\zlog_4.txt For Input As #f_i",
          "Open C:\\prog\\zg_i10G.txt For Output As #f_o", "Private Sub wpx_dupe_chk_4()",
          "Private Sub wpx_dupe_chk_5()", "Private Sub wpx_dupe_chk_6()",
          "Open C:\\prog\\zg_i7__.txt For Input As #f_i", "Private Sub wpx_dupe_chk_7()"}) {
        EXPECT_THAT(trace.lines, Contains(line));
    }
}

struct FailingOperation {
    std::string procedure;
    std::function<void(const Stage&, const DupeRequest&)> run;
};

// The test for an empty band is the first that reads a band's file.
TEST_F(DupeList, MissingInputEndsInTheErrorLineOfTheOperation) {
    const std::vector<FailingOperation> operations{{"wpx_dupe_chk", wpx_dupe_chk},
                                                   {"wpx_dupe_chk_2", wpx_dupe_chk_2},
                                                   {"wpx_dupe_chk_5", wpx_dupe_chk_4}};
    for (const FailingOperation& operation : operations) {
        trace.lines.clear();
        EXPECT_THROW(operation.run(stage, request), RunTimeError);
        EXPECT_EQ(trace.lines.back(),
                  "エラー発生  Private Sub " + operation.procedure + "() ：　53");
    }
}

TEST_F(DupeList, LogWithNoContactFailsAtTheFirstRead) {
    put_log({});
    EXPECT_THROW(wpx_dupe_chk(stage, request), RunTimeError);
    EXPECT_EQ(trace.lines.back(), "エラー発生  Private Sub wpx_dupe_chk() ：　62");
}

}  // namespace
}  // namespace veldrana
