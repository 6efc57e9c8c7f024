#include "tests/fuzz/targets.h"

#include <array>

namespace veldrana {

std::span<const FuzzTarget> fuzz_targets() {
    static constexpr std::array targets{
        FuzzTarget{"log_book", fuzz_log_book},
        FuzzTarget{"zlog_all", fuzz_zlog_all},
        FuzzTarget{"zlog_txt", fuzz_zlog_txt},
        FuzzTarget{"cabrillo", fuzz_cabrillo},
        FuzzTarget{"adif", fuzz_adif},
        FuzzTarget{"contest_dialog", fuzz_contest_dialog},
        FuzzTarget{"zlo", fuzz_zlo},
        FuzzTarget{"rtcl_v4", fuzz_rtcl_v4},
        FuzzTarget{"rtcl_v430", fuzz_rtcl_v430},
    };
    return targets;
}

}  // namespace veldrana
