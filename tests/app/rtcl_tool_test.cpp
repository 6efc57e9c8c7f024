// The tool for RTCL logs as the main screen opens it, and the viewers beside it.
#include "app/rtcl_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "readers/frmRTCL_v4.h"
#include "tests/app/other_logs.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class RtclToolOfTheProgram : public testing::Test {
  protected:
    RtclToolOfTheProgram() {
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.memory.put("C:\\log\\v4.log", sample_rtcl(RtclForm::before_430));
        kit.memory.put("C:\\log\\v430.log", sample_rtcl(RtclForm::from_430));
        kit.start();
        kit.person.boxes.clear();
    }

    // Opens the tool and does that in it.
    void use(const std::function<void(frmRTCL_v4&)>& body) {
        kit.person.forms.emplace_back([this, body](WindowForm& form) {
            was_visible = form.window.visible;
            body(dynamic_cast<frmRTCL_v4&>(form));
        });
        screen.mnu_rtcl_new4.press();
    }
    void choose(MenuEntry& entry, const char* path) {
        kit.person.files = {path};
        entry.press();
    }
    FreeViewer& viewer(std::size_t place) { return *program.free_viewers.at(place); }
    // Has the tool show all three of its files.
    void show_all() {
        use([this](frmRTCL_v4& tool) {
            choose(tool.mnuVer_430mae, "C:\\log\\v4.log");
            tool.cmdMake_txt.press();
            tool.cmdMake_all.press();
            tool.mnuInFile.press();
            tool.mnuOutFile_txt.press();
            tool.mnuOutFile_all.press();
        });
    }

    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
    bool was_visible = false;
};

TEST_F(RtclToolOfTheProgram, BothEntriesOpenIt) {
    int opened = 0;
    for (MenuEntry* const entry : {&screen.mnu_rtcl_new4, &screen.mnu_rtcl_new430}) {
        kit.person.forms.emplace_back([&opened](WindowForm& form) {
            EXPECT_NE(dynamic_cast<frmRTCL_v4*>(&form), nullptr);
            EXPECT_TRUE(form.window.visible);
            ++opened;
        });
        entry->press();
    }
    EXPECT_EQ(opened, 2);
    EXPECT_FALSE(program.ended());
}

TEST_F(RtclToolOfTheProgram, DialogStartsInTheFolderOfTheLogs) {
    program.settings.environment.all_dir = "c:\\zlog\\";
    use([this](frmRTCL_v4& tool) { choose(tool.mnuVer_430ato, ""); });
    ASSERT_THAT(kit.person.dialogs, SizeIs(1));
    EXPECT_EQ(kit.person.dialogs[0].folder, "c:\\zlog\\");
    EXPECT_EQ(kit.person.dialogs[0].title,
              "　c:\\zlog\\　のＲＴＣＬ ｖｅｒ　４３０以降　＊．ｌｏｇ ファイルを  開く ....");
    EXPECT_EQ(kit.person.dialogs[0].filter, "RTCL テキストファイル( *.log )|*.log|");
}

TEST_F(RtclToolOfTheProgram, UnpacksIntoTheProgramsFolderAndWritesBesideTheLog) {
    use([this](frmRTCL_v4& tool) {
        choose(tool.mnuVer_430ato, "C:\\log\\v430.log");
        tool.cmdMake_all.press();
        EXPECT_EQ(tool.lblOut_name.caption.get(), "C:\\log\\v430_log2z.all");
    });
    EXPECT_TRUE(kit.memory.file_exists("C:\\veldrana\\rtcl_tmp.txt"));
    EXPECT_THAT(from_code_page(kit.memory.bytes("C:\\log\\v430_log2z.all")),
                testing::StartsWith(
                    "zLog for Windows   (rtcl.log to zlog.all)    by Veldrana 5.30\r\n"
                    "2025/04/26 21:05 JA1ZZA       599 11M     589 104M    -     -     7    CW   1"
                    "   %%JA1ZZZ%% (7012) SSN\r\n"));
}

TEST_F(RtclToolOfTheProgram, LeavesTheLogOfTheRunAlone) {
    kit.open("C:\\log\\x.all");
    show_all();
    EXPECT_EQ(program.log.in_name, "C:\\log\\x.all");
    EXPECT_EQ(program.log.f_type, InputKind::all);
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_EQ(screen.lblIn_name.caption.get(), "C:\\log\\x.all");
}

TEST_F(RtclToolOfTheProgram, RefusalIsABoxOfTheProgram) {
    use([this](frmRTCL_v4& tool) { choose(tool.mnuVer_430ato, "C:\\log\\v4.log"); });
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text,
              "C:\\log\\v4.log　は RTCL ver 4.30 以降のｌｏｇ ファイルではありません");
}

TEST_F(RtclToolOfTheProgram, EachFileHasAViewerWithItsCaption) {
    show_all();
    EXPECT_EQ(viewer(0).window.caption.get(), " 入力 ：　C:\\log\\v4.log");
    EXPECT_EQ(viewer(1).window.caption.get(), " 出力 TXT：　C:\\log\\v4_log2z.txt");
    EXPECT_EQ(viewer(2).window.caption.get(), " 出力 ALL：　C:\\log\\v4_log2z.all");
    EXPECT_EQ(viewer(0).window.name(), "frmDisp2");
    EXPECT_EQ(viewer(1).window.name(), "frmDisp3");
    EXPECT_EQ(viewer(2).window.name(), "frmDisp4");
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_TRUE(viewer(i).window.visible) << i;
    }
    EXPECT_EQ(viewer(1).disp_name(), "C:\\log\\v4_log2z.txt");
    EXPECT_EQ(viewer(2).disp_name(), "C:\\log\\v4_log2z.all");
}

TEST_F(RtclToolOfTheProgram, FileThatIsNotThereIsNotShown) {
    use([this](frmRTCL_v4& tool) {
        choose(tool.mnuVer_430mae, "C:\\log\\v4.log");
        tool.mnuOutFile_txt.press();
        tool.mnuOutFile_all.press();
    });
    EXPECT_FALSE(viewer(1).window.visible);
    EXPECT_FALSE(viewer(2).window.visible);
}

TEST_F(RtclToolOfTheProgram, ViewersOutliveTheToolAndCloseByTheirButton) {
    show_all();
    viewer(1).cmdOK.press();
    EXPECT_TRUE(viewer(0).window.visible);
    EXPECT_FALSE(viewer(1).window.visible);
    EXPECT_TRUE(viewer(2).window.visible);
}

TEST_F(RtclToolOfTheProgram, ViewersAreClosedAtTheStartOfARun) {
    show_all();
    kit.open("C:\\log\\x.all");
    EXPECT_TRUE(viewer(0).window.visible);
    screen.cmdStart.press();
    EXPECT_FALSE(program.ended());
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_FALSE(viewer(i).window.visible) << i;
    }
}

TEST_F(RtclToolOfTheProgram, ViewerShowsTheNextFileInThePlaceOfTheFormer) {
    show_all();
    use([this](frmRTCL_v4& tool) {
        choose(tool.mnuVer_430ato, "C:\\log\\v430.log");
        tool.mnuInFile.press();
    });
    EXPECT_EQ(viewer(0).window.caption.get(), " 入力 ：　C:\\log\\v430.log");
    EXPECT_EQ(viewer(1).window.caption.get(), " 出力 TXT：　C:\\log\\v4_log2z.txt");
}

TEST_F(RtclToolOfTheProgram, FailureInItEndsInTheReport) {
    kit.disk.fail_writing("v4_log2z.txt", Failure::disk_full);
    use([this](frmRTCL_v4& tool) {
        choose(tool.mnuVer_430mae, "C:\\log\\v4.log");
        tool.cmdMake_txt.press();
    });
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　61"));
}

TEST_F(RtclToolOfTheProgram, MissingLogEndsInTheReport) {
    use([this](frmRTCL_v4& tool) { choose(tool.mnuVer_430mae, "C:\\log\\none.log"); });
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　53"));
}

}  // namespace
}  // namespace veldrana
