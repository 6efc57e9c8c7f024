// Programs that are started, with real scripts in a scratch folder.
#include "platform/process_starter.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/failure_of.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class ProcessStarterTest : public testing::Test {
  protected:
    fs::path put_script(const std::string& name, const std::string& body, int mode = 0755) {
        const fs::path file = scratch.path() / name;
        write_bytes(file, "#!/bin/sh\n" + body);
        chmod(file.c_str(), static_cast<mode_t>(mode));
        return file;
    }

    // Waits until a file stands there, as a script makes it by renaming; the machine may be slow.
    bool comes(const fs::path& file) {
        for (int i = 0; i < 3000 && !fs::exists(file); ++i) {
            std::this_thread::sleep_for(10ms);
        }
        return fs::exists(file);
    }

    ScratchFolder scratch;
    HostDisk disk{{{'C', scratch.path()}}, scratch.path()};
    HostProcessStarter starter{disk};
};

TEST_F(ProcessStarterTest, ProgramRunsInItsOwnFolder) {
    put_script("bin/tool.exe", "pwd -P > told.tmp\nmv told.tmp told\n");
    starter.start("C:\\bin\\tool.exe");
    const fs::path told = scratch.path() / "bin" / "told";
    ASSERT_TRUE(comes(told));
    EXPECT_EQ(read_bytes(told), fs::canonical(scratch.path() / "bin").string() + "\n");
}

// What is read from nothing ends at once; what is written stands among the messages.
TEST_F(ProcessStarterTest, ProgramSharesNeitherInputNorResults) {
    put_script("tool.exe", "cat > read\necho from the tool\nmv read told\n");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    starter.start("C:\\tool.exe");
    const bool came = comes(scratch.path() / "told");
    const std::string results = testing::internal::GetCapturedStdout();
    const std::string messages = testing::internal::GetCapturedStderr();
    ASSERT_TRUE(came);
    EXPECT_EQ(read_bytes(scratch.path() / "told"), "");
    EXPECT_EQ(results, "");
    EXPECT_EQ(messages, "from the tool\n");
}

TEST_F(ProcessStarterTest, NameIsFoundInEitherCase) {
    put_script("bin/Tool.exe", ": > told\n");
    starter.start("c:\\BIN\\tool.EXE");
    EXPECT_TRUE(comes(scratch.path() / "bin" / "told"));
}

TEST_F(ProcessStarterTest, FolderMayHaveBlanksAndJapanese) {
    put_script("my 表/tool.exe", ": > told\n");
    starter.start("C:\\my 表\\tool.exe");
    EXPECT_TRUE(comes(scratch.path() / "my 表" / "told"));
}

// It waits for a file that is only there once the start has come back.
TEST_F(ProcessStarterTest, ProgramIsNotWaitedFor) {
    put_script("tool.exe",
               "i=0\nwhile [ ! -e go ] && [ $i -lt 600 ]; do sleep 0.05; i=$((i+1)); done\n"
               "[ -e go ] && : > told\n");
    starter.start("C:\\tool.exe");
    EXPECT_FALSE(fs::exists(scratch.path() / "told"));
    write_bytes(scratch.path() / "go", "");
    EXPECT_TRUE(comes(scratch.path() / "told"));
}

TEST_F(ProcessStarterTest, ProgramHasNoArguments) {
    put_script("tool.exe", "echo $# > told.tmp\nmv told.tmp told\n");
    starter.start("C:\\tool.exe");
    ASSERT_TRUE(comes(scratch.path() / "told"));
    EXPECT_EQ(read_bytes(scratch.path() / "told"), "0\n");
}

TEST_F(ProcessStarterTest, ProgramThatFailsIsNobodysConcern) {
    put_script("tool.exe", ": > told\nexit 3\n");
    starter.start("C:\\tool.exe");
    ASSERT_TRUE(comes(scratch.path() / "told"));
    fs::remove(scratch.path() / "told");
    starter.start("C:\\tool.exe");
    EXPECT_TRUE(comes(scratch.path() / "told"));
}

TEST_F(ProcessStarterTest, MissingProgramIs53) {
    EXPECT_EQ(failure_of([&] { starter.start("C:\\tool.exe"); }), 53);
}

TEST_F(ProcessStarterTest, MissingFolderIs53Or76) {
    EXPECT_THAT(failure_of([&] { starter.start("C:\\none\\tool.exe"); }), testing::AnyOf(53, 76));
}

TEST_F(ProcessStarterTest, ProgramThatMayNotBeRunIs70) {
    put_script("tool.exe", ": > told\n", 0644);
    EXPECT_EQ(failure_of([&] { starter.start("C:\\tool.exe"); }), 70);
    EXPECT_FALSE(fs::exists(scratch.path() / "told"));
}

TEST_F(ProcessStarterTest, FolderInPlaceOfAProgramIs70) {
    fs::create_directories(scratch.path() / "tool.exe");
    EXPECT_EQ(failure_of([&] { starter.start("C:\\tool.exe"); }), 70);
}

TEST_F(ProcessStarterTest, FileThatIsNoProgramIs5) {
    write_bytes(scratch.path() / "tool.exe", std::string("MZ\0\x01\x02", 5));
    chmod((scratch.path() / "tool.exe").c_str(), 0755);
    EXPECT_EQ(failure_of([&] { starter.start("C:\\tool.exe"); }), 5);
}

TEST_F(ProcessStarterTest, SleepLetsAtLeastThatMuchTimePass) {
    const auto before = std::chrono::steady_clock::now();
    starter.sleep(30ms);
    EXPECT_GE(std::chrono::steady_clock::now() - before, 30ms);
}

}  // namespace
}  // namespace veldrana
