// Owns the folders and files that the program finds its way by. Everything lives beside the
// program: its folder is the application.
#pragma once

#include <string>
#include <string_view>

namespace veldrana {

// Folders end in a backslash.
struct Paths {
    std::string strPath;     // the program's folder
    std::string drive_path;  // root of the drive whose root holds the scratch files
    std::string hl_code_mas;
    std::string mas_mst;
    std::string contest_name_csv;
    std::string Temp_Files;  // holds a doubled backslash, as paths in the field do
    std::string qsl_dir;     // empty until a normal start has set it
    std::string windows_folder;
};

Paths make_paths(std::string_view program_folder, std::string_view windows_folder);

}  // namespace veldrana
