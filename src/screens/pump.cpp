#include "screens/pump.h"

#include <utility>

#include <QApplication>
#include <QEvent>

namespace veldrana {

// Takes away what a person does while the pump is busy.
class Pump::Deaf : public QObject {
  public:
    explicit Deaf(const Pump& pump) : pump_(pump) {}

    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        if (!pump_.busy() || !is_input(event->type())) {
            return false;
        }
        event->ignore();
        return true;
    }

  private:
    static bool is_input(QEvent::Type type) {
        switch (type) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::Wheel:
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::ShortcutOverride:
            case QEvent::Shortcut:
            case QEvent::InputMethod:
            case QEvent::ContextMenu:
            case QEvent::DragEnter:
            case QEvent::DragMove:
            case QEvent::Drop:
            case QEvent::TouchBegin:
            case QEvent::Close:
                return true;
            default:
                return false;
        }
    }

    const Pump& pump_;
};

Pump::Pump() : deaf_(std::make_unique<Deaf>(*this)) {
    QCoreApplication::instance()->installEventFilter(deaf_.get());
}

Pump::~Pump() = default;

void Pump::run(const std::function<void()>& action) {
    const bool within_another = std::exchange(busy_, true);
    try {
        action();
    } catch (...) {
        thrown_ = std::current_exception();
    }
    if (!within_another && hourglass_) {
        // What has been pressed meanwhile is still on its way: it goes while nobody listens.
        breathe();
        show_hourglass(false);
    }
    busy_ = within_another;
    check();
}

void Pump::check() {
    if (!loops_.empty() && (thrown_ != nullptr || loops_.back()->finished())) {
        loops_.back()->events.quit();
    }
}

void Pump::loop_until(const std::function<bool()>& finished) {
    Loop loop(finished);
    loops_.push_back(&loop);
    wait_for([&] {
        while (thrown_ == nullptr && !finished()) {
            loop.events.exec();
        }
    });
    loops_.pop_back();
    if (thrown_ != nullptr) {
        std::rethrow_exception(std::exchange(thrown_, nullptr));
    }
}

void Pump::wait_for(const std::function<void()>& dialog) {
    const bool was_busy = std::exchange(busy_, false);
    const bool was_shown = hourglass_;
    show_hourglass(false);
    dialog();
    show_hourglass(was_shown);
    busy_ = was_busy;
}

void Pump::breathe() {
    show_hourglass(busy_);
    QApplication::processEvents();
}

void Pump::show_hourglass(bool on) {
    if (on != hourglass_) {
        hourglass_ = on;
        if (on) {
            QApplication::setOverrideCursor(Qt::WaitCursor);
        } else {
            QApplication::restoreOverrideCursor();
        }
    }
}

}  // namespace veldrana
