#!/usr/bin/env bash
# Reads logs of 10,000, 100,000 and 1,000,000 contacts, from .ALL to zlog_1.txt, and sorts the same
# files with `LC_ALL=C sort`, each as often as told (5); shows the best time of each and the reader's
# peak of memory. Reading holds its promise when the last line's ratio is at most 2 and the memory is
# the same in all lines.
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${1:-5}
program=build/bin/veldrana-read-log
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
log="$work/x.all"

# The best time of a command in seconds.
best() {
    python3 - "$rounds" "$@" <<'PY'
import subprocess, sys, time
best = None
for _ in range(int(sys.argv[1])):
    start = time.perf_counter()
    subprocess.run(sys.argv[2:], stdout=subprocess.DEVNULL, check=True)
    taken = time.perf_counter() - start
    best = taken if best is None else min(best, taken)
print(f"{best:.3f}")
PY
}

printf '%10s %12s %12s %8s %12s\n' contacts "read (s)" "sort (s)" ratio "memory (kB)"
for contacts in 10000 100000 1000000; do
    python3 bench/make_log.py "$contacts" "$log"
    reading=$(best "$program" "$log")
    sorting=$(best env LC_ALL=C sort -o "$work/sorted" "$log")
    printf '%10d %12s %12s %8s %12s\n' "$contacts" "$reading" "$sorting" \
        "$(python3 -c "print(f'{$reading / $sorting:.2f}')")" "$("$program" "$log")"
done
