#!/usr/bin/env bash
# Installs what is missing, builds Gloamtide and starts it; where there is no display, leaves a picture of it instead.
set -euo pipefail

Root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$Root/scripts/install_packages.sh" "$Root/scripts/packages.txt"
cmake --preset release -S "$Root" -DGLOAMTIDE_TESTS=OFF -DGLOAMTIDE_BENCH=OFF -DCMAKE_UNITY_BUILD=ON
cmake --build "$Root/build" --parallel "$(nproc)"

# The current folder stays the caller's: the program looks for Startup.dat there.
if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    exec "$Root/build/gloamtide"
fi
"$Root/build/gloamtide-still" --almanac gloamtide.png
echo "There is no display here: see gloamtide.png. For the window, run this again in a desktop session (or ssh -X)."
