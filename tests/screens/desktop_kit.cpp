#include "tests/screens/desktop_kit.h"

#include <algorithm>

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "platform/code_page_932.h"
#include "screens/slot_widgets.h"

namespace veldrana {

DesktopKit::DesktopKit() {
    std::filesystem::copy(std::filesystem::path(VELDRANA_SOURCE_DIR) / "samples", drive(),
                          std::filesystem::copy_options::recursive);
    // A start through the environment dialog leaves a file in the current folder.
    QDir::setCurrent(QString::fromStdString(scratch_.path().string()));
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look_for_dialog(); });
    timer_.start(10);
}

DesktopKit::~DesktopKit() {
    EXPECT_EQ(acts_.size(), 0U) << "dialogs that never came";
}

bool DesktopKit::start(Size size) {
    desktop_.emplace(home(), std::map<char, std::filesystem::path>{{'C', drive()}});
    const bool started = desktop_->start();
    if (started && size == Size::large) {
        window().resize(1300, 900);
        window().activateWindow();
    }
    QApplication::processEvents();
    return started;
}

bool DesktopKit::start_first_time() {
    // The first start makes the files of the settings and asks for the environment, which is there:
    // its dialog is saved and left.
    on_dialog([](QDialog& dialog) {
        part<QPushButton>(dialog, "cmdSave").click();
        part<QPushButton>(dialog, "cmdOK").click();
    });
    accept_box();  // the hint that name masters are there
    const bool started = start();
    seen.clear();
    return started;
}

void DesktopKit::end() {
    window().close();
    desktop_.reset();
}

void DesktopKit::on_dialog(std::function<void(QDialog&)> act) {
    acts_.push_back(std::move(act));
}

void DesktopKit::choose(const std::filesystem::path& file) {
    on_dialog([file](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        if (file.empty()) {
            files.reject();
            return;
        }
        part<QLineEdit>(files, "fileNameEdit").setText(QString::fromStdString(file.string()));
        QMetaObject::invokeMethod(&files, "accept");
    });
}

void DesktopKit::accept_box() {
    on_dialog([](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).accept(); });
}

void DesktopKit::cancel_box() {
    on_dialog([](QDialog& dialog) {
        dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::Cancel)->click();
    });
}

bool DesktopKit::has_acted_on(const QDialog* dialog) const {
    return std::find(acted_on_.begin(), acted_on_.end(), dialog) != acted_on_.end();
}

void DesktopKit::look_for_dialog() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || has_acted_on(dialog)) {
        return;  // none, or one that waits for another or is just going
    }
    SeenDialog shown{
        .title = dialog->windowTitle().toStdString(), .text = {}, .folder = {}, .filters = {}};
    if (const auto* const box = qobject_cast<QMessageBox*>(dialog)) {
        shown.text = box->text().toStdString();
    } else if (const auto* const files = qobject_cast<QFileDialog*>(dialog)) {
        shown.folder = files->directory().absolutePath().toStdString();
        for (const QString& filter : files->nameFilters()) {
            shown.filters.push_back(filter.toStdString());
        }
    }
    seen.push_back(shown);
    acted_on_.emplace_back(dialog);
    if (acts_.empty()) {
        ADD_FAILURE() << "a dialog that nobody waits for: " << shown.title << '\n' << shown.text;
        dialog->reject();
        return;
    }
    const auto act = acts_.front();
    acts_.pop_front();
    // Not from within the timer: it does not fire while it is being handled, and what is done may
    // bring another dialog.
    QMetaObject::invokeMethod(
        dialog,
        [act, dialog, title = shown.title] {
            try {
                act(*dialog);
            } catch (const std::exception& error) {
                // Nothing that is thrown may pass through the toolkit's loop.
                ADD_FAILURE() << title << ": " << error.what();
                dialog->reject();
            }
        },
        Qt::QueuedConnection);
}

void DesktopKit::bring_to_front(QWidget& widget) {
    for (QWidget* page = &widget; page != nullptr; page = page->parentWidget()) {
        QWidget* const stack = page->parentWidget();
        auto* const tabs =
            stack == nullptr ? nullptr : qobject_cast<QTabWidget*>(stack->parentWidget());
        if (tabs != nullptr && tabs->indexOf(page) >= 0) {
            tabs->setCurrentWidget(page);
        }
    }
}

void DesktopKit::click(QAbstractButton& button) {
    bring_to_front(button);
    // The mark of a check box or a radio button stands at its left end.
    const QPoint place(std::min(button.width(), button.height()) / 2, button.height() / 2);
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, place);
}

void DesktopKit::drag(const std::string& from, const std::string& to) {
    auto& source = widget<QWidget>(from);
    const auto* const slot = dynamic_cast<const SlotWidget*>(&source);
    const std::unique_ptr<QMimeData> data(
        slot != nullptr ? slot->carried() : dynamic_cast<const ItemWidget&>(source).carried());
    auto& target = widget<QWidget>(to);
    const QPoint place = target.rect().center();
    QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    ASSERT_TRUE(enter.isAccepted()) << from << " to " << to;
    QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
}

void DesktopKit::type(const std::string& name, const std::string& text) {
    type(widget<QLineEdit>(name), text);
}

void DesktopKit::type(QLineEdit& field, const std::string& text) {
    bring_to_front(field);
    field.setFocus();
    field.selectAll();
    field.insert(QString::fromStdString(text));
}

void DesktopKit::store(const std::string& file, const std::string& key, const std::string& value) {
    const std::string line = "\r\n" + key + "=";
    std::string bytes = read_bytes(home() / file);
    const std::size_t at = bytes.find(line);
    if (at == std::string::npos) {
        throw std::runtime_error("no key " + key);
    }
    const std::size_t from = at + line.size();
    bytes.replace(from, bytes.find('\r', from) - from, to_code_page(value));
    write_bytes(home() / file, bytes);
}

std::string DesktopKit::stored(const std::string& file, const std::string& key) const {
    const std::string line = "\r\n" + key + "=";
    const std::string bytes = read_bytes(home() / file);
    const std::size_t at = bytes.find(line);
    if (at == std::string::npos) {
        throw std::runtime_error("no key " + key);
    }
    const std::size_t from = at + line.size();
    return from_code_page(bytes.substr(from, bytes.find('\r', from) - from));
}

void DesktopKit::open(const std::string& entry, const std::filesystem::path& file) {
    choose(file);
    widget<QAction>(entry).trigger();
}

std::string DesktopKit::text(const std::string& name) {
    return text_of(widget<QWidget>(name));
}

std::string DesktopKit::text_of(const QWidget& shown) {
    if (const auto* const label = qobject_cast<const QLabel*>(&shown)) {
        return label->text().toStdString();
    }
    if (const auto* const field = qobject_cast<const QLineEdit*>(&shown)) {
        return field->text().toStdString();
    }
    return dynamic_cast<const QAbstractButton&>(shown).text().toStdString();
}

QColor text_colour(const QWidget& widget) {
    return widget.palette().color(QPalette::Active, widget.foregroundRole());
}

namespace {

// A colour may be darkened to be read, but stays far from the others.
constexpr int far_apart = 90;

}  // namespace

bool is_red(const QWidget& widget) {
    const QColor shown = text_colour(widget);
    return shown.red() - std::max(shown.green(), shown.blue()) > far_apart;
}

bool is_blue(const QWidget& widget) {
    const QColor shown = text_colour(widget);
    return shown.blue() - std::max(shown.red(), shown.green()) > far_apart;
}

bool is_black(const QWidget& widget) {
    return text_colour(widget) == QColor(Qt::black);
}

}  // namespace veldrana
