// The way of a Ctestwin log with a converter beside the program: a real one on the host's disk, and
// scripted ones for what may go wrong.
#include <chrono>
#include <filesystem>
#include <sys/stat.h>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/host_disk.h"
#include "platform/process_starter.h"
#include "readers/ctestwin.h"
#include "tests/app/other_logs.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// --- a converter of the host ---

// Reads the log's path from its ini, writes the count of the log's lines there, and the text.
constexpr std::string_view converter = R"(#!/bin/sh
ini=lg8bridge.ini
in_name=$(sed -n 's/^lg8bridge_in_name=//p' "$ini" | tr -d '\r')
host=$(printf '%s' "$in_name" | sed -e 's|^C:|ROOT|' -e 's|\\|/|g')
count=$(wc -l < "$host" | tr -d ' ')
{
    printf 'zLog for Windows \r\n'
    while read -r call; do
        printf '2025/04/26 21:05 %-13s599 11M     589 104M    -     -     7    CW   1  \r\n' "$call"
    done < "$host"
} > result.tmp
printf '[lg8bridge.ini]\r\nlg8bridge_in_name=%s\r\nqso_su_str=%s\r\n' "$in_name" "$count" > ini.tmp
mv ini.tmp "$ini"
mv result.tmp "${host%.*}_lg8bridge.all"
: > done
)";

// Gives a program more time than it is owed, until it says that it is done: the machine may be
// slow.
class PatientStarter : public HostProcessStarter {
  public:
    PatientStarter(const HostDisk& disk, fs::path done)
        : HostProcessStarter(disk), done_(std::move(done)) {}

    void sleep(std::chrono::milliseconds time) override {
        HostProcessStarter::sleep(time);
        for (int i = 0; i < 3000 && !fs::exists(done_); ++i) {
            std::this_thread::sleep_for(10ms);
        }
    }

  private:
    fs::path done_;
};

// A program on the host's disk, whose drive C: is a scratch folder.
class CtestwinBridge : public testing::Test {
  protected:
    CtestwinBridge() {
        write_bytes(home / "mas_mst" / "contest_name.csv", to_code_page(ready_contest_list));
        program.emplace(Ports{disk, clock, person, sorter, services, log_book, processes},
                        "C:\\veldrana", "C:\\WINDOWS");
        SettingsStore options(disk, clock, program->paths.strPath);
        options.set_default_options();
        options.write_Veldrana_new_ini();
        write_bytes(home / "Veldrana_cfg.ini", to_code_page(ready_environment));
        write_bytes(log, "JA1ZZA\nJR8YYX/1\nJE1ZZB\n");
        program->event([this] { Main(*program); });
        person.boxes.clear();
    }

    void install(std::string_view script, mode_t mode = 0755) {
        write_bytes(home / "lg8bridge.exe",
                    replace_all(std::string(script), "ROOT", scratch.path().string()));
        chmod((home / "lg8bridge.exe").c_str(), mode);
    }
    void open() {
        person.files = {"C:\\log\\x.lg8"};
        program->screen.mnuOpen_Ctestwin_lg8.press();
    }
    ScratchFolder scratch;
    fs::path home = scratch.path() / "veldrana";
    fs::path log = scratch.path() / "log" / "x.lg8";
    fs::path result = scratch.path() / "log" / "x_lg8bridge.all";
    bool home_is_there = fs::create_directories(home);
    HostDisk disk{{{'C', scratch.path()}}, home};
    FixedClock clock;
    ScriptedPerson person;
    StableSort sorter{disk};
    ScriptedServices services;
    OwnHamlogLibrary log_book{disk};
    PatientStarter processes{disk, home / "done"};
    std::optional<Program> program;
};

TEST_F(CtestwinBridge, ConvertsTheLogThatTheIniNamesAndTellsItsCount) {
    install(converter);
    open();
    ASSERT_FALSE(program->ended()) << person.boxes.at(0).text;
    EXPECT_EQ(program->screen.lblIn_rec.caption.get(), "3 件");
    EXPECT_EQ(program->log.f_type, InputKind::lg8);
    EXPECT_EQ(program->log.in_name, "C:\\log\\x.lg8");
    EXPECT_THAT(read_bytes(result), HasSubstr("JR8YYX/1"));
}

TEST_F(CtestwinBridge, RunReadsWhatTheConverterHasMade) {
    install(converter);
    open();
    program->screen.cmdStart.press();
    ASSERT_FALSE(program->ended()) << person.boxes.at(0).text;
    const std::string rows = read_bytes(scratch.path() / "log" / "x_hjn.csv");
    EXPECT_THAT(rows,
                HasSubstr("\"JA1ZZA\",\"25/04/26\",\"21:05U\",\"599\",\"589\",\"7\",\"CW \""));
    EXPECT_THAT(rows, HasSubstr("\"JR8YYX/1\""));
    EXPECT_THAT(rows, HasSubstr("\"JE1ZZB\""));
    EXPECT_EQ(program->counters.values[0], 3U);
    EXPECT_EQ(read_bytes(log), "JA1ZZA\nJR8YYX/1\nJE1ZZB\n");
}

TEST_F(CtestwinBridge, MissingConverterEndsInTheReport) {
    open();
    EXPECT_EQ(program->ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(person.boxes, SizeIs(2));
    EXPECT_THAT(person.boxes[0].text, HasSubstr("エラー発生 ：　53"));
    // By then the log's path was there for it.
    EXPECT_THAT(read_bytes(home / "lg8bridge.ini"), HasSubstr("lg8bridge_in_name=C:\\log\\x.lg8"));
}

TEST_F(CtestwinBridge, ConverterThatMayNotBeRunEndsInTheReport) {
    install(converter, 0644);
    open();
    EXPECT_EQ(program->ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(person.boxes, SizeIs(2));
    EXPECT_THAT(person.boxes[0].text, HasSubstr("エラー発生 ：　70"));
}

// --- scripted converters ---

class ScriptedBridge : public testing::Test {
  protected:
    ScriptedBridge() {
        for (const char* const name : {"x.lg8", "Y.LG8", "x.all", "x"}) {
            kit.memory.put(std::string("C:\\log\\") + name, std::string(sample_lg8));
        }
        kit.start();
        kit.person.boxes.clear();
    }
    void open(std::string_view path = "C:\\log\\x.lg8") {
        kit.person.files = {std::string(path)};
        screen.mnuOpen_Ctestwin_lg8.press();
    }
    std::string key(std::string_view name) {
        return kit.stored("lg8bridge.ini", "lg8bridge.ini", name);
    }
    // What a converter does that writes both keys.
    void answers(const std::string& in_name, const std::string& count) {
        kit.processes.work = [=, this] {
            kit.put_text(ini, "[lg8bridge.ini]\r\nlg8bridge_in_name=" + in_name +
                                  "\r\nqso_su_str=" + count + "\r\n");
        };
    }

    static constexpr const char* ini = "C:\\veldrana\\lg8bridge.ini";
    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
};

TEST_F(ScriptedBridge, PathAndLastCountAreThereBeforeTheConverterStarts) {
    program.lg8_qso_count = "34";
    std::vector<std::string> seen;
    kit.processes.work = [&] { seen = {key("lg8bridge_in_name"), key("qso_su_str")}; };
    open();
    EXPECT_THAT(seen, ElementsAre("C:\\log\\x.lg8", "34"));
}

TEST_F(ScriptedBridge, CountOfTheConverterIsShownAndWrittenTheNextTime) {
    answers("C:\\log\\x.lg8", "128");
    open();
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "128 件");
    EXPECT_EQ(program.log.record_count, "128");
    kit.processes.work = nullptr;
    open("C:\\log\\Y.LG8");
    EXPECT_EQ(key("qso_su_str"), "128");
    EXPECT_EQ(key("lg8bridge_in_name"), "C:\\log\\Y.LG8");
}

TEST_F(ScriptedBridge, SlowConverterLeavesTheOldCount) {
    answers("C:\\log\\x.lg8", "128");
    open();
    kit.processes.work = nullptr;  // still at work when it is looked
    open("C:\\log\\Y.LG8");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "128 件");
    EXPECT_EQ(program.log.f_type, InputKind::lg8);
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_F(ScriptedBridge, ValuesOfTheConverterEndAtANul) {
    answers("C:\\log\\x.lg8", std::string("12\0x", 4));
    open();
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "12 件");
}

TEST_F(ScriptedBridge, ExtensionInCapitalsIsAccepted) {
    open("C:\\log\\Y.LG8");
    EXPECT_EQ(program.log.f_type, InputKind::lg8);
    EXPECT_EQ(program.log.in_name, "C:\\log\\Y.LG8");
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_THAT(kit.processes.started, SizeIs(1));
}

TEST_F(ScriptedBridge, WrongNameGivesTheBoxAndWritesNothing) {
    for (const char* const path : {"C:\\log\\x", "C:\\log\\x.all", "C:\\log\\xlg8"}) {
        kit.person.boxes.clear();
        open(path);
        ASSERT_THAT(kit.person.boxes, SizeIs(1));
        EXPECT_EQ(kit.person.boxes[0].text, "正しいファイル名を指定して下さい。");
        EXPECT_FALSE(kit.memory.file_exists(ini));
        EXPECT_THAT(kit.processes.started, IsEmpty());
        EXPECT_EQ(program.log.in_name, "");
        EXPECT_EQ(program.log.f_type, std::nullopt);
    }
}

// An empty answer ends in no ".lg8" either.
TEST_F(ScriptedBridge, NoAnswerIsAWrongNameToo) {
    open("");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_EQ(kit.person.boxes[0].text, "正しいファイル名を指定して下さい。");
    EXPECT_FALSE(kit.memory.file_exists(ini));
}

TEST_F(ScriptedBridge, WrongNameLeavesTheFormerLog) {
    open();
    open("C:\\log\\x.all");
    EXPECT_EQ(program.log.in_name, "C:\\log\\x.lg8");
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_F(ScriptedBridge, LogItselfIsNotTested) {
    kit.memory.put("C:\\log\\x.lg8", "");
    open();
    EXPECT_EQ(program.log.f_type, InputKind::lg8);
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_F(ScriptedBridge, TextThatIsNotYetThereEndsTheRunInTheReport) {
    open();
    screen.cmdStart.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　53"));
}

TEST_F(ScriptedBridge, TextThatComesLaterIsReadByTheRun) {
    open();
    kit.put_text("C:\\log\\x_lg8bridge.all", sample_all_log);
    screen.cmdStart.press();
    EXPECT_FALSE(program.ended());
    EXPECT_THAT(from_code_page(kit.memory.bytes("C:\\log\\x_hjn.csv")), HasSubstr("\"JA1ZZA\""));
}

TEST_F(ScriptedBridge, PointsInThePathStandButForTheExtension) {
    kit.memory.put("C:\\log.25\\a.b.lg8", std::string(sample_lg8));
    kit.put_text("C:\\log.25\\a.b_lg8bridge.all", sample_all_log);
    open("C:\\log.25\\a.b.lg8");
    screen.cmdStart.press();
    ASSERT_FALSE(program.ended()) << kit.person.boxes.at(0).text;
    EXPECT_TRUE(kit.memory.file_exists("C:\\log.25\\a.b_hjn.csv"));
}

}  // namespace
}  // namespace veldrana
