// Owns the window around a form: its title, its place, and what its frame's close button does.
#pragma once

#include <functional>

#include <QDialog>

#include "screens/view_builder.h"

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
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void tell_placement();

    WindowForm& form_;
    bool placed_ = false;
};

}  // namespace veldrana
