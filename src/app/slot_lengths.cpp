#include "app/slot_lengths.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "app/remark_slot_settings.h"
#include "common/text.h"

namespace veldrana {
namespace {

constexpr int width_of_hit = 40;
constexpr int below_rmks2 = 15;

// The length at the place of the item in a pair of lists.
template <class Same>
std::optional<std::string> length_in(std::string_view items, std::string_view lengths, Same same) {
    const std::vector<std::string_view> names = split(items, ",");
    const std::vector<std::string_view> texts = split(lengths, ",");
    const auto found = std::find_if(names.begin(), names.end(), same);
    const auto place = static_cast<std::size_t>(found - names.begin());
    if (found == names.end() || place >= texts.size()) {
        return std::nullopt;
    }
    return std::string(texts[place]);
}

bool is_in(const SlotRectangles::Row& row, int below, int y) {
    return y >= row.top && y <= row.bottom + below;
}

// The slot whose left part is under the pointer; null between slots.
RemarkSlot* slot_at(RemarkSlots& slots, const SlotRectangles::Row& row, int x) {
    for (std::size_t i = 0; i < remark_slot_count; ++i) {
        if (x >= row.left[i] && x <= row.left[i] + width_of_hit) {
            return &slots[i];
        }
    }
    return nullptr;
}

}  // namespace

std::string Reset_Main_Len(Program& program, std::string_view name) {
    const OptionSettings& options = program.settings.options;
    std::string found = "0";
    if (!name.empty()) {
        const auto of_rmks1 =
            length_in(options.Rmks1_cfg, options.Rmks1_cfg_len,
                      [name](std::string_view item) { return trim(item) == trim(name); });
        const auto of_rmks2 = length_in(options.Rmks2_cfg, options.Rmks2_cfg_len,
                                        [name](std::string_view item) { return item == name; });
        found = of_rmks2 ? *of_rmks2 : of_rmks1.value_or(found);
    }
    take_slots(program);
    return found;
}

void show_length_at(Program& program, const SlotRectangles& slots, int x, int y) {
    MainScreen& screen = program.screen;
    const bool in_rmks1 = is_in(slots.rmks1, 0, y);
    const bool in_rmks2 = is_in(slots.rmks2, below_rmks2, y);
    const int left = std::min(slots.rmks1.left.front(), slots.rmks2.left.front());
    const int right = std::max(slots.rmks1.left.back(), slots.rmks2.left.back()) + width_of_hit;
    if ((!in_rmks1 && !in_rmks2) || x < left || x > right) {
        screen.lblLen.visible = false;
        return;
    }
    RemarkSlot* const slot = in_rmks1 ? slot_at(screen.lblRmks1, slots.rmks1, x)
                                      : slot_at(screen.lblRmks2, slots.rmks2, x);
    if (slot != nullptr) {
        screen.lblLen.caption = Reset_Main_Len(program, slot->caption.get());
        screen.lblLen.visible = true;
    }
}

}  // namespace veldrana
