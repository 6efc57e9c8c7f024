#include "screens/binding.h"

#include <array>
#include <cmath>
#include <memory>

#include <QApplication>
#include <QButtonGroup>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QHeaderView>
#include <QMenu>
#include <QScrollArea>
#include <QSignalBlocker>

namespace veldrana {
namespace {

// Relative luminance of a colour, 0 to 1.
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// From 1, none, to 21, that of black and white.
double contrast(const QColor& one, const QColor& other) {
    constexpr double stray_light = 0.05;
    const double a = luminance(one) + stray_light;
    const double b = luminance(other) + stray_light;
    return std::max(a, b) / std::min(a, b);
}

QColor mixed(const QColor& one, const QColor& other, double part_of_other) {
    const auto mix = [part_of_other](float a, float b) {
        return static_cast<float>((1 - part_of_other) * a + part_of_other * b);
    };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

// Only where something changes: a widget that has no place in a window yet and is shown would
// become a window of its own.
void show_or_hide(QWidget* widget, bool visible) {
    const bool is_hidden = widget->testAttribute(Qt::WA_WState_ExplicitShowHide) &&
                           widget->testAttribute(Qt::WA_WState_Hidden);
    if (visible == is_hidden) {
        widget->setVisible(visible);
    }
}

void show_common(const Control& control, QWidget* widget) {
    show_or_hide(widget, control.visible);
    widget->setEnabled(control.enabled);
    widget->setToolTip(to_qt(control.tool_tip.get()));
}

void colour_text(QWidget* widget, Colour colour) {
    QPalette palette = widget->palette();
    using Roles = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    constexpr std::array<Roles, 3> roles{{{QPalette::WindowText, QPalette::Window},
                                          {QPalette::ButtonText, QPalette::Button},
                                          {QPalette::Text, QPalette::Base}}};
    for (const auto& [text, ground] : roles) {
        // Greyed out it stays, as the toolkit shows what is disabled.
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            palette.setColor(group, text, readable(colour, palette.color(group, ground)));
        }
    }
    widget->setPalette(palette);
}

void bring_into_sight(QWidget* widget) {
    for (QWidget* outer = widget->parentWidget(); outer != nullptr; outer = outer->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(outer)) {
            area->ensureWidgetVisible(widget);
        }
    }
}

// An ampersand in a caption is a character, not a short cut.
QString caption_of(std::string_view text) {
    return to_qt(text).replace("&", "&&").trimmed();
}

}  // namespace

QString to_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string from_qt(const QString& text) {
    return text.toStdString();
}

QColor readable(Colour colour, const QColor& background) {
    constexpr int red = 0xFF;
    constexpr unsigned byte = 8;
    constexpr double least_contrast = 4.5;
    constexpr double step = 0.05;
    const QColor told(static_cast<int>(colour.bgr) & red,
                      static_cast<int>(colour.bgr >> byte) & red,
                      static_cast<int>(colour.bgr >> 2 * byte) & red);
    const QColor away(
        contrast(Qt::black, background) > contrast(Qt::white, background) ? Qt::black : Qt::white);
    QColor shown = told;
    for (double part = step; part <= 1 && contrast(shown, background) < least_contrast;
         part += step) {
        shown = mixed(told, away, part);
    }
    return shown;
}

void Binder::follow(Control& control, std::function<void()> show) {
    show();
    control.listener = std::move(show);
}

void Binder::bind(Label& control, QLabel* widget) {
    widget->setTextFormat(Qt::PlainText);
    follow(control, [&control, widget] {
        show_common(control, widget);
        widget->setText(to_qt(control.caption.get()));
        colour_text(widget, control.fore_colour);
        QFont font = widget->font();
        font.setPointSizeF(QApplication::font().pointSizeF() * (control.large_letters ? 1.6 : 1.0));
        widget->setFont(font);
    });
}

void Binder::bind(Frame& control, QGroupBox* widget) {
    const auto seen = std::make_shared<unsigned>(control.selections);
    follow(control, [&control, widget, seen] {
        show_common(control, widget);
        if (*seen != control.selections) {
            *seen = control.selections;
            widget->setFocus();
            bring_into_sight(widget);
        }
    });
}

void Binder::bind(CommandButton& control, QPushButton* widget) {
    follow(control, [&control, widget] {
        show_common(control, widget);
        widget->setEnabled(control.enabled && control.Click != nullptr);
        widget->setText(caption_of(control.caption.get()));
    });
    QObject::connect(widget, &QPushButton::clicked, widget,
                     [this, &control] { pump_.run([&control] { control.press(); }); });
}

void Binder::bind(CommandButton& control, QAction* action) {
    follow(control, [&control, action] {
        action->setVisible(control.visible);
        action->setEnabled(control.enabled &&
                           (control.Click != nullptr || action->menu() != nullptr));
        action->setText(caption_of(control.caption.get()));
        if (!control.tool_tip.get().empty()) {
            action->setToolTip(to_qt(control.tool_tip.get()));
        }
    });
    QObject::connect(action, &QAction::triggered, action,
                     [this, &control] { pump_.run([&control] { control.press(); }); });
}

void Binder::bind(CheckBox& control, QCheckBox* widget) {
    follow(control, [&control, widget] {
        show_common(control, widget);
        const QSignalBlocker quiet(widget);
        widget->setText(caption_of(control.caption.get()));
        widget->setChecked(control.value);
        colour_text(widget, control.fore_colour);
    });
    QObject::connect(widget, &QCheckBox::toggled, widget, [this, &control](bool checked) {
        pump_.run([&control, checked] { control.value = checked; });
    });
}

void Binder::bind(OptionGroup& control, const std::vector<QRadioButton*>& widgets) {
    // Arrow keys go along the group, the tabulator over it.
    auto* const group = new QButtonGroup(widgets.front());
    for (QRadioButton* const widget : widgets) {
        group->addButton(widget);
    }
    follow(control, [&control, widgets, group] {
        group->setExclusive(false);  // the only way to leave none of them checked
        const std::vector<OptionGroup::Button>& buttons = control.buttons.get();
        for (std::size_t i = 0; i < widgets.size() && i < buttons.size(); ++i) {
            QRadioButton* const widget = widgets[i];
            show_common(control, widget);
            widget->setEnabled(control.enabled && buttons[i].enabled);
            widget->setText(caption_of(buttons[i].caption));
            colour_text(widget, buttons[i].fore_colour);
            const QSignalBlocker quiet(widget);
            widget->setChecked(control.index == static_cast<int>(i));
        }
        group->setExclusive(true);
    });
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        QObject::connect(widgets[i], &QRadioButton::clicked, widgets[i], [this, &control, i] {
            pump_.run([&control, i] { control.index = static_cast<int>(i); });
            control.listener();  // where the form has chosen otherwise
        });
    }
}

void Binder::bind(TextBox& control, QLineEdit* widget) {
    // Set while the person's text is on its way to the form, which still holds the former one.
    const auto typing = std::make_shared<bool>(false);
    follow(control, [&control, widget, typing] {
        if (*typing) {
            return;
        }
        show_common(control, widget);
        colour_text(widget, control.fore_colour);
        widget->setEchoMode(control.hidden_text ? QLineEdit::Password : QLineEdit::Normal);
        const QSignalBlocker quiet(widget);
        const QString text = to_qt(control.text.get());
        if (widget->text() != text) {
            widget->setText(text);
        }
        const auto caret = static_cast<int>(control.caret);
        if (widget->cursorPosition() != caret) {
            widget->setCursorPosition(caret);
        }
    });
    const auto tell_caret = [&control, widget, typing] {
        *typing = true;
        control.caret = static_cast<std::size_t>(widget->cursorPosition());
        *typing = false;
    };
    QObject::connect(widget, &QLineEdit::cursorPositionChanged, widget, tell_caret);
    QObject::connect(widget, &QLineEdit::textChanged, widget,
                     [this, &control, tell_caret](const QString& text) {
                         tell_caret();
                         pump_.run([&control, &text] { control.text = from_qt(text); });
                         control.listener();  // a text that the form has put right, or its caret
                     });
}

void Binder::bind(ListBox& control, QListWidget* widget) {
    const auto shown = std::make_shared<std::vector<std::string>>();
    follow(control, [&control, widget, shown] {
        show_common(control, widget);
        const QSignalBlocker quiet(widget);
        if (*shown != control.rows.get() || widget->count() == 0) {
            *shown = control.rows.get();
            widget->clear();
            for (const std::string& row : *shown) {
                widget->addItem(to_qt(row));
            }
        }
        widget->setCurrentRow(control.index);
        if (control.index >= 0) {
            widget->scrollToItem(widget->item(control.index));
        }
    });
    // A list that is given the focus makes its first row current, which is no choice of a person.
    QObject::connect(widget, &QListWidget::itemSelectionChanged, widget, [this, &control, widget] {
        const QList<QListWidgetItem*> chosen = widget->selectedItems();
        if (!chosen.isEmpty()) {
            pump_.run([&control, row = widget->row(chosen.front())] { control.index = row; });
        }
    });
}

void Binder::bind(TabControl& control, QTabWidget* widget) {
    follow(control, [&control, widget] {
        const QSignalBlocker quiet(widget);
        widget->setCurrentIndex(control.tab);
    });
    QObject::connect(widget, &QTabWidget::currentChanged, widget, [this, &control](int tab) {
        pump_.run([&control, tab] { control.tab = tab; });
    });
}

void Binder::bind(Grid& control, QTableWidget* widget) {
    const auto columns = static_cast<int>(control.column_widths().size());
    widget->setRowCount(static_cast<int>(control.rows()));
    widget->setColumnCount(columns);
    widget->horizontalHeader()->hide();
    widget->verticalHeader()->hide();
    widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (int column = 0; column < columns; ++column) {
        widget->setColumnWidth(
            column, control.column_widths()[static_cast<std::size_t>(column)] / twips_of_a_pixel);
    }
    follow(control, [&control, widget, columns] {
        for (int row = 0; row < widget->rowCount(); ++row) {
            for (int column = 0; column < columns; ++column) {
                const Grid::Cell& cell =
                    control.cell(static_cast<std::size_t>(row), static_cast<std::size_t>(column));
                QTableWidgetItem* item = widget->item(row, column);
                if (item == nullptr) {
                    item = new QTableWidgetItem;
                    widget->setItem(row, column, item);
                }
                item->setText(to_qt(cell.text));
                item->setForeground(
                    readable(cell.fore_colour, widget->palette().color(QPalette::Base)));
            }
        }
    });
}

void Binder::bind(ProgressBar& control, QProgressBar* widget) {
    constexpr int steps = 1000;
    constexpr int frame = 40;  // milliseconds between two looks at the screen
    widget->setRange(0, steps);
    widget->setTextVisible(false);
    const auto since_last_look = std::make_shared<QElapsedTimer>();
    since_last_look->start();
    follow(control, [this, &control, widget, since_last_look] {
        show_or_hide(widget, control.visible);
        widget->setValue(static_cast<int>(control.value * steps / control.maximum));
        if (since_last_look->elapsed() >= frame) {
            pump_.breathe();
            since_last_look->restart();
        }
    });
}

void unbind(const Form& form) {
    for (Control* const control : form.controls()) {
        control->listener = nullptr;
    }
}

}  // namespace veldrana
