#!/usr/bin/env bash
# Makes the pictures in docs/images from the programs of a build folder (build/ where none is named).
# Needs Debian's xvfb, openbox, xdotool, imagemagick and python3, and the fonts of scripts/packages.txt.
set -euo pipefail

Root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
Build=$(cd "${1:-$Root/build}" && pwd)
Images=$Root/docs/images
source "$Root/scripts/virtual_desktop.sh"
for Tool in import convert compare python3; do
    command -v "$Tool" >/dev/null || Fail "needs $Tool"
done

# $1: the file; $2: seconds from the present to what is shown; $3: 0 for the natural map, 1 for the political one;
# the rest: what is shown over it, and "summer" for daylight-saving time. The place is Cleveland.
WriteConfiguration() {
    python3 - "$@" <<'PYTHON'
import sys
from struct import pack

Path, Offset, MapType, *Shown = sys.argv[1:]
Name = b"Cleveland, Ohio"


def Flags(*Names):
    return [pack("<h", -(Each in Shown)) for Each in Names]


Records = [
    pack("<d", int(Offset) / 86400),  # days
    pack("<f", 5),  # hours west of Greenwich
    pack("<h", "summer" in Shown),  # hours of daylight saving
    pack("<h", int(MapType)),
    *Flags("grid", "analemma", "cities", "zones", "sun", "moon"),
    *[pack("<f", Step) for Step in (0, 0, 1)],  # of the animation: years, days, hours
    pack("<h", -1),  # forward
    pack("<h", len(Name)) + Name,
    pack("<d", 41.598),
    pack("<f", -81.697),
    *Flags("sundial", "longitude", "equation", "daylight"),
]
with open(Path, "wb") as File:
    File.write(b"".join(Each.ljust(48, b"\0") for Each in Records))
PYTHON
}

# $1: the picture; $2: the instant; $3: the screen's width; the rest: as for WriteConfiguration
Still() {
    WriteConfiguration "$Scratch/still.gtf" 0 "${@:4}"
    "$Build/gloamtide-still" --config "$Scratch/still.gtf" --at "$2" --screen-width "$3" "$Scratch/still.png"
    Keep "$Scratch/still.png" "$1"
}

# $1: a picture; $2: its name in docs/images; the rest: what convert does to it
Keep() {
    convert "$1" "${@:3}" -strip +dither -colors 256 -define png:exclude-chunks=date,time "PNG8:$Images/$2"
    echo "$2"
}

Shoot() { import -window "$(xdotool getactivewindow)" "$1"; }
Alike() { compare -metric AE "$1" "$2" null: >/dev/null 2>&1; }

# Two shots in a row show the same, and more than one colour: the window is painted.
IsPainted() {
    Shoot "$Scratch/before.png"
    sleep 0.2
    Shoot "$Scratch/shot.png"
    Alike "$Scratch/before.png" "$Scratch/shot.png" && (($(identify -format %k "$Scratch/shot.png") > 1))
}

# The bars over the map are not where they were at the start: an animation has taken a step.
HasStepped() {
    local Bars="[1180x24+94+$((24 + Above))]"
    IsPainted && ! Alike "$Scratch/shot.png$Bars" "$Scratch/start.png$Bars"
}

# $1: the window's title; the rest: as for Keep
Picture() {
    AwaitWindow "$1"
    Await IsPainted 'not painted'
    Keep "$Scratch/shot.png" "${@:2}"
}

Dialog() { Picture "$1" "$2" -bordercolor black -border 1 -trim +repage -border 24; }

Back() {
    xdotool key Escape
    AwaitWindow "$Main"
}

# The program, in a home and with settings of its own.
StartProgram() {
    local Offset=$(($(date -d 2026-06-21T16:00:00Z +%s) - $(date +%s)))
    WriteConfiguration "$Scratch/home.gtf" "$Offset" 0 summer sun moon sundial
    echo '"home.gtf"' >"$Scratch/Startup.dat"
    (cd "$Scratch" && exec env -i HOME="$Scratch" PATH="$PATH" DISPLAY="$DISPLAY" LC_ALL=C.UTF-8 TZ=UTC \
        XDG_RUNTIME_DIR="$Scratch" QT_QPA_PLATFORM=xcb "$Build/gloamtide") &
    Jobs+=($!)
    AwaitWindow "$Main"
}

Main='Gloamtide (home.gtf)'
mkdir -p "$Images"
"$Build/gloamtide-still" --at 2026-11-23T19:20:20Z --map terrain --hide analemma --show sun,moon,city-names,timezones \
    --size 1920x1080 "$Images/gloamtide.jpg"
"$Build/gloamtide-still" --at 2026-11-22T13:30:30Z --map political --size 1920x1080 \
    --show sun,moon,analemma,cities,grid,timezones,sundial "$Scratch/still.png"
Keep "$Scratch/still.png" screen-1920.png
"$Build/gloamtide-still" --at 2026-11-18T00:00:30Z --place Sydney --only-map --size 3840x2160 \
    --show sun,moon,analemma,timezones,sundial "$Images/map-4k.jpg"
Still class-0.png 2026-12-21T12:00:30Z 640 0 sun moon
Still class-1.png 2026-09-23T16:00:30Z 800 1 summer sun grid analemma
Still class-2.png 2026-07-09T14:00:30Z 1024 0 summer sun moon cities sundial
Still class-3.png 2026-03-20T16:20:20Z 1280 1 summer sun moon zones sundial longitude equation

StartDisplay 1280x1024
StartProgram
eval "$(xdotool getactivewindow getwindowgeometry --shell | grep '^HEIGHT=')"
Above=$(((HEIGHT - 22 - 878) / 2))  # pixels between menu bar and board
xdotool key alt+c
AwaitWindow 'Gloamtide - Configure'
xdotool key Tab Tab Tab Tab Tab Tab Tab Down  # to a new date
Dialog 'Gloamtide - Configure' configure.png
Back
xdotool key alt+a Return
Dialog 'Gloamtide - Configure Animation' animation-settings.png
Back
xdotool mousemove --window "$(xdotool getactivewindow)" 119 $((686 + Above)) click 1  # the sundial's button
Dialog 'Sundial Options' sundial-options.png
Back
xdotool key alt+h a
Dialog 'About Gloamtide' about.png
Back
xdotool key alt+h Return
Picture 'Gloamtide Help' help.png
Back
Await IsPainted 'not painted'
mv "$Scratch/shot.png" "$Scratch/start.png"
xdotool key alt+a Down Return
Await HasStepped 'no step'
Keep "$Scratch/shot.png" animation.png
