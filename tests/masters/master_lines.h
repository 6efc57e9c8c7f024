// Lines in fixed columns, and files of them, for tests of the masters.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "common/text.h"
#include "platform/code_page_932.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {

// A text and the byte of the line that it starts at, from 1.
struct Placed {
    std::size_t byte;
    std::string_view text;
};

inline std::string line_of(std::initializer_list<Placed> pieces) {
    std::string line;
    for (const Placed& piece : pieces) {
        line.append(piece.byte - 1 - LenMbcs(line), ' ').append(piece.text);
    }
    return line;
}

inline void put_lines(MemoryDisk& disk, std::string_view path,
                      const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    disk.put(path, to_code_page(text));
}

// A master with its two headings in front of the records.
inline void put_master(MemoryDisk& disk, std::string_view path, std::vector<std::string> records) {
    records.insert(records.begin(), {"'heading <=ﾀｲﾄﾙ", "'ｺｰﾙｻｲﾝ|__氏  名___|ｺｰﾄﾞ_|"});
    put_lines(disk, path, records);
}

}  // namespace veldrana
