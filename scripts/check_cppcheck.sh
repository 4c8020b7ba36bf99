#!/usr/bin/env bash
# Fails where cppcheck finds something in the code.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
cppcheck --quiet --error-exitcode=1 --enable=warning,style,performance,portability --std=c++20 --language=c++ \
    --library=googletest,qt --suppressions-list=scripts/cppcheck_suppressions.txt -I src -I . \
    src bench fuzz tests tools
