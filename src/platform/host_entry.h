// Tells about a file or folder of the host what a DiskEntry holds; for the rest of this room.
#pragma once

#include <filesystem>

#include "platform/disk.h"

namespace veldrana {

// Without its name. One that has gone meanwhile has no size, attributes or times.
DiskEntry describe(const std::filesystem::path& path);

}  // namespace veldrana
