#include "common/person.h"

namespace veldrana {

std::string spaced_lines(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines) {
        if (!text.empty()) {
            text += "\n\n";
        }
        text += line;
    }
    return text;
}

}  // namespace veldrana
