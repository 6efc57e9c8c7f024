// Owns the two kinds of boxes with which the program ends where something is missing.
#pragma once

#include <string>

#include "common/person.h"

namespace veldrana {

// The title of the boxes about a missing file.
constexpr const char* missing_file_title = "　　エラー　：　必要ファイルがありません。";

// Shows the box and ends the program.
[[noreturn]] void show_and_end(Person& person, std::string title, std::string text);

// Asks whether to go on; "cancel" ends the program.
void retry_or_end(Person& person, std::string title, std::string text);

}  // namespace veldrana
