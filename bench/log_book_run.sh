#!/usr/bin/env bash
# Reading a log book of 1,000,000 contacts and making its history, against `LC_ALL=C sort` on the
# records that it selects; then what the lookup costs a run of 5,000 contacts, by the length of the
# history. Each is run as often as told (3) and the best time counts.
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${1:-3}
program=$PWD/build/bin/veldrana-batch
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r samples/{veldrana,mas,yubin} "$work"
mkdir "$work/hamlog"
book="$work/hamlog/Hamlog.hdb"

source bench/best.sh

python3 bench/make_log_book.py 1000000 "$book"
reading=$(for _ in $(seq "$rounds"); do build/bin/veldrana-read-log-book "$book"; done | sort -g | head -1)
sorting=$(best env LC_ALL=C sort -o "$work/sorted" "$work/hamlog/bak_1.txt")
python3 -c "print(f'1,000,000 contacts: read and made a history {$reading:.2f} s, sort of its records' \
    f' $sorting s, ratio {$reading / $sorting:.2f}')"

log="$work/x.all"
python3 bench/make_log.py 5000 "$log"
run() { best "$program" --drive "C=$work" --home "$work/veldrana" "$@" convert "$log"; }
# The first start only makes the files of the settings.
"$program" --drive "C=$work" --home "$work/veldrana" convert "$log" >/dev/null 2>&1 || true
echo "a run of 5,000 contacts without a history: $(run --set Option07=0) s"
for contacts in 1000 100000 1000000; do
    python3 bench/make_log_book.py "$contacts" "$book"
    run --set Option07=1 >/dev/null  # makes the history
    one="$work/one.all"
    head -2 "$log" >"$one"
    loading=$(best "$program" --drive "C=$work" --home "$work/veldrana" --set Option07=1 convert "$one")
    all=$(run --set Option07=1)
    stations=$(($(wc -l <"$work/veldrana/Temp_Files/bak_qso.mas1_p") - 3))
    python3 -c "print(f'with a history of {$stations} stations: {$all} s, less loading' \
        f' {$all - $loading:.3f} s')"
done
