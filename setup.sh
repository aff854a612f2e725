#!/usr/bin/env bash
# Installs what is missing on a Debian machine, configures and builds, then plays or tests.
#   ./setup.sh play    build the game in build/ and start it
#   ./setup.sh build   build the game and its tools in build/, optimised
#   ./setup.sh test    build everything once under AddressSanitizer and UBSan in build-check/,
#                      run the whole test suite there headless, then a faulted network soak
#   ./setup.sh fuzz [RUNS] [net|settings|halloffame]
#                      build the libFuzzer targets with clang and the sanitizers in build-fuzz/
#                      and fuzz one (net by default; 1000000 inputs); clang is needed only here
set -euo pipefail
cd "$(dirname "$0")"

install() {
    local missing=()
    for p in "$@"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    ((${#missing[@]})) || return 0
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    echo "Installing ${missing[*]}"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

if [ "${1:-}" = fuzz ]; then
    install cmake make clang libsqlite3-dev libicu-dev
    cmake -S . -B build-fuzz -DPETAL_FUZZ=ON -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DCMAKE_RULE_MESSAGES=OFF >/dev/null
    cmake --build build-fuzz -j "$(nproc)" -- --no-print-directory -s
    target="${3:-net}"
    # A Hall of Fame file is pages of 512 bytes and more; the kept ones run to a few pages.
    maxlen=1024
    [ "$target" = halloffame ] && maxlen=16384
    # New inputs go to the first folder; the kept ones are read from the second.
    mkdir -p "build-fuzz/corpus/$target"
    exec nice -n 10 "build-fuzz/fuzz/petalgarden-fuzz-$target" -runs="${2:-1000000}" -detect_leaks=0 \
        -dict="fuzz/$target.dict" -max_len="$maxlen" -artifact_prefix=build-fuzz/ -print_final_stats=1 \
        "build-fuzz/corpus/$target" "tests/fuzz-corpus/$target"
fi

install cmake g++ make qt6-base-dev qt6-svg-dev libqt6svg6 qt6-multimedia-dev libqt6multimedia6 libsqlite3-dev libicu-dev libgtest-dev python3 \
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n fonts-noto-cjk \
    fonts-liberation fonts-dejavu-core desktop-file-utils appstream dpkg-dev \
    xvfb xdotool dbus-daemon at-spi2-core python3-pyatspi \
    libminiupnpc-dev libnatpmp-dev miniupnpd-nftables nftables iproute2
# The router's daemon is for the test's own namespaces: none may serve this machine's network.
if command -v systemctl >/dev/null && systemctl is-enabled --quiet miniupnpd 2>/dev/null; then
    [ "$(id -u)" -eq 0 ] && systemctl disable --now miniupnpd || sudo systemctl disable --now miniupnpd
fi

# A developer's machine with ccache rebuilds from its cache; a clean CI machine has none.
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

# Configures and builds a folder; only warnings and errors are shown, so an up-to-date build
# says nothing.
build() {
    local folder=$1
    shift
    cmake -S . -B "$folder" -DCMAKE_RULE_MESSAGES=OFF "${launcher[@]}" "$@" >/dev/null
    cmake --build "$folder" -j "$(nproc)" -- --no-print-directory -s 2>&1 | { grep -v -E '^\[ *[0-9]+%\] Built target' || true; }
}

# The checked build runs every test under AddressSanitizer and UndefinedBehaviorSanitizer: any
# report ends the run with a failure, leaks included. It is built once, lightly optimised, with
# line tables for the reports and no more debug information.
check() {
    local checked=build-check
    build "$checked" -DPETAL_SANITIZE=ON -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O1 -g1 -DNDEBUG"
    export ASAN_OPTIONS=detect_leaks=1:abort_on_error=0 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
    QT_QPA_PLATFORM=offscreen ctest --test-dir "$checked" --output-on-failure -j "$(nproc)"
    echo "A faulted network soak"
    "$checked/petalgarden-sim" net --deals 2000 --faults 7 | tail -n 1
    "$checked/petalgarden-sim" net --deals 500 --faults 23 --tournament 3 --yaku on | tail -n 1
}

case "${1:-}" in
    play)
        build build -DCMAKE_BUILD_TYPE=RelWithDebInfo
        exec build/petalgarden
        ;;
    build) build build -DCMAKE_BUILD_TYPE=RelWithDebInfo ;;
    test) check ;;
    *) echo "usage: ./setup.sh play | build | test | fuzz [RUNS] [net|settings|halloffame]" >&2; exit 2 ;;
esac
