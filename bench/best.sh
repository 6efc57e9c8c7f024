# The best time in seconds of a command that is run $rounds times; to be sourced.
best() {
    python3 - "$rounds" "$@" <<'PY'
import subprocess, sys, time
best = None
for _ in range(int(sys.argv[1])):
    start = time.perf_counter()
    subprocess.run(sys.argv[2:], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    taken = time.perf_counter() - start
    best = taken if best is None else min(best, taken)
print(f"{best:.4f}")
PY
}
