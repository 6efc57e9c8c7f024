// Owns the port to the person at the screen: message boxes, file dialogs, pending events. The
// program asks through it and never opens a box itself; the desktop program shows boxes, the batch
// program answers by rule, tests answer by script.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "common/controls.h"

namespace veldrana {

enum class Icon { none, information, warning, critical };

enum class Buttons { ok, retry_cancel };

enum class Answer { ok, retry, cancel };

struct MessageBox {
    std::string title = {};
    std::string text = {};  // lines are separated by "\n"
    Icon icon = Icon::none;
    Buttons buttons = Buttons::ok;
};

struct FileDialog {
    std::string title = {};
    // Pairs of a caption and its patterns, all separated by "|".
    std::string filter = {};
    std::string folder = {};  // where the dialog starts; empty: wherever the last one ended
    bool must_exist = true;
};

class Person {
  public:
    Person() = default;
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;
    virtual ~Person() = default;

    // Shows the box until it is answered. A box with the OK button alone answers Answer::ok.
    virtual Answer show(const MessageBox& box) = 0;

    // The full path of the chosen file as the program writes paths; empty if none was chosen.
    virtual std::string choose_file(const FileDialog& dialog) = 0;

    // The full path of the chosen folder, with or without a backslash at its end; empty if none was
    // chosen. The dialog starts in a folder; an empty one is the current folder.
    virtual std::string choose_folder(std::string_view title, std::string_view start) = 0;

    // Shows a form until its window is no longer visible. Who has no screen answers it by rule.
    virtual void show_modal(WindowForm& form) = 0;

    // Lets pending events of the screen run.
    virtual void pending_events() = 0;
};

// The lines of a box with an empty line between each and the next.
std::string spaced_lines(std::initializer_list<std::string_view> lines);
std::string spaced_lines(const std::vector<std::string>& lines);

}  // namespace veldrana
