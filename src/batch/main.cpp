// veldrana-batch: the program without a screen, for scripts and tests.
#include <exception>
#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "batch/command_line.h"

namespace {

bool messages_go_to_a_terminal() {
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

int main(int count, char** words) {
    try {
        return veldrana::run_command_line(count, words,
                                          {.results = std::cout,
                                           .messages = std::cerr,
                                           .show_progress = messages_go_to_a_terminal()});
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return veldrana::exit_reported;
    }
}
