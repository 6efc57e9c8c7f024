// Owns the window around a form: its title, its place, and what its frame's close button does.
#pragma once

#include <functional>
#include <memory>

#include <QDialog>

#include "screens/view_builder.h"
#include "screens/window_place.h"

namespace veldrana {

// Hides when the form is left, and tells the form where it stands. The window is named as the form
// is; the windows behind it wait while it is shown.
class FormView : public QDialog {
  public:
    FormView(WindowForm& form, Pump& pump, QWidget* parent);
    ~FormView() override;

    // Runs when the window is closed by its frame or by Escape; without it the form is left.
    std::function<void()> leave;

    // As it was left, else in a size that suits it.
    void place(const QSize& usual);

    ViewBuilder build;

  protected:
    void reject() override;
    void closeEvent(QCloseEvent* event) override;

  private:
    WindowForm& form_;
    // Nothing before the window has been placed.
    std::unique_ptr<PlaceTeller> place_;
};

}  // namespace veldrana
