// The contest of a binary log, by the name in its heading.
#include "readers/zlo_contest.h"

#include <gtest/gtest.h>

#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

namespace veldrana {
namespace {

constexpr const char* list_path = "C:\\veldrana\\mas_mst\\contest_name.csv";

class ZloContestTest : public StageFixture {
  protected:
    ZloContest find(const std::string& contest_name, const std::vector<std::string>& rows) {
        put_lines(disk, list_path, rows);
        return find_zlo_contest(stage, list_path, contest_name);
    }
};

std::string row_of(const std::string& Con_name, const std::string& Dat_name = "a.dat") {
    return "free,a.cfg," + Dat_name + "," + Con_name + ",11,number,more,free";
}

const std::string heading = "番号,Cfg,Dat,コンテスト名,flag,no1,no2,備考";

TEST_F(ZloContestTest, FirstRowWhoseNameOccursIsTaken) {
    const ZloContest contest =
        find("2025 全市全郡コンテスト", {heading, row_of("別"), row_of("全市全郡", "acag.dat"),
                                         row_of("全市全郡コンテスト", "other.dat")});
    EXPECT_TRUE(contest.found);
    EXPECT_EQ(contest.row.Con_name, "全市全郡");
    EXPECT_EQ(contest.row.Dat_name, "acag.dat");
    EXPECT_EQ(contest.row.Code_flag, "11");
    EXPECT_EQ(contest.row.Con_no_1, "number");
    EXPECT_EQ(contest.row.Con_no_2, "more");
    EXPECT_EQ(contest.contest_name, "2025 全市全郡コンテスト");
}

TEST_F(ZloContestTest, NameIsTrimmedBeforeItIsLookedFor) {
    const ZloContest contest = find("ACAG", {heading, "free,a.cfg,a.dat,\" ACAG \",11,n,m,f"});
    EXPECT_TRUE(contest.found);
    EXPECT_EQ(contest.row.Con_name, "ACAG");
}

TEST_F(ZloContestTest, CaseCounts) {
    EXPECT_FALSE(find("acag", {heading, row_of("ACAG")}).found);
}

TEST_F(ZloContestTest, WithoutAMatchTheLastRowStands) {
    const ZloContest contest =
        find("XPO", {heading, row_of("ACAG", "a.dat"), row_of("FD", "fd.dat")});
    EXPECT_FALSE(contest.found);
    EXPECT_EQ(contest.row.Con_name, "FD");
    EXPECT_EQ(contest.row.Dat_name, "fd.dat");
    EXPECT_EQ(contest.contest_name, "XPO");
}

TEST_F(ZloContestTest, HeadingIsARowLikeAnyOther) {
    EXPECT_EQ(find("コンテスト名", {heading, row_of("ACAG")}).row.Dat_name, "Dat");
}

TEST_F(ZloContestTest, EmptyListHasNoRow) {
    const ZloContest contest = find("ACAG", {});
    EXPECT_FALSE(contest.found);
    EXPECT_EQ(contest.row.Con_name, "");
    EXPECT_EQ(contest.contest_name, "ACAG");
}

TEST_F(ZloContestTest, PathThatEndsInTheSettingsOfNiftyIsNamedAfterIt) {
    const ZloContest contest =
        find("C:\\zlog\\Fham.cfg", {heading, row_of("Fham.cfg", "fham.dat"), row_of("FD")});
    EXPECT_TRUE(contest.found);
    EXPECT_EQ(contest.contest_name, "Nifty FHAMコンテスト");
    EXPECT_EQ(contest.row.Con_name, "Nifty FHAMコンテスト");
    EXPECT_EQ(contest.row.Dat_name, "fham.dat");
}

TEST_F(ZloContestTest, SettingsOfNiftyInTheLastRowNameALogThatMatchesNothing) {
    const ZloContest contest =
        find("XPO", {heading, row_of("ACAG"), row_of("Fham.cfg", "fham.dat")});
    EXPECT_FALSE(contest.found);
    EXPECT_EQ(contest.contest_name, "Nifty FHAMコンテスト");
    EXPECT_EQ(contest.row.Con_name, "Nifty FHAMコンテスト");
}

TEST_F(ZloContestTest, ListThatIsMissingOrCutShortFails) {
    put_lines(disk, list_path, {heading});
    EXPECT_EQ(failure_of([&] { find_zlo_contest(stage, std::string(list_path) + "x", "x"); }), 53);
    EXPECT_EQ(failure_of([&] { find("x", {heading, "free,a.cfg"}); }), 62);
}

}  // namespace
}  // namespace veldrana
