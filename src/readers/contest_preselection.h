// Owns the guess from the name of a log to its contest in the list.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "masters/contest_list.h"

namespace veldrana {

// What is looked for in the name of a log, all in capitals.
struct ContestKeys {
    std::string by_settings_file;  // key A: Cfg_name without ".CFG"
    std::string by_data_file;      // key B: Dat_name without ".DAT", ".MAS", ".MST"
    std::string by_name;           // key C: Con_name without words that many have, cut in front of
                                   // the first parenthesis of either width
};

ContestKeys keys_of(const ContestEntry& entry);

// The rows to select one after the other, counted from 0; the last one stays. A key hits where it
// occurs in the log's name, so an empty one hits everywhere; the first hit counts, and one in row 0
// is none. Key A is looked for from row 64 on alone. B goes before C, and both before A.
std::vector<std::size_t> preselected_rows(const std::vector<ContestKeys>& rows,
                                          std::string_view in_name);

}  // namespace veldrana
