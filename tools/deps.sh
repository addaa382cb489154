#!/usr/bin/env bash
# Installs the Debian 12 packages Orvane needs to build, run and test, skipping what is there.
set -euo pipefail
packages=(cmake ninja-build g++ qt6-base-dev qt6-base-dev-tools libgl-dev
  qt6-tools-dev qt6-l10n-tools "$@")
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
