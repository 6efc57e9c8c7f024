#include "app/source_ranks.h"

#include <array>
#include <span>
#include <string>
#include <vector>

#include "common/text.h"
#include "settings/option_defaults.h"

namespace veldrana {
namespace {

// A field of a row: its labels, its list, and the boxes that switch the sources on for it alone; a
// name master has one box for all fields, and contest data hold no names.
struct Field {
    RankLabels MainScreen::*labels;
    std::string OptionSettings::*list;
    CheckBox MainScreen::*qth_mas;
    CheckBox MainScreen::*text_data;
    bool from_dat_mas;
};
constexpr std::array fields{
    Field{&MainScreen::lblName, &OptionSettings::name_yusen_jun, &MainScreen::Check6,
          &MainScreen::Check11, false},
    Field{&MainScreen::lblCode, &OptionSettings::code_yusen_jun, &MainScreen::Check4,
          &MainScreen::Check13, true},
    Field{&MainScreen::lblQth, &OptionSettings::qth_yusen_jun, &MainScreen::Check7,
          &MainScreen::Check9, true},
};

struct SourceColour {
    std::string_view source;
    std::string OptionSettings::*colour;
};
constexpr std::array source_colours{
    SourceColour{"dat_mas", &OptionSettings::dat_mas_color},
    SourceColour{"name_mas", &OptionSettings::name_mas_color},
    SourceColour{"qth_mas", &OptionSettings::qth_mas_color},
    SourceColour{"Text_data", &OptionSettings::text_data_color},
};

bool in_use(const MainScreen& screen, const Field& field, std::string_view source) {
    if (source == "dat_mas") {
        return field.from_dat_mas && screen.Option04.index == 1;
    }
    if (source == "name_mas") {
        return screen.Check03.value;
    }
    if (source == "qth_mas") {
        return screen.Check14.value && (screen.*field.qth_mas).value;
    }
    return source == "Text_data" && screen.Check8.value && (screen.*field.text_data).value;
}

Colour colour_of(const OptionSettings& options, std::string_view source) {
    for (const SourceColour& known : source_colours) {
        if (known.source == source) {
            return {static_cast<std::uint32_t>(stored_number(options.*known.colour))};
        }
    }
    return colours::grey;
}

}  // namespace

void fill_ranks(Program& program) {
    for (const Field& field : fields) {
        std::string& list = program.settings.options.*field.list;
        if (list.empty()) {
            list = default_priority;
        }
        std::vector<std::string_view> sources = split(list, ",");
        RankLabels& labels = program.screen.*field.labels;
        sources.resize(RankLabels::size());
        for (std::size_t rank = 0; rank < RankLabels::size(); ++rank) {
            labels[rank].caption = std::string(sources[rank]);
        }
    }
}

void colour_ranks(Program& program) {
    for (const Field& field : fields) {
        for (Label& label : program.screen.*field.labels) {
            const std::string& source = label.caption;
            label.fore_colour = in_use(program.screen, field, source)
                                    ? colour_of(program.settings.options, source)
                                    : colours::grey;
        }
    }
}

}  // namespace veldrana
