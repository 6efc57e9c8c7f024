// Starts the program on an empty folder of the host and compares what it leaves there, in name and
// content. first_start/make_expected.py tells where the expectations come from.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/program.h"
#include "app/start_up.h"
#include "platform/host_disk.h"
#include "tests/app/program_kit.h"
#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/scratch_folder.h"
#include "tests/doubles/scripted_person.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

const fs::path expectations = fs::path(VELDRANA_SOURCE_DIR) / "tests/golden/first_start";

std::map<std::string, std::string> files_in(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (!entry.is_directory()) {
            files[entry.path().filename().string()] = read_bytes(entry.path());
        }
    }
    return files;
}

std::vector<std::string> names_of(const std::map<std::string, std::string>& files) {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files) {
        names.push_back(name);
    }
    return names;
}

std::vector<std::string> folders_in(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.is_directory()) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> expected_folders() {
    std::vector<std::string> names;
    std::ifstream file(expectations / "expected_folders.txt");
    for (std::string name; std::getline(file, name);) {
        names.push_back(name);
    }
    return names;
}

class GoldenFirstStart : public testing::Test {
  protected:
    GoldenFirstStart() {
        fs::create_directories(home_);
        Program program(Ports{disk_, clock_, person_, sorter_, services_, log_book_, processes_},
                        "C:\\veldrana", "C:\\WINDOWS");
        program.event([&] { Main(program); });
        reached_ = program.start.reached;
    }

    ScratchFolder scratch_;
    const fs::path drive_ = scratch_.path() / "c";
    const fs::path home_ = drive_ / "veldrana";
    HostDisk disk_{{{'C', drive_}}, home_};
    FixedClock clock_;
    ScriptedPerson person_;
    StableSort sorter_{disk_};
    ScriptedServices services_;
    OwnHamlogLibrary log_book_{disk_};
    ScriptedProcesses processes_;
    Start::Reached reached_ = Start::nothing;
};

TEST_F(GoldenFirstStart, ComesToTheEnvironmentDialogWithoutAWord) {
    EXPECT_EQ(reached_, Start::environment_dialog);
    EXPECT_THAT(person_.boxes, IsEmpty());
}

TEST_F(GoldenFirstStart, LeavesTheExpectedFilesToTheByte) {
    const std::map<std::string, std::string> expected = files_in(expectations / "expected");
    const std::map<std::string, std::string> left = files_in(home_);
    ASSERT_THAT(expected, testing::Not(IsEmpty()));
    EXPECT_THAT(names_of(left), ElementsAreArray(names_of(expected)));
    for (const auto& [name, bytes] : expected) {
        if (left.contains(name)) {
            EXPECT_EQ(left.at(name), bytes) << name;
        }
    }
}

TEST_F(GoldenFirstStart, LeavesTheExpectedFolders) {
    const std::vector<std::string> expected = expected_folders();
    ASSERT_THAT(expected, testing::SizeIs(5));
    EXPECT_THAT(folders_in(home_), ElementsAreArray(expected));
}

TEST_F(GoldenFirstStart, LeavesTheTraceLogAndNothingElseInTheFolders) {
    for (const std::string& name : folders_in(home_)) {
        const std::vector<std::string> files = names_of(files_in(home_ / name));
        if (name == "Error_Log") {
            EXPECT_THAT(files, ElementsAre("20260504_130209.txt"));
        } else {
            EXPECT_THAT(files, IsEmpty()) << name;
        }
        EXPECT_THAT(folders_in(home_ / name), IsEmpty()) << name;
    }
}

TEST_F(GoldenFirstStart, LeavesNothingBesideTheProgramsFolder) {
    EXPECT_THAT(folders_in(drive_), ElementsAre("veldrana"));
    EXPECT_THAT(files_in(drive_), IsEmpty());
    EXPECT_THAT(folders_in(scratch_.path()), ElementsAre("c"));
}

}  // namespace
}  // namespace veldrana
