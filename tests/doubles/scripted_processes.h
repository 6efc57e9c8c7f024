// Programs that are started in a test: what each does is told by the test.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/process_starter.h"

namespace veldrana {

class ScriptedProcesses : public ProcessStarter {
  public:
    // What a started program does while it is waited for.
    std::function<void()> work;

    std::vector<std::string> started;
    std::vector<std::chrono::milliseconds> sleeps;

    void start(std::string_view program) override { started.emplace_back(program); }
    void sleep(std::chrono::milliseconds time) override {
        sleeps.push_back(time);
        if (work) {
            work();
        }
    }
};

}  // namespace veldrana
