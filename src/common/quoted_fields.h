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
    std::string_view text() const noexcept { return line_; }

  private:
    std::string line_;
};

// The fields of one line; an empty line has one empty field. A field whose last quote stands
// before its end needs a text of its own, so fields are texts, not views.
void split_quoted_fields(std::string_view line, std::vector<std::string>& fields);
std::vector<std::string> split_quoted_fields(std::string_view line);

// Reads a file field by field, without regard to how many stand in a line: a line end ends a
// field, and the next read goes on with the next line.
class QuotedFieldReader {
  public:
    explicit QuotedFieldReader(LineSource& source) : source_(source) {}

    // The next field; failure 62 when there is none. The view is valid until the next call.
    std::string_view next();

    // Whether every field was read.
    bool at_end();

  private:
    LineSource& source_;
    std::vector<std::string> fields_;
    std::size_t next_field_ = 0;
};

}  // namespace veldrana
