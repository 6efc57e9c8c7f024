// Owns the answers that the batch program gives in a person's place.
#pragma once

#include <ostream>
#include <string>

#include "common/person.h"

namespace veldrana {

class BatchPerson : public Person {
  public:
    // Boxes are written to `messages`, title first; questions get the answer, where the box offers
    // it.
    BatchPerson(std::ostream& messages, Answer answer) : messages_(messages), answer_(answer) {}

    // A question that comes back after this many answers of "retry" is cancelled: nobody is there
    // to mend what it asks for.
    static constexpr int retry_limit = 3;

    // What the next file dialogs choose.
    void choose(std::string path) { file_ = std::move(path); }

    Answer show(const MessageBox& box) override;
    std::string choose_file(const FileDialog& dialog) override;
    // Nobody fills in a form: it is closed as it is.
    void show_modal(WindowForm& form) override { form.window.visible = false; }
    void pending_events() override {}

  private:
    std::ostream& messages_;
    Answer answer_;
    std::string file_;
    std::string retried_;
    int retries_ = 0;
};

}  // namespace veldrana
