// Owns how what a person does reaches the program, and how a failure comes back: nothing that is
// thrown may pass through the toolkit's loop.
#pragma once

#include <exception>
#include <functional>
#include <vector>

#include <QEventLoop>

namespace veldrana {

class Pump {
  public:
    // Runs an action of a person. What it throws ends the innermost loop, which throws it on; the
    // program's own events let nothing out, so outside every loop nothing comes.
    void run(const std::function<void()>& action);

    // Lets the person act until `finished` holds; it is asked after each action and event.
    void loop_until(const std::function<bool()>& finished);

    // Has the innermost loop ask whether it is finished.
    void check();

    // Whether an action runs that waits for no person: nothing else may begin meanwhile.
    bool busy() const noexcept { return actions_ > loops_.size(); }

  private:
    struct Loop {
        explicit Loop(const std::function<bool()>& until) : finished(until) {}
        QEventLoop events;
        const std::function<bool()>& finished;
    };
    std::vector<Loop*> loops_;
    std::size_t actions_ = 0;  // under way, one within the other
    std::exception_ptr thrown_;
};

}  // namespace veldrana
