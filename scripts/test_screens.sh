#!/usr/bin/env bash
# Runs the tests of the main window, in the program $1, on desktops of several sizes, and on one of two screens. Exit 77:
# something is missing here.
set -euo pipefail

Tests=$(realpath "$1")
source "$(dirname "${BASH_SOURCE[0]}")/virtual_desktop.sh"

# $1: what it is, $2: which tests
RunTests() {
    echo "--- $1"
    "$Tests" --gtest_filter="OnADesktop.$2" >"$Scratch/log" 2>&1 || { cat "$Scratch/log"; Fail "$1"; }
    ! grep -q SKIPPED "$Scratch/log" || Fail "$1: left out"
}

for Size in 1366x768 1920x1080 3840x2160; do
    StartDisplay "$Size"
    [[ $Size != 3840x2160 ]] || export QT_SCALE_FACTOR=2
    RunTests "$Size, ratio ${QT_SCALE_FACTOR-1}" 'The*'
done

cat >"$Scratch/screens.json" <<'END'
{"screens": [
    {"name": "plain", "x": 0, "y": 0, "width": 1280, "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "dense", "x": 1280, "y": 0, "width": 1280, "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 2}
]}
END
unset QT_SCALE_FACTOR
export QT_QPA_PLATFORM=offscreen:configfile=$Scratch/screens.json
RunTests 'two screens' 'A*'
