// Reads the log book of a folder and makes its history, as a run does, and prints the seconds that
// the reading and the making took. bak_1.txt stays beside the log book.
#include <chrono>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "bench/silent_stage.h"
#include "platform/hamlog_library.h"
#include "qsl/hamlog_reader.h"
#include "qsl/history.h"

namespace veldrana {
namespace {

double seconds_of_reading(const std::filesystem::path& log_book) {
    SilentStage silent(log_book.parent_path());
    const Stage stage = silent.stage();
    const std::unique_ptr<HamlogLibrary> library = make_hamlog_library(silent.disk());
    HistoryTimes times;
    const std::string path = "C:\\" + log_book.filename().string();
    const auto start = std::chrono::steady_clock::now();
    read_hl_hdb(stage, *library, HistoryKind::worked,
                {.hamlog_hdb_dir = path,
                 .drive_path = "C:\\",
                 .strPath = "C:\\",
                 .Start_Date = "19600101",
                 .End_Date = "20491231",
                 .End_Date_bak = ""},
                times);
    sum_bak_2(stage, "C:\\");
    sum_bak_3(stage, "C:\\", "C:\\bak_qso.mas1_p");
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace
}  // namespace veldrana

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "usage: veldrana-read-log-book FILE\n";
        return 2;
    }
    try {
        std::cout << veldrana::seconds_of_reading(std::filesystem::absolute(words[1])) << '\n';
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
