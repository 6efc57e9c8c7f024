#include "common/quoted_fields.h"

#include <algorithm>

#include "common/text.h"

namespace veldrana {
namespace {

// The offset of the comma that ends the field, or the line's end.
std::size_t field_end(std::string_view line, std::size_t from) noexcept {
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

void assign_value(std::string& value, std::string_view field) {
    const std::string_view behind_blanks = trim_left(field);
    if (behind_blanks.empty() || behind_blanks.front() != '"') {
        value.assign(trim_right(behind_blanks));
        return;
    }
    const std::size_t last = behind_blanks.rfind('"');
    if (last == 0) {
        value.assign(behind_blanks.substr(1));
        return;
    }
    value.assign(behind_blanks.substr(1, last - 1));
    value.append(behind_blanks.substr(last + 1));
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

void split_quoted_fields(std::string_view line, std::vector<std::string>& fields) {
    std::size_t count = 0;
    std::size_t from = 0;
    for (bool more = true; more; ++count) {
        const std::size_t end = field_end(line, from);
        if (count == fields.size()) {
            fields.emplace_back();
        }
        assign_value(fields[count], line.substr(from, end - from));
        more = end < line.size();
        from = end + 1;
    }
    fields.resize(count);
}

std::vector<std::string> split_quoted_fields(std::string_view line) {
    std::vector<std::string> fields;
    split_quoted_fields(line, fields);
    return fields;
}

std::string_view QuotedFieldReader::next() {
    if (next_field_ == fields_.size()) {
        split_quoted_fields(read_line(source_), fields_);
        next_field_ = 0;
    }
    return fields_[next_field_++];
}

bool QuotedFieldReader::at_end() {
    return next_field_ == fields_.size() && source_.at_end();
}

}  // namespace veldrana
