#include "tests/doubles/scratch_folder.h"

#include <atomic>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <unistd.h>

namespace veldrana {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
    static std::atomic<int> made{0};
    path_ = fs::temp_directory_path() /
            ("veldrana_test_" + std::to_string(getpid()) + "_" + std::to_string(++made));
    fs::remove_all(path_);
    fs::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string read_bytes(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

void write_bytes(const fs::path& file, std::string_view bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream << bytes;
    if (!stream.flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

}  // namespace veldrana
