// Settings as an earlier start, or a user by hand, has left them on the disk of a program kit, and
// a start that comes after another on the same disk.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tests/app/program_kit.h"

namespace veldrana {

inline void put_value(ProgramKit& kit, std::string_view file, std::string_view section,
                      std::string_view key, std::string_view value) {
    ProfileFile profile(kit.memory, kit.program->paths.strPath + std::string(file));
    profile.set_value(section, key, value);
    if (!profile.save()) {
        throw std::runtime_error("cannot prepare " + std::string(file));
    }
}

// A value of the option file's main section.
inline void put_option(ProgramKit& kit, std::string_view key, std::string_view value) {
    put_value(kit, new_ini, new_ini, key, value);
}

// An entry of the environment.
inline void put_entry(ProgramKit& kit, std::string_view key, std::string_view value) {
    put_value(kit, cfg_ini, cfg_ini, key, value);
}

inline void remove_key(ProgramKit& kit, std::string_view file, std::string_view section,
                       std::string_view key) {
    ProfileFile profile(kit.memory, kit.program->paths.strPath + std::string(file));
    std::vector<ProfileFile::Entry> entries = profile.entries(section);
    std::erase_if(entries, [key](const ProfileFile::Entry& entry) { return entry.key == key; });
    profile.set_entries(section, entries);
    if (!profile.save()) {
        throw std::runtime_error("cannot prepare " + std::string(file));
    }
}

// A station that uses the name, the QTH and the postal master.
inline void use_all_masters(ProgramKit& kit) {
    put_entry(kit, "name_mas_dir", "C:\\hamlog\\");
    put_entry(kit, "qth_mas_dir", "C:\\hamlog\\qth_mas.txt");
    put_entry(kit, "yubin_mas_dir", "C:\\hamlog\\");
    const std::string_view master = "heading\r\nheading\r\n JA1ZZA山田\r\n";
    kit.put_text("C:\\hamlog\\name_mas.txt", master);
    kit.put_text("C:\\hamlog\\qth_mas.txt", master);
    for (const char digit : std::string_view("0123456789")) {
        kit.put_text(std::string("C:\\hamlog\\yubin_m") + digit + ".mas", master);
    }
}

constexpr std::string_view user_text_a = "C:\\hamlog\\alpha.txt";
constexpr std::string_view user_text_b = "C:\\hamlog\\bravo.txt";
constexpr std::string_view user_text_bytes =
    "Hamlog user text\r\n |ｺｰﾙｻｲﾝ|__氏  名___|_code_|__________ＱＴＨ___________|\r\n"
    " JA1ZZA山田        100101東京都千代田区\r\n";

// The path is in the option file and the file is there.
inline void set_user_text_a(ProgramKit& kit) {
    kit.put_text(user_text_a, user_text_bytes);
    put_option(kit, "Text_data_dir_A", user_text_a);
}
inline void set_user_text_b(ProgramKit& kit) {
    kit.put_text(user_text_b, user_text_bytes);
    put_option(kit, "Text_data_dir_B", user_text_b);
}

// The program once more on the disk of the kit.
struct NextStart {
    explicit NextStart(ProgramKit& kit)
        : program(Ports{kit.disk, kit.clock, kit.person, kit.sorter, kit.services, kit.log_book,
                        kit.processes},
                  kit.program->paths.strPath, "C:\\WINDOWS") {
        program.event([this] { Main(program); });
    }
    Start::Reached reached() const { return program.start.reached; }

    Program program;
    MainScreen& screen = program.screen;
};

inline bool is_enabled(const OptionGroup& group, std::size_t button) {
    return group.enabled && group.buttons.get().at(button).enabled;
}

}  // namespace veldrana
