// Owns the interface through which a code stage asks for the code and QTH of a contact, whatever
// master they come from.
#pragma once

#include <string>
#include <string_view>

namespace veldrana {

struct CodeAndPlace {
    std::string code;
    std::string qth;
};

class CodeSource {
  public:
    CodeSource() = default;
    CodeSource(const CodeSource&) = delete;
    CodeSource& operator=(const CodeSource&) = delete;
    virtual ~CodeSource() = default;

    // For a number as it was received; both empty if the master does not know it.
    virtual CodeAndPlace find(std::string_view number_received) = 0;
};

}  // namespace veldrana
