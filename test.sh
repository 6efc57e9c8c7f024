#!/usr/bin/env bash
# Installs what is missing, builds, checks format and lint, and runs every test under the sanitizers;
# those of whole runs and of the windows also optimised, as the programs are shipped.
set -euo pipefail
cd "$(dirname "$0")"

step() { printf '\n== %s\n' "$*"; }

step "packages"
dev/install_packages.sh

step "format"
dev/format.sh --check

step "build: release"
cmake --preset release -DVELDRANA_UNIT_TESTS=OFF >/dev/null
cmake --build --preset release

step "lint"
dev/tidy.sh

step "build: asan"
cmake --preset asan -DVELDRANA_BENCH=OFF >/dev/null
cmake --build --preset asan

step "tests: release"
ctest --preset release

step "tests: asan"
ctest --preset asan
