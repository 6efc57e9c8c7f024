#include "app/work_files.h"

namespace veldrana {

void remove_files(Program& program, std::string_view folder,
                  std::initializer_list<std::string_view> patterns) {
    if (folder.empty()) {
        return;
    }
    for (const std::string_view pattern : patterns) {
        remove_matching(program.disk, std::string(folder).append(pattern), program.log.chosen);
    }
}

void remove_if_there(Program& program, std::string_view path) {
    remove_matching(program.disk, path, program.log.chosen);
}

}  // namespace veldrana
