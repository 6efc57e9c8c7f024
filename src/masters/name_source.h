// Owns the interface through which the row builder asks a master about a station, and the set of
// masters that a run may ask. A master that is not loaded finds nothing.
#pragma once

#include <string>
#include <string_view>

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

    // For a call base; all empty if the master does not know it.
    virtual StationData find(std::string_view call_base) = 0;
};

// The masters of a run; null: not there.
struct StationSources {
    NameSource* name_mas = nullptr;
    NameSource* qth_mas = nullptr;
    NameSource* text_data = nullptr;  // the user text that is chosen
};

}  // namespace veldrana
