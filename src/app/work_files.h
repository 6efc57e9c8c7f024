// Owns how work files are deleted: never the chosen log, whatever pattern its name fits.
#pragma once

#include <initializer_list>
#include <string_view>

#include "app/program.h"

namespace veldrana {

// Deletes the files of a folder (with a backslash at its end) that fit one of the patterns, if
// there are any. An empty folder means that none is known yet: nothing is deleted.
void remove_files(Program& program, std::string_view folder,
                  std::initializer_list<std::string_view> patterns);

// The same for one file by its full path.
void remove_if_there(Program& program, std::string_view path);

}  // namespace veldrana
