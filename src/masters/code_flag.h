// Owns Code_flag, the two digits with which the contest list tells how a contest's numbers become
// codes: the first is the code type, the second the kind of the data file. It is held as text; a
// digit of another meaning has no caption and no search.
#pragma once

#include <optional>
#include <string_view>

namespace veldrana {

// The flag of a contest whose numbers no data file turns into codes.
constexpr std::string_view no_code_flag = "00";

// What the code type is called on the screen.
std::optional<std::string_view> code_type_caption(std::string_view Code_flag);

// Which data file the flag asks for, as the contest dialog tells it.
std::optional<std::string_view> data_kind_caption(std::string_view Code_flag);
// The same in the words of the box about the chosen data file, which has none for the digit 4.
std::optional<std::string_view> data_kind_information(std::string_view Code_flag);

// Whether that file lies in the folder of the logger's data files; if not, in mas_mst.
bool kind_lies_in_dat_folder(std::string_view Code_flag);

// How a data file is searched, by the whole flag.
enum class DatSearch { none, exact, prefix };
DatSearch search_of(std::string_view Code_flag);

// What is searched for a trimmed number, by the code type: of type 3 the digits at its head, of
// type 4 what stands in front of its first digit, of the others the number whole. A piece of the
// number.
std::string_view searched_number(std::string_view Code_flag, std::string_view number);

}  // namespace veldrana
