// Owns the fonts of the windows: those of the system, as long as they have all of Japanese.
#pragma once

#include <QFont>

namespace veldrana {

// The application's font, or its like with Japanese.
QFont interface_font();

// A font in which a double-byte character is as wide as two others, as tables of text need it.
QFont fixed_font();

}  // namespace veldrana
