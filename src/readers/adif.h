// Owns ADIF logs as N1MM Logger writes them: free text up to a line with <EOH>, then records, each
// ended by <EOR>; docs/formats/adif.md has the tags. Lines are looked at without regard to case.
//
// Nothing is checked: a heading without <EOH> costs the first twenty lines, what stands behind it
// is taken for records, and a record of more than five lines is cut into several.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/stage.h"
#include "readers/log_request.h"

namespace veldrana {

// Whether some line holds "<CALL:".
bool is_adif(const Stage& stage, std::string_view in_name);

// How many lines hold "<CALL:".
std::size_t count_in_name_ADIF(const Stage& stage, std::string_view in_name);

// Writes zlog_1.txt anew; how many records were kept. A record without a call is written too. The
// band is the text of the record, 20M. Frequency and number go by the record alone, not by Check01.
// No record has an operator or a memo; so with Check15 and a name none is kept.
std::size_t henkan_ADIF_2_t(const Stage& stage, const LogRequest& request);

}  // namespace veldrana
