#include "platform/text_file.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/code_page_932.h"

namespace veldrana {
namespace {

// Few lines are longer: what the end of a block leaves of a line has room in front of the next.
constexpr std::size_t usual_line_size = 4096;

std::size_t count_line_ends(std::string_view bytes) noexcept {
    // Eight bytes at a time: a byte that is a line end becomes 0, and only a 0 leaves its highest
    // bit clear.
    constexpr std::uint64_t line_ends = 0x0A0A0A0A0A0A0A0AU;
    constexpr std::uint64_t low_bits = 0x7F7F7F7F7F7F7F7FU;
    std::size_t count = 0;
    std::size_t at = 0;
    for (; at + sizeof(std::uint64_t) <= bytes.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t block = 0;
        std::memcpy(&block, bytes.data() + at, sizeof block);
        block ^= line_ends;
        const std::uint64_t others = ((block & low_bits) + low_bits) | block | low_bits;
        // One bit for each line end, all added up in the highest byte.
        count += ((~others >> 7U) * 0x0101010101010101U) >> 56U;
    }
    return count + static_cast<std::size_t>(std::count(bytes.begin() + at, bytes.end(), '\n'));
}

}  // namespace

TextInput::TextInput(Disk& disk, std::string_view path)
    : source_(disk.open_for_reading(path)), buffer_(disk_block_size + usual_line_size, '\0') {}

bool TextInput::fill() {
    if (exhausted_) {
        return false;
    }
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
        end_ -= begin_;
        begin_ = 0;
    }
    if (buffer_.size() - end_ < disk_block_size) {
        buffer_.resize(buffer_.size() * 2);
    }
    const std::size_t count = source_->read(buffer_.data() + end_, disk_block_size);
    end_ += count;
    exhausted_ = count == 0;
    return count > 0;
}

bool TextInput::at_end() {
    return begin_ == end_ && !fill();
}

bool TextInput::next_line(std::string_view& line) {
    std::size_t searched = 0;  // bytes behind begin_ that hold no line end
    std::size_t size = 0;
    for (;;) {
        const char* const start = buffer_.data() + begin_;
        const void* const found = std::memchr(start + searched, '\n', end_ - begin_ - searched);
        if (found != nullptr) {
            size = static_cast<std::size_t>(static_cast<const char*>(found) - start);
            break;
        }
        searched = end_ - begin_;
        if (!fill()) {
            size = searched;
            break;
        }
    }
    if (size == 0 && begin_ == end_) {
        return false;
    }
    std::string_view bytes(buffer_.data() + begin_, size);
    begin_ = std::min(begin_ + size + 1, end_);
    if (bytes.ends_with('\r')) {
        bytes.remove_suffix(1);
    }
    if (is_ascii(bytes)) {
        line = bytes;
    } else {
        line_.clear();
        append_from_code_page(line_, bytes);
        line = line_;
    }
    return true;
}

TextOutput::TextOutput(Disk& disk, std::string_view path, WriteMode mode)
    : TextOutput(disk.open_for_writing(path, mode)) {}

TextOutput::TextOutput(std::unique_ptr<ByteSink> sink) : sink_(std::move(sink)) {
    buffer_.reserve(disk_block_size + usual_line_size);
}

TextOutput::~TextOutput() {
    try {
        close();
    } catch (const RunTimeError&) {
        return;  // whoever wants to know closes the file itself
    }
}

void TextOutput::write_line(std::string_view line) {
    append_to_code_page(buffer_, line);
    end_line();
}

void TextOutput::write_bytes(std::string_view line) {
    buffer_ += line;
    end_line();
}

void TextOutput::end_line() {
    buffer_ += "\r\n";
    if (buffer_.size() >= disk_block_size) {
        hand_over(buffer_.size() - buffer_.size() % disk_block_size);
    }
}

void TextOutput::flush() {
    hand_over(buffer_.size());
}

void TextOutput::hand_over(std::size_t count) {
    // Emptied first: after a failure the same bytes must not be tried again at the end.
    std::string bytes;
    bytes.swap(buffer_);
    if (sink_ != nullptr && count > 0) {
        sink_->write(std::string_view(bytes).substr(0, count));
    }
    bytes.erase(0, count);
    buffer_.swap(bytes);
}

void TextOutput::close() {
    if (sink_ == nullptr) {
        return;
    }
    flush();
    const std::unique_ptr<ByteSink> sink = std::move(sink_);
    sink->close();
}

std::size_t line_number_at_end(Disk& disk, std::string_view path) {
    const std::unique_ptr<ByteSource> source = disk.open_for_reading(path);
    std::vector<char> block(disk_block_size);
    std::size_t line_ends = 0;
    for (std::size_t count = source->read(block.data(), block.size()); count > 0;
         count = source->read(block.data(), block.size())) {
        line_ends += count_line_ends({block.data(), count});
    }
    return line_ends + 1;
}

}  // namespace veldrana
