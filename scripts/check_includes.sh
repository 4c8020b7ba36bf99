#!/usr/bin/env bash
# Fails, naming file and line, where an include runs upward in the house: a folder includes only itself and the floors
# below it. Tests, benchmark, fuzzer and tools stand outside and see all of it.
set -euo pipefail

# The floors, the top one first.
Floors='
src/app
src/platform/qt src/platform/headless
src/frame
src/dialogs
src/clock
src/map
src/sundial
src/panel
src/places
src/storage
src/forms
src/astro
src/surface
src/state
src/platform
assets
'

cd "$(dirname "${BASH_SOURCE[0]}")/.."
find src assets -name '*.h' -o -name '*.cpp' -o -name '*.inc' | sort | xargs awk -v Floors="$Floors" '
    function FolderOf(Path) { sub(/\/[^\/]*$/, "", Path); return Path }
    function Refuse(Why) { printf "%s:%d: %s: %s\n", FILENAME, FNR, Why, $0; Found = 1 }
    BEGIN {
        Count = split(Floors, Lines, "\n")
        for (Line = 1; Line <= Count; ++Line) {
            Folders = split(Lines[Line], Names, " ")
            for (Each = 1; Each <= Folders; ++Each) Floor[Names[Each]] = Line
        }
    }
    FNR == 1 {
        Here = FolderOf(FILENAME)
        if (!(Here in Floor)) Refuse("a folder without a floor")
    }
    /^[ \t]*#[ \t]*include[ \t]*</ {
        if ($0 ~ /<(Q|q[a-z]+\.h)/ && Here != "src/platform/qt" && Here != "src/app") Refuse("Qt stays in platform/qt and app")
    }
    /^[ \t]*#[ \t]*include[ \t]*"/ {
        split($0, Part, "\"")
        There = FolderOf(Part[2])
        if (There != "assets") There = "src/" There
        if (There == Here) next
        if (!(There in Floor)) Refuse("no folder of the house")
        else if (Floor[There] <= Floor[Here]) Refuse("runs upward")
        else if (Here ~ /^src\/platform\// && There != "src/platform") Refuse("a host knows only platform")
    }
    END { exit Found }
'
