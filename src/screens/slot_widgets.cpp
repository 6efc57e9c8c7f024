#include "screens/slot_widgets.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

#include "app/slot_handlers.h"

namespace veldrana {
namespace {

constexpr const char* item_format = "application/x-veldrana-item";

// Carries the name of an item, and the slot that it comes from as the drag's source.
void drag(QWidget* source, const std::string& item) {
    auto* const data = new QMimeData;
    data->setData(item_format, QByteArray::fromStdString(item));
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

void SlotWidget::mousePressEvent(QMouseEvent* event) {
    pressed_at_ = event->pos();
}

void SlotWidget::mouseMoveEvent(QMouseEvent* event) {
    if (is_a_drag(event, pressed_at_) && !slot_.caption.get().empty()) {
        drag(this, slot_.caption);
    }
}

void SlotWidget::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasFormat(item_format)) {
        event->acceptProposedAction();
    }
}

void SlotWidget::dropEvent(QDropEvent* event) {
    DraggedItem dragged{.name = event->mimeData()->data(item_format).toStdString()};
    if (auto* const source = dynamic_cast<SlotWidget*>(event->source())) {
        dragged.from = &source->slot_;
    }
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
            shown.setColor(QPalette::Button, QColor(light - 45, light + 15, 255));
        }
        setPalette(shown);
    };
    show();
    button.listener = show;
}

void ItemWidget::mousePressEvent(QMouseEvent* event) {
    pressed_at_ = event->pos();
}

void ItemWidget::mouseMoveEvent(QMouseEvent* event) {
    if (is_a_drag(event, pressed_at_)) {
        drag(this, button_.caption);
    }
}

}  // namespace veldrana
