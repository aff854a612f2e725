#!/usr/bin/env bash
# Installs what is missing on a Debian machine, configures and builds, then plays or tests.
#   ./setup.sh play    build and start the game
#   ./setup.sh test    build and run the whole test suite headless, then the core's tests, the
#                      seeded fuzzers and a faulted network soak under ASan and UBSan in build-asan/
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
    fonts-liberation fonts-dejavu-core desktop-file-utils appstream dpkg-dev \
    xvfb xdotool dbus-daemon at-spi2-core python3-pyatspi

# A developer's machine with ccache rebuilds from its cache; a clean CI machine has none.
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

build=build
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_RULE_MESSAGES=OFF "${launcher[@]}" >/dev/null
# Only warnings and errors are shown: the build says nothing when all is up to date.
cmake --build "$build" -j "$(nproc)" -- --no-print-directory -s 2>&1 | { grep -v -E '^\[ *[0-9]+%\] Built target' || true; }

# The core under AddressSanitizer and UndefinedBehaviorSanitizer: any report ends the run with
# a failure (leaks included). The core's tests take in two copies of the program itself, built
# so too (petalgarden-twin), playing each other over loopback.
sanitized() {
    local asan=build-asan
    cmake -S . -B "$asan" -DPETAL_SANITIZE=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_RULE_MESSAGES=OFF "${launcher[@]}" >/dev/null
    cmake --build "$asan" -j "$(nproc)" --target core_tests petalgarden-sim petalgarden-fuzz-seeded \
        -- --no-print-directory -s 2>&1 | { grep -v -E '^\[ *[0-9]+%\] Built target' || true; }
    export ASAN_OPTIONS=detect_leaks=1:abort_on_error=0 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
    echo "Sanitized: the core's tests"
    "$asan/tests/core_tests" --gtest_brief=1
    echo "Sanitized: a faulted network soak"
    "$asan/petalgarden-sim" net --deals 3000 --faults 7 | tail -n 1
    "$asan/petalgarden-sim" net --deals 1000 --faults 23 --tournament 3 --yaku on | tail -n 1
}

case "${1:-}" in
    play) exec "$build/petalgarden" ;;
    test)
        QT_QPA_PLATFORM=offscreen ctest --test-dir "$build" --output-on-failure -j "$(nproc)"
        sanitized
        ;;
    *) echo "usage: ./setup.sh play | test | fuzz [RUNS] [net|settings|halloffame]" >&2; exit 2 ;;
esac
