#!/usr/bin/env bash
# Configures and builds Orvane, its board simulator, tests and benchmarks into build/.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORVANE_WERROR=ON >/dev/null
cmake --build build -j"$(nproc)"
