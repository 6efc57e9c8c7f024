#include "screens/view_builder.h"

#include <QHelpEvent>
#include <QToolTip>

namespace veldrana {
namespace {

// A label that never asks for more room than there is.
class ElidingLabel : public QLabel {
  public:
    ElidingLabel() {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
            return true;
        }
        return QLabel::event(event);
    }
    void paintEvent(QPaintEvent* event) override {
        const QString whole = text();
        const QString shown =
            fontMetrics().elidedText(whole, Qt::ElideMiddle, contentsRect().width());
        if (shown == whole) {
            QLabel::paintEvent(event);
            return;
        }
        QLabel cut;
        cut.setPalette(palette());
        cut.setEnabled(isEnabled());
        cut.setFont(font());
        cut.setAttribute(Qt::WA_NoSystemBackground);
        cut.resize(size());
        cut.setText(shown);
        cut.render(this, QPoint(), QRegion(), RenderFlags());
    }
};

void add(QBoxLayout* layout, const Piece& piece) {
    if (piece.widget != nullptr) {
        layout->addWidget(piece.widget);
    } else {
        layout->addLayout(piece.layout);
    }
}

template <class Widget, class Control>
Widget* named(Widget* widget, const Control& control) {
    widget->setObjectName(to_qt(control.name()));
    return widget;
}

}  // namespace

QLabel* ViewBuilder::label(Label& control) {
    auto* const widget = named(new QLabel, control);
    binder_.bind(control, widget);
    return widget;
}

QLabel* ViewBuilder::path_label(Label& control) {
    auto* const widget = named(new ElidingLabel, control);
    binder_.bind(control, widget);
    return widget;
}

QCheckBox* ViewBuilder::check(CheckBox& control) {
    auto* const widget = named(new QCheckBox, control);
    binder_.bind(control, widget);
    return widget;
}

std::vector<QRadioButton*> ViewBuilder::radios(OptionGroup& control) {
    std::vector<QRadioButton*> widgets;
    for (std::size_t i = 0; i < control.buttons.get().size(); ++i) {
        auto* const widget = new QRadioButton;
        widget->setObjectName(to_qt(control.name() + "(" + std::to_string(i) + ")"));
        widgets.push_back(widget);
    }
    binder_.bind(control, widgets);
    return widgets;
}

QLineEdit* ViewBuilder::edit(TextBox& control, int characters) {
    auto* const widget = named(new QLineEdit, control);
    widget->setAcceptDrops(false);  // a file that is dropped is for the window
    if (characters > 0) {
        const int width = widget->fontMetrics().horizontalAdvance(QString(characters, u'M'));
        widget->setFixedWidth(width + widget->fontMetrics().averageCharWidth() * 3);
    }
    binder_.bind(control, widget);
    return widget;
}

QPushButton* ViewBuilder::button(CommandButton& control) {
    auto* const widget = named(new QPushButton, control);
    widget->setAutoDefault(false);
    binder_.bind(control, widget);
    return widget;
}

QListWidget* ViewBuilder::list(ListBox& control) {
    auto* const widget = named(new QListWidget, control);
    widget->setUniformItemSizes(true);
    binder_.bind(control, widget);
    return widget;
}

QTableWidget* ViewBuilder::grid(Grid& control) {
    auto* const widget = named(new QTableWidget, control);
    binder_.bind(control, widget);
    return widget;
}

QAction* ViewBuilder::action(CommandButton& control, QObject* parent) {
    auto* const made = named(new QAction(parent), control);
    binder_.bind(control, made);
    return made;
}

QLabel* caption(const QString& text) {
    auto* const widget = new QLabel(text);
    widget->setTextFormat(Qt::PlainText);
    return widget;
}

QHBoxLayout* row(std::initializer_list<Piece> pieces, bool stretch_at_end) {
    auto* const layout = new QHBoxLayout;
    for (const Piece& piece : pieces) {
        add(layout, piece);
    }
    if (stretch_at_end) {
        layout->addStretch();
    }
    return layout;
}

QHBoxLayout* row_with_wide(int place, std::initializer_list<Piece> pieces) {
    QHBoxLayout* const layout = row(pieces, false);
    layout->setStretch(place, 1);
    return layout;
}

QHBoxLayout* row_at_right(std::initializer_list<QPushButton*> buttons) {
    auto* const layout = new QHBoxLayout;
    layout->addStretch();
    for (QPushButton* const button : buttons) {
        layout->addWidget(button);
    }
    return layout;
}

QVBoxLayout* column(std::initializer_list<Piece> pieces) {
    auto* const layout = new QVBoxLayout;
    for (const Piece& piece : pieces) {
        add(layout, piece);
    }
    return layout;
}

QVBoxLayout* column(const std::vector<QRadioButton*>& buttons) {
    auto* const layout = new QVBoxLayout;
    for (QRadioButton* const button : buttons) {
        layout->addWidget(button);
    }
    return layout;
}

QHBoxLayout* row(const std::vector<QRadioButton*>& buttons) {
    auto* const layout = new QHBoxLayout;
    for (QRadioButton* const button : buttons) {
        layout->addWidget(button);
    }
    layout->addStretch();
    return layout;
}

QGroupBox* box(const QString& title, QLayout* layout) {
    auto* const group = new QGroupBox(title);
    group->setLayout(layout);
    layout->setContentsMargins(10, 4, 10, 6);
    return group;
}

QFrame* line() {
    auto* const frame = new QFrame;
    frame->setFrameShape(QFrame::HLine);
    frame->setFrameShadow(QFrame::Sunken);
    return frame;
}

QWidget* page(std::initializer_list<Piece> pieces) {
    auto* const widget = new QWidget;
    QVBoxLayout* const layout = column(pieces);
    layout->addStretch();
    layout->setContentsMargins(10, 6, 10, 6);
    widget->setLayout(layout);
    return widget;
}

}  // namespace veldrana
