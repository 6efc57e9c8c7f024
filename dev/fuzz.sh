#!/usr/bin/env bash
# Runs the fuzz targets: dev/fuzz.sh [SECONDS [TARGET...]]; all for five minutes each when left out.
# Ends with status 1 at a finding.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-300}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(ls tests/fuzz/corpus)

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target veldrana-fuzz
status=0
for target in "${targets[@]}"; do
    learnt=build/fuzz/learnt/$target
    mkdir -p "$learnt" build/fuzz/findings
    echo "== $target, $seconds seconds"
    VELDRANA_FUZZ_TARGET=$target build/fuzz/tests/veldrana-fuzz -max_total_time="$seconds" -timeout=20 \
        -rss_limit_mb=2048 -max_len=20000 -print_final_stats=1 -verbosity=0 -close_fd_mask=0 \
        -artifact_prefix="build/fuzz/findings/$target-" "$learnt" "tests/fuzz/corpus/$target" || status=1
done
exit $status
