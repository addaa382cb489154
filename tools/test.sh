#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test without a display.
#   --sanitize   build into build-sanitize with AddressSanitizer and UndefinedBehaviorSanitizer
#                and run every test under them
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/deps.sh
export QT_QPA_PLATFORM=offscreen
if [ "${1:-}" = "--sanitize" ]; then
  # Warnings are enforced by the normal build; the optimiser's extra ones under the
  # sanitizers are known false alarms.
  # -O1 with line tables only: a quicker build whose reports still name file and line.
  cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1" \
    -DCMAKE_C_FLAGS_DEBUG="-O1 -g1" -DORVANE_WERROR=OFF -DORVANE_SANITIZE=ON \
    -DORVANE_BUILD_BENCH=OFF >/dev/null
  cmake --build build-sanitize -j"$(nproc)"
  # Qt's own caches live until exit: report leaks of our code, not of the platform libraries.
  export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:strict_string_checks=1:detect_stack_use_after_return=1"
  export LSAN_OPTIONS="suppressions=$PWD/tools/lsan.supp:print_suppressions=0"
  export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
  ctest --test-dir build-sanitize --output-on-failure --no-tests=error -j"$(nproc)"
  exit 0
fi
bash tools/build.sh
ctest --test-dir build --output-on-failure --no-tests=error -j"$(nproc)"
