// Owns paths as the program writes them: drive letter, colon, folders between backslashes, name. A
// slash, which no name can hold, separates like a backslash.
// They are plain text here; platform/disk.h gives them their files.
#pragma once

#include <string>
#include <string_view>

namespace veldrana {

struct FilePath {
    std::string_view drive;      // "C:", empty if the path names none
    std::string_view folder;     // up to and with the last separator, or the drive alone
    std::string_view name;       // behind the folder
    std::string_view base_name;  // the name in front of its last point
    std::string_view extension;  // behind the last point of the name, without the point
};

// Views of the path.
FilePath split_path(std::string_view path) noexcept;

// Whether a file may have this name: none of the characters that file systems and patterns keep for
// themselves.
bool is_possible_name(std::string_view name) noexcept;

bool has_backslash(std::string_view path) noexcept;

// The folder with one backslash at its end, added if it does not end in one.
std::string with_backslash(std::string_view folder);

// Whether a name fits a pattern: "?" stands for one character, "*" for any number of them; letters
// compare without regard to case.
bool matches(std::string_view name, std::string_view pattern);

// A path as a label shows it in a width of bytes: one that is longer keeps its start and its last
// piece, with "...\" between, and its blanks, full-width ones too, become "_". A last piece that
// leaves no room is shown alone, in whole.
std::string shortened_path(std::string_view path, std::size_t width);

}  // namespace veldrana
