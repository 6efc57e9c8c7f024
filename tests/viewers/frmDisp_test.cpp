// The text viewer and the text that it shows.
#include "viewers/frmDisp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/viewing.h"
#include "platform/code_page_932.h"
#include "tests/app/program_kit.h"
#include "tests/doubles/failure_of.h"

namespace veldrana {
namespace {

class ViewedTextTest : public testing::Test {
  protected:
    ViewedText text_of(const std::string& text) {
        disk.put("C:\\x.txt", to_code_page(text));
        return ViewedText(disk, "C:\\x.txt");
    }
    MemoryDisk disk;
};

TEST_F(ViewedTextTest, EmptyFileHasNoLines) {
    EXPECT_EQ(text_of("").count(), 0U);
    EXPECT_EQ(text_of("").widest(), 0U);
}

TEST_F(ViewedTextTest, LinesEndInEitherLineEndAndTheLastNeedsNone) {
    const ViewedText text = text_of("one\r\n\r\n三\nfour");
    ASSERT_EQ(text.count(), 4U);
    EXPECT_EQ(text.line(0), "one");
    EXPECT_EQ(text.line(1), "");
    EXPECT_EQ(text.line(2), "三");
    EXPECT_EQ(text.line(3), "four");
    EXPECT_EQ(failure_of([&] { text.line(4); }), 9);
}

TEST_F(ViewedTextTest, WidestLineIsCountedInColumns) {
    EXPECT_EQ(text_of("abcd\r\n全角文字\r\nabc\r\n").widest(), 8U);
}

TEST_F(ViewedTextTest, LinesOfManyBlocksAreAllThere) {
    std::string long_text;
    for (int line = 0; line < 20000; ++line) {
        long_text += std::to_string(line) + "\r\n";
    }
    const ViewedText text = text_of(long_text);
    ASSERT_EQ(text.count(), 20000U);
    EXPECT_EQ(text.line(19999), "19999");
}

TEST(TextViewer, ShowsAFileUntilItIsClosed) {
    ProgramKit kit;
    kit.start();
    kit.put_text("C:\\log\\x.csv", "a\r\nb\r\n");
    bool was_shown = false;
    kit.person.forms.emplace_back([&](WindowForm& form) {
        auto& viewer = dynamic_cast<frmDisp&>(form);
        was_shown = viewer.window.visible && viewer.text().count() == 2;
        EXPECT_EQ(viewer.disp_name(), "C:\\log\\x.csv");
        show_text(*kit.program, "C:\\log\\x.csv");  // not a second one
        viewer.mnuOK.press();
        EXPECT_FALSE(viewer.window.visible);
    });
    kit.person.forms.emplace_back([](WindowForm&) { FAIL() << "a second viewer"; });
    show_text(*kit.program, "C:\\log\\x.csv");
    EXPECT_TRUE(was_shown);
    EXPECT_FALSE(kit.program->viewer_is_open);
}

TEST(TextViewer, MissingFileShowsNothing) {
    ProgramKit kit;
    kit.start();
    kit.person.forms.emplace_back([](WindowForm&) { FAIL() << "nothing to show"; });
    show_text(*kit.program, "C:\\log\\none.csv");
    EXPECT_FALSE(kit.program->ended());
}

TEST(TextViewer, EmptyFileOpensAnEmptyList) {
    ProgramKit kit;
    kit.start();
    kit.put_text("C:\\log\\empty.csv", "");
    std::size_t lines = 1;
    kit.person.forms.emplace_back(
        [&](WindowForm& form) { lines = dynamic_cast<frmDisp&>(form).text().count(); });
    show_text(*kit.program, "C:\\log\\empty.csv");
    EXPECT_EQ(lines, 0U);
}

TEST(TextViewer, HistoryIsShownFromItsCheck) {
    ProgramKit kit;
    kit.start();
    kit.put_text("C:\\veldrana\\Temp_Files\\bak_qso.mas2_p", "\"JA1ZZA\",\"C2\"\r\n");
    std::string shown;
    kit.person.forms.emplace_back([](WindowForm& form) {
        dynamic_cast<Grid*>(form.find("Grid1"))->press({.row = 4, .column = 1, .character = 0});
    });
    kit.person.forms.emplace_back(
        [&](WindowForm& form) { shown = dynamic_cast<frmDisp&>(form).disp_name(); });
    kit.screen().cmdCheck_bak_qso_mas.press();
    EXPECT_EQ(shown, "C:\\veldrana\\Temp_Files\\bak_qso.mas2_p");
}

}  // namespace
}  // namespace veldrana
