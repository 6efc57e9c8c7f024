// Owns the answers that the batch program gives in a person's place.
#pragma once

#include <functional>
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
    // None.
    std::string choose_folder(std::string_view title, std::string_view start) override;
    // What is done with the next forms.
    void fill_in(std::function<void(WindowForm&)> use) { use_ = std::move(use); }

    // A form that nobody fills in is closed as it is.
    void show_modal(WindowForm& form) override;
    void pending_events() override {}

  private:
    std::ostream& messages_;
    Answer answer_;
    std::string file_;
    std::function<void(WindowForm&)> use_;
    std::string retried_;
    int retries_ = 0;
};

}  // namespace veldrana
