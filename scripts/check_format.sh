#!/usr/bin/env bash
# Fails where the code is not formatted as .clang-format says. Version 14, the one in Debian 12: others differ.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
mapfile -t Files < <(find src bench fuzz tests tools assets \
    -name node_modules -prune -o -name '*.h' -print -o -name '*.cpp' -print)
clang-format-14 --dry-run -Werror "${Files[@]}"
