// Reads one log as a run does and prints the peak of the process's memory in kB, as far as the
// system tells it. With a count of rounds it reads as often and prints the best time in seconds and
// the count of contacts.
#include <algorithm>
#include <chrono>
#include <exception>
#include <fstream>
#include <iostream>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "bench/reading.h"

namespace {

using veldrana::InputKind;

const std::map<std::string, InputKind> kinds{
    {"all", InputKind::all},          {"txt", InputKind::txt}, {"cbr", InputKind::cbr},
    {"ADIF", InputKind::ADIF},        {"zlo", InputKind::zlo}, {"log_v4", InputKind::log_v4},
    {"log_v430", InputKind::log_v430}};

void print_peak_of_memory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:" && status >> word) {
            std::cout << word << '\n';
        }
    }
}

void print_best_time(veldrana::Reading& reading, const std::string& name, InputKind kind,
                     int rounds) {
    using Clock = std::chrono::steady_clock;
    double best = std::numeric_limits<double>::max();
    std::size_t contacts = 0;
    for (int round = 0; round < rounds; ++round) {
        reading.remove_texts(name);
        const auto start = Clock::now();
        contacts = reading.read(name, kind);
        best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count());
    }
    std::cout << best << ' ' << contacts << '\n';
}

}  // namespace

int main(int count, char** words) {
    const std::vector<std::string> arguments(words + 1, words + count);
    if (arguments.empty() || arguments.size() > 3 ||
        (arguments.size() > 1 && kinds.count(arguments[1]) == 0)) {
        std::cerr
            << "usage: veldrana-read-log LOG [all|txt|cbr|ADIF|zlo|log_v4|log_v430 [ROUNDS]]\n";
        return 2;
    }
    try {
        const std::filesystem::path log = std::filesystem::absolute(arguments[0]);
        const std::string name = log.filename().string();
        const InputKind kind = arguments.size() > 1 ? kinds.at(arguments[1]) : InputKind::all;
        veldrana::Reading reading(log.parent_path());
        if (arguments.size() == 3) {
            print_best_time(reading, name, kind, std::stoi(arguments[2]));
        } else {
            reading.read(name, kind);
            print_peak_of_memory();
        }
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
