#!/usr/bin/env bash
# Fails where clang-tidy finds something in the program. $1: a build folder with compile_commands.json. The tests are left
# to the compilers and cppcheck: their macros take clang-tidy several times as long as the program itself.
#
# Most of its time goes into the system's headers, so that a folder looked at as one file takes a third of the time of
# its files one by one. Names that are a file's own must differ within a folder for that.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
Scratch=$(mktemp -d)
trap 'rm -rf "$Scratch"' EXIT
# Programs stay apart: each has a main of its own.
awk -v Root="$PWD/" -v Scratch="$Scratch" '
    /^ *"command": / { Command = $0 }
    /^ *"file": / {
        split($0, Part, "\"")
        File = Part[4]
        if (index(File, Root "src/") != 1 && index(File, Root "bench/") != 1) next
        Key = substr(File, length(Root) + 1)
        if (Key !~ /^(src\/app\/(gloamtide|gloamtide_still|first_start)\.cpp|bench\/.*)$/) sub(/\/[^\/]*$/, "", Key)
        gsub("/", "-", Key)
        Folder = Scratch "/" Key ".cc"
        print "#include \"" File "\"" >Folder
        if (Key in Seen) next
        Seen[Key] = 1
        gsub(File, Folder, Command)
        Entries = Entries (Entries ? "," : "") "{\"directory\": \"" Scratch "\",\n" Command "\n\"file\": \"" Folder "\"}\n"
    }
    END { print "[" Entries "]" >(Scratch "/compile_commands.json") }
' "$1/compile_commands.json"
cp .clang-tidy "$Scratch"
run-clang-tidy-14 -quiet -j "$(nproc)" -p "$Scratch" 2>/dev/null | sed '/^clang-tidy-14 /d'
