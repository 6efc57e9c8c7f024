// Owns how a procedure of a run is entered: its line in the trace log, and the trap that writes its
// error line when a failure passes.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "common/run_time_error.h"
#include "common/trace_log.h"

namespace veldrana {

// What stands in front of the number in a procedure's error line; which form a procedure writes is
// part of the log's format.
struct ErrorLine {
    std::string_view prefix;

    static const ErrorLine with_name;    // "エラー発生  Private Sub cmd_henkan() ：　5"
    static const ErrorLine number_only;  // "エラー発生 ：　5"
};
inline constexpr ErrorLine ErrorLine::with_name{""};
inline constexpr ErrorLine ErrorLine::number_only{"エラー発生 ：　"};

// Writes the error line of the procedure where the failure was met. Those around it write none: in
// the log one failure is one line.
void trace_failure(TraceLog& trace, std::string_view procedure, ErrorLine form,
                   RunTimeError& error) noexcept;

// Runs the body with the procedure's trap around it.
template <class Body>
auto trap_failures(TraceLog& trace, std::string_view procedure, ErrorLine form, Body&& body) {
    try {
        return body();
    } catch (RunTimeError& error) {
        trace_failure(trace, procedure, form, error);
        throw;
    }
}

// Writes the procedure's line, such as "Private Sub cmd_henkan()", and runs the body.
template <class Body>
auto enter_procedure(TraceLog& trace, std::string_view procedure, ErrorLine form, Body&& body) {
    return trap_failures(trace, procedure, form, [&] {
        trace.write(procedure);
        return body();
    });
}

template <class Body>
auto enter_procedure(TraceLog& trace, std::string_view procedure, Body&& body) {
    return enter_procedure(trace, procedure, ErrorLine::with_name, std::forward<Body>(body));
}

}  // namespace veldrana
