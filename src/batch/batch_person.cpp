#include "batch/batch_person.h"

namespace veldrana {

Answer BatchPerson::show(const MessageBox& box) {
    if (!box.title.empty()) {
        messages_ << box.title << '\n';
    }
    messages_ << box.text << '\n' << std::flush;
    if (box.buttons == Buttons::ok) {
        return Answer::ok;
    }
    if (answer_ != Answer::retry) {
        return Answer::cancel;
    }
    if (box.text != retried_) {
        retried_ = box.text;
        retries_ = 0;
    }
    return ++retries_ > retry_limit ? Answer::cancel : Answer::retry;
}

void BatchPerson::show_modal(WindowForm& form) {
    if (use_) {
        use_(form);
    }
    form.window.visible = false;
}

std::string BatchPerson::choose_file(const FileDialog& /*dialog*/) {
    return file_;
}

std::string BatchPerson::choose_folder(std::string_view /*title*/, std::string_view /*start*/) {
    return {};
}

}  // namespace veldrana
