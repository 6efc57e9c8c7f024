// The main window of the desktop program and a run in it.
#include <fstream>
#include <string>
#include <vector>

#include <QApplication>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

#include "app/program_end.h"
#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;

class DesktopScreen : public DesktopTest {};

TEST_F(DesktopScreen, FirstStartComesThroughTheEnvironmentDialogToTheMainWindow) {
    EXPECT_TRUE(kit.window().isVisible());
    EXPECT_THAT(kit.window().windowTitle().toStdString(), testing::HasSubstr("ver 5.30"));
}

TEST_F(DesktopScreen, EveryControlHasItsWidget) {
    std::vector<std::string> missing;
    for (const Control* const control : kit.screen().controls()) {
        const QString name = to_qt(control->name());
        const bool is_window = control == &kit.screen().window;
        // A group stands in its buttons, a box of widgets in what it frames.
        const bool grouped = dynamic_cast<const OptionGroup*>(control) != nullptr;
        const bool framed = dynamic_cast<const Frame*>(control) != nullptr;
        const QString sought = grouped ? name + "(0)" : name;
        if (!is_window && !framed && kit.window().findChild<QObject*>(sought) == nullptr) {
            missing.push_back(control->name());
        }
    }
    EXPECT_THAT(missing, testing::IsEmpty());
}

TEST_F(DesktopScreen, ClickOnAnOptionReachesTheProgram) {
    kit.widget<QCheckBox>("Check06").click();
    EXPECT_TRUE(kit.screen().Check06.value);
    kit.widget<QRadioButton>("Option05(1)").click();
    EXPECT_EQ(kit.screen().Option05.index, 1);
    EXPECT_TRUE(kit.widget<QRadioButton>("Option09(1)").isEnabled());
    kit.widget<QRadioButton>("Option05(0)").click();
    EXPECT_FALSE(kit.widget<QRadioButton>("Option09(1)").isEnabled());
    kit.widget<QLineEdit>("txtQSL_Q").setText("XY");
    EXPECT_EQ(kit.widget<QLineEdit>("txtQSL_Q").text(), "X");
}

TEST_F(DesktopScreen, LogIsChosenConvertedAndLookedAt) {
    const fs::path log = kit.drive() / "logs/allja_sample.all";
    kit.choose(log);
    kit.widget<QAction>("mnuOpen").trigger();
    EXPECT_THAT(kit.widget<QLabel>("lblIn_name").text().toStdString(),
                testing::EndsWith("allja_sample.all"));
    ASSERT_TRUE(kit.widget<QPushButton>("cmdStart").isEnabled());
    kit.widget<QPushButton>("cmdStart").click();
    EXPECT_EQ(kit.widget<QLabel>("lblCFG").text(), "処 理 終 了");
    EXPECT_EQ(kit.widget<QTableWidget>("MSFlexGrid1").item(0, 1)->text().trimmed(), "340");
    EXPECT_EQ(kit.widget<QTabWidget>("SSTab1").currentIndex(), 3);
    EXPECT_TRUE(fs::exists(kit.drive() / "logs/allja_sample_hjn.csv"));
    EXPECT_TRUE(fs::exists(kit.drive() / "logs/allja_sample_cjn.csv"));

    int lines = 0;
    kit.on_dialog([&lines](QDialog& dialog) {
        lines = dialog.findChild<QListView*>("List1")->model()->rowCount();
        dialog.findChild<QAction*>("mnuOK")->trigger();
    });
    kit.widget<QPushButton>("cmdDisp_Hamlog").click();
    EXPECT_EQ(lines, 340);
}

TEST_F(DesktopScreen, FailureInARunEndsInTheReportAndTheProgram) {
    kit.choose(kit.drive() / "logs/allja_sample.all");
    kit.widget<QAction>("mnuOpen").trigger();
    fs::remove(kit.drive() / "logs/allja_sample.all");
    std::vector<std::string> texts;
    for (int box = 0; box < 2; ++box) {
        kit.on_dialog([&texts](QDialog& dialog) {
            texts.push_back(dynamic_cast<QMessageBox&>(dialog).text().toStdString());
            dialog.accept();
        });
    }
    kit.widget<QPushButton>("cmdStart").click();
    ASSERT_THAT(texts, testing::SizeIs(2));
    EXPECT_THAT(texts[0], testing::HasSubstr("エラー発生 ：　53"));
    EXPECT_EQ(kit.program().ended(), ProgramEnd::Cause::reported);
}

TEST_F(DesktopScreen, ClosingTheWindowEndsTheProgramInOrder) {
    kit.window().close();
    EXPECT_EQ(kit.program().ended(), ProgramEnd::Cause::orderly);
}

// A log that is dropped goes the way of its menu entry.
TEST_F(DesktopScreen, LogDroppedOnTheWindowIsOpened) {
    for (const char* const log : {"allja_sample.all", "zlo_sample.zlo", "n1mm_sample.adi"}) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(kit.log(log).string()))});
        const QPoint place(20, 100);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&kit.window(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&kit.window(), &drop);
        QApplication::processEvents();  // the log is opened when the drop is over
        EXPECT_THAT(kit.text("lblIn_name"), testing::EndsWith(log));
    }
}

TEST_F(DesktopScreen, OnlyOneFileOfThisComputerCanBeDropped) {
    const auto local = [](const fs::path& path) {
        return QUrl::fromLocalFile(QString::fromStdString(path.string()));
    };
    QMimeData two;
    two.setUrls({local(kit.log("allja_sample.all")), local(kit.log("zlo_sample.zlo"))});
    QMimeData folder;
    folder.setUrls({local(kit.drive() / "logs")});
    QMimeData gone;
    gone.setUrls({local(kit.log("gone.all"))});
    QMimeData far;
    far.setUrls({QUrl("https://example.com/a.all")});
    QMimeData text;
    text.setText("a.all");
    for (const QMimeData* const data : {&two, &folder, &gone, &far, &text}) {
        QDragEnterEvent enter(QPoint(20, 100), Qt::CopyAction, data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&kit.window(), &enter);
        EXPECT_FALSE(enter.isAccepted());
    }
}

TEST_F(DesktopScreen, NothingIsDroppedBehindADialog) {
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(QString::fromStdString(kit.log("allja_sample.all").string()))});
    bool accepted = true;
    kit.on_dialog([&](QDialog& dialog) {
        QDragEnterEvent enter(QPoint(20, 100), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&kit.window(), &enter);
        accepted = enter.isAccepted();
        dialog.reject();
    });
    kit.widget<QPushButton>("cmdDate").click();
    EXPECT_FALSE(accepted);
}

TEST_F(DesktopScreen, ArrowKeysGoAlongAGroupOfOptions) {
    auto& first = kit.widget<QRadioButton>("Option08(0)");
    kit.bring_to_front(first);
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Right);
    EXPECT_EQ(kit.screen().Option08.index, 1);
    EXPECT_TRUE(kit.widget<QRadioButton>("Option08(1)").isChecked());
    EXPECT_FALSE(first.isChecked());
}

TEST_F(DesktopScreen, LogOpenedBeforeIsOpenedAgainFromTheMenu) {
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    kit.open("mnuOpen_z", kit.log("zlo_sample.zlo"));
    auto& recent = kit.widget<QAction>("mnuRecent(1)");
    EXPECT_TRUE(recent.isVisible());
    EXPECT_THAT(recent.text().toStdString(), testing::EndsWith("allja_sample.all"));
    recent.trigger();
    EXPECT_THAT(kit.text("lblIn_name"), testing::EndsWith("allja_sample.all"));
}

TEST_F(DesktopScreen, WindowCannotBeClosedInTheMidstOfARun) {
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    auto& bar = kit.widget<QProgressBar>("ProgressBar1");
    bool tried = false;
    QObject::connect(&bar, &QProgressBar::valueChanged, [&] {
        if (!tried) {
            tried = true;
            EXPECT_FALSE(kit.window().close());
        }
    });
    kit.widget<QPushButton>("cmdStart").click();
    EXPECT_TRUE(tried);
    EXPECT_EQ(kit.text("lblCFG"), "処 理 終 了");
    EXPECT_FALSE(kit.program().ended());
}

TEST_F(DesktopScreen, LongTextOpensAtOnce) {
    const fs::path log = kit.drive() / "logs/long.all";
    {
        std::ofstream file(log);
        file << "zLog for Windows \r\n";
        for (int line = 0; line < 400000; ++line) {
            file << std::string(250, 'x') << "\r\n";
        }
    }
    kit.choose(log);
    kit.widget<QAction>("mnuOpen").trigger();
    QElapsedTimer time;
    time.start();
    qint64 taken = 0;
    kit.on_dialog([&](QDialog& dialog) {
        taken = time.elapsed();
        EXPECT_EQ(dialog.findChild<QListView*>("List1")->model()->rowCount(), 400001);
        dialog.findChild<QAction*>("mnuOK")->trigger();
    });
    kit.widget<QAction>("入力ﾌｧｲﾙ").trigger();
    EXPECT_LT(taken, 5000) << "milliseconds for 100 MB";
}

}  // namespace
}  // namespace veldrana
