#!/usr/bin/env bash
# Installs those packages of the lists named as arguments that are missing. The first word
# of each line of a list is a package.
set -euo pipefail

Fail() {
    echo "Could not install ${Missing[*]}: $1" >&2
    exit 1
}

IsInstalled() {
    [[ $(dpkg-query --show --showformat='${db:Status-Status} ' "$1" 2>/dev/null) == installed* ]]
}

Missing=()
while read -r Package _; do
    IsInstalled "$Package" || Missing+=("$Package")
done < <(grep -hv '^#' "$@")
((${#Missing[@]} > 0)) || exit 0

command -v apt-get >/dev/null ||
    Fail "there is no apt-get here. Install what these are called on your system, then build as README.md says."
AsRoot=(env)
if ((EUID != 0)); then
    command -v sudo >/dev/null || Fail "this takes root. Run this as root, or install sudo."
    AsRoot=(sudo env)
fi

echo "Installing ${Missing[*]}"
# An update may fail in part, for a source that has none of these packages: whether they install is what counts.
"${AsRoot[@]}" DEBIAN_FRONTEND=noninteractive sh -c '
    apt-get update -qq
    apt-get install -qq -y -o DPkg::Lock::Timeout=300 --no-install-recommends "$@" >/dev/null
' sh "${Missing[@]}" || Fail "apt-get says above why. Check the network and the package sources, then run this again."
