#include "app/start_up.h"

#include <array>
#include <memory>

#include "common/procedure.h"
#include "common/text.h"
#include "common/version.h"
#include "platform/text_file.h"

namespace veldrana {
namespace {

// mas_mst is not among them: it comes with the program, and its contents must be there.
constexpr std::array<std::string_view, 5> folders_of_the_tree{"Temp_Files", "qsl_dir", "Error_Log",
                                                              "BackUp", "Yubin_m_new"};

void make_missing_folder(Disk& disk, const std::string& path) {
    if (!disk.folder_exists(path)) {
        disk.make_folder(path);
    }
}

void open_trace_log(Program& program) {
    TraceLog& trace = program.trace;
    trace.open(std::make_unique<TextOutput>(program.disk, trace.path()));
    trace.write("ver : " + std::string(program_version));
    trace.write("Main()");
    trace.write("strPath : " + program.paths.strPath);
}

// Named by the time. A start within the same second takes the next one: the log before it may tell
// of a failure.
std::string free_trace_log_path(Program& program) {
    LocalTime time = program.clock.now();
    const auto path = [&] {
        return program.paths.strPath + "Error_Log\\" + file_stamp(time) + ".txt";
    };
    while (program.disk.file_exists(path())) {
        time = next_second(time);
    }
    return path();
}

// The main screen's load.
void Form_Load(Program& program) {
    MainScreen& screen = program.screen;
    screen.mnuDisp_dup.enabled = false;
    kettuka_disp_clear(program.counters, screen);
    screen.txtYYYY.text = present_year(program.clock);
    program.period.End_date = file_stamp(program.clock.now()).substr(0, 8);
    screen.lblIn_name.fore_colour = colours::red;
    screen.lblInfo.fore_colour = colours::red;
    screen.lblInfo.caption = "入力ファイルを指定して下さい";
    screen.disp_enable_f();
    screen.enable_start(false);
    screen.mnuQSOBank.enabled = false;
}

}  // namespace

void Main(Program& program) {
    TraceLog& trace = program.trace;
    Disk& disk = program.disk;
    Paths& paths = program.paths;
    trap_failures(trace, "Public Sub Main()", ErrorLine::with_name, [&] {
        trace.set_path(free_trace_log_path(program));
        for (const std::string_view folder : folders_of_the_tree) {
            make_missing_folder(disk, paths.strPath + std::string(folder));
        }
        open_trace_log(program);
        for (const std::string_view name :
             {"Veldrana_cfg.ini", "Veldrana_new.ini", "Veldrana.ini"}) {
            trace_profile_file(program, name, "起動時");
        }
        trace.write("Public Sub Main()");
        paths.qsl_dir = paths.strPath + "\\qsl_dir\\";
        Form_Load(program);
    });
    program.person.pending_events();
}

void trace_profile_file(Program& program, std::string_view name, std::string_view moment) {
    const std::string path = program.paths.strPath + std::string(name);
    if (!program.disk.file_exists(path)) {
        return;
    }
    program.trace.write("=========  " + std::string(name) + "  ==== " + std::string(moment) +
                        " =======");
    TextInput file(program.disk, path);
    for (std::string_view line; file.next_line(line);) {
        program.trace.write(line);
    }
    program.trace.write(std::string(32, '='));
}

}  // namespace veldrana
