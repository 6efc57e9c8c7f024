// The manual way to a contest data file, and the search of the contest list for it.
#include "readers/manual_dat.h"

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

constexpr const char* list_path = "C:\\veldrana\\mas_mst\\contest_name.csv";

// --- the file dialog ---

class ManualChoice : public testing::Test {
  protected:
    bool choose(std::string_view path) {
        person.files = {std::string(path)};
        return choose_dat_by_hand(person, "C:\\zlog\\", selection);
    }

    ScriptedPerson person;
    ContestSelection selection;
};

TEST_F(ManualChoice, DialogStartsInTheFolderOfTheDataFiles) {
    choose("C:\\zlog\\fham.dat");
    ASSERT_THAT(person.dialogs, SizeIs(1));
    EXPECT_EQ(person.dialogs[0].title, "　C:\\ZLOG\\　の ＊．ｄａｔ ファイルを  開く ....");
    EXPECT_EQ(person.dialogs[0].filter,
              "手動用個別ＤＡＴファイル(*.dat;*.mas;*.mst)|*.dat;*.mas;*.mst|");
    EXPECT_EQ(person.dialogs[0].folder, "C:\\zlog\\");
}

TEST_F(ManualChoice, PathIsTakenApart) {
    ASSERT_TRUE(choose("D:\\表示\\Fham.DAT"));
    EXPECT_EQ(selection.dat.dat_in_name, "D:\\表示\\Fham.DAT");
    EXPECT_EQ(selection.dat.folder, "D:\\表示\\");
    EXPECT_EQ(selection.dat.name, "Fham.DAT");
    EXPECT_EQ(selection.dat.kind, "dat");
}

TEST_F(ManualChoice, KindIsTheFirstOfDatMstMasThatTheNameContains) {
    struct Row {
        std::string_view name;
        std::string_view kind;
    };
    for (const Row& row : std::vector<Row>{{"a.dat", "dat"},
                                           {"a.MST", "mst"},
                                           {"a.mas", "mas"},
                                           {"a.mas.mst", "mst"},
                                           {"a.mst.dat", "dat"},
                                           {"a.dat.txt", "dat"}}) {
        choose("C:\\zlog\\" + std::string(row.name));
        EXPECT_EQ(selection.dat.kind, row.kind) << row.name;
    }
}

TEST_F(ManualChoice, FolderAndNameComeFromTheFirst120BytesOfThePath) {
    const std::string folder = "C:\\" + std::string(105, 'f') + "\\";  // 109 bytes
    choose(folder + "a name of fham.dat");
    EXPECT_EQ(selection.dat.folder, folder);
    EXPECT_EQ(selection.dat.name, "a name of f");
    EXPECT_EQ(selection.dat.dat_in_name, folder + "a name of fham.dat");
}

TEST_F(ManualChoice, NoChoiceChangesNothing) {
    choose("C:\\zlog\\fham.dat");
    EXPECT_FALSE(choose(""));
    EXPECT_EQ(selection.dat.dat_in_name, "C:\\zlog\\fham.dat");
}

TEST_F(ManualChoice, FieldsOfTheContestKeepTheirFormerValues) {
    selection.Con_name = "before";
    selection.Code_flag = "11";
    choose("C:\\zlog\\fham.dat");
    EXPECT_EQ(selection.Con_name, "before");
    EXPECT_EQ(selection.Code_flag, "11");
}

// --- read_all_dat ---

class ReadAllDat : public StageFixture {
  protected:
    ReadAllDat() {
        selection.dat = {.dat_in_name = "C:\\zlog\\Fham.dat",
                         .name = "Fham.dat",
                         .kind = "dat",
                         .folder = "C:\\zlog\\"};
        put_list({"1,Acag.cfg,acag.mas,全市全郡,12,JCC,JCG,8",
                  "1,Fham.cfg,fham.dat,ニフティ,31,番号,と文字,8",
                  "1,Last.cfg,last.dat,最後,51,a,b,8"});
    }

    void put_list(std::vector<std::string> rows) {
        rows.insert(rows.begin(), "1,Cfg_name,Dat_name,Con_name,Code_flag,Con_no_1,Con_no_2,8");
        put_lines(disk, list_path, rows);
    }

    AllDat read() {
        return read_all_dat(
            stage,
            {.contest_name_csv = list_path,
             .folders = folders,
             .data_file_is_code_source = data_file_is_code_source,
             .Op04_Chk = [this] { paths_checked.push_back(selection.dat.dat_in_name); }},
            selection, refusals);
    }

    const DatFolders folders{"C:\\logger\\", "C:\\veldrana\\mas_mst\\"};
    bool data_file_is_code_source = true;
    ContestSelection selection;
    ContestRefusals refusals;
    std::vector<std::string> paths_checked;
};

TEST_F(ReadAllDat, FirstContestWhoseDataFileOccursInTheNameIsTaken) {
    EXPECT_EQ(read(), AllDat::found);
    EXPECT_EQ(selection.Con_name, "ニフティ");
    EXPECT_EQ(selection.Code_flag, "31");
    EXPECT_EQ(selection.Con_no_1, "番号");
    EXPECT_EQ(selection.Con_no_2, "と文字");
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(ReadAllDat, PathBecomesThatOfTheList) {
    selection.dat.name = "my_fham.dat";
    selection.dat.dat_in_name = "D:\\my_fham.dat";
    selection.dat.folder = "D:\\";
    read();
    EXPECT_EQ(selection.dat.name, "fham.dat");
    EXPECT_EQ(selection.dat.dat_in_name, "C:\\logger\\fham.dat");
    EXPECT_EQ(selection.dat.folder, "C:\\logger\\");
    EXPECT_THAT(paths_checked, ElementsAre("D:\\my_fham.dat"));  // in front of the change
}

TEST_F(ReadAllDat, OtherFilesThanDatLieInMasMst) {
    selection.dat.name = "ACAG.MAS";
    EXPECT_EQ(read(), AllDat::found);
    EXPECT_EQ(selection.dat.dat_in_name, "C:\\veldrana\\mas_mst\\acag.mas");
    EXPECT_EQ(selection.dat.folder, "C:\\veldrana\\mas_mst\\");
}

TEST_F(ReadAllDat, FolderIsThatOfThePathCutTo120Bytes) {
    const std::string name = std::string(130, 'n') + ".dat";
    put_list({"1,c," + name + ",長い,11,a,b,8"});
    selection.dat.name = name;
    EXPECT_EQ(read(), AllDat::found);
    EXPECT_EQ(selection.dat.folder, "C:\\logger\\");
    EXPECT_EQ(selection.dat.dat_in_name, "C:\\logger\\" + name);
    EXPECT_EQ(selection.dat.name, name);
}

TEST_F(ReadAllDat, PathStaysIfTheDataFileIsNotTheCodeSource) {
    data_file_is_code_source = false;
    EXPECT_EQ(read(), AllDat::found);
    EXPECT_EQ(selection.dat.dat_in_name, "C:\\zlog\\Fham.dat");
    EXPECT_EQ(selection.dat.name, "Fham.dat");
    EXPECT_THAT(paths_checked, IsEmpty());
    EXPECT_EQ(selection.Con_name, "ニフティ");
}

TEST_F(ReadAllDat, NameOfTheListIsLookedForAsItIsWritten) {
    put_list({"1,c,FHAM.DAT,大文字,11,a,b,8", "1,c,ham.dat,中の名,12,a,b,8"});
    EXPECT_EQ(read(), AllDat::found);
    EXPECT_EQ(selection.Con_name, "中の名");
}

TEST_F(ReadAllDat, HeadingIsReadAsAContest) {
    put_lines(disk, list_path, {"1,c,fham.dat,見出し,11,a,b,8", "1,c,fham.dat,行,11,a,b,8"});
    EXPECT_EQ(read(), AllDat::found);
    EXPECT_EQ(selection.Con_name, "見出し");
}

TEST_F(ReadAllDat, WithoutAContestTheFieldsOfTheLastOneRemain) {
    selection.dat.name = "unknown.dat";
    EXPECT_EQ(read(), AllDat::not_found);
    EXPECT_EQ(selection.Con_name, "最後");
    EXPECT_EQ(selection.Code_flag, "51");
    EXPECT_EQ(selection.dat.dat_in_name, "C:\\zlog\\Fham.dat");
    EXPECT_THAT(paths_checked, IsEmpty());
}

TEST_F(ReadAllDat, ContestWithoutCodeIsRefused) {
    put_list({"1,c,fham.dat,無し,00,a,b,8"});
    person.answers = {Answer::retry};
    EXPECT_EQ(read(), AllDat::refused);
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　DAT ﾌｧｲﾙ よりcode、QTHの取得は不可能！");
    EXPECT_EQ(person.boxes[0].text, "");
    EXPECT_EQ(person.boxes[0].buttons, Buttons::retry_cancel);
    EXPECT_EQ(selection.File_no, "10");
    EXPECT_TRUE(refusals.code);
    EXPECT_EQ(selection.dat.dat_in_name, "C:\\zlog\\Fham.dat");
}

TEST_F(ReadAllDat, RefusalInForceSuppressesTheBox) {
    put_list({"1,c,fham.dat,無し,00,a,b,8"});
    refusals.code = true;
    EXPECT_EQ(read(), AllDat::found);
    EXPECT_THAT(person.boxes, IsEmpty());
    EXPECT_EQ(selection.dat.dat_in_name, "C:\\logger\\fham.dat");
}

TEST_F(ReadAllDat, CancelOfTheRefusalEndsTheProgram) {
    put_list({"1,c,fham.dat,無し,00,a,b,8"});
    person.answers = {Answer::cancel};
    EXPECT_THROW(read(), ProgramEnd);
    EXPECT_FALSE(refusals.code);
}

TEST_F(ReadAllDat, FlagWithoutCodeOfTheLastRowIsNoMatterIfNoneWasFound) {
    put_list({"1,c,other.dat,無し,00,a,b,8"});
    EXPECT_EQ(read(), AllDat::not_found);
    EXPECT_THAT(person.boxes, IsEmpty());
}

}  // namespace
}  // namespace veldrana
