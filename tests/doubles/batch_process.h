// Runs the built batch program as a process of its own.
#pragma once

#include <string>
#include <vector>

namespace veldrana {

struct ProcessResult {
    int status = -1;  // exit status; -1 if it did not end by itself
    std::string results;
    std::string messages;
};

// As root a process may write anywhere: tests of permissions run it as a user who may not.
enum class RunAs { same_user, unprivileged };

ProcessResult run_batch(const std::vector<std::string>& arguments, RunAs user = RunAs::same_user);

}  // namespace veldrana
