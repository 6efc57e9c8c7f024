#include "common/column_line.h"

#include <cstring>

#include "common/text.h"

namespace veldrana {

ColumnLine& ColumnLine::add_columns(std::span<const FixedText> columns) {
    std::size_t size = 0;
    for (const FixedText& column : columns) {
        size += column.width + column.blanks;
    }
    char* const start = room_for(size);
    // Put down as if a byte were a byte of the code page, which what stands there then tells.
    std::memset(start, ' ', size);
    char* to = start;
    for (const FixedText& column : columns) {
        copy_short(column.text.substr(0, column.width), to);
        to += column.width + column.blanks;
    }
    if (is_ascii({start, size})) {
        size_ += size;
        return *this;
    }
    for (const FixedText& column : columns) {
        add(fixed_width(column.text, column.width)).add(std::string(column.blanks, ' '));
    }
    return *this;
}

}  // namespace veldrana
