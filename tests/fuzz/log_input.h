// A log as a file, and the options that its reader is told. These go by the length of the log, so
// that a fuzzer comes to all of them by itself.
#pragma once

#include "readers/log_request.h"
#include "tests/fuzz/fuzz_stage.h"

namespace veldrana {

class LogInput {
  public:
    static constexpr std::string_view path = "C:\\log\\x.log";
    static constexpr std::string_view lines_file = "C:\\log\\zlog_1.txt";

    explicit LogInput(std::string_view bytes) : fuzz(path, bytes) {
        const std::size_t length = bytes.size();
        options_.Check01 = length % 2 == 0;
        options_.Check15 = length % 3 == 0;
        options_.txtOp_name = length % 6 == 0 ? "A" : "";
        options_.Check27 = length % 4 == 0;
        options_.Check28 = length % 5 != 0;
        options_.txtYYYY = "2025";
        if (length % 7 != 0) {
            use_.mark(RemarkItem::memo);
            use_.mark(RemarkItem::op);
        }
        if (length % 11 == 0) {
            use_.mark(RemarkItem::memo_equals);
        }
    }

    LogRequest request() const { return request_for(path); }
    // The same for a text that was made of the log.
    LogRequest request_for(std::string_view in_name) const {
        return {.in_name = in_name, .in_Dir = "C:\\log\\", .options = options_, .use = use_};
    }

    FuzzStage fuzz;

  private:
    RunOptions options_;
    RemarkUse use_;
};

}  // namespace veldrana
