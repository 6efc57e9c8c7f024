#include "platform/sort_service.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <memory>
#include <vector>

#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/text_file.h"

namespace veldrana {
namespace {

[[noreturn]] void fail() {
    throw RunTimeError(Failure::invalid_call);
}

// Takes a piece off the front of the text, which must begin with it.
void take(std::string_view& text, std::string_view piece) {
    if (!text.starts_with(piece)) {
        fail();
    }
    text.remove_prefix(piece.size());
}

std::size_t take_number(std::string_view& text) {
    std::size_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{}) {
        fail();
    }
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
    return number;
}

std::string take_path(std::string_view& text) {
    text = trim_left(text);
    take(text, "'");
    const std::size_t end = text.find('\'');
    if (end == std::string_view::npos) {
        fail();
    }
    std::string path(text.substr(0, end));
    text.remove_prefix(end + 1);
    return path;
}

// A line of the file by its key: the first bytes of the key as a number, so that most comparisons
// look at nothing else.
struct Entry {
    std::uint64_t head;
    const char* line;
    std::size_t size;
};

std::uint64_t head_of(std::string_view key) {
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i) {
        head = head << 8U | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    }
    return head;
}

std::string read_all(Disk& disk, const std::string& path) {
    std::string bytes(disk.size(path), '\0');
    const std::unique_ptr<ByteSource> source = disk.open_for_reading(path);
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const std::size_t count = source->read(bytes.data() + filled, bytes.size() - filled);
        if (count == 0) {
            break;
        }
        filled += count;
    }
    bytes.resize(filled);
    return bytes;
}

std::vector<Entry> entries_of(std::string_view bytes, const SortCommand& command) {
    std::vector<Entry> entries;
    std::size_t from = 0;
    while (from < bytes.size()) {
        const std::size_t end = std::min(bytes.find('\n', from), bytes.size());
        std::string_view line = bytes.substr(from, end - from);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        const std::size_t before = std::min(command.start - 1, line.size());
        entries.push_back({.head = head_of(line.substr(before, command.length)),
                           .line = line.data(),
                           .size = line.size()});
        from = end + 1;
    }
    return entries;
}

void write_lines(Disk& disk, const std::string& path, const std::vector<Entry>& entries) {
    TextOutput output(disk, path);
    for (const Entry& entry : entries) {
        output.write_bytes({entry.line, entry.size});
    }
    output.close();
}

}  // namespace

std::string SortCommand::text() const {
    return "/k(" + std::to_string(start) + ":" + std::to_string(length) + ")" +
           (descending ? " /r" : "") + "  '" + from + "'  '" + to + "'";
}

SortCommand SortCommand::parse(std::string_view text) {
    SortCommand command;
    take(text, "/k(");
    command.start = take_number(text);
    take(text, ":");
    command.length = take_number(text);
    take(text, ")");
    text = trim_left(text);
    if (text.starts_with("/r")) {
        command.descending = true;
        take(text, "/r");
    }
    command.from = take_path(text);
    command.to = take_path(text);
    if (command.start == 0 || !trim(text).empty()) {
        fail();
    }
    return command;
}

int StableSort::ksort(const std::string& command_text, std::string& /*buffer*/) {
    const SortCommand command = SortCommand::parse(command_text);
    const std::string bytes = read_all(disk_, command.from);
    std::vector<Entry> entries = entries_of(bytes, command);
    const auto rest_of = [&command](const Entry& entry) {
        const std::string_view line(entry.line, entry.size);
        return line.substr(std::min(command.start - 1, line.size()), command.length);
    };
    const auto less = [&rest_of](const Entry& one, const Entry& other) {
        return one.head != other.head ? one.head < other.head : rest_of(one) < rest_of(other);
    };
    if (command.descending) {
        std::stable_sort(
            entries.begin(), entries.end(),
            [&less](const Entry& one, const Entry& other) { return less(other, one); });
    } else {
        std::stable_sort(entries.begin(), entries.end(), less);
    }
    write_lines(disk_, command.to, entries);
    return 0;
}

}  // namespace veldrana
