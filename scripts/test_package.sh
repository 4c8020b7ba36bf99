#!/usr/bin/env bash
# Makes the Debian package of a build folder, checks it, installs it into a scratch root, starts the program from there
# as the desktop's menu would, and removes it again. Takes root, for the files' owner. Exit 77: something is missing here.
set -euo pipefail

Build=$(cd "$1" && pwd)
for Tool in dpkg-shlibdeps lintian appstreamcli desktop-file-validate Xvfb openbox xdotool; do
    command -v "$Tool" >/dev/null || { echo "needs $Tool"; exit 77; }
done
((EUID == 0)) || { echo "needs root"; exit 77; }

Scratch=$(mktemp -d)
Jobs=()
CleanUp() {
    kill "${Jobs[@]}" 2>/dev/null || true
    wait
    rm -rf "$Scratch"
}
trap CleanUp EXIT
Fail() {
    echo "FAILED: $1"
    exit 1
}

(cd "$Build" && cpack -G DEB -B "$Scratch/package" >"$Scratch/cpack.log") || { cat "$Scratch/cpack.log"; exit 1; }
Package=$(echo "$Scratch"/package/*.deb)
lintian --allow-root --fail-on error "$Package"

Root=$Scratch/root
mkdir -p "$Root/var/lib/dpkg"/{info,updates}
touch "$Root/var/lib/dpkg/status"
Dpkg=(dpkg --root="$Root" --force-depends --log=/dev/null)
"${Dpkg[@]}" --install "$Package" >/dev/null 2>&1
Desktop=$Root/usr/share/applications/org.gloamtide.Gloamtide.desktop
desktop-file-validate "$Desktop"
appstreamcli validate --no-net "$Root"/usr/share/metainfo/*.xml
(cd "$Scratch" && "$Root/usr/bin/gloamtide-still" picture.png) || Fail "gloamtide-still"

# The menu entry, in a home of its own.
export QT_QPA_PLATFORM=xcb HOME=$Scratch/home PATH=$Root/usr/bin:$PATH
unset XDG_CONFIG_HOME
# $1: a command that shall succeed soon, $2: what failed if it does not
Await() {
    local Deadline=$((SECONDS + 30))
    until eval "$1"; do
        ((SECONDS < Deadline)) || Fail "$2"
        sleep 0.1
    done
}
AwaitWindow() { Await "xdotool getactivewindow getwindowname 2>/dev/null | grep -qF '$1'" "no window $1"; }

Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>"$Scratch/display" 2>/dev/null &
Jobs+=($!)
Await "[[ -s '$Scratch/display' ]]" "no display"
DISPLAY=:$(cat "$Scratch/display")
export DISPLAY
openbox --sm-disable >/dev/null 2>&1 &
Jobs+=($!)
Await 'xdotool get_num_desktops >/dev/null 2>&1' "no window manager"

mkdir -p "$HOME"
"$Root$(sed -n 's/^Exec=//p' "$Desktop")" &
Program=$!
Jobs+=("$Program")
AwaitWindow 'File Not Found'
xdotool key Return
AwaitWindow 'Gloamtide ('
xdotool key alt+q
AwaitWindow 'Save Configuration?'
xdotool key alt+n
wait "$Program" || Fail "the program did not end well"
[[ -f $HOME/.config/gloamtide/Startup.dat ]] || Fail "no start-up file in the user's folder"

"${Dpkg[@]}" --remove gloamtide >/dev/null 2>&1
Left=$(find "$Root" -path "$Root/var" -prune -o -type f -print)
[[ -z $Left ]] || Fail "left behind: $Left"
echo "installed, started, removed"
