// A folder of the host for one test, gone with it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace veldrana {

class ScratchFolder {
  public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

// Whole files of the host as bytes. Writing makes the folders above the file.
std::string read_bytes(const std::filesystem::path& file);
void write_bytes(const std::filesystem::path& file, std::string_view bytes);

}  // namespace veldrana
