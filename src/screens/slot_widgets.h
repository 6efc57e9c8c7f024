// Owns the widgets that items are dragged from and dropped on.
#pragma once

#include <QLabel>
#include <QMimeData>
#include <QPushButton>

#include "app/program.h"
#include "screens/view_builder.h"

namespace veldrana {

// A slot: takes items, and gives its own.
class SlotWidget : public QLabel {
  public:
    SlotWidget(Program& program, Pump& pump, RemarkSlot& slot);

    // What a drag from here carries; the caller's.
    QMimeData* carried() const;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    Program& program_;
    Pump& pump_;
    RemarkSlot& slot_;
    QPoint pressed_at_;
};

// A button that an item is dragged from; light blue while its item is in use.
class ItemWidget : public QPushButton {
  public:
    explicit ItemWidget(ItemButton& button);

    // What a drag from here carries; the caller's.
    QMimeData* carried() const;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    ItemButton& button_;
    QPoint pressed_at_;
};

}  // namespace veldrana
