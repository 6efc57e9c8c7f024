// hl_code.mas and the postal masters: their columns, their search, when they are read.
#include "masters/code_masters.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

constexpr const char* hl_code_path = "C:\\veldrana\\hl_code.mas";

std::string record(std::string_view key, std::string_view code, std::string_view qth) {
    return line_of({{2, key}, {20, code}, {26, qth}});
}

class CodeMasters : public StageFixture {
  protected:
    CodeAndPlace in_hl_code(std::string_view number, const std::vector<std::string>& records) {
        put_master(disk, hl_code_path, records);
        HlCodeMas master(hl_code_path);
        master.prepare(stage);
        return master.find(number);
    }

    void put_yubin(char digit, const std::vector<std::string>& records) {
        put_master(disk, std::string("C:\\yubin\\yubin_m") + digit + ".mas", records);
    }

    CodeAndPlace in_yubin(std::string_view number) {
        return YubinMas(stage, "C:\\yubin\\").find(number);
    }
};

// --- hl_code.mas ---

TEST_F(CodeMasters, HlCodeGivesCodeAndQthOfAKey) {
    EXPECT_EQ(in_hl_code("1004", {record("1004", "1004", "東京都武蔵野市")}),
              (CodeAndPlace{"1004", "東京都武蔵野市"}));
}

TEST_F(CodeMasters, HlCodeColumnsBeginAndEndWhereTheyShould) {
    const std::string line = "x" + std::string(6, 'K') + std::string(12, 'x') +
                             std::string(6, 'c') + std::string(32, 'q') + "x";
    EXPECT_EQ(in_hl_code("KKKKKK", {line}), (CodeAndPlace{"cccccc", std::string(32, 'q')}));
}

TEST_F(CodeMasters, HlCodeComparesWithoutRegardToCaseAndTrimsTheKey) {
    const std::vector<std::string> records{record("tk", "10", "東京都")};
    EXPECT_EQ(in_hl_code("TK", records).code, "10");
    EXPECT_EQ(in_hl_code(" Tk ", records).code, "10");
    EXPECT_EQ(in_hl_code("TKK", records), CodeAndPlace{});
}

TEST_F(CodeMasters, HlCodeFirstEqualRowWins) {
    EXPECT_EQ(in_hl_code("1004", {record("1003", "1003", "a"), record("1004", "1004", "b"),
                                  record("1004", "9999", "c")}),
              (CodeAndPlace{"1004", "b"}));
}

TEST_F(CodeMasters, EmptyNumberFindsNothingEvenIfARowHasAnEmptyKey) {
    const std::vector<std::string> records{record("", "9999", "nowhere"), ""};
    EXPECT_EQ(in_hl_code("", records), CodeAndPlace{});
    EXPECT_EQ(in_hl_code("  ", records), CodeAndPlace{});
}

TEST_F(CodeMasters, HlCodeOfHeadingsAloneKnowsNothing) {
    EXPECT_EQ(in_hl_code("1004", {}), CodeAndPlace{});
    EXPECT_THAT(error_lines(), testing::IsEmpty());
}

TEST_F(CodeMasters, HlCodeWithoutItsHeadingsReadsPastTheEnd) {
    put_lines(disk, hl_code_path, {"one"});
    HlCodeMas master(hl_code_path);
    EXPECT_EQ(failure_of([&] { master.prepare(stage); }), 62);
}

TEST_F(CodeMasters, HlCodeIsLoadedOnce) {
    put_master(disk, hl_code_path, {record("1004", "1004", "武蔵野市")});
    HlCodeMas master(hl_code_path);
    EXPECT_EQ(master.find("1004"), CodeAndPlace{});
    master.prepare(stage);
    put_master(disk, hl_code_path, {});
    master.prepare(stage);
    EXPECT_EQ(master.find("1004").qth, "武蔵野市");
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub read_hl_code_mas()",
                                         "Open C:\\veldrana\\hl_code.mas For Input As #f_i"));
}

TEST_F(CodeMasters, StatusShowsThePathOfHlCodeWhileItIsRead) {
    std::vector<std::string> captions;
    lblCFG.caption.on_change = [&] { captions.push_back(lblCFG.caption); };
    in_hl_code("1004", {});
    EXPECT_THAT(captions, ElementsAre("C:\\veldrana\\hl_code.mas を読込中 ．．．", ""));
}

TEST_F(CodeMasters, MissingHlCodeIsAFailure) {
    disk.put_folder("C:\\veldrana");
    HlCodeMas master(hl_code_path);
    EXPECT_EQ(failure_of([&] { master.prepare(stage); }), 53);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 ：　53"));
}

// --- yubin_m0.mas to yubin_m9.mas ---

TEST_F(CodeMasters, PostalCodeOfSevenDigitsIsSearchedByItsLastSixInTheFileOfItsFirst) {
    put_yubin('4', {record("500002", "2001", "名古屋市"), record("450000", "9999", "wrong")});
    EXPECT_EQ(in_yubin("4500002"), (CodeAndPlace{"2001", "名古屋市"}));
}

TEST_F(CodeMasters, ShortNumberIsItsOwnKey) {
    put_yubin('1', {record("1004", "1004", "武蔵野市"), record("004", "9999", "wrong")});
    EXPECT_EQ(in_yubin("1004").qth, "武蔵野市");
}

TEST_F(CodeMasters, YubinColumnsBeginAndEndWhereTheyShould) {
    put_yubin('1', {"x" + std::string(6, '1') + std::string(12, 'x') + std::string(6, 'c') +
                    std::string(12, 'q') + "x"});
    EXPECT_EQ(in_yubin("1111111"), (CodeAndPlace{"cccccc", std::string(12, 'q')}));
}

TEST_F(CodeMasters, YubinQthEndsWithAWholeCharacter) {
    put_yubin('1', {record("000001", "10", "a東京都千代田区霞が関")});
    EXPECT_EQ(in_yubin("1000001").qth, "a東京都千代");
}

TEST_F(CodeMasters, YubinFirstEqualRowWinsWithoutRegardToCase) {
    put_yubin('1', {record("1a", "10", "first"), record("1A", "11", "second")});
    EXPECT_EQ(in_yubin("1A").qth, "first");
}

TEST_F(CodeMasters, YubinKnowsNothingOfOtherNumbersAndOfHeadingsAlone) {
    put_yubin('1', {record("000001", "10", "東京都")});
    put_yubin('2', {});
    EXPECT_EQ(in_yubin("1000002"), CodeAndPlace{});
    EXPECT_EQ(in_yubin("2000001"), CodeAndPlace{});
}

TEST_F(CodeMasters, EachPostalFileIsReadWhenItIsAskedFor) {
    put_yubin('1', {record("000001", "10", "東京都")});
    put_yubin('4', {record("500002", "2001", "名古屋市")});
    YubinMas master(stage, "C:\\yubin\\");
    EXPECT_THAT(trace.lines, testing::IsEmpty());
    EXPECT_EQ(master.find("1000001").code, "10");
    EXPECT_EQ(master.find("4500002").code, "2001");
    EXPECT_EQ(master.find("1000001").code, "10");
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub read_get_yubin()",
                                         "Open C:\\yubin\\yubin_m1.mas For Input As #f_i",
                                         "Private Sub read_get_yubin()",
                                         "Open C:\\yubin\\yubin_m4.mas For Input As #f_i"));
    EXPECT_EQ(lblCFG.caption, std::string());
}

TEST_F(CodeMasters, NumberThatDoesNotBeginWithADigitAsksForAFileThatIsNotThere) {
    disk.put_folder("C:\\yubin");
    for (const std::string_view number : {"", "TK12", "?12", "\\12", "/12", "１００", "-"}) {
        EXPECT_EQ(failure_of([&] { in_yubin(number); }), 53) << number;
    }
    EXPECT_EQ(error_lines().front(), "エラー発生 ：　53");
    EXPECT_EQ(trace.lines.at(1), "Open C:\\yubin\\yubin_m.mas For Input As #f_i");
}

TEST_F(CodeMasters, PostalFileThatIsMissingIsAFailure) {
    put_yubin('1', {});
    EXPECT_EQ(failure_of([&] { in_yubin("2000001"); }), 53);
}

}  // namespace
}  // namespace veldrana
