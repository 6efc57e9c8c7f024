// Owns ListBoxHS: a list box that can be scrolled sideways as far as its longest line reaches.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "common/controls.h"

namespace veldrana {

class ListBoxHS {
  public:
    // Tells how wide a line is on the screen, in pixels.
    using Measure = std::function<int(std::string_view line)>;

    // The list must outlive this; its lines so far are not measured.
    ListBoxHS(ListBox& list, Measure measure);

    // What stays free behind the longest line, in pixels.
    static constexpr int margin = 8;

    // While it is set, the list's extent follows the longest line.
    bool automatic = true;

    // Adds a line at its end, or in front of the line with this index (failure 5 if there is none).
    void AddItem(std::string_view line, std::optional<std::size_t> index = std::nullopt);

    // Gives the list its extent, if that is automatic.
    void SetExtent();

    int widest() const noexcept { return widest_; }
    // Lines that were added here.
    std::size_t count() const noexcept { return count_; }

  private:
    ListBox& list_;
    Measure measure_;
    int widest_ = 0;
    std::size_t count_ = 0;
};

}  // namespace veldrana
