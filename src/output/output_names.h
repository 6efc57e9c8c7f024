// Owns the names of the files that a run makes beside its log.
#pragma once

#include <string>
#include <string_view>

namespace veldrana {

// Full paths. In the log's path "." and the extension are replaced by a suffix wherever they stand:
// a folder whose name holds them is hit too. Kept: operators know their files by these names. A log
// without an extension gets the suffix at its end.
struct OutputNames {
    std::string out_name_conj0;     // _c0.csv
    std::string out_name_hamj0;     // _h0.csv
    std::string out_name_conj;      // _cj.csv
    std::string out_name_hamj;      // _hj.csv
    std::string out_name_conj_new;  // _cjn.csv, the contest file
    std::string out_name_hamj_new;  // _hjn.csv, the log book file
};

OutputNames make_output_names(std::string_view in_name);

// The text that a run makes of an RTCL log: _log2a.all, by the same rule.
std::string log2a_name(std::string_view in_name);

// The dupe list of a log: the path up to its first point, which may stand in a folder's name, and
// "dup" behind it.
std::string dup_name(std::string_view in_name);

}  // namespace veldrana
