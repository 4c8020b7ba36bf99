# For scripts to source: a display of its own with a window manager, and what drives the windows on it. All that is
# started ends with the script, and the folder $Scratch goes. Exit 77: something is missing here.

for Tool in Xvfb openbox xdotool; do
    command -v "$Tool" >/dev/null || { echo "needs $Tool"; exit 77; }
done

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

# $1: a command that shall succeed soon, $2: what failed if it does not
Await() {
    local Deadline=$((SECONDS + 30))
    until eval "$1"; do
        ((SECONDS < Deadline)) || Fail "$2"
        sleep 0.1
    done
}

# $1: the title of the window that gets the keyboard, or how it begins
AwaitWindow() { Await "[[ \$(xdotool getactivewindow getwindowname 2>/dev/null) == ${1@Q}* ]]" "no window $1"; }

# $1: the size of its screen, such as 1280x1024
StartDisplay() {
    rm -f "$Scratch/display"  # of an earlier one
    # Without -noreset the server starts anew, and throws its clients out, whenever xdotool was its only one.
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$Scratch/display" 2>/dev/null &
    Jobs+=($!)
    Await "[[ -s '$Scratch/display' ]]" "no display"
    DISPLAY=:$(cat "$Scratch/display")
    export DISPLAY QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME=$Scratch/config  # nothing of the user's own
    openbox --sm-disable >/dev/null 2>&1 &
    Jobs+=($!)
    # Windows that come before the manager stands would never get the keyboard.
    Await 'xdotool get_num_desktops >/dev/null 2>&1' "no window manager"
}

# $1: a program; it has to end well before the script does
Start() {
    "$1" &
    Process=$!
    Jobs+=("$Process")
}

ExpectEnd() { wait "$Process" || Fail "the program did not end well"; }

Press() { xdotool key --delay 60 "$@"; }

# $1: what it is, $2: what it has to be
Expect() { [[ $1 == "$2" ]] || Fail "$1 instead of $2"; }

# $1: a number's format for od and its bytes, $2: its record in the configuration file $3, counted from 1
Record() { od -An -t "$1" -j $((48 * ($2 - 1))) -N "${1: -1}" "$3" | tr -d ' '; }
