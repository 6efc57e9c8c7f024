#include "common/quoted_fields.h"

#include <algorithm>

#include "common/copy_short.h"
#include "common/text.h"

namespace veldrana {
namespace {

// The offset of the comma that ends the field, or the line's end.
std::size_t field_end(std::string_view line, std::size_t from) noexcept {
    // Nearly every field is one pair of quotes with a comma or the end behind it.
    if (from < line.size() && line[from] == '"') {
        const std::size_t close = line.find('"', from + 1);
        if (close == line.size() - 1 || (close < line.size() && line[close + 1] == ',')) {
            return close + 1;
        }
    }
    bool quoted = false;
    for (std::size_t at = from; at < line.size(); ++at) {
        if (line[at] == '"') {
            quoted = !quoted;
        } else if (line[at] == ',' && !quoted) {
            return at;
        }
    }
    return line.size();
}

// Copies a field with its quotes; returns the place behind it.
inline char* copy_field(std::string_view field, char* to) noexcept {
    *to++ = '"';
    to = copy_short(field, to);
    *to++ = '"';
    return to;
}

// The next double quote at or behind `at`, `end` if there is none. Fields are a few bytes long: a
// plain loop is quicker than a search made for long texts.
const char* find_quote(const char* at, const char* end) noexcept {
    while (at != end && *at != '"') {
        ++at;
    }
    return at;
}

// The fields of a line that is just as the program writes it, if it has as many as there is room
// for: nearly every line that a stage reads.
bool split_written_line(std::string_view line, std::span<std::string_view> row) noexcept {
    const char* at = line.data();
    const char* const end = at + line.size();
    if (at == end || *at != '"') {
        return false;
    }
    ++at;
    for (std::size_t i = 0; i + 1 < row.size(); ++i) {
        const char* const close = find_quote(at, end);
        // Behind the field stand its quote, a comma and the quote of the next one.
        if (end - close < 3 || close[1] != ',' || close[2] != '"') {
            return false;
        }
        row[i] = {at, static_cast<std::size_t>(close - at)};
        at = close + 3;
    }
    const char* const close = find_quote(at, end);
    if (end - close != 1) {
        return false;
    }
    row.back() = {at, static_cast<std::size_t>(close - at)};
    return true;
}

}  // namespace

char* QuotedLine::room_for(std::size_t count) {
    if (buffer_.size() - size_ < count) {
        buffer_.resize(2 * (size_ + count));
    }
    return buffer_.data() + size_;
}

void QuotedLine::assign(std::span<const std::string_view> fields) {
    // Every contact of every stage passes here: the room is made once, then only bytes are copied.
    std::size_t room = 0;
    for (const std::string_view field : fields) {
        room += field.size() + 3;
    }
    size_ = 0;
    char* to = room_for(room);
    for (const std::string_view field : fields) {
        to = copy_field(field, to);
        *to++ = ',';
    }
    end_at(fields.empty() ? to : to - 1);
}

void QuotedLine::assign(std::string_view field, std::string_view written_line) {
    clear().add(field).add_written(written_line);
}

QuotedLine& QuotedLine::clear() noexcept {
    size_ = 0;
    return *this;
}

QuotedLine& QuotedLine::add(std::string_view field) {
    char* to = room_for(field.size() + 3);
    if (size_ > 0) {
        *to++ = ',';
    }
    end_at(copy_field(field, to));
    return *this;
}

QuotedLine& QuotedLine::add_written(std::string_view fields) {
    char* to = room_for(fields.size() + 1);
    if (size_ > 0) {
        *to++ = ',';
    }
    end_at(std::copy(fields.begin(), fields.end(), to));
    return *this;
}

std::string_view QuotedFields::value_of(std::string_view field) {
    const std::string_view behind_blanks = trim_left(field);
    if (behind_blanks.empty() || behind_blanks.front() != '"') {
        return trim_right(behind_blanks);
    }
    const std::size_t last = behind_blanks.rfind('"');
    if (last == 0) {
        return behind_blanks.substr(1);
    }
    const std::string_view inside = behind_blanks.substr(1, last - 1);
    const std::string_view behind = behind_blanks.substr(last + 1);
    if (behind.empty()) {
        return inside;
    }
    return joined_.emplace_back(inside).append(behind);
}

void QuotedFields::split(std::string_view line) {
    fields_.clear();
    joined_.clear();
    std::size_t from = 0;
    for (bool more = true; more;) {
        const std::size_t end = field_end(line, from);
        fields_.push_back(value_of(line.substr(from, end - from)));
        more = end < line.size();
        from = end + 1;
    }
}

std::vector<std::string> split_quoted_fields(std::string_view line) {
    QuotedFields fields;
    fields.split(line);
    return {fields.all().begin(), fields.all().end()};
}

void QuotedFieldReader::begin_line(std::string_view line) {
    fields_.split(line);
    next_field_ = 0;
}

std::string_view QuotedFieldReader::next() {
    if (!within_line()) {
        begin_line(read_line(source_));
    }
    return fields_[next_field_++];
}

bool QuotedFieldReader::at_end() {
    return !within_line() && source_.at_end();
}

void RowReader::read() {
    written_line_ = {};
    if (!fields_.within_line()) {
        const std::string_view line = read_line(source_);
        if (split_written_line(line, row_)) {
            written_line_ = line;
            return;
        }
        fields_.begin_line(line);
    }
    // The row may go on in the line behind, so its columns are kept as texts.
    kept_.clear();
    for (std::string_view& column : row_) {
        column = kept_.emplace_back(fields_.next());
    }
}

void RowReader::add_columns(std::size_t first, std::size_t last, QuotedLine& line) const {
    if (written_line_.empty()) {
        for (std::size_t column = first; column <= last; ++column) {
            line.add(row_[column]);
        }
        return;
    }
    const char* const begin = row_[first].data() - 1;
    const char* const end = row_[last].data() + row_[last].size() + 1;
    line.add_written({begin, static_cast<std::size_t>(end - begin)});
}

}  // namespace veldrana
