// Owns the last pass of a run: HamlogRows become HamlogV5Rows, the result files that the log book
// imports, fifteen columns each.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/stage.h"

namespace veldrana {

struct LastPassRequest {
    std::string_view rows_file;          // _h0.csv or _c0.csv
    std::string_view intermediate_file;  // _hj.csv or _cj.csv: call in two columns
    std::string_view result_file;        // _hjn.csv or _cjn.csv
    std::string_view No_QSL_moji;
    std::string_view txtQSL_S;
};

// Returns how many rows have a name that is not blank. The rows must hold one at least, else
// failure 62.
std::size_t write_results(const Stage& stage, const LastPassRequest& request);

}  // namespace veldrana
