// A person who answers from a script and remembers what was shown.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "common/person.h"

namespace veldrana {

class ScriptedPerson : public Person {
  public:
    // Answers to boxes in order; when they run out, OK or cancel as the box offers.
    std::deque<Answer> answers;
    // Files chosen in order; when they run out, none.
    std::deque<std::string> files;

    // What is done with forms, in order; when they run out, a form is closed as it is.
    std::deque<std::function<void(WindowForm&)>> forms;

    std::vector<MessageBox> boxes;
    std::vector<FileDialog> dialogs;
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
        if (files.empty()) {
            return {};
        }
        std::string file = files.front();
        files.pop_front();
        return file;
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
};

}  // namespace veldrana
