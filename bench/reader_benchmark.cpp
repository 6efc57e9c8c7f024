// What one contact costs the reader of zLog text logs, by the length of the log: a cost that stays
// the same from 1,000 to 1,000,000 contacts means that reading is linear.
#include <filesystem>
#include <fstream>

#include <benchmark/benchmark.h>

#include "bench/reading.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;

void write_log(const fs::path& file, std::int64_t contacts) {
    std::ofstream log(file, std::ios::binary);
    log << heading_of(InputKind::all) << " \r\n";
    for (std::int64_t i = 0; i < contacts; ++i) {
        log << "2025/04/26 21:05 JA1ZZ" << static_cast<char>('A' + i % 26)
            << "       599 11M     589 104M    104   -     7    CW   1  %%JA1ZZZ%% "
            << (i % 10 == 0 ? "\x88\xDA\x93\xAE" : "SSN") << " (7012)\r\n";
    }
}

void ReadAllLog(benchmark::State& state) {
    const fs::path folder = fs::temp_directory_path() / "veldrana_bench";
    fs::create_directories(folder);
    write_log(folder / "x.all", state.range(0));

    Reading reading(folder);
    for (auto iteration : state) {
        benchmark::DoNotOptimize(reading.read("x.all"));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    fs::remove_all(folder);
}

BENCHMARK(ReadAllLog)->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veldrana
