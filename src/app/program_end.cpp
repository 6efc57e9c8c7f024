#include "app/program_end.h"

#include "app/rtcl_tool.h"
#include "app/work_files.h"
#include "common/text.h"
#include "platform/text_file.h"
#include "settings/window_positions.h"

namespace veldrana {
namespace {

template <class Step>
void pass_over_failures(Step step) {
    try {
        step();
    } catch (...) {
        return;
    }
}

void delete_work_files(Program& program) {
    const auto each_of = [&](std::string_view folder,
                             std::initializer_list<std::string_view> patterns) {
        for (const std::string_view pattern : patterns) {
            pass_over_failures([&] { remove_files(program, folder, {pattern}); });
        }
    };
    const Paths& paths = program.paths;
    each_of(paths.strPath, {"Veldrana.ini2"});
    each_of(paths.drive_path, {"semp_s.csv", "semp_d.csv", "uemp_s.csv", "temp_sj.csv"});
    each_of(program.log.in_Dir, {"zlog_?.txt", "zlog_01.txt"});
    each_of(paths.strPath, {"*.hdx"});
    each_of(paths.drive_path, {"org_qsl.csv", "new_qsl_contest.csv", "new_qsl_hamlog.csv"});
    each_of(paths.strPath,
            {"bak_chk_?.txt", "hdb_chk_?.txt", "bak_qso.mas", "Master_2.txt", "rtcl_tmp.txt"});
}

bool tells_of_a_failure(Disk& disk, const std::string& trace_log_path) {
    TextInput log(disk, trace_log_path);
    for (std::string_view line; log.next_line(line);) {
        if (line.find(TraceLog::failure_mark) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

void delete_uneventful_trace_log(Program& program) {
    const std::string& path = program.trace.path();
    if (program.screen.Check26.value || !program.disk.file_exists(path) ||
        tells_of_a_failure(program.disk, path)) {
        return;
    }
    program.disk.remove(path);
}

// One more run of the program came to its orderly end.
void count_run(Program& program) {
    constexpr int runs_between_notes = 10;
    OptionSettings& options = program.settings.options;
    const long runs = long{stored_number(options.exe_rec)} + 1;
    options.exe_rec = std::to_string(runs);
    if (runs % runs_between_notes == 0) {
        program.person.show({.text = "たまには使用した感想などのレポート下さいね！"});
    }
    program.settings.write_Veldrana_new_ini();
}

[[noreturn]] void end_cleanup(Program& program) {
    if (!program.keep_work_files) {
        delete_work_files(program);
    }
    // A setting for one program run, so it goes in any case.
    pass_over_failures([&] { remove_if_there(program, program.settings.path(dat_ini)); });
    pass_over_failures([&] { count_run(program); });
    pass_over_failures([&] { program.trace.write("　*************  終了  *********"); });
    pass_over_failures([&] { program.trace.close(); });
    pass_over_failures([&] { delete_uneventful_trace_log(program); });
    throw ProgramEnd{ProgramEnd::Cause::orderly};
}

}  // namespace

void End_Click(Program& program) {
    pass_over_failures([&] {
        program.trace.write("");
        program.trace.write("Private Sub End_Click()");
    });
    pass_over_failures(
        [&] { save_position(program.disk, program.paths.strPath, program.screen.window); });
    pass_over_failures([&] { close_free_viewers(program); });
    program.screen.lblCFG.large_letters = true;
    program.screen.lblCFG.show("　　終了処理中．．．", colours::green);
    program.person.pending_events();
    end_cleanup(program);
}

}  // namespace veldrana
