// The desktop program on a copy of the sample folder: its window, its dialogs and a run.
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QToolBar>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/program_end.h"
#include "screens/desktop.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;

const fs::path samples = fs::path(VELDRANA_SOURCE_DIR) / "samples";

class DesktopScreen : public testing::Test {
  protected:
    DesktopScreen() {
        fs::copy(samples, drive_, fs::copy_options::recursive);
        // A start through the environment dialog leaves a file in the current folder.
        QDir::setCurrent(QString::fromStdString(scratch_.path().string()));
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look_for_dialog(); });
        // The first start makes the files of the settings and asks for the environment, which is
        // there: its dialog is saved and left.
        on_dialog([](QDialog& dialog) {
            dialog.findChild<QPushButton*>("cmdSave")->click();
            dialog.findChild<QPushButton*>("cmdOK")->click();
        });
        // The hint that name masters are there.
        on_dialog([](QDialog& dialog) { dialog.accept(); });
        desktop_.emplace(drive_ / "veldrana", std::map<char, fs::path>{{'C', drive_}});
        started_ = desktop_->start();
        QApplication::processEvents();
    }

    // What is done with the next dialogs, one after the other, as they come up.
    void on_dialog(std::function<void(QDialog&)> act) {
        acts_.push_back(std::move(act));
        timer_.start(20);
    }

    void look_for_dialog() {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == acted_on_) {
            return;
        }
        if (acts_.empty()) {
            ADD_FAILURE() << "a dialog that nobody waits for: "
                          << dialog->windowTitle().toStdString();
            dialog->reject();
            return;
        }
        acted_on_ = dialog;
        const auto act = acts_.front();
        acts_.erase(acts_.begin());
        act(*dialog);
        acted_on_ = nullptr;
    }

    void choose(const fs::path& file) {
        on_dialog([file](QDialog& dialog) {
            auto& files = dynamic_cast<QFileDialog&>(dialog);
            files.selectFile(QString::fromStdString(file.string()));
            files.findChild<QLineEdit*>("fileNameEdit")
                ->setText(QString::fromStdString(file.string()));
            QMetaObject::invokeMethod(&files, "accept");
        });
    }

    template <class Widget>
    Widget& widget(const char* name) {
        auto* const found = desktop_->window()->findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    MainScreen& screen() { return desktop_->program().screen; }

    ScratchFolder scratch_;
    const fs::path drive_ = scratch_.path() / "c";
    std::vector<std::function<void(QDialog&)>> acts_;
    QDialog* acted_on_ = nullptr;
    QTimer timer_;
    std::optional<Desktop> desktop_;
    bool started_ = false;
};

TEST_F(DesktopScreen, FirstStartComesThroughTheEnvironmentDialogToTheMainWindow) {
    ASSERT_TRUE(started_);
    EXPECT_TRUE(desktop_->window()->isVisible());
    EXPECT_TRUE(acts_.empty());
    EXPECT_THAT(desktop_->window()->windowTitle().toStdString(), testing::HasSubstr("ver 5.30"));
}

TEST_F(DesktopScreen, EveryControlHasItsWidget) {
    ASSERT_TRUE(started_);
    std::vector<std::string> missing;
    for (const Control* const control : screen().controls()) {
        const QString name = to_qt(control->name());
        const bool is_window = control == &screen().window;
        // A group stands in its buttons, a box of widgets in what it frames.
        const bool grouped = dynamic_cast<const OptionGroup*>(control) != nullptr;
        const bool framed = dynamic_cast<const Frame*>(control) != nullptr;
        const QString sought = grouped ? name + "(0)" : name;
        if (!is_window && !framed && desktop_->window()->findChild<QObject*>(sought) == nullptr) {
            missing.push_back(control->name());
        }
    }
    EXPECT_THAT(missing, testing::IsEmpty());
}

TEST_F(DesktopScreen, ToolbarHasItsKeysInOrder) {
    ASSERT_TRUE(started_);
    std::vector<std::string> keys;
    for (const QAction* const action : widget<QToolBar>("Toolbar1").actions()) {
        keys.push_back(action->text().toStdString());
    }
    EXPECT_THAT(keys, testing::ElementsAre("開く", "開 z", "dat手動", "dat半自", "INI作成", "変換",
                                           "入力ﾌｧｲﾙ", "dat", "contestj_n", "hamlogja_n",
                                           "＊．ｄｕｐ", "終了"));
}

TEST_F(DesktopScreen, EntriesWhoseFormsAreNotThereAreDisabled) {
    ASSERT_TRUE(started_);
    for (const char* const name : {"mnuEdit_Rmks", "mnuDownLoad", "mnuMake_hl_code_mas"}) {
        EXPECT_FALSE(widget<QAction>(name).isEnabled()) << name;
    }
    EXPECT_TRUE(widget<QAction>("mnuOpen").isEnabled());
}

TEST_F(DesktopScreen, ClickOnAnOptionReachesTheProgram) {
    ASSERT_TRUE(started_);
    widget<QCheckBox>("Check06").click();
    EXPECT_TRUE(screen().Check06.value);
    widget<QRadioButton>("Option05(1)").click();
    EXPECT_EQ(screen().Option05.index, 1);
    EXPECT_TRUE(widget<QRadioButton>("Option09(1)").isEnabled());
    widget<QRadioButton>("Option05(0)").click();
    EXPECT_FALSE(widget<QRadioButton>("Option09(1)").isEnabled());
    widget<QLineEdit>("txtQSL_Q").setText("XY");
    EXPECT_EQ(widget<QLineEdit>("txtQSL_Q").text(), "X");
}

TEST_F(DesktopScreen, ItemDroppedOnASlotStandsThere) {
    ASSERT_TRUE(started_);
    auto& slot = widget<QLabel>("lblRmks1(2)");
    QMimeData data;
    data.setData("application/x-veldrana-item", "Rcvd");
    QDragEnterEvent enter(QPoint(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&slot, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&slot, &drop);
    EXPECT_EQ(slot.text(), "Rcvd");
    EXPECT_TRUE(screen().Command1[5].in_use);
}

TEST_F(DesktopScreen, LogIsChosenConvertedAndLookedAt) {
    ASSERT_TRUE(started_);
    const fs::path log = drive_ / "logs/allja_sample.all";
    choose(log);
    widget<QAction>("mnuOpen").trigger();
    EXPECT_THAT(widget<QLabel>("lblIn_name").text().toStdString(),
                testing::EndsWith("allja_sample.all"));
    ASSERT_TRUE(widget<QPushButton>("cmdStart").isEnabled());
    widget<QPushButton>("cmdStart").click();
    EXPECT_EQ(widget<QLabel>("lblCFG").text(), "処 理 終 了");
    EXPECT_EQ(widget<QTableWidget>("MSFlexGrid1").item(0, 1)->text().trimmed(), "340");
    EXPECT_EQ(widget<QTabWidget>("SSTab1").currentIndex(), 3);
    EXPECT_TRUE(fs::exists(drive_ / "logs/allja_sample_hjn.csv"));
    EXPECT_TRUE(fs::exists(drive_ / "logs/allja_sample_cjn.csv"));

    int lines = 0;
    on_dialog([&lines](QDialog& dialog) {
        lines = dialog.findChild<QListView*>("List1")->model()->rowCount();
        dialog.findChild<QAction*>("mnuOK")->trigger();
    });
    widget<QPushButton>("cmdDisp_Hamlog").click();
    EXPECT_EQ(lines, 340);
}

TEST_F(DesktopScreen, PeriodDialogOpensAndCloses) {
    ASSERT_TRUE(started_);
    on_dialog([](QDialog& dialog) { dialog.findChild<QPushButton*>("cmdOK")->click(); });
    widget<QPushButton>("cmdDate").click();
    EXPECT_TRUE(acts_.empty());
}

TEST_F(DesktopScreen, FailureInARunEndsInTheReportAndTheProgram) {
    ASSERT_TRUE(started_);
    choose(drive_ / "logs/allja_sample.all");
    widget<QAction>("mnuOpen").trigger();
    fs::remove(drive_ / "logs/allja_sample.all");
    std::vector<std::string> texts;
    for (int box = 0; box < 2; ++box) {
        on_dialog([&texts](QDialog& dialog) {
            texts.push_back(dynamic_cast<QMessageBox&>(dialog).text().toStdString());
            dialog.accept();
        });
    }
    widget<QPushButton>("cmdStart").click();
    ASSERT_THAT(texts, testing::SizeIs(2));
    EXPECT_THAT(texts[0], testing::HasSubstr("エラー発生 ：　53"));
    EXPECT_EQ(desktop_->program().ended(), ProgramEnd::Cause::reported);
}

TEST_F(DesktopScreen, ClosingTheWindowEndsTheProgramInOrder) {
    ASSERT_TRUE(started_);
    desktop_->window()->close();
    EXPECT_EQ(desktop_->program().ended(), ProgramEnd::Cause::orderly);
}

TEST_F(DesktopScreen, LongTextOpensAtOnce) {
    ASSERT_TRUE(started_);
    const fs::path log = drive_ / "logs/long.all";
    {
        std::ofstream file(log);
        file << "zLog for Windows \r\n";
        for (int line = 0; line < 400000; ++line) {
            file << std::string(250, 'x') << "\r\n";
        }
    }
    choose(log);
    widget<QAction>("mnuOpen").trigger();
    QElapsedTimer time;
    time.start();
    qint64 taken = 0;
    on_dialog([&](QDialog& dialog) {
        taken = time.elapsed();
        EXPECT_EQ(dialog.findChild<QListView*>("List1")->model()->rowCount(), 400001);
        dialog.findChild<QAction*>("mnuOK")->trigger();
    });
    widget<QAction>("mnuDisp_in").trigger();
    EXPECT_LT(taken, 5000) << "milliseconds for 100 MB";
}

}  // namespace
}  // namespace veldrana
