// Owns how a failure ends the program: the report to the person, and the end itself.
#pragma once

#include "common/person.h"
#include "common/run_time_error.h"
#include "common/trace_log.h"

namespace veldrana {

// Thrown to leave everything that is under way when the program ends. Not a failure: nobody but
// the program's outermost frame (app/program.h) catches it.
struct ProgramEnd {
    enum class Cause {
        orderly,   // the user ended it
        refused,   // something that must be there is missing; a box has told what
        reported,  // a failure, told in the error report
        silent,    // the log book cannot be opened, which nobody tells; kept
    };
    Cause cause;
};

// Writes the failure's description to the trace log, shows the error report, thanks and ends. A
// trace log that can no longer be written does not keep the report from the person.
[[noreturn]] void fatal_error_exit(TraceLog& trace, Person& person, const RunTimeError& error);

// Asks for patience, closes the trace log and ends the program.
[[noreturn]] void fatal_error_thanks(TraceLog& trace, Person& person);

}  // namespace veldrana
