// Logs as other programs wrote them, from a folder that is no part of the sources: the one that
// VELDRANA_REALDATA names, else shared/realdata beside the source folder. Without it these tests
// are skipped.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/batch_process.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

fs::path realdata_folder() {
    const char* const told = std::getenv("VELDRANA_REALDATA");
    return told != nullptr ? fs::path(told)
                           : fs::path(VELDRANA_SOURCE_DIR).parent_path() / "shared" / "realdata";
}

std::vector<std::string> lines_of(const std::string& bytes) {
    std::vector<std::string> lines;
    std::size_t from = 0;
    while (from < bytes.size()) {
        const std::size_t end = std::min(bytes.find('\n', from), bytes.size());
        lines.push_back(bytes.substr(from, end - from));
        from = end + 1;
    }
    return lines;
}

std::string in_capitals(std::string text) {
    for (char& letter : text) {
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    }
    return text;
}

bool has(const std::string& line, const char* text) {
    return line.find(text) != std::string::npos;
}

std::size_t cabrillo_contacts(const std::string& bytes) {
    const std::vector<std::string> lines = lines_of(bytes);
    return static_cast<std::size_t>(std::count_if(
        lines.begin(), lines.end(), [](const std::string& line) { return has(line, "QSO:"); }));
}

// A record counts once for every five lines that it begins: more are not read at a time.
std::size_t adif_contacts(const std::string& bytes) {
    constexpr std::size_t lines_at_a_time = 5;
    bool in_heading = true;
    bool has_text = false;
    std::size_t lines_read = 0;
    std::size_t contacts = 0;
    const auto finish = [&] {
        contacts += has_text ? 1 : 0;
        has_text = false;
        lines_read = 0;
    };
    for (const std::string& line : lines_of(in_capitals(bytes))) {
        if (in_heading) {
            in_heading = !has(line, "<EOH>");
            continue;
        }
        has_text = has_text || line.find_first_not_of(" \r") != std::string::npos;
        ++lines_read;
        if (lines_read == lines_at_a_time || has(line, "<EOR>")) {
            finish();
        }
    }
    finish();
    return contacts;
}

// The lines with a call, if each of them is a whole record; else none.
std::size_t adif_records_in_a_line(const std::string& bytes) {
    std::size_t records = 0;
    for (const std::string& line : lines_of(in_capitals(bytes))) {
        if (has(line, "<CALL:")) {
            if (!has(line, "<EOR>")) {
                return 0;
            }
            ++records;
        }
    }
    return records;
}

class RealData : public testing::Test {
  protected:
    void SetUp() override {
        if (!fs::is_directory(realdata_folder())) {
            GTEST_SKIP() << "no folder " << realdata_folder();
        }
    }

    static std::vector<fs::path> logs_of(const char* kind) {
        std::vector<fs::path> logs;
        for (const fs::directory_entry& entry : fs::directory_iterator(realdata_folder() / kind)) {
            logs.push_back(entry.path());
        }
        std::sort(logs.begin(), logs.end());
        EXPECT_FALSE(logs.empty()) << kind;
        return logs;
    }

    // Converts a copy of these bytes under that name.
    ProcessResult convert(const std::string& name, const std::string& bytes,
                          const std::vector<std::string>& more = {}) {
        fs::remove_all(scratch.path() / "log");
        fs::remove_all(scratch.path() / "veldrana");
        fs::copy(fs::path(VELDRANA_SOURCE_DIR) / "tests/golden/veldrana",
                 scratch.path() / "veldrana", fs::copy_options::recursive);
        log = scratch.path() / "log" / name;
        write_bytes(log, bytes);
        std::vector<std::string> arguments{"--drive", "C=" + scratch.path().string(), "--home",
                                           (scratch.path() / "veldrana").string()};
        arguments.insert(arguments.end(), {"convert", log.string()});
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run_batch(arguments);
    }

    void expect_contacts(const ProcessResult& ended, std::size_t contacts) {
        EXPECT_EQ(ended.status, 0) << log << '\n' << ended.messages;
        EXPECT_THAT(ended.results,
                    StartsWith(" 今 回 の処理数\t" + std::to_string(contacts) + "\n"))
            << log;
        const std::string rows = read_bytes(log.parent_path() / (log.stem().string() + "_hjn.csv"));
        EXPECT_EQ(lines_of(rows).size(), contacts) << log;
    }

    ScratchFolder scratch;
    fs::path log;
};

TEST_F(RealData, CabrilloLogsHaveARowForEachContact) {
    constexpr std::string_view heading = "START-OF-LOG: 3.0\r\n";
    for (const fs::path& file : logs_of("cabrillo")) {
        std::string bytes = read_bytes(file);
        if (!has(lines_of(bytes).at(0), "START-OF-LOG:")) {
            const ProcessResult refused = convert(file.filename().string(), bytes);
            EXPECT_EQ(refused.status, 1) << file;
            EXPECT_THAT(refused.messages, HasSubstr("Cabrillo ﾌｧｲﾙではありません！")) << file;
            bytes.insert(0, heading);
        }
        // Whatever its extension is.
        const ProcessResult ended =
            convert(file.stem().string() + ".log", bytes, {"--kind", "cbr"});
        expect_contacts(ended, cabrillo_contacts(bytes));
    }
}

TEST_F(RealData, AdifLogsHaveARowForEachRecord) {
    for (const fs::path& file : logs_of("adif")) {
        const std::string bytes = read_bytes(file);
        expect_contacts(convert(file.filename().string(), bytes), adif_contacts(bytes));
    }
}

// As the logger itself exports them: none is cut.
TEST_F(RealData, AdifLogsOfARecordInALineHaveARowForEachCall) {
    std::size_t looked_at = 0;
    for (const fs::path& file : logs_of("adif")) {
        const std::string bytes = read_bytes(file);
        const std::size_t calls = adif_records_in_a_line(bytes);
        if (calls > 0) {
            expect_contacts(convert(file.filename().string(), bytes), calls);
            ++looked_at;
        }
    }
    EXPECT_GT(looked_at, 0U);
}

TEST_F(RealData, TextLogsOfZlogHaveARowForEachLine) {
    for (const fs::path& file : logs_of("zlog-text")) {
        const std::string bytes = read_bytes(file);
        expect_contacts(convert(file.filename().string(), bytes, {"--kind", "all"}),
                        lines_of(bytes).size() - 1);
    }
}

}  // namespace
}  // namespace veldrana
