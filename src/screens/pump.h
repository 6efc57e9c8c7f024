// Owns how what a person does reaches the program, and how a failure comes back: nothing that is
// thrown may pass through the toolkit's loop.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include <QEventLoop>

namespace veldrana {

// Needs the toolkit's application. While an action runs that waits for no person, what a person
// does is lost: a second press of a start button must not begin a second run behind the first.
class Pump {
  public:
    Pump();
    Pump(const Pump&) = delete;
    Pump& operator=(const Pump&) = delete;
    ~Pump();

    // Runs an action of a person. What it throws ends the innermost loop, which throws it on; the
    // program's own events let nothing out, so outside every loop nothing comes.
    void run(const std::function<void()>& action);

    // Lets the person act until `finished` holds; it is asked after each action and event.
    void loop_until(const std::function<bool()>& finished);

    // Lets the person answer a dialog of the toolkit, which brings a loop of its own.
    void wait_for(const std::function<void()>& dialog);

    // Has the innermost loop ask whether it is finished.
    void check();

    // Lets the windows be drawn in the midst of an action.
    void breathe();

    // Whether an action runs that waits for no person.
    bool busy() const noexcept { return busy_; }

  private:
    class Deaf;
    struct Loop {
        explicit Loop(const std::function<bool()>& until) : finished(until) {}
        QEventLoop events;
        const std::function<bool()>& finished;
    };
    void show_hourglass(bool on);

    std::vector<Loop*> loops_;
    bool busy_ = false;
    std::exception_ptr thrown_;
    std::unique_ptr<Deaf> deaf_;
    bool hourglass_ = false;
};

}  // namespace veldrana
