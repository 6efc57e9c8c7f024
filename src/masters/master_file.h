// Owns what the fixed-column masters have in common: Shift_JIS lines, two headings, then a record a
// line with its key in bytes 2 to 7.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "common/text.h"
#include "platform/stage.h"

namespace veldrana {

// Byte positions of a column, from 1; a width of 0 is a column that the file has not.
struct MasterColumn {
    std::size_t start = 0;
    std::size_t width = 0;
};

constexpr MasterColumn master_key{2, 6};

// What stands in a column, trimmed; empty if the line is too short for it.
std::string column_text(const FixedColumns& record, MasterColumn column);

// Whether a master that has its two headings and nothing else can be read.
enum class HeadingsAlone { fail, allowed };

// Hands over the records in the order of the file. Failure 62 where a heading is missing, and for a
// master of headings alone that is to fail.
void read_master(const Stage& stage, std::string_view path, HeadingsAlone headings_alone,
                 const std::function<void(std::string_view record)>& take);

// Shows on the status line that a file is being read; its colour stays.
void show_reading(const Stage& stage, std::string_view file);
void show_read(const Stage& stage);

}  // namespace veldrana
