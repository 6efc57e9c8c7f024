#!/usr/bin/env bash
# Runs clang-tidy over the program's sources (not the tests). Needs a configured release build.
set -euo pipefail
cd "$(dirname "$0")/.."

git ls-files --cached --others --exclude-standard 'src/*.cpp' |
    xargs -P "$(nproc)" -n 1 clang-tidy-14 --quiet -p build/release 2> >(grep -v 'warnings generated' >&2)
