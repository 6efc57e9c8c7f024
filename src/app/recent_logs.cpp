#include "app/recent_logs.h"

#include <algorithm>
#include <vector>

#include "app/open_other_logs.h"
#include "common/procedure.h"

namespace veldrana {
namespace {

std::string list_path(const Program& program) {
    return program.paths.strPath + std::string(recent_logs_file);
}

std::vector<std::string> shown_logs(const MainScreen& screen) {
    std::vector<std::string> logs;
    for (const RecentEntry& entry : screen.mnuRecent) {
        if (!entry.caption.get().empty()) {
            logs.push_back(entry.caption);
        }
    }
    return logs;
}

void show(MainScreen& screen, std::vector<std::string> logs) {
    logs.resize(RecentEntries::size());
    for (std::size_t i = 0; i < logs.size(); ++i) {
        screen.mnuRecent[i].visible = !logs[i].empty();
        screen.mnuRecent[i].caption = logs[i];
    }
    screen.mnuRecentHead.enabled = !logs.front().empty();
}

void keep(Program& program, const std::vector<std::string>& logs) {
    try {
        TextOutput output(program.disk, list_path(program));
        for (const std::string& log : logs) {
            output.write_line(log);
        }
        output.close();
    } catch (const RunTimeError&) {
        return;
    }
}

}  // namespace

void load_recent_logs(Program& program) {
    std::vector<std::string> logs;
    try {
        if (program.disk.file_exists(list_path(program))) {
            TextInput input(program.disk, list_path(program));
            for (std::string_view line;
                 logs.size() < RecentEntries::size() && input.next_line(line);) {
                logs.emplace_back(line);
            }
        }
    } catch (const RunTimeError&) {
        logs.clear();
    }
    show(program.screen, std::move(logs));
}

void note_recent_log(Program& program, const std::string& path) {
    std::vector<std::string> logs = shown_logs(program.screen);
    std::erase(logs, path);
    logs.insert(logs.begin(), path);
    logs.resize(std::min(logs.size(), RecentEntries::size()));
    show(program.screen, logs);
    keep(program, logs);
}

void mnuRecent_Click(Program& program, std::size_t entry) {
    enter_procedure(program.trace, "Private Sub mnuRecent_Click()", [&] {
        const std::string path = program.screen.mnuRecent[entry].caption;
        if (program.disk.file_exists(path)) {
            open_log(program, path);
            return;
        }
        std::vector<std::string> logs = shown_logs(program.screen);
        std::erase(logs, path);
        show(program.screen, logs);
        keep(program, logs);
        program.person.show({.text = path + "\nがありません。", .icon = Icon::warning});
    });
}

}  // namespace veldrana
