// Owns one record of an ADIF log: which of its tags are read, and what each gives. A tag counts
// wherever its text stands in a piece between two "<", in either case and within longer names too,
// so that <EQ_CALL:6> is a call; the length that it states is not used.
#pragma once

#include <string>
#include <string_view>

#include "settings/run_options.h"

namespace veldrana {

// Views of the text that was read, or of texts of the record's own; valid until either changes.
struct AdifRecord {
    std::string_view call = {};
    std::string_view frequency = {};  // in MHz, at most seven characters
    std::string_view band = {};       // as ADIF names it: 20M
    std::string_view mode = {};       // not trimmed
    std::string_view report_sent = {};
    std::string_view report_received = {};
    std::string_view date = {};  // yyyymmdd
    std::string_view year = {};
    std::string_view time = {};  // HHMM
    std::string_view code = {};  // the number received

    std::string exchange = {};  // behind the code, where letters were taken out
};

// Replaces what the record holds by what the text of one record gives. Check27 takes the letters H,
// M, L and P out of APP_N1MM_EXCHANGE1, Check28 makes the code of it. Of frequency and band, as
// soon as one is known, the other follows. Failure 6 for a frequency that no number holds.
void read_adif_record(std::string_view text, const RunOptions& options, AdifRecord& record);

// In MHz, for a name of either case; empty for others. Three of the shortest bands lack their
// thousands; kept.
std::string_view frequency_of_adif_band(std::string_view band);

// The name of the band; empty beside the bands of the table. "10G" is 3CM too. Failure 6 for a
// number that is too large.
std::string_view adif_band_of_frequency(std::string_view frequency);

}  // namespace veldrana
