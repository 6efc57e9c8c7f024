// Runs every fuzz target on the inputs that are kept for it, without a fuzzer.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tests/doubles/scratch_folder.h"
#include "tests/fuzz/targets.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;

class FuzzCorpus : public testing::TestWithParam<FuzzTarget> {};

TEST_P(FuzzCorpus, EndsAsAReaderMay) {
    const fs::path folder =
        fs::path(VELDRANA_SOURCE_DIR) / "tests/fuzz/corpus" / std::string(GetParam().name);
    std::size_t inputs = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        GetParam().run(read_bytes(entry.path()));
        ++inputs;
    }
    EXPECT_GT(inputs, 0U);
}

// Every file cut behind each of its first bytes, which is all of most.
TEST_P(FuzzCorpus, EndsSoWhereverAFileIsCut) {
    constexpr std::size_t cuts = 1500;
    const fs::path folder =
        fs::path(VELDRANA_SOURCE_DIR) / "tests/fuzz/corpus" / std::string(GetParam().name);
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const std::string bytes = read_bytes(entry.path());
        for (std::size_t size = 0; size < std::min(bytes.size(), cuts); ++size) {
            GetParam().run(bytes.substr(0, size));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzCorpus,
                         testing::ValuesIn(fuzz_targets().begin(), fuzz_targets().end()),
                         [](const testing::TestParamInfo<FuzzTarget>& target) {
                             return std::string(target.param.name);
                         });

}  // namespace
}  // namespace veldrana
