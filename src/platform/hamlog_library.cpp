#include "platform/hamlog_library.h"

#include "platform/installed_hamlog_library.h"
#include "platform/log_book_file.h"

namespace veldrana {

std::unique_ptr<HamlogLibrary> make_hamlog_library(Disk& disk) {
    std::unique_ptr<HamlogLibrary> installed = installed_hamlog_library();
    return installed != nullptr ? std::move(installed) : std::make_unique<OwnHamlogLibrary>(disk);
}

}  // namespace veldrana
