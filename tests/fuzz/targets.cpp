#include "tests/fuzz/targets.h"

#include <array>

namespace veldrana {

std::span<const FuzzTarget> fuzz_targets() {
    static constexpr std::array targets{
        FuzzTarget{"log_book", fuzz_log_book},
    };
    return targets;
}

}  // namespace veldrana
