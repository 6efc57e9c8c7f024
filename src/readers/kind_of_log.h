// Owns how a log tells its kind where nobody has said it: by its extension, and where several kinds
// share one by what it holds.
#pragma once

#include <optional>
#include <string_view>

#include "platform/disk.h"
#include "readers/input_kind.h"

namespace veldrana {

// .all, .txt (of zLog by its heading, else Cabrillo), .zlo, .cbr, .adi, .lg8, .log (of RTCL if it
// begins with "0" and its length is that of whole records, else Cabrillo). Nothing for any other
// extension; a file that cannot be read is what its extension tells first.
std::optional<InputKind> kind_of_log(Disk& disk, std::string_view path);

}  // namespace veldrana
