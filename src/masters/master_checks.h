// Owns the checks around the masters that stand outside a run: whether the files are there that a
// start needs, how many records name_mas has, and whether a chosen file is a user text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/stage.h"

namespace veldrana {

// --- name_mas.txt and its numbered kin name_mas1.txt to name_mas20.txt ---

struct NameMasCheck {
    std::size_t name_mas_max = 0;  // the highest number there is
    bool Check03 = false;          // as it is to stand from now on
    std::string_view note = {};    // what stays on the screen; empty: nothing
};

// The numbered files are counted and checked, though name_mas.txt alone is ever searched. A gap in
// their row, or name_mas.txt missing in a folder that is set, ends the program after a box. Without
// folder and file Check03 goes off with a box; a file that Check03 does not use is pointed out.
NameMasCheck name_mas_dir_check(const Stage& stage, std::string_view name_mas_dir, bool Check03);

struct MasterCount {
    std::string name;
    std::ptrdiff_t records;  // the lines behind the two headings
};

// The button that counts the records of name_mas.txt and of the numbered files up to the highest:
// shows them in a box, with a warning if the last file has more than 45000, and in the trace log.
std::vector<MasterCount> name_mas_txt_count1(const Stage& stage, std::string_view name_mas_dir,
                                             std::size_t name_mas_max);

// --- yubin_m0.mas to yubin_m9.mas ---

// Unless the folder's setting says that they are not used, a missing one ends the program after a
// box.
void yubin_dir_check(const Stage& stage, std::string_view yubin_mas_dir);

// --- user texts ---

// Whether the second line of a file is that of a user text; a box tells if it is not.
bool check_form_of_user_text(const Stage& stage, const std::string& path);

// What the button of a user text shows: the name without ".txt" or ".TXT", or, for an empty path,
// that a file has to be set.
std::string user_text_caption(std::string_view path);

// Whether a user text that is to be used is there; if not, a box tells and its setting is cleared.
bool check_user_text(const Stage& stage, std::string& path);

}  // namespace veldrana
