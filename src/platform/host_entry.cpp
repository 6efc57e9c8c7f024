#include "platform/host_entry.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace veldrana {

#ifdef _WIN32

namespace {

// From hundreds of nanoseconds since 1601.
std::int64_t seconds_of(const FILETIME& time) {
    const auto ticks = static_cast<std::int64_t>(
        (static_cast<std::uint64_t>(time.dwHighDateTime) << 32U) | time.dwLowDateTime);
    return ticks / 10'000'000 - 11'644'473'600;
}

}  // namespace

DiskEntry describe(const std::filesystem::path& path) {
    DiskEntry entry;
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) != 0) {
        entry.size = (static_cast<std::uint64_t>(data.nFileSizeHigh) << 32U) | data.nFileSizeLow;
        entry.attributes = data.dwFileAttributes;
        entry.created = seconds_of(data.ftCreationTime);
        entry.accessed = seconds_of(data.ftLastAccessTime);
        entry.written = seconds_of(data.ftLastWriteTime);
    }
    return entry;
}

#else

DiskEntry describe(const std::filesystem::path& path) {
    DiskEntry entry;
    struct statx status {};
    if (statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status) != 0) {
        return entry;
    }
    const bool folder = S_ISDIR(status.stx_mode);
    entry.size = folder ? 0 : status.stx_size;
    entry.attributes = folder ? DiskEntry::directory : DiskEntry::archive;
    if (access(path.c_str(), W_OK) != 0) {
        entry.attributes |= DiskEntry::read_only;
    }
    if (path.filename().native().starts_with('.')) {
        entry.attributes |= DiskEntry::hidden;
    }
    entry.accessed = status.stx_atime.tv_sec;
    entry.written = status.stx_mtime.tv_sec;
    // Not every file system notes when a file was made.
    const bool made_known = (status.stx_mask & STATX_BTIME) != 0;
    entry.created = made_known ? status.stx_btime.tv_sec : entry.written;
    return entry;
}

#endif

}  // namespace veldrana
