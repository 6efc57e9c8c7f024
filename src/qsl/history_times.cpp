#include "qsl/history_times.h"

#include <array>

#include "common/version.h"
#include "platform/profile_file.h"

namespace veldrana {
namespace {

struct Entry {
    std::string_view section;
    std::string_view key;
    std::string HistoryTimes::*value;
};
constexpr std::array entries{
    Entry{"Sansyou_files QSO", "hamlog_hdb_dir_FileDateTime_QSO", &HistoryTimes::QSO},
    Entry{"Sansyou_files QSL_sent", "hamlog_hdb_dir_FileDateTime_QSL_sent",
          &HistoryTimes::QSL_sent},
    Entry{"Sansyou_files QSL_rcvd", "hamlog_hdb_dir_FileDateTime_QSL_rcvd",
          &HistoryTimes::QSL_rcvd},
};

std::string path_of(std::string_view strPath) {
    return std::string(strPath).append(history_times_ini);
}

}  // namespace

HistoryTimes read_history_times(Disk& disk, std::string_view strPath) {
    const ProfileFile file(disk, path_of(strPath));
    HistoryTimes times;
    for (const Entry& entry : entries) {
        times.*entry.value = file.value(entry.section, entry.key);
    }
    return times;
}

void write_history_times(Disk& disk, std::string_view strPath, const HistoryTimes& times) {
    ProfileFile file(disk, path_of(strPath));
    file.set_value(history_times_ini, "version", program_version);
    for (const Entry& entry : entries) {
        file.set_value(entry.section, entry.key, times.*entry.value);
    }
    static_cast<void>(file.save());
}

}  // namespace veldrana
