// Owns the keys of the option files: where each stands, what it is written and read as, and what a
// new file starts from. The order of the table is the order of the keys in a new file.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "settings/environment_settings.h"
#include "settings/option_settings.h"

namespace veldrana {

struct OptionKey {
    // The section; empty: the main one, which bears the name of the file.
    std::string_view section;
    // The key that is written, and the one that is asked for: not the same for all, and files in
    // the field hold what is written. Empty: not written.
    std::string_view written;
    std::string_view asked;
    std::string OptionSettings::*value;
    std::string_view initial;
};

// All options but the version and the mark of an earlier start, which stand in front of them.
std::span<const OptionKey> option_keys();

struct EnvironmentKey {
    std::string_view name;
    std::string EnvironmentSettings::*value;
};

// All entries of the environment but the version, which stands in front of them.
std::span<const EnvironmentKey> environment_keys();

}  // namespace veldrana
