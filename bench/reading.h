// The reader of .ALL logs, set up to be measured: memo, operator and frequency in use.
#pragma once

#include <cstddef>

#include "bench/silent_stage.h"
#include "readers/zlog_text.h"

namespace veldrana {

class Reading {
  public:
    // The folder becomes drive C:.
    explicit Reading(const std::filesystem::path& folder) : silent_(folder) {
        use_.mark(RemarkItem::memo);
        use_.mark(RemarkItem::op);
    }

    // Reads a log of the folder and writes zlog_1.txt beside it; the count of its contacts.
    std::size_t read(const std::string& name) {
        const std::string in_name = "C:\\" + name;
        return a_2_t(silent_.stage(),
                     {.in_name = in_name, .in_Dir = "C:\\", .options = options_, .use = use_});
    }

  private:
    SilentStage silent_;
    RunOptions options_;
    RemarkUse use_;
};

}  // namespace veldrana
