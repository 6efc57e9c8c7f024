#!/usr/bin/env bash
# Installs what is missing, builds, and shows the program's main job on a sample log: a contest log
# becomes the two files that the log book imports.
set -euo pipefail
cd "$(dirname "$0")"

dev/install_packages.sh
cmake --preset release >/dev/null
cmake --build --preset release --target veldrana-batch | tail -n 1

# The program works beside its logs and keeps its settings in its folder, so the demo has its own
# copy of both. The copy is drive C: of the demo.
demo=build/demo
rm -rf "$demo"
mkdir -p "$demo"
cp -r samples/{logs,veldrana,zlog,mas,yubin,hamlog} "$demo"
log="$demo/logs/allja_sample.all"
veldrana() { build/bin/veldrana-batch --drive "C=$demo" --home "$demo/veldrana" "$@"; }

# The first rows of a result file as a table.
show() {
    iconv -f CP932 -t UTF-8 "$1" | sed -n '1,8p' | python3 -c '
import csv, sys, unicodedata

heads = ["Call", "Date", "Time", "His", "My", "Freq", "Mode", "Code", "G/L", "QSL", "Name", "QTH",
         "Rmks1", "Rmks2", "DX"]

def width(text):
    return sum(2 if unicodedata.east_asian_width(c) in "WF" else 1 for c in text)

rows = [heads, *csv.reader(sys.stdin)]
widths = [max(width(row[i]) for row in rows) for i in range(len(heads))]
for row in rows:
    print("  " + "  ".join(cell + " " * (w - width(cell)) for cell, w in zip(row, widths)).rstrip())
'
}

echo
echo "The log, $(($(wc -l <"$log") - 1)) contacts as the contest logger wrote them:"
iconv -f CP932 -t UTF-8 "$log" | sed -n '2,5p'

echo
echo "The first start makes the files of the settings and asks to look them over:"
veldrana convert "$log" && exit 1

echo
echo "The second start goes on, with names, codes and places, and no card for those who had one"
echo "already. The counters of the run:"
veldrana --set "lblRmks1(0)=memo" --set "lblRmks1(1)=OP" --set "Check1=1" --set "Check10=1" \
    --set "Check06=1" --set Check03=1 --set Check14=1 --set Option02=2 --set Option04=1 \
    --set Option07=2 convert "$log" --contest allja.dat

echo
echo "${log%.all}_hjn.csv, in the order of the log:"
show "${log%.all}_hjn.csv"
echo
echo "${log%.all}_cjn.csv, sorted for the cards, stations worked once first:"
show "${log%.all}_cjn.csv"
