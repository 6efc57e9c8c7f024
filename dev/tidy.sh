#!/usr/bin/env bash
# Runs clang-tidy over the program's sources (not the tests), or over the files that are named. With
# --deep the static analyzer looks too, which takes three times as long.
set -euo pipefail
cd "$(dirname "$0")/.."

checks=(--checks='-clang-analyzer-*')
if [ "${1:-}" = --deep ]; then
    checks=()
    shift
fi
# With clang's own options, and without precompiled headers, so that a file that forgets an include is
# found.
cmake --preset release -B build/lint -DCMAKE_CXX_COMPILER=clang++-14 \
    -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DVELDRANA_TESTS=OFF -DVELDRANA_BENCH=OFF >/dev/null

if [ $# -gt 0 ]; then
    printf '%s\n' "$@"
else
    git ls-files --cached --others --exclude-standard 'src/*.cpp'
fi | xargs -P "$(nproc)" -n 1 clang-tidy-14 --quiet "${checks[@]}" -p build/lint \
    2> >(grep -v 'warnings generated' >&2)
