#include "common/file_path.h"

#include <algorithm>

#include "common/text.h"

namespace veldrana {
namespace {

// Both folded to upper case already.
bool fits(std::string_view name, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t in_pattern = 0;
    // Where to go on if the part behind the last "*" does not fit: one character further.
    std::size_t star = std::string_view::npos;
    std::size_t retry = 0;
    while (at < name.size()) {
        const std::size_t step = character_at(name, at).size;
        if (in_pattern < pattern.size() && pattern[in_pattern] == '*') {
            star = in_pattern++;
            retry = at;
        } else if (in_pattern < pattern.size() && pattern[in_pattern] == '?') {
            ++in_pattern;
            at += step;
        } else if (in_pattern < pattern.size() &&
                   pattern.substr(in_pattern).starts_with(name.substr(at, step))) {
            in_pattern += step;
            at += step;
        } else if (star != std::string_view::npos) {
            retry += character_at(name, retry).size;
            at = retry;
            in_pattern = star + 1;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', in_pattern) == std::string_view::npos;
}

}  // namespace

FilePath split_path(std::string_view path) noexcept {
    FilePath parts;
    parts.drive = path.size() > 1 && path[1] == ':' ? path.substr(0, 2) : std::string_view{};
    const std::size_t name = std::max(path.find_last_of("\\/") + 1, parts.drive.size());
    parts.folder = path.substr(0, name);
    parts.name = path.substr(name);
    const std::size_t point = parts.name.rfind('.');
    parts.base_name = parts.name.substr(0, point);
    if (point != std::string_view::npos) {
        parts.extension = parts.name.substr(point + 1);
    }
    return parts;
}

bool is_possible_name(std::string_view name) noexcept {
    return name.find_first_of(std::string_view(":*?\"<>|\0", 8)) == std::string_view::npos;
}

bool has_backslash(std::string_view path) noexcept {
    return path.find('\\') != std::string_view::npos;
}

std::string with_backslash(std::string_view folder) {
    std::string result(folder);
    if (!folder.ends_with('\\')) {
        result += '\\';
    }
    return result;
}

bool matches(std::string_view name, std::string_view pattern) {
    return fits(upper(name), upper(pattern));
}

std::string shortened_path(std::string_view path, std::size_t width) {
    if (LenMbcs(path) <= width) {
        return std::string(path);
    }
    const std::string tail = "...\\" + std::string(split_path(path).name);
    const std::size_t tail_width = LenMbcs(tail);
    const std::size_t room = width > tail_width ? width - tail_width : 0;
    std::string shown(MidMbcs(path, 1, static_cast<Count>(room)));
    shown += tail;
    return replace_all(replace_all(shown, " ", "_"), "　", "_");
}

}  // namespace veldrana
