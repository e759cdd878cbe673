#!/usr/bin/env bash
# weather_session.sh PROGRAMS: flights with the window program, as a user has them, with a real mouse and keyboard:
# the cycle is refreshed over HTTP, airports are found and chosen, the cover comes from a report and from the
# airports, the sets that match are installed and the simulator starts.
# MORVANE_SCREENSHOTS=FOLDER gets a picture of a failure. Exit status 77: a tool is missing here.
set -uo pipefail
programs=$1
here=$(dirname "$0")
. "$here/session.sh"

# Places in the windows -----------------------------------------------------------------------------------

readonly weatherKey="71 479"
readonly icaoBox="182 167" firstAirport="240 262" destinationOption="435 367" inhibitBox="581 367"
readonly flyKey="232 513" finderKey="508 513" refreshKey="646 513"
readonly reportFilter="475 173" firstReport="240 228"
readonly wideOk="604 464" messageOk="304 266"
readonly finder="Select weather phenomena you require" decoded="Fully Decoded METAR"
readonly choice="Select Method of obtaining Cloud Cover"

# Two of the four ways to a cover: place in the choice, window and size.
readonly airports="132|Values from Wx Control Screen|$wideSize"
readonly report="192|Enter full METAR String for processing|$messageSize"

# Steps ---------------------------------------------------------------------------------------------------

# The last hour's name, as a download is called in the install.
cycleFile() {
    find "$home/METAR" -iname '[0-2][0-9]Z.txt'
}

hasNoCycleFile() {
    [ -z "$(cycleFile)" ]
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
    expect "no cycle file yet" hasNoCycleFile
    click "$mainWindow" $refreshKey
    waitFor "the question" hasWindow "Check For New METAR?" $messageSize
    press "$(windowOf "Check For New METAR?")" Return
    waitFor "the end of the question" hasNoWindow "Check For New METAR?"
    waitFor "the cycle of this year in the store" isStored
    waitFor "the end of the loading" hasNoWindow "Morvane Information"
    expect "the file is the served one" cmp -s "$here/../../data/metar/02Z.TXT" "$(cycleFile)"
}

readReport() {
    waitFor "the report in plain words of $1" hasWindow "$decoded" $wideSize
    press "$(windowOf "$decoded")" Return
    waitFor "the report to go" hasNoWindow "$decoded"
}

# A click that comes while the cycle is being loaded is lost.
openFinder() {
    hasWindow "$finder" $wideSize && return
    click "$mainWindow" $finderKey
    return 1
}

chooseAirports() {
    say "The finder gives the departure, the list of airports the destination; each report is shown in plain words"
    local window
    waitFor "the finder" openFinder
    window=$(windowOf "$finder" $wideSize)
    click "$window" $reportFilter
    xdotool type --window "$window" EHAM
    click "$window" $firstReport
    click "$window" $wideOk
    readReport EHAM
    waitFor "the weather page" isVisible "$mainWindow"
    click "$mainWindow" $destinationOption
    click "$mainWindow" $icaoBox
    xdotool type --window "$mainWindow" KSEA
    click "$mainWindow" $firstAirport
    readReport KSEA
}

# openWay WAY: from the choice to that way's window, which is $way afterwards.
openWay() {
    local window y name size
    IFS='|' read -r y name size <<<"$1"
    click "$mainWindow" $flyKey
    waitFor "the choice of a way" hasWindow "$choice" $messageSize
    window=$(windowOf "$choice" $messageSize)
    click "$window" 60 "$y"
    press "$window" Return
    waitFor "$name" hasWindow "$name" "$size"
    way=$(windowOf "$name" "$size")
}

# answer WINDOW KEY
answer() {
    waitFor "$1" hasWindow "$1" $messageSize
    press "$(windowOf "$1" $messageSize)" "$2"
    waitFor "the end of $1" hasNoWindow "$1"
}

# expectInstall COVER LAUNCH-KEY: all the way behind a cover that was chosen.
expectInstall() {
    answer "Install Textures?" Return
    answer "Start Predefined Flight" Escape
    answer "Launch Flight Simulator?" "$2"
    expect "the set for $1 is installed" test "$(installedSets)" = "$(setFor "$1")"
}

setFor() {
    groundSets | awk -F'|' -v cover="$1" '$2 == cover { print $1 }'
}

flyByReport() {
    say "The cover of a report that was typed in installs the set that matches"
    openWay "$report"
    xdotool type --window "$way" "EGLL 241220Z 24015KT 9999 SCT030 18/09 Q1012"
    press "$way" Return
    click "$way" $messageOk
    expectInstall "Partly Cloudy" Escape
}

hasStarted() {
    [ "$(cat "$simulator/fs9.starts.jsonl" 2>/dev/null | wc -l)" = 1 ]
}

flyBetweenAirports() {
    say "The cover between the airports; the simulator starts and the program makes room for it"
    openWay "$airports"
    expect "the simulator has not started yet" test ! -e "$simulator/fs9.starts.jsonl"
    press "$way" Return
    expectInstall "Mostly Cloudy" Return
    expect "its files are in the simulator" isInSimulator "$(setFor "Mostly Cloudy")"
    waitFor "the simulator's start" hasStarted
    waitFor "the main window to go" isHidden "$mainWindow"
}

makeInstall || fail "no install"
serveCycle
startDisplay
dragMainWindow
refreshCycle
chooseAirports
flyByReport
flyBetweenAirports
say "Done"
