#!/usr/bin/env bash
# Installs what is missing, builds everything with warnings as errors and runs all tests.
set -euo pipefail

Root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$Root/scripts/install_packages.sh" "$Root/scripts/packages.txt" "$Root/scripts/test_packages.txt"
cmake --preset release -S "$Root" -B "$Root/build/test" -DGLOAMTIDE_WERROR=ON
cmake --build "$Root/build/test" --parallel "$(nproc)"

# Nothing of the user's desktop reaches the tests.
unset "${!QT_@}"
export TZ=UTC LC_ALL=C.UTF-8
exec ctest --test-dir "$Root/build/test" --output-on-failure --no-tests=error --parallel 2
