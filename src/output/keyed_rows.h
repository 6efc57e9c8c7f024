// Owns the keys that rows are sorted by: a keyed row has its key as an additional first column, so
// the key begins at byte 2 of the line.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/quoted_fields.h"
#include "settings/run_options.h"

namespace veldrana {

// The window that the sorts of the contest file look through. Of a station worked more than once
// the key is longer than that, so within a month, or a minute, its contacts keep the log's order;
// kept, the width must not grow.
constexpr std::size_t contest_key_width = 30;

// Widths of the call in the key of a station worked once and more than once.
constexpr std::size_t single_call_width = 7;
constexpr std::size_t multiple_call_width = 14;

// From the columns of a ContestRow; the options decide the order of the fields.
void make_contest_key(std::string& key, std::span<const std::string_view> row,
                      std::size_t call_width, const RunOptions& options);

// Two characters of the group, six of the call: calls that begin with "7" and those with "1" in
// third place first, area 0 behind all others. A call of two characters has one character less.
void make_jarl_key(std::string& key, std::string_view call_base);

// What stands behind the key of a keyed row as it was written; empty for an empty line.
std::string_view behind_key(std::string_view written_line) noexcept;

// Puts a key and the columns of a row together.
class KeyedLine {
  public:
    // `written` is the row as it stood in its file, empty if it has to be written anew.
    void assign(std::string_view key, std::span<const std::string_view> row,
                std::string_view written = {});
    std::string_view text() const noexcept { return line_.text(); }

  private:
    std::vector<std::string_view> columns_;
    QuotedLine line_;
};

}  // namespace veldrana
