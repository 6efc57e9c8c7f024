#include "app/work_files.h"

#include "common/text.h"

namespace veldrana {

void remove_files(Program& program, std::string_view folder,
                  std::initializer_list<std::string_view> patterns) {
    if (folder.empty()) {
        return;
    }
    const std::string log = upper(program.log.in_name);
    for (const std::string_view pattern : patterns) {
        for (const std::string& name : program.disk.names(std::string(folder).append(pattern))) {
            const std::string path = std::string(folder) + name;
            if (upper(path) != log) {
                program.disk.remove(path);
            }
        }
    }
}

}  // namespace veldrana
