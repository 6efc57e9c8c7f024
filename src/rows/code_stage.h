// Owns the code stages: LogLines become CodedLines, with the code and the QTH that a master gives
// for the number received. Each master is a CodeSource; what is the same for all stands here.
#pragma once

#include <string_view>

#include "masters/code_source.h"
#include "platform/stage.h"
#include "settings/run_options.h"

namespace veldrana {

// The code stage without a master: code and QTH stay empty, the number received is trimmed. Reads
// zlog_1.txt and writes zlog_2.txt in the folder of the log.
void bak_sep3(const Stage& stage, std::string_view in_Dir, const RunOptions& options);

}  // namespace veldrana
