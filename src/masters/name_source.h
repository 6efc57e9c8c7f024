// Owns the interface through which the row builder asks a master about a station, and the set of
// masters that a run may ask. A master that is not loaded finds nothing.
#pragma once

#include <string>
#include <string_view>

#include "platform/stage.h"

namespace veldrana {

// What a master holds on a station; what it has no column for is empty.
struct StationData {
    std::string name;
    std::string code;
    std::string qth;
    std::string gl;
    std::string rmks;
};

class NameSource {
  public:
    NameSource() = default;
    NameSource(const NameSource&) = delete;
    NameSource& operator=(const NameSource&) = delete;
    virtual ~NameSource() = default;

    // Runs once at the start of a pass over the contacts, when the pass has opened its files: a
    // master that is read anew for each pass reads its file here.
    virtual void prepare(const Stage& stage);

    // For a call base, without regard to case; all empty if the master does not know it.
    virtual StationData find(std::string_view call_base) = 0;
};

// The masters of a run; null: not there.
struct StationSources {
    NameSource* name_mas = nullptr;
    NameSource* qth_mas = nullptr;
    NameSource* text_data = nullptr;  // the user text that is chosen
};

}  // namespace veldrana
