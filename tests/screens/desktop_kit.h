// The desktop program on a copy of the sample folder, with a hand that answers its dialogs: the
// windows are real, without a display.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/desktop.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {

// What a box or a dialog has shown.
struct SeenDialog {
    std::string title;
    std::string text;    // of a box
    std::string folder;  // of a file dialog, as a path of the host
    std::vector<std::string> filters;
};

class DesktopKit {
  public:
    DesktopKit();
    DesktopKit(const DesktopKit&) = delete;
    DesktopKit& operator=(const DesktopKit&) = delete;
    // A dialog that nobody waited for, or that never came, fails the test.
    ~DesktopKit();

    // The folder that is drive C:, with the samples in it; the program's own is "veldrana".
    std::filesystem::path drive() const { return scratch_.path() / "c"; }
    std::filesystem::path home() const { return drive() / "veldrana"; }
    std::filesystem::path log(const std::string& name) const { return drive() / "logs" / name; }

    // Starts the program; false if it has ended before its main window. All of a large window can
    // be clicked on.
    enum class Size { large, as_left };
    bool start(Size size = Size::large);
    // The first start of a folder: its environment is saved, its hint read.
    bool start_first_time();
    // Ends the program in order and forgets it; the folder stays.
    void end();

    Desktop& desktop() { return *desktop_; }
    Program& program() { return desktop_->program(); }
    MainScreen& screen() { return desktop_->program().screen; }
    MainWindow& window() { return *desktop_->window(); }

    // A widget or an action of the main window.
    template <class Widget>
    Widget& widget(const std::string& name) {
        return part<Widget>(window(), name);
    }
    // One of another window.
    template <class Widget>
    static Widget& part(QObject& window, const std::string& name) {
        auto* const found = window.findChild<Widget*>(QString::fromStdString(name));
        if (found == nullptr) {
            throw std::runtime_error("no widget " + name);
        }
        return *found;
    }

    // What is done with the dialogs that come next, one after the other. What is done may bring
    // another dialog, in front of the first.
    void on_dialog(std::function<void(QDialog&)> act);
    // The next dialog asks for a file: this one is chosen; an empty path cancels.
    void choose(const std::filesystem::path& file);
    // The next dialog is a box: its button is pressed. What it has said stands in seen.
    void accept_box();
    void cancel_box();
    // Dialogs so far, in their order.
    std::vector<SeenDialog> seen;

    // With the mouse: brings the page that the widget stands on to the front first. A widget that
    // is disabled takes no press.
    void click(QAbstractButton& button);
    void click(const std::string& name) { click(widget<QAbstractButton>(name)); }
    void bring_to_front(QWidget& widget);
    // What the toolkit tells the widgets of a drag; its own dragging needs a platform with a mouse.
    void drag(const std::string& from, const std::string& to);
    // In the place of what stands there, as keys.
    void type(const std::string& name, const std::string& text);
    void type(QLineEdit& field, const std::string& text);

    // While the program is ended: a value of one of its settings files.
    void store(const std::string& file, const std::string& key, const std::string& value);
    std::string stored(const std::string& file, const std::string& key) const;

    // Opens a log by an entry of the menu.
    void open(const std::string& entry, const std::filesystem::path& file);

    // What stands on a label, a button, a field.
    std::string text(const std::string& name);
    static std::string text_of(const QWidget& shown);

  private:
    void look_for_dialog();
    bool has_acted_on(const QDialog* dialog) const;

    ScratchFolder scratch_;
    std::deque<std::function<void(QDialog&)>> acts_;
    std::vector<QPointer<QDialog>> acted_on_;
    QTimer timer_;
    std::optional<Desktop> desktop_;
};

// The program after its first start.
class DesktopTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(kit.start_first_time()); }
    DesktopKit kit;
};

// The colour of a widget's text, as it is drawn while the widget is enabled.
QColor text_colour(const QWidget& widget);

// How a person would name it.
bool is_red(const QWidget& widget);
bool is_blue(const QWidget& widget);
bool is_black(const QWidget& widget);

}  // namespace veldrana
