// Owns from which of its sources a row takes its name, its code and its QTH.
#pragma once

#include <string_view>

#include "masters/name_source.h"
#include "settings/run_options.h"

namespace veldrana {

// What the sources say of one contact, after their filters; blank where a source has nothing.
struct Candidates {
    StationData dat_mas;
    StationData name_mas;
    StationData qth_mas;
    StationData text_data;
};

// Clears the fields that the options do not want of a source.
void filter_qth_mas(const RunOptions& options, bool portable, StationData& found);
void filter_text_data(const RunOptions& options, bool portable, StationData& found);

// Each takes the value of the place that ranks highest in its priority list and has one, looking at
// the first three places; what the column held before stays if there is none. In the code column,
// place 2 takes the code of Text_data if name_mas has one; kept.
std::string_view choose_name(const RunOptions& options, const Candidates& candidates);
std::string_view choose_code(const RunOptions& options, const Candidates& candidates,
                             std::string_view before);
std::string_view choose_qth(const RunOptions& options, const Candidates& candidates,
                            std::string_view before);

}  // namespace veldrana
