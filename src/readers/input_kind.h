// Owns the kinds of input log that the program tells apart.
#pragma once

#include <optional>
#include <string_view>

namespace veldrana {

// f_type of a run.
enum class InputKind {
    all,       // zLog text, .ALL
    txt,       // zLog text, .TXT
    cbr,       // Cabrillo
    ADIF,      // N1MM Logger
    zlo,       // zLog binary
    lg8,       // Ctestwin
    log_v4,    // RTCL
    log_v430,  // RTCL 4.30
};

// The kind that a text log's extension stands for; nothing for any other. To add a kind,
// add it here, its reader beside the others, and its row to the input stage of the driver.
std::optional<InputKind> kind_of_extension(std::string_view path);

}  // namespace veldrana
