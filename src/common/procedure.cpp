#include "common/procedure.h"

namespace veldrana {

void trace_failure(TraceLog& trace, std::string_view procedure, ErrorLine form,
                   RunTimeError& error) noexcept {
    if (error.traced()) {
        return;
    }
    error.mark_traced();
    try {
        std::string line(form.prefix);
        if (line.empty()) {
            line.append(TraceLog::failure_mark).append("  ").append(procedure).append(" ：　");
        }
        trace.write(line + std::to_string(error.number()));
    } catch (...) {
        // On a full disk the log cannot take the line either; the report on the screen tells it.
        return;
    }
}

}  // namespace veldrana
