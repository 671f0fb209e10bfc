#!/usr/bin/env bash
# Builds LxComp and runs every test suite.
#   scripts/test.sh              release build with debug info in build/
#   scripts/test.sh --sanitize   AddressSanitizer + UndefinedBehaviorSanitizer build in build-asan/
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh

build=build
flags=()
if [ "${1:-}" = "--sanitize" ]; then
  build=build-asan
  flags=(-DLXCOMP_SANITIZE=ON -DLXCOMP_BUILD_BENCH=OFF -DLXCOMP_BUILD_DEMO=OFF
         -DLXCOMP_BUILD_DESIGNER=OFF -DCMAKE_BUILD_TYPE=Debug)
  # Qt's and fontconfig's one-time allocations live until exit; leaks are not what this run hunts.
  export ASAN_OPTIONS=detect_leaks=0:abort_on_error=1
  export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
fi

cmake -S . -B "$build" -G Ninja "${flags[@]}"
cmake --build "$build" --parallel "$(nproc)"
ctest --test-dir "$build" --output-on-failure --parallel "$(nproc)"
