// Owns profile files, the form of all lasting settings: lines "[section]" and "key=value" in code
// page 932 with CR LF.
//
// Sections and keys are found without regard to case, and without the blanks around them. The value
// is what stands behind the first "=", without the blanks around it; quotes belong to it. A line
// that begins with ";" is a comment. Of a section or a key that stands twice the first counts. A
// byte-order mark in front of the first line is passed over.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/disk.h"

namespace veldrana {

class ProfileFile {
  public:
    // What a read gives at most, in bytes of the file; the rest is cut off, through a character if
    // need be.
    static constexpr std::size_t longest_value = 127;

    struct Entry {
        std::string key;
        std::string value;
        friend bool operator==(const Entry&, const Entry&) = default;
    };

    // Reads the file. One that is missing or cannot be read is one without sections.
    ProfileFile(Disk& disk, std::string path);

    // Something is there that could not be read; it is not written either.
    bool is_unread() const noexcept { return is_unread_; }

    // Empty if the section or the key is missing; ends in front of a NUL.
    std::string value(std::string_view section, std::string_view key) const;

    // Puts a value in the place of the key's value, or adds the key at the end of its section, or
    // both at the end of the file. A line break in a value becomes a blank.
    void set_value(std::string_view section, std::string_view key, std::string_view value);

    // As the file spells them, in its order.
    std::vector<std::string> section_names() const;
    // Every key of a section with its whole value, in the order of the file; a line without "=" is
    // a key without a value.
    std::vector<Entry> entries(std::string_view section) const;
    // Puts these in the place of all that the section holds; a new section goes to the end.
    void set_entries(std::string_view section, const std::vector<Entry>& entries);

    // From now on save() makes a file that its owner alone may read.
    void keep_for_owner() noexcept { mode_ = WriteMode::replace_for_owner; }

    // Writes the file, whole or not at all: a neighbour first, which then takes its place. False if
    // the disk did not let it, or if the file is unread.
    [[nodiscard]] bool save();

  private:
    struct Line {
        enum class Kind { section, key, other };
        Kind kind = Kind::other;
        std::string bytes;  // without its end: what is not set is written as it was
        std::string text;   // the same, to be read
        std::string name;   // of the section or key, in lower case
    };
    static Line make_line(std::string bytes);
    static Line make_key_line(std::string_view key, std::string_view value);

    using Place = std::vector<Line>::const_iterator;
    // The lines of a section behind its heading, without the empty ones at its end.
    struct Section {
        Place begin;
        Place end;
    };
    std::optional<Section> find_section(std::string_view name) const;
    Section find_or_add_section(std::string_view name);
    // The section's end if the key is not there.
    static Place find_key(Section section, std::string_view key);

    Disk& disk_;
    std::string path_;
    std::vector<Line> lines_;
    WriteMode mode_ = WriteMode::replace;
    bool is_unread_ = false;
};

}  // namespace veldrana
