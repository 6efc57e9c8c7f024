// The contest dialog.
#include "readers/frmCon_sel.h"

#include <memory>
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
constexpr const char* missing = "選択された個別ＤＡＴが設定フォルダに無し！";
constexpr const char* choose_again = "再度選択も可能です。";

std::string contest(std::string_view Dat_name, std::string_view Con_name, std::string_view flag) {
    return std::string("free,none.cfg,").append(Dat_name) + "," + std::string(Con_name) + "," +
           std::string(flag) + ",number,and more,free";
}

class ContestDialog : public StageFixture {
  protected:
    ContestDialog() {
        disk.put_folder("C:\\work");
        disk.put_folder("C:\\veldrana");
        request = {.in_name = "C:\\log\\x.all",
                   .f_type = InputKind::all,
                   .strPath = "C:\\veldrana\\",
                   .current_folder = "C:\\work\\",
                   .contest_name_csv = list_path,
                   .folders = {"C:\\zlog\\", "C:\\veldrana\\mas_mst\\"},
                   .selection = {}};
        put_log({"1004"});
        put_contests({contest("acag.dat", "全市全郡", "11")});
    }

    void put_contests(std::vector<std::string> rows) {
        rows.insert(rows.begin(), "heading");
        put_lines(disk, list_path, rows);
    }

    // A .ALL log with these numbers received.
    void put_log(const std::vector<std::string>& numbers) {
        std::vector<std::string> lines{"zLog for Windows"};
        for (const std::string& number : numbers) {
            lines.push_back(line_of({{43, "599"}, {47, number}}));
        }
        put_lines(disk, "C:\\log\\x.all", lines);
    }

    void put_dat(std::string_view path) { disk.put(path, "heading\r\n"); }

    frmCon_sel& open() {
        form = std::make_unique<frmCon_sel>(stage, request);
        form->Form_Load();
        return *form;
    }

    // The dialog with that contest chosen, whose data file is there.
    frmCon_sel& open_and_choose(std::string_view flag) {
        put_contests({contest("other.dat", "別", "11"), contest("c.x", "c", flag)});
        put_dat("C:\\zlog\\c.x");
        put_dat("C:\\veldrana\\mas_mst\\c.x");
        open().List1.index = 1;
        return *form;
    }

    ContestDialogRequest request;
    std::unique_ptr<frmCon_sel> form;
};

// --- loading ---

TEST_F(ContestDialog, ShowsTheLogAndWhatItHolds) {
    put_log({"1004", "104M"});
    const frmCon_sel& dialog = open();
    EXPECT_EQ(dialog.lblIn_name.caption, std::string("C:\\log\\x.all"));
    EXPECT_THAT(dialog.List2.rows.get(), ElementsAre("RST Rcvd", "599 1004", "599 104M"));
    EXPECT_EQ(dialog.lblC_key.caption, std::string("1 : 数字  ,  12 : 数字 + 英字  ,  "));
    EXPECT_EQ(dialog.window.caption.get(), "　　コンテスト 選択 ・ 情報　の取得");
}

TEST_F(ContestDialog, ListRowsStandInColumnsOfBytes) {
    put_contests({"f,c,acag.dat,全市全郡コンテスト,11,JCC/JCG,と電力記号,f",
                  "f,c,a name that is far too long.dat," + std::string(50, 'n') + ",1234," +
                      std::string(60, 'm') + "," + std::string(70, 'r') + ",f"});
    EXPECT_THAT(open().List1.rows.get(),
                ElementsAre(line_of({{1, "1"},
                                     {5, "acag.dat"},
                                     {19, "全市全郡コンテスト"},
                                     {58, "11"},
                                     {61, "JCC/JCG"},
                                     {113, "と電力記号"}}),
                            "2   a name that is" + std::string(38, 'n') + " 123" +
                                std::string(52, 'm') + std::string(70, 'r')));
}

TEST_F(ContestDialog, CharacterThatASliceWouldSplitGivesWayToABlank) {
    put_contests({"f,c,a.dat,x全市全郡全市全郡全市全郡全市全郡全市全郡,11,n,m,f"});
    EXPECT_THAT(open().List1.rows.get(),
                ElementsAre(line_of({{1, "1"},
                                     {5, "a.dat"},
                                     {19, "x全市全郡全市全郡全市全郡全市全郡全市"},
                                     {58, "11"},
                                     {61, "n"},
                                     {113, "m"}})));
}

TEST_F(ContestDialog, ListOf150ContestsLoadsAndThe151stIsOutOfRange) {
    std::vector<std::string> rows(150, contest("a.dat", "a", "11"));
    put_contests(rows);
    EXPECT_THAT(open().List1.rows.get(), SizeIs(150));
    rows.push_back(contest("a.dat", "a", "11"));
    put_contests(rows);
    EXPECT_EQ(failure_of([this] { open(); }), 9);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 ：　9"));
}

TEST_F(ContestDialog, ContestsAreNumberedThroughTheList) {
    put_contests(std::vector<std::string>(12, contest("a.dat", "a", "11")));
    const frmCon_sel& dialog = open();
    EXPECT_TRUE(dialog.List1.rows.get().at(0).starts_with("1   a.dat"));
    EXPECT_TRUE(dialog.List1.rows.get().at(11).starts_with("12  a.dat"));
    ASSERT_THAT(dialog.contests(), SizeIs(12));
    EXPECT_EQ(dialog.contests()[11].Dat_name, "a.dat");
}

TEST_F(ContestDialog, WorkFilesAreGoneBehindTheLoad) {
    const std::vector<std::string> before = disk.files();
    open();
    EXPECT_EQ(disk.files(), before);
    EXPECT_THAT(trace.lines,
                testing::IsSupersetOf({"Private Sub Form_Load()",
                                       "Open C:\\veldrana\\con_aa_name.txt For Output As #f_o",
                                       "Open C:\\veldrana\\con_aa_name.txt For Input As #f_i"}));
}

TEST_F(ContestDialog, SearchIsOffAndConfirmationOnAfterTheLoad) {
    const frmCon_sel& dialog = open();
    EXPECT_FALSE(dialog.cmdSearch.enabled);
    EXPECT_FALSE(dialog.cmdCLR.enabled);
    EXPECT_TRUE(dialog.cmdOK.enabled);
    EXPECT_EQ(dialog.List1.index, ListBox::none);
    EXPECT_EQ(dialog.Text1.tool_tip,
              std::string("検索する dat , mas mst ファイル名かコンテスト名の略称を入力する。"));
}

TEST_F(ContestDialog, MissingListIsAFailure) {
    disk.remove(list_path);
    EXPECT_EQ(failure_of([this] { open(); }), 53);
}

TEST_F(ContestDialog, BinaryLogShowsTheHeadingAloneAndNoWarningCanAppear) {
    disk.remove("C:\\log\\x.all");
    request.f_type = InputKind::zlo;
    for (const std::string_view flag : {"11", "21", "31"}) {
        const frmCon_sel& dialog = open_and_choose(flag);
        EXPECT_THAT(dialog.List2.rows.get(), ElementsAre("RST Rcvd"));
        EXPECT_EQ(dialog.lblC_key.caption, std::string());
        EXPECT_EQ(dialog.lblMsg1.caption, std::string());
        EXPECT_TRUE(dialog.cmdOK.enabled);
    }
}

// --- preselection ---

TEST_F(ContestDialog, ContestIsPreselectedByTheNameOfTheLog) {
    put_contests({contest("x.dat", "一", "11"), contest("y.dat", "二", "11"),
                  contest("fham.dat", "三", "31")});
    put_dat("C:\\zlog\\fham.dat");
    request.f_type = InputKind::lg8;
    request.in_name = "C:\\log\\2021Fham_Z2A.ALL";
    const frmCon_sel& dialog = open();
    EXPECT_EQ(dialog.List1.index, 2);
    EXPECT_EQ(dialog.lblFile_no.caption, std::string("3"));
    EXPECT_EQ(dialog.lblCon_name.caption, std::string("三"));
}

TEST_F(ContestDialog, LogIsMatchedWithoutItsZ2aEnding) {
    put_contests({contest("x.dat", "一", "11"), contest("z2a.dat", "二", "11")});
    request.f_type = InputKind::lg8;
    request.in_name = "C:\\log\\2021_z2a.all";
    EXPECT_EQ(open().List1.index, ListBox::none);
}

TEST_F(ContestDialog, EmptySettingsFileBehindRow64TakesEveryLog) {
    std::vector<std::string> rows(70, contest("none.dat", "無し", "11"));
    rows[66] = "f,,none.dat,無し,11,a,b,f";
    put_contests(rows);
    EXPECT_EQ(open().List1.index, 66);
    rows[3] = contest("x.dat", "合う", "11");
    put_contests(rows);
    EXPECT_EQ(open().List1.index, 3);
}

// --- a row is selected ---

TEST_F(ContestDialog, ChosenRowShowsItsFields) {
    const frmCon_sel& dialog = open_and_choose("31");
    EXPECT_EQ(dialog.lblFile_no.caption, std::string("2"));
    EXPECT_EQ(dialog.lblDat_name.caption, std::string("c.x"));
    EXPECT_EQ(dialog.lblCon_name.caption, std::string("c"));
    EXPECT_EQ(dialog.lblCode_flag.caption, std::string("31"));
    EXPECT_EQ(dialog.lblCon_no_1.caption, std::string("number"));
    EXPECT_EQ(dialog.lblCon_no_2.caption, std::string("and more"));
}

TEST_F(ContestDialog, CaptionsFollowTheTwoDigitsOfTheFlag) {
    struct Row {
        std::string_view flag;
        std::string_view type;
        std::string_view kind;
    };
    for (const Row& row : std::vector<Row>{{"00", "code取得不可能なもの", "ｎｏ．ｄａｔ"},
                                           {"11", "通常の数字のみ", "DAT"},
                                           {"22", "県、市等の略号使用", "MAS"},
                                           {"33", "英字を削除の必要あり", "MST"},
                                           {"41", "KCJ略称 +１連番号　など", "DAT"},
                                           {"51", "NIFTY　自局のIDの頭３文字", "DAT"},
                                           {"64", "KYOTO　条件にて削除の必要あり", "MAS"},
                                           {"71", "数字、英字の混在", "DAT"}}) {
        const frmCon_sel& dialog = open_and_choose(row.flag);
        EXPECT_EQ(dialog.lblCode_type.caption, std::string(row.type));
        EXPECT_EQ(dialog.lblFile_Syubetu.caption, std::string(row.kind));
    }
}

TEST_F(ContestDialog, DigitWithoutACaptionLeavesTheOneBefore) {
    put_contests({contest("a.dat", "a", "12"), contest("b.dat", "b", "99")});
    frmCon_sel& dialog = open();
    dialog.List1.index = 0;
    dialog.List1.index = 1;
    EXPECT_EQ(dialog.lblCode_type.caption, std::string("通常の数字のみ"));
    EXPECT_EQ(dialog.lblFile_Syubetu.caption, std::string("MAS"));
}

TEST_F(ContestDialog, VerdictLooksForTheDataFileByTheSecondDigit) {
    struct Row {
        std::string_view flag;
        std::string_view path;
    };
    for (const Row& row : std::vector<Row>{{"70", "C:\\zlog\\c.dat"},
                                           {"71", "C:\\zlog\\c.dat"},
                                           {"72", "C:\\veldrana\\mas_mst\\c.dat"},
                                           {"73", "C:\\veldrana\\mas_mst\\c.dat"},
                                           {"74", "C:\\veldrana\\mas_mst\\c.dat"}}) {
        put_contests({contest("c.dat", "c", row.flag)});
        frmCon_sel& absent = open();
        absent.List1.index = 0;
        EXPECT_EQ(absent.lblMsg1.caption, std::string(missing)) << row.flag;
        put_dat(row.path);
        frmCon_sel& present = open();
        present.List1.index = 0;
        EXPECT_EQ(present.lblMsg1.caption, std::string()) << row.flag;
        disk.remove(row.path);
    }
}

TEST_F(ContestDialog, MissingDataFileIsToldInRedAndCannotBeConfirmed) {
    frmCon_sel& dialog = open();
    dialog.List1.index = 0;
    EXPECT_EQ(dialog.lblMsg1.caption, std::string(missing));
    EXPECT_EQ(dialog.lblMsg1.fore_colour, colours::red);
    EXPECT_FALSE(dialog.cmdOK.enabled);
}

// The verdict table, row by row, and the combinations that have no row.
TEST_F(ContestDialog, VerdictGoesByTheCodeTypeAndWhatTheNumbersHold) {
    const std::string has_letters = "Rcvd に英字あり！　選択は不適切です。";
    const std::string has_none = "Rcvd に英字なし！　選択は不適切です。";
    const std::string delete_letters = "Rcvd の英字を削除処理して良いですか？";
    const std::string no_code = "code 取得は不可！";
    struct Row {
        std::string_view flag;
        std::string number;  // of the log: "" neither, "1" digits, "A" letters, "1A" both
        std::string verdict;
        bool can_confirm;
    };
    for (const Row& row : std::vector<Row>{{"11", "1A", has_letters, true},
                                           {"11", "A", has_letters, true},
                                           {"11", "1", "", true},
                                           {"11", "", "", true},
                                           {"21", "1", has_none, true},
                                           {"21", "1A", "", true},
                                           {"21", "A", "", true},
                                           {"21", "", "", true},
                                           {"31", "1A", delete_letters, true},
                                           {"31", "1", "", true},
                                           {"31", "A", "", true},
                                           {"31", "", "", true},
                                           {"00", "1A", no_code, false},
                                           {"00", "1", no_code, false},
                                           {"00", "A", no_code, false},
                                           {"00", "", no_code, false},
                                           {"41", "1A", "", true},
                                           {"51", "1A", "", true},
                                           {"64", "1A", "", true},
                                           {"71", "1A", "", true},
                                           {"71", "1", "", true}}) {
        SCOPED_TRACE(std::string(row.flag) + " " + row.number);
        put_log({row.number});
        const frmCon_sel& dialog = open_and_choose(row.flag);
        EXPECT_EQ(dialog.lblMsg1.caption, row.verdict);
        EXPECT_EQ(dialog.lblMsg2.caption, std::string(row.verdict.empty() ? "" : choose_again));
        EXPECT_EQ(dialog.lblMsg1.fore_colour, row.verdict.empty() ? colours::black : colours::red);
        EXPECT_EQ(dialog.cmdOK.enabled, row.can_confirm);
    }
}

TEST_F(ContestDialog, TextLogOfDigitsAndAType2ContestWarnsButCanBeConfirmed) {
    request.in_name = "C:\\log\\x.txt";
    request.f_type = InputKind::txt;
    put_lines(disk, "C:\\log\\x.txt", {"mon day time", line_of({{38, "59"}, {41, "1004"}})});
    const frmCon_sel& dialog = open_and_choose("21");
    EXPECT_EQ(dialog.lblC_key.caption, std::string("1 : 数字  ,  "));
    EXPECT_EQ(dialog.lblMsg1.caption, std::string("Rcvd に英字なし！　選択は不適切です。"));
    EXPECT_TRUE(dialog.cmdOK.enabled);
}

TEST_F(ContestDialog, NextChoiceLiftsTheBlock) {
    put_contests({contest("a.dat", "a", "11"), contest("b.dat", "b", "11")});
    put_dat("C:\\zlog\\b.dat");
    frmCon_sel& dialog = open();
    dialog.List1.index = 0;
    EXPECT_FALSE(dialog.cmdOK.enabled);
    dialog.List1.index = 1;
    EXPECT_TRUE(dialog.cmdOK.enabled);
    EXPECT_EQ(dialog.lblMsg1.caption, std::string());
    EXPECT_EQ(dialog.lblMsg1.fore_colour, colours::black);
}

TEST_F(ContestDialog, SecondLineOfTheVerdictStaysWhereTheDataFileIsMissing) {
    put_log({"1A"});
    put_contests({contest("a.dat", "a", "11"), contest("b.dat", "b", "11")});
    put_dat("C:\\zlog\\a.dat");
    frmCon_sel& dialog = open();
    dialog.List1.index = 0;
    dialog.List1.index = 1;
    EXPECT_EQ(dialog.lblMsg1.caption, std::string(missing));
    EXPECT_EQ(dialog.lblMsg2.caption, std::string(choose_again));
}

// --- search ---

TEST_F(ContestDialog, SearchTextEnablesItsButtons) {
    frmCon_sel& dialog = open();
    dialog.Text1.text = " acag ";
    EXPECT_EQ(dialog.Text1.text, std::string("acag"));
    EXPECT_TRUE(dialog.cmdSearch.enabled);
    EXPECT_TRUE(dialog.cmdCLR.enabled);
    dialog.Text1.text = "  ";
    EXPECT_EQ(dialog.Text1.text, std::string());
    EXPECT_FALSE(dialog.cmdSearch.enabled);
    EXPECT_FALSE(dialog.cmdCLR.enabled);
}

class ContestDialogSearch : public ContestDialog {
  protected:
    ContestDialogSearch() {
        put_contests({contest("a.dat", "一般", "11"), contest("Kcj.dat", "県", "11"),
                      contest("b.mst", "Kcj", "11")});
    }
};

TEST_F(ContestDialogSearch, FirstRowWithTheTextIsSelected) {
    frmCon_sel& dialog = open();
    dialog.Text1.text = "Kcj";
    dialog.cmdSearch.press();
    EXPECT_EQ(dialog.List1.index, 1);
    EXPECT_EQ(dialog.lblDat_name.caption, std::string("Kcj.dat"));
    dialog.Text1.text = "県";
    dialog.cmdSearch.press();
    EXPECT_EQ(dialog.List1.index, 1);
    dialog.Text1.text = "mst";
    dialog.cmdSearch.press();
    EXPECT_EQ(dialog.List1.index, 2);
}

TEST_F(ContestDialogSearch, CaseCountsAndATextThatNoRowHasChangesNothing) {
    frmCon_sel& dialog = open();
    dialog.Text1.text = "KCJ";
    dialog.cmdSearch.press();
    EXPECT_EQ(dialog.List1.index, ListBox::none);
}

TEST_F(ContestDialogSearch, EnterSearches) {
    frmCon_sel& dialog = open();
    dialog.Text1_Enter();
    EXPECT_EQ(dialog.List1.index, ListBox::none);
    dialog.Text1.text = "Kcj";
    dialog.Text1_Enter();
    EXPECT_EQ(dialog.List1.index, 1);
}

TEST_F(ContestDialogSearch, ClearEmptiesTheText) {
    frmCon_sel& dialog = open();
    dialog.Text1.text = "Kcj";
    dialog.cmdCLR.press();
    EXPECT_EQ(dialog.Text1.text, std::string());
    EXPECT_FALSE(dialog.cmdSearch.enabled);
    EXPECT_FALSE(dialog.cmdCLR.enabled);
}

// --- cmdOK ---

class ContestDialogChoice : public ContestDialog {
  protected:
    ContestDialogChoice() {
        put_contests({contest("other.dat", "別", "11"), contest("Fham.DAT", "ニフティ", "31"),
                      contest("Kcj.Mst", "県", "23")});
        put_dat("C:\\zlog\\fham.dat");
        put_dat("C:\\veldrana\\mas_mst\\kcj.mst");
        request.selection.Con_name = "before";
        request.selection.dat.dat_in_name = "C:\\zlog\\before.dat";
    }

    ContestDialogResult confirm(int row) {
        frmCon_sel& dialog = open();
        dialog.List1.index = row;
        dialog.cmdOK.press();
        return dialog.result().value();
    }
};

TEST_F(ContestDialogChoice, ConfirmationGivesTheSelection) {
    const ContestDialogResult result = confirm(1);
    EXPECT_TRUE(result.confirmed);
    EXPECT_TRUE(result.dat_is_there);
    EXPECT_EQ(result.selection.File_no, "2");
    EXPECT_EQ(result.selection.Con_name, "ニフティ");
    EXPECT_EQ(result.selection.Code_flag, "31");
    EXPECT_EQ(result.selection.Con_no_1, "number");
    EXPECT_EQ(result.selection.Con_no_2, "and more");
    EXPECT_EQ(result.selection.picked_folder, "C:\\zlog\\");
    EXPECT_EQ(result.selection.dat.folder, "C:\\zlog\\");
    EXPECT_EQ(result.selection.dat.dat_in_name, "C:\\zlog\\fham.dat");
    EXPECT_EQ(result.shown_path, "c:\\zlog\\fham.dat");
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(ContestDialogChoice, OtherFilesThanDatLieInMasMst) {
    const ContestDialogResult result = confirm(2);
    EXPECT_EQ(result.shown_path, "c:\\veldrana\\mas_mst\\kcj.mst");
    // The presence check puts the name behind the folder as it is set.
    EXPECT_EQ(result.selection.dat.dat_in_name, "C:\\veldrana\\mas_mst\\kcj.mst");
    EXPECT_EQ(result.selection.picked_folder, "C:\\veldrana\\mas_mst\\");
}

TEST_F(ContestDialogChoice, FolderOfTheChoiceGoesByTheNameAndThatOfTheVerdictByTheFlag) {
    put_contests({contest("fham.dat", "ニフティ", "32")});
    put_dat("C:\\veldrana\\mas_mst\\fham.dat");
    const ContestDialogResult result = confirm(0);
    EXPECT_EQ(result.selection.picked_folder, "C:\\veldrana\\mas_mst\\");
    EXPECT_EQ(result.selection.dat.dat_in_name, "C:\\zlog\\fham.dat");
}

// Looks at a file when the trace log tells that it is opened to be read.
class FileWatch : public LineSink {
  public:
    FileWatch(const MemoryDisk& disk, std::string path, std::string& seen)
        : disk_(disk), path_(std::move(path)), seen_(seen) {}
    void write_line(std::string_view line) override {
        if (line == "Open " + path_ + " For Input As #f_i") {
            seen_ = from_code_page(disk_.bytes(path_));
        }
    }
    void flush() override {}
    void close() override {}

  private:
    const MemoryDisk& disk_;
    std::string path_;
    std::string& seen_;
};

TEST_F(ContestDialogChoice, HandOverFileHoldsThreeQuotedFields) {
    std::string seen;
    trace.log.open(std::make_unique<FileWatch>(disk, "C:\\veldrana\\con_aaa_name.txt", seen));
    confirm(1);
    EXPECT_EQ(seen, "\"2\",\"Fham.DAT\",\"ニフティ\"\r\n");
}

TEST_F(ContestDialogChoice, HandOverFileIsGoneBehindIt) {
    frmCon_sel& dialog = open();
    dialog.List1.index = 1;
    const std::vector<std::string> before = disk.files();
    dialog.cmdOK.press();
    EXPECT_EQ(disk.files(), before);
    EXPECT_THAT(trace.lines,
                testing::IsSupersetOf({"Private Sub cmdOK_Click()", "Private Sub Save_dat()",
                                       "Open C:\\veldrana\\con_aaa_name.txt For Output As #f_o",
                                       "Open C:\\veldrana\\con_aaa_name.txt For Input As #f_i",
                                       "Private Sub dat_file_chk()"}));
}

TEST_F(ContestDialogChoice, DataFileThatIsGoneByThenAsks) {
    frmCon_sel& dialog = open();
    dialog.List1.index = 1;
    disk.remove("C:\\zlog\\fham.dat");
    person.answers = {Answer::retry};
    dialog.cmdOK.press();
    ASSERT_TRUE(dialog.result().has_value());
    EXPECT_TRUE(dialog.result()->confirmed);
    EXPECT_FALSE(dialog.result()->dat_is_there);
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_THAT(person.boxes[0].text, testing::StartsWith("[  fham.dat  ]  がありません。"));
}

TEST_F(ContestDialogChoice, CancelOfThatBoxEndsTheProgram) {
    frmCon_sel& dialog = open();
    dialog.List1.index = 1;
    disk.remove("C:\\zlog\\fham.dat");
    person.answers = {Answer::cancel};
    EXPECT_THROW(dialog.cmdOK.press(), ProgramEnd);
    EXPECT_FALSE(dialog.result().has_value());
}

TEST_F(ContestDialogChoice, BlockedChoiceCannotBeConfirmed) {
    frmCon_sel& dialog = open();
    dialog.List1.index = 0;
    dialog.cmdOK.press();
    EXPECT_FALSE(dialog.result().has_value());
}

TEST_F(ContestDialogChoice, NothingIsConfirmedWhileNothingIsChosen) {
    frmCon_sel& dialog = open();
    dialog.cmdOK.press();
    EXPECT_FALSE(dialog.result().has_value());
}

// --- cmdBack ---

TEST_F(ContestDialogChoice, BackLeavesTheSelectionAsItWas) {
    frmCon_sel& dialog = open();
    dialog.List1.index = 1;
    dialog.window.visible = true;
    dialog.cmdBack.press();
    ASSERT_TRUE(dialog.result().has_value());
    EXPECT_FALSE(dialog.window.visible);
    EXPECT_FALSE(dialog.result()->confirmed);
    EXPECT_EQ(dialog.result()->selection.Con_name, "before");
    EXPECT_EQ(dialog.result()->selection.dat.dat_in_name, "C:\\zlog\\before.dat");
    EXPECT_EQ(dialog.result()->shown_path, "");
}

TEST_F(ContestDialogChoice, ConfirmationCloses) {
    frmCon_sel& dialog = open();
    dialog.window.visible = true;
    dialog.List1.index = 1;
    EXPECT_TRUE(dialog.window.visible);
    dialog.cmdOK.press();
    EXPECT_FALSE(dialog.window.visible);
}

TEST_F(ContestDialog, ControlsAreFoundByTheirNames) {
    const frmCon_sel dialog(stage, request);
    for (const char* const name :
         {"lblIn_name", "List2", "lblC_key", "List1", "lblFile_no", "lblCon_name", "lblDat_name",
          "lblCon_no_1", "lblCon_no_2", "lblCode_flag", "lblCode_type", "lblFile_Syubetu",
          "lblMsg1", "lblMsg2", "Text1", "cmdSearch", "cmdCLR", "cmdOK", "cmdBack"}) {
        EXPECT_NE(dialog.find(name), nullptr) << name;
    }
    EXPECT_EQ(dialog.cmdSearch.caption, std::string("検索"));
    EXPECT_EQ(dialog.cmdCLR.caption, std::string("消す"));
    EXPECT_EQ(dialog.cmdOK.caption, std::string("確定"));
    EXPECT_EQ(dialog.cmdBack.caption, std::string("戻る"));
}

}  // namespace
}  // namespace veldrana
