#include "screens/pump.h"

#include <utility>

namespace veldrana {

void Pump::run(const std::function<void()>& action) {
    ++actions_;
    try {
        action();
    } catch (...) {
        thrown_ = std::current_exception();
    }
    --actions_;
    check();
}

void Pump::check() {
    if (!loops_.empty() && (thrown_ != nullptr || loops_.back()->finished())) {
        loops_.back()->events.quit();
    }
}

void Pump::loop_until(const std::function<bool()>& finished) {
    Loop loop(finished);
    loops_.push_back(&loop);
    while (thrown_ == nullptr && !finished()) {
        loop.events.exec();
    }
    loops_.pop_back();
    if (thrown_ != nullptr) {
        std::rethrow_exception(std::exchange(thrown_, nullptr));
    }
}

}  // namespace veldrana
