#include "screens/window_place.h"

namespace veldrana {

void put(QWidget& window, const WindowPlacement& placement) {
    const auto pixels = [](const std::optional<float>& told, int otherwise) {
        return told ? static_cast<int>(*told) : otherwise;
    };
    const QRect now = window.geometry();
    window.setGeometry(pixels(placement.left, now.left()), pixels(placement.top, now.top()),
                       pixels(placement.width, now.width()),
                       pixels(placement.height, now.height()));
    Qt::WindowStates states = window.windowState();
    states.setFlag(Qt::WindowMaximized, placement.state == WindowPlacement::maximised);
    states.setFlag(Qt::WindowMinimized, placement.state == WindowPlacement::minimised);
    window.setWindowState(states);
}

WindowPlacement placement_of(const QWidget& window) {
    const bool plain = !window.isMaximized() && !window.isMinimized();
    const QRect normal = plain ? window.geometry() : window.normalGeometry();
    WindowPlacement placement{.left = static_cast<float>(normal.left()),
                              .top = static_cast<float>(normal.top()),
                              .width = static_cast<float>(normal.width()),
                              .height = static_cast<float>(normal.height())};
    if (window.isMinimized()) {
        placement.state = WindowPlacement::minimised;
    } else if (window.isMaximized()) {
        placement.state = WindowPlacement::maximised;
    }
    return placement;
}

PlaceTeller::PlaceTeller(QWidget& widget, Window& window) : widget_(widget), window_(window) {
    widget.installEventFilter(this);
}

bool PlaceTeller::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
            window_.placement = placement_of(widget_);
            break;
        default:
            break;
    }
    return false;
}

}  // namespace veldrana
