#include "app/start_up.h"

#include <array>
#include <memory>

#include "app/main_screen_load.h"
#include "common/procedure.h"
#include "common/text.h"
#include "common/version.h"
#include "platform/environment.h"
#include "platform/text_file.h"
#include "qsl/history_times.h"
#include "settings/hosts.h"
#include "settings/window_positions.h"

namespace veldrana {
namespace {

// mas_mst is not among them: it comes with the program, and its contents must be there.
constexpr std::array<std::string_view, 5> folders_of_the_tree{"Temp_Files", "qsl_dir", "Error_Log",
                                                              "BackUp", "Yubin_m_new"};

// Versions are compared times a thousand and times a hundred.
constexpr double first_with_environment_file = 1250;
constexpr double first_with_these_positions = 509;

void make_missing_folder(Disk& disk, const std::string& path) {
    if (!disk.folder_exists(path)) {
        disk.make_folder(path);
    }
}

void open_trace_log(Program& program) {
    TraceLog& trace = program.trace;
    // The environment is copied into it, with the password.
    trace.open(
        std::make_unique<TextOutput>(program.disk, trace.path(), WriteMode::replace_for_owner));
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

// A start that made one of the files goes on to the environment dialog; the file itself bears the
// mark of a completed start, for the next one.
void save_as_first_start(SettingsStore& settings) {
    settings.restart = false;
    settings.write_Veldrana_new_ini();
}

// Loads the files of options and environment. Without options they are those of a new file, which
// is made; without an environment it is what is found in the usual folders, which the environment
// dialog saves.
void Check_ver(Program& program) {
    enter_procedure(program.trace, "Public Sub Check_ver()", [&] {
        SettingsStore& settings = program.settings;
        if (settings.exists(new_ini)) {
            settings.read_Veldrana_new_ini();
        } else {
            settings.set_default_options();
            settings.write_Veldrana_new_ini();
            settings.read_Veldrana_new_ini();
            save_as_first_start(settings);
        }
        if (settings.exists(cfg_ini)) {
            settings.read_Veldrana_cfg_ini();
        } else {
            settings.set_default_dirs();
            settings.read_Veldrana_new_ini();
            save_as_first_start(settings);
        }
    });
}

// What files of older versions need. Positions from before version 5.09 are of no use any more.
void check_versions(Program& program) {
    SettingsStore& settings = program.settings;
    // As it was found: writing the file brings the version up to date.
    program.start.version = settings.version;
    const double found = settings.version_number();
    if (found * 1000 < first_with_environment_file) {
        settings.write_Veldrana_cfg_ini();
    }
    if (settings.exists(cfg_ini)) {
        settings.read_Veldrana_cfg_ini();
    }
    program.start.old_version = found * 100 < first_with_these_positions;
    if (program.start.old_version && settings.exists(position_ini)) {
        program.disk.remove(settings.path(position_ini));
    }
}

void load_history_times(Program& program) {
    SettingsStore& settings = program.settings;
    if (settings.exists(history_times_ini)) {
        program.history_times = read_history_times(program.disk, program.paths.strPath);
        return;
    }
    settings.version = replace_all(replace_all(settings.version, "t", ""), "k", "");
    if (settings.exists(new_ini)) {
        settings.write_Veldrana_new_ini();
    }
}

void open_environment_dialog(Program& program) {
    write_history_times(program.disk, program.paths.strPath, program.history_times);
    program.start.reached = Start::environment_dialog;
}

bool is_unset(std::string_view text) {
    return text.empty() || text == "入力必要";
}

// A file or service that has to be there, by the names that its box gives it.
struct Needed {
    std::string_view title;
    std::string_view name;
    std::vector<std::string> what_to_do;
};

[[noreturn]] void end_without(Program& program, const Needed& needed) {
    std::vector<std::string> lines{"[　" + std::string(needed.name) + "  ] がありません。"};
    lines.insert(lines.end(), needed.what_to_do.begin(), needed.what_to_do.end());
    program.person.show({.title = "　　" + std::string(needed.title) + "　がありません。",
                         .text = spaced_lines(lines),
                         .icon = Icon::critical});
    program.trace.close();
    throw ProgramEnd{ProgramEnd::Cause::refused};
}

void require_services(Program& program) {
    const std::string& windows = program.paths.windows_folder;
    const std::string places = windows + "\\System\\ 又は " + windows + "\\System32\\";
    struct NeededService {
        Service service;
        std::string_view title;
        std::string_view name;
        std::string_view what_to_do;
    };
    constexpr std::array<NeededService, 3> all{{
        {Service::log_book_reader, "HAMLOG50．DLL", "HAMLOG50．DLL",
         "フォルダに HAMLOG50．DLL をコピーして下さい。"},
        {Service::log_book_texts, "THDLL2VB．DLL", "THDLL2VB．DLL",
         "フォルダに THDLL2VB.dll をコピーして下さい。"},
        {Service::sorter, "KSORT32．DLL", "KSORT32．DLL",
         "フォルダに KSORT32．DLL をコピーして下さい。"},
    }};
    for (const NeededService& needed : all) {
        if (!program.services.is_there(needed.service)) {
            end_without(program,
                        {needed.title, needed.name, {places, std::string(needed.what_to_do)}});
        }
    }
}

void require_files(Program& program) {
    struct NeededFile {
        std::string path;
        Needed needed;
    };
    const Paths& paths = program.paths;
    const std::string same_folder = "Veldrana．exe と同じフォルダにコピーして下さい。";
    const std::string enclosed = "同梱されているファイルを";
    const std::vector<NeededFile> all{
        {paths.strPath + "Veldrana_Rireki.cfg",
         {"Veldrana_Ｒｉｒｅｋｉ．ｃｆｇ",
          "Veldrana_Rireki．cfg",
          {"同梱されているサンプルファイルを", same_folder}}},
        {paths.hl_code_mas, {"ｈｌ_ｃｏｄｅ．ｍａｓ", "hl_code．mas", {enclosed, same_folder}}},
        {paths.contest_name_csv,
         {"ｃｏｎｔｅｓｔ_ｎａｍｅ．ｃｓｖ",
          "contest_name．csv",
          {enclosed, "Veldrana．exe と同じフォルダ内の \\mas_mst\\ フォルダにコピーして下さい。"}}},
        {paths.strPath + "Make_hl_code_mas.txt",
         {"Ｍａｋｅ_ｈｌ_ｃｏｄｅ_ｍａｓ．ｔｘｔ",
          "Make_hl_code_mas．txt",
          {enclosed, same_folder}}},
    };
    for (const NeededFile& file : all) {
        if (!program.disk.file_exists(file.path)) {
            end_without(program, file.needed);
        }
    }
}

}  // namespace

void Main(Program& program) {
    TraceLog& trace = program.trace;
    Disk& disk = program.disk;
    Paths& paths = program.paths;
    SettingsStore& settings = program.settings;
    trap_failures(trace, "Public Sub Main()", ErrorLine::with_name, [&] {
        program.read_master.window.visible = true;
        trace.set_path(free_trace_log_path(program));
        for (const std::string_view folder : folders_of_the_tree) {
            make_missing_folder(disk, paths.strPath + std::string(folder));
        }
        open_trace_log(program);
        trace_profile_files(program, "起動時");
        trace.write("Public Sub Main()");
        Check_ver(program);
        program.person.pending_events();
        check_versions(program);
        load_history_times(program);
        make_position_file(disk, paths.strPath);
        if (trim(settings.options.url_ken_all_lzh).empty()) {
            settings.options.url_ken_all_lzh = japan_post_url;
        }
        const bool complete = missing_entries(settings.environment).empty();
        if (!settings.restart || !complete || program.start.old_version) {
            open_environment_dialog(program);
            return;
        }
        paths.qsl_dir = paths.strPath + "\\qsl_dir\\";
        kettuka_disp_clear(program.counters, program.screen);
        Main2_bas_2(program);
    });
}

void Main2_bas(Program& program) {
    enter_procedure(program.trace, "Public Sub Main2_bas()", [&] {
        program.start = {};
        program.paths.windows_folder = environment_variable("WINDIR");
        require_services(program);
        require_files(program);
    });
}

void Main2_bas_2(Program& program) {
    enter_procedure(program.trace, "Public Sub Main2_bas_2()", [&] {
        SettingsStore& settings = program.settings;
        settings.refresh_end_date();
        program.End_Date_bak = settings.options.End_date;
        if (settings.options.Check1.empty()) {
            settings.options.Check1 = "1";
        }
        settings.write_Veldrana_new_ini();
        settings.read_Veldrana_new_ini();
        settings.write_Veldrana_ini();
        if (is_unset(settings.environment.MyCalls) || is_unset(settings.environment.PassWords)) {
            program.person.show({.title = "　　コールサイン、パスワードの設定が必要！",
                                 .text = "[　環境設定 ] 　にて　ＪＡＲＬ会員検索の為に\n"
                                         "貴局のコールサイン、パスワードの設定をして下さい。",
                                 .icon = Icon::warning});
        }
        show_main_screen(program);
    });
}

void trace_profile_files(Program& program, std::string_view moment) {
    for (const std::string_view name : {cfg_ini, new_ini, snapshot_ini}) {
        trace_profile_file(program.stage(), program.settings, name, moment);
    }
}

std::vector<std::string> missing_entries(const EnvironmentSettings& environment) {
    std::vector<std::string> missing;
    for (const RequiredEntry& entry : required_entries) {
        if ((environment.*entry.value).empty()) {
            missing.emplace_back(entry.key);
        }
    }
    return missing;
}

}  // namespace veldrana
