// Owns the way from a binary log of zLog to a .ALL text beside it, to be read, checked or loaded
// elsewhere. No run uses it.
#pragma once

#include <string>
#include <string_view>

#include "platform/stage.h"

namespace veldrana {

// The path of the text: that of the log, of its first 120 bytes, up to its first point, which may
// stand in a folder's name, and "_z2a.all" behind it. Kept: operators know their files by it.
std::string z2a_name(std::string_view in_name);

// Writes the text anew; its path. Columns as docs/formats/zlog-text.md tells them, with the numbers
// sent, the multipliers and the points besides.
std::string make_z2a(const Stage& stage, std::string_view in_name);

}  // namespace veldrana
