#include "app/remark_slot_settings.h"

#include <vector>

#include "common/text.h"
#include "settings/option_defaults.h"

namespace veldrana {
namespace {

void fill_missing_lists(OptionSettings& options) {
    if (options.Rmks1_cfg.empty() || options.Rmks2_cfg.empty() || options.Rmks1_cfg_len.empty()) {
        options.Rmks1_cfg = fallback_slots_1;
        options.Rmks2_cfg = fallback_slots_2;
        options.Rmks1_cfg_len = fallback_lengths;
        options.Rmks2_cfg_len = fallback_lengths;
    }
}

// The entry of a comma list for each slot; empty where the list is shorter.
std::vector<std::string> slots_of(std::string_view list) {
    std::vector<std::string> entries;
    for (const std::string_view entry : split(list, ",")) {
        entries.emplace_back(trim(entry));
    }
    entries.resize(remark_slot_count);
    return entries;
}

void fill(RemarkSlots& slots, RemarkLengths& lengths, std::string_view items,
          std::string_view item_lengths) {
    const std::vector<std::string> names = slots_of(items);
    const std::vector<std::string> texts = slots_of(item_lengths);
    for (std::size_t i = 0; i < remark_slot_count; ++i) {
        slots[i].caption = names[i];
        get_Rmk_Len_(lengths, names[i], texts[i]);
    }
}

void take(const RemarkSlots& slots, const RemarkLengths& lengths, std::string& items,
          std::string& item_lengths) {
    items.clear();
    item_lengths.clear();
    for (const RemarkSlot& slot : slots) {
        items += slot.caption.get() + ",";
        item_lengths += set_Rmk_Len(lengths, slot.caption.get()) + ",";
    }
}

}  // namespace

void Disp_Rmks_cfg(Program& program) {
    OptionSettings& options = program.settings.options;
    fill_missing_lists(options);
    fill(program.screen.lblRmks1, program.remark_lengths, options.Rmks1_cfg, options.Rmks1_cfg_len);
    fill(program.screen.lblRmks2, program.remark_lengths, options.Rmks2_cfg, options.Rmks2_cfg_len);
    program.slot_rows.use_name_Check();
}

void take_slots(Program& program) {
    OptionSettings& options = program.settings.options;
    const MainScreen& screen = program.screen;
    take(screen.lblRmks1, program.remark_lengths, options.Rmks1_cfg, options.Rmks1_cfg_len);
    take(screen.lblRmks2, program.remark_lengths, options.Rmks2_cfg, options.Rmks2_cfg_len);
}

void store_slots(Program& program) {
    take_slots(program);
    program.settings.write_Veldrana_new_ini();
}

void keep_layouts(OptionSettings& options, const RemarkLayout& rmks1, const RemarkLayout& rmks2) {
    options.Rmks1_cfg = rmks1.cfg;
    options.Rmks1_cfg_len = rmks1.cfg_len;
    options.Rmks2_cfg = rmks2.cfg;
    options.Rmks2_cfg_len = rmks2.cfg_len;
}

}  // namespace veldrana
