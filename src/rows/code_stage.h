// Owns the code stages: LogLines become CodedLines, with the code and the QTH that a master gives
// for the number received. What is the same for all stands in one place; each stage has its own way
// from the number to the master.
//
// Every stage reads zlog_1.txt and writes zlog_2.txt in the folder of the log (in_Dir, with a
// backslash at its end). A log without a contact is failure 62. The number received is passed on as
// it stands, but by bak_sep3, which trims it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "masters/code_source.h"
#include "masters/dat_file.h"
#include "platform/stage.h"
#include "settings/run_options.h"

namespace veldrana {

// With hl_code.mas, which is asked for the digits at the head of the number as it stands: a number
// with a blank or a letter in front asks for nothing.
struct HlCodeRequest {
    std::string_view in_Dir;
    const RunOptions& options;
    CodeSource& hl_code_mas;
};
void bak_sep0(const Stage& stage, const HlCodeRequest& request);

// With the postal masters, which are asked for the whole trimmed number of a Japanese station; the
// QTH is cut to 14 bytes. Foreign stations have neither code nor QTH. The operator is not passed
// on: bytes 68 to 107 of the last line of a contest data file stand in its place, most often
// nothing. Kept.
struct YubinRequest {
    std::string_view in_Dir;
    const RunOptions& options;
    CodeSource* yubin_mas;      // null: its folder is not set, nothing is asked
    std::string_view dat_line;  // what the last load of a data file has left (DatTable)
};
void bak_sep1(const Stage& stage, const YubinRequest& request);

// With the contest data file, which is loaded anew. The code flag tells what is searched of a
// number, and how (masters/code_flag.h). Where nothing is searched, for a foreign station or with a
// flag that asks for no search, a contact inherits code and QTH of the contact before it; one whose
// searched number is empty has neither. Without Option04(1) the code is emptied, the QTH stays.
struct DatRequest {
    std::string_view in_Dir;
    const RunOptions& options;
    // The path of the file as the check of its presence leaves it; asked for when the stage has
    // opened its own files.
    std::function<std::string()> dat_in_name;
    std::string_view Code_flag;
    DatTable& table;
};
void bak_sep2(const Stage& stage, const DatRequest& request);

// Without a master: code and QTH stay empty.
void bak_sep3(const Stage& stage, std::string_view in_Dir, const RunOptions& options);

}  // namespace veldrana
