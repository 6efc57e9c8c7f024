// Owns the choice of the masters that one run asks about its stations.
#pragma once

#include <cstddef>
#include <optional>

#include "masters/name_source.h"
#include "masters/station_masters.h"
#include "settings/environment_settings.h"
#include "settings/run_options.h"
#include "settings/settings_store.h"

namespace veldrana {

// Whether the name master is to be asked: its option is on and its folder is set.
bool uses_name_mas(const RunOptions& options, const EnvironmentSettings& environment);

// Lives as long as the pass over the contacts. A master is there if its option is on and, for
// name_mas and qth_mas, its path holds a backslash; of the user texts A goes before B.
class RunMasters {
  public:
    // The counter of the user text's hits, and name_mas, outlive the run.
    RunMasters(const RunOptions& options, const SettingsStore& settings, NameMas& name_mas,
               std::size_t& text_data_hits);

    // Valid as long as this object.
    StationSources sources();

  private:
    NameMas* name_mas_ = nullptr;
    std::optional<QthMas> qth_mas_;
    std::optional<UserText> text_data_;
};

}  // namespace veldrana
