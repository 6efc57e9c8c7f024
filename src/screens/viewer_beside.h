// Owns the windows of the free text viewers, which stand beside the program's other windows: each
// is shown as long as its form is, and follows it to another file.
#pragma once

#include "screens/form_view.h"
#include "screens/text_view.h"
#include "viewers/frmDisp.h"

namespace veldrana {

class ViewerBeside : public FormView {
  public:
    ViewerBeside(FreeViewer& form, Pump& pump);

  private:
    void follow();

    FreeViewer& form_;
    TextView* text_;
    // The caption of what is shown: it changes with each file that is loaded.
    std::string shown_;
};

}  // namespace veldrana
