#include "platform/find_file.h"

namespace veldrana {

FindFile::FindFile(Disk& disk, Clock& clock)
    : disk_(disk), seconds_ahead_(std::int64_t{clock.minutes_ahead_of_utc()} * 60) {}

std::string FindFile::FindFirst(std::string_view pattern) {
    found_ = disk_.entries(pattern);
    std::erase_if(found_, [](const DiskEntry& it) { return it.name == "." || it.name == ".."; });
    present_ = 0;
    return Name();
}

std::string FindFile::FindNext() {
    if (present_ < found_.size()) {
        ++present_;
    }
    return Name();
}

const DiskEntry& FindFile::entry() const noexcept {
    static const DiskEntry none;
    return present_ < found_.size() ? found_[present_] : none;
}

unsigned FindFile::Attributes() const noexcept {
    constexpr unsigned known = DiskEntry::read_only | DiskEntry::hidden | DiskEntry::system |
                               DiskEntry::directory | DiskEntry::archive;
    return entry().attributes & known;
}

bool FindFile::IsDirectory() const noexcept {
    return (entry().attributes & DiskEntry::directory) != 0;
}

LocalTime FindFile::local(std::int64_t seconds) const {
    return calendar_time(seconds + seconds_ahead_);
}

}  // namespace veldrana
