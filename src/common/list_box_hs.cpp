#include "common/list_box_hs.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "common/run_time_error.h"

namespace veldrana {

ListBoxHS::ListBoxHS(ListBox& list, Measure measure) : list_(list), measure_(std::move(measure)) {}

void ListBoxHS::AddItem(std::string_view line, std::optional<std::size_t> index) {
    const std::size_t rows = list_.rows.get().size();
    const std::size_t place = index.value_or(rows);
    if (place > rows) {
        throw RunTimeError(Failure::invalid_call);
    }
    list_.rows.modify([&](std::vector<std::string>& lines) {
        lines.emplace(lines.begin() + static_cast<std::ptrdiff_t>(place), line);
    });
    widest_ = std::max(widest_, measure_(line));
    ++count_;
    SetExtent();
}

void ListBoxHS::SetExtent() {
    if (automatic) {
        list_.horizontal_extent = widest_ + margin;
    }
}

}  // namespace veldrana
