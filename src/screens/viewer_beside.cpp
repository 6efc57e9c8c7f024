#include "screens/viewer_beside.h"

namespace veldrana {

ViewerBeside::ViewerBeside(FreeViewer& form, Pump& pump)
    : FormView(form, pump, nullptr), form_(form), text_(new TextView(form.text())) {
    setWindowModality(Qt::NonModal);
    leave = [this] { form_.cmdOK.press(); };
    setLayout(column({text_, row_at_right({build.button(form.cmdOK)})}));
    form.window.listener = [this] { follow(); };
}

void ViewerBeside::follow() {
    const Window& window = form_.window;
    setWindowTitle(to_qt(window.caption.get()).trimmed());
    if (window.visible && !isVisible()) {
        text_->reload();
        place(QSize(760, 520));
        show();
    } else if (!window.visible) {
        hide();
    }
}

}  // namespace veldrana
