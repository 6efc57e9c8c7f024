#include "settings/ini_file.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "common/text.h"

namespace veldrana {
namespace {

// The whole text as a number: blanks around it, a sign, digits, a point, an exponent.
std::optional<double> number_in(std::string_view text) {
    text = trim(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const std::string_view digits = text.starts_with('-') ? text.substr(1) : text;
    const bool begins_well =
        !digits.empty() &&
        (std::isdigit(static_cast<unsigned char>(digits[0])) != 0 || digits[0] == '.');
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (!begins_well || error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return number;
}

// Rounded as halves to even, if it then fits.
template <class Whole>
std::optional<Whole> whole_number_in(std::string_view text) {
    const std::optional<double> number = number_in(text);
    if (!number) {
        return std::nullopt;
    }
    const double rounded = std::nearbyint(*number);
    if (rounded < std::numeric_limits<Whole>::min() ||
        rounded > std::numeric_limits<Whole>::max()) {
        return std::nullopt;
    }
    return static_cast<Whole>(rounded);
}

std::optional<bool> truth_in(std::string_view text) {
    const std::string name = lower(trim(text));
    if (name == "true" || name == "false") {
        return name == "true";
    }
    const std::optional<double> number = number_in(text);
    return number ? std::optional(*number != 0) : std::nullopt;
}

template <class Value>
IniValue value_or(const std::optional<Value>& value, IniValue otherwise) {
    return value ? IniValue(*value) : std::move(otherwise);
}

auto has_key(std::string_view key) {
    return [key = lower(key)](const ProfileFile::Entry& entry) { return entry.key == key; };
}

}  // namespace

bool CIniFile::Load(std::string path) {
    path_ = std::move(path);
    sections_.clear();
    const ProfileFile file(disk_, path_);
    for (const std::string& name : file.section_names()) {
        if (name.empty() || find_section(name) != sections_.end()) {
            continue;
        }
        set_Section(name);
        for (const ProfileFile::Entry& entry : file.entries(name)) {
            DeleteKey(entry.key);
            SetValue(entry.key, entry.value);
        }
    }
    section_.clear();
    changed_ = false;
    return !sections_.empty();
}

bool CIniFile::Save(std::string_view section) {
    if (!section.empty()) {
        return SaveSection(std::string(section));
    }
    bool saved = true;
    for (const std::string& name : get_Sections()) {
        saved = SaveSection(name) && saved;
    }
    return saved;
}

bool CIniFile::SaveSection(const std::string& name) {
    set_Section(name);
    ProfileFile file(disk_, path_);
    file.set_entries(name, current()->entries);
    const bool saved = file.save();
    changed_ = changed_ || saved;
    return saved;
}

std::vector<CIniFile::Section>::iterator CIniFile::find_section(std::string_view name) {
    return std::find_if(
        sections_.begin(), sections_.end(),
        [wanted = lower(name)](const Section& it) { return lower(it.name) == wanted; });
}

CIniFile::Section* CIniFile::current() {
    const auto found = find_section(section_);
    return found == sections_.end() ? nullptr : &*found;
}

const CIniFile::Section* CIniFile::current() const {
    return const_cast<CIniFile*>(this)->current();  // NOLINT: finds, changes nothing
}

void CIniFile::set_Section(std::string_view name) {
    section_ = name;
    changed_ = find_section(name) != sections_.end();
    if (!changed_) {
        sections_.push_back({.name = section_, .entries = {}});
    }
}

std::vector<std::string> CIniFile::get_Sections() const {
    std::vector<std::string> names;
    for (const Section& section : sections_) {
        names.push_back(section.name);
    }
    return names;
}

std::vector<std::string> CIniFile::get_Keys() const {
    std::vector<std::string> keys;
    if (const Section* const section = current()) {
        for (const ProfileFile::Entry& entry : section->entries) {
            keys.push_back(entry.key);
        }
    }
    return keys;
}

void CIniFile::DeleteKey(std::string_view key) {
    if (Section* const section = current()) {
        std::erase_if(section->entries, has_key(key));
    }
}

void CIniFile::DeleteAllKeys() {
    if (Section* const section = current()) {
        section->entries.clear();
    }
}

std::string CIniFile::GetValue(std::string_view key) const {
    const Section* const section = current();
    if (section == nullptr) {
        return {};
    }
    const auto found = std::find_if(section->entries.begin(), section->entries.end(), has_key(key));
    return found == section->entries.end() ? std::string() : found->value;
}

void CIniFile::SetValue(std::string_view key, std::string_view value) {
    Section* const section = current();
    if (section == nullptr) {
        return;
    }
    const auto found = std::find_if(section->entries.begin(), section->entries.end(), has_key(key));
    if (found == section->entries.end()) {
        section->entries.push_back({.key = lower(key), .value = std::string(value)});
    } else {
        found->value = value;
    }
}

IniValue CIniFile::GetTyped(std::string_view key, IniType type, IniValue otherwise) const {
    const std::string value = GetValue(key);
    switch (type) {
        case IniType::integer:
            return value_or(whole_number_in<std::int32_t>(value), std::move(otherwise));
        case IniType::real:
            return value_or(number_in(value), std::move(otherwise));
        case IniType::boolean:
            return value_or(truth_in(value), std::move(otherwise));
        case IniType::text:
            break;
    }
    return value;
}

bool CIniFile::IsBool(std::string_view text) {
    return truth_in(text).has_value();
}

bool CIniFile::IsInt(std::string_view text) {
    return whole_number_in<std::int16_t>(text).has_value();
}

bool CIniFile::IsLong(std::string_view text) {
    return whole_number_in<std::int32_t>(text).has_value();
}

bool CIniFile::IsSingle(std::string_view text) {
    const std::optional<double> number = number_in(text);
    return number && std::abs(*number) <= std::numeric_limits<float>::max();
}

}  // namespace veldrana
