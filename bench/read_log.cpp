// Reads one .ALL log as a run does and prints the peak of the process's memory in kB, as far as the
// system tells it.
#include <exception>
#include <fstream>
#include <iostream>
#include <string>

#include "bench/reading.h"

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "usage: veldrana-read-log LOG\n";
        return 2;
    }
    try {
        const std::filesystem::path log = std::filesystem::absolute(words[1]);
        veldrana::Reading reading(log.parent_path());
        reading.read(log.filename().string());
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:" && status >> word) {
            std::cout << word << '\n';
        }
    }
    return 0;
}
