// Owns how a control of a form stands on the screen: each function binds one to a widget, so that
// what the form sets is seen and what a person does is told to the form. Form and widget must live
// as long as each other; unbind a form whose widgets go first.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QColor>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>

#include "common/controls.h"
#include "screens/pump.h"

namespace veldrana {

// Forms measure in twips.
constexpr int twips_of_a_pixel = 15;

QString to_qt(std::string_view text);
std::string from_qt(const QString& text);

// A colour of a form, dark or light enough to be read on a background: a contrast of 4.5 at least.
QColor readable(Colour colour, const QColor& background);

class Binder {
  public:
    explicit Binder(Pump& pump) : pump_(pump) {}

    void bind(Label& control, QLabel* widget);
    void bind(Frame& control, QGroupBox* widget);
    // A button that has nothing to do cannot be pressed.
    void bind(CommandButton& control, QPushButton* widget);
    void bind(CommandButton& control, QAction* action);
    void bind(CheckBox& control, QCheckBox* widget);
    // By the places of the group's buttons.
    void bind(OptionGroup& control, const std::vector<QRadioButton*>& widgets);
    void bind(TextBox& control, QLineEdit* widget);
    void bind(ListBox& control, QListWidget* widget);
    void bind(TabControl& control, QTabWidget* widget);
    void bind(Grid& control, QTableWidget* widget);
    // Pending events are let run now and then, so that it is seen to move.
    void bind(ProgressBar& control, QProgressBar* widget);

  private:
    // Shows the control now and at each change.
    static void follow(Control& control, std::function<void()> show);

    Pump& pump_;
};

// Takes every control of a form off its widget.
void unbind(const Form& form);

}  // namespace veldrana
