#!/usr/bin/env bash
# Makes the Debian package of a build folder, checks it, installs it into a scratch root, uses the program from there as
# someone does who starts it from the desktop's menu for the first time, and removes it again. Takes root, for the files'
# owner. Exit 77: something is missing here.
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

# The menu entry, in an empty home: it shows the place of the computer's time zone, without a question.
export HOME=$Scratch/home PATH=$Root/usr/bin:$PATH TZ=Europe/Berlin
mkdir -p "$HOME"
StartDisplay 1024x768
Folder=$XDG_CONFIG_HOME/gloamtide
Configuration=$Folder/home.gtf
StartFromMenu() {
    Start "$Root$(sed -n 's/^Exec=//p' "$Desktop")"
    AwaitWindow "Gloamtide ($Configuration)"
}
NameIn() { tail -c +675 "$1" | head -c "$(Record u2 15 "$1")"; }
SaveAgain() {
    rm "$Configuration"
    Press ctrl+s
    Await '[[ $(stat -c %s "$Configuration" 2>/dev/null) == 1008 ]]' 'not saved'
}
StartFromMenu
Expect "$(NameIn "$Configuration")" 'Berlin, Germany'
Expect "$(Record f4 2 "$Configuration")" -1
Expect "$(Record d2 7 "$Configuration") $(Record d2 9 "$Configuration") $(Record d2 10 "$Configuration")" '-1 -1 -1'

# A city is found by the beginning of its name, time goes by keys, and Now leads back.
Press ctrl+comma
AwaitWindow 'Gloamtide - Configure'
xdotool type --delay 60 tok
Press Down Return Return
AwaitWindow "Gloamtide ($Configuration)"
Press Home Shift+Left Right Right
SaveAgain
Expect "$(NameIn "$Configuration")" 'Tokyo, Japan'
Offset=$(Record f8 1 "$Configuration")  # days
Expect "${Offset:0:9}" -0.916666
Press Page_Up ctrl+n
SaveAgain
Expect "$(Record f8 1 "$Configuration")" 0
Press ctrl+q
ExpectEnd
Expect "$(cat "$Folder/Startup.dat")" "\"$Configuration\""$'\r'
StartFromMenu
Expect "$(NameIn "$Configuration")" 'Tokyo, Japan'
Press ctrl+q
ExpectEnd

# Where no folder can be made for it, it starts all the same, where it is.
cd "$Scratch"
XDG_CONFIG_HOME=/proc/none Start "$Root$(sed -n 's/^Exec=//p' "$Desktop")" 2>"$Scratch/said"
AwaitWindow 'File Not Found'
Press Return
AwaitWindow 'Settings'
Press Return
AwaitWindow 'Gloamtide (Config File not found'
grep -q "works in $Scratch instead" "$Scratch/said" || Fail "it did not say so"
Press ctrl+q
AwaitWindow 'Save Configuration?'
Press alt+n
ExpectEnd

"${Dpkg[@]}" --remove gloamtide >/dev/null 2>&1
Left=$(find "$Root" -path "$Root/var" -prune -o -type f -print)
[[ -z $Left ]] || Fail "left behind: $Left"
echo "installed, started, removed"
