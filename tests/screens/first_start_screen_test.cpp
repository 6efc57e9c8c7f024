// From an empty folder to both result files: in the window, and with the built program.
#include <chrono>
#include <fstream>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QProgressBar>
#include <QTableWidget>
#include <QTest>

#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

const fs::path source = VELDRANA_SOURCE_DIR;
// The same run as a golden case.
const fs::path expected = source / "tests/golden/cases/sample-allja/expected/log";

// Leaves what an installation lays beside the program, no settings.
void empty(const fs::path& home) {
    fs::remove(home / "Veldrana_cfg.ini");
}

struct Typed {
    const char* name;
    const char* text;  // of a station whose folders lie in drive C:
};
const Typed environment[] = {
    {"txtZlog_dat", "C:\\zlog\\"},
    {"txtName_mas", "C:\\mas\\"},
    {"txtQth_mas", "C:\\mas\\qth_mas.txt"},
    {"txtYubin_mas", "C:\\yubin\\"},
    {"txtHamlog_hdb", "C:\\hamlog\\Hamlog.hdb"},
    {"txtHamlog_hdb_2", "C:\\hamlog\\Hamlog.hdb"},
    {"txtZloDir", "C:\\logs\\"},
    {"txtAllDir", "C:\\logs\\"},
    {"txtMyCalls", "ja1zzz"},
    {"txtPassWords", "sample"},
};

class EmptyFolder : public testing::Test {
  protected:
    EmptyFolder() { empty(kit.home()); }
    DesktopKit kit;
};

TEST_F(EmptyFolder, LeadsToBothResultFilesInTheWindow) {
    kit.on_dialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmConfig");
        EXPECT_FALSE(DesktopKit::part<QPushButton>(dialog, "cmdOK").isEnabled());
        for (const Typed& one : environment) {
            DesktopKit::part<QLineEdit>(dialog, one.name).setText(one.text);
        }
        DesktopKit::part<QPushButton>(dialog, "cmdSave").click();
        ASSERT_TRUE(DesktopKit::part<QPushButton>(dialog, "cmdOK").isEnabled());
        DesktopKit::part<QPushButton>(dialog, "cmdOK").click();
    });
    kit.accept_box();  // the hint that name masters are there
    ASSERT_TRUE(kit.start());

    kit.open("mnuOpen", kit.log("allja_sample.all"));
    EXPECT_EQ(kit.text("lblIn_name"), "C:\\logs\\allja_sample.all");
    kit.drag("Command1(0)", "lblRmks1(0)");
    kit.drag("Command1(5)", "lblRmks1(1)");
    kit.click("Option05(1)");
    kit.click("Option09(1)");
    kit.click("cmdStart");
    EXPECT_EQ(kit.text("lblCFG"), "処 理 終 了");

    const auto& grid = kit.widget<QTableWidget>("MSFlexGrid1");
    EXPECT_TRUE(grid.isVisible());
    EXPECT_EQ(grid.item(0, 0)->text(), " 今 回 の処理数");
    EXPECT_EQ(grid.item(0, 1)->text().trimmed(), "340");
    EXPECT_EQ(grid.item(0, 2)->text(), "件");
    for (const char* const result : {"allja_sample_hjn.csv", "allja_sample_cjn.csv"}) {
        EXPECT_EQ(read_bytes(kit.log(result)), read_bytes(expected / result)) << result;
    }
}

// --- the built program ---

// Runs a copy of the built program that lies in the folder, with a person who does the steps. What
// it says on standard error; its exit status must be 0.
class BuiltProgram : public EmptyFolder {
  protected:
    BuiltProgram() {
        std::error_code no_link;
        fs::create_hard_link(VELDRANA_PROGRAM, kit.home() / "veldrana", no_link);
        if (no_link) {
            fs::copy_file(VELDRANA_PROGRAM, kit.home() / "veldrana");
        }
    }

    // Drive Z: is the host's whole tree.
    std::string on_z(const fs::path& file) const {
        std::string path = "Z:" + file.string();
        std::replace(path.begin(), path.end(), '/', '\\');
        return path;
    }

    void run(const std::string& steps) {
        write_bytes(kit.drive() / "steps", steps);
        QProcess program;
        QProcessEnvironment words = QProcessEnvironment::systemEnvironment();
        words.insert("QT_PLUGIN_PATH", VELDRANA_PLUGINS);
        words.insert("QT_QPA_GENERIC_PLUGINS", "veldrana_driver");
        words.insert("VELDRANA_STEPS", QString::fromStdString((kit.drive() / "steps").string()));
        words.insert("VELDRANA_STARTED",
                     QString::number(std::chrono::duration_cast<std::chrono::milliseconds>(
                                         std::chrono::steady_clock::now().time_since_epoch())
                                         .count()));
        program.setProcessEnvironment(words);
        program.setWorkingDirectory(QString::fromStdString(kit.drive().string()));
        program.start(QString::fromStdString((kit.home() / "veldrana").string()), {});
        ASSERT_TRUE(program.waitForFinished(60000)) << steps;
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    }

    // The steps of a first start.
    std::string first_start() const {
        std::string steps = "wait frmConfig\n";
        for (const Typed& one : environment) {
            std::string text = one.text;
            if (text.starts_with("C:")) {
                text = on_z(kit.drive()) + text.substr(2);
            }
            steps += std::string("type ") + one.name + " " + text + "\n";
        }
        return steps + "click cmdSave\nclick cmdOK\nanswer\nwait Toolbar1\n";
    }
};

TEST_F(BuiltProgram, FirstStartOnAnEmptyFolderToARunOnASampleLog) {
    const fs::path log = kit.log("allja_sample.all");
    run(first_start() + "press mnuOpen\nchoose " + log.string() +
        "\ntab SSTab1 1\nclick Option05(1)\nclick Option09(1)\nclick cmdStart\n"
        "expect lblCFG 処 理 終 了\nclose\n");
    // The remark slots are those of a first start, so the remarks differ from the golden run's.
    const std::string result = read_bytes(kit.log("allja_sample_hjn.csv"));
    EXPECT_EQ(std::count(result.begin(), result.end(), '\n'), 340);
    EXPECT_TRUE(fs::exists(kit.log("allja_sample_cjn.csv")));
    EXPECT_TRUE(fs::exists(kit.home() / "Veldrana.ini"));
    EXPECT_THAT(read_bytes(kit.home() / "Veldrana_posi.ini"), HasSubstr("[Position_Veldrana]"));
    EXPECT_EQ(read_bytes(log), read_bytes(source / "samples/logs/allja_sample.all"));
}

TEST_F(BuiltProgram, SecondStartGoesStraightToTheMainWindow) {
    run(first_start() + "close\n");
    run("answer\nwait Toolbar1\nclose\n");
}

TEST_F(BuiltProgram, WindowIsUpWithinASecond) {
    run(first_start() + "close\n");
    const fs::path told = kit.drive() / "up";
    // The hint that name masters are there comes first; it is answered at once.
    run("answer\nwait Toolbar1\nup " + told.string() + "\nclose\n");
    const int taken = std::stoi("0" + read_bytes(told));
    EXPECT_GT(taken, 0);
#ifdef __SANITIZE_ADDRESS__
    constexpr int longest = 5000;  // the sanitizers' own start
#else
    constexpr int longest = 1000;
#endif
    EXPECT_LT(taken, longest) << "milliseconds";
    RecordProperty("milliseconds", taken);
}

// --- a run of 5,000 contacts ---

class LongRun : public DesktopTest {
  protected:
    // The sample log over and over.
    fs::path make_log(int contacts) {
        std::ifstream sample(kit.log("allja_sample.all"), std::ios::binary);
        std::string heading;
        std::getline(sample, heading);
        std::vector<std::string> lines;
        for (std::string line; std::getline(sample, line);) {
            lines.push_back(line);
        }
        const fs::path log = kit.log("long.all");
        std::ofstream file(log, std::ios::binary);
        file << heading << '\n';
        for (int i = 0; i < contacts; ++i) {
            file << lines[static_cast<std::size_t>(i) % lines.size()] << '\n';
        }
        return log;
    }
};

TEST_F(LongRun, ProgressBarMovesFromEndToEndInEveryStage) {
    kit.open("mnuOpen", make_log(5000));
    auto& bar = kit.widget<QProgressBar>("ProgressBar1");
    EXPECT_FALSE(bar.isVisible());
    std::vector<int> values;
    bool seen_always = true;
    QObject::connect(&bar, &QProgressBar::valueChanged, [&](int value) {
        values.push_back(value);
        seen_always = seen_always && bar.isVisible();
    });
    kit.click("cmdStart");
    EXPECT_EQ(kit.text("lblCFG"), "処 理 終 了");
    EXPECT_TRUE(seen_always);
    EXPECT_FALSE(bar.isVisible());

    // Each stage begins anew, and goes up in steps of its own.
    const auto begins_anew = [&values](std::size_t i) { return values[i] < values[i - 1]; };
    int stages = 0;
    for (std::size_t i = 1; i < values.size(); ++i) {
        stages += begins_anew(i) ? 1 : 0;
    }
    EXPECT_GE(stages, 4);
    EXPECT_GE(values.size(), 2000U);
    EXPECT_GE(*std::max_element(values.begin(), values.end()), bar.maximum() * 9 / 10);
}

TEST_F(LongRun, BarIsDrawnWhileTheRunGoesOn) {
    kit.open("mnuOpen", make_log(60000));
    auto& bar = kit.widget<QProgressBar>("ProgressBar1");
    class Drawn : public QObject {
      public:
        std::vector<int> values;
        bool eventFilter(QObject* drawn, QEvent* event) override {
            if (event->type() == QEvent::Paint) {
                values.push_back(qobject_cast<QProgressBar*>(drawn)->value());
            }
            return false;
        }
    } drawn;
    bar.installEventFilter(&drawn);
    kit.click("cmdStart");
    bar.removeEventFilter(&drawn);
    EXPECT_EQ(kit.text("lblCFG"), "処 理 終 了");
    std::sort(drawn.values.begin(), drawn.values.end());
    const auto different = std::unique(drawn.values.begin(), drawn.values.end());
    EXPECT_GE(different - drawn.values.begin(), 3);
}

TEST_F(LongRun, SecondPressDuringARunStartsNoSecondRun) {
    kit.open("mnuOpen", make_log(5000));
    auto& bar = kit.widget<QProgressBar>("ProgressBar1");
    auto& start = kit.widget<QPushButton>("cmdStart");
    int runs = 0;
    bool pressed = false;
    QObject::connect(&bar, &QProgressBar::valueChanged, [&] {
        if (!pressed) {
            pressed = true;
            QTest::mouseClick(kit.window().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              start.mapTo(&kit.window(), start.rect().center()));
        }
    });
    QObject::connect(&start, &QPushButton::clicked, [&runs] { ++runs; });
    kit.click("cmdStart");
    QApplication::processEvents();
    EXPECT_TRUE(pressed);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(kit.text("lblCFG"), "処 理 終 了");
}

}  // namespace
}  // namespace veldrana
