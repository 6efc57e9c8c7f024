// name_mas.txt, qth_mas.txt and the user texts: their columns, their search, when they are read.
#include "masters/station_masters.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

constexpr const char* name_mas_path = "C:\\mas\\name_mas.txt";
constexpr const char* qth_mas_path = "C:\\mas\\qth_mas.txt";
constexpr const char* user_text_path = "C:\\hamlog\\friends.txt";

// A record whose every column holds something else.
const std::string full_record = line_of(
    {{2, "JA1ABC"}, {8, "山田太郎"}, {20, "1004"}, {26, "東京都武蔵野市"}, {54, "via JA1ZZZ"}});

class StationMasters : public StageFixture {
  protected:
    StationData in_name_mas(std::string_view call, const std::vector<std::string>& records) {
        put_master(disk, name_mas_path, records);
        NameMas master;
        master.read_name_mas_txt(stage, "C:\\mas\\");
        return master.find(call);
    }

    StationData in_qth_mas(std::string_view call, const std::vector<std::string>& records) {
        put_master(disk, qth_mas_path, records);
        QthMas master(qth_mas_path);
        master.prepare(stage);
        return master.find(call);
    }

    std::size_t hits = 0;
};

void expect_data(const StationData& found, const StationData& expected) {
    EXPECT_EQ(found.name, expected.name);
    EXPECT_EQ(found.code, expected.code);
    EXPECT_EQ(found.qth, expected.qth);
    EXPECT_EQ(found.gl, expected.gl);
    EXPECT_EQ(found.rmks, expected.rmks);
}

// --- columns ---

TEST_F(StationMasters, NameMasHasNameCodeQthAndRemarks) {
    expect_data(in_name_mas("JA1ABC", {full_record}), {.name = "山田太郎",
                                                       .code = "1004",
                                                       .qth = "東京都武蔵野市",
                                                       .gl = "",
                                                       .rmks = "via JA1ZZZ"});
}

TEST_F(StationMasters, UserTextHasTheColumnsOfNameMas) {
    put_master(disk, user_text_path, {full_record});
    UserText master(UserText::Letter::A, user_text_path, hits);
    master.prepare(stage);
    expect_data(master.find("JA1ABC"), {.name = "山田太郎",
                                        .code = "1004",
                                        .qth = "東京都武蔵野市",
                                        .gl = "",
                                        .rmks = "via JA1ZZZ"});
}

TEST_F(StationMasters, QthMasHasGlInBytes54To59AndQthInBytes26To53) {
    const std::string record = line_of(
        {{2, "JA1ABC"}, {8, "山田"}, {20, "1004"}, {26, "東京都武蔵野市"}, {54, "PM95QPxx"}});
    expect_data(
        in_qth_mas("JA1ABC", {record}),
        {.name = "山田", .code = "1004", .qth = "東京都武蔵野市", .gl = "PM95QP", .rmks = ""});
}

TEST_F(StationMasters, EveryColumnBeginsAndEndsWhereItShould) {
    // Every byte of a column filled, so that one too many or too few would show.
    const std::string record = "x" + std::string(6, 'C') + std::string(12, 'n') +
                               std::string(6, 'c') + std::string(28, 'q') + std::string(54, 'r') +
                               "x";
    expect_data(in_name_mas("CCCCCC", {record}), {.name = std::string(12, 'n'),
                                                  .code = std::string(6, 'c'),
                                                  .qth = std::string(28, 'q'),
                                                  .gl = "",
                                                  .rmks = std::string(54, 'r')});
    expect_data(in_qth_mas("CCCCCC", {record}), {.name = std::string(12, 'n'),
                                                 .code = std::string(6, 'c'),
                                                 .qth = std::string(28, 'q'),
                                                 .gl = std::string(6, 'r'),
                                                 .rmks = ""});
}

TEST_F(StationMasters, NameAcrossBytes19And20KeepsItsWholeCharactersAndTheCodeStartsBehind) {
    // Eleven bytes in front of 郎, which would take bytes 19 and 20: it belongs to neither column.
    const std::string record = line_of({{2, "JA1ABC"}, {8, "aaaaaaaaaaa郎1004"}, {26, "武蔵野市"}});
    const StationData found = in_name_mas("JA1ABC", {record});
    EXPECT_EQ(found.name, "aaaaaaaaaaa");
    EXPECT_EQ(found.code, "1004");
    EXPECT_EQ(found.qth, "武蔵野市");
}

TEST_F(StationMasters, LineTooShortForAFieldHasItEmpty) {
    expect_data(in_name_mas("JA1ABC", {" JA1ABC山田"}),
                {.name = "山田", .code = "", .qth = "", .gl = "", .rmks = ""});
    expect_data(in_name_mas("JA1ABC", {" JA1ABC"}), {});
}

// --- search ---

TEST_F(StationMasters, LowerCaseCallFindsTheRowInUpperCase) {
    EXPECT_EQ(in_name_mas("ja1abc", {full_record}).name, "山田太郎");
    EXPECT_EQ(in_name_mas("JA1ABC", {" ja1abc鈴木"}).name, "鈴木");
}

TEST_F(StationMasters, OfTwoRowsForOneCallTheFirstInFileOrderWins) {
    EXPECT_EQ(in_name_mas("JA1ABC", {" JR8YYX佐藤", " ja1abc鈴木", " JA1ABC山田"}).name, "鈴木");
    EXPECT_EQ(in_qth_mas("JA1ABC", {" JA1ABC鈴木", " JA1ABC山田"}).name, "鈴木");
}

TEST_F(StationMasters, KeyIsTrimmed) {
    EXPECT_EQ(in_name_mas("K1AB  ", {line_of({{2, "K1AB"}, {8, "Bob"}})}).name, "Bob");
    EXPECT_EQ(in_name_mas("K1AB", {line_of({{3, "K1AB"}, {8, "Bob"}})}).name, "Bob");
}

TEST_F(StationMasters, CallThatIsNotThereFindsNothing) {
    expect_data(in_name_mas("JA1ABD", {full_record}), {});
    expect_data(in_name_mas("JA1ABCD", {full_record}), {});
    expect_data(in_name_mas("JA1", {full_record}), {});
}

TEST_F(StationMasters, RecordWithAnEmptyCallMatchesAnEmptyCallOnly) {
    const std::vector<std::string> records{"       nobody", full_record};
    EXPECT_EQ(in_name_mas("", records).name, "nobody");
    EXPECT_EQ(in_name_mas("  ", records).name, "nobody");
    EXPECT_EQ(in_name_mas("JA1ABC", records).name, "山田太郎");
    EXPECT_EQ(in_name_mas("", {full_record}).name, "");
}

TEST_F(StationMasters, MasterThatWasNotReadFindsNothing) {
    NameMas name_mas;
    QthMas qth_mas(qth_mas_path);
    UserText user_text(UserText::Letter::B, user_text_path, hits);
    expect_data(name_mas.find("JA1ABC"), {});
    expect_data(qth_mas.find("JA1ABC"), {});
    expect_data(user_text.find("JA1ABC"), {});
}

TEST_F(StationMasters, SearchesInAUserTextCountTheirHitsAndNoOthers) {
    put_master(disk, user_text_path, {full_record});
    UserText master(UserText::Letter::A, user_text_path, hits);
    master.prepare(stage);
    master.find("JA1ABC");
    master.find("JR8YYX");
    master.find("ja1abc");
    EXPECT_EQ(hits, 2U);
    in_name_mas("JA1ABC", {full_record});
    in_qth_mas("JA1ABC", {full_record});
    EXPECT_EQ(hits, 2U);
}

// --- reading ---

TEST_F(StationMasters, TwoHeadingLinesAreSkipped) {
    put_lines(disk, name_mas_path, {" JA1ABC1st", " JA1ABC2nd", " JA1ABC3rd"});
    NameMas master;
    master.read_name_mas_txt(stage, "C:\\mas\\");
    EXPECT_EQ(master.find("JA1ABC").name, "3rd");
}

TEST_F(StationMasters, FileOfHeadingsAloneReadsPastTheEnd) {
    for (const std::vector<std::string>& lines :
         std::vector<std::vector<std::string>>{{"one", "two"}, {"one"}, {}}) {
        put_lines(disk, name_mas_path, lines);
        put_lines(disk, qth_mas_path, lines);
        put_lines(disk, user_text_path, lines);
        NameMas name_mas;
        QthMas qth_mas(qth_mas_path);
        UserText user_text(UserText::Letter::A, user_text_path, hits);
        EXPECT_EQ(failure_of([&] { name_mas.read_name_mas_txt(stage, "C:\\mas\\"); }), 62);
        EXPECT_EQ(failure_of([&] { qth_mas.prepare(stage); }), 62);
        EXPECT_EQ(failure_of([&] { user_text.prepare(stage); }), 62);
    }
    EXPECT_EQ(error_lines().front(), "エラー発生  Private Sub read_name_mas_txt() ：　62");
}

TEST_F(StationMasters, BlankLineIsARecord) {
    put_lines(disk, name_mas_path, {"one", "two", ""});
    NameMas master;
    master.read_name_mas_txt(stage, "C:\\mas\\");
    expect_data(master.find(""), {});
}

TEST_F(StationMasters, MissingFileIsAFailure) {
    disk.put_folder("C:\\mas");
    NameMas master;
    EXPECT_EQ(failure_of([&] { master.read_name_mas_txt(stage, "C:\\mas\\"); }), 53);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub read_name_mas_txt() ：　53"));
}

TEST_F(StationMasters, NameMasIsReadOnce) {
    put_master(disk, name_mas_path, {full_record});
    NameMas master;
    master.read_name_mas_txt(stage, "C:\\mas\\");
    put_master(disk, name_mas_path, {" JR8YYX佐藤"});
    master.read_name_mas_txt(stage, "C:\\mas\\");
    master.prepare(stage);
    EXPECT_EQ(master.find("JA1ABC").name, "山田太郎");
    EXPECT_EQ(master.find("JR8YYX").name, "");
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub read_name_mas_txt()",
                                         "Open C:\\mas\\name_mas.txt For Input As #f_i"));
}

TEST_F(StationMasters, QthMasAndUserTextsAreReadAnewForEachPass) {
    put_master(disk, qth_mas_path, {full_record});
    put_master(disk, user_text_path, {full_record});
    QthMas qth_mas(qth_mas_path);
    UserText text_a(UserText::Letter::A, user_text_path, hits);
    UserText text_b(UserText::Letter::B, user_text_path, hits);
    const std::vector<NameSource*> masters{&qth_mas, &text_a, &text_b};
    for (NameSource* const master : masters) {
        master->prepare(stage);
    }
    put_master(disk, qth_mas_path, {" JR8YYX佐藤"});
    put_master(disk, user_text_path, {" JR8YYX佐藤"});
    for (NameSource* const master : masters) {
        master->prepare(stage);
        EXPECT_EQ(master->find("JA1ABC").name, "");
        EXPECT_EQ(master->find("JR8YYX").name, "佐藤");
    }
}

TEST_F(StationMasters, TraceNamesTheProcedures) {
    put_master(disk, qth_mas_path, {full_record});
    put_master(disk, user_text_path, {full_record});
    QthMas(qth_mas_path).prepare(stage);
    UserText(UserText::Letter::A, user_text_path, hits).prepare(stage);
    UserText(UserText::Letter::B, user_text_path, hits).prepare(stage);
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub read_qth_from_qth_mas()",
                                         "Open C:\\mas\\qth_mas.txt For Input As #f_i",
                                         "Private Sub read_Text_data_A()",
                                         "Open C:\\hamlog\\friends.txt For Input As #f_i",
                                         "Private Sub read_Text_data_B()",
                                         "Open C:\\hamlog\\friends.txt For Input As #f_i"));
}

TEST_F(StationMasters, StatusNamesTheFileWhileItIsReadAndIsClearedBehindIt) {
    std::vector<std::string> captions;
    lblCFG.caption.on_change = [&] { captions.push_back(lblCFG.caption); };
    lblCFG.show("変換処理中", colours::green);
    captions.clear();
    put_master(disk, qth_mas_path, {full_record});
    QthMas(qth_mas_path).prepare(stage);
    EXPECT_THAT(captions, ElementsAre("qth_mas.txt を読込中 ．．．", ""));
    EXPECT_EQ(lblCFG.fore_colour, colours::green);
}

}  // namespace
}  // namespace veldrana
