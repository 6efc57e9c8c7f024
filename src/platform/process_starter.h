// Owns the port to other programs: starting one and going on.
#pragma once

#include <chrono>
#include <string_view>
#include <vector>

#include "platform/host_disk.h"

namespace veldrana {

class ProcessStarter {
  public:
    ProcessStarter() = default;
    ProcessStarter(const ProcessStarter&) = delete;
    ProcessStarter& operator=(const ProcessStarter&) = delete;
    virtual ~ProcessStarter() = default;

    // Starts a program in a window of its own, with its folder as the current one, and does not
    // wait for its end. Failure 53 or 76 if it is not there, 70 if it may not be run, 5 if it is
    // no program of this system.
    virtual void start(std::string_view program) = 0;

    // Lets time pass, for a program that was started to do its work.
    virtual void sleep(std::chrono::milliseconds time) = 0;
};

// Starts programs of the host's disk.
class HostProcessStarter : public ProcessStarter {
  public:
    explicit HostProcessStarter(const HostDisk& disk) : disk_(disk) {}
    ~HostProcessStarter() override;

    void start(std::string_view program) override;
    void sleep(std::chrono::milliseconds time) override;

  private:
    // Takes note of the programs that have ended.
    void reap();

    const HostDisk& disk_;
    std::vector<int> started_;
};

}  // namespace veldrana
