#!/usr/bin/env bash
# What the masters cost a run of 5,000 contacts: a name_mas.txt and a qth_mas.txt of 45,000 records
# each and a contest data file of 4,500 rows, against the run without them. Each is run as often as
# told (5) and the best time counts; what a run of one contact costs more with the masters than
# without is the loading.
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${1:-5}
program=$PWD/build/bin/veldrana-batch
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r samples/veldrana "$work"
mkdir -p "$work/zlog" "$work/mas" "$work/veldrana/mas_mst"

python3 - "$work" <<'PY'
import itertools, sys

work = sys.argv[1]
heading = "title\r\n |ｺｰﾙｻｲﾝ|__氏  名___|_code_|\r\n"
calls = ("".join(parts) for parts in itertools.product(
    ("JA", "JH", "JR", "JE", "JF"), "1234567890", "ABCDEFGHIJ", "ABCDEFGHIJ", "ABCDEFGHI"))

def record(call, code, place, end):
    return f" {call:<6}{'NAME':<12}{code:<6}{place:<28}{end:<54}\r\n"

chosen = list(itertools.islice(calls, 45000))
for name, end in (("name_mas.txt", "memo"), ("qth_mas.txt", "PM95TK")):
    with open(f"{work}/mas/{name}", "w", encoding="cp932", newline="") as file:
        file.write(heading)
        file.writelines(record(call, "100101", "Chiyoda", end) for call in chosen)
with open(f"{work}/zlog/bench.dat", "w", encoding="cp932", newline="") as file:
    file.write("title\r\n")
    file.writelines(f"{number:<11}Place {number}\r\n" for number in range(100, 4600))
with open(f"{work}/veldrana/mas_mst/contest_name.csv", "w", encoding="cp932", newline="") as file:
    file.write("heading\r\n,bench.cfg,bench.dat,Bench,31,number,,\r\n")
cfg = f"{work}/veldrana/Veldrana_cfg.ini"
with open(cfg, encoding="cp932", newline="") as file:
    lines = file.read().split("\r\n")
values = {"zlog_dat_dir": "C:\\zlog\\", "name_mas_dir": "C:\\mas\\",
          "qth_mas_dir": "C:\\mas\\qth_mas.txt", "yubin_mas_dir": "使用しない"}
lines = [f"{key}={values[key]}" if (key := line.split("=")[0]) in values else line for line in lines]
with open(cfg, "w", encoding="cp932", newline="") as file:
    file.write("\r\n".join(lines))
PY

source bench/best.sh

without=(--set Option02=0 --set Option04=0 --set Check03=0 --set Check14=0)
with=(--set Option02=2 --set Option04=1 --set Check03=1 --set Check14=1 --set Check7=1)
run() { "$program" --drive "C=$work" --home "$work/veldrana" "$@"; }
measure() { best "$program" --drive "C=$work" --home "$work/veldrana" "$@"; }

for contacts in 1 5000; do
    python3 bench/make_log.py "$contacts" "$work/log_$contacts.all"
done
# The first start only makes the files of the settings.
run convert "$work/log_1.all" >/dev/null 2>&1 || true

plain=$(measure "${without[@]}" convert "$work/log_5000.all")
plain_1=$(measure "${without[@]}" convert "$work/log_1.all")
full=$(measure "${with[@]}" convert "$work/log_5000.all" --contest bench.dat)
full_1=$(measure "${with[@]}" convert "$work/log_1.all" --contest bench.dat)
python3 - "$plain" "$plain_1" "$full" "$full_1" <<'PY'
import sys
plain, plain_1, full, full_1 = map(float, sys.argv[1:])
loading = full_1 - plain_1
print(f"without masters {plain:.3f} s, with masters {full:.3f} s, of which loading {loading:.3f} s")
print(f"with masters against without: {full / plain:.2f}, without the loading {(full - loading) / plain:.2f}")
PY
