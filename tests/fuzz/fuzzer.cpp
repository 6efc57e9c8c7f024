// The fuzzer's program: libFuzzer around the target that VELDRANA_FUZZ_TARGET names.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tests/fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const veldrana::FuzzTarget& target = [] {
        const char* const name = std::getenv("VELDRANA_FUZZ_TARGET");
        const auto targets = veldrana::fuzz_targets();
        const auto found = std::find_if(targets.begin(), targets.end(), [name](const auto& known) {
            return name != nullptr && known.name == name;
        });
        if (found == targets.end()) {
            static_cast<void>(std::fputs("VELDRANA_FUZZ_TARGET names no target\n", stderr));
            std::exit(2);
        }
        return *found;
    }();
    target.run({reinterpret_cast<const char*>(data), size});
    return 0;
}
