#!/usr/bin/env bash
# Fails, naming file and line, where an include breaks the rule of who may include whom (CONTRIBUTING.md).
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
Includes=$(grep -rnE '^\s*#\s*include' --include='*.h' --include='*.cpp' --exclude-dir={build,node_modules} -- *)
Status=0

# $1: the rule; $2: the lines "file:line:#include ..." that break it
Forbid() {
    local Found
    if Found=$(grep -P "$2" <<<"$Includes"); then
        echo "$1:"
        echo "$Found"
        Status=1
    fi
}

Forbid 'Qt stays in platform/qt, app, their tests and their yardstick' '^(?!platform/qt/|app/|bench/bare_qt|tests/platform/qt/|tests/app/).*<(Q|q\w+\.h)'
Forbid 'platform includes nothing of the program' '^platform/[^"]*"(?!platform/)'
Forbid 'Only programs and tests know the hosts' '^(?!platform/(qt|headless)/|app/|bench/|fuzz/|tests/).*"platform/(qt|headless)/'
Forbid 'astro includes only itself and the state' '^astro/[^"]*"(?!astro/|frame/(state|numbers)\.h")'
Forbid 'frame/startup.h is for frame and app' '^(?!frame/|app/|bench/|fuzz/|tests/).*"frame/startup\.h"'
exit $Status
