// Owns the manual way to a contest data file: the file dialog, and the search of the contest list
// for the file that was chosen.
#pragma once

#include <functional>
#include <string_view>

#include "masters/dat_file.h"
#include "platform/stage.h"
#include "readers/contest_refusals.h"
#include "readers/contest_selection.h"

namespace veldrana {

// Asks for a data file and takes it into the selection: its path, and of the path's first 120 bytes
// the folder and the name behind it; its kind by ".dat", ".mst", ".mas" in the name, looked for in
// this order. False if none was chosen; nothing has changed then.
bool choose_dat_by_hand(Person& person, std::string_view zlog_dat_dir, ContestSelection& selection);

// Takes a data file by its name in the contest list: from the folder of the logger's files if the
// name holds ".dat", else from that of the program's.
void take_listed_dat(const DatFolders& folders, std::string_view Dat_name, DatFile& dat);

struct AllDatRequest {
    std::string_view contest_name_csv;
    const DatFolders& folders;
    bool data_file_is_code_source;   // Option02(2) is chosen
    std::function<void()> Op04_Chk;  // runs in front of the change of the path, if it is
};

enum class AllDat {
    found,    // the path is to be shown in blue, if the data file is the code source
    refused,  // all four choices of Option02 are to be enabled and Option02(2) chosen, cmdDisp_dat
              // disabled, and a data file asked for
    not_found,  // cmdDisp_dat is to be disabled, and a data file asked for
};

// Looks through the contest list, its heading included, for the contest of the chosen file: the
// first one whose Dat_name occurs in the file's name in small letters, or the last of all, leaves
// its fields in the selection. One with the flag "00" is refused once for a log. With the data file
// as code source the path becomes that of the list. Runs for .ALL logs alone; for other kinds the
// contest's fields stay what they were.
AllDat read_all_dat(const Stage& stage, const AllDatRequest& request, ContestSelection& selection,
                    ContestRefusals& refusals);

}  // namespace veldrana
