// Owns FindFile, which goes through the files and folders that fit a pattern, one by one, with what
// the disk tells about each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/disk.h"

namespace veldrana {

class FindFile {
  public:
    // Times are told in the local time that holds now, also those of another season.
    FindFile(Disk& disk, Clock& clock);

    // The name of the first entry that fits; empty if none does. "." and ".." are passed over.
    std::string FindFirst(std::string_view pattern);
    // The name of the next one; empty at the end, and then the present entry is empty too.
    std::string FindNext();

    // --- of the present entry ---

    const std::string& Name() const noexcept { return entry().name; }
    std::uint64_t Size() const noexcept { return entry().size; }
    // Those of DiskEntry alone, whatever else the disk knows.
    unsigned Attributes() const noexcept;
    bool IsDirectory() const noexcept;
    LocalTime CreationTime() const { return local(entry().created); }
    LocalTime LastAccessTime() const { return local(entry().accessed); }
    LocalTime LastWriteTime() const { return local(entry().written); }

  private:
    const DiskEntry& entry() const noexcept;
    LocalTime local(std::int64_t seconds) const;

    Disk& disk_;
    std::int64_t seconds_ahead_;
    std::vector<DiskEntry> found_;
    std::size_t present_ = 0;
};

}  // namespace veldrana
