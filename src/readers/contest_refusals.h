// Owns the boxes that refuse a contest, and what the user has waved through. Each box offers to go
// on; cancel ends the program.
#pragma once

#include <string_view>

#include "common/person.h"
#include "readers/contest_selection.h"

namespace veldrana {

// What the two labels of the data file show, in red, while the user is to choose one.
constexpr std::string_view ask_for_dat = "ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。";

// File_no while the user is to choose a data file.
constexpr std::string_view no_file_no = "10";

// Refusals in force: each keeps its box from coming again until the next log is opened, whose
// opening clears them.
struct ContestRefusals {
    bool code = false;  // the contest's numbers give no code
    bool list = false;  // the contest list does not have the contest
};

// The contest was found and its flag is "00". The caller then selects Option02(0) and closes its
// files.
void no_get_code(Person& person, const ContestSelection& selection, ContestRefusals& refusals);

// The contest list does not have the name. The caller then selects Option02(0).
void no_name_mas_qra_in_con_z_name_mas_qra_csv(Person& person, std::string_view contest_name,
                                               ContestRefusals& refusals);

// The log has no contest name; from now on the data file is to be chosen by hand. The caller then
// sets the choice to manual and asks for a data file.
void no_name_mas_qra_in_header(Person& person, ContestSelection& selection);

// A data file chosen by hand belongs to a contest with the flag "00": a box without text.
void no_code_from_chosen_dat(Person& person, ContestSelection& selection,
                             ContestRefusals& refusals);

}  // namespace veldrana
