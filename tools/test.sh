#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test without a display.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/deps.sh
bash tools/build.sh
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure --no-tests=error -j"$(nproc)"
