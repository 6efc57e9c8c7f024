// The window that shows the state of the histories.
#include "viewers/frmCheck_bak_qso_mas.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* database = "C:\\Hamlog\\Hamlog.hdb";
constexpr const char* worked = "C:\\veldrana\\Temp_Files\\bak_qso.mas1_p";

class HistoryCheck : public StageFixture {
  protected:
    HistoryCheck() {
        disk.put_folder("C:\\veldrana\\Temp_Files");
        disk.put(database, "");
        disk.set_modified(database, {2025, 11, 3, 4, 5, 6});
    }

    // The form as it stands after its load.
    frmCheck_bak_qso_mas& form(bool log_book_in_use = true) {
        form_.emplace(stage, HistoryCheckRequest{.strPath = "C:\\veldrana\\",
                                                 .hamlog_hdb_dir = database,
                                                 .log_book_in_use = log_book_in_use});
        form_->show_file = [this](const std::string& path) { shown.push_back(path); };
        form_->Form_Load();
        return *form_;
    }

    std::optional<frmCheck_bak_qso_mas> form_;
    std::vector<std::string> shown;
};

TEST_F(HistoryCheck, CaptionNamesTheFiles) {
    EXPECT_EQ(form().window.caption.get(),
              " bak_qso.mas 確認 ：　C:\\veldrana\\Temp_Files\\bak_qso_mas*");
}

TEST_F(HistoryCheck, HeadingsStandAboveTheirRows) {
    const Grid& grid = form().Grid1;
    EXPECT_EQ(grid.cell(0, 0).text, "　参照元ファイル名");
    EXPECT_EQ(grid.cell(2, 0).text, "　No QSLにする条件");
    EXPECT_EQ(grid.cell(2, 1).text, "　  ファイル名 　 | 　サイズ  | 　件数  ");
    EXPECT_EQ(grid.cell(3, 0).text, "　Q S O   済みの局");
    EXPECT_EQ(grid.cell(4, 0).text, "　QSL 発行済みの局");
    EXPECT_EQ(grid.cell(5, 0).text, "　QSL 受領済みの局");
}

TEST_F(HistoryCheck, DatabaseIsShownWithItsTime) {
    EXPECT_EQ(form().Grid1.cell(1, 0).text, "Hamlog.hdb     ( 2025/11/03 04:05:06 )");
}

TEST_F(HistoryCheck, DatabaseOfALongNameIsCutToTwelveCharacters) {
    const std::string path = "C:\\Hamlog\\StationLogBook.hdb";
    disk.put(path, "");
    disk.set_modified(path, {2025, 1, 2, 3, 4, 5});
    frmCheck_bak_qso_mas check(
        stage, {.strPath = "C:\\veldrana\\", .hamlog_hdb_dir = path, .log_book_in_use = true});
    check.Form_Load();
    EXPECT_EQ(check.Grid1.cell(1, 0).text, "StationLogBo   ( 2025/01/02 03:04:05 )");
}

TEST_F(HistoryCheck, DatabaseThatIsNotInUseIsSaidToBe) {
    EXPECT_THAT(form(false).Grid1.cell(1, 0).text, EndsWith("( 使用しない )"));
    disk.remove(database);
    EXPECT_THAT(form().Grid1.cell(1, 0).text, EndsWith("( 使用しない )"));
}

TEST_F(HistoryCheck, MissingHistoriesHaveNoSizeAndNoLines) {
    const Grid& grid = form().Grid1;
    EXPECT_EQ(grid.cell(3, 1).text, "bak_qso.mas1_p ｜      0 ｜      0  ");
    EXPECT_EQ(grid.cell(4, 1).text, "bak_qso.mas2_p ｜      0 ｜      0  ");
    EXPECT_EQ(grid.cell(5, 1).text, "bak_qso.mas3_p ｜      0 ｜      0  ");
}

TEST_F(HistoryCheck, SizeIsInBytesAndTheCountIsTheLastLineNumber) {
    disk.put(worked, "\"JA1ZZA\",\"C2\"\r\n\"YYYYYY\",\"E2\"\r\n");
    EXPECT_EQ(form().Grid1.cell(3, 1).text, "bak_qso.mas1_p ｜     30 ｜      3  ");
}

TEST_F(HistoryCheck, HistoryOfTwentyBytesOrLessIsShownAsItIsAndTheHelpTellsWhatThatMeans) {
    disk.put(worked, std::string(20, 'x'));
    frmCheck_bak_qso_mas& check = form();
    EXPECT_EQ(check.Grid1.cell(3, 1).text, "bak_qso.mas1_p ｜     20 ｜      1  ");
    check.mnuHelp.press();
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, " 　　　　bak_qso.mas 関係ファイルの確認の説明");
    EXPECT_THAT(person.boxes[0].text,
                testing::HasSubstr("bak_qso_mas_name?_p サイズが 　２０ バイト以下の時は"
                                   "作成が異常です。\n"));
}

TEST_F(HistoryCheck, NameOfAHistoryShowsTheFile) {
    disk.put(worked, "x");
    frmCheck_bak_qso_mas& check = form();
    check.Grid1.press({.row = 3, .column = 1, .character = 13});
    EXPECT_THAT(shown, ElementsAre(worked));
}

TEST_F(HistoryCheck, NothingElseShowsAFile) {
    disk.put(worked, "x");
    frmCheck_bak_qso_mas& check = form();
    check.Grid1.press({.row = 3, .column = 1, .character = 14});  // behind the name
    check.Grid1.press({.row = 3, .column = 0, .character = 0});
    check.Grid1.press({.row = 2, .column = 1, .character = 0});
    check.Grid1.press({.row = 4, .column = 1, .character = 0});  // is not there
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(HistoryCheck, BackClosesItAndKeepsItsPlace) {
    frmCheck_bak_qso_mas& check = form();
    EXPECT_TRUE(check.window.visible);
    check.window.placement = WindowPlacement{.left = 10, .top = 20, .width = 300, .height = 200};
    check.mnuBack.press();
    EXPECT_FALSE(check.window.visible);
    EXPECT_EQ(form().window.placement.get()->width, 300);
}

}  // namespace
}  // namespace veldrana
