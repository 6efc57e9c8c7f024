// Owns the program's version, as the trace log, the option files and the title show it.
#pragma once

#include <string_view>

namespace veldrana {

constexpr std::string_view program_version = "5.30";

}  // namespace veldrana
