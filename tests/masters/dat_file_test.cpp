// Contest data files: layouts, search, and the check that the chosen file is there.
#include "masters/dat_file.h"

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

// --- the table ---

class DatTableTest : public StageFixture {
  protected:
    void load(std::string_view name, std::vector<std::string> rows) {
        rows.insert(rows.begin(), "non-aja TEST.DAT");
        const std::string path = "C:\\dat\\" + std::string(name);
        put_lines(disk, path, rows);
        table.load(stage, path);
    }

    DatTable table;
};

TEST_F(DatTableTest, LayoutGoesByTheKindOfTheFile) {
    struct Row {
        std::string_view name;
        std::string_view key;
        CodeAndPlace expected;
    };
    const std::string line = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    for (const Row& row :
         std::vector<Row>{{"x.dat", "ABCDEFGHIJK", {"ABCDEFG", "LMNOPQRSTUVWXYZabcdefghijklm"}},
                          {"x.mas", "ABCDEF", {"GHIJKLM", "OPQRSTUVWXYZabcdefghijklmnop"}},
                          {"x.mst", "ABCDEF", {"GHIJKLM", "OPQRSTUVWXYZabcdefghijklmnop"}},
                          {"X.DAT", "ABCDEFGHIJK", {"ABCDEFG", "LMNOPQRSTUVWXYZabcdefghijklm"}},
                          {"X.Mst", "ABCDEF", {"GHIJKLM", "OPQRSTUVWXYZabcdefghijklmnop"}}}) {
        load(row.name, {line});
        EXPECT_EQ(table.find_exact(row.key), row.expected) << row.name;
    }
}

TEST_F(DatTableTest, FieldsAreTrimmed) {
    load("x.dat", {line_of({{1, "1004"}, {12, "武蔵野市"}})});
    EXPECT_EQ(table.find_exact("1004"), (CodeAndPlace{"1004", "武蔵野市"}));
    load("x.mst", {line_of({{1, "HC"}, {8, "1004"}, {16, "武蔵野市"}})});
    EXPECT_EQ(table.find_exact("HC"), (CodeAndPlace{"1004", "武蔵野市"}));
}

TEST_F(DatTableTest, Byte14OfAMstIsNotRead) {
    load("x.mst", {line_of({{1, "HC"}, {7, "1004"}, {14, "x武蔵野市"}})});
    EXPECT_EQ(table.find_exact("HC"), (CodeAndPlace{"1004", "武蔵野市"}));
}

TEST_F(DatTableTest, KeysOf11BytesShareTheCodeOfTheirFirstSeven) {
    load("x.dat", {"12345678901first", "12345679999second"});
    EXPECT_EQ(table.find_exact("12345678901"), (CodeAndPlace{"1234567", "first"}));
    EXPECT_EQ(table.find_exact("12345679999"), (CodeAndPlace{"1234567", "second"}));
}

TEST_F(DatTableTest, LineIsCutAtItsFirstNul) {
    load("x.dat", {line_of({{1, "1004"}, {12, "武蔵野市"}}) + std::string("\0rest\0", 6)});
    EXPECT_EQ(table.find_exact("1004").qth, "武蔵野市");
}

TEST_F(DatTableTest, HeadingIsNoRow) {
    load("x.dat", {});
    EXPECT_EQ(table.find_exact("non-aja TES"), CodeAndPlace{});
    put_lines(disk, "C:\\dat\\y.dat", {});
    EXPECT_EQ(failure_of([this] { table.load(stage, "C:\\dat\\y.dat"); }), 62);
}

TEST_F(DatTableTest, FileOfAnotherExtensionHasNoRows) {
    load("x.txt", {"1004       武蔵野市"});
    EXPECT_EQ(table.find_exact("1004"), CodeAndPlace{});
}

TEST_F(DatTableTest, ExactSearchTakesTheFirstEqualKeyAndLooksAtCase) {
    load("x.dat", {line_of({{1, "TK"}, {12, "first"}}), line_of({{1, "TK"}, {12, "second"}})});
    EXPECT_EQ(table.find_exact("TK").qth, "first");
    EXPECT_EQ(table.find_exact(" TK ").qth, "first");
    EXPECT_EQ(table.find_exact("tk"), CodeAndPlace{});
    EXPECT_EQ(table.find_exact("TK1"), CodeAndPlace{});
    EXPECT_EQ(table.find_exact("T"), CodeAndPlace{});
}

TEST_F(DatTableTest, PrefixSearchTakesTwoCharactersOrThreeBehindWGAndC) {
    struct Row {
        std::string_view number;
        std::string_view key;
    };
    for (const Row& row : std::vector<Row>{{"W1234", "W12"},
                                           {"W0234", "W02"},
                                           {"G1234", "G12"},
                                           {"G0234", "G02"},
                                           {"C1234", "C12"},
                                           {"C0234", "C02"},
                                           {"W2345", "W2"},
                                           {"TK12", "TK"},
                                           {" TK12 ", "TK"},
                                           {"w1234", "w1"},
                                           {"W1", "W1"},
                                           {"1 2", "1"},
                                           {"W1 2", "W1"},
                                           {"T", "T"}}) {
        load("x.dat", {line_of({{1, row.key}, {12, "found"}})});
        EXPECT_EQ(table.find_prefix(row.number).qth, "found") << row.number;
    }
    load("x.dat", {line_of({{1, "W1234"}, {12, "wrong"}}), line_of({{1, "W1"}, {12, "wrong"}})});
    EXPECT_EQ(table.find_prefix("W1234"), CodeAndPlace{});
}

TEST_F(DatTableTest, Row4501IsOutOfRange) {
    std::vector<std::string> rows(4500, "1004       武蔵野市");
    load("x.dat", rows);
    EXPECT_EQ(table.find_exact("1004").qth, "武蔵野市");
    rows.emplace_back("1005       三鷹市");
    EXPECT_EQ(failure_of([&] { load("x.dat", rows); }), 9);
}

TEST_F(DatTableTest, LoadReplacesTheRows) {
    load("x.dat", {"1004       武蔵野市"});
    load("x.dat", {"1005       三鷹市"});
    EXPECT_EQ(table.find_exact("1004"), CodeAndPlace{});
    EXPECT_EQ(table.find_exact("1005").qth, "三鷹市");
}

TEST_F(DatTableTest, LineBufferHoldsTheLastLineThatWasRead) {
    EXPECT_EQ(table.line_buffer(), "");
    load("x.dat", {"1004       武蔵野市", "1005       三鷹市"});
    EXPECT_EQ(table.line_buffer(), "1005       三鷹市");
    load("x.dat", {});
    EXPECT_EQ(table.line_buffer(), "non-aja TEST.DAT");
}

TEST_F(DatTableTest, MissingFileIsAFailure) {
    disk.put_folder("C:\\dat");
    EXPECT_EQ(failure_of([this] { table.load(stage, "C:\\dat\\x.dat"); }), 53);
}

// --- the chosen file ---

class DatFileCheck : public StageFixture {
  protected:
    // Puts a file of that name where the name belongs.
    void put(std::string_view path) { disk.put(path, "heading\r\n"); }

    bool check() { return dat_file_chk(stage, folders, file); }

    bool ends(bool (DatFileCheck::*run)() = &DatFileCheck::check) {
        try {
            (this->*run)();
        } catch (const ProgramEnd& end) {
            EXPECT_EQ(end.cause, ProgramEnd::Cause::refused);
            return true;
        }
        return false;
    }

    const DatFolders folders{"C:\\zlog\\", "C:\\veldrana\\mas_mst\\"};
    DatFile file;
};

TEST_F(DatFileCheck, FolderGoesByTheLastThreeCharactersOfTheName) {
    struct Row {
        std::string_view chosen;
        std::string_view path;
    };
    for (const Row& row : std::vector<Row>{{"D:\\other\\fham.dat", "C:\\zlog\\fham.dat"},
                                           {"D:\\other\\FHAM.DAT", "C:\\zlog\\FHAM.DAT"},
                                           {"D:\\a.mas", "C:\\veldrana\\mas_mst\\a.mas"},
                                           {"D:\\a.Mst", "C:\\veldrana\\mas_mst\\a.Mst"},
                                           {"fham.dat", "C:\\zlog\\fham.dat"}}) {
        put(row.path);
        file.dat_in_name = row.chosen;
        EXPECT_TRUE(check()) << row.chosen;
        EXPECT_EQ(file.dat_in_name, row.path);
        EXPECT_EQ(file.folder + file.name, row.path);
    }
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(DatFileCheck, OtherExtensionKeepsTheFolderOfTheLastCheck) {
    put("C:\\zlog\\fham.txt");
    put("C:\\zlog\\fham.dat");
    file.dat_in_name = "D:\\fham.dat";
    check();
    file.dat_in_name = "D:\\other\\fham.txt";
    EXPECT_TRUE(check());
    EXPECT_EQ(file.dat_in_name, "C:\\zlog\\fham.txt");
}

TEST_F(DatFileCheck, PathEndsAtItsFirstNul) {
    put("C:\\zlog\\fham.dat");
    file.dat_in_name = std::string("D:\\fham.dat\0\0x", 14);
    EXPECT_TRUE(check());
    EXPECT_EQ(file.dat_in_name, "C:\\zlog\\fham.dat");
}

TEST_F(DatFileCheck, FolderWithASecondByte5CIsNoSeparator) {
    put("C:\\zlog\\表.dat");
    file.dat_in_name = "D:\\ソ\\表.dat";
    EXPECT_TRUE(check());
    EXPECT_EQ(file.name, "表.dat");
}

TEST_F(DatFileCheck, MissingFileAsksAndRetryGoesOnWithoutAFurtherTest) {
    file.dat_in_name = "C:\\zlog\\fham.dat";
    person.answers = {Answer::retry};
    EXPECT_FALSE(check());
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　エラー　：　必要ファイルがありません。");
    EXPECT_EQ(person.boxes[0].text,
              "[  fham.dat  ]  がありません。\n\nC:\\zlog\\　に ｃｏｐｙ して下さい。");
    EXPECT_EQ(person.boxes[0].buttons, Buttons::retry_cancel);
}

TEST_F(DatFileCheck, CancelEndsTheProgram) {
    file.dat_in_name = "C:\\zlog\\fham.dat";
    person.answers = {Answer::cancel};
    EXPECT_TRUE(ends());
}

TEST_F(DatFileCheck, MissingNoDatEndsTheProgramAfterABox) {
    file.dat_in_name = "C:\\zlog\\no.dat";
    EXPECT_TRUE(ends());
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　エラー　：　必要ファイルがありません。");
    EXPECT_EQ(person.boxes[0].text,
              "[  no.dat  ]  がありません。\n\nＤＡＴファイルからのｃｏｄｅ取得は不可能です。");
    EXPECT_EQ(person.boxes[0].buttons, Buttons::ok);
}

TEST_F(DatFileCheck, NoDatThatIsThereIsLikeAnyFile) {
    put("C:\\zlog\\no.dat");
    file.dat_in_name = "no.dat";
    EXPECT_TRUE(check());
}

TEST_F(DatFileCheck, OptionsRebuildThePathFromFolderAndName) {
    file = {.dat_in_name = "", .name = "fham.dat", .folder = "C:\\zlog\\"};
    file.rebuild_path();
    EXPECT_EQ(file.dat_in_name, "C:\\zlog\\fham.dat");
}

// --- before a run ---

class DatFileOfRun : public DatFileCheck {
  protected:
    bool resolve() { return dat_file_of_run(stage, folders, file); }
};

TEST_F(DatFileOfRun, NameOfAMasOrMstIsBuiltFromTheBareNameInSmallLetters) {
    struct Row {
        std::string_view path;
        std::string_view bare_name;
        std::string_view resolved;
        std::string_view trace_line;
    };
    for (const Row& row :
         std::vector<Row>{{"X:\\x.mas", "ACAG.DAT", "C:\\veldrana\\mas_mst\\acag.mas",
                           "Private Sub bak_sep1()   dat_file_chk_1"},
                          {"X:\\x.mst", "Acag.dat", "C:\\veldrana\\mas_mst\\acag.mst",
                           "Private Sub bak_sep2()   dat_file_chk_2"},
                          {"X:\\x.mst", "ACAG.MST", "C:\\veldrana\\mas_mst\\acag.mst",
                           "Private Sub bak_sep2()   dat_file_chk_2"},
                          {"X:\\Fham.DAT", "unused.dat", "C:\\zlog\\Fham.DAT",
                           "Private Sub bak_sep2()   dat_file_chk_3"}}) {
        put(row.resolved);
        file = {.dat_in_name = std::string(row.path),
                .name = std::string(row.bare_name),
                .folder = "C:\\zlog\\"};
        trace.lines.clear();
        EXPECT_TRUE(resolve()) << row.path;
        EXPECT_EQ(file.dat_in_name, row.resolved);
        EXPECT_THAT(trace.lines, ElementsAre("Private Sub dat_file_chk()", row.trace_line));
    }
}

TEST_F(DatFileOfRun, MissingFileAsksAsEverywhere) {
    file.dat_in_name = "C:\\zlog\\fham.dat";
    person.answers = {Answer::retry};
    EXPECT_FALSE(resolve());
    EXPECT_THAT(person.boxes, SizeIs(1));
}

}  // namespace
}  // namespace veldrana
