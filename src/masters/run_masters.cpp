#include "masters/run_masters.h"

#include "common/file_path.h"

namespace veldrana {

bool uses_name_mas(const RunOptions& options, const EnvironmentSettings& environment) {
    return options.Check03 && has_backslash(environment.name_mas_dir);
}

RunMasters::RunMasters(const RunOptions& options, const SettingsStore& settings, NameMas& name_mas,
                       std::size_t& text_data_hits) {
    const EnvironmentSettings& environment = settings.environment;
    if (uses_name_mas(options, environment)) {
        name_mas_ = &name_mas;
    }
    if (options.Check14 && has_backslash(environment.qth_mas_dir)) {
        qth_mas_.emplace(environment.qth_mas_dir);
    }
    if (options.Check8 && options.Check4_A) {
        text_data_.emplace(UserText::Letter::A, settings.options.Text_data_dir_A, text_data_hits);
    } else if (options.Check8 && options.Check4_B) {
        text_data_.emplace(UserText::Letter::B, settings.options.Text_data_dir_B, text_data_hits);
    }
}

StationSources RunMasters::sources() {
    return {.name_mas = name_mas_,
            .qth_mas = qth_mas_ ? &*qth_mas_ : nullptr,
            .text_data = text_data_ ? &*text_data_ : nullptr};
}

}  // namespace veldrana
