#include "app/control_list.h"

#include <string>

#include "common/procedure.h"
#include "common/text.h"

namespace veldrana {
namespace {

// What a control holds; empty for those that hold nothing but a caption.
std::string value_of(const Control& control) {
    if (const auto* const box = dynamic_cast<const CheckBox*>(&control)) {
        return box->value ? "1" : "0";
    }
    if (const auto* const group = dynamic_cast<const OptionGroup*>(&control)) {
        return std::to_string(group->index);
    }
    if (const auto* const text = dynamic_cast<const TextBox*>(&control)) {
        return text->text.get();
    }
    if (const auto* const label = dynamic_cast<const Label*>(&control)) {
        return label->caption.get();
    }
    if (const auto* const list = dynamic_cast<const ListBox*>(&control)) {
        return std::to_string(list->index);
    }
    if (const auto* const tabs = dynamic_cast<const TabControl*>(&control)) {
        return std::to_string(tabs->tab);
    }
    return {};
}

}  // namespace

void mnuGet_Value_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuGet_Value_Click()", [&] {
        constexpr std::size_t name_width = 15;
        const Stage stage = program.stage();
        const std::string list = program.paths.strPath + "Controls.lst";
        const std::string unsorted = list + "_0";
        TextOutput output = stage.open_output(unsorted);
        for (const Control* const control : program.screen.controls()) {
            std::string line = control->name();
            line.resize(std::max(line.size(), name_width), ' ');
            output.write_line(line + " " + value_of(*control));
        }
        output.close();
        stage.sort({.start = 1, .length = name_width, .from = unsorted, .to = list});
    });
}

}  // namespace veldrana
