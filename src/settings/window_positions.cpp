#include "settings/window_positions.h"

#include <charconv>

#include "common/text.h"
#include "common/version.h"
#include "platform/text_file.h"
#include "settings/ini_file.h"

namespace veldrana {
namespace {

struct Side {
    std::string_view key;
    std::optional<float> WindowPlacement::*value;
};
constexpr std::array<Side, 4> written_sides{{{"Left", &WindowPlacement::left},
                                             {"Top", &WindowPlacement::top},
                                             {"Width", &WindowPlacement::width},
                                             {"Height", &WindowPlacement::height}}};

std::string path_of(std::string_view strPath) {
    return std::string(strPath).append(position_ini);
}

std::string section_of(const Window& window) {
    return "Position_" + window.name();
}

// The shortest text that reads as the number.
std::string text_of(float number) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), error == std::errc{} ? end : buffer.data()};
}

}  // namespace

void make_position_file(Disk& disk, std::string_view strPath) {
    // A folder of that name keeps the positions from being stored, nothing more.
    if (disk.file_exists(path_of(strPath)) || disk.folder_exists(path_of(strPath))) {
        return;
    }
    TextOutput file(disk, path_of(strPath));
    file.write_line("[Config]");
    file.write_line("version=" + std::string(program_version));
    file.write_line("");
    file.close();
}

void save_position(Disk& disk, std::string_view strPath, const Window& window) {
    if (!window.placement.get()) {
        return;
    }
    const WindowPlacement placement = *window.placement.get();
    CIniFile file(disk);
    file.Load(path_of(strPath));
    file.set_Section(section_of(window));
    const bool minimised = placement.state == WindowPlacement::minimised;
    file.SetValue("WindowState",
                  std::to_string(minimised ? WindowPlacement::normal : placement.state));
    for (const Side& side : written_sides) {
        if (placement.*side.value) {
            file.SetValue(side.key, text_of(*(placement.*side.value)));
        }
    }
    file.Save(section_of(window));
}

void load_position(Disk& disk, std::string_view strPath, Window& window) {
    CIniFile file(disk);
    file.Load(path_of(strPath));
    file.set_Section(section_of(window));
    WindowPlacement placement = window.placement.get().value_or(WindowPlacement{});
    bool known = window.placement.get().has_value();
    const std::string state = file.GetValue("WindowState");
    if (state == "0" || state == "1" || state == "2") {
        placement.state = state.front() - '0';
        known = true;
    }
    for (const Side& side : written_sides) {
        const std::string value = file.GetValue(side.key);
        if (CIniFile::IsInt(value)) {
            placement.*side.value = static_cast<float>(val(value));
            known = true;
        }
    }
    if (known) {
        window.placement = placement;
    }
}

}  // namespace veldrana
