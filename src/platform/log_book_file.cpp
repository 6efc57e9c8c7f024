#include "platform/log_book_file.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "common/quoted_fields.h"
#include "common/text.h"
#include "platform/code_page_932.h"
#include "platform/text_file.h"

namespace veldrana {
namespace {

// One less than the largest number, so that one may count past the last record.
constexpr std::int32_t most_records = std::numeric_limits<std::int32_t>::max() - 1;

// --- tables ---

// Pieces of a file in the order in which they lie there.
class ForwardBytes {
  public:
    ForwardBytes(Disk& disk, std::string_view path)
        : source_(disk.open_for_reading(path)), buffer_(disk_block_size) {}

    // The next bytes, fewer at the end of the file. Valid until the next call.
    std::string_view take(std::size_t count) {
        if (end_ - begin_ < count) {
            fill(count);
        }
        const std::size_t size = std::min(count, end_ - begin_);
        begin_ += size;
        return {buffer_.data() + begin_ - size, size};
    }

    void skip(std::uint64_t count) {
        while (count > 0) {
            const std::size_t passed =
                take(static_cast<std::size_t>(std::min<std::uint64_t>(count, disk_block_size)))
                    .size();
            if (passed == 0) {
                return;
            }
            count -= passed;
        }
    }

  private:
    void fill(std::size_t count) {
        std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
                  buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
        end_ -= begin_;
        begin_ = 0;
        buffer_.resize(std::max(buffer_.size(), count + disk_block_size));
        while (end_ < count) {
            const std::size_t got = source_->read(buffer_.data() + end_, buffer_.size() - end_);
            if (got == 0) {
                return;
            }
            end_ += got;
        }
    }

    std::unique_ptr<ByteSource> source_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;  // of what was not taken yet
    std::size_t end_ = 0;
};

std::size_t byte_at(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

std::size_t word_at(std::string_view bytes, std::size_t at) {
    return byte_at(bytes, at) | byte_at(bytes, at + 1) << 8U;
}

// A column of a table: where it lies in a record.
struct Column {
    std::string name;
    std::size_t offset = 0;
    std::size_t width = 0;
};

struct TableHeader {
    static constexpr std::size_t size = 32;  // of its fixed part, and of a descriptor

    std::uint64_t promised_records = 0;
    std::size_t header_length = 0;
    std::size_t record_length = 0;
};

bool is_table(std::string_view start) {
    return start.starts_with('\x03') || start.starts_with('\x83');
}

// The columns that the descriptors tell; one that reaches beyond the record is cut.
std::vector<Column> columns_of(std::string_view descriptors, std::size_t record_length) {
    constexpr std::size_t name_size = 11;
    constexpr std::size_t width_at = 16;
    std::vector<Column> columns;
    std::size_t offset = 1;  // behind the mark
    for (std::size_t at = 0; at + TableHeader::size <= descriptors.size();
         at += TableHeader::size) {
        if (descriptors[at] == '\x0D') {
            break;
        }
        const std::size_t width = byte_at(descriptors, at + width_at);
        const std::size_t begin = std::min(offset, record_length);
        columns.push_back({.name = std::string(trim(until_nul(descriptors.substr(at, name_size)))),
                           .offset = begin,
                           .width = std::min(width, record_length - begin)});
        offset += width;
    }
    return columns;
}

void append_two_digits(std::string& text, std::size_t number) {
    if (number < 10) {
        text += '0';
    }
    text += std::to_string(number);
}

class LogBookTable : public LogBookFile {
  public:
    LogBookTable(Disk& disk, std::string_view path, const TableHeader& header,
                 const std::vector<Column>& columns, std::int32_t count)
        : disk_(disk), path_(path), header_(header), count_(count) {
        const auto named = [&columns](std::string_view name) {
            const auto found =
                std::find_if(columns.begin(), columns.end(),
                             [name](const Column& column) { return column.name == name; });
            return found == columns.end() ? Column{} : *found;
        };
        ign_ = named("IGN");
        own_form_ = !named("CALLS").name.empty() && !ign_.name.empty();
        if (own_form_) {
            std::transform(own_columns.begin(), own_columns.end(), fields_.begin(), named);
        } else {
            std::copy_n(columns.begin(), std::min(columns.size(), fields_.size()), fields_.begin());
        }
    }

    std::int32_t count() override { return count_; }

    bool read(std::int32_t record) override {
        record_ = {};
        if (record < 1 || record > count_) {
            return false;
        }
        if (bytes_ == nullptr || record < next_) {
            bytes_ = std::make_unique<ForwardBytes>(disk_, path_);
            bytes_->skip(header_.header_length);
            next_ = 1;
        }
        bytes_->skip(static_cast<std::uint64_t>(record - next_) * header_.record_length);
        next_ = record + 1;
        record_ = bytes_->take(header_.record_length);
        if (record_.size() < header_.record_length) {
            record_ = {};  // the file has become shorter meanwhile
            return false;
        }
        if (record_.front() == '*') {
            record_ = {};
        }
        return true;
    }

    std::string_view field(int number) override {
        constexpr int call = 1;
        constexpr int date = 2;
        constexpr int time = 3;
        const std::string_view raw = bytes_of(fields_[static_cast<std::size_t>(number - 1)]);
        if (!own_form_ || record_.empty()) {
            return as_text(until_nul(raw));
        }
        switch (number) {
            case call:
                return joined_call(raw);
            case date:
                return date_of(raw);
            case time:
                return time_of(raw);
            default:
                return as_text(until_nul(raw));
        }
    }

  private:
    // By the number of the field.
    static constexpr std::array<std::string_view, HamlogLibrary::fields> own_columns{
        "CALLS", "DATE", "TIME", "HIS",  "MY",  "FREQ", "MODE",
        "CODE",  "GL",   "QSL",  "NAME", "QTH", "RMK1", "RMK2"};

    std::string_view bytes_of(const Column& column) const {
        return record_.empty() ? record_ : record_.substr(column.offset, column.width);
    }

    std::string_view as_text(std::string_view bytes) {
        if (is_ascii(bytes)) {
            return bytes;
        }
        text_.clear();
        append_from_code_page(text_, bytes);
        return text_;
    }

    std::string_view joined_call(std::string_view calls) {
        std::string bytes;
        for (const std::string_view part : {until_nul(calls), until_nul(bytes_of(ign_))}) {
            std::copy_if(part.begin(), part.end(), std::back_inserter(bytes),
                         [](char character) { return character != ' '; });
        }
        text_.clear();
        append_from_code_page(text_, bytes);
        return text_;
    }

    // Century, year of the century, month, day.
    std::string_view date_of(std::string_view bytes) {
        text_.clear();
        if (bytes.size() >= 4) {
            append_two_digits(text_, byte_at(bytes, 1));
            append_two_digits(text_ += '/', byte_at(bytes, 2));
            append_two_digits(text_ += '/', byte_at(bytes, 3));
        }
        return text_;
    }

    // Hour, and the minute with the zone in its top bit.
    std::string_view time_of(std::string_view bytes) {
        constexpr std::size_t utc = 0x80;
        text_.clear();
        if (bytes.size() >= 2) {
            const std::size_t minute = byte_at(bytes, 1);
            append_two_digits(text_, byte_at(bytes, 0));
            append_two_digits(text_ += ':', minute & ~utc);
            text_ += (minute & utc) != 0 ? 'U' : 'J';
        }
        return text_;
    }

    Disk& disk_;
    std::string path_;
    TableHeader header_;
    std::int32_t count_;
    std::array<Column, HamlogLibrary::fields> fields_;
    Column ign_;
    bool own_form_ = false;
    std::unique_ptr<ForwardBytes> bytes_;
    std::int32_t next_ = 1;    // the record that the bytes stand before
    std::string_view record_;  // the current one; empty: none, or a deleted one
    std::string text_;         // a field that does not stand in the record as it is
};

std::unique_ptr<LogBookFile> open_table(Disk& disk, std::string_view path) {
    constexpr std::size_t count_at = 4;
    constexpr std::size_t header_length_at = 8;
    constexpr std::size_t record_length_at = 10;
    ForwardBytes bytes(disk, path);
    const std::string start(bytes.take(TableHeader::size));
    if (start.size() < TableHeader::size) {
        return nullptr;
    }
    const TableHeader header{
        .promised_records = word_at(start, count_at) |
                            static_cast<std::uint64_t>(word_at(start, count_at + 2)) << 16U,
        .header_length = word_at(start, header_length_at),
        .record_length = word_at(start, record_length_at)};
    const std::uint64_t file_size = disk.size(path);
    if (header.header_length < TableHeader::size || header.record_length == 0 ||
        file_size < header.header_length) {
        return nullptr;
    }
    const std::vector<Column> columns =
        columns_of(bytes.take(header.header_length - TableHeader::size), header.record_length);
    const std::uint64_t whole_records = (file_size - header.header_length) / header.record_length;
    const auto count = static_cast<std::int32_t>(
        std::min({header.promised_records, whole_records, std::uint64_t{most_records}}));
    return std::make_unique<LogBookTable>(disk, path, header, columns, count);
}

// --- texts ---

class LogBookText : public LogBookFile {
  public:
    LogBookText(Disk& disk, std::string_view path) : disk_(disk), path_(path) {}

    std::int32_t count() override {
        TextInput input(disk_, path_);
        std::int32_t lines = 0;
        for (std::string_view line; lines < most_records && next_record(input, line);) {
            ++lines;
        }
        return lines;
    }

    bool read(std::int32_t record) override {
        row_.split({});
        if (record < 1) {
            return false;
        }
        if (input_ == nullptr || record < next_) {
            input_ = std::make_unique<TextInput>(disk_, path_);
            next_ = 1;
        }
        std::string_view line;
        for (; next_ <= record; ++next_) {
            if (!next_record(*input_, line)) {
                return false;
            }
        }
        row_.split(line);
        return true;
    }

    std::string_view field(int number) override {
        const auto column = static_cast<std::size_t>(number - 1);
        return column < row_.size() ? until_nul(row_[column]) : std::string_view();
    }

  private:
    static bool next_record(TextInput& input, std::string_view& line) {
        while (input.next_line(line)) {
            if (!trim(line).empty()) {
                return true;
            }
        }
        return false;
    }

    Disk& disk_;
    std::string path_;
    std::unique_ptr<TextInput> input_;
    std::int32_t next_ = 1;  // the record that the input stands before
    QuotedFields row_;
};

// The first line that is not blank, in its bytes; nothing if it is longer than any row of a log
// book, since what is no text has no lines.
std::optional<std::string> first_line(Disk& disk, std::string_view path) {
    constexpr std::size_t longest_row = std::size_t{64} * 1024;
    ForwardBytes bytes(disk, path);
    std::string line;
    for (;;) {
        const std::string_view byte = bytes.take(1);
        if (byte.empty() || byte == "\n") {
            if (line.ends_with('\r')) {
                line.pop_back();
            }
            if (byte.empty() || !trim(line).empty()) {
                return line;
            }
            line.clear();
        } else if (line.size() < longest_row) {
            line += byte;
        } else {
            return std::nullopt;
        }
    }
}

// Whether a file is a text of rows, or of blank lines alone. No table is: its first line, as far as
// one can say so, holds a NUL or no ten columns.
bool is_text(Disk& disk, std::string_view path) {
    constexpr std::size_t fewest_columns = 10;
    const std::optional<std::string> line = first_line(disk, path);
    if (!line || line->find('\0') != std::string::npos) {
        return false;
    }
    return trim(*line).empty() ||
           split_quoted_fields(from_code_page(*line)).size() >= fewest_columns;
}

}  // namespace

std::unique_ptr<LogBookFile> open_log_book(Disk& disk, std::string_view path) {
    if (!disk.file_exists(path)) {
        return nullptr;
    }
    // Asked first: a text may begin with a table's first byte, which is that of many katakana.
    if (is_text(disk, path)) {
        return std::make_unique<LogBookText>(disk, path);
    }
    return is_table(ForwardBytes(disk, path).take(1)) ? open_table(disk, path) : nullptr;
}

void OwnHamlogLibrary::dbf_open(std::string_view path) {
    counted_ = open_log_book(disk_, path);
}

std::int32_t OwnHamlogLibrary::dbf_rcount() {
    return counted_ == nullptr ? 0 : counted_->count();
}

void OwnHamlogLibrary::dbf_close() {
    counted_.reset();
}

int OwnHamlogLibrary::HamlogOpen(std::string_view path) {
    current_ = false;
    log_ = open_log_book(disk_, path);
    return log_ == nullptr ? -1 : 0;
}

int OwnHamlogLibrary::THW_read(std::int32_t record, int /*way*/) {
    current_ = log_ != nullptr && log_->read(record);
    return current_ ? 0 : -1;
}

std::string_view OwnHamlogLibrary::ThwString(int field) {
    return current_ && field >= 1 && field <= fields ? log_->field(field) : std::string_view();
}

void OwnHamlogLibrary::HamlogClose() noexcept {
    current_ = false;
    log_.reset();
}

}  // namespace veldrana
