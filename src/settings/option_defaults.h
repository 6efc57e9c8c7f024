// Owns the texts that options start from, where more than one place needs them, and those that take
// the place of an empty one: not all are the same.
#pragma once

#include <string_view>

namespace veldrana {

// Which source ranks higher, for name, code and QTH alike; of a new file and for an empty list.
constexpr std::string_view default_priority = "dat_mas,name_mas,qth_mas,Text_data";

// Column widths of both grid editors, in twips.
constexpr std::string_view default_grid_columns =
    "600,1300,850,700,400,400,800,450,900,900,550,1800,3700,7100,7100,400";

constexpr std::string_view first_period_day = "19600101";
// What a run takes for the end of the period if none is known.
constexpr std::string_view end_without_date = "20100101";

// Slots and lengths when one of the lists is empty; a new file has others.
constexpr std::string_view fallback_slots_1 = "ｺﾝﾃｽﾄ,Rmks1,,,,,";
constexpr std::string_view fallback_slots_2 = "Rmks2,,,,,,";
constexpr std::string_view fallback_lengths = "0,0,0,0,0,0,";

// The mark written for a member of the JARL if none is set.
constexpr std::string_view default_member_mark = "K";

}  // namespace veldrana
