// Owns the controls that forms are made of: captions, colours, values, enabled, visible. They know
// no toolkit. A view binds each to its widget through the listener; a form attaches its handlers to
// the events, which carry the names that handlers end in (Click, Change).
//
// Setting a property to what it holds already is no change: neither listener nor handler runs.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace veldrana {

struct Colour {
    std::uint32_t bgr = 0;  // 0xBBGGRR, as the option files hold it
    friend bool operator==(const Colour&, const Colour&) = default;
};

namespace colours {
constexpr Colour black{0x000000};
constexpr Colour green{0x008000};
constexpr Colour blue{0xFF0000};
constexpr Colour red{0x0000FF};
constexpr Colour grey{0x808080};
}  // namespace colours

class Control;

// A value of a control that tells the control's listener when it changes.
template <class T>
class Property {
  public:
    Property(Control& owner, T initial) : owner_(owner), value_(std::move(initial)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;
    ~Property() = default;

    Property& operator=(T value);
    // Changes a large value where it stands; counts as a change.
    template <class Change>
    void modify(Change&& change) {
        change(value_);
        tell();
    }
    const T& get() const noexcept { return value_; }
    operator const T&() const noexcept { return value_; }  // NOLINT: reads like the value it holds
    friend bool operator==(const Property& property, const T& value) {
        return property.value_ == value;
    }

    // What the form does when the value changes: the control's event.
    std::function<void()> on_change;

  private:
    void tell();

    Control& owner_;
    T value_;
};

// What has named controls: tells them by name to whoever sets them from outside.
class Form {
  public:
    Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form() = default;

    // nullptr if the form has no control of that name.
    Control* find(std::string_view name) const noexcept;
    const std::vector<Control*>& controls() const noexcept { return controls_; }

  private:
    friend class Control;
    std::vector<Control*> controls_;
};

class Control {
  public:
    Control(Form& form, std::string name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    // Elements of a control array are named with their index: "lblRmks1(0)".
    const std::string& name() const noexcept { return name_; }

    // Takes a value as a person would give it, with all that follows from it. False if this control
    // has no such value. Whether it is enabled at the moment is not looked at: options may be set
    // in any order.
    virtual bool enter(std::string_view value);

    Property<bool> enabled{*this, true};
    Property<bool> visible{*this, true};
    Property<Colour> fore_colour{*this, colours::black};
    Property<std::string> tool_tip{*this, {}};

    // The view: runs at every change of a property, before the form's handler.
    std::function<void()> listener;

  private:
    std::string name_;
};

template <class T>
Property<T>& Property<T>::operator=(T value) {
    if (!(value == value_)) {
        value_ = std::move(value);
        tell();
    }
    return *this;
}

template <class T>
void Property<T>::tell() {
    if (owner_.listener) {
        owner_.listener();
    }
    if (on_change) {
        on_change();
    }
}

// Where a window stands, in the unit of the screen, and how: the rectangle is that of the window's
// normal state, also while it is maximised.
struct WindowPlacement {
    enum State { normal = 0, minimised = 1, maximised = 2 };
    int state = normal;
    // A side that nobody has told is the view's own.
    std::optional<float> left = {};
    std::optional<float> top = {};
    std::optional<float> width = {};
    std::optional<float> height = {};
    friend bool operator==(const WindowPlacement&, const WindowPlacement&) = default;
};

// The window of a form; visible while it is shown.
class Window : public Control {
  public:
    Window(Form& form, std::string name, std::string title = {});
    Property<std::string> caption;
    // Nothing until a view or a file has told it.
    Property<std::optional<WindowPlacement>> placement{*this, std::nullopt};
};

// A form with a window of its own.
class WindowForm : public Form {
  public:
    explicit WindowForm(std::string name, std::string title = {})
        : window(*this, std::move(name), std::move(title)) {}
    WindowForm(const WindowForm&) = delete;
    WindowForm& operator=(const WindowForm&) = delete;
    virtual ~WindowForm() = default;

    Window window;
};

class Label : public Control {
  public:
    Label(Form& form, std::string name, std::string text = {});
    Property<std::string> caption;
    Property<bool> large_letters{*this, false};

    void show(std::string_view text, Colour colour);
};

class Frame : public Control {
  public:
    Frame(Form& form, std::string name, std::string text = {});
    Property<std::string> caption;
    // How often it has been selected: the view brings it into sight each time.
    Property<unsigned> selections{*this, 0};

    void select();
};

// What a person presses: a button of a form, of a toolbar, an entry of a menu.
class CommandButton : public Control {
  public:
    CommandButton(Form& form, std::string name, std::string text);
    Property<std::string> caption;

    std::function<void()> Click;
    // Runs Click, unless the button is disabled.
    void press();
};

// A toolbar button; its name is its key.
class ToolButton : public CommandButton {
  public:
    ToolButton(Form& form, const std::string& key);
};

class MenuEntry : public CommandButton {
  public:
    using CommandButton::CommandButton;
};

class CheckBox : public Control {
  public:
    CheckBox(Form& form, std::string name, std::string text, bool checked = false);
    Property<std::string> caption;
    Property<bool> value;  // on_change is its Click

    // "1" or "0".
    bool enter(std::string_view text) override;
};

// A group of buttons of which one is chosen at most.
class OptionGroup : public Control {
  public:
    struct Button {
        std::string caption;
        bool enabled = true;
        Colour fore_colour;
        friend bool operator==(const Button&, const Button&) = default;
    };

    static constexpr int none = -1;

    OptionGroup(Form& form, std::string name, const std::vector<std::string>& captions,
                int chosen = none);
    Property<std::vector<Button>> buttons;
    Property<int> index;  // of the chosen button; on_change is the group's Click

    // Change one button; one that is not there is failure 9.
    void set_caption(std::size_t button, std::string caption);
    void enable(std::size_t button, bool on);
    void enable_all(bool on);

    // The index of a button that is there.
    bool enter(std::string_view text) override;

  private:
    void change(std::size_t button, const std::function<void(Button&)>& change_one);
};

class TextBox : public Control {
  public:
    TextBox(Form& form, std::string name, std::string initial = {});
    Property<std::string> text;  // on_change is its Change
    // The view shows a mark in the place of each character.
    Property<bool> hidden_text{*this, false};
    // How many characters stand in front of the caret; the view tells it where the person put it.
    Property<std::size_t> caret{*this, 0};

    void move_caret_to_end();

    bool enter(std::string_view value) override;
};

class ListBox : public Control {
  public:
    static constexpr int none = -1;

    ListBox(Form& form, std::string name);
    Property<std::vector<std::string>> rows;
    Property<int> index;  // of the chosen row; on_change is its Click
    // How far the view can be scrolled sideways, in pixels; 0: not at all.
    Property<int> horizontal_extent{*this, 0};

    // Chooses a row, or none; a row that is not there is failure 5.
    void select(int row);

    // The index of a row that is there.
    bool enter(std::string_view text) override;
};

// How far something long has come. The maximum is at least 1.
class ProgressBar : public Control {
  public:
    ProgressBar(Form& form, std::string name);
    Property<std::size_t> maximum;
    Property<std::size_t> value;

    // Back to the start, with a new maximum.
    void restart(std::size_t new_maximum);
    // One step on; a count that reaches further than told stays at the maximum.
    void step();
};

// Pages of which one is shown; counted from 0.
class TabControl : public Control {
  public:
    TabControl(Form& form, std::string name);
    Property<int> tab;
};

// Controls of one name, told apart by an index in parentheses: "lblRmks1(0)".
template <class T, std::size_t count>
class ControlArray {
  public:
    ControlArray(Form& form, const std::string& name)
        : ControlArray(form, name, std::make_index_sequence<count>()) {}

    T& operator[](std::size_t index) noexcept { return controls_[index]; }
    const T& operator[](std::size_t index) const noexcept { return controls_[index]; }
    static constexpr std::size_t size() noexcept { return count; }
    auto begin() noexcept { return controls_.begin(); }
    auto end() noexcept { return controls_.end(); }
    auto begin() const noexcept { return controls_.begin(); }
    auto end() const noexcept { return controls_.end(); }

  private:
    template <std::size_t... index>
    ControlArray(Form& form, const std::string& name, std::index_sequence<index...> /*all*/)
        : controls_{T(form, name + "(" + std::to_string(index) + ")")...} {}

    std::array<T, count> controls_;
};

// A table of texts, each cell with its colour. Cells are set by row and column from 0; one that is
// not there is failure 9.
class Grid : public Control {
  public:
    struct Cell {
        std::string text;
        Colour fore_colour;
        friend bool operator==(const Cell&, const Cell&) = default;
    };

    // Column widths in twips (1/1440 inch).
    Grid(Form& form, std::string name, std::size_t rows, std::vector<int> column_widths);

    std::size_t rows() const noexcept { return rows_; }
    const std::vector<int>& column_widths() const noexcept { return column_widths_; }
    const Cell& cell(std::size_t row, std::size_t column) const;
    void set_text(std::size_t row, std::size_t column, std::string text);
    void set_fore_colour(std::size_t row, std::size_t column, Colour colour);

    // What a person points at: a cell, and the character of its text, all counted from 0.
    struct Place {
        std::size_t row = 0;
        std::size_t column = 0;
        std::size_t character = 0;
    };
    std::function<void(const Place&)> Click;
    // Runs Click, unless the grid is disabled; a cell that is not there is failure 9.
    void press(const Place& at);

  private:
    std::size_t place(std::size_t row, std::size_t column) const;
    void change(std::size_t row, std::size_t column, Cell cell);

    std::size_t rows_;
    std::vector<int> column_widths_;
    std::vector<Cell> cells_;
};

}  // namespace veldrana
