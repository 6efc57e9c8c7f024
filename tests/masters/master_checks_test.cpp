// The checks around the masters: files that must be there, counts of records, user texts.
#include "masters/master_checks.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/failure_report.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::string_view folder = "C:\\mas\\";
constexpr const char* missing_title = "　　エラー　：　必要ファイルがありません。";

class MasterChecks : public StageFixture {
  protected:
    MasterChecks() { disk.put_folder("C:\\mas"); }

    void put(std::string_view name, std::size_t records = 1) {
        put_master(disk, std::string(folder).append(name),
                   std::vector<std::string>(records, " JA1ABC"));
    }

    template <class Act>
    static bool ends(Act act) {
        try {
            act();
        } catch (const ProgramEnd& end) {
            EXPECT_EQ(end.cause, ProgramEnd::Cause::refused);
            return true;
        }
        return false;
    }
};

// --- name_mas_dir_check ---

class NameMasCheckTest : public MasterChecks {
  protected:
    NameMasCheck check(bool Check03, std::string_view name_mas_dir = folder) {
        return name_mas_dir_check(stage, name_mas_dir, Check03);
    }
};

TEST_F(NameMasCheckTest, HighestNumberIsLookedForUpTo20) {
    put("name_mas.txt");
    EXPECT_EQ(check(true).name_mas_max, 0U);
    put("name_mas1.txt");
    EXPECT_EQ(check(true).name_mas_max, 1U);
    for (int number = 2; number <= 21; ++number) {
        put("name_mas" + std::to_string(number) + ".txt");
    }
    EXPECT_EQ(check(true).name_mas_max, 20U);
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(NameMasCheckTest, NumberedFilesAreToldAndANoteStays) {
    put("name_mas1.txt");
    put("name_mas2.txt");
    EXPECT_EQ(check(true).note, "複数の name_mas? ．txt を検索するので処理に１分程掛かります。");
    EXPECT_EQ(lblCFG.caption, std::string("name_mas2 ．txt 迄あり。 件数をカウント中 !!"));
    EXPECT_TRUE(check(true).Check03);
}

TEST_F(NameMasCheckTest, WithoutCheck03TheStatusLineStaysAsItIs) {
    put("name_mas1.txt");
    const NameMasCheck result = check(false);
    EXPECT_EQ(result.name_mas_max, 1U);
    EXPECT_FALSE(result.Check03);
    EXPECT_EQ(lblCFG.caption, std::string());
}

TEST_F(NameMasCheckTest, GapEndsTheProgram) {
    put("name_mas1.txt");
    put("name_mas4.txt");
    EXPECT_TRUE(ends([this] { check(true); }));
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, missing_title);
    EXPECT_EQ(person.boxes[0].text,
              "[  name_mas4.txt  ]  までありますが、連続で必要な\n\n"
              "[  name_mas2.txt  ]  がありません。\n\n"
              "C:\\mas\\　に ｃｏｐｙ して下さい。。");
}

TEST_F(NameMasCheckTest, MissingFileInAFolderThatIsSetEndsTheProgram) {
    EXPECT_TRUE(ends([this] { check(true); }));
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, missing_title);
    EXPECT_THAT(person.boxes[0].text, testing::StartsWith("[ name_mas.txt ]  がありません。"));
    EXPECT_TRUE(ends([this] { check(false); }));
}

TEST_F(NameMasCheckTest, WithoutFolderAndFileCheck03GoesOff) {
    for (const std::string_view setting : {"使用しない", ""}) {
        person.boxes.clear();
        EXPECT_FALSE(check(true, setting).Check03);
        ASSERT_THAT(person.boxes, SizeIs(1));
        EXPECT_EQ(person.boxes[0].title, "　　name_mas.txt　は使用しません");
        EXPECT_EQ(person.boxes[0].text, "　「 QRA の取得する 」 のレ点を消しました。");
    }
}

TEST_F(NameMasCheckTest, BoxThatIsOffAlreadyNeedsNoWord) {
    EXPECT_FALSE(check(false, "使用しない").Check03);
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(NameMasCheckTest, FileThatIsNotUsedIsPointedOut) {
    put("name_mas.txt");
    EXPECT_FALSE(check(false).Check03);
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　name_mas.txt　の使用が可能です");
    EXPECT_EQ(person.boxes[0].text,
              "「 name_mas ．txt 」より QRA の取得する場合には\n\n"
              "メイン画面の [ dat / mas ]  タブの中の「 name_mas ．txt より 」の\n\n"
              "　「 QRA の取得する 」 のレ点を付けて下さい。");
}

TEST_F(NameMasCheckTest, FileInUsePassesWithoutAWord) {
    put("name_mas.txt");
    const NameMasCheck result = check(true);
    EXPECT_TRUE(result.Check03);
    EXPECT_EQ(result.note, "");
    EXPECT_THAT(person.boxes, IsEmpty());
}

// --- cmdCount ---

class NameMasCount : public MasterChecks {
  protected:
    std::vector<MasterCount> count(std::size_t highest) {
        return name_mas_txt_count1(stage, folder, highest);
    }
};

TEST_F(NameMasCount, RecordsAreTheLinesLessTwo) {
    put("name_mas.txt", 3);
    put("name_mas1.txt", 0);
    const std::vector<MasterCount> counts = count(1);
    ASSERT_THAT(counts, SizeIs(2));
    EXPECT_EQ(counts[0].name, "name_mas.txt");
    EXPECT_EQ(counts[0].records, 3);
    EXPECT_EQ(counts[1].name, "name_mas1.txt");
    EXPECT_EQ(counts[1].records, 0);
}

TEST_F(NameMasCount, LastLineWithoutAnEndCounts) {
    disk.put("C:\\mas\\name_mas.txt", "one\r\ntwo\r\n JA1ABC");
    EXPECT_EQ(count(0).at(0).records, 1);
}

TEST_F(NameMasCount, CountsAreShownInABoxAndInTheTraceLog) {
    put("name_mas.txt", 12);
    put("name_mas1.txt", 3);
    count(1);
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　name_mas．ｔｘｔ の件数");
    EXPECT_EQ(person.boxes[0].text, "name_mas.txt の件数　： 12\nname_mas1.txt の件数　： 3");
    EXPECT_THAT(trace.lines, testing::IsSupersetOf({"Private Sub name_mas_txt_count1()",
                                                    "name_mas.txt の件数　： 12",
                                                    "name_mas1.txt の件数　： 3"}));
}

TEST_F(NameMasCount, MissingNameMasIsReportedWithCountZero) {
    put("name_mas1.txt", 3);
    EXPECT_EQ(count(1).at(0).records, 0);
    EXPECT_EQ(person.boxes.at(0).text, "name_mas.txt　： ファイル無し\nname_mas1.txt の件数　： 3");
}

TEST_F(NameMasCount, StatusTellsOfTheCounting) {
    std::vector<std::string> captions;
    lblCFG.caption.on_change = [&] { captions.push_back(lblCFG.caption); };
    put("name_mas.txt");
    count(0);
    EXPECT_EQ(captions.front(), "name_mas．txt の件数をカウント中 !!");
}

TEST_F(NameMasCount, MoreThan45000InTheLastFileGivesAWarning) {
    const std::string warning =
        "\n件数が　 45,000 以上です。　name　の取りこぼしの恐れがありますので"
        "\nｇｅｔ_ｎａｍｅ．ｅｘｅ にてファイルを複数に分割を勧めます｡"
        "\nhttps://veldrana.example.jp/get_name/";
    put("name_mas.txt", 45000);
    count(0);
    EXPECT_EQ(person.boxes.back().text, "name_mas.txt の件数　： 45000");
    put("name_mas.txt", 45001);
    count(0);
    EXPECT_EQ(person.boxes.back().text, "name_mas.txt の件数　： 45001" + warning);
    put("name_mas1.txt", 1);  // only the last file is looked at
    count(1);
    EXPECT_EQ(person.boxes.back().text,
              "name_mas.txt の件数　： 45001\nname_mas1.txt の件数　： 1");
}

// --- yubin_dir_check ---

TEST_F(MasterChecks, TenPostalFilesPass) {
    for (const char digit : std::string_view("0123456789")) {
        put(std::string("yubin_m") + digit + ".mas");
    }
    yubin_dir_check(stage, folder);
    EXPECT_THAT(person.boxes, IsEmpty());
    disk.remove("C:\\mas\\yubin_m7.mas");
    disk.remove("C:\\mas\\yubin_m9.mas");
    EXPECT_TRUE(ends([this] { yubin_dir_check(stage, folder); }));
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, missing_title);
    EXPECT_EQ(person.boxes[0].text,
              "[  yubin_m7.mas  ]  がありません。\n\nC:\\mas\\　に ｃｏｐｙ して下さい。。");
}

TEST_F(MasterChecks, PostalFilesThatAreNotUsedAreNotLookedFor) {
    yubin_dir_check(stage, "使用しない");
    EXPECT_THAT(person.boxes, IsEmpty());
}

// --- user texts ---

TEST_F(MasterChecks, UserTextIsKnownByItsSecondLine) {
    put_lines(disk, "C:\\hamlog\\友達.txt", {"'title", "'ｺｰﾙｻｲﾝ|__氏  名___|ｺｰﾄﾞ_|", " JA1ABC"});
    EXPECT_TRUE(check_form_of_user_text(stage, "C:\\hamlog\\友達.txt"));
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(MasterChecks, CaptionOfAUserTextIsItsNameWithoutTheExtension) {
    EXPECT_EQ(user_text_caption("C:\\hamlog\\友達.txt"), "友達");
    EXPECT_EQ(user_text_caption("C:\\hamlog\\A.TXT"), "A");
    EXPECT_EQ(user_text_caption("C:\\hamlog\\a.Txt"), "a.Txt");
    EXPECT_EQ(user_text_caption(""), "使用なら要 set");
}

TEST_F(MasterChecks, FileOfAnotherFormIsRefused) {
    for (const std::vector<std::string>& lines : std::vector<std::vector<std::string>>{
             {"'ｺｰﾙｻｲﾝ|__氏  名___|", "no"}, {"'ｺｰﾙｻｲﾝ|__氏  名___|"}, {}}) {
        put_lines(disk, "C:\\mas\\a.txt", lines);
        person.boxes.clear();
        EXPECT_FALSE(check_form_of_user_text(stage, "C:\\mas\\a.txt"));
        ASSERT_THAT(person.boxes, SizeIs(1));
        EXPECT_EQ(person.boxes[0].text, "Ｈａｍｌｏｇのユーザー・テキスト形式ではありません！");
    }
}

TEST_F(MasterChecks, UserTextThatIsGoneClearsItsSetting) {
    std::string path = "C:\\mas\\a.txt";
    EXPECT_FALSE(check_user_text(stage, path));
    EXPECT_EQ(path, "");
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(
        person.boxes[0].text,
        "C:\\mas\\a.txt が有りません！　設定内容をクリアします。　必要なら再設定して下さい。");
    put("a.txt");
    path = "C:\\mas\\a.txt";
    EXPECT_TRUE(check_user_text(stage, path));
    EXPECT_EQ(path, "C:\\mas\\a.txt");
    EXPECT_THAT(person.boxes, SizeIs(1));
}

}  // namespace
}  // namespace veldrana
