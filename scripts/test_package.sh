#!/usr/bin/env bash
# Makes the Debian package of a build folder, checks it, installs it into a scratch root, starts the program from there
# as the desktop's menu would, and removes it again. Takes root, for the files' owner. Exit 77: something is missing here.
set -euo pipefail

Build=$(cd "$1" && pwd)
for Tool in dpkg-shlibdeps lintian appstreamcli desktop-file-validate; do
    command -v "$Tool" >/dev/null || { echo "needs $Tool"; exit 77; }
done
((EUID == 0)) || { echo "needs root"; exit 77; }
source "$(dirname "${BASH_SOURCE[0]}")/virtual_desktop.sh"

(cd "$Build" && cpack -G DEB -B "$Scratch/package" >"$Scratch/cpack.log") || { cat "$Scratch/cpack.log"; exit 1; }
Package=$(echo "$Scratch"/package/*.deb)
lintian --allow-root --fail-on error,warning "$Package"

Root=$Scratch/root
mkdir -p "$Root/var/lib/dpkg"/{info,updates}
touch "$Root/var/lib/dpkg/status"
Dpkg=(dpkg --root="$Root" --force-depends --log=/dev/null)
"${Dpkg[@]}" --install "$Package" >/dev/null 2>&1
Desktop=$Root/usr/share/applications/org.gloamtide.Gloamtide.desktop
desktop-file-validate "$Desktop"
appstreamcli validate --pedantic --no-net "$Root"/usr/share/metainfo/*.xml
(cd "$Scratch" && "$Root/usr/bin/gloamtide-still" picture.png) || Fail "gloamtide-still"

# The menu entry, in a home of its own.
export HOME=$Scratch/home PATH=$Root/usr/bin:$PATH
mkdir -p "$HOME"
StartDisplay 1024x768
Start "$Root$(sed -n 's/^Exec=//p' "$Desktop")"
AwaitWindow 'File Not Found'
Press Return
AwaitWindow 'Gloamtide ('
Press alt+q
AwaitWindow 'Save Configuration?'
Press alt+n
ExpectEnd
[[ -f $XDG_CONFIG_HOME/gloamtide/Startup.dat ]] || Fail "no start-up file in the user's folder"

"${Dpkg[@]}" --remove gloamtide >/dev/null 2>&1
Left=$(find "$Root" -path "$Root/var" -prune -o -type f -print)
[[ -z $Left ]] || Fail "left behind: $Left"
echo "installed, started, removed"
