// Runs every golden case: a folder in, a folder out. Cases are found by themselves; README.md tells
// how one looks. Where one differs, what the run left stays in build/golden/<case>.
#include <algorithm>
#include <array>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <iomanip>
#include <set>
#include <sstream>
#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/batch_process.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;

const fs::path cases_folder = fs::path(VELDRANA_SOURCE_DIR) / "tests/golden/cases";
// What lies in the program's folder unless a case brings its own: the files of a station that has
// everything set and has started before, with the options of a first start.
const fs::path program_folder = fs::path(VELDRANA_SOURCE_DIR) / "tests/golden/veldrana";

struct GoldenCase {
    std::string purpose;
    std::vector<std::string> settings;
    std::string log;
    std::string kind;     // of the log; empty: as its name and content say
    std::string contest;  // to be picked in the contest dialog; empty: none
    // When files were last written: path, local time.
    std::vector<std::pair<std::string, std::string>> times;
    int status = 0;
};

GoldenCase read_case(const fs::path& folder) {
    GoldenCase read;
    std::ifstream file(folder / "case.txt");
    for (std::string line; std::getline(file, line);) {
        const std::size_t colon = line.find(": ");
        if (colon == std::string::npos) {
            continue;
        }
        const std::string key = line.substr(0, colon);
        const std::string value = line.substr(colon + 2);
        if (key == "purpose") {
            read.purpose = value;
        } else if (key == "set") {
            read.settings.push_back(value);
        } else if (key == "log") {
            read.log = value;
        } else if (key == "kind") {
            read.kind = value;
        } else if (key == "contest") {
            read.contest = value;
        } else if (key == "time") {
            const std::size_t date = value.size() - std::string("yyyy-mm-dd hh:mm:ss").size();
            read.times.emplace_back(value.substr(0, date - 1), value.substr(date));
        } else if (key == "status") {
            read.status = std::stoi(value);
        } else {
            ADD_FAILURE() << "case.txt has a line of no meaning: " << line;
        }
    }
    return read;
}

void set_time(const fs::path& file, const std::string& local_time) {
    std::tm time{};
    std::istringstream(local_time) >> std::get_time(&time, "%Y-%m-%d %H:%M:%S");
    time.tm_isdst = -1;
    const std::array<timespec, 2> times{
        {{.tv_sec = 0, .tv_nsec = UTIME_OMIT}, {.tv_sec = std::mktime(&time), .tv_nsec = 0}}};
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times.data(), 0), 0) << file;
}

std::vector<std::string> case_names() {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(cases_folder)) {
        if (fs::exists(entry.path() / "case.txt")) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::set<std::string> files_in(const fs::path& folder) {
    std::set<std::string> names;
    if (fs::exists(folder)) {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            if (entry.is_regular_file()) {
                names.insert(entry.path().filename().string());
            }
        }
    }
    return names;
}

// Where two files part, with the bytes around it.
std::string first_difference(const std::string& expected, const std::string& actual) {
    const std::size_t shared = std::min(expected.size(), actual.size());
    std::size_t at = 0;
    while (at < shared && expected[at] == actual[at]) {
        ++at;
    }
    if (at == expected.size() && at == actual.size()) {
        return {};
    }
    std::ostringstream text;
    const auto show = [&](const char* title, const std::string& bytes) {
        text << title << std::hex;
        for (std::size_t i = at < 8 ? 0 : at - 8; i < std::min(at + 16, bytes.size()); ++i) {
            text << ' ' << static_cast<int>(static_cast<unsigned char>(bytes[i]));
        }
        text << std::dec << " (" << bytes.size() << " bytes in all)\n";
    };
    text << "differs at byte " << at + 1 << '\n';
    show("expected:", expected);
    show("actual:  ", actual);
    return text.str();
}

void compare_folder(const fs::path& expected, const fs::path& actual) {
    EXPECT_EQ(files_in(expected), files_in(actual)) << "files in " << actual;
    for (const std::string& name : files_in(expected)) {
        if (fs::exists(actual / name)) {
            EXPECT_EQ(first_difference(read_bytes(expected / name), read_bytes(actual / name)), "")
                << actual / name;
        }
    }
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, EndsAsExpected) {
    const fs::path folder = cases_folder / GetParam();
    const GoldenCase golden = read_case(folder);
    ASSERT_FALSE(golden.purpose.empty());
    ASSERT_FALSE(golden.log.empty());

    const ScratchFolder scratch;
    const fs::path drive = scratch.path() / "drive";
    fs::copy(folder / "input", drive, fs::copy_options::recursive);
    fs::copy(program_folder, drive / "veldrana",
             fs::copy_options::recursive | fs::copy_options::skip_existing);
    for (const auto& [file, time] : golden.times) {
        set_time(drive / file, time);
    }
    std::vector<std::string> arguments{"--drive", "C=" + drive.string(), "--home",
                                       (drive / "veldrana").string(), "--keep-work"};
    for (const std::string& setting : golden.settings) {
        arguments.insert(arguments.end(), {"--set", setting});
    }
    arguments.insert(arguments.end(), {"convert", (drive / golden.log).string()});
    if (!golden.kind.empty()) {
        arguments.insert(arguments.end(), {"--kind", golden.kind});
    }
    if (!golden.contest.empty()) {
        arguments.insert(arguments.end(), {"--contest", golden.contest});
    }

    const ProcessResult run = run_batch(arguments);

    EXPECT_EQ(run.status, golden.status) << run.messages;
    if (fs::exists(folder / "counters.txt")) {
        EXPECT_EQ(run.results, read_bytes(folder / "counters.txt"));
    } else {
        EXPECT_NE(golden.status, 0) << "a run that ends well has counters.txt";
    }
    std::size_t folders = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder / "expected")) {
        if (entry.is_directory() && !files_in(entry.path()).empty()) {
            compare_folder(entry.path(), drive / fs::relative(entry.path(), folder / "expected"));
            ++folders;
        }
    }
    EXPECT_GT(folders, 0U) << "nothing to compare";
    if (HasFailure()) {
        const fs::path kept = fs::path(VELDRANA_SOURCE_DIR) / "build/golden" / GetParam();
        fs::remove_all(kept);
        fs::create_directories(kept.parent_path());
        fs::copy(drive, kept, fs::copy_options::recursive);
    }
}

std::string test_name(const testing::TestParamInfo<std::string>& golden) {
    std::string name = golden.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, testing::ValuesIn(case_names()), test_name);

TEST(GoldenRunner, ShowsWhereFilesPart) {
    EXPECT_EQ(first_difference("same", "same"), "");
    EXPECT_THAT(first_difference("abcd", "abXd"), testing::StartsWith("differs at byte 3\n"));
    EXPECT_THAT(first_difference("ab", "abc"), testing::StartsWith("differs at byte 3\n"));
}

}  // namespace
}  // namespace veldrana
