// Owns what the program asks of its process's environment.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace veldrana {

// The value of an environment variable as well-formed text; empty if it is not set.
std::string environment_variable(std::string_view name);

// The folder in which the program's file lies, as far as the system tells it; else what the first
// word of the command line says.
std::filesystem::path executable_folder(const char* first_word);

}  // namespace veldrana
