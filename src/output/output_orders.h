// Owns the orders of the result files: the log's own, and the JARL's order of call signs, forward
// and reversed, for the log book file and, where stations stand together, for the contest file.
#pragma once

#include "output/output_request.h"
#include "platform/stage.h"

namespace veldrana {

// temp_h_n.csv to _h0.csv in the order that the options choose, with a side list for the cards:
// NO_SORT and ascii_sort, which both keep the log's order, jarl_sort_a_h or jarl_sort_r_h.
void order_hamlog_file(const Stage& stage, const OutputRequest& request);

// temp_s.csv, keyed rows of the contest key, to itself as keyed rows in JARL order.
void jarl_sort_a(const Stage& stage, const OutputRequest& request);
void jarl_sort_r(const Stage& stage, const OutputRequest& request);

}  // namespace veldrana
