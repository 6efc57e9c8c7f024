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
    if (!window.visible) {
        shown_.clear();
        hide();
        return;
    }
    if (shown_ != window.caption.get()) {
        shown_ = window.caption;
        setWindowTitle(to_qt(shown_).trimmed());
        text_->reload();
        raise();
    }
    if (!isVisible()) {
        place(QSize(760, 520));
        show();
    }
}

}  // namespace veldrana
