// Owns the quoted-field form that the program's own files use between the stages of a run and in
// its results: every field in double quotes, comma separated, nothing escaped. Files in the field
// hold this form, so no general CSV rule may creep in.
//
// Reading: a field runs to the next comma that stands outside double quotes, or to the end of the
// line. Of a field that begins with a double quote, that quote and the field's last one are taken
// away and all else stays, further quotes and a text behind the last one included. Blanks around an
// unquoted field, and in front of an opening quote, are dropped. So a text with an even number of
// quotes and no comma survives writing and reading; an odd number joins fields up to the next
// quote.
#pragma once

#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/text_lines.h"

namespace veldrana {

// Builds one line; keeps its memory from line to line.
class QuotedLine {
  public:
    // Replaces what the line holds by these fields, which must not be views of it.
    void assign(std::span<const std::string_view> fields);
    // The same for a field in front of a line that is written already.
    void assign(std::string_view field, std::string_view written_line);

    // Building a line piece by piece, from the empty line that clear leaves: a field, or several
    // with their quotes and commas just as they stood in another line.
    QuotedLine& clear() noexcept;
    QuotedLine& add(std::string_view field);
    QuotedLine& add_written(std::string_view fields);
    std::string_view text() const noexcept { return {buffer_.data(), size_}; }

  private:
    // Where the next bytes go, with room for so many of them.
    char* room_for(std::size_t count);
    void end_at(const char* end) noexcept {
        size_ = static_cast<std::size_t>(end - buffer_.data());
    }

    std::vector<char> buffer_;
    std::size_t size_ = 0;  // of the line
};

// The fields of one line as views of it; an empty line has one empty field. Valid as long as the
// line and this object's next split.
class QuotedFields {
  public:
    void split(std::string_view line);
    std::size_t size() const noexcept { return fields_.size(); }
    std::string_view operator[](std::size_t index) const noexcept { return fields_[index]; }
    const std::vector<std::string_view>& all() const noexcept { return fields_; }

  private:
    // Of one field as it stands in the line.
    std::string_view value_of(std::string_view field);

    std::vector<std::string_view> fields_;
    // Fields whose last quote stands before their end: what is left is in no one piece.
    std::deque<std::string> joined_;
};

// The same as texts.
std::vector<std::string> split_quoted_fields(std::string_view line);

// Reads a file field by field, without regard to how many stand in a line: a line end ends a
// field, and the next read goes on with the next line.
class QuotedFieldReader {
  public:
    explicit QuotedFieldReader(LineSource& source) : source_(source) {}

    // The next field; failure 62 when there is none. The view is valid until the next call.
    std::string_view next();

    // Whether every field was read. Gives up what next gave.
    bool at_end();

    // Whether a line was begun and has fields left.
    bool within_line() const noexcept { return next_field_ < fields_.size(); }
    // Goes on with the fields of this line, which was read from the source elsewhere.
    void begin_line(std::string_view line);

  private:
    LineSource& source_;
    QuotedFields fields_;
    std::size_t next_field_ = 0;
};

// Reads rows of a fixed number of columns, field by field: a line of too few takes the rest from
// the line behind it, one of too many leaves the rest for the next row.
class RowReader {
  public:
    RowReader(LineSource& source, std::size_t columns)
        : source_(source), fields_(source), row_(columns) {}

    // Failure 62 when a field is missing.
    void read();

    // Whether every field was read. Gives up the row.
    bool at_end() { return fields_.at_end(); }

    // The line that the row came in, if it stands there just as it would be written: one row, every
    // field in quotes. Else empty. A stage that changes nothing of a row writes this.
    std::string_view written_line() const noexcept { return written_line_; }

    // Adds the columns from first to last to a line, in one piece where the row has a written line.
    void add_columns(std::size_t first, std::size_t last, QuotedLine& line) const;

    // By the columns' places from 0. Valid until the next call of read or at_end.
    std::string_view operator[](std::size_t column) const noexcept { return row_[column]; }
    std::span<const std::string_view> columns() const noexcept { return row_; }

  private:
    LineSource& source_;
    QuotedFieldReader fields_;
    std::vector<std::string_view> row_;
    std::string_view written_line_;
    std::deque<std::string> kept_;  // the columns of a row without a written line
};

}  // namespace veldrana
