// The boxes that refuse a contest, and the box that tells about the chosen one.
#include "readers/contest_refusals.h"

#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/failure_report.h"
#include "tests/doubles/scripted_person.h"

namespace veldrana {
namespace {

using testing::SizeIs;

class Refusals : public testing::Test {
  protected:
    Refusals() {
        selection.Con_name = "某コンテスト";
        selection.Con_no_1 = "連番";
    }

    ScriptedPerson person;
    ContestSelection selection;
    ContestRefusals refusals;
};

TEST_F(Refusals, ContestWithoutCode) {
    person.answers = {Answer::retry};
    no_get_code(person, selection, refusals);
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　DAT ﾌｧｲﾙ よりcode、QTHの取得は不可能！");
    EXPECT_EQ(person.boxes[0].text,
              "コンテスト名　：某コンテスト\n\nコンテストナンバー・タイプ : 連番\n\n"
              "コンテストナンバーからは ｃｏｄｅ の取得が出来ません。");
    EXPECT_EQ(person.boxes[0].buttons, Buttons::retry_cancel);
    EXPECT_TRUE(refusals.code);
    EXPECT_FALSE(refusals.list);
}

TEST_F(Refusals, NameThatTheListDoesNotHave) {
    person.answers = {Answer::retry};
    no_name_mas_qra_in_con_z_name_mas_qra_csv(person, "新コンテスト", refusals);
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　別の入力ファイルに指定し直して下さい。");
    EXPECT_EQ(person.boxes[0].text,
              "コンテスト名　：新コンテスト\n\n"
              "該当するコンテスト名が contest_name.csv にはありません。");
    EXPECT_TRUE(refusals.list);
    EXPECT_FALSE(refusals.code);
}

TEST_F(Refusals, LogWithoutAName) {
    person.answers = {Answer::retry};
    no_name_mas_qra_in_header(person, selection);
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　DAT ﾌｧｲﾙ よりcode、QTHの取得は不可能！");
    EXPECT_EQ(person.boxes[0].text,
              "ZLO に変換した ファイルでは [ 個別 DAT ]  の自動取得が出来ません。\n\n"
              "ｚＬｏｇ for Windows にて直接作成したファイル、 \n\n"
              "または　zLog for windows にて　[ \n\n"
              "ＴＸＴ形式のファイルを zListw に読み込みしてから\n\n"
              "起動画面の　[ User Defined Contest ]  [ Select ]  にて\n\n"
              "コンテストに対応した CFG ファイルを指定した後、\n\n"
              "* ．ZLO を作成し直して下さい。\n\n"
              "［ 再 試 行 ］　手動にて再度個別ＤＡＴの指定を行います。\n\n"
              "［キャンセル］　プログラムを終了します。 ");
    EXPECT_EQ(selection.File_no, "10");
}

TEST_F(Refusals, CancelEndsTheProgramAndRemembersNothing) {
    const std::vector<std::function<void()>> boxes{
        [this] { no_get_code(person, selection, refusals); },
        [this] { no_name_mas_qra_in_con_z_name_mas_qra_csv(person, "x", refusals); },
        [this] { no_name_mas_qra_in_header(person, selection); },
        [this] { no_code_from_chosen_dat(person, selection, refusals); }};
    for (const auto& show : boxes) {
        person.answers = {Answer::cancel};
        EXPECT_THROW(show(), ProgramEnd);
    }
    EXPECT_FALSE(refusals.code);
    EXPECT_FALSE(refusals.list);
    EXPECT_EQ(selection.File_no, "");
}

TEST(ContestInformation, TellsTheContestAndItsDataFile) {
    ContestSelection selection;
    selection.Con_name = "全市全郡コンテスト";
    selection.Code_flag = "31";
    selection.Con_no_1 = "JCC、JCG 番号";
    selection.Con_no_2 = "と電力記号";
    std::string kind_caption;
    const MessageBox box = contest_information(selection, kind_caption);
    EXPECT_EQ(box.title, "　　個別 ＤＡＴ ファイル情報");
    EXPECT_EQ(box.text,
              "コンテスト名　： 全市全郡コンテスト\n\n"
              "コード・フラグ　：　31\n\n"
              "処 理 方 法 　：　3　英字を削除の必要あり\n\n"
              "個別ＤＡＴ種別　：　1　拡張子 DAT\n\n"
              "コンテスト・ナンバー　：　JCC、JCG 番号\n\n"
              "　　　　　　　　　　　　　　と電力記号");
}

TEST(ContestInformation, KindFourShowsTheCaptionOfTheBoxBefore) {
    ContestSelection selection;
    std::string kind_caption;
    selection.Code_flag = "13";
    contest_information(selection, kind_caption);
    selection.Code_flag = "64";
    EXPECT_THAT(contest_information(selection, kind_caption).text,
                testing::HasSubstr("個別ＤＡＴ種別　：　4　拡張子 MST\n"));
}

TEST(ContestInformation, NothingChosenHasNoCaptions) {
    std::string kind_caption;
    EXPECT_THAT(contest_information({}, kind_caption).text,
                testing::HasSubstr("処 理 方 法 　：　　\n\n個別ＤＡＴ種別　：　　\n\n"));
}

}  // namespace
}  // namespace veldrana
