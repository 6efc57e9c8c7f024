#include "common/text_lines.h"

#include "common/run_time_error.h"

namespace veldrana {

std::string_view read_line(LineSource& source) {
    std::string_view line;
    if (!source.next_line(line)) {
        throw RunTimeError(Failure::input_past_end);
    }
    return line;
}

}  // namespace veldrana
