// Owns the contract with lg8bridge, the separate program that makes a zLog .ALL text of a Ctestwin
// log (.lg8): the file that both read and write, and the name of the text. The bridge stands in the
// program's folder; nobody waits for it and nobody tests what it has made.
#pragma once

#include <string>
#include <string_view>

#include "platform/disk.h"

namespace veldrana {

constexpr std::string_view lg8bridge_exe = "lg8bridge.exe";
constexpr std::string_view lg8bridge_ini = "lg8bridge.ini";

// Whether the path ends in ".lg8", in either case.
bool is_lg8_name(std::string_view path);

// What stands in the file, in the section of its own name.
struct Lg8Bridge {
    std::string in_name = {};     // lg8bridge_in_name: full path of the log
    std::string qso_su_str = {};  // the count of its contacts, as text; the bridge writes it
};

// Writes both, the path trimmed; whether the disk let it. What cannot be written is passed over, as
// is the bridge that then finds nothing to do.
bool write_lg8bridge_ini(Disk& disk, std::string_view strPath, const Lg8Bridge& bridge);

// Reads both, each up to its first NUL and no longer than a profile's value is; empty where they
// are missing.
Lg8Bridge read_lg8bridge_ini(Disk& disk, std::string_view strPath);

// The path of the .ALL text: that of the log with "_lg8bridge.all" in the place of the point and
// the extension.
std::string lg8bridge_all_name(std::string_view in_name);

}  // namespace veldrana
