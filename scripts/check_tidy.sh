#!/usr/bin/env bash
# Fails where clang-tidy finds something in the program. $1: a build folder with compile_commands.json. The tests are left
# to the compilers and cppcheck: their macros take clang-tidy several times as long as the program itself.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
run-clang-tidy-14 -quiet -j "$(nproc)" -p "$1" \
    "^$PWD/(src|bench)/.*\.cpp$" 2>/dev/null | sed '/^clang-tidy-14 /d'
