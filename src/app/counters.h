// Owns the result counters of a run and how they come to the result grid.
#pragma once

#include <array>
#include <cstddef>

#include "app/main_screen.h"

namespace veldrana {

// By the rows of the grid.
struct Counters {
    static constexpr std::size_t first_of_search = 6;
    static constexpr std::size_t text_data = 9;

    std::array<std::size_t, counter_labels.size()> values{};

    // Zeroes those of the member search and of the text data, as each run does at its start.
    void clear_search();
};

// Copies the counters to the grid.
void kettuka_disp(const Counters& counters, MainScreen& screen);
// Zeroes the counters and shows them.
void kettuka_disp_clear(Counters& counters, MainScreen& screen);

}  // namespace veldrana
