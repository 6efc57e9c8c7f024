// Owns how the parts of a view are made: for each control its widget, named as the control is and
// bound to it, and the boxes and rows that they stand in.
#pragma once

#include <initializer_list>
#include <vector>

#include <QBoxLayout>
#include <QGridLayout>

#include "screens/binding.h"

namespace veldrana {

// Something that stands in a row: a widget, a layout, or room that stretches.
struct Piece {
    Piece(QWidget* one) : widget(one) {}  // NOLINT: a row reads as the list of what stands in it
    Piece(QLayout* one) : layout(one) {}  // NOLINT
    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
};

class ViewBuilder {
  public:
    explicit ViewBuilder(Pump& pump) : pump_(pump), binder_(pump) {}

    QLabel* label(Label& control);
    // A label that shows as much of its text as there is room for; all of it is its tool tip,
    // unless the control has one.
    QLabel* path_label(Label& control);
    QCheckBox* check(CheckBox& control);
    std::vector<QRadioButton*> radios(OptionGroup& control);
    // A field that is so many characters wide; 0: as wide as there is room.
    QLineEdit* edit(TextBox& control, int characters);
    QPushButton* button(CommandButton& control);
    QListWidget* list(ListBox& control);
    QTableWidget* grid(Grid& control);
    QAction* action(CommandButton& control, QObject* parent);

    Binder& binder() noexcept { return binder_; }
    Pump& pump() noexcept { return pump_; }

  private:
    Pump& pump_;
    Binder binder_;
};

// Plain text of a view that no control holds.
QLabel* caption(const QString& text);

QHBoxLayout* row(std::initializer_list<Piece> pieces, bool stretch_at_end = true);
// The piece with that place, counted from 0, takes all the room there is.
QHBoxLayout* row_with_wide(int place, std::initializer_list<Piece> pieces);
// The buttons that end a dialog.
QHBoxLayout* row_at_right(std::initializer_list<QPushButton*> buttons);
QVBoxLayout* column(std::initializer_list<Piece> pieces);
QVBoxLayout* column(const std::vector<QRadioButton*>& buttons);
QHBoxLayout* row(const std::vector<QRadioButton*>& buttons);
QGroupBox* box(const QString& title, QLayout* layout);
QFrame* line();

// A page of tabs: what stands on it keeps to the top.
QWidget* page(std::initializer_list<Piece> pieces);

}  // namespace veldrana
