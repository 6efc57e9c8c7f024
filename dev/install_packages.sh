#!/usr/bin/env bash
# Installs the Debian packages that building and testing need, those that are missing only.
set -euo pipefail

packages=(
    g++ cmake ninja-build ccache
    libcli11-dev libgtest-dev libgmock-dev libbenchmark-dev
    clang-format-14 clang-tidy-14 clang-14
    qt6-base-dev qt6-translations-l10n xvfb xauth fonts-noto-cjk
    python3 util-linux
)

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
