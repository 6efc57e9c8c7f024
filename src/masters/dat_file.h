// Owns the contest data files, tables that turn the number of a contest into a code and a QTH:
// their layouts, their search, and the file that is chosen, with the check that it is there.
//
// Shift_JIS, one heading line, then a row a line, cut at its first NUL. Columns in bytes from 1,
// each trimmed; the kind is told by the last three characters of the name, in either case:
//
//               .dat       .mas, .mst
//     key       1 to 11    1 to 6
//     code      1 to 7     7 to 13
//     QTH       12 to 39   15 to 42
//
// A .dat is a file of the logger and lies in its folder, the others are the program's own and lie
// in mas_mst. A file of any other kind has no rows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/person.h"
#include "masters/code_source.h"
#include "masters/first_rows.h"
#include "platform/stage.h"

namespace veldrana {

enum class DatKind { dat, mas, mst, other };
DatKind dat_kind(std::string_view name);

// Where contest data files lie; with a backslash at their ends.
struct DatFolders {
    std::string zlog_dat_dir;
    std::string mas_mst;
};

// The folder for files of a kind; empty for `other`.
std::string_view folder_of(DatKind kind, const DatFolders& folders);

// The file that is chosen, as text that lives as long as the program.
struct DatFile {
    std::string dat_in_name = {};  // full path; chosen if it holds a backslash
    std::string name = {};         // behind the last backslash
    std::string kind = {};         // "dat", "mst" or "mas", as the manual way found it in the name
    std::string folder = {};       // with a backslash at its end

    // What the options do to the path when a choice on the screen changes.
    void rebuild_path() { dat_in_name = folder + name; }
};

// Puts the file into the folder of its kind (of another kind: into the folder of the last check)
// and says whether it is there. If it is not, a box tells: for a path with "no.dat" the program
// then ends; for others it ends if the box is cancelled.
bool dat_file_chk(const Stage& stage, const DatFolders& folders, DatFile& file);

// The same as a run does it before its code stage: a file whose path ends in "mas" or "mst" first
// gets its name back from the bare name in small letters, ".dat" in it replaced.
bool dat_file_of_run(const Stage& stage, const DatFolders& folders, DatFile& file);

// The rows of one data file. Keys compare as they stand, case and all; a number that no row has
// finds nothing.
class DatTable {
  public:
    static constexpr std::size_t most_rows = 4500;

    // Replaces what it holds. Failure 9 at row 4501, 53 for a missing file.
    void load(const Stage& stage, std::string_view dat_in_name);

    CodeAndPlace find_exact(std::string_view number) const;
    // By the number's first two characters, or three behind W, G or C with 0 or 1.
    CodeAndPlace find_prefix(std::string_view number) const;

    // The last line that a load has read; empty before the first one.
    std::string_view line_buffer() const noexcept { return line_buffer_; }

  private:
    FirstRows<CodeAndPlace> rows_;
    std::string line_buffer_;
};

}  // namespace veldrana
