// Owns Cabrillo, the public form of contest logs: a heading line with "START-OF-LOG:", then a
// contact in each line with "QSO:"; docs/formats/cabrillo.md has the tokens. All other lines are
// passed over.
//
// Nothing is checked beyond that: "QSO:" counts wherever it stands in a line, and a line of fewer
// tokens than a contact has is failure 9.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/stage.h"
#include "readers/log_request.h"

namespace veldrana {

// Whether the first line holds "START-OF-LOG:"; a file without a line has none.
bool is_cabrillo(const Stage& stage, std::string_view in_name);

// How many lines hold "QSO:", the first one included.
std::size_t count_in_name_cbr(const Stage& stage, std::string_view in_name);

struct CabrilloContacts {
    std::size_t counted = 0;  // by count_in_name_cbr, which runs first
    std::size_t kept = 0;
};

// Writes zlog_1.txt anew. The first line is dropped without a look (failure 62 if there is none).
// A contact has no operator, memo or frequency; so with Check15 and a name none is kept.
CabrilloContacts henkan_cbr_2_t(const Stage& stage, const LogRequest& request);

// The band that is written for a frequency in kilohertz; empty for one between the bands.
std::string_view cabrillo_band(double kilohertz) noexcept;

}  // namespace veldrana
