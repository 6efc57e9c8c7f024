// A test of the reader of a log: the log on a disk in memory, the contacts as zlog_1.txt then has
// them, and logs that no reader can make sense of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/quoted_fields.h"
#include "common/text.h"
#include "platform/code_page_932.h"
#include "readers/log_line.h"
#include "readers/log_request.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {

using Contact = std::vector<std::string>;

class ReaderFixture : public StageFixture {
  protected:
    static constexpr const char* log_path = "C:\\log\\x.log";

    LogRequest request() const {
        return {.in_name = log_path, .in_Dir = "C:\\log\\", .options = options, .use = use};
    }

    // The log as it lies on the disk.
    void put_log(std::string bytes) { disk.put(log_path, std::move(bytes)); }

    // The same from lines of text.
    void put_log_lines(const std::vector<std::string>& lines) {
        std::string bytes;
        for (const std::string& line : lines) {
            bytes += to_code_page(line) + "\r\n";
        }
        put_log(bytes);
    }

    // What was written to zlog_1.txt.
    std::vector<Contact> contacts() {
        std::vector<Contact> read;
        TextInput written(disk, "C:\\log\\zlog_1.txt");
        for (std::string_view line; written.next_line(line);) {
            read.push_back(split_quoted_fields(line));
        }
        return read;
    }

    RunOptions options{.Check01 = true, .Check15 = false, .txtOp_name = ""};
    RemarkUse use;
};

// Bytes that are no log of any kind; none is longer than a few megabytes.
struct Damage {
    const char* name;
    std::string bytes;
};

inline std::string repeated(std::string_view piece, std::size_t count) {
    std::string text;
    text.reserve(piece.size() * count);
    for (std::size_t i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

inline std::vector<Damage> damaged_logs() {
    constexpr std::size_t megabyte = std::size_t{1} << 20U;
    return {{"nothing", ""},
            {"one line end", "\r\n"},
            {"zeros", std::string(4096, '\0')},
            {"0xFF", std::string(4096, '\xFF')},
            {"a line of 1 MB", std::string(megabyte, 'x')},
            {"1 MB of blanks", std::string(megabyte, ' ')},
            {"1 MB of colons", std::string(megabyte, ':')},
            {"1 MB of brackets", std::string(megabyte, '<')},
            {"blank lines", repeated("\r\n", 500000)},
            {"lead bytes without their second", repeated("\x83\r\n", 100)},
            {"a byte-order mark", "\xEF\xBB\xBFlog \xE7\xA7\xBB\xE5\x8B\x95\r\n"}};
}

}  // namespace veldrana
