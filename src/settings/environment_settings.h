// Owns the paths that belong to the station rather than to a run.
#pragma once

#include <string>

namespace veldrana {

// Folders end in a backslash; empty: not set.
struct EnvironmentSettings {
    std::string all_dir;  // where the dialog for .ALL and .TXT logs starts
    // The user texts of the log book, of which one may be used.
    std::string Text_data_dir_A;
    std::string Text_data_dir_B;
    std::string name_mas_dir;  // in use if it holds a backslash, and so the next one
    std::string qth_mas_dir;
};

}  // namespace veldrana
