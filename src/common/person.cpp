#include "common/person.h"

namespace veldrana {

namespace {

template <class Lines>
std::string with_empty_lines_between(const Lines& lines) {
    std::string text;
    const char* separator = "";
    for (const std::string_view line : lines) {
        text.append(separator).append(line);
        separator = "\n\n";
    }
    return text;
}

}  // namespace

std::string spaced_lines(std::initializer_list<std::string_view> lines) {
    return with_empty_lines_between(lines);
}

std::string spaced_lines(const std::vector<std::string>& lines) {
    return with_empty_lines_between(lines);
}

}  // namespace veldrana
