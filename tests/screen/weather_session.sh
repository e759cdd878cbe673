#!/usr/bin/env bash
# weather_session.sh PROGRAMS: a flight with the window program, as a user has it, with a real mouse and keyboard:
# the cycle is refreshed over HTTP, the cover comes from a report, the sets that match are installed and the
# simulator starts.
# MORVANE_SCREENSHOTS=FOLDER gets a picture of a failure. Exit status 77: a tool is missing here.
set -uo pipefail
programs=$1
here=$(dirname "$0")
. "$here/session.sh"

# Places in the windows -----------------------------------------------------------------------------------

readonly weatherKey="71 479"
readonly inhibitBox="581 367" flyKey="232 513" refreshKey="646 513" reportOption="60 192" messageOk="304 266"
readonly choice="Select Method of obtaining Cloud Cover" report="Enter full METAR String for processing"

# Steps ---------------------------------------------------------------------------------------------------

# The last hour's name, as a download is called in the install.
cycleFile() {
    find "$home/METAR" -iname '[0-2][0-9]Z.txt'
}

# The delivered reports are of other years.
isStored() {
    "$programs/morvane-cli" --home "$home" metar show EHAM 2>/dev/null | grep -q "^Date: .* $(date -u +%Y) "
}

stopServer() {
    kill "$serverId" 2>/dev/null && wait "$serverId" 2>/dev/null
    cleanUp
}

serveCycle() {
    say "A weather server of our own has the sample cycle, and the install names it"
    "$programs/morvane-weather-server" >"$root/server" &
    serverId=$!
    trap stopServer EXIT
    waitFor "the server's address" test -s "$root/server"
    sed -i -e "s|^WeatherServer=.*|WeatherServer=\"$(head -n 1 "$root/server")\"|" \
        -e 's|^WeatherPath=.*|WeatherPath="/weather/"|' "$home/registry.ini"
    # Beside the delivered one for partly cloudy skies.
    "$programs/morvane-cli" --home "$home" ground create 0 0 0 1 0 2>/dev/null || fail "no ground sets"
    "$programs/morvane-cli" --home "$home" sky create "Pro Sky" 0 0 0 1 0 2>/dev/null || fail "no sky sets"
}

dragMainWindow() {
    say "The main window has an outline and is dragged by its background"
    startWindows
    expect "the main window lies on the screen" isOnScreen "$mainWindow"
    expect "the main window has an outline" hasOutline "$mainWindow"
    waitFor "the keyboard in the main window" hasFocus "$mainWindow" # a press before it would be lost
    moveMouse "$mainWindow" 300 78
    dragBy "$mainWindow" 300 78 -60 45
}

refreshCycle() {
    say "The weather page refreshes the cycle over HTTP, after a question"
    click "$mainWindow" $weatherKey
    click "$mainWindow" $inhibitBox
    expect "no cycle file yet" test -z "$(cycleFile)"
    click "$mainWindow" $refreshKey
    waitFor "the question" hasWindow "Check For New METAR?" $messageSize
    press "$(windowOf "Check For New METAR?")" Return
    waitFor "the end of the question" hasNoWindow "Check For New METAR?"
    waitFor "the cycle of this year in the store" isStored
    waitFor "the end of the loading" hasNoWindow "Morvane Information"
    expect "the file is the served one" cmp -s "$here/../../data/metar/02Z.TXT" "$(cycleFile)"
}

# answer WINDOW KEY
answer() {
    waitFor "$1" hasWindow "$1" $messageSize
    press "$(windowOf "$1" $messageSize)" "$2"
    waitFor "the end of $1" hasNoWindow "$1"
}

hasStarted() {
    [ "$(cat "$simulator/fs9.starts.jsonl" 2>/dev/null | wc -l)" = 1 ]
}

# A click that comes while the cycle is being loaded is lost.
openChoice() {
    hasWindow "$choice" $messageSize && return
    click "$mainWindow" $flyKey
    return 1
}

flyByReport() {
    say "The cover of a report that was typed in installs the set that matches; the simulator starts and has room"
    local set
    waitFor "the choice of a way" openChoice
    window=$(windowOf "$choice" $messageSize)
    click "$window" $reportOption
    press "$window" Return
    waitFor "$report" hasWindow "$report" $messageSize
    window=$(windowOf "$report" $messageSize)
    xdotool type --window "$window" "EGLL 241220Z 24015KT 9999 BKN030 18/09 Q1012"
    press "$window" Return
    click "$window" $messageOk
    answer "Install Textures?" Return
    answer "Start Predefined Flight" Escape
    answer "Launch Flight Simulator?" Return
    set=$(setNames)
    expect "the set for the report is installed" test "$(installedSets)" = "$set"
    expect "its files are in the simulator" isInSimulator "$set"
    waitFor "the simulator's start" hasStarted
    waitFor "the main window to go" isHidden "$mainWindow"
}

makeInstall || fail "no install"
serveCycle
startDisplay
dragMainWindow
refreshCycle
flyByReport
say "Done"
