// Owns CIniFile, the copy of a profile file in memory that window positions are kept with. Keys are
// kept in lower case; sections are found without regard to case.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/disk.h"
#include "platform/profile_file.h"

namespace veldrana {

// What GetTyped converts to.
enum class IniType { text = 0, integer = 1, real = 2, boolean = 3 };
using IniValue = std::variant<std::string, int, double, bool>;

class CIniFile {
  public:
    explicit CIniFile(Disk& disk) : disk_(disk) {}

    // Reads all sections and keys; of a key that stands twice the last counts. False if the file is
    // missing or has no section.
    bool Load(std::string path);
    // Writes one section as a whole, or all of them if the name is empty.
    bool Save(std::string_view section = {});

    const std::string& get_Section() const noexcept { return section_; }
    // Makes a section current. An unknown one is added, empty, and clears the changed flag; a known
    // one sets it.
    void set_Section(std::string_view name);
    bool get_Changed() const noexcept { return changed_; }
    std::vector<std::string> get_Sections() const;
    // Of the current section, in lower case.
    std::vector<std::string> get_Keys() const;

    // These work on the current section; without one they find and change nothing.
    void DeleteKey(std::string_view key);
    void DeleteAllKeys();
    // Empty if the key is missing.
    std::string GetValue(std::string_view key) const;
    void SetValue(std::string_view key, std::string_view value);
    // The value in the wanted form if it converts, else the other one.
    IniValue GetTyped(std::string_view key, IniType type, IniValue otherwise) const;

    // Whether a text converts: to a truth value (its English name or a number), to a whole number
    // of 16 or 32 bits after rounding, to a number of single precision.
    static bool IsBool(std::string_view text);
    static bool IsInt(std::string_view text);
    static bool IsLong(std::string_view text);
    static bool IsSingle(std::string_view text);

  private:
    struct Section {
        std::string name;
        std::vector<ProfileFile::Entry> entries;
    };
    // End if there is none.
    std::vector<Section>::iterator find_section(std::string_view name);
    Section* current();
    const Section* current() const;
    bool SaveSection(const std::string& name);

    Disk& disk_;
    std::string path_;
    std::string section_;
    bool changed_ = false;
    std::vector<Section> sections_;
};

}  // namespace veldrana
