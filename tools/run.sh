#!/usr/bin/env bash
# Installs what is missing, builds Orvane and starts it on the simulated boards.
set -euo pipefail
cd "$(dirname "$0")/.."
extra=()
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then extra+=(xvfb xauth); fi
bash tools/deps.sh "${extra[@]}"
bash tools/build.sh
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No display found: starting Orvane on a virtual X server (xvfb-run)."
  exec xvfb-run -a build/bin/orvane
fi
exec build/bin/orvane
