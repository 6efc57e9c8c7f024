#include "rows/source_priority.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace veldrana {
namespace {

// A source as a column sees it.
struct Offer {
    std::string_view source;
    std::string_view value;
    bool allowed;
};

constexpr std::size_t places_looked_at = 3;

// What the second place asks of Text_data in the code column instead of its own value.
struct SecondPlace {
    std::string_view source;
    std::string_view tested;
};

// Blank places for those that a list does not have.
std::array<std::string_view, places_looked_at> first_places(std::string_view list) {
    std::array<std::string_view, places_looked_at> places;
    for (std::string_view& place : places) {
        const std::size_t end = std::min(list.find(','), list.size());
        place = list.substr(0, end);
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return places;
}

std::string_view choose(const std::string& list, std::span<const Offer> offers,
                        std::string_view before, SecondPlace odd = {}) {
    const bool nothing_offered = std::all_of(
        offers.begin(), offers.end(), [](const Offer& offer) { return offer.value.empty(); });
    if (nothing_offered) {
        return before;
    }
    const std::array<std::string_view, places_looked_at> places = first_places(list);
    std::string_view chosen = before;
    // From the lowest rank up, so that a higher one overwrites.
    for (std::size_t place = places.size(); place > 0; --place) {
        for (const Offer& offer : offers) {
            if (offer.source != places[place - 1] || !offer.allowed) {
                continue;
            }
            const bool is_odd = place == 2 && offer.source == odd.source;
            if (!(is_odd ? odd.tested : offer.value).empty()) {
                chosen = offer.value;
            }
        }
    }
    return chosen;
}

bool dat_mas_counts(const RunOptions& options) {
    return options.Option02 != 0 && options.Option04 == 1;
}

}  // namespace

void filter_qth_mas(const RunOptions& options, bool portable, StationData& found) {
    const bool of_place = !(options.Check16 && portable);
    if (!options.Check6) {
        found.name.clear();
    }
    if (!options.Check4 || !of_place) {
        found.code.clear();
    }
    if (!options.Check7 || !of_place) {
        found.qth.clear();
    }
    if (!options.Check5 || !of_place) {
        found.gl.clear();
    }
}

void filter_text_data(const RunOptions& options, bool portable, StationData& found) {
    const bool of_place = !(options.Check17 && portable);
    if (!options.Check11) {
        found.name.clear();
    }
    if (!options.Check13 || !of_place) {
        found.code.clear();
    }
    if (!options.Check9 || !of_place) {
        found.qth.clear();
    }
    if (!options.Check12) {
        found.rmks.clear();
    }
}

std::string_view choose_name(const RunOptions& options, const Candidates& candidates) {
    const std::array offers{
        Offer{"name_mas", candidates.name_mas.name, options.Check03},
        Offer{"qth_mas", candidates.qth_mas.name, options.Check6 && options.Check14},
        Offer{"Text_data", candidates.text_data.name, options.Check8 && options.Check11}};
    return choose(options.name_yusen_jun, offers, {});
}

std::string_view choose_code(const RunOptions& options, const Candidates& candidates,
                             std::string_view before) {
    const std::array offers{
        Offer{"dat_mas", candidates.dat_mas.code, dat_mas_counts(options)},
        Offer{"qth_mas", candidates.qth_mas.code, options.Check4 && options.Check14},
        Offer{"name_mas", candidates.name_mas.code, options.Check03},
        Offer{"Text_data", candidates.text_data.code, options.Check8 && options.Check13}};
    return choose(options.code_yusen_jun, offers, before,
                  {.source = "Text_data", .tested = candidates.name_mas.code});
}

std::string_view choose_qth(const RunOptions& options, const Candidates& candidates,
                            std::string_view before) {
    const std::array offers{
        Offer{"dat_mas", candidates.dat_mas.qth, dat_mas_counts(options)},
        Offer{"qth_mas", candidates.qth_mas.qth, options.Check7 && options.Check14},
        Offer{"name_mas", candidates.name_mas.qth, options.Check03},
        Offer{"Text_data", candidates.text_data.qth, options.Check8 && options.Check9}};
    return choose(options.qth_yusen_jun, offers, before);
}

}  // namespace veldrana
