// Owns the selection state: the contest that a log belongs to and its data file, as they stand
// until the next choice. The dialog (readers/frmCon_sel.h), the manual way (readers/manual_dat.h)
// and the reader of binary logs set it; the code stage and the main screen read it.
#pragma once

#include <string>

#include "common/person.h"
#include "masters/dat_file.h"

namespace veldrana {

// All is text; empty until something was chosen.
struct ContestSelection {
    DatFile dat = {};
    std::string picked_folder = {};  // where the dialog's verdict has looked for the data file
    std::string Con_name = {};
    std::string Code_flag = {};  // masters/code_flag.h
    std::string Con_no_1 = {};
    std::string Con_no_2 = {};
    std::string File_no = {};  // place in the contest list from 1; "10" where the user is to choose
};

// The box that tells about the contest and its data file (cmdDisp_dat_Click). The kind's caption is
// kept from box to box: the second digit 4 has none of its own and shows the one before.
MessageBox contest_information(const ContestSelection& selection, std::string& kind_caption);

}  // namespace veldrana
