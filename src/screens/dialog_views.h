// Owns the views of the forms that are shown until they are closed: one for each, and a plain one
// for a form that has none.
#pragma once

#include <memory>

#include <QDialog>

#include "common/controls.h"
#include "screens/pump.h"

namespace veldrana {

// The view of a form, in front of a window; closing it by its frame is what the form's own button
// for leaving does.
std::unique_ptr<QDialog> make_view(WindowForm& form, Pump& pump, QWidget* parent);

}  // namespace veldrana
