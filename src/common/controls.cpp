#include "common/controls.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "common/run_time_error.h"
#include "common/text.h"

namespace veldrana {
namespace {

// The text as an index below a size; nothing if it is not one.
std::optional<int> index_below(std::string_view text, std::size_t size) {
    int index = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), index);
    const bool whole = error == std::errc{} && stop == text.data() + text.size();
    if (!whole || index < 0 || static_cast<std::size_t>(index) >= size) {
        return std::nullopt;
    }
    return index;
}

}  // namespace

Control* Form::find(std::string_view name) const noexcept {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [name](const Control* it) { return it->name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

Control::Control(Form& form, std::string name) : name_(std::move(name)) {
    form.controls_.push_back(this);
}

bool Control::enter(std::string_view /*value*/) {
    return false;
}

Window::Window(Form& form, std::string name, std::string title)
    : Control(form, std::move(name)), caption(*this, std::move(title)) {
    visible = false;
}

Label::Label(Form& form, std::string name, std::string text)
    : Control(form, std::move(name)), caption(*this, std::move(text)) {}

void Label::show(std::string_view text, Colour colour) {
    fore_colour = colour;
    caption = std::string(text);
}

Frame::Frame(Form& form, std::string name, std::string text)
    : Control(form, std::move(name)), caption(*this, std::move(text)) {}

void Frame::select() {
    selections = selections + 1;
}

CommandButton::CommandButton(Form& form, std::string name, std::string text)
    : Control(form, std::move(name)), caption(*this, std::move(text)) {}

void CommandButton::press() {
    if (enabled && Click) {
        Click();
    }
}

ToolButton::ToolButton(Form& form, const std::string& key) : CommandButton(form, key, key) {}

CheckBox::CheckBox(Form& form, std::string name, std::string text, bool checked)
    : Control(form, std::move(name)), caption(*this, std::move(text)), value(*this, checked) {}

bool CheckBox::enter(std::string_view text) {
    if (text != "0" && text != "1") {
        return false;
    }
    value = text == "1";
    return true;
}

OptionGroup::OptionGroup(Form& form, std::string name, const std::vector<std::string>& captions,
                         int chosen)
    : Control(form, std::move(name)), buttons(*this, {}), index(*this, chosen) {
    std::vector<Button> made;
    made.reserve(captions.size());
    for (const std::string& caption : captions) {
        made.push_back({.caption = caption, .fore_colour = colours::black});
    }
    buttons = std::move(made);
}

bool OptionGroup::enter(std::string_view text) {
    const std::optional<int> chosen = index_below(text, buttons.get().size());
    if (chosen) {
        index = *chosen;
    }
    return chosen.has_value();
}

void OptionGroup::set_caption(std::size_t button, std::string caption) {
    change(button, [&](Button& one) { one.caption = std::move(caption); });
}

void OptionGroup::enable(std::size_t button, bool on) {
    change(button, [on](Button& one) { one.enabled = on; });
}

void OptionGroup::change(std::size_t button, const std::function<void(Button&)>& change_one) {
    if (button >= buttons.get().size()) {
        throw RunTimeError(Failure::subscript);
    }
    std::vector<Button> changed = buttons;
    change_one(changed[button]);
    buttons = std::move(changed);
}

void OptionGroup::enable_all(bool on) {
    for (std::size_t i = 0; i < buttons.get().size(); ++i) {
        enable(i, on);
    }
}

TextBox::TextBox(Form& form, std::string name, std::string initial)
    : Control(form, std::move(name)), text(*this, std::move(initial)) {}

void TextBox::move_caret_to_end() {
    caret = length(text.get());
}

bool TextBox::enter(std::string_view value) {
    text = std::string(value);
    return true;
}

ListBox::ListBox(Form& form, std::string name)
    : Control(form, std::move(name)), rows(*this, {}), index(*this, none) {}

void ListBox::select(int row) {
    if (row != none && (row < 0 || static_cast<std::size_t>(row) >= rows.get().size())) {
        throw RunTimeError(Failure::invalid_call);
    }
    index = row;
}

bool ListBox::enter(std::string_view text) {
    const std::optional<int> chosen = index_below(text, rows.get().size());
    if (chosen) {
        index = *chosen;
    }
    return chosen.has_value();
}

ProgressBar::ProgressBar(Form& form, std::string name)
    : Control(form, std::move(name)), maximum(*this, 1), value(*this, 0) {}

void ProgressBar::restart(std::size_t new_maximum) {
    value = 0;
    maximum = std::max<std::size_t>(new_maximum, 1);
}

void ProgressBar::step() {
    value = std::min(value + 1, maximum.get());
}

TabControl::TabControl(Form& form, std::string name)
    : Control(form, std::move(name)), tab(*this, 0) {}

Grid::Grid(Form& form, std::string name, std::size_t rows, std::vector<int> column_widths)
    : Control(form, std::move(name)),
      rows_(rows),
      column_widths_(std::move(column_widths)),
      cells_(rows_ * column_widths_.size()) {}

std::size_t Grid::place(std::size_t row, std::size_t column) const {
    if (row >= rows_ || column >= column_widths_.size()) {
        throw RunTimeError(Failure::subscript);
    }
    return row * column_widths_.size() + column;
}

const Grid::Cell& Grid::cell(std::size_t row, std::size_t column) const {
    return cells_[place(row, column)];
}

void Grid::change(std::size_t row, std::size_t column, Cell cell) {
    Cell& present = cells_[place(row, column)];
    if (!(cell == present)) {
        present = std::move(cell);
        if (listener) {
            listener();
        }
    }
}

void Grid::press(const Place& at) {
    place(at.row, at.column);
    if (enabled && Click) {
        Click(at);
    }
}

void Grid::set_text(std::size_t row, std::size_t column, std::string text) {
    change(row, column, {std::move(text), cell(row, column).fore_colour});
}

void Grid::set_fore_colour(std::size_t row, std::size_t column, Colour colour) {
    change(row, column, {cell(row, column).text, colour});
}

}  // namespace veldrana
