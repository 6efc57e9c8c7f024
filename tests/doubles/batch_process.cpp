#include "tests/doubles/batch_process.h"

#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

constexpr uid_t nobody = 65534;

[[noreturn]] void become_program(const std::vector<std::string>& arguments, int results,
                                 int messages, RunAs user) {
    dup2(results, STDOUT_FILENO);
    dup2(messages, STDERR_FILENO);
    const bool drop = user == RunAs::unprivileged && geteuid() == 0;
    if (drop && (setgid(nobody) != 0 || setuid(nobody) != 0)) {
        _exit(126);
    }
    std::vector<char*> words;
    std::string program = VELDRANA_BATCH;
    words.push_back(program.data());
    for (const std::string& argument : arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    _exit(127);
}

}  // namespace

ProcessResult run_batch(const std::vector<std::string>& arguments, RunAs user) {
    const ScratchFolder scratch;
    const std::filesystem::path results = scratch.path() / "results";
    const std::filesystem::path messages = scratch.path() / "messages";
    const int results_file = open(results.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    const int messages_file = open(messages.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    const pid_t child = fork();
    if (child == 0) {
        become_program(arguments, results_file, messages_file, user);
    }
    close(results_file);
    close(messages_file);
    int state = 0;
    if (child < 0 || waitpid(child, &state, 0) != child) {
        throw std::runtime_error("cannot run the program");
    }
    return {.status = WIFEXITED(state) ? WEXITSTATUS(state) : -1,
            .results = read_bytes(results),
            .messages = read_bytes(messages)};
}

}  // namespace veldrana
