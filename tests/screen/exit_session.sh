#!/usr/bin/env bash
# exit_session.sh PROGRAMS calm|busy: every road out of the window program, from outside: whatever stands on the screen and
# however it is left, the process ends with status 0, its store is closed and its locks are gone. And the roads in that
# have a process of their own: a cover word, another scale, the first start, a second window. In two parts of half a minute.
# MORVANE_SCREENSHOTS=FOLDER gets a picture of a failure. Exit status 77: a tool is missing here.
set -uo pipefail
programs=$1 part=$2
here=$(dirname "$0")
. "$here/session.sh"

readonly exitKey="846 60" hostKeys=("71 239" "71 319" "71 399") weatherKey="71 479" baseInstallKey="815 239"
readonly createKey="233 512" refreshKey="646 513" backupKey="371 513"
readonly reset="Reset MV Textures?" leave="Exit Morvane?" wait="ASv6 Processing Wx Data" make="Creating Ground Texture Sets"

# What stands on the screen ------------------------------------------------------------------------------
# Each leaves the number of the window in front in $front.

atMain() {
    startWindows
    front=$mainWindow
}

atGround() { atHost 0; }
atSky() { atHost 1; }
atNight() { atHost 2; }
atHost() {
    startWindows
    click "$mainWindow" ${hostKeys[$1]}
    waitFor "the main window to go" isHidden "$mainWindow"
    waitFor "a window for the sets" hasWindow Morvane $mainSize
    front=$(windowOf Morvane $mainSize)
}

# inFront NAME: waits for the message or dialog of that name.
inFront() {
    waitFor "$1" hasWindow "$1"
    front=$(windowOf "$1")
}

atDialog() {
    atGround
    hostWindow=$front
    click "$front" $createKey
    inFront "Select Texture Quantities"
}

atMessage() {
    atMain
    click "$mainWindow" $baseInstallKey
    click "$mainWindow" $backupKey
    inFront "Create New Backup?"
}

# So many sets that they are asked about: it runs as long as this needs.
atJob() {
    atDialog
    press "$front" 9 9 Tab Tab Tab Tab Tab Return
    inFront "Morvane Information"
    press "$front" Return
    inFront "$make"
}

atWait() {
    atMain
    click "$mainWindow" $weatherKey
    click "$mainWindow" $refreshKey
    inFront "Check For New METAR?"
    press "$front" Return
    inFront "$wait"
}

atReset() {
    atMain
    click "$mainWindow" $exitKey
    inFront "$reset"
}

# The program does not know where the simulator is.
atStart() {
    sed -i.kept 's|^EXE Path=.*|EXE Path="/nowhere"|' "$home/registry.ini"
    launch
    inFront Morvane
    mv "$home/registry.ini.kept" "$home/registry.ini"
}

atFirstStart() {
    sed -i 's|^FirstTime=.*|FirstTime="True"|' "$home/registry.ini"
    launch
    inFront "Creating Backup"
}

# Twice its size the window would be larger than the screen, 1.45 times it is not.
atScale() {
    QT_SCALE_FACTOR=2 launch
    waitFor "the main window at 1.45" hasWindow Morvane 1276x841
    expect "all of it on the screen" isOnScreen "$(windowOf Morvane 1276x841)"
}

atCoverWord() {
    launch OVC
    inFront "Install Textures?"
}

launch() {
    MORVANE_HOME="$home" QT_QPA_PLATFORM=xcb "$programs/morvane" "$@" >"$root/morvane.log" 2>&1 &
    programId=$!
}

# How it is left ------------------------------------------------------------------------------------------

byMouse() { click "$front" $exitKey; }
bySpace() { press "$front" shift+Tab shift+Tab space; } # the exit key is the last but one
byManager() { press "$front" alt+F4; }
byMainWindow() { "$programs/close_window" "$mainWindow"; }
byHostWindow() { "$programs/close_window" "$hostWindow"; }
byTerm() { kill -TERM "$programId"; }
byHangUp() { kill -HUP "$programId"; }
byInterrupt() { kill -INT "$programId"; }
byItself() { # behind its three questions, and a message, as there is no sky to match
    press "$front" Return
    inFront "No Activated Sky Texture Sets"
    press "$front" Return
    inFront "Start Predefined Flight"
    press "$front" Escape
    inFront "Launch Flight Simulator?"
    press "$front" Escape
}
# What is asked is withdrawn once, and the program goes on.
byManagerAndQuestion() {
    local before=$front
    byManager
    inFront "$leave"
    press "$front" Escape
    waitFor "the question to go" hasNoWindow "$leave"
    waitFor "what ran before" isVisible "$before"
    front=$before
    byManager
    inFront "$leave"
    press "$front" Return
}

# What comes then -----------------------------------------------------------------------------------------

asked() { # ANSWER SET-THEN
    inFront "$reset"
    press "$front" "$1"
}

# expectEnd SECONDS SET: and what it leaves.
expectEnd() {
    local end=$(($(date +%s%N) + $1 * 1000000000)) status
    until hasEnded "$programId"; do
        [ "$(date +%s%N)" -lt $end ] || fail "$situation $way: it runs on after $1 s"
        sleep 0.02
    done
    wait "$programId"
    status=$?
    programId=
    [ $status = 0 ] || fail "$situation $way: status $status, $(cat "$root/morvane.log")"
    expect "$situation $way: the store is closed" test ! -e "$home/Morvane.mdb-wal"
    expect "$situation $way: the locks are gone" test -z "$(find "$home" -name '*.lock')"
    expect "$situation $way: $2 is the installed set" test "$(installedSets)" = "$2"
    expect "$situation $way: the sets' folders are those of the store" doFoldersMatchStore
}

# situation, way, whether the question about the sets comes: its answer's key, "-" when it must not come
readonly patient=30 session=3
calm=(
    "atMain byMouse Escape"      "atMain bySpace Escape"      "atMain byManager Escape"
    "atGround byMouse Escape"    "atSky byMouse Escape"       "atNight byMouse Escape"     "atSky byManager Escape"
    "atMain byTerm -"            "atGround byHangUp -"        "atMain byInterrupt -"
    "atMessage byMainWindow Escape" "atMessage byTerm -"
    "atDialog byHostWindow Escape"  "atDialog byTerm -"   "atScale byTerm -"
)
busy=(
    "atJob byManagerAndQuestion Escape" "atJob byTerm -"
    "atWait byMainWindow Escape" "atWait byManagerAndQuestion Escape" "atWait byTerm -"
    "atReset byManager -"        "atReset byTerm -"
    "atStart byTerm -"           "atFirstStart byTerm -"
    "atCoverWord byItself -"     "atCoverWord byTerm -"
)

makeExits() {
    makeInstall || fail "no install"
    # A job is to be left in its middle, not waited for; a start is to be short.
    find "$home/Resources/GENERIC WORLD" "$home/Resources/UT EUROPE" -name '*.bmp' -not -name '029*' -delete
    mkdir "$root/ASv6"
    printf 'MZ\xbd\x04\xef\xfe\0\0\1\0\0\0\6\0\0\0\x01\x14' >"$root/ASv6/ASv6.exe"
    printf '[HKEY_LOCAL_MACHINE\\Software\\HiFi\\Asv6]\r\nInstall_Path="%s"\r\nLocal=dword:00000001\r\n' "$root/ASv6" \
        >>"$home/registry.ini"
    sed -i 's|^IsWideClient=|SimulatorRunner="true"\r\n&|' "$home/registry.ini"
    "$programs/morvane-cli" --home "$home" ground create 0 0 0 0 1 2>/dev/null || fail "no ground set"
    weatherSet=$(setNames)
    "$programs/morvane-cli" --home "$home" --answer no ground install "$weatherSet" 2>/dev/null || fail "no install"
}

walkRows() {
    local row answer limit
    for row in "$@"; do
        read -r situation way answer <<<"$row"
        say "$situation $way"
        $situation
        $way
        limit=$session
        if [ "$answer" != - ]; then
            asked "$answer"
            limit=$patient
        fi
        expectEnd $limit "$weatherSet"
    done
}

secondWindow() {
    say "A second window brings the first to the front and ends"
    atMain
    xdotool windowminimize "$mainWindow"
    waitFor "the window to be away" isHidden "$mainWindow"
    MORVANE_HOME="$home" QT_QPA_PLATFORM=xcb "$programs/morvane" || fail "the second window ends with $?"
    waitFor "the first window" isVisible "$mainWindow"
    waitFor "the keyboard in it" hasFocus "$mainWindow"
}

endFirstStart() {
    say "The first start of all draws its images; the end of the session leaves nothing of them"
    unset MORVANE_HOME
    QT_QPA_PLATFORM=xcb "$programs/morvane" >"$root/morvane.log" 2>&1 &
    programId=$!
    inFront Morvane
    situation=atDrawing way=byTerm
    byTerm
    expectEnd $session Default
    expect "nothing is left of it" test -z "$(find "$HOME" -name 'Morvane*')"
}

leaveByYes() {
    say "Yes puts the sets back before the program ends"
    situation=atReset way=byYes
    click "$mainWindow" $exitKey
    asked Return
    expectEnd $patient Default
}

firstStart() {
    say "The first start, to its main window and out"
    situation=atFirstStart way=byMouse
    atFirstStart
    press "$front" Return
    waitFor "the main window" hasWindow Morvane $mainSize
    front=$(windowOf Morvane $mainSize)
    waitFor "the splash to go" hasNoWindow Morvane $wideSize
    inFront "Get ready to fly"
    press "$front" Escape
    waitFor "what a first flight needs to be put off" hasNoWindow "Get ready to fly"
    front=$(windowOf Morvane $mainSize)
    byMouse
    expectEnd $patient Default
}

calmPart() {
    walkRows "${calm[@]}"
    secondWindow
    leaveByYes
    firstStart
    endFirstStart
}

busyPart() {
    walkRows "${busy[@]}"
}

makeExits
startDisplay
"${part}Part"
say "Done"
