// contest_name.csv: how it is read, and what must not stand in it.
#include "masters/contest_list.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/failure_report.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* list_path = "C:\\veldrana\\mas_mst\\contest_name.csv";
constexpr const char* fault_path = "C:\\veldrana\\ERR_contest_name_csv.txt";

class ContestListTest : public StageFixture {
  protected:
    std::vector<ContestEntry> read(ContestList::Heading heading,
                                   const std::vector<std::string>& lines) {
        put_lines(disk, list_path, lines);
        ContestList list(stage, list_path, heading);
        std::vector<ContestEntry> entries;
        for (ContestEntry entry; list.next(entry);) {
            entries.push_back(entry);
        }
        return entries;
    }
};

TEST_F(ContestListTest, FieldsTwoToSevenAreTaken) {
    const std::vector<ContestEntry> entries = read(
        ContestList::Heading::skipped,
        {"heading", "free,Fham.cfg, fham.dat ,フィールドデー,11,JCC番号,\"又は, 都府県\",free"});
    ASSERT_THAT(entries, SizeIs(1));
    EXPECT_EQ(entries[0].Cfg_name, "Fham.cfg");
    EXPECT_EQ(entries[0].Dat_name, "fham.dat");
    EXPECT_EQ(entries[0].Con_name, "フィールドデー");
    EXPECT_EQ(entries[0].Code_flag, "11");
    EXPECT_EQ(entries[0].Con_no_1, "JCC番号");
    EXPECT_EQ(entries[0].Con_no_2, "又は, 都府県");
}

TEST_F(ContestListTest, HeadingIsSkippedOrReadAsAContest) {
    const std::vector<std::string> lines{"a,cfg,dat,name,flag,no1,no2,b", "1,2,3,4,5,6,7,8"};
    EXPECT_THAT(read(ContestList::Heading::skipped, lines), SizeIs(1));
    const auto entries = read(ContestList::Heading::read_as_contest, lines);
    ASSERT_THAT(entries, SizeIs(2));
    EXPECT_EQ(entries[0].Dat_name, "dat");
}

TEST_F(ContestListTest, HeadingAloneHasNoContests) {
    EXPECT_THAT(read(ContestList::Heading::skipped, {"heading"}), IsEmpty());
    EXPECT_EQ(failure_of([this] { read(ContestList::Heading::skipped, {}); }), 62);
}

TEST_F(ContestListTest, LineOfTooFewFieldsTakesTheRestFromTheNext) {
    const auto entries = read(ContestList::Heading::skipped,
                              {"heading", "a,cfg,dat", "name,11,no1,no2,b", "1,2,3,4,5,6,7,8"});
    ASSERT_THAT(entries, SizeIs(2));
    EXPECT_EQ(entries[0].Con_name, "name");
    EXPECT_EQ(entries[1].Con_name, "4");
    EXPECT_EQ(failure_of([this] {
                  read(ContestList::Heading::skipped, {"heading", "a,cfg,dat"});
              }),
              62);
}

// --- the check at the start ---

class ContestListCheck : public StageFixture {
  protected:
    // Whether the check ends the program.
    bool ends(const std::vector<std::string>& lines) {
        put_lines(disk, list_path, lines);
        try {
            Check_contest_name_csv(stage, list_path, "C:\\veldrana\\");
        } catch (const ProgramEnd& end) {
            EXPECT_EQ(end.cause, ProgramEnd::Cause::refused);
            return true;
        }
        return false;
    }

    std::string faults() { return from_code_page(disk.bytes(fault_path)); }
};

TEST_F(ContestListCheck, ListWithoutFaultPasses) {
    EXPECT_FALSE(ends({"heading", "1,2,3,4,5,6,7,8", "", "a,b"}));
    EXPECT_THAT(person.boxes, IsEmpty());
    EXPECT_FALSE(disk.file_exists(fault_path));
}

TEST_F(ContestListCheck, HeadingIsNotLookedAt) {
    EXPECT_FALSE(ends({"1,2,3,4,5,6,7,8,9,\"&\"", "1,2,3,4,5,6,7,8"}));
}

TEST_F(ContestListCheck, EachFaultIsToldInFrontOfItsLine) {
    struct Row {
        std::string_view line;
        std::string_view message;
    };
    for (const Row& row : std::vector<Row>{
             {"1,2,3,4,5,6,7,8,9", "各項目内には半角カンマ [ ，]  は使用しないで下さい。"},
             {"1,2,\"3\",4,5,6,7,8",
              "各項目内には半角ダブルコーテイション [ \" ] は使用しないで下さい。"},
             {"1,2,3,4,5,6,7,Q&A",
              "各項目内には半角アンパーサント [ ＆ ] は使用しないで下さい。"}}) {
        person.boxes.clear();
        EXPECT_TRUE(ends({"heading", "1,2,3,4,5,6,7,8", std::string(row.line)}));
        EXPECT_EQ(faults(),
                  "　　" + std::string(row.message) + "\r\n" + std::string(row.line) + "\r\n");
        ASSERT_THAT(person.boxes, SizeIs(1));
        EXPECT_EQ(person.boxes[0].title, " ファイルを修正して下さい。");
        EXPECT_EQ(person.boxes[0].text, std::string(row.message) +
                                            "\n\nエラーのある行は下記ファイルを確認して下さい。\n\n"
                                            "ERR_contest_name_csv.txt\n\n" +
                                            list_path + " を修正してから起動して下さい。");
    }
}

TEST_F(ContestListCheck, LineOfEightFieldsIsNoFaultAndOneOfNineIs) {
    EXPECT_FALSE(ends({"heading", ",,,,,,,"}));
    EXPECT_TRUE(ends({"heading", ",,,,,,,,"}));
}

TEST_F(ContestListCheck, AmpersandStopsTheStartEvenInACommentField) {
    EXPECT_TRUE(ends({"heading", "R&D,2,3,4,5,6,7,8"}));
}

TEST_F(ContestListCheck, LineWithSeveralFaultsStandsBehindEachAndTheBoxNamesEachKindOnce) {
    EXPECT_TRUE(ends({"heading", "1,2,3,4,5,6,7,8,&", "&,2", "\"1\",2"}));
    EXPECT_EQ(faults(),
              "　　各項目内には半角カンマ [ ，]  は使用しないで下さい。\r\n"
              "1,2,3,4,5,6,7,8,&\r\n"
              "　　各項目内には半角アンパーサント [ ＆ ] は使用しないで下さい。\r\n"
              "1,2,3,4,5,6,7,8,&\r\n"
              "　　各項目内には半角アンパーサント [ ＆ ] は使用しないで下さい。\r\n"
              "&,2\r\n"
              "　　各項目内には半角ダブルコーテイション [ \" ] は使用しないで下さい。\r\n"
              "\"1\",2\r\n");
    EXPECT_THAT(
        person.boxes.at(0).text,
        testing::StartsWith("各項目内には半角カンマ [ ，]  は使用しないで下さい。\n\n"
                            "各項目内には半角ダブルコーテイション [ \" ] は使用しないで下さい。\n\n"
                            "各項目内には半角アンパーサント [ ＆ ] は使用しないで下さい。\n\n"
                            "エラーのある行は下記ファイルを確認して下さい。"));
}

TEST_F(ContestListCheck, FaultsOfAnEarlierStartAreReplaced) {
    ends({"heading", "&"});
    ends({"heading", "\"x\""});
    EXPECT_EQ(
        faults(),
        "　　各項目内には半角ダブルコーテイション [ \" ] は使用しないで下さい。\r\n\"x\"\r\n");
}

TEST_F(ContestListCheck, TraceNamesProcedureAndFiles) {
    ends({"heading", "&"});
    EXPECT_THAT(trace.lines,
                ElementsAre("Private Sub Check_contest_name_csv()",
                            "Open C:\\veldrana\\mas_mst\\contest_name.csv For Input As #f_i",
                            "Open C:\\veldrana\\ERR_contest_name_csv.txt For Output As #f_o"));
}

}  // namespace
}  // namespace veldrana
