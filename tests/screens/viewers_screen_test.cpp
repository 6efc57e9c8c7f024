// The windows that show texts, and the state of the log book's histories.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCursor>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>

#include "platform/code_page_932.h"
#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

std::vector<std::string> lines_of(QWidget& window) {
    const QAbstractItemModel* const model = DesktopKit::part<QListView>(window, "List1").model();
    std::vector<std::string> lines;
    for (int row = 0; row < model->rowCount(); ++row) {
        lines.push_back(model->index(row, 0).data().toString().toStdString());
    }
    return lines;
}

class ViewersScreen : public DesktopTest {
  protected:
    // What a viewer that opens has shown.
    struct Shown {
        std::string title;
        std::vector<std::string> lines;
        bool fixed_width = false;
        bool closed = false;
    };
    // The entries of the viewers wait for one.
    void run() {
        kit.open("mnuOpen", kit.log("allja_sample.all"));
        kit.click("cmdStart");
        ASSERT_EQ(kit.text("lblCFG"), "処 理 終 了");
    }
    void look(Shown& shown) {
        kit.on_dialog([&shown](QDialog& dialog) {
            shown.title = dialog.windowTitle().toStdString();
            shown.lines = lines_of(dialog);
            const QFontMetrics metrics(DesktopKit::part<QListView>(dialog, "List1").font());
            shown.fixed_width =
                metrics.horizontalAdvance("iiii") == metrics.horizontalAdvance("WWWW");
            DesktopKit::part<QAction>(dialog, "mnuOK").trigger();
            shown.closed = !dialog.isVisible();
        });
    }
};

TEST_F(ViewersScreen, EachLineOfTheFileIsARow) {
    write_bytes(kit.log("two.all"), "zLog for Windows \r\n" + to_code_page("二行目 ｶﾅ") + "\r\n");
    kit.open("mnuOpen", kit.log("two.all"));
    Shown shown;
    look(shown);
    kit.widget<QAction>("入力ﾌｧｲﾙ").trigger();
    EXPECT_THAT(shown.title, EndsWith("two.all"));
    EXPECT_THAT(shown.lines, ElementsAre("zLog for Windows ", "二行目 ｶﾅ"));
    EXPECT_TRUE(shown.fixed_width);
    EXPECT_TRUE(shown.closed);
}

TEST_F(ViewersScreen, LongLineCanBeScrolledSideways) {
    const std::string longest(400, 'x');
    write_bytes(kit.log("wide.all"), "zLog for Windows \r\n" + longest + "\r\n");
    kit.open("mnuOpen", kit.log("wide.all"));
    kit.on_dialog([](QDialog& dialog) {
        auto& list = DesktopKit::part<QListView>(dialog, "List1");
        EXPECT_TRUE(QTest::qWaitFor([&] { return list.horizontalScrollBar()->maximum() > 0; }));
        const int width = list.fontMetrics().horizontalAdvance(QString(400, u'x'));
        EXPECT_GE(list.horizontalScrollBar()->maximum() + list.viewport()->width(), width);
        DesktopKit::part<QAction>(dialog, "mnuOK").trigger();
    });
    kit.widget<QAction>("入力ﾌｧｲﾙ").trigger();
}

TEST_F(ViewersScreen, EmptyFileOpensAnEmptyList) {
    run();
    write_bytes(kit.home() / "Veldrana.rmk1", "");
    Shown shown;
    shown.lines = {"unread"};
    look(shown);
    kit.widget<QAction>("mnuDisp_Veldrana_rmk1").trigger();
    EXPECT_THAT(shown.title, EndsWith("Veldrana.rmk1"));
    EXPECT_THAT(shown.lines, IsEmpty());
}

TEST_F(ViewersScreen, MissingFileIsNotShown) {
    run();
    fs::remove(kit.log("allja_sample.all"));
    fs::remove(kit.home() / "hl_code.mas");
    fs::remove(kit.home() / "Veldrana.rmk1");
    fs::remove(kit.home() / "Veldrana.rmk2");
    ASSERT_TRUE(kit.widget<QPushButton>("cmdDisp_in").isEnabled());
    for (const char* const name : {"mnuDisp_in", "入力ﾌｧｲﾙ", "mnuDisp_hl_code_mas",
                                   "mnuDisp_Veldrana_rmk1", "mnuDisp_Veldrana_rmk2"}) {
        auto& entry = kit.widget<QAction>(name);
        ASSERT_TRUE(entry.isEnabled()) << name;
        entry.trigger();
        QApplication::processEvents();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << name;
    }
    kit.click("cmdDisp_in");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_THAT(kit.seen, SizeIs(1)) << "the choice of the log";
    EXPECT_FALSE(kit.program().ended());
}

TEST_F(ViewersScreen, SnapshotOfTheOptionsIsWrittenBeforeItIsShown) {
    fs::remove(kit.home() / "Veldrana.ini");
    write_bytes(kit.home() / "Veldrana.ini", "old\r\n");
    Shown shown;
    look(shown);
    kit.widget<QAction>("mnuDisp_Veldrana_ini").trigger();
    EXPECT_THAT(shown.lines, testing::Contains(StartsWith("Option02=")));
}

// --- viewers beside the RTCL tool ---

class FreeViewersScreen : public ViewersScreen {
  protected:
    QWidget* beside(const std::string& name) {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName().toStdString() == name) {
                return window;
            }
        }
        return nullptr;
    }
    bool is_open(const std::string& name) {
        const QWidget* const window = beside(name);
        return window != nullptr && window->isVisible();
    }
    void make_texts(QDialog& tool) {
        kit.choose(kit.log("rtcl_v4_sample.log"));
        DesktopKit::part<QAction>(tool, "mnuVer_430mae").trigger();
        kit.click(DesktopKit::part<QPushButton>(tool, "cmdMake_txt"));
        kit.click(DesktopKit::part<QPushButton>(tool, "cmdMake_all"));
    }
    static void show_all(QDialog& tool) {
        for (const char* const name : {"mnuInFile", "mnuOutFile_txt", "mnuOutFile_all"}) {
            DesktopKit::part<QAction>(tool, name).trigger();
        }
    }
    void use_tool(const std::function<void(QDialog&)>& act) {
        kit.on_dialog([act](QDialog& tool) {
            act(tool);
            DesktopKit::part<QAction>(tool, "mnuBack").trigger();
        });
        kit.widget<QAction>("mnu_rtcl_new4").trigger();
    }
};

TEST_F(FreeViewersScreen, ShowTheLogAndBothTextsOfTheTool) {
    use_tool([this](QDialog& tool) {
        make_texts(tool);
        show_all(tool);
        for (const char* const name : {"frmDisp2", "frmDisp3", "frmDisp4"}) {
            ASSERT_TRUE(is_open(name)) << name;
        }
        // The blanks around a caption are not for a title bar.
        EXPECT_EQ(beside("frmDisp2")->windowTitle(), "入力 ：　C:\\logs\\rtcl_v4_sample.log");
        EXPECT_EQ(beside("frmDisp3")->windowTitle(),
                  "出力 TXT：　C:\\logs\\rtcl_v4_sample_log2z.txt");
        EXPECT_EQ(beside("frmDisp4")->windowTitle(),
                  "出力 ALL：　C:\\logs\\rtcl_v4_sample_log2z.all");
        EXPECT_THAT(lines_of(*beside("frmDisp3")), SizeIs(151));
        EXPECT_THAT(lines_of(*beside("frmDisp4")), SizeIs(151));
        EXPECT_THAT(lines_of(*beside("frmDisp3")).at(0), StartsWith("mon day time  callsign"));
        EXPECT_THAT(lines_of(*beside("frmDisp4")).at(0), HasSubstr("by Veldrana 5.30"));
    });
}

TEST_F(FreeViewersScreen, AreUsedBesideTheToolThatWaits) {
    auto& box = kit.widget<QCheckBox>("Check06");
    kit.bring_to_front(box);
    const bool before = box.isChecked();
    const auto press_box = [&] {
        const QPoint place(box.height() / 2, box.height() / 2);
        QTest::mouseClick(kit.window().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          box.mapTo(&kit.window(), place));
    };
    use_tool([&](QDialog& tool) {
        make_texts(tool);
        show_all(tool);
        QWidget& text = *beside("frmDisp3");
        auto& list = DesktopKit::part<QListView>(text, "List1");
        list.scrollToTop();
        // A press on the third line reaches it; a window that waits would take none.
        QTest::mouseClick(
            text.windowHandle(), Qt::LeftButton, Qt::NoModifier,
            list.viewport()->mapTo(&text, list.visualRect(list.model()->index(2, 0)).center()));
        EXPECT_EQ(list.currentIndex().row(), 2);
        auto& ok = DesktopKit::part<QPushButton>(text, "cmdOK");
        QTest::mouseClick(text.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          ok.mapTo(&text, ok.rect().center()));
        EXPECT_FALSE(is_open("frmDisp3"));
        EXPECT_TRUE(is_open("frmDisp2"));
        EXPECT_TRUE(is_open("frmDisp4"));
        EXPECT_TRUE(tool.isVisible());
        press_box();
        EXPECT_EQ(box.isChecked(), before) << "the main window waits for the tool";
    });
    press_box();
    EXPECT_NE(box.isChecked(), before);
}

// The list asks for its lines anew, or it would go on showing those of the former text.
TEST_F(FreeViewersScreen, OneThatIsOpenFollowsToItsFileAsItIsNow) {
    use_tool([this](QDialog& tool) {
        make_texts(tool);
        show_all(tool);
        ASSERT_TRUE(is_open("frmDisp4"));
        write_bytes(kit.log("rtcl_v4_sample_log2z.all"), "one\r\n");
        int resets = 0;
        auto* const lines = DesktopKit::part<QListView>(*beside("frmDisp4"), "List1").model();
        const auto counting =
            QObject::connect(lines, &QAbstractItemModel::modelReset, [&resets] { ++resets; });
        DesktopKit::part<QAction>(tool, "mnuOutFile_all").trigger();
        QObject::disconnect(counting);
        EXPECT_GT(resets, 0);
        EXPECT_THAT(lines_of(*beside("frmDisp4")), ElementsAre("one"));
    });
}

TEST_F(FreeViewersScreen, OneThatWasClosedShowsItsFileAnew) {
    use_tool([this](QDialog& tool) {
        make_texts(tool);
        show_all(tool);
        kit.click(DesktopKit::part<QPushButton>(*beside("frmDisp4"), "cmdOK"));
        ASSERT_FALSE(is_open("frmDisp4"));
        write_bytes(kit.log("rtcl_v4_sample_log2z.all"), "one\r\n");
        DesktopKit::part<QAction>(tool, "mnuOutFile_all").trigger();
        EXPECT_TRUE(is_open("frmDisp4"));
        EXPECT_THAT(lines_of(*beside("frmDisp4")), ElementsAre("one"));
    });
}

TEST_F(FreeViewersScreen, TextThatIsNotMadeYetIsNotShown) {
    use_tool([this](QDialog& tool) {
        kit.choose(kit.log("rtcl_v4_sample.log"));
        DesktopKit::part<QAction>(tool, "mnuVer_430mae").trigger();
        show_all(tool);
        EXPECT_TRUE(is_open("frmDisp2"));
        EXPECT_FALSE(is_open("frmDisp3"));
        EXPECT_FALSE(is_open("frmDisp4"));
    });
}

TEST_F(FreeViewersScreen, StayBehindTheToolAndAreClosedWhenARunStarts) {
    use_tool([this](QDialog& tool) {
        make_texts(tool);
        show_all(tool);
    });
    for (const char* const name : {"frmDisp2", "frmDisp3", "frmDisp4"}) {
        EXPECT_TRUE(is_open(name)) << name;
    }
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    EXPECT_TRUE(is_open("frmDisp2"));
    kit.click("cmdStart");
    for (const char* const name : {"frmDisp2", "frmDisp3", "frmDisp4"}) {
        EXPECT_FALSE(is_open(name)) << name;
    }
    EXPECT_EQ(kit.text("lblCFG"), "処 理 終 了");
}

// --- histories of the log book ---

class HistoriesScreen : public ViewersScreen {
  protected:
    fs::path history(int number) const {
        return kit.home() / "Temp_Files" / ("bak_qso.mas" + std::to_string(number) + "_p");
    }
    void use(const std::function<void(QDialog&)>& act) {
        kit.on_dialog([act](QDialog& dialog) {
            act(dialog);
            DesktopKit::part<QAction>(dialog, "mnuBack").trigger();
            EXPECT_FALSE(dialog.isVisible());
        });
        kit.click("cmdCheck_bak_qso_mas");
    }
    static std::string cell(QDialog& dialog, int row, int column) {
        return DesktopKit::part<QTableWidget>(dialog, "Grid1")
            .item(row, column)
            ->text()
            .toStdString();
    }
    // On a character of a cell.
    static void click_cell(QDialog& dialog, int row, int column, int character) {
        auto& grid = DesktopKit::part<QTableWidget>(dialog, "Grid1");
        const QRect at = grid.visualRect(grid.model()->index(row, column));
        const int width = grid.fontMetrics().horizontalAdvance(u'0');
        const QPoint place(at.left() + character * width + width / 2, at.center().y());
        QCursor::setPos(grid.viewport()->mapToGlobal(place));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
};

TEST_F(HistoriesScreen, AreNamedWithTheirSizesAndLines) {
    write_bytes(history(1), "\"JA1ZZX\",\"D2\"\r\n\"JA1ZZY\",\"E1\"\r\nZZZ/ZZZZZZ,E2\r\n");
    write_bytes(history(2), "ZZZ/ZZZZZZ,E2\r\n");
    fs::remove(history(3));
    use([](QDialog& dialog) {
        EXPECT_THAT(dialog.windowTitle().toStdString(),
                    testing::AllOf(StartsWith("bak_qso.mas 確認 ：　C:\\"),
                                   EndsWith("\\Temp_Files\\bak_qso_mas*")));
        EXPECT_EQ(cell(dialog, 0, 0), "　参照元ファイル名");
        EXPECT_THAT(cell(dialog, 1, 0), testing::MatchesRegex("Hamlog.hdb     \\( [0-9/: ]+ \\)"));
        EXPECT_EQ(cell(dialog, 2, 0), "　No QSLにする条件");
        EXPECT_EQ(cell(dialog, 2, 1), "　  ファイル名 　 | 　サイズ  | 　件数  ");
        EXPECT_EQ(cell(dialog, 3, 0), "　Q S O   済みの局");
        EXPECT_EQ(cell(dialog, 4, 0), "　QSL 発行済みの局");
        EXPECT_EQ(cell(dialog, 5, 0), "　QSL 受領済みの局");
        EXPECT_THAT(cell(dialog, 3, 1), StartsWith("bak_qso.mas1_p ｜     45 ｜ "));
        // The line number at the end: one more than there are lines.
        EXPECT_THAT(cell(dialog, 3, 1), EndsWith(" 4  "));
        EXPECT_THAT(cell(dialog, 4, 1), StartsWith("bak_qso.mas2_p ｜     15 ｜ "))
            << "a size of no history is shown as it is";
        EXPECT_THAT(cell(dialog, 4, 1), EndsWith(" 2  "));
        EXPECT_THAT(cell(dialog, 5, 1), StartsWith("bak_qso.mas3_p ｜      0 ｜ "));
        EXPECT_THAT(cell(dialog, 5, 1), EndsWith(" 0  "));
    });
}

TEST_F(HistoriesScreen, LogBookThatIsNotThereIsNotInUse) {
    fs::remove(kit.drive() / "hamlog" / "Hamlog.hdb");
    use([](QDialog& dialog) { EXPECT_EQ(cell(dialog, 1, 0), "Hamlog.hdb     ( 使用しない )"); });
}

TEST_F(HistoriesScreen, AreShownByAClickOnTheirNames) {
    write_bytes(history(2), "\"JA1ZZX\",\"D2\"\r\nZZZ/ZZZZZZ,E2\r\n");
    use([this](QDialog& dialog) {
        Shown shown;
        look(shown);
        click_cell(dialog, 4, 1, 5);
        EXPECT_THAT(shown.title, EndsWith("bak_qso.mas2_p"));
        EXPECT_THAT(shown.lines, ElementsAre("\"JA1ZZX\",\"D2\"", "ZZZ/ZZZZZZ,E2"));
        EXPECT_TRUE(dialog.isVisible());
    });
}

TEST_F(HistoriesScreen, ClickElsewhereShowsNothing) {
    write_bytes(history(2), "ZZZ/ZZZZZZ,E2\r\n");
    fs::remove(history(1));
    use([this](QDialog& dialog) {
        const std::size_t before = kit.seen.size();
        click_cell(dialog, 4, 1, 20);  // its size
        click_cell(dialog, 4, 0, 2);
        click_cell(dialog, 2, 1, 5);
        click_cell(dialog, 3, 1, 5);  // not there
        QTest::qWait(30);
        EXPECT_THAT(kit.seen, SizeIs(before));
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    });
}

TEST_F(HistoriesScreen, TheirSignsAreExplained) {
    use([this](QDialog& dialog) {
        kit.accept_box();
        DesktopKit::part<QAction>(dialog, "mnuHelp").trigger();
        ASSERT_FALSE(kit.seen.empty());
        EXPECT_EQ(kit.seen.back().title, "bak_qso.mas 関係ファイルの確認の説明");
        EXPECT_THAT(
            kit.seen.back().text,
            testing::AllOf(StartsWith("同一行の３種類の各ファイルのサイズ、件数は同じが正常です。"),
                           HasSubstr("bak_qso_mas_name?_p サイズが 　２０ バイト以下の時は"
                                     "作成が異常です。")));
    });
}

}  // namespace
}  // namespace veldrana
