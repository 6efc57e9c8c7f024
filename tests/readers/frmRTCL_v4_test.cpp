// The tool that makes zLog texts of an RTCL log.
#include "readers/frmRTCL_v4.h"

#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/readers/binary_log.h"
#include "tests/readers/reader_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

TEST(Log2zName, EveryExtensionInThePathIsReplaced) {
    EXPECT_EQ(log2z_name("C:\\log\\x.log", "_log2z.txt"), "C:\\log\\x_log2z.txt");
    EXPECT_EQ(log2z_name("C:\\a.log\\x.LOG", "_log2z.all"), "C:\\a_log2z.all\\x_log2z.all");
    EXPECT_EQ(log2z_name("C:\\表\\ソ.Log", "_log2z.all"), "C:\\表\\ソ_log2z.all");
}

TEST(Log2zName, NeverIsTheLogsOwn) {
    EXPECT_EQ(log2z_name("C:\\x\\y.txt", "_log2z.txt"), "C:\\x\\y.txt_log2z.txt");
}

class RtclTool : public ReaderFixture {
  protected:
    RtclTool() {
        disk.put_folder("C:\\veldrana");
        put_log(RtclContactBytes{.call = "JA1ZZA"}.bytes(RtclForm::before_430));
        disk.put("C:\\log\\new.LOG", RtclContactBytes{.call = "JA1ZZB"}.bytes(RtclForm::from_430));
        tool.show_file = [this](RtclView view, const std::string& path) {
            shown.emplace_back(view, path);
        };
    }

    void choose(MenuEntry& entry, const std::string& path) {
        person.files.push_back(path);
        entry.press();
    }

    frmRTCL_v4 tool{stage, {.strPath = "C:\\veldrana\\", .log_folder = "C:\\log\\"}};
    std::vector<std::pair<RtclView, std::string>> shown;
};

TEST_F(RtclTool, ControlsHaveTheirCaptions) {
    EXPECT_EQ(tool.mnuOpen_log.caption.get(), "開く log");
    EXPECT_EQ(tool.mnuVer_430mae.caption.get(), "ver 4.30 より前");
    EXPECT_EQ(tool.mnuVer_430ato.caption.get(), "ver 4.30 以後");
    EXPECT_EQ(tool.mnuDisp.caption.get(), "表示");
    EXPECT_EQ(tool.mnuInFile.caption.get(), "入力");
    EXPECT_EQ(tool.mnuOutFile_txt.caption.get(), "出力 txt");
    EXPECT_EQ(tool.mnuOutFile_all.caption.get(), "出力 all");
    EXPECT_EQ(tool.mnuBack.caption.get(), "戻る");
    EXPECT_EQ(tool.cmdMake_txt.caption.get(), "zLog の txt 作成");
    EXPECT_EQ(tool.cmdMake_all.caption.get(), "zLog の all 作成");
}

TEST_F(RtclTool, NothingCanBeMadeBeforeALogIsChosen) {
    EXPECT_FALSE(tool.cmdMake_txt.enabled);
    EXPECT_FALSE(tool.cmdMake_all.enabled);
    EXPECT_EQ(tool.f_type(), "");
    tool.mnuInFile.press();
    tool.mnuOutFile_txt.press();
    tool.mnuOutFile_all.press();
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(RtclTool, ChoiceSetsTheFormAndUnpacks) {
    choose(tool.mnuVer_430mae, log_path);
    EXPECT_EQ(tool.f_type(), "log_430mae");
    EXPECT_EQ(person.dialogs.at(0).title,
              "　C:\\log\\　のＲＴＣＬ ｖｅｒ　４＊．ｌｏｇ ファイルを  開く ....");
    EXPECT_NE(disk.bytes("C:\\veldrana\\rtcl_tmp.txt").find("JA1ZZA"), std::string::npos);
    EXPECT_TRUE(tool.cmdMake_txt.enabled);
    choose(tool.mnuVer_430ato, "C:\\log\\new.LOG");
    EXPECT_EQ(tool.f_type(), "log_430ato");
    EXPECT_NE(disk.bytes("C:\\veldrana\\rtcl_tmp.txt").find("JA1ZZB"), std::string::npos);
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(RtclTool, MakesTheTxtBesideTheLog) {
    choose(tool.mnuVer_430mae, log_path);
    std::vector<std::pair<std::string, Colour>> told;
    tool.lblInfo.listener = [&] {
        told.emplace_back(tool.lblInfo.caption.get(), tool.lblInfo.fore_colour.get());
    };
    tool.cmdMake_txt.press();
    EXPECT_EQ(
        disk.bytes("C:\\log\\x_log2z.txt"),
        "mon day time  callsign      sent         rcvd      multi   MHz mode pts memo\r\n"
        "4    26 2105 JA1ZZA     59911M          589104M              -    7 CW  1(7012)\r\n");
    EXPECT_THAT(told, testing::Contains(Pair("  zLog の txt 形式に変換中", colours::green)));
    EXPECT_EQ(tool.lblInfo.caption.get(), "  zLog の txt 形式に変換終了");
    EXPECT_EQ(tool.lblInfo.fore_colour.get(), colours::blue);
    EXPECT_EQ(tool.lblOut_name.caption.get(), "C:\\log\\x_log2z.txt");
}

TEST_F(RtclTool, MakesTheAllBesideTheLog) {
    choose(tool.mnuVer_430ato, "C:\\log\\new.LOG");
    std::vector<std::pair<std::string, Colour>> told;
    tool.lblInfo.listener = [&] {
        told.emplace_back(tool.lblInfo.caption.get(), tool.lblInfo.fore_colour.get());
    };
    tool.cmdMake_all.press();
    EXPECT_EQ(disk.bytes("C:\\log\\new_log2z.all"),
              "zLog for Windows   (rtcl.log to zlog.all)    by Veldrana 5.30\r\n"
              "2025/04/26 21:05 JA1ZZB       599 11M     589 104M    -     -     7    CW   1   "
              "(7012)\r\n");
    EXPECT_THAT(told, testing::Contains(Pair("  zLog の all 形式に変換中", colours::green)));
    EXPECT_EQ(tool.lblInfo.caption.get(), "  zLog の all 形式に変換終了");
    EXPECT_EQ(tool.lblInfo.fore_colour.get(), colours::blue);
}

TEST_F(RtclTool, OutputNameIsCutToFiftyBytes) {
    const std::string front = "C:\\" + std::string(46, 'a');  // 49 bytes
    const std::string path = front + "表.log";
    disk.put(path, RtclContactBytes{}.bytes(RtclForm::before_430));
    choose(tool.mnuVer_430mae, path);
    tool.cmdMake_txt.press();
    EXPECT_EQ(tool.lblOut_name.caption.get(), front);
    EXPECT_TRUE(disk.file_exists(front + "表_log2z.txt"));
}

TEST_F(RtclTool, RefusesWhatIsNoLogOfItsForm) {
    choose(tool.mnuVer_430ato, log_path);
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].text,
              "C:\\log\\x.log　は RTCL ver 4.30 以降のｌｏｇ ファイルではありません");
    choose(tool.mnuVer_430mae, "C:\\log\\new.LOG");
    EXPECT_EQ(person.boxes.at(1).text,
              "C:\\log\\new.LOG　は RTCL ver 4.30 より前のｌｏｇ ファイルではありません");
    disk.put("C:\\log\\no.log", "zLog");
    choose(tool.mnuVer_430mae, "C:\\log\\no.log");
    EXPECT_EQ(person.boxes.at(2).text,
              "C:\\log\\no.log　は RTCL ver 4.0 のｌｏｇ ファイルではありません");
    EXPECT_EQ(tool.in_name(), "C:\\log\\no.log");
    EXPECT_FALSE(disk.file_exists("C:\\veldrana\\rtcl_tmp.txt"));
    EXPECT_FALSE(tool.cmdMake_txt.enabled);
}

TEST_F(RtclTool, RefusalLeavesNothingOfTheLogBeforeToBeMade) {
    choose(tool.mnuVer_430mae, log_path);
    tool.cmdMake_all.press();
    choose(tool.mnuVer_430mae, "C:\\log\\new.LOG");
    EXPECT_FALSE(tool.cmdMake_txt.enabled);
    EXPECT_FALSE(tool.cmdMake_all.enabled);
    EXPECT_EQ(tool.lblInfo.caption.get(), "");
    EXPECT_EQ(tool.lblOut_name.caption.get(), "");
}

TEST_F(RtclTool, NoChoiceLeavesEverythingAsItIs) {
    choose(tool.mnuVer_430mae, log_path);
    choose(tool.mnuVer_430mae, "");
    EXPECT_EQ(tool.in_name(), log_path);
    EXPECT_TRUE(tool.cmdMake_txt.enabled);
}

TEST_F(RtclTool, ShowsTheFilesThatAreThere) {
    choose(tool.mnuVer_430mae, log_path);
    tool.mnuOutFile_txt.press();
    tool.mnuOutFile_all.press();
    EXPECT_THAT(shown, IsEmpty());
    tool.cmdMake_txt.press();
    tool.cmdMake_all.press();
    tool.mnuInFile.press();
    tool.mnuOutFile_txt.press();
    tool.mnuOutFile_all.press();
    EXPECT_THAT(shown, ElementsAre(Pair(RtclView::input, "C:\\log\\x.log"),
                                   Pair(RtclView::output_txt, "C:\\log\\x_log2z.txt"),
                                   Pair(RtclView::output_all, "C:\\log\\x_log2z.all")));
}

TEST_F(RtclTool, WithoutAViewerNothingIsShown) {
    tool.show_file = nullptr;
    choose(tool.mnuVer_430mae, log_path);
    EXPECT_EQ(failure_of([&] { tool.mnuInFile.press(); }), 0);
}

TEST_F(RtclTool, BackClosesTheWindowAndKeepsItsPlace) {
    tool.window.visible = true;
    tool.window.placement = WindowPlacement{WindowPlacement::normal, 10, 20, 300, 200};
    tool.mnuBack.press();
    EXPECT_FALSE(tool.window.visible);
    const frmRTCL_v4 next{stage, {.strPath = "C:\\veldrana\\", .log_folder = "C:\\log\\"}};
    EXPECT_EQ(next.window.placement.get(),
              (WindowPlacement{WindowPlacement::normal, 10, 20, 300, 200}));
}

TEST_F(RtclTool, FailureIsTracedByTheProcedureThatMetIt) {
    choose(tool.mnuVer_430mae, log_path);
    disk.put("C:\\veldrana\\rtcl_tmp.txt", "x\r\n");
    EXPECT_EQ(failure_of([&] { tool.cmdMake_txt.press(); }), 62);
    EXPECT_THAT(error_lines(),
                ElementsAre("エラー発生  Private Sub make_rtcl_log_to_zlog_txt() ：　62"));
}

}  // namespace
}  // namespace veldrana
