#include "rows/slot_rows.h"

#include <algorithm>

namespace veldrana {
namespace {

// Items of which one form stands in the way of the other.
constexpr std::array<std::array<std::string_view, 2>, 2> exclusions{
    {{"memo", "memo="}, {"OP", "OP %"}}};

std::string_view excluded_by(std::string_view name) {
    for (const auto& [one, other] : exclusions) {
        if (name == one) {
            return other;
        }
        if (name == other) {
            return one;
        }
    }
    return {};
}

}  // namespace

void SlotRows::drop(RemarkSlot& target, const DraggedItem& dragged) {
    target.caption = dragged.name;
    if (dragged.from != nullptr) {
        dragged.from->caption = "";
    }
    check(target, dragged.name);
    use_name_Check();
}

void SlotRows::check(RemarkSlot& target, const std::string& name) {
    clear_others(&target, name);
    if (const std::string_view excluded = excluded_by(name); !excluded.empty()) {
        clear_others(nullptr, excluded);
    }
    // It may have come from this slot itself.
    target.caption = name;
}

void SlotRows::clear_others(const RemarkSlot* kept, std::string_view name) {
    for (RemarkSlots* const row : rows_) {
        for (RemarkSlot& slot : *row) {
            if (&slot != kept && slot.caption.get() == name) {
                slot.caption = "";
            }
        }
    }
}

bool SlotRows::holds(std::string_view name) const {
    return std::any_of(rows_.begin(), rows_.end(), [name](const RemarkSlots* row) {
        return std::any_of(row->begin(), row->end(),
                           [name](const RemarkSlot& slot) { return slot.caption.get() == name; });
    });
}

void SlotRows::use_name_Check() {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        Captions& captions = noted_[row].emplace();
        std::transform(rows_[row]->begin(), rows_[row]->end(), captions.begin(),
                       [](const RemarkSlot& slot) { return slot.caption.get(); });
    }
    for (std::size_t i = 0; i < remark_item_count; ++i) {
        buttons_[i].in_use = holds(remark_item_names[i]);
    }
}

void SlotRows::redo(std::size_t row) {
    if (!noted_[row]) {
        return;
    }
    for (std::size_t i = 0; i < remark_slot_count; ++i) {
        (*rows_[row])[i].caption = (*noted_[row])[i];
    }
    noted_[row].reset();
}

}  // namespace veldrana
