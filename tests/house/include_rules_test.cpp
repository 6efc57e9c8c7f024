// The rules of the house, read off the include lines: which room may use which, and that the
// toolkit stays behind its wall.
#include <algorithm>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

// From the ground up: a room may use itself and the rooms in front of it.
const std::vector<std::string> rooms{"common", "platform", "settings", "masters", "readers", "rows",
                                     "qsl",    "output",   "jarl",     "tools",   "viewers", "app"};
// The programs: both may use every room, neither the other, and no room uses them.
const std::vector<std::string> programs{"batch", "screens"};

// What the rooms may include in angle brackets: the standard library, and in platform the system
// and the libraries it stands on.
const std::set<std::string> standard_headers{"algorithm",     "any",
                                             "array",         "atomic",
                                             "bit",           "bitset",
                                             "cctype",        "cerrno",
                                             "charconv",      "chrono",
                                             "cmath",         "compare",
                                             "concepts",      "cstddef",
                                             "cstdint",       "cstdio",
                                             "cstdlib",       "cstring",
                                             "ctime",         "cwchar",
                                             "deque",         "exception",
                                             "filesystem",    "fstream",
                                             "functional",    "initializer_list",
                                             "iomanip",       "ios",
                                             "iosfwd",        "iostream",
                                             "istream",       "iterator",
                                             "limits",        "list",
                                             "locale",        "map",
                                             "memory",        "mutex",
                                             "new",           "numeric",
                                             "optional",      "ostream",
                                             "queue",         "random",
                                             "ranges",        "ratio",
                                             "regex",         "set",
                                             "span",          "sstream",
                                             "stack",         "stdexcept",
                                             "streambuf",     "string",
                                             "string_view",   "system_error",
                                             "thread",        "tuple",
                                             "type_traits",   "typeinfo",
                                             "unordered_map", "unordered_set",
                                             "utility",       "variant",
                                             "vector"};
const std::set<std::string> platform_headers{
    "iconv.h",   "windows.h",       "fcntl.h",    "unistd.h", "sys/stat.h", "curl/curl.h",
    "archive.h", "archive_entry.h", "shellapi.h", "spawn.h",  "sys/wait.h"};

struct Include {
    std::string name;
    bool in_quotes;
};

std::vector<Include> includes_of(const std::string& source) {
    static const std::regex line(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<Include> found;
    std::istringstream lines(source);
    for (std::string text; std::getline(lines, text);) {
        if (std::smatch match; std::regex_search(text, match, line)) {
            found.push_back({match[2], match[1] == "\""});
        }
    }
    return found;
}

std::ptrdiff_t floor_of(const std::string& room) {
    return std::find(rooms.begin(), rooms.end(), room) - rooms.begin();
}

bool is_room(const std::string& name) {
    return std::find(rooms.begin(), rooms.end(), name) != rooms.end();
}

bool is_program(const std::string& name) {
    return std::find(programs.begin(), programs.end(), name) != programs.end();
}

bool is_qt(const std::string& header) {
    return std::regex_search(header, std::regex("^Q[A-Zt]"));
}

// What is wrong with the includes of a file that lies in a room; empty if nothing is.
std::vector<std::string> faults_of(const std::string& room, const std::string& source) {
    std::vector<std::string> faults;
    for (const Include& include : includes_of(source)) {
        const std::string used = include.name.substr(0, include.name.find('/'));
        if (include.in_quotes) {
            const bool known = is_room(used) || is_program(used);
            const bool allowed =
                used == room || (is_program(room) && is_room(used)) ||
                (is_room(room) && is_room(used) && floor_of(used) < floor_of(room));
            if (!known) {
                faults.push_back("not written from src/: " + include.name);
            } else if (!allowed) {
                faults.push_back(room + " may not use " + include.name);
            }
        } else if (is_qt(include.name)) {
            if (room != "screens") {
                faults.push_back("the toolkit outside screens: " + include.name);
            }
        } else if (is_room(room) && !standard_headers.contains(include.name) &&
                   !(room == "platform" && platform_headers.contains(include.name))) {
            faults.push_back("beyond the standard library: " + include.name);
        }
    }
    return faults;
}

TEST(IncludeRules, AreKeptByEverySourceFile) {
    const fs::path source_root = fs::path(VELDRANA_SOURCE_DIR) / "src";
    std::size_t files = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(source_root)) {
        const fs::path file = entry.path();
        if (file.extension() != ".h" && file.extension() != ".cpp") {
            continue;
        }
        ++files;
        const std::string room = fs::relative(file, source_root).begin()->string();
        ASSERT_TRUE(is_room(room) || is_program(room)) << file << " lies in no room";
        EXPECT_THAT(faults_of(room, read_bytes(file)), IsEmpty()) << file;
    }
    EXPECT_GT(files, 40U) << "the sources were not found";
}

TEST(IncludeRules, ARoomMayUseItselfAndThoseBelow) {
    EXPECT_THAT(faults_of("rows",
                          "#include \"rows/a.h\"\n#include \"readers/b.h\"\n"
                          "#include \"common/c.h\"\n#include <string>\n"),
                IsEmpty());
    EXPECT_THAT(faults_of("batch", "#include \"app/a.h\"\n#include <CLI/CLI.hpp>\n"), IsEmpty());
}

TEST(IncludeRules, AnUpwardIncludeIsFound) {
    EXPECT_THAT(faults_of("common", "#include \"platform/disk.h\"\n"),
                ElementsAre("common may not use platform/disk.h"));
    EXPECT_THAT(faults_of("app", "  #  include \"screens/main.h\"\n"),
                ElementsAre("app may not use screens/main.h"));
    EXPECT_THAT(faults_of("screens", "#include \"batch/batch_run.h\"\n"),
                ElementsAre("screens may not use batch/batch_run.h"));
    EXPECT_THAT(faults_of("app", "#include \"../app/paths.h\"\n"),
                ElementsAre("not written from src/: ../app/paths.h"));
}

TEST(IncludeRules, TheToolkitIsFoundOutsideScreens) {
    for (const char* const header : {"QWidget", "QtWidgets/QLabel", "QString"}) {
        const std::string line = std::string("#include <") + header + ">\n";
        EXPECT_THAT(faults_of("app", line),
                    ElementsAre(std::string("the toolkit outside screens: ") + header));
        EXPECT_THAT(faults_of("batch", line), testing::SizeIs(1));
        EXPECT_THAT(faults_of("screens", line), IsEmpty());
    }
}

TEST(IncludeRules, AForeignLibraryIsFoundInARoom) {
    EXPECT_THAT(faults_of("readers", "#include <curl/curl.h>\n"),
                ElementsAre("beyond the standard library: curl/curl.h"));
    EXPECT_THAT(faults_of("platform", "#include <iconv.h>\n"), IsEmpty());
}

}  // namespace
}  // namespace veldrana
