#include "screens/main_window.h"

#include <map>

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QToolBar>
#include <QUrl>

#include "app/open_other_logs.h"
#include "app/program_end.h"
#include "app/slot_lengths.h"

namespace veldrana {
namespace {

// Scrolls what does not fit, and asks for as much room as shows it whole.
class WholeWidthArea : public QScrollArea {
  public:
    explicit WholeWidthArea(QWidget* shown) {
        setWidget(shown);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setMinimumSize(320, 160);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
};

// The one file of this computer that is dropped; nothing if it is something else, or while a dialog
// waits for its answer.
QString dropped_log(const QDropEvent& event) {
    const QList<QUrl> urls = event.mimeData()->urls();
    if (urls.size() != 1 || QApplication::activeModalWidget() != nullptr) {
        return {};
    }
    const QString file = urls.front().toLocalFile();
    return QFileInfo(file).isFile() ? file : QString();
}

// A head of a menu, bound to its entry.
QMenu* bound_head(ViewBuilder& build, QMenu* head, MenuEntry& entry) {
    head->setToolTipsVisible(true);
    head->menuAction()->setObjectName(to_qt(entry.name()));
    build.binder().bind(entry, head->menuAction());
    return head;
}

void add_menu(ViewBuilder& build, QMenu* parent, const std::vector<Menu>& entries) {
    for (const Menu& entry : entries) {
        if (entry.entry == nullptr) {
            parent->addSeparator();
        } else if (entry.below.empty()) {
            parent->addAction(build.action(*entry.entry, parent));
        } else {
            add_menu(build, bound_head(build, parent->addMenu(QString()), *entry.entry),
                     entry.below);
        }
    }
}

}  // namespace

MainWindow::MainWindow(Program& program, const QtPerson& person, Pump& pump)
    : program_(program), person_(person), screen_(program.screen), pump_(pump), build_(pump) {
    setAcceptDrops(true);
    make_menu();
    make_toolbar();

    // In the order in which a run is prepared, down the left side and then the right.
    auto* const sides = new QHBoxLayout;
    auto* const left = column({make_files(), make_run_tabs()});
    left->setStretch(1, 1);
    auto* const right = column({make_source_tabs(), make_remarks()});
    right->setStretch(0, 1);
    sides->addLayout(left, 1);
    sides->addLayout(right, 1);
    auto* const options = new QWidget;
    options->setLayout(sides);
    sides->setContentsMargins(0, 0, 0, 0);
    // On a small screen the options scroll; how to start and how it goes stay in sight.
    auto* const scrolled = new WholeWidthArea(options);

    auto* const central = new QWidget;
    central->setLayout(column({scrolled, make_start()}));
    central->layout()->setContentsMargins(10, 4, 10, 8);
    setCentralWidget(central);
    follow_window();

    // The first look is taken when the window has settled.
    constexpr int first_look = 2000;  // milliseconds
    constexpr int interval = 100;
    QObject::connect(&pointer_timer_, &QTimer::timeout, this, [this] {
        pointer_timer_.setInterval(interval);
        look_under_pointer();
    });
    pointer_timer_.start(first_look);
}

MainWindow::~MainWindow() {
    unbind(screen_);
}

void MainWindow::make_menu() {
    for (const Menu& entry : screen_.menu()) {
        if (entry.below.empty()) {
            menuBar()->addAction(build_.action(*entry.entry, this));
        } else {
            add_menu(build_, bound_head(build_, menuBar()->addMenu(QString()), *entry.entry),
                     entry.below);
        }
    }
}

void MainWindow::make_toolbar() {
    auto* const bar = addToolBar("ツールバー");
    bar->setObjectName("Toolbar1");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const std::map<const ToolButton*, QKeySequence> keys{{&screen_.tool_open, {"Ctrl+O"}},
                                                         {&screen_.tool_open_z, {"Ctrl+Shift+O"}},
                                                         {&screen_.tool_convert, {"F5"}},
                                                         {&screen_.tool_end, {"Ctrl+Q"}}};
    for (ToolButton* const tool : screen_.toolbar()) {
        QAction* const action = build_.action(*tool, bar);
        bar->addAction(action);
        if (const auto key = keys.find(tool); key != keys.end()) {
            action->setShortcut(key->second);
            action->setToolTip(action->text() + " ( " + key->second.toString() + " )");
        }
    }
}

void MainWindow::follow_window() {
    const auto follow = [this] {
        const Window& window = screen_.window;
        setWindowTitle(to_qt(window.caption.get()));
        if (window.visible && !isVisible()) {
            resize(sizeHint().boundedTo(screen()->availableSize()));
            if (const auto& placement = window.placement.get()) {
                put(*this, *placement);
            }
            place_ = std::make_unique<PlaceTeller>(*this, screen_.window);
            show();
        }
    };
    follow();
    screen_.window.listener = follow;
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (program_.ended()) {
        event->accept();
        return;
    }
    event->ignore();
    pump_.run([this] { screen_.tool_end.press(); });
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!dropped_log(*event).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString file = dropped_log(*event);
    if (file.isEmpty()) {
        return;
    }
    event->acceptProposedAction();
    // Not before the drop is over: the program it comes from waits for that.
    QTimer::singleShot(0, this, [this, file] {
        pump_.run([&] { program_.event([&] { open_log(program_, person_.program_path(file)); }); });
    });
}

void MainWindow::look_under_pointer() {
    if (pump_.busy() || QApplication::activeModalWidget() != nullptr) {
        return;
    }
    // Slots that are scrolled out of sight, or under another window, are not pointed at.
    constexpr QPoint nowhere(-10000, -10000);
    QPoint pointer = QCursor::pos();
    const QWidget* const under = QApplication::widgetAt(pointer);
    if (under == nullptr || under->window() != this) {
        pointer = nowhere;
    }
    SlotRectangles slots;
    const auto take = [&](const RemarkSlots& labels, SlotRectangles::Row& row) {
        for (std::size_t i = 0; i < remark_slot_count; ++i) {
            const auto* const widget = findChild<QLabel*>(to_qt(labels[i].name()));
            const QPoint place = widget->mapToGlobal(QPoint(0, 0));
            row.left[i] = place.x();
            row.top = place.y();
            row.bottom = place.y() + widget->height();
            // The hit of a slot is narrower than the slot is here: all of it counts.
            if (under == widget) {
                pointer.setX(place.x());
            }
        }
    };
    take(screen_.lblRmks1, slots.rmks1);
    take(screen_.lblRmks2, slots.rmks2);
    pump_.run([&] {
        program_.event([&] { show_length_at(program_, slots, pointer.x(), pointer.y()); });
    });
}

}  // namespace veldrana
