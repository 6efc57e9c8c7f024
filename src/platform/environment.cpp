#include "platform/environment.h"

#include <cstdlib>
#include <system_error>

#include "common/text.h"

namespace veldrana {

std::string environment_variable(std::string_view name) {
    const char* const value =
        std::getenv(std::string(name).c_str());  // NOLINT(concurrency-mt-unsafe)
    return value == nullptr ? std::string() : well_formed(value);
}

std::filesystem::path executable_folder(const char* first_word) {
    namespace fs = std::filesystem;
    std::error_code error;
#ifdef __linux__
    if (const fs::path program = fs::read_symlink("/proc/self/exe", error); !error) {
        return program.parent_path();
    }
#endif
    return fs::absolute(first_word, error).parent_path();
}

}  // namespace veldrana
