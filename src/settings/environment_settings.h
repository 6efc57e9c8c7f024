// Owns the station's environment: where things are, who the operator is, and the letter for "no
// card". Each text stands under the name of its key.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace veldrana {

// What stands in the place of a master's path if the station does not use that master.
constexpr std::string_view not_used = "使用しない";

// Folders end in a backslash; empty: not set.
struct EnvironmentSettings {
    std::string zlog_dat_dir;          // folder of the contest data files of the logger
    std::string name_mas_dir;          // folder of name_mas.txt
    std::string qth_mas_dir;           // full path of qth_mas.txt
    std::string yubin_mas_dir;         // folder of yubin_m?.mas
    std::string hamlog_hdb_dir;        // full path of the log book's database
    std::string hamlog_hdb_2_dir;      // of the second one
    std::string zlo_dir;               // where the dialog for .ZLO logs starts
    std::string all_dir;               // where the dialog for .ALL and .TXT logs starts
    std::string MyCalls;               // the operator's call signs
    std::string PassWords;             // for the member search, as typed
    std::string dir_pad;               // the text editor that the maker of hl_code.mas starts
    std::string master_name;           // kept, read by nothing
    std::string No_QSL_moji;           // the letter for "no card", one character
    std::string No_QSL_moji_set_flag;  // "1" once the letter was given a value
};

// The entries without which the program does not start.
struct RequiredEntry {
    std::string_view key;
    std::string EnvironmentSettings::*value;
};
constexpr std::array<RequiredEntry, 8> required_entries{{
    {"zlog_dat_dir", &EnvironmentSettings::zlog_dat_dir},
    {"name_mas_dir", &EnvironmentSettings::name_mas_dir},
    {"qth_mas_dir", &EnvironmentSettings::qth_mas_dir},
    {"yubin_mas_dir", &EnvironmentSettings::yubin_mas_dir},
    {"hamlog_hdb_dir", &EnvironmentSettings::hamlog_hdb_dir},
    {"hamlog_hdb_2_dir", &EnvironmentSettings::hamlog_hdb_2_dir},
    {"zlo_dir", &EnvironmentSettings::zlo_dir},
    {"all_dir", &EnvironmentSettings::all_dir},
}};

// The masters that this run uses: as their entries say when they are read, and as the environment
// dialog has it since.
struct MastersInUse {
    bool name_mas = false;
    bool qth_mas = false;
    bool yubin_mas = false;
};

// Whether the station uses a master, by the text of its entry.
inline bool is_used(std::string_view master_entry) {
    return master_entry != not_used;
}

}  // namespace veldrana
