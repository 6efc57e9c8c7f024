#include "common/person.h"

namespace veldrana {

std::string spaced_lines(std::initializer_list<std::string_view> lines) {
    std::string text;
    const char* separator = "";
    for (const std::string_view line : lines) {
        text.append(separator).append(line);
        separator = "\n\n";
    }
    return text;
}

}  // namespace veldrana
