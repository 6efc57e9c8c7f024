// Owns how the logs that are no zLog text are chosen and tested: Cabrillo, ADIF, binary zLog, RTCL
// and Ctestwin, each by its own menu entries.
#pragma once

#include <string>

#include "app/program.h"

namespace veldrana {

void FileOpen_cbr(Program& program);
void FileOpen_ADIF(Program& program);

// From wherever the last dialog ended, and from the folder of such logs.
void mnuOpen_z_Click(Program& program);
void mnuOpen_z_set_Click(Program& program);

void FileOpen_rtcl_log_set_new4(Program& program);
void FileOpen_rtcl_log_set_new430(Program& program);

// Has the converter beside the program make a text of the log; a run then reads that text.
void mnuOpen_Ctestwin_lg8_Click(Program& program);

// A binary log of zLog as a text beside it.
void mnuMake_z2a_Click(Program& program);

// Opens a log that was named without a dialog, dropped on the window or opened before, the way that
// its kind goes.
void open_log(Program& program, const std::string& path);

// The menu entry that opens logs of a kind.
MenuEntry& open_entry(MainScreen& screen, InputKind kind);

}  // namespace veldrana
