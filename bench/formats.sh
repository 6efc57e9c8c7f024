#!/usr/bin/env bash
# Reads the same contacts (100,000, or as many as told) from a log of every kind, as often as told
# (5), and shows the best time of each, against that of .ALL, and its peak of memory. An RTCL log is
# unpacked, rewritten as .ALL and read from there: its time holds all three steps.
set -euo pipefail
cd "$(dirname "$0")/.."

contacts=${1:-100000}
rounds=${2:-5}
program=build/bin/veldrana-read-log
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 bench/make_formats.py "$contacts" "$work"

printf '%-10s %10s %10s %8s %12s\n' kind "read (s)" "size (kB)" ratio "memory (kB)"
for log in log.all:all log.txt:txt log.cbr:cbr log.adi:ADIF log.zlo:zlo old.log:log_v4 new.log:log_v430; do
    file=$work/${log%%:*}
    kind=${log##*:}
    read -r seconds kept < <("$program" "$file" "$kind" "$rounds")
    if [ "$kept" -ne "$contacts" ]; then
        echo "$kind: $kept contacts of $contacts" >&2
        exit 1
    fi
    [ "$kind" != all ] || of_all=$seconds
    printf '%-10s %10.3f %10d %8s %12s\n' "$kind" "$seconds" "$(($(stat -c %s "$file") / 1024))" \
        "$(python3 -c "print(f'{$seconds / $of_all:.2f}')")" "$("$program" "$file" "$kind")"
done
