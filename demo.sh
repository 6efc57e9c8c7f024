#!/usr/bin/env bash
# Installs what is missing, builds, and shows the program's work on a sample log.
set -euo pipefail
cd "$(dirname "$0")"

dev/install_packages.sh
cmake --preset release >/dev/null
cmake --build --preset release --target veldrana-batch | tail -n 1

# The program works beside its logs, so the demo has its own copy of them.
demo=build/demo
rm -rf "$demo"
mkdir -p "$demo/veldrana"
cp -r samples/logs "$demo/logs"
log="$demo/logs/allja_sample.all"

echo
echo "The log, $(($(wc -l <"$log") - 1)) contacts as the contest logger wrote them:"
iconv -f CP932 -t UTF-8 "$log" | sed -n '1,6p'

build/bin/veldrana-batch --drive "C=$demo" --home "$demo/veldrana" --keep-work \
    --set "lblRmks1(0)=memo" --set "lblRmks1(1)=OP" convert "$log" >"$demo/counters.txt"

intermediate="$demo/logs/zlog_1.txt"
echo
echo "The same contacts as the stages of a run pass them on, $(wc -l <"$intermediate") lines in $intermediate:"
iconv -f CP932 -t UTF-8 "$intermediate" | sed -n '1,5p'
