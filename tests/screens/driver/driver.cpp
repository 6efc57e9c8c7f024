// A plugin of the toolkit that stands in for the person at the built program: it does the steps of
// a script, one after the other, each as soon as what it needs is on the screen.
//
// The toolkit loads it by QT_QPA_GENERIC_PLUGINS=veldrana_driver from the folder of QT_PLUGIN_PATH;
// VELDRANA_STEPS names the script.
//
// A step is a line: its verb, the name of a widget, the rest.
//
//     wait NAME           until the widget is seen
//     click NAME          presses the widget with the mouse
//     press NAME          triggers an entry of the menu or the toolbar
//     type NAME TEXT      puts the text in the place of what stands there
//     choose PATH         answers a file dialog
//     answer              presses the default button of a box
//     drag NAME NAME      from one widget to another
//     expect NAME TEXT    the widget shows the text
//     tab NAME NUMBER     brings a page to the front, counted from 0
//     size WIDTH HEIGHT   of the window in front
//     pointer NAME        moves the pointer over the widget
//     shot FILE           a picture of the window in front
//     up FILE             writes how many milliseconds after VELDRANA_STARTED (of the steady clock)
//                         the main window was drawn
//     close               closes the window in front
//
// What cannot be done within ten seconds ends the program with status 99 and a line that says why.
#include <ctime>
#include <iostream>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QGenericPlugin>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {

// Milliseconds of the steady clock.
qint64 now() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return qint64{1000} * time.tv_sec + time.tv_nsec / 1000000;
}

class Steps : public QObject {
    Q_OBJECT

  public:
    explicit Steps(const QString& file) {
        QFile steps(file);
        if (!steps.open(QIODevice::ReadOnly)) {
            give_up("no steps in " + file);
        }
        const QStringList lines =
            QString::fromUtf8(steps.readAll()).split('\n', Qt::SkipEmptyParts);
        for (const QString& line : lines) {
            if (!line.startsWith('#')) {
                steps_ << line;
            }
        }
        look_again();
        waiting_.start();
        // The program's own windows are made later than this.
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::Paint && drawn_ == 0 &&
            qobject_cast<QMainWindow*>(receiver) != nullptr) {
            drawn_ = now();
        }
        return false;
    }

  private:
    // By a timer of its own each time: a step that opens a dialog has not come back when the next
    // one is due.
    void look_again() { QTimer::singleShot(10, this, &Steps::look); }

    void look() {
        if (steps_.isEmpty()) {
            return;
        }
        if (QApplication::overrideCursor() != nullptr) {
            look_again();  // at the hourglass one waits
            return;
        }
        const QString step = steps_.front();
        if (std::function<void()> doing = ready(step)) {
            steps_.removeFirst();
            waiting_.restart();
            look_again();
            doing();
        } else if (waiting_.elapsed() > longest_wait) {
            give_up(step);
        } else {
            look_again();
        }
    }

    [[noreturn]] static void give_up(const QString& why) {
        std::cerr << "steps: " << why.toStdString() << '\n';
        std::_Exit(99);
    }

    static QWidget* front() {
        if (QWidget* const modal = QApplication::activeModalWidget()) {
            return modal;
        }
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* const window : windows) {
            if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) {
                return window;
            }
        }
        return nullptr;
    }

    // The widget of that name in the window in front, if it is there.
    template <class Widget = QWidget>
    static Widget* seen(const QString& name) {
        QWidget* const window = front();
        if (window == nullptr) {
            return nullptr;
        }
        if (window->objectName() == name) {
            return qobject_cast<Widget*>(window);
        }
        return window->findChild<Widget*>(name);
    }

    // What the step does; nothing as long as it cannot be done.
    std::function<void()> ready(const QString& step) {
        const QString verb = step.section(' ', 0, 0);
        const QString name = step.section(' ', 1, 1);
        const QString rest = step.section(' ', 2);
        if (verb == "wait") {
            return step_with(seen(name), [](QWidget* /*there*/) {});
        }
        if (verb == "click") {
            auto* const button = seen<QAbstractButton>(name);
            if (button != nullptr && (!button->isVisible() || !button->isEnabled())) {
                return {};
            }
            return step_with(button, [](QAbstractButton* pressed) {
                const QPoint place(pressed->height() / 2, pressed->height() / 2);
                QTest::mouseClick(pressed, Qt::LeftButton, Qt::NoModifier, place);
            });
        }
        if (verb == "press") {
            QWidget* const window = front();
            auto* const action = window == nullptr ? nullptr : window->findChild<QAction*>(name);
            return step_with(action, [](QAction* entry) { entry->trigger(); });
        }
        if (verb == "type") {
            return step_with(seen<QLineEdit>(name), [rest](QLineEdit* field) {
                field->selectAll();
                field->insert(rest);
            });
        }
        if (verb == "choose") {
            return step_with(qobject_cast<QFileDialog*>(front()), [step](QFileDialog* dialog) {
                const QString path = step.section(' ', 1);
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
                QMetaObject::invokeMethod(dialog, "accept");
            });
        }
        if (verb == "answer") {
            return step_with(qobject_cast<QMessageBox*>(front()),
                             [](QMessageBox* box) { box->accept(); });
        }
        if (verb == "drag") {
            QWidget* const to = seen(rest);
            if (to == nullptr) {
                return {};
            }
            return step_with(seen(name), [to](QWidget* from) { drag(from, to); });
        }
        if (verb == "expect") {
            QWidget* const shown = seen(name);
            return shown != nullptr && text_of(shown) == rest ? [] {} : std::function<void()>();
        }
        if (verb == "tab") {
            return step_with(seen<QTabWidget>(name),
                             [rest](QTabWidget* tabs) { tabs->setCurrentIndex(rest.toInt()); });
        }
        if (verb == "size") {
            return step_with(front(), [name, rest](QWidget* window) {
                window->resize(name.toInt(), rest.toInt());
            });
        }
        if (verb == "pointer") {
            return step_with(seen(name), [](QWidget* widget) {
                QCursor::setPos(widget->mapToGlobal(widget->rect().center()));
            });
        }
        if (verb == "shot") {
            if (waiting_.elapsed() < time_to_draw) {
                return {};
            }
            return step_with(front(),
                             [step](QWidget* window) { picture(window, step.section(' ', 1)); });
        }
        if (verb == "up") {
            if (drawn_ == 0) {
                return {};
            }
            return [this, step] {
                QFile file(step.section(' ', 1));
                if (file.open(QIODevice::WriteOnly)) {
                    file.write(QByteArray::number(
                        drawn_ - qEnvironmentVariable("VELDRANA_STARTED").toLongLong()));
                }
            };
        }
        if (verb == "close") {
            return step_with(front(), [](QWidget* window) { window->close(); });
        }
        give_up("no such step: " + step);
    }

    template <class Target, class Act>
    static std::function<void()> step_with(Target* target, Act act) {
        if (target == nullptr) {
            return {};
        }
        return [target, act] { act(target); };
    }

    static QString text_of(QWidget* widget) {
        if (const auto* const label = qobject_cast<QLabel*>(widget)) {
            return label->text();
        }
        if (const auto* const field = qobject_cast<QLineEdit*>(widget)) {
            return field->text();
        }
        if (const auto* const button = qobject_cast<QAbstractButton*>(widget)) {
            return button->text();
        }
        return widget->windowTitle();
    }

    // By the mouse of the platform, as the toolkit's own dragging needs it.
    static void drag(QWidget* from, QWidget* to) {
        QWindow* const window = from->window()->windowHandle();
        const auto place = [](QWidget* widget) {
            return widget->mapTo(widget->window(), widget->rect().center());
        };
        const QPoint start = place(from);
        const QPoint end = place(to);
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
        QTimer::singleShot(100, window, [window, end] { QTest::mouseMove(window, end); });
        QTimer::singleShot(200, window, [window, end] {
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, end);
        });
        QTest::mouseMove(window, start + QPoint(QApplication::startDragDistance() * 2, 0));
    }

    static void picture(QWidget* window, const QString& file) {
        if (!window->grab()
                 .toImage()
                 .convertToFormat(QImage::Format_RGB888)
                 .save(file, "PNG", smallest_file)) {
            give_up("no picture " + file);
        }
    }

    // In milliseconds.
    static constexpr qint64 longest_wait = 10000;
    static constexpr qint64 time_to_draw = 300;
    static constexpr int smallest_file = 0;  // the toolkit's quality of a picture without loss

    QStringList steps_;
    QElapsedTimer waiting_;
    qint64 drawn_ = 0;
};

class Driver : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "driver.json")

  public:
    QObject* create(const QString& /*name*/, const QString& /*words*/) override {
        return new Steps(qEnvironmentVariable("VELDRANA_STEPS"));
    }
};

}  // namespace

#include "driver.moc"
