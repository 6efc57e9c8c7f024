// A person who answers from a script and remembers what was shown.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/person.h"

namespace veldrana {

class ScriptedPerson : public Person {
  public:
    // Answers to boxes in order; when they run out, OK or cancel as the box offers.
    std::deque<Answer> answers;
    // Files chosen in order; when they run out, none.
    std::deque<std::string> files;

    // Folders chosen in order; when they run out, none.
    std::deque<std::string> folders;

    // What is done with forms, in order; when they run out, a form is closed as it is.
    std::deque<std::function<void(WindowForm&)>> forms;

    std::vector<MessageBox> boxes;
    std::vector<FileDialog> dialogs;
    // Title and start of each folder dialog.
    std::vector<std::pair<std::string, std::string>> folder_dialogs;
    int times_let_through = 0;

    Answer show(const MessageBox& box) override {
        boxes.push_back(box);
        if (!answers.empty()) {
            const Answer answer = answers.front();
            answers.pop_front();
            return answer;
        }
        return box.buttons == Buttons::ok ? Answer::ok : Answer::cancel;
    }

    std::string choose_file(const FileDialog& dialog) override {
        dialogs.push_back(dialog);
        return next_of(files);
    }

    std::string choose_folder(std::string_view title, std::string_view start) override {
        folder_dialogs.emplace_back(title, start);
        return next_of(folders);
    }

    void show_modal(WindowForm& form) override {
        if (!forms.empty()) {
            const auto use = forms.front();
            forms.pop_front();
            use(form);
        }
        form.window.visible = false;
    }

    void pending_events() override { ++times_let_through; }

  private:
    static std::string next_of(std::deque<std::string>& choices) {
        if (choices.empty()) {
            return {};
        }
        std::string choice = choices.front();
        choices.pop_front();
        return choice;
    }
};

}  // namespace veldrana
