// Owns the log book's own libraries, where they are installed: HAMLOG50.DLL and THDLL2VB.DLL, which
// exist for 32-bit programs on Windows alone.
#pragma once

#include <memory>

#include "platform/hamlog_library.h"

namespace veldrana {

// Null where the libraries are not there or lack one of the seven operations, and for every program
// that could not load them.
std::unique_ptr<HamlogLibrary> installed_hamlog_library();

}  // namespace veldrana
