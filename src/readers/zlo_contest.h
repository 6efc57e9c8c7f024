// Owns how the contest of a binary log is found: by the name in its heading, which the contest list
// is looked through for.
#pragma once

#include <string>
#include <string_view>

#include "masters/contest_list.h"
#include "platform/stage.h"

namespace veldrana {

struct ZloContest {
    bool found = false;
    // The first row of the list whose Con_name, trimmed, occurs in the contest name, letter by
    // letter; else the last row, and empty for a list without one.
    ContestEntry row = {};
    // That of the heading, but "Nifty FHAMコンテスト", in the row too, behind the row "Fham.cfg".
    std::string contest_name = {};
};

// The list is read from its first line, its heading included.
ZloContest find_zlo_contest(const Stage& stage, std::string_view contest_name_csv,
                            std::string_view contest_name);

}  // namespace veldrana
