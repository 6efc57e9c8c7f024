#include "screens/form_view.h"

#include <QCloseEvent>

namespace veldrana {

FormView::FormView(WindowForm& form, Pump& pump, QWidget* parent)
    : QDialog(parent), build(pump), form_(form) {
    setObjectName(to_qt(form.window.name()));
    // The windows in front of which it stands wait for it, those beside them do not.
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const auto follow = [this] {
        setWindowTitle(to_qt(form_.window.caption.get()).trimmed());
        if (!form_.window.visible) {
            hide();
        }
    };
    follow();
    form.window.listener = follow;
}

FormView::~FormView() {
    unbind(form_);
}

void FormView::place(const QSize& usual) {
    resize(usual);
    if (const auto& placement = form_.window.placement.get()) {
        put(*this, *placement);
    }
    if (place_ == nullptr) {
        place_ = std::make_unique<PlaceTeller>(*this, form_.window);
    }
}

void FormView::reject() {
    build.pump().run([this] {
        if (leave) {
            leave();
        } else {
            form_.window.visible = false;
        }
    });
}

void FormView::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
}

}  // namespace veldrana
