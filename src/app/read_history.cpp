#include "app/read_history.h"

#include <string>

#include "platform/clock.h"
#include "qsl/hamlog_reader.h"
#include "qsl/history.h"

namespace veldrana {
namespace {

bool has_to_be_read(Program& program, const RunOptions& options, HistoryKind kind,
                    const std::string& history_file) {
    if (options.Check18 || !program.disk.file_exists(history_file)) {
        return true;
    }
    const std::string& database = program.settings.environment.hamlog_hdb_dir;
    return time_of(program.history_times, kind) != date_time_text(program.disk.modified(database));
}

}  // namespace

void read_history(Program& program, const RunOptions& options) {
    program.history_times = read_history_times(program.disk, program.paths.strPath);
    if (options.Option07 < 1 || options.Option01 != 0) {
        return;
    }
    const auto kind = static_cast<HistoryKind>(options.Option07);
    const std::string history_file = history_path(program.paths.strPath, options.Option07);
    if (!has_to_be_read(program, options, kind, history_file)) {
        return;
    }
    const Stage stage = program.stage();
    const OptionSettings& kept = program.settings.options;
    read_hl_hdb(stage, program.log_book, kind,
                {.hamlog_hdb_dir = program.settings.environment.hamlog_hdb_dir,
                 .drive_path = program.paths.drive_path,
                 .strPath = program.paths.strPath,
                 .Start_Date = kept.Start_date,
                 .End_Date = kept.End_date,
                 .End_Date_bak = program.End_Date_bak},
                program.history_times);
    sum_bak_2(stage, program.paths.drive_path);
    sum_bak_3(stage, program.paths.drive_path, history_file);
}

}  // namespace veldrana
