// Owns the door between text inside the program (UTF-8) and the bytes of its files: Shift_JIS in
// its Windows form, code page 932, with the NEC and IBM rows. Nothing else in the program knows a
// Shift_JIS byte.
//
// Reading loses nothing: bytes that are no character stand inside as the private characters of
// common/text.h and come out as they went in. Characters that the page holds twice come out in the
// code that Windows prefers. Writing a character that the page lacks gives "?".
#pragma once

#include <string>
#include <string_view>

#include "common/text.h"

namespace veldrana {

void append_from_code_page(std::string& text, std::string_view bytes);
void append_to_code_page(std::string& bytes, std::string_view text);

std::string from_code_page(std::string_view bytes);
std::string to_code_page(std::string_view text);

// A piece of the text by the bytes of its code page form, start counted from 1, which may begin or
// end within a character: what is left of it then stands as bytes of its own. A negative count is
// failure 5.
std::string middle_bytes(std::string_view text, Count start, Count count);

}  // namespace veldrana
