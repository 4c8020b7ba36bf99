#!/usr/bin/env bash
# Installs what is missing and runs every check: format, cppcheck and clang-tidy with no finding, a build with warnings as
# errors, and all tests, under the sanitizers first, then as users run the program. "./test.sh quick", for daily work,
# leaves out the checkers and the sanitizers. Says how long each stage took.
set -euo pipefail

Root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
Times=()
Preset=release

# $1: what the stage is called; the rest: its command
Stage() {
    local Name=$1 Start=$SECONDS
    shift
    "$@"
    Times+=("$(printf '%-25s %4d s' "$Name" $((SECONDS - Start)))")
}

# $1: the preset; the rest: more settings
Configure() {
    cmake --preset "$1" -S "$Root" -B "$Root/build/test/$1" -DGLOAMTIDE_WERROR=ON -DCMAKE_EXPORT_COMPILE_COMMANDS=ON "${@:2}"
}

# $1: the preset; the rest: the targets, where not all
Build() {
    cmake --build "$Root/build/test/$1" --parallel "$(nproc)" ${2:+--target "${@:2}"}
}

RunTests() {
    ctest --test-dir "$Root/build/test/$1" --output-on-failure --no-tests=error --parallel "$(nproc)"
}

# Nothing of the user's desktop reaches the tests, and the disk does not hold them up.
unset "${!QT_@}"
export TZ=UTC LC_ALL=C.UTF-8
[[ -d /dev/shm && -w /dev/shm ]] && export TMPDIR=/dev/shm

Stage 'packages' "$Root/scripts/install_packages.sh" "$Root/scripts/packages.txt" "$Root/scripts/test_packages.txt"
Stage 'format' "$Root/scripts/check_format.sh"
Stage 'includes' "$Root/scripts/check_includes.sh"
case ${1:-all} in
    all)
        Stage 'cppcheck' "$Root/scripts/check_cppcheck.sh"
        Stage 'configure' Configure sanitize -DGLOAMTIDE_BENCH=OFF
        Stage 'configure' Configure release -DGLOAMTIDE_BENCH=ON
        Stage 'clang-tidy' "$Root/scripts/check_tidy.sh" "$Root/build/test/release"
        Stage 'build with sanitizers' Build sanitize gloamtide_tests gloamtide_qt_tests
        Stage 'tests with sanitizers' RunTests sanitize
        ;;
    quick)
        Preset=quick
        Stage 'configure' Configure quick -DGLOAMTIDE_BENCH=OFF
        ;;
    *)
        echo "Usage: $0 [quick]" >&2
        exit 2
        ;;
esac
Stage 'build' Build $Preset
printf '%s\n' '' "${Times[@]}" "$(printf '%-25s %4d s' 'until the last tests' "$SECONDS")"
RunTests $Preset
