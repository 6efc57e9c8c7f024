#include "platform/disk.h"

#include <vector>

#include "common/file_path.h"

namespace veldrana {

std::size_t remove_matching(Disk& disk, std::string_view pattern, std::string_view keep) {
    const std::string folder(split_path(pattern).folder);
    std::size_t removed = 0;
    for (const std::string& name : disk.names(pattern)) {
        const std::string path = folder + name;
        const bool kept = disk.is_protected(path) || (!keep.empty() && disk.same_file(path, keep));
        if (!kept) {
            disk.remove(path);
            ++removed;
        }
    }
    return removed;
}

void copy_file(Disk& disk, std::string_view from, std::string_view to) {
    const std::unique_ptr<ByteSource> source = disk.open_for_reading(from);
    const std::unique_ptr<ByteSink> sink = disk.open_for_writing(to, WriteMode::replace);
    std::vector<char> block(disk_block_size);
    for (std::size_t count = source->read(block.data(), block.size()); count > 0;
         count = source->read(block.data(), block.size())) {
        sink->write({block.data(), count});
    }
    sink->close();
}

std::string time_text(Disk& disk, std::string_view path) {
    return date_time_text(disk.modified(path));
}

}  // namespace veldrana
