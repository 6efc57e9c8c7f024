#include "masters/ending_boxes.h"

#include <utility>

#include "common/failure_report.h"

namespace veldrana {

void show_and_end(Person& person, std::string title, std::string text) {
    person.show({.title = std::move(title), .text = std::move(text), .icon = Icon::critical});
    throw ProgramEnd{ProgramEnd::Cause::refused};
}

void retry_or_end(Person& person, std::string title, std::string text) {
    const Answer answer = person.show({.title = std::move(title),
                                       .text = std::move(text),
                                       .icon = Icon::critical,
                                       .buttons = Buttons::retry_cancel});
    if (answer == Answer::cancel) {
        throw ProgramEnd{ProgramEnd::Cause::refused};
    }
}

}  // namespace veldrana
