// Whole files of a disk as bytes.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "platform/disk.h"

namespace veldrana {

// A few bytes at a time, so that a source is read more than once.
inline std::string read_all(Disk& disk, std::string_view path) {
    const std::unique_ptr<ByteSource> source = disk.open_for_reading(path);
    std::string bytes;
    std::array<char, 2> block{};
    for (std::size_t count = source->read(block.data(), block.size()); count > 0;
         count = source->read(block.data(), block.size())) {
        bytes.append(block.data(), count);
    }
    return bytes;
}

inline void write_all(Disk& disk, std::string_view path, std::string_view bytes,
                      WriteMode mode = WriteMode::replace) {
    const std::unique_ptr<ByteSink> sink = disk.open_for_writing(path, mode);
    sink->write(bytes);
    sink->close();
}

}  // namespace veldrana
