// Owns the heart of a run: each CodedLine becomes a ContestRow and a HamlogRow, with zone, name,
// code, QTH, G/L, remarks and marks decided.
#pragma once

#include <cstddef>
#include <string_view>

#include "masters/name_source.h"
#include "platform/stage.h"
#include "rows/call_sign.h"
#include "rows/past_contacts.h"
#include "rows/remark_slots.h"
#include "settings/remark_items.h"
#include "settings/run_options.h"

namespace veldrana {

// The files of the row builder in the root of the scratch drive.
constexpr std::string_view sort_in_file = "Sort-in.dat";
constexpr std::string_view sort_out_file = "Sort-out.dat";
constexpr std::string_view contest_rows_file = "temp_h_o.csv";  // ContestRows in log order
constexpr std::string_view hamlog_rows_file = "temp_h_n.csv";   // HamlogRows in log order

struct RowRequest {
    std::string_view in_Dir;
    std::string_view drive_path;
    const RunOptions& options;
    const RemarkLayout& layout_1;
    const RemarkLayout& layout_2;
    const RemarkLengths& lengths;
    StationSources sources;
    std::string_view contest_name = {};  // for the remark item; empty: none
    PastContacts* past = nullptr;        // null: no contact of the past counts
};

// Reads zlog_2.txt, which must hold a contact (else failure 62), and writes Sort-in.dat and the two
// row files. The past and the masters that are read anew for each pass are read here. Returns how
// often a contact was marked as needing no card; one that two rules mark counts twice.
std::size_t build_rows(const Stage& stage, const RowRequest& request, CallMemory& memory);

}  // namespace veldrana
