// Owns the positions of the program's windows, kept in a profile file beside it: each window comes
// back where it was left. A section for each window, "Position_" and its name, with its state and
// the rectangle of its normal state.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "common/controls.h"
#include "platform/disk.h"

namespace veldrana {

constexpr std::string_view position_ini = "Veldrana_posi.ini";

// The windows that have a position.
constexpr std::array<std::string_view, 19> positioned_windows{
    "Veldrana",          "frmCon_sel",     "frmConfig",
    "frmDate",           "frmDisp",        "frmDisp2",
    "frmDisp3",          "frmDisp4",       "frmDownload",
    "frmJARL_Web_No",    "frmJARL_Web_On", "frmKetasu",
    "frmRmk_Rireki_sel", "frmRmks_sel",    "frmSet_koumoku_jun",
    "Grid4frm",          "Grid5frm",       "frmCheck_bak_qso_mas",
    "frmRTCL_v4"};

// Makes the file, without any position, if it is missing.
void make_position_file(Disk& disk, std::string_view strPath);

// Writes where the window stands, unless nothing has told it; a minimised one as a normal one.
void save_position(Disk& disk, std::string_view strPath, const Window& window);

// Puts the window where it was. What is not stored, or is no whole number, stays as it is.
void load_position(Disk& disk, std::string_view strPath, Window& window);

}  // namespace veldrana
