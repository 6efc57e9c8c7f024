#include "viewers/viewed_text.h"

#include <algorithm>
#include <memory>

#include "common/run_time_error.h"
#include "platform/code_page_932.h"

namespace veldrana {
namespace {

std::string read_whole(Disk& disk, std::string_view path) {
    const std::unique_ptr<ByteSource> source = disk.open_for_reading(path);
    std::string bytes;
    std::size_t filled = 0;
    for (;;) {
        // One block more than is there, so that the end shows.
        bytes.resize(std::max(filled, static_cast<std::size_t>(disk.size(path))) + disk_block_size);
        const std::size_t got = source->read(bytes.data() + filled, bytes.size() - filled);
        filled += got;
        if (got == 0) {
            bytes.resize(filled);
            return bytes;
        }
    }
}

}  // namespace

ViewedText::ViewedText(Disk& disk, std::string_view path) : bytes_(read_whole(disk, path)) {
    for (std::size_t at = 0; at < bytes_.size();) {
        starts_.push_back(at);
        at = std::min(bytes_.find('\n', at), bytes_.size() - 1) + 1;
    }
    for (std::size_t index = 0; index < count(); ++index) {
        widest_ = std::max(widest_, bytes_of(index).size());
    }
}

std::string_view ViewedText::bytes_of(std::size_t index) const {
    const std::size_t end = index + 1 < starts_.size() ? starts_[index + 1] : bytes_.size();
    std::string_view line = std::string_view(bytes_).substr(starts_[index], end - starts_[index]);
    for (const char line_end : {'\n', '\r'}) {
        if (line.ends_with(line_end)) {
            line.remove_suffix(1);
        }
    }
    return line;
}

std::string ViewedText::line(std::size_t index) const {
    if (index >= count()) {
        throw RunTimeError(Failure::subscript);
    }
    return from_code_page(bytes_of(index));
}

}  // namespace veldrana
