// Owns how a window is put where a form's placement tells, and how its place is told.
#pragma once

#include <QEvent>
#include <QWidget>

#include "common/controls.h"

namespace veldrana {

// What the placement does not tell stays as the window has it. Nothing keeps a window on the
// screen: it comes back where it was.
void put(QWidget& window, const WindowPlacement& placement);

// In pixels of the screen, without the frame.
WindowPlacement placement_of(const QWidget& window);

// Tells the form where its window stands, each time that it is moved, as long as this lives; both
// must live longer.
class PlaceTeller : public QObject {
  public:
    PlaceTeller(QWidget& widget, Window& window);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& widget_;
    Window& window_;
};

}  // namespace veldrana
