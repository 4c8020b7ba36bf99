#!/usr/bin/env bash
# Installs what is missing and runs every check: format, cppcheck and clang-tidy with no finding, a build with warnings as
# errors, and all tests, under the sanitizers first, then as users run the program.
set -euo pipefail

Root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$Root/scripts/install_packages.sh" "$Root/scripts/packages.txt" "$Root/scripts/test_packages.txt"
for Preset in sanitize release; do
    cmake --preset $Preset -S "$Root" -B "$Root/build/test/$Preset" -DGLOAMTIDE_WERROR=ON \
        -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
done

"$Root/scripts/check_format.sh"
"$Root/scripts/check_cppcheck.sh"
"$Root/scripts/check_tidy.sh" "$Root/build/test/release"

# Nothing of the user's desktop reaches the tests.
unset "${!QT_@}"
export TZ=UTC LC_ALL=C.UTF-8
for Preset in sanitize release; do
    cmake --build "$Root/build/test/$Preset" --parallel "$(nproc)"
    ctest --test-dir "$Root/build/test/$Preset" --output-on-failure --no-tests=error --parallel 2
done
