#!/usr/bin/env bash
# Whole runs of 1,000 to 1,000,000 contacts through the built batch program: the cost of a contact,
# and for the longest log the time against `LC_ALL=C sort --parallel=1` on the same log. Each is run
# as often as told (3) and the best time counts. The last log is measured twice: in the order of its
# time, where sort has next to nothing to do, and with its lines shuffled.
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${1:-3}
program=build/bin/veldrana-batch
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r samples/{veldrana,mas,yubin} "$work"
log="$work/x.all"

source bench/best.sh

# The first start only makes the files of the settings.
python3 bench/make_log.py 10 "$log"
"$program" --drive "C=$work" --home "$work/veldrana" convert "$log" >/dev/null 2>&1 || true

run() { best "$program" --drive "C=$work" --home "$work/veldrana" convert "$log"; }

calculate() { python3 -c "print(f'{$1:.2f}')"; }

echo "contacts       run (s)   for one (us)"
for contacts in 1000 10000 100000 1000000; do
    python3 bench/make_log.py "$contacts" "$log"
    seconds=$(run)
    cost=$(calculate "$seconds / $contacts * 1e6")
    printf '%8d %13s %14s\n' "$contacts" "$seconds" "$cost"
    [ "$contacts" -ne 10000 ] || short=$cost
done
echo "cost at 1,000,000 against 10,000: $(calculate "$cost / $short")"

compare() {
    sorting=$(best env LC_ALL=C sort --parallel=1 -o "$work/sorted" "$log")
    echo "1,000,000 contacts, $1: run $2 s, sort $sorting s, ratio $(calculate "$2 / $sorting")"
}
compare "in the order of time" "$seconds"
python3 - "$log" <<'PY'
import random, sys
with open(sys.argv[1], "rb") as file:
    heading, *contacts = file.read().splitlines(keepends=True)
random.Random(1).shuffle(contacts)
with open(sys.argv[1], "wb") as file:
    file.writelines([heading, *contacts])
PY
compare "shuffled" "$(run)"
