#include "screens/slot_widgets.h"

#include <QApplication>
#include <QDataStream>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

#include "app/slot_handlers.h"

namespace veldrana {
namespace {

constexpr const char* item_format = "application/x-veldrana-item";

// The name of an item, and of the slot that it comes from, if it is one of this program; another
// program that runs beside it has slots of the same names.
QMimeData* carry(const std::string& item, const std::string& slot) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << to_qt(item) << to_qt(slot) << QCoreApplication::applicationPid();
    auto* const data = new QMimeData;
    data->setData(item_format, bytes);
    return data;
}

DraggedItem carried_item(const QMimeData& data, const MainScreen& screen) {
    QString item;
    QString slot;
    qint64 program = 0;
    QDataStream stream(data.data(item_format));
    stream >> item >> slot >> program;
    const bool is_ours = program == QCoreApplication::applicationPid();
    Control* const from = is_ours ? screen.find(from_qt(slot)) : nullptr;
    return {.name = from_qt(item), .from = dynamic_cast<RemarkSlot*>(from)};
}

void drag(QWidget* source, QMimeData* data) {
    auto* const under_way = new QDrag(source);
    under_way->setMimeData(data);
    under_way->setPixmap(source->grab());
    under_way->exec(Qt::MoveAction);
}

bool is_a_drag(const QMouseEvent* event, const QPoint& pressed_at) {
    return (event->buttons() & Qt::LeftButton) != 0 &&
           (event->pos() - pressed_at).manhattanLength() >= QApplication::startDragDistance();
}

}  // namespace

SlotWidget::SlotWidget(Program& program, Pump& pump, RemarkSlot& slot)
    : program_(program), pump_(pump), slot_(slot) {
    setObjectName(to_qt(slot.name()));
    setAcceptDrops(true);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setAlignment(Qt::AlignCenter);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setMinimumWidth(fontMetrics().horizontalAdvance("ｺﾝﾃｽﾄW"));
    setMinimumHeight(fontMetrics().height() * 3 / 2);
    const auto show = [this] { setText(to_qt(slot_.caption.get())); };
    show();
    slot.listener = show;
}

QMimeData* SlotWidget::carried() const {
    return carry(slot_.caption, slot_.name());
}

void SlotWidget::mousePressEvent(QMouseEvent* event) {
    pressed_at_ = event->pos();
}

void SlotWidget::mouseMoveEvent(QMouseEvent* event) {
    if (is_a_drag(event, pressed_at_) && !slot_.caption.get().empty()) {
        drag(this, carried());
    }
}

void SlotWidget::dragEnterEvent(QDragEnterEvent* event) {
    const bool dialog_waits = QApplication::activeModalWidget() != nullptr;
    if (event->mimeData()->hasFormat(item_format) && !dialog_waits) {
        event->acceptProposedAction();
    }
}

void SlotWidget::dropEvent(QDropEvent* event) {
    const DraggedItem dragged = carried_item(*event->mimeData(), program_.screen);
    event->acceptProposedAction();
    pump_.run([&] { program_.event([&] { drop_on_slot(program_, slot_, dragged); }); });
}

ItemWidget::ItemWidget(ItemButton& button) : button_(button) {
    setObjectName(to_qt(button.name()));
    setText(to_qt(button.caption.get()));
    setCursor(Qt::OpenHandCursor);
    setAutoDefault(false);
    setFocusPolicy(Qt::NoFocus);
    // The row shares the room there is.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMinimumWidth(fontMetrics().horizontalAdvance(text() + "WW"));
    const QPalette usual = palette();
    const auto show = [this, usual] {
        constexpr int light = 205;
        QPalette shown = usual;
        if (button_.in_use) {
            const QColor light_blue(light - 45, light + 15, 255);
            shown.setColor(QPalette::Button, light_blue);
            shown.setColor(QPalette::ButtonText, readable(colours::black, light_blue));
        }
        setPalette(shown);
    };
    show();
    button.listener = show;
}

QMimeData* ItemWidget::carried() const {
    return carry(button_.caption, {});
}

void ItemWidget::mousePressEvent(QMouseEvent* event) {
    pressed_at_ = event->pos();
}

void ItemWidget::mouseMoveEvent(QMouseEvent* event) {
    if (is_a_drag(event, pressed_at_)) {
        drag(this, carried());
    }
}

}  // namespace veldrana
