// Owns the interface through which a code stage asks for the code and QTH of a contact, whatever
// master they come from.
#pragma once

#include <string>
#include <string_view>

#include "platform/stage.h"

namespace veldrana {

struct CodeAndPlace {
    std::string code = {};
    std::string qth = {};
    friend bool operator==(const CodeAndPlace&, const CodeAndPlace&) = default;
};

class CodeSource {
  public:
    CodeSource() = default;
    CodeSource(const CodeSource&) = delete;
    CodeSource& operator=(const CodeSource&) = delete;
    virtual ~CodeSource() = default;

    // Runs once at the start of a code stage, when the stage has opened its files: a master that is
    // not loaded yet reads its file here.
    virtual void prepare(const Stage& stage);

    // For a number as the stage takes it from the log; both empty if the master does not know it.
    virtual CodeAndPlace find(std::string_view number) = 0;
};

}  // namespace veldrana
