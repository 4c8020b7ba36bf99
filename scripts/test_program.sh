#!/usr/bin/env bash
# Drives the built program, $1, with real keys and mouse on a display of its own. Exit 77: something is missing here.
set -euo pipefail

Program=$(realpath "$1")
source "$(dirname "${BASH_SOURCE[0]}")/virtual_desktop.sh"
Home=$Scratch/home
Fallback='Gloamtide (Config File not found -- default configuration used)'

StartWithoutFiles() {
    Start "$Program"
    AwaitWindow 'File Not Found'
    Press Return
    AwaitWindow "$Fallback"
}

# $1: a text, after which Enter is pressed
Type() {
    xdotool type --delay 20 "$1"
    Press Return
}

export ASAN_OPTIONS=detect_leaks=0  # the system's message bus library leaks where it connects
StartDisplay 1280x1024
mkdir "$Home"
cd "$Home"

# It takes no arguments but for questions.
Expect "$("$Program" home.gtf 2>&1 || echo $?)" $'gloamtide: takes no file; its File menu opens one\n2'
Expect "$("$Program" --help | head -1)" 'Usage: gloamtide'

# It fills the screen but for a frame, opens windows by keys and a menu by mouse, and ends without saving.
StartWithoutFiles
eval "$(xdotool getactivewindow getwindowgeometry --shell | grep -E '^(WIDTH|HEIGHT)=')"
((WIDTH > 1270 && HEIGHT > 950)) || Fail "a window of $WIDTH by $HEIGHT"
Press alt+h a
AwaitWindow 'About Gloamtide'
Press Escape
AwaitWindow "$Fallback"
Press alt+h Return
AwaitWindow 'Gloamtide Help'
Press Escape
AwaitWindow "$Fallback"
xdotool mousemove --window "$(xdotool getactivewindow)" 18 10 click 1  # File
Press Up Return                                                        # Quit, its last item
AwaitWindow 'Save Configuration?'
Press alt+y
AwaitWindow 'Save As'
Press Escape
ExpectEnd
Expect "$(ls -A)" ''

# Closed by its own button it leaves what it fell back to for the next start.
StartWithoutFiles
Press alt+F4
AwaitWindow 'Save Configuration?'
Press alt+n
ExpectEnd
Expect "$(cat Startup.dat)" $'"Config File not found -- default configuration used"\r'
rm Startup.dat

# Place, date and animation set with keys alone are kept, and found again.
StartWithoutFiles
Press alt+c
AwaitWindow 'Gloamtide - Configure'
Press alt+Down
Type Tokyo
Press Tab Tab Tab Tab Tab Tab Tab Down  # to a new date
Press Tab Tab Tab Tab                   # to its year
Type 1999
AwaitWindow "$Fallback"
Press alt+a Return
AwaitWindow 'Gloamtide - Configure Animation'
Press Tab
Type 30  # days
AwaitWindow "$Fallback"
Press alt+f a
AwaitWindow 'Save As'
Type "$Home/tokyo"
AwaitWindow "Gloamtide ($Home/tokyo.gtf)"
Expect "$(tail -c +675 tokyo.gtf | head -c 12)" 'Tokyo, Japan'
Expect "$(Record f8 16 tokyo.gtf)" 35.68333333333333
Expect "$(Record f4 2 tokyo.gtf)" -9
Expect "$(Record f4 12 tokyo.gtf)" 30
Begin=$(Record f8 1 tokyo.gtf)  # days from the present
Years=$(($(date +%Y) - 1999))
((${Begin%.*} < -365 * Years && ${Begin%.*} > -366 * Years - 3)) || Fail "$Begin days are not $Years years"

# The animation goes by such steps until Stop is clicked; saved again it is where it stopped.
Press alt+a Down Return
Saved() {
    rm -f tokyo.gtf
    Press alt+f s
    Await '[[ $(stat -c %s tokyo.gtf 2>/dev/null) == 1008 ]]' 'not saved'
    Record f8 1 tokyo.gtf
}
Await '[[ $(Saved) != "$Begin" ]]' "no step"
xdotool mousemove --window "$(xdotool getactivewindow)" 1209 $((612 + (HEIGHT - 22 - 878) / 2)) click 1
Stopped=$(Saved)
for _ in 1 2 3 4; do Expect "$(Saved)" "$Stopped"; done  # together longer than a step
Press alt+q
ExpectEnd
Expect "$(cat Startup.dat)" "\"$Home/tokyo.gtf\""$'\r'
cp tokyo.gtf kept

# What was changed since is kept or not, as the user answers.
for Answer in alt+n alt+y; do
    Start "$Program"
    AwaitWindow "Gloamtide ($Home/tokyo.gtf)"
    Press alt+s s alt+q  # shows the Sun, quits
    AwaitWindow 'Save Configuration?'
    Press $Answer
    if [[ $Answer == alt+y ]]; then
        AwaitWindow 'Save As'
        Type "$Home/sunny"
    fi
    ExpectEnd
    cmp tokyo.gtf kept
done
Expect "$(Record d2 9 sunny.gtf)" -1
Expect "$(Record f8 1 sunny.gtf)" "$Stopped"
Start "$Program"
AwaitWindow "Gloamtide ($Home/sunny.gtf)"

# The window can be made full screen, is as it was after that and after a dialog, and comes up where it was left.
Geometry() { xdotool getactivewindow getwindowgeometry --shell | grep -E '^(X|Y|WIDTH|HEIGHT)=' | tr '\n' ' '; }
Await '[[ $(Geometry) == *WIDTH=1280* ]]' 'no window'
xdotool mousemove 640 8 click --repeat 2 --delay 60 1  # its title: restored
Await '[[ $(Geometry) != *WIDTH=1280* ]]' 'not restored'
xdotool getactivewindow windowsize 900 640 windowmove 200 150
Await '[[ $(Geometry) == *WIDTH=900\ HEIGHT=640* ]]' 'not resized'
Left=$(Geometry)
Press F11
Await '[[ $(Geometry) == "X=0 Y=0 WIDTH=1280 HEIGHT=1024 " ]]' 'not full screen'
Press Escape
Await '[[ $(Geometry) == "$Left" ]]' 'not as it was before'
Press alt+c
AwaitWindow 'Gloamtide - Configure'
Expect "$(Geometry)" "$Left"
Press Escape
AwaitWindow "Gloamtide ($Home/sunny.gtf)"
Expect "$(Geometry)" "$Left"
Press alt+q
ExpectEnd
Start "$Program"
AwaitWindow "Gloamtide ($Home/sunny.gtf)"
Await '[[ $(Geometry) == "$Left" ]]' 'not where it was left'

# A film is saved beside the running program; one that is not wanted any longer leaves nothing.
Press alt+a f
AwaitWindow 'Gloamtide - Save Film'
Press alt+s
AwaitWindow 'Save As'
Type "$Home/large"
Await '[[ -n $(compgen -G ".gloamtide-*") ]]' 'no film is made'
Press Escape
Await '[[ -z $(compgen -G ".gloamtide-*") ]]' 'the film is made on'
Press alt+z
xdotool type 96
Press Tab
xdotool type 54
Press alt+s
AwaitWindow 'Save As'
Type "$Home/small"
Await '[[ -s small.webp ]]' 'no film'
Expect "$(head -c 16 small.webp | tail -c 8) $(ls -- *.webp)" 'WEBPVP8X small.webp'
Press Escape
AwaitWindow "Gloamtide ($Home/sunny.gtf)"
Press alt+q
ExpectEnd
echo "set, kept, found again"
