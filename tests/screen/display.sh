# A display and a window manager of our own, the program's windows on it, and a mouse and a keyboard for them.
# Sourced. Needs $root, a folder that goes with the run. Window positions are pixels from the window's corner.

readonly patience=120 # seconds that anything may take; far more than it needs, for machines with much to do
programId=

say() {
    echo "-- $*"
}

fail() {
    echo "FAILED: $*; windows: $(windowNames)" >&2
    [ -z "${MORVANE_SCREENSHOTS:-}" ] || import -window root "$MORVANE_SCREENSHOTS/failed.png"
    exit 1
}

windowNames() {
    local id
    for id in $(visibleWindows); do
        echo -n "'$(xdotool getwindowname "$id" 2>/dev/null)' "
    done
}

hasEnded() {
    ! kill -0 "$1" 2>/dev/null
}

# expectGoodHealth WHAT: that the program may still come to it.
expectGoodHealth() {
    [ -n "$programId" ] || return 0
    hasEnded "$programId" && fail "the program ended before: $1"
    xdotool search --onlyvisible --name '^Morvane Error' >/dev/null 2>&1 && fail "an error shows before: $1"
    return 0
}

# waitFor WHAT COMMAND...: until the command succeeds.
waitFor() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        expectGoodHealth "$what"
        [ "$SECONDS" -lt "$end" ] || fail "waited $patience s in vain for: $what"
        sleep 0.05
    done
}

# expect WHAT COMMAND...: that the command succeeds now.
expect() {
    local what=$1
    shift
    "$@" || fail "it is not so: $what"
}

hasWindowManager() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

startDisplay() {
    # The server goes with this shell even where that is killed, and takes its clients along.
    setpriv --pdeathsig KILL Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$root/display" \
        2>"$root/Xvfb.log" &
    displayId=$!
    waitFor "a display" test -s "$root/display"
    DISPLAY=:$(cat "$root/display")
    export DISPLAY
    waitFor "a window manager" hasStartedManager
}

# One that ended, as it does now and then where many start at once, is started anew.
hasStartedManager() {
    hasWindowManager && return 0
    if [ -z "${managerId:-}" ] || hasEnded "$managerId"; then
        openbox --sm-disable >>"$root/openbox.log" 2>&1 &
        managerId=$!
    fi
    return 1
}

stopDisplay() {
    local id
    for id in $programId ${managerId:-} ${displayId:-}; do
        kill "$id" 2>/dev/null && wait "$id" 2>/dev/null
    done
    return 0
}

visibleWindows() {
    xdotool search --onlyvisible --pid "$programId" 2>/dev/null
}

# windowOf NAME WIDTHxHEIGHT: its id, the newest first; nothing and a failure while there is none.
windowOf() {
    local id
    for id in $(visibleWindows | sort -rn); do
        [ "$(xdotool getwindowname "$id" 2>/dev/null)" = "$1" ] || continue
        [ -z "${2:-}" ] || [ "$(sizeOf "$id")" = "$2" ] || continue
        echo "$id"
        return 0
    done
    return 1
}

hasWindow() {
    windowOf "$@" >/dev/null
}

hasNoWindow() {
    ! hasWindow "$@"
}

isVisible() {
    visibleWindows | grep -qx "$1"
}

isHidden() {
    ! isVisible "$1"
}

# geometryOf ID: "X Y WIDTH HEIGHT" on the screen.
geometryOf() {
    xwininfo -id "$1" 2>/dev/null | awk '/Absolute upper-left/ || /Width:/ || /Height:/ { printf "%s ", $NF }'
}

sizeOf() {
    geometryOf "$1" | awk '{ print $3 "x" $4 }'
}

isAt() {
    [ "$(geometryOf "$1" | cut -d' ' -f1,2)" = "$2 $3" ]
}

isOnScreen() {
    geometryOf "$1" | awk '{ exit !($1 >= 0 && $2 >= 0 && $1 + $3 <= 1280 && $2 + $4 <= 900) }'
}

hasOutline() {
    xwininfo -shape -id "$1" | grep -q 'Window shape extents'
}

hasFocus() {
    [ "$(xdotool getwindowfocus 2>/dev/null)" = "$1" ]
}

moveMouse() {
    xdotool mousemove --window "$1" "$2" "$3"
}

click() {
    xdotool mousemove --window "$1" "$2" "$3" click 1
}

# comesToKeyboard ID UNTIL: a busy window manager may leave it elsewhere; behind that second it is asked for, as by a
# click on the taskbar.
comesToKeyboard() {
    hasFocus "$1" && return
    [ "$SECONDS" -lt "$2" ] || xdotool windowactivate "$1"
    return 1
}

# press ID KEY...: once the window has the keyboard.
press() {
    waitFor "the keyboard in window $1" comesToKeyboard "$1" $((SECONDS + patience / 2))
    shift
    xdotool key "$@"
}

# dragBy ID X Y RIGHT DOWN: grabs the window at X, Y, as often as a hand would: a window manager that is not done
# with the window's coming up ignores a grab.
dragBy() {
    local left top target=()
    read -r left top _ <<<"$(geometryOf "$1")"
    target=($((left + $4)) $((top + $5)))
    waitFor "the window to follow the mouse" comesAlong "$1" "$2" "$3" "${target[@]}"
    waitFor "the window where it was dropped" isAt "$1" "${target[@]}"
}

# comesAlong ID X Y LEFT TOP: grabs the window at X, Y and drags it to LEFT, TOP. The window manager takes over some
# time after the press, so the mouse goes on moving until the window has come along, or for some seconds in vain.
comesAlong() {
    local end=$((SECONDS + 5)) isThere=1
    xdotool mousemove --window "$1" "$2" "$3" mousedown 1
    until followsMouse "$1" $(($4 + $2)) $(($5 + $3)) "$4" "$5"; do
        [ "$SECONDS" -lt "$end" ] || { isThere=0 && break; }
        sleep 0.05
    done
    xdotool mouseup 1
    [ "$isThere" = 1 ]
}

followsMouse() {
    xdotool mousemove $(($2 - 1)) "$3" mousemove "$2" "$3"
    isAt "$1" "$4" "$5"
}
