#!/usr/bin/env bash
# Reads logs of 10,000, 100,000 and 1,000,000 contacts through the built batch program and sorts the
# same files with `LC_ALL=C sort`, each as often as told (5), and shows the best time of each and the
# program's peak of memory. Reading holds its promise when the last line's ratio is at most 2 and the
# memory is the same in all lines.
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${1:-5}
program=build/bin/veldrana-batch
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/veldrana"

# Runs a command several times; prints its best time in seconds and its largest memory in kB.
measure() {
    python3 - "$rounds" "$@" <<'PY'
import os, subprocess, sys, time
best, memory = None, 0
for _ in range(int(sys.argv[1])):
    start = time.perf_counter()
    process = subprocess.Popen(sys.argv[2:], stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    taken = time.perf_counter() - start
    if status != 0:
        sys.exit("failed: " + " ".join(sys.argv[2:]))
    best = taken if best is None else min(best, taken)
    memory = max(memory, usage.ru_maxrss)
print(f"{best:.3f} {memory}")
PY
}

printf '%10s %12s %12s %8s %12s\n' contacts "read (s)" "sort (s)" ratio "memory (kB)"
for contacts in 10000 100000 1000000; do
    log="$work/x.all"
    python3 bench/make_log.py "$contacts" "$log"
    read -r reading memory < <(measure "$program" --drive "C=$work" --home "$work/veldrana" \
        --set "lblRmks1(0)=memo" --set "lblRmks1(1)=OP" --keep-work convert "$log")
    read -r sorting _ < <(measure env LC_ALL=C sort -o "$work/sorted" "$log")
    printf '%10d %12s %12s %8s %12d\n' "$contacts" "$reading" "$sorting" \
        "$(python3 -c "print(f'{$reading / $sorting:.2f}')")" "$memory"
done
