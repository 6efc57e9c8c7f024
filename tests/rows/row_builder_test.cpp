// The row builder: each contact becomes a ContestRow and a HamlogRow.
#include "rows/row_builder.h"

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "masters/run_masters.h"
#include "platform/code_page_932.h"
#include "readers/coded_line.h"
#include "rows/row_formats.h"
#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// A master of a few stations that remembers what it was asked for.
class FewStations : public NameSource {
  public:
    std::map<std::string, StationData> stations;
    std::vector<std::string> asked;
    std::function<void(const Stage&)> on_prepare = [](const Stage&) {};

    void prepare(const Stage& stage) override { on_prepare(stage); }

    StationData find(std::string_view call_base) override {
        asked.emplace_back(call_base);
        const auto found = stations.find(std::string(call_base));
        return found == stations.end() ? StationData{} : found->second;
    }
};

// A CodedLine in the making.
struct Coded {
    std::string_view date = "210801";
    std::string_view time = "0218";
    std::string_view call = "JA1ABC";
    std::string_view report_sent = "599";
    std::string_view report_received = "589";
    std::string_view call_base = "JA1ABC";
    std::string_view portable = {};
    std::string_view frequency = "7.012";
    std::string_view mode = "CW ";
    std::string_view code = {};
    std::string_view qth = {};
    std::string_view number_received = "104M";
    std::string_view op = "JA1ZZZ";
    std::string_view memo = "nice fist";
    std::string_view call_as_logged = "JA1ABC";
};

Coded station(std::string_view call_base, std::string_view portable = {}) {
    Coded contact;
    contact.call = contact.call_base = contact.call_as_logged = call_base;
    contact.portable = portable;
    return contact;
}

using Row = std::vector<std::string>;

class RowBuilderTest : public StageFixture {
  protected:
    RowBuilderTest() { disk.put_folder("R:\\"); }

    void build(const std::vector<Coded>& contacts) {
        std::string text;
        for (const Coded& contact : contacts) {
            // The two reserved fields hold something, so that it would show if they were used.
            const std::array<std::string_view, coded_line::count> fields{contact.date,
                                                                         contact.time,
                                                                         contact.call,
                                                                         contact.report_sent,
                                                                         contact.report_received,
                                                                         contact.call_base,
                                                                         contact.portable,
                                                                         contact.frequency,
                                                                         contact.mode,
                                                                         "reserved 10",
                                                                         "reserved 11",
                                                                         contact.code,
                                                                         contact.qth,
                                                                         contact.number_received,
                                                                         contact.op,
                                                                         contact.memo,
                                                                         contact.call_as_logged};
            QuotedLine line;
            line.assign(fields);
            text += std::string(line.text()) + "\r\n";
        }
        disk.put("C:\\log\\zlog_2.txt", to_code_page(text));
        const RowRequest request{.in_Dir = "C:\\log\\",
                                 .drive_path = "R:\\",
                                 .options = options,
                                 .layout_1 = layout_1,
                                 .layout_2 = layout_2,
                                 .lengths = lengths,
                                 .sources = sources};
        no_qsl = build_rows(stage, request, memory);
    }

    std::vector<Row> rows_of(std::string_view file) {
        std::vector<Row> rows;
        TextInput written(disk, "R:\\" + std::string(file));
        for (std::string_view line; written.next_line(line);) {
            rows.push_back(split_quoted_fields(line));
        }
        return rows;
    }

    // The rows that the last build made of its contacts.
    Row sort_row(std::size_t contact = 0) { return rows_of("Sort-in.dat").at(contact); }
    Row contest(std::size_t contact = 0) { return rows_of("temp_h_o.csv").at(contact); }
    Row hamlog(std::size_t contact = 0) { return rows_of("temp_h_n.csv").at(contact); }

    // Every contact that is asked for is in the masters, all fields of which are wanted.
    void use_all_sources() {
        sources = {.name_mas = &name_mas, .qth_mas = &qth_mas, .text_data = &text_data};
        options.Check03 = true;
        options.Check14 = options.Check4 = options.Check5 = options.Check6 = options.Check7 = true;
        options.Check8 = options.Check4_A = true;
        options.Check11 = options.Check13 = options.Check9 = options.Check12 = true;
    }

    RunOptions options;
    RemarkLayout layout_1;
    RemarkLayout layout_2;
    RemarkLengths lengths;
    CallMemory memory;
    FewStations name_mas;
    FewStations qth_mas;
    FewStations text_data;
    StationSources sources;
    std::size_t no_qsl = 0;
};

// --- columns ---

// A contact whose columns all hold something, each something else.
class FullRow : public RowBuilderTest {
  protected:
    FullRow() {
        use_all_sources();
        name_mas.stations["JA1ABC"].name = "山田";
        qth_mas.stations["JA1ABC"] = {
            .name = "", .code = "1101", .qth = "横浜市", .gl = "PM95", .rmks = ""};
        text_data.stations["JA1ABC"].rmks = "via bureau";
        options.txtRmks1 = "one";
        options.txtRmks2 = "two";
        layout_1.items = {RemarkItem::rmks1};
        layout_2.items = {RemarkItem::rmks2};
        Coded contact = station("JA1ABC", "1");
        contact.call = "JA1ABC/1";
        contact.call_as_logged = "JA1ABC/1/P";
        build({contact});
    }
};

struct Column {
    std::string_view what;
    std::string_view expected;
};

void expect_columns(const Row& row, const std::vector<Column>& columns) {
    ASSERT_THAT(row, SizeIs(columns.size()));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        EXPECT_EQ(row[i], columns[i].expected) << i + 1 << ": " << columns[i].what;
    }
}

TEST_F(FullRow, ContestRowHasItsNineteenColumns) {
    expect_columns(contest(), {{"call base", "JA1ABC"},
                               {"portable part", "1"},
                               {"code", "1101"},
                               {"G/L", "PM95"},
                               {"frequency", "7.012"},
                               {"mode", "CW "},
                               {"name", "山田"},
                               {"QSL transfer mark", "J"},
                               {"sent mark", "*"},
                               {"reserved", ""},
                               {"date", "210801"},
                               {"time", "0218U"},
                               {"report sent", "599"},
                               {"report received", "589"},
                               {"QTH", "横浜市"},
                               {"Rmks 1", "one via bureau"},
                               {"Rmks 2", "two"},
                               {"call as logged, field 17", "JA1ABC/1/P"},
                               {"call as logged, field 3", "JA1ABC/1"}});
}

TEST_F(FullRow, RowToSortIsTheContestRowWithoutTheSentMark) {
    Row expected = contest();
    expected.at(contest_row::sent_mark) = "";
    EXPECT_EQ(sort_row(), expected);
    EXPECT_EQ(sort_row().at(contest_row::transfer_mark), "J");
}

TEST_F(FullRow, HamlogRowHasItsSeventeenColumns) {
    expect_columns(hamlog(), {{"call base", "JA1ABC"},
                              {"portable part", "1"},
                              {"date", "21/08/01"},
                              {"time", "02:18U"},
                              {"report sent", "599"},
                              {"report received", "589"},
                              {"frequency", "7.012"},
                              {"mode", "CW "},
                              {"code", "1101"},
                              {"G/L", "PM95"},
                              {"QSL field", "J* "},
                              {"name", "山田"},
                              {"QTH", "横浜市"},
                              {"Rmks 1", "one via bureau"},
                              {"Rmks 2", "two"},
                              {"call as logged, field 17", "JA1ABC/1/P"},
                              {"call as logged, field 3", "JA1ABC/1"}});
}

TEST_F(RowBuilderTest, EveryColumnIsWrittenInQuotesWithCrLf) {
    options.txtRmks1 = "東京";
    layout_1.items = {RemarkItem::rmks1};
    build({Coded{}});
    EXPECT_EQ(disk.bytes("R:\\Sort-in.dat"),
              "\"JA1ABC\",\"\",\"\",\"\",\"7.012\",\"CW \",\"\",\"J\",\"\",\"\",\"210801\","
              "\"0218U\",\"599\",\"589\",\"\",\"\x93\x8C\x8B\x9E\",\"\",\"JA1ABC\",\"JA1ABC\"\r\n");
    EXPECT_EQ(disk.bytes("R:\\temp_h_o.csv"),
              "\"JA1ABC\",\"\",\"\",\"\",\"7.012\",\"CW \",\"\",\"J\",\"*\",\"\",\"210801\","
              "\"0218U\",\"599\",\"589\",\"\",\"\x93\x8C\x8B\x9E\",\"\",\"JA1ABC\",\"JA1ABC\"\r\n");
    EXPECT_EQ(disk.bytes("R:\\temp_h_n.csv"),
              "\"JA1ABC\",\"\",\"21/08/01\",\"02:18U\",\"599\",\"589\",\"7.012\",\"CW \",\"\","
              "\"\",\"J* \",\"\",\"\",\"\x93\x8C\x8B\x9E\",\"\",\"JA1ABC\",\"JA1ABC\"\r\n");
}

TEST_F(RowBuilderTest, ReportReceivedIsCutToThreeCharactersAndTrimmed) {
    struct Case {
        std::string_view logged;
        std::string_view expected;
    };
    for (const Case& report : std::vector<Case>{{"589", "589"},
                                                {"59", "59"},
                                                {"59 ", "59"},
                                                {"5899", "589"},
                                                {" 5899", "58"},
                                                {"", ""}}) {
        SCOPED_TRACE(report.logged);
        Coded contact;
        contact.report_received = report.logged;
        build({contact});
        EXPECT_EQ(contest().at(contest_row::report_received), report.expected);
        EXPECT_EQ(hamlog().at(hamlog_row::report_received), report.expected);
    }
}

TEST_F(RowBuilderTest, ReportSentIsNotCut) {
    Coded contact;
    contact.report_sent = "5999 ";
    build({contact});
    EXPECT_EQ(contest().at(contest_row::report_sent), "5999 ");
    EXPECT_EQ(hamlog().at(hamlog_row::report_sent), "5999 ");
}

TEST_F(RowBuilderTest, CallBaseIsTrimmed) {
    build({station(" JA1ABC ")});
    EXPECT_EQ(contest().at(contest_row::call_base), "JA1ABC");
    EXPECT_EQ(sort_row().at(contest_row::call_base), "JA1ABC");
    EXPECT_EQ(hamlog().at(hamlog_row::call_base), "JA1ABC");
}

TEST_F(RowBuilderTest, CallsAsLoggedAreNeverCut) {
    Coded contact;
    contact.call = "VP8/JA1ABCDE/P/QRP";
    contact.call_as_logged = "VP8/JA1ABCDE/P/QRPP";
    build({contact});
    EXPECT_EQ(contest().at(contest_row::call_1), "VP8/JA1ABCDE/P/QRPP");
    EXPECT_EQ(contest().at(contest_row::call_2), "VP8/JA1ABCDE/P/QRP");
    EXPECT_EQ(hamlog().at(hamlog_row::call_1), "VP8/JA1ABCDE/P/QRPP");
    EXPECT_EQ(hamlog().at(hamlog_row::call_2), "VP8/JA1ABCDE/P/QRP");
}

TEST_F(RowBuilderTest, RowsStandInTheOrderOfTheLog) {
    build({station("JR8YYX"), station("JA1ABC"), station("KH2XYZ")});
    for (const std::string_view file : {"Sort-in.dat", "temp_h_o.csv", "temp_h_n.csv"}) {
        SCOPED_TRACE(file);
        const std::vector<Row> rows = rows_of(file);
        ASSERT_THAT(rows, SizeIs(3));
        EXPECT_EQ(rows[0].at(0), "JR8YYX");
        EXPECT_EQ(rows[1].at(0), "JA1ABC");
        EXPECT_EQ(rows[2].at(0), "KH2XYZ");
    }
}

// --- time ---

TEST_F(RowBuilderTest, ZoneLetterIsTheOneAfterTheTimeRule) {
    Coded contact;
    contact.date = "210101";
    contact.time = "0015";
    options.Option1 = 1;
    options.Option08 = 2;
    build({contact});
    EXPECT_EQ(contest().at(contest_row::date), "201231");
    EXPECT_EQ(contest().at(contest_row::time), "1515U");
    EXPECT_EQ(sort_row().at(contest_row::time), "1515U");
    EXPECT_EQ(hamlog().at(hamlog_row::date), "20/12/31");
    EXPECT_EQ(hamlog().at(hamlog_row::time), "15:15U");
}

TEST_F(RowBuilderTest, ZoneLetterIsThatOfTheLogWithoutAConversion) {
    options.Option1 = 1;
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::time), "0218J");
    options.Option1 = 0;
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::time), "0218U");
}

TEST_F(RowBuilderTest, TimeRuleLooksAtTheCallAsLogged) {
    Coded contact;  // at home by its base, abroad as logged
    contact.call_as_logged = "KH2/JA1ABC";
    options.Option1 = 1;
    options.Option08 = 3;
    build({contact, Coded{}});
    EXPECT_EQ(contest(0).at(contest_row::time), "1718U");
    EXPECT_EQ(contest(1).at(contest_row::time), "0218J");
}

TEST_F(RowBuilderTest, JaKeyLivesFromContactToContactAndFromRunToRun) {
    const Coded tells_nothing = [] {
        Coded contact;
        contact.call_as_logged = "JA1ABC/KH2XYZ";  // two pieces of one length
        return contact;
    }();
    options.Option1 = 1;
    options.Option08 = 3;
    build({station("JR8YYX"), tells_nothing, station("KH2XYZ"), tells_nothing});
    EXPECT_EQ(contest(1).at(contest_row::time), "0218J");
    EXPECT_EQ(contest(3).at(contest_row::time), "1718U");
    build({tells_nothing});
    EXPECT_EQ(contest().at(contest_row::time), "1718U");
}

TEST_F(RowBuilderTest, ADateThatIsNoneFailsInAConversionAlone) {
    Coded contact;
    contact.date = "210230";
    options.Option08 = 1;
    EXPECT_THAT([&] { build({contact}); }, testing::Throws<RunTimeError>(testing::Property(
                                               &RunTimeError::failure, Failure::type_mismatch)));
    options.Option08 = 0;
    build({contact});
    EXPECT_EQ(contest().at(contest_row::date), "210230");
    EXPECT_EQ(hamlog().at(hamlog_row::date), "21/02/30");
}

// --- marks ---

TEST_F(RowBuilderTest, MarksFollowTheTwoTexts) {
    struct Case {
        std::string_view txtQSL_Q;
        std::string_view txtQSL_S;
        std::string_view sent_mark;
        std::string_view qsl_field;
    };
    for (const Case& marks : std::vector<Case>{{"J", "*", "*", "J* "},
                                               {"B", "+", "+", "B+ "},
                                               {" ", "*", "*", " * "},
                                               {"J", " ", " ", "J  "},
                                               {" ", " ", " ", "   "},
                                               {"N", "*", " ", "N  "}}) {
        SCOPED_TRACE(marks.qsl_field);
        options.txtQSL_Q = marks.txtQSL_Q;
        options.txtQSL_S = marks.txtQSL_S;
        build({Coded{}});
        EXPECT_EQ(contest().at(contest_row::transfer_mark), marks.txtQSL_Q);
        EXPECT_EQ(contest().at(contest_row::sent_mark), marks.sent_mark);
        EXPECT_EQ(hamlog().at(hamlog_row::qsl), marks.qsl_field);
        EXPECT_EQ(no_qsl, 0U);  // no rule has counted it
    }
}

TEST_F(RowBuilderTest, ContactMarkedNHasABlankInTheSentPosition) {
    options.Check10 = true;
    options.txtQSL_S = "*";
    build({station("JA1ZAA")});
    EXPECT_EQ(contest().at(contest_row::transfer_mark), "N");
    EXPECT_EQ(contest().at(contest_row::sent_mark), " ");
    EXPECT_EQ(sort_row().at(contest_row::transfer_mark), "N");
    EXPECT_EQ(sort_row().at(contest_row::sent_mark), "");
    EXPECT_EQ(hamlog().at(hamlog_row::qsl), "N  ");
}

TEST_F(RowBuilderTest, ClubRuleMarksAndCountsClubsIfItIsOn) {
    const std::vector<Coded> contacts{station("JA1ABC"), station("JA1ZAA"), station("JA1ZY"),
                                      station("JR2YBC", "2")};
    options.Check10 = false;
    build(contacts);
    EXPECT_EQ(no_qsl, 0U);
    EXPECT_EQ(contest(1).at(contest_row::transfer_mark), "J");
    options.Check10 = true;
    build(contacts);
    EXPECT_EQ(no_qsl, 2U);
    EXPECT_EQ(contest(0).at(contest_row::transfer_mark), "J");
    EXPECT_EQ(contest(1).at(contest_row::transfer_mark), "N");
    EXPECT_EQ(contest(2).at(contest_row::transfer_mark), "J");  // five characters
    EXPECT_EQ(contest(3).at(contest_row::transfer_mark), "N");
    EXPECT_EQ(hamlog(0).at(hamlog_row::qsl), "J* ");
    EXPECT_EQ(hamlog(3).at(hamlog_row::qsl), "N  ");
}

TEST_F(RowBuilderTest, CountStartsAnewInEveryRun) {
    options.Check10 = true;
    build({station("JA1ZAA"), station("JA1ZBB")});
    EXPECT_EQ(no_qsl, 2U);
    build({station("JA1ZAA")});
    EXPECT_EQ(no_qsl, 1U);
}

TEST_F(RowBuilderTest, ClubPositionLivesFromContactToContactAndFromRunToRun) {
    options.Check10 = true;
    build({station("W1AYBB"), station("JA1ABC"), station("W1AYBB")});
    EXPECT_EQ(contest(0).at(contest_row::transfer_mark), "J");  // not found yet
    EXPECT_EQ(contest(2).at(contest_row::transfer_mark), "N");
    build({station("W1AYBB")});
    EXPECT_EQ(contest(0).at(contest_row::transfer_mark), "N");
}

// It runs before the call base is cut for the QTH master, so six blanks cannot hide five letters.
TEST_F(RowBuilderTest, ClubRuleLooksAtTheCallBaseAsItWas) {
    use_all_sources();
    options.Check10 = true;
    build({station("JA1ZY")});
    EXPECT_EQ(contest().at(contest_row::transfer_mark), "J");
}

TEST_F(RowBuilderTest, ClubRuleLeavesThePositionAloneWhileItIsOff) {
    build({station("JA1ZAA")});
    EXPECT_EQ(memory.club_position, 0U);
}

// --- sources ---

TEST_F(RowBuilderTest, MastersAreAskedWithTheCallBase) {
    use_all_sources();
    build({station("JA1ABC", "1")});
    EXPECT_THAT(name_mas.asked, ElementsAre("JA1ABC"));
    EXPECT_THAT(qth_mas.asked, ElementsAre("JA1ABC"));
    EXPECT_THAT(text_data.asked, ElementsAre("JA1ABC"));
}

TEST_F(RowBuilderTest, MastersThatAreNotInUseAreNotAsked) {
    use_all_sources();
    options.Check03 = options.Check14 = options.Check8 = false;
    build({Coded{}});
    EXPECT_THAT(name_mas.asked, IsEmpty());
    EXPECT_THAT(qth_mas.asked, IsEmpty());
    EXPECT_THAT(text_data.asked, IsEmpty());
}

TEST_F(RowBuilderTest, MastersThatAreNotThereFindNothing) {
    use_all_sources();
    sources = {};
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::name), "");
    EXPECT_EQ(contest().at(contest_row::code), "");
    EXPECT_EQ(contest().at(contest_row::gl), "");
    EXPECT_EQ(contest().at(contest_row::qth), "");
}

TEST_F(RowBuilderTest, StationInBothMastersGetsTheNameOfNameMas) {
    use_all_sources();
    name_mas.stations["JA1ABC"].name = "of name_mas";
    qth_mas.stations["JA1ABC"].name = "of qth_mas";
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::name), "of name_mas");
    EXPECT_EQ(hamlog().at(hamlog_row::name), "of name_mas");
}

TEST_F(RowBuilderTest, NamesOfTheUserTextAreNotLookedAtByTheDefaultList) {
    use_all_sources();
    text_data.stations["JA1ABC"] = {.name = "N", .code = "C", .qth = "Q", .gl = "", .rmks = ""};
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::name), "");
    EXPECT_EQ(contest().at(contest_row::code), "");
    EXPECT_EQ(contest().at(contest_row::qth), "");
    options.name_yusen_jun = options.code_yusen_jun = options.qth_yusen_jun = "Text_data";
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::name), "N");
    EXPECT_EQ(contest().at(contest_row::code), "C");
    EXPECT_EQ(contest().at(contest_row::qth), "Q");
}

TEST_F(RowBuilderTest, PortableStationKeepsTheNameOfQthMasButNotCodeQthAndGl) {
    use_all_sources();
    qth_mas.stations["JA1ABC"] = {.name = "N", .code = "C", .qth = "Q", .gl = "G", .rmks = ""};
    options.Check16 = true;
    build({station("JA1ABC", "1"), station("JA1ABC")});
    const Row portable = contest(0);
    EXPECT_EQ(portable.at(contest_row::name), "N");
    EXPECT_EQ(portable.at(contest_row::code), "");
    EXPECT_EQ(portable.at(contest_row::qth), "");
    EXPECT_EQ(portable.at(contest_row::gl), "");
    const Row at_home = contest(1);
    EXPECT_EQ(at_home.at(contest_row::name), "N");
    EXPECT_EQ(at_home.at(contest_row::code), "C");
    EXPECT_EQ(at_home.at(contest_row::qth), "Q");
    EXPECT_EQ(at_home.at(contest_row::gl), "G");
}

TEST_F(RowBuilderTest, PortableStationKeepsNameAndRemarkOfTheUserTextButNotCodeAndQth) {
    use_all_sources();
    text_data.stations["JA1ABC"] = {.name = "N", .code = "C", .qth = "Q", .gl = "", .rmks = "R"};
    options.name_yusen_jun = options.code_yusen_jun = options.qth_yusen_jun = "Text_data";
    options.Check17 = true;
    build({station("JA1ABC", "1")});
    EXPECT_EQ(contest().at(contest_row::name), "N");
    EXPECT_EQ(contest().at(contest_row::code), "");
    EXPECT_EQ(contest().at(contest_row::qth), "");
    EXPECT_EQ(contest().at(contest_row::rmks1), "R");
}

TEST_F(RowBuilderTest, SquareComesFromQthMasAlone) {
    use_all_sources();
    name_mas.stations["JA1ABC"].gl = "of name_mas";
    text_data.stations["JA1ABC"].gl = "of text_data";
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::gl), "");
    qth_mas.stations["JA1ABC"].gl = "PM95";
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::gl), "PM95");
    options.Check5 = false;
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::gl), "");
}

TEST_F(RowBuilderTest, CodeAndQthOfTheCodeStageReachTheRowUnlessAnotherSourceOverwritesThem) {
    struct Case {
        std::string_view what;
        int option_02;
        int option_04;
        bool in_name_mas;
        std::string_view expected;
    };
    for (const Case& row :
         std::vector<Case>{{"the only source, and in the order", 1, 1, false, "coded"},
                           {"the only source, not in the order", 1, 0, false, "coded"},
                           {"the only source, no code stage", 0, 1, false, "coded"},
                           {"first in the order", 1, 1, true, "coded"},
                           {"another stands in the order", 1, 0, true, "of name_mas"},
                           {"no code stage", 0, 1, true, "of name_mas"}}) {
        SCOPED_TRACE(row.what);
        use_all_sources();
        options.Option02 = row.option_02;
        options.Option04 = row.option_04;
        name_mas.stations.clear();
        if (row.in_name_mas) {
            name_mas.stations["JA1ABC"] = {
                .name = "", .code = "of name_mas", .qth = "of name_mas", .gl = "", .rmks = ""};
        }
        Coded contact;
        contact.code = contact.qth = "coded";
        build({contact});
        EXPECT_EQ(contest().at(contest_row::code), row.expected);
        EXPECT_EQ(contest().at(contest_row::qth), row.expected);
    }
}

TEST_F(RowBuilderTest, NothingStaysFromTheContactBefore) {
    use_all_sources();
    for (FewStations* const master : {&name_mas, &qth_mas, &text_data}) {
        master->stations["JA1ABC"] = {.name = "N", .code = "C", .qth = "Q", .gl = "G", .rmks = "R"};
    }
    layout_1.items = {RemarkItem::memo};
    layout_2.items = {RemarkItem::op};
    Coded second = station("JR8YYX");
    second.memo = second.op = "";
    build({Coded{}, second});
    EXPECT_EQ(contest(0).at(contest_row::gl), "G");
    EXPECT_THAT(contest(1),
                ElementsAre("JR8YYX", "", "", "", "7.012", "CW ", "", "J", "*", "", "210801",
                            "0218U", "599", "589", "", "", "", "JR8YYX", "JR8YYX"));
}

TEST_F(RowBuilderTest, MastersOfAPassAreReadWhenItsFilesAreOpenQthMasFirst) {
    use_all_sources();
    const auto noted = [](std::string line) {
        return [line](const Stage& at) { at.trace.write(line); };
    };
    name_mas.on_prepare = noted("name_mas");
    qth_mas.on_prepare = noted("qth_mas");
    text_data.on_prepare = noted("text_data");
    build({Coded{}, Coded{}});
    ASSERT_THAT(trace.lines, SizeIs(7));
    EXPECT_EQ(trace.lines[4], "Open R:\\temp_h_n.csv For Output As #f_o");
    EXPECT_EQ(trace.lines[5], "qth_mas");
    EXPECT_EQ(trace.lines[6], "text_data");
    trace.lines.clear();
    options.Check14 = options.Check8 = false;
    build({Coded{}});
    EXPECT_THAT(trace.lines, SizeIs(5));
}

// The masters themselves, each with the same station in it.
class RowsFromMasters : public RowBuilderTest {
  protected:
    RowsFromMasters() {
        options.Check03 = options.Check14 = options.Check7 = true;
        options.Check8 = options.Check4_A = options.Check11 = options.Check12 = true;
        put_master(disk, "C:\\mas\\name_mas.txt",
                   {line_of({{2, "JA1ABC"}, {8, "山田"}, {20, "1004"}, {26, "武蔵野市"}})});
        put_master(
            disk, "C:\\mas\\qth_mas.txt",
            {line_of({{2, "JA1ABC"}, {8, "鈴木"}, {20, "1101"}, {26, "横浜市"}, {54, "PM95TK"}})});
        put_master(
            disk, "C:\\mas\\a.txt",
            {line_of({{2, "JA1ABC"}, {8, "佐藤"}, {20, "1201"}, {26, "千葉市"}, {54, "友人"}})});
        settings.environment.name_mas_dir = "C:\\mas\\";
        settings.environment.qth_mas_dir = "C:\\mas\\qth_mas.txt";
        settings.options.Text_data_dir_A = "C:\\mas\\a.txt";
    }

    void build_from_masters(const std::vector<Coded>& contacts) {
        NameMas loaded;
        loaded.read_name_mas_txt(stage, settings.environment.name_mas_dir);
        RunMasters masters(options, settings, loaded, hits);
        sources = masters.sources();
        build(contacts);
    }

    FixedClock clock;
    SettingsStore settings{disk, clock, "R:\\"};
    std::size_t hits = 0;
};

TEST_F(RowsFromMasters, DefaultListsTakeNameMasForTheNameAndQthMasForTheSquare) {
    build_from_masters({station("JA1ABC"), station("JR8YYX")});
    EXPECT_EQ(contest(0).at(contest_row::name), "山田");
    EXPECT_EQ(contest(0).at(contest_row::code), "1004");
    EXPECT_EQ(contest(0).at(contest_row::qth), "武蔵野市");
    EXPECT_EQ(contest(0).at(contest_row::gl), "PM95TK");
    EXPECT_EQ(contest(0).at(contest_row::rmks1), "友人");
    EXPECT_EQ(contest(1).at(contest_row::name), "");
    EXPECT_EQ(contest(1).at(contest_row::gl), "");
    EXPECT_EQ(hits, 1U);
}

TEST_F(RowsFromMasters, PortableStationIsFoundByItsHomeCall) {
    options.Check16 = true;
    options.name_yusen_jun = options.code_yusen_jun = options.qth_yusen_jun = "qth_mas";
    Coded contact = station("JA1ABC", "1");
    contact.call = contact.call_as_logged = "JA1ABC/1";
    build_from_masters({contact});
    EXPECT_EQ(contest().at(contest_row::name), "鈴木");
    EXPECT_EQ(contest().at(contest_row::code), "");
    EXPECT_EQ(contest().at(contest_row::qth), "");
    EXPECT_EQ(contest().at(contest_row::gl), "");
}

TEST_F(RowsFromMasters, TextDataLastOfFourIsNotLookedAt) {
    options.Check03 = options.Check14 = false;
    build_from_masters({station("JA1ABC")});
    EXPECT_EQ(contest().at(contest_row::name), "");
    options.name_yusen_jun = "dat_mas,name_mas,Text_data,qth_mas";
    build_from_masters({station("JA1ABC")});
    EXPECT_EQ(contest().at(contest_row::name), "佐藤");
}

TEST_F(RowsFromMasters, MasterThatIsMissingEndsThePass) {
    disk.remove("C:\\mas\\qth_mas.txt");
    EXPECT_THAT([this] { build_from_masters({station("JA1ABC")}); },
                testing::Throws<RunTimeError>(
                    testing::Property(&RunTimeError::failure, Failure::file_not_found)));
    EXPECT_THAT(error_lines(),
                ElementsAre("エラー発生  Private Sub read_qth_from_qth_mas() ：　53"));
}

// --- the six-character rule ---

TEST_F(RowBuilderTest, CallBaseOfSevenLosesItsTailWithQthMas) {
    use_all_sources();
    qth_mas.stations["JA1ABC"].gl = "PM95";
    Coded contact = station("JA1ABCD", "1");
    contact.call = contact.call_as_logged = "JA1ABCD/1";
    build({contact});
    EXPECT_THAT(qth_mas.asked, ElementsAre("JA1ABC"));
    EXPECT_EQ(contest().at(contest_row::call_base), "JA1ABC");
    EXPECT_EQ(sort_row().at(contest_row::call_base), "JA1ABC");
    EXPECT_EQ(hamlog().at(hamlog_row::call_base), "JA1ABC");
    EXPECT_EQ(contest().at(contest_row::gl), "PM95");
    EXPECT_EQ(contest().at(contest_row::call_1), "JA1ABCD/1");
    EXPECT_EQ(contest().at(contest_row::call_2), "JA1ABCD/1");
    EXPECT_EQ(hamlog().at(hamlog_row::call_1), "JA1ABCD/1");
    EXPECT_EQ(hamlog().at(hamlog_row::call_2), "JA1ABCD/1");
}

TEST_F(RowBuilderTest, CallBaseOfSevenStaysWithoutQthMas) {
    use_all_sources();
    options.Check14 = false;
    build({station("JA1ABCD")});
    EXPECT_EQ(contest().at(contest_row::call_base), "JA1ABCD");
    EXPECT_EQ(hamlog().at(hamlog_row::call_base), "JA1ABCD");
}

TEST_F(RowBuilderTest, OtherMastersAreAskedWithTheWholeCallBase) {
    use_all_sources();
    build({station("JA1ABCD")});
    EXPECT_THAT(name_mas.asked, ElementsAre("JA1ABCD"));
    EXPECT_THAT(text_data.asked, ElementsAre("JA1ABCD"));
}

TEST_F(RowBuilderTest, ShortCallBaseIsFilledForQthMasAndTrimmedInTheRow) {
    use_all_sources();
    qth_mas.stations["K1AB  "].gl = "FN31";
    build({station("K1AB")});
    EXPECT_THAT(qth_mas.asked, ElementsAre("K1AB  "));
    EXPECT_EQ(contest().at(contest_row::gl), "FN31");
    EXPECT_EQ(contest().at(contest_row::call_base), "K1AB");
    EXPECT_EQ(hamlog().at(hamlog_row::call_base), "K1AB");
}

// --- remarks ---

TEST_F(RowBuilderTest, RemarksComeFromTheirLayouts) {
    options.txtRmks1 = "one";
    options.txtRmks2 = "two";
    layout_1.items = {RemarkItem::memo_equals, RemarkItem::rcvd, RemarkItem::rmks1};
    layout_2.items = {RemarkItem::rmks2, RemarkItem::op_percent, RemarkItem::op};
    options.Check1 = true;
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::rmks1), "memo=nice fist 104M one");
    EXPECT_EQ(contest().at(contest_row::rmks2), "two %JA1ZZZ% JA1ZZZ");
    EXPECT_EQ(hamlog().at(hamlog_row::rmks1), "memo=nice fist 104M one");
    EXPECT_EQ(hamlog().at(hamlog_row::rmks2), "two %JA1ZZZ% JA1ZZZ");
    options.Check1 = false;
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::rmks1), "memo=nice fist104Mone");
}

TEST_F(RowBuilderTest, LengthsHoldForBothRemarks) {
    layout_1.items = {RemarkItem::rcvd};
    layout_2.items = {RemarkItem::op};
    lengths.set(RemarkItem::rcvd, 6);
    lengths.set(RemarkItem::op, 3);
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::rmks1), "104M  ");
    EXPECT_EQ(contest().at(contest_row::rmks2), "JA1");
    EXPECT_EQ(hamlog().at(hamlog_row::rmks1), "104M  ");
}

TEST_F(RowBuilderTest, ContestNameIsClearedForLogsThatHaveNone) {
    layout_1.items = {RemarkItem::contest, RemarkItem::rcvd};
    build({Coded{}});
    EXPECT_EQ(contest().at(contest_row::rmks1), "104M");
}

TEST_F(RowBuilderTest, FirstRemarkIsComposedFirst) {
    layout_1.items = {RemarkItem::memo};
    layout_2.items = {RemarkItem::memo_equals};
    Coded contact;
    contact.memo = "a memo=b";
    build({contact, contact});
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
        EXPECT_EQ(contest(i).at(contest_row::rmks1), "a b");
        EXPECT_EQ(contest(i).at(contest_row::rmks2), "memo=a b");
    }
}

class TextDataRemark : public RowBuilderTest {
  protected:
    TextDataRemark() {
        use_all_sources();
        text_data.stations["JA1ABC"].rmks = "text";
        options.txtRmks1 = "one";
        options.txtRmks2 = "two";
        layout_1.items = {RemarkItem::rmks1};
        layout_2.items = {RemarkItem::rmks2};
    }
    void expect_remarks(std::string_view rmks1, std::string_view rmks2) {
        build({Coded{}});
        EXPECT_EQ(contest().at(contest_row::rmks1), rmks1);
        EXPECT_EQ(contest().at(contest_row::rmks2), rmks2);
        EXPECT_EQ(hamlog().at(hamlog_row::rmks1), rmks1);
        EXPECT_EQ(hamlog().at(hamlog_row::rmks2), rmks2);
    }
};

TEST_F(TextDataRemark, StandsWhereOption4PutsIt) {
    struct Case {
        int option_4;
        std::string_view rmks1;
        std::string_view rmks2;
    };
    for (const Case& row : std::vector<Case>{{0, "text one", "two"},
                                             {1, "one text", "two"},
                                             {2, "one", "text two"},
                                             {3, "one", "two text"}}) {
        SCOPED_TRACE(row.option_4);
        options.Option4 = row.option_4;
        expect_remarks(row.rmks1, row.rmks2);
    }
}

TEST_F(TextDataRemark, StandsAloneInAnEmptyRemark) {
    options.txtRmks1 = options.txtRmks2 = "";
    struct Case {
        int option_4;
        std::string_view rmks1;
        std::string_view rmks2;
    };
    for (const Case& row :
         std::vector<Case>{{0, "text", ""}, {1, "text", ""}, {2, "", "text"}, {3, "", "text"}}) {
        SCOPED_TRACE(row.option_4);
        options.Option4 = row.option_4;
        expect_remarks(row.rmks1, row.rmks2);
    }
}

TEST_F(TextDataRemark, IsLeftOutWithoutCheck8OrCheck12) {
    options.Check12 = false;
    expect_remarks("one", "two");
    options.Check12 = true;
    options.Check8 = false;
    expect_remarks("one", "two");
}

TEST_F(TextDataRemark, TrimsTheColumnItGoesToEvenWhenThereIsNone) {
    text_data.stations.clear();
    lengths.set(RemarkItem::rmks1, 5);
    lengths.set(RemarkItem::rmks2, 5);
    options.Option4 = 1;
    expect_remarks("one", "two  ");
    options.Option4 = 2;
    expect_remarks("one  ", "two");
    options.Check8 = false;
    expect_remarks("one  ", "two  ");
}

// --- the run ---

TEST_F(RowBuilderTest, StatusAndProgressAreShown) {
    build({Coded{}, Coded{}});
    EXPECT_EQ(lblCFG.caption.get(), "変換処理中");
    EXPECT_EQ(lblCFG.fore_colour.get(), colours::green);
    EXPECT_EQ(bar.value.get(), 2U);  // a step for each contact
}

TEST_F(RowBuilderTest, TraceNamesTheFiles) {
    build({Coded{}});
    EXPECT_THAT(trace.lines, ElementsAre("count_file_rec C:\\log\\zlog_2.txt",
                                         "Open C:\\log\\zlog_2.txt For Input As #f_i",
                                         "Open R:\\Sort-in.dat For Output As #f_o",
                                         "Open R:\\temp_h_o.csv For Output As #f_o",
                                         "Open R:\\temp_h_n.csv For Output As #f_o"));
}

TEST_F(RowBuilderTest, FileWithoutAContactReadsPastTheEnd) {
    EXPECT_THAT([this] { build({}); }, testing::Throws<RunTimeError>(testing::Property(
                                           &RunTimeError::failure, Failure::input_past_end)));
}

TEST_F(RowBuilderTest, RowsOfAnEarlierRunAreReplaced) {
    build({Coded{}, Coded{}});
    build({station("JR8YYX")});
    for (const std::string_view file : {"Sort-in.dat", "temp_h_o.csv", "temp_h_n.csv"}) {
        EXPECT_THAT(rows_of(file), SizeIs(1)) << file;
    }
}

}  // namespace
}  // namespace veldrana
