#include "platform/profile_file.h"

#include <algorithm>

#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/code_page_932.h"

namespace veldrana {
namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

std::string bytes_of(Disk& disk, const std::string& path) {
    std::string bytes;
    const std::unique_ptr<ByteSource> file = disk.open_for_reading(path);
    std::string block(std::size_t{16} * 1024, '\0');
    for (std::size_t count = file->read(block.data(), block.size()); count > 0;
         count = file->read(block.data(), block.size())) {
        bytes.append(block, 0, count);
    }
    return bytes;
}

void write_bytes(Disk& disk, const std::string& path, WriteMode mode, std::string_view bytes) {
    const std::unique_ptr<ByteSink> file = disk.open_for_writing(path, mode);
    file->write(bytes);
    file->close();
}

void remove_quietly(Disk& disk, const std::string& path) {
    try {
        if (disk.file_exists(path)) {
            disk.remove(path);
        }
    } catch (const RunTimeError&) {
        return;  // a disk that took no file may not give one up either
    }
}

std::string_view key_of(std::string_view line) {
    return trim(line.substr(0, line.find('=')));
}

std::string_view value_of(std::string_view line) {
    const std::size_t equals = line.find('=');
    return equals == std::string_view::npos ? std::string_view{} : trim(line.substr(equals + 1));
}

std::string in_one_line(std::string_view value) {
    std::string text(trim(value));
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return text;
}

}  // namespace

ProfileFile::Line ProfileFile::make_line(std::string bytes) {
    Line line;
    line.text = trim(from_code_page(bytes));
    const std::string_view text = line.text;
    const std::size_t bracket = text.find(']');
    if (text.starts_with('[') && bracket != std::string_view::npos) {
        line.kind = Line::Kind::section;
        line.name = lower(trim(text.substr(1, bracket - 1)));
    } else if (!key_of(text).empty() && !text.starts_with(';')) {
        line.kind = Line::Kind::key;
        line.name = lower(key_of(text));
    }
    line.bytes = std::move(bytes);
    return line;
}

ProfileFile::Line ProfileFile::make_key_line(std::string_view key, std::string_view value) {
    return make_line(to_code_page(std::string(key) + "=" + in_one_line(value)));
}

ProfileFile::ProfileFile(Disk& disk, std::string path) : disk_(disk), path_(std::move(path)) {
    std::string bytes;
    try {
        bytes = bytes_of(disk_, path_);
    } catch (const RunTimeError& error) {
        is_unread_ = error.failure() != Failure::file_not_found &&
                     error.failure() != Failure::path_not_found;
    }
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        const bool marked = lines_.empty() && line.starts_with(byte_order_mark);
        lines_.push_back(make_line(std::string(line.substr(marked ? byte_order_mark.size() : 0))));
        lines_.back().bytes = line;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

std::optional<ProfileFile::Section> ProfileFile::find_section(std::string_view name) const {
    const std::string wanted = lower(trim(name));
    const auto is_section = [](const Line& line) { return line.kind == Line::Kind::section; };
    const auto heading = std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) {
        return is_section(line) && line.name == wanted;
    });
    if (heading == lines_.end()) {
        return std::nullopt;
    }
    const auto begin = heading + 1;
    auto end = std::find_if(begin, lines_.end(), is_section);
    while (end != begin && (end - 1)->text.empty()) {
        --end;
    }
    return Section{begin, end};
}

ProfileFile::Section ProfileFile::find_or_add_section(std::string_view name) {
    if (const std::optional<Section> found = find_section(name)) {
        return *found;
    }
    lines_.push_back(make_line(to_code_page("[" + std::string(trim(name)) + "]")));
    return {lines_.end(), lines_.end()};
}

ProfileFile::Place ProfileFile::find_key(Section section, std::string_view key) {
    return std::find_if(section.begin, section.end, [wanted = lower(trim(key))](const Line& line) {
        return line.kind == Line::Kind::key && line.name == wanted;
    });
}

std::string ProfileFile::value(std::string_view section, std::string_view key) const {
    const std::optional<Section> found = find_section(section);
    if (!found) {
        return {};
    }
    const auto line = find_key(*found, key);
    if (line == found->end) {
        return {};
    }
    return std::string(until_nul(middle_bytes(value_of(line->text), 1, longest_value)));
}

void ProfileFile::set_value(std::string_view section, std::string_view key,
                            std::string_view value) {
    const Section place = find_or_add_section(section);
    const auto line = find_key(place, key);
    const auto at = lines_.begin() + (line - lines_.cbegin());
    if (line == place.end) {
        lines_.insert(at, make_key_line(trim(key), value));
    } else {
        *at = make_key_line(key_of(line->text), value);
    }
}

std::vector<std::string> ProfileFile::section_names() const {
    std::vector<std::string> names;
    for (const Line& line : lines_) {
        if (line.kind == Line::Kind::section) {
            const std::string_view text = line.text;
            names.emplace_back(trim(text.substr(1, text.find(']') - 1)));
        }
    }
    return names;
}

std::vector<ProfileFile::Entry> ProfileFile::entries(std::string_view section) const {
    std::vector<Entry> found;
    if (const std::optional<Section> place = find_section(section)) {
        for (Place line = place->begin; line != place->end; ++line) {
            if (line->kind == Line::Kind::key) {
                found.push_back(
                    {std::string(key_of(line->text)), std::string(value_of(line->text))});
            }
        }
    }
    return found;
}

void ProfileFile::set_entries(std::string_view section, const std::vector<Entry>& entries) {
    const Section place = find_or_add_section(section);
    auto at = lines_.erase(place.begin, place.end);
    for (const Entry& entry : entries) {
        at = lines_.insert(at, make_key_line(entry.key, entry.value)) + 1;
    }
}

bool ProfileFile::save() {
    if (is_unread_) {
        return false;
    }
    std::string bytes;
    for (const Line& line : lines_) {
        bytes += line.bytes + "\r\n";
    }
    const std::string neighbour = path_ + "_1";
    try {
        write_bytes(disk_, neighbour, mode_, bytes);
        disk_.replace(neighbour, path_);
        return true;
    } catch (const RunTimeError&) {
        remove_quietly(disk_, neighbour);
        return false;
    }
}

}  // namespace veldrana
