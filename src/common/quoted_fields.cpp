#include "common/quoted_fields.h"

#include <algorithm>

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

}  // namespace

void QuotedLine::assign(std::span<const std::string_view> fields) {
    // Every contact of every stage passes here: the room is made once, then only bytes are copied.
    std::size_t size = 0;
    for (const std::string_view field : fields) {
        size += field.size() + 3;
    }
    line_.resize(size);
    char* to = line_.data();
    for (const std::string_view field : fields) {
        *to++ = '"';
        to = std::copy(field.begin(), field.end(), to);
        *to++ = '"';
        *to++ = ',';
    }
    if (!fields.empty()) {
        line_.pop_back();
    }
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

std::string_view QuotedFieldReader::next() {
    if (next_field_ == fields_.size()) {
        fields_.split(read_line(source_));
        next_field_ = 0;
    }
    return fields_[next_field_++];
}

bool QuotedFieldReader::at_end() {
    return next_field_ == fields_.size() && source_.at_end();
}

void RowReader::read() {
    if (next_field_ == fields_.size()) {
        fields_.split(read_line(source_));
        next_field_ = 0;
    }
    if (next_field_ != 0 || fields_.size() != row_.size()) {
        read_across_lines();
        return;
    }
    std::copy(fields_.all().begin(), fields_.all().end(), row_.begin());
    next_field_ = fields_.size();
}

void RowReader::read_across_lines() {
    kept_.clear();
    for (std::string_view& column : row_) {
        if (next_field_ == fields_.size()) {
            fields_.split(read_line(source_));
            next_field_ = 0;
        }
        column = kept_.emplace_back(fields_[next_field_++]);
    }
}

bool RowReader::at_end() {
    return next_field_ == fields_.size() && source_.at_end();
}

}  // namespace veldrana
