#!/usr/bin/env bash
# Installs what is missing on a Debian machine, configures and builds, then plays or tests.
#   ./setup.sh play    build and start the game
#   ./setup.sh test    build and run the whole test suite headless
set -euo pipefail
cd "$(dirname "$0")"

packages=(cmake g++ make qt6-base-dev qt6-svg-dev libqt6svg6 libsqlite3-dev libgtest-dev
          fonts-liberation fonts-dejavu-core desktop-file-utils appstream dpkg-dev)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    echo "Installing ${missing[*]}"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

build=build
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_RULE_MESSAGES=OFF >/dev/null
# Only warnings and errors are shown: the build says nothing when all is up to date.
cmake --build "$build" -j "$(nproc)" -- --no-print-directory -s 2>&1 | { grep -v -E '^\[ *[0-9]+%\] Built target' || true; }

case "${1:-}" in
    play) exec "$build/petalgarden" ;;
    test) QT_QPA_PLATFORM=offscreen ctest --test-dir "$build" --output-on-failure -j "$(nproc)" ;;
    *) echo "usage: ./setup.sh play | test" >&2; exit 2 ;;
esac
