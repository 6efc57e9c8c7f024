#include "app/counters.h"

#include <algorithm>
#include <string>

namespace veldrana {

void Counters::clear_search() {
    std::fill(values.begin() + first_of_search, values.end(), 0);
}

void kettuka_disp(const Counters& counters, MainScreen& screen) {
    for (std::size_t row = 0; row < counters.values.size(); ++row) {
        screen.MSFlexGrid1.set_text(row, 1, std::to_string(counters.values[row]));
    }
}

void kettuka_disp_clear(Counters& counters, MainScreen& screen) {
    counters = {};
    kettuka_disp(counters, screen);
}

}  // namespace veldrana
