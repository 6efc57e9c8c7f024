#include "readers/ctestwin.h"

#include "common/file_path.h"
#include "common/text.h"
#include "platform/profile_file.h"

namespace veldrana {
namespace {

constexpr std::string_view in_name_key = "lg8bridge_in_name";
constexpr std::string_view count_key = "qso_su_str";

std::string ini_path(std::string_view strPath) {
    return std::string(strPath).append(lg8bridge_ini);
}

}  // namespace

bool is_lg8_name(std::string_view path) {
    return lower(right(path, 4)) == ".lg8";
}

bool write_lg8bridge_ini(Disk& disk, std::string_view strPath, const Lg8Bridge& bridge) {
    ProfileFile file(disk, ini_path(strPath));
    file.set_value(lg8bridge_ini, in_name_key, trim(bridge.in_name));
    file.set_value(lg8bridge_ini, count_key, bridge.qso_su_str);
    return file.save();
}

Lg8Bridge read_lg8bridge_ini(Disk& disk, std::string_view strPath) {
    const ProfileFile file(disk, ini_path(strPath));
    return {.in_name = std::string(until_nul(file.value(lg8bridge_ini, in_name_key))),
            .qso_su_str = std::string(until_nul(file.value(lg8bridge_ini, count_key)))};
}

std::string lg8bridge_all_name(std::string_view in_name) {
    const FilePath path = split_path(in_name);
    return std::string(path.folder).append(path.base_name).append("_lg8bridge.all");
}

}  // namespace veldrana
