// Owns mas_mst\contest_name.csv, the list of the contests with the data file and the code flag of
// each. Shift_JIS, a heading line, then a contest a line in eight comma-separated fields:
//
//     1  free                   5  Code_flag (masters/code_flag.h)
//     2  Cfg_name               6  Con_no_1, what the contest's number is
//     3  Dat_name               7  Con_no_2, more of it
//     4  Con_name               8  free
//
// The file is read field by field: a line of too few takes the rest from the line behind it.
#pragma once

#include <string>
#include <string_view>

#include "common/quoted_fields.h"
#include "platform/stage.h"

namespace veldrana {

struct ContestEntry {
    std::string Cfg_name = {};   // the logger's settings file, such as "Fham.cfg"
    std::string Dat_name = {};   // the data file's name with its extension
    std::string Con_name = {};   // as logs of the logger name the contest, or for display
    std::string Code_flag = {};  // two digits
    std::string Con_no_1 = {};
    std::string Con_no_2 = {};
};

// Reads the list from its start.
class ContestList {
  public:
    // Some look for a contest in the heading too; it does no harm as long as it matches nothing.
    enum class Heading { skipped, read_as_contest };

    // Failure 53 for a missing file, 62 where a heading to be skipped is missing.
    ContestList(const Stage& stage, std::string_view contest_name_csv, Heading heading);

    // The next contest; false behind the last one. Failure 62 for one cut short by the file's end.
    bool next(ContestEntry& entry);

  private:
    TextInput input_;
    RowReader row_;
};

// Looks through the list for what must not stand in a field: a comma too many, a double quote, an
// ampersand; the heading is not looked at. Every fault goes to ERR_contest_name_csv.txt in the
// program's folder, a line that tells it in front of the line that has it. With any fault a box
// names the kinds met, and the program ends.
void Check_contest_name_csv(const Stage& stage, std::string_view contest_name_csv,
                            std::string_view strPath);

}  // namespace veldrana
