#include "app/paths.h"

#include "common/file_path.h"
#include "common/text.h"

namespace veldrana {

Paths make_paths(std::string_view program_folder, std::string_view windows_folder) {
    const std::string strPath = with_backslash(program_folder);
    return {.strPath = strPath,
            .drive_path = std::string(left(strPath, 3)),
            .hl_code_mas = strPath + "hl_code.mas",
            .mas_mst = strPath + "mas_mst\\",
            .contest_name_csv = strPath + "mas_mst\\contest_name.csv",
            .Temp_Files = strPath + "\\Temp_Files\\",
            .qsl_dir = {},
            .windows_folder = std::string(windows_folder)};
}

}  // namespace veldrana
