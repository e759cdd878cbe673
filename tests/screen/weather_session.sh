#!/usr/bin/env bash
# weather_session.sh PROGRAMS: flights with the window program, as a user has them, with a real mouse and keyboard:
# the cycle is refreshed over HTTP, airports are found and chosen, the cover is chosen in each of the four ways,
# the sets that match are installed and the simulator starts.
# MORVANE_SCREENSHOTS=FOLDER keeps a picture of every step. Exit status 77: a tool is missing here.
set -uo pipefail
programs=$1
here=$(dirname "$0")
. "$here/session.sh"

# Places in the windows -----------------------------------------------------------------------------------

readonly weatherKey="71 479"
readonly icaoBox="182 167" firstAirport="240 262" destinationOption="435 367" inhibitBox="581 367"
readonly flyKey="232 513" finderKey="508 513" refreshKey="646 513"
readonly reportFilter="475 173" firstReport="240 228"
readonly overcastOption="300 152"
readonly wideOk="604 464" wideCancel="659 464" messageOk="304 266"
readonly finder="Select weather phenomena you require" decoded="Fully Decoded METAR"
readonly choice="Select Method of obtaining Cloud Cover"

# The four ways to a cover, in the order of the choice: window and size.
readonly ways=("Import Flight Simulator Flight Plan|$wideSize" "Values from Wx Control Screen|$wideSize"
    "Select Average Cloud Cover|$messageSize" "Enter full METAR String for processing|$messageSize")
readonly plan=0 airports=1 option=2 report=3

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
    # A way with a plan needs one; sets for three covers, and the delivered one for partly cloudy skies.
    cp "$here/../../data/plans/c02_own_form_regions_airways.pln" "$simulator/Flights"
    "$programs/morvane-cli" --home "$home" ground create 1 0 0 1 1 2>/dev/null || fail "no ground sets"
    "$programs/morvane-cli" --home "$home" sky create "Pro Sky,Overcast" 1 0 0 1 1 2>/dev/null || fail "no sky sets"
}

refreshCycle() {
    say "The weather page refreshes the cycle over HTTP, after a question"
    startWindows
    click "$mainWindow" $weatherKey
    click "$mainWindow" $inhibitBox
    expect "no cycle file yet" hasNoCycleFile
    click "$mainWindow" $refreshKey
    waitFor "the question" hasWindow "Check For New METAR?" $messageSize
    takePicture 1-refresh-question
    press "$(windowOf "Check For New METAR?")" Return
    waitFor "the end of the question" hasNoWindow "Check For New METAR?"
    waitFor "the cycle of this year in the store" isStored
    waitFor "the end of the loading" hasNoWindow "Morvane Information"
    expect "the file is the served one" cmp -s "$here/../../data/metar/02Z.TXT" "$(cycleFile)"
    takePicture 1-refreshed
}

readReport() {
    waitFor "the report in plain words of $1" hasWindow "$decoded" $wideSize
    takePicture "2-decoded-$1"
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
    takePicture 2-finder
    click "$window" $wideOk
    readReport EHAM
    waitFor "the weather page" isVisible "$mainWindow"
    click "$mainWindow" $destinationOption
    click "$mainWindow" $icaoBox
    xdotool type --window "$mainWindow" KSEA
    click "$mainWindow" $firstAirport
    readReport KSEA
    takePicture 2-airports
}

windowOfWay() {
    windowOf "${ways[$1]%|*}" "${ways[$1]#*|}"
}

hasWay() {
    windowOfWay "$1" >/dev/null
}

# openWay N: from the choice to the N-th way's window, which is $way afterwards.
openWay() {
    local window
    waitFor "the choice of a way" hasWindow "$choice" $messageSize
    window=$(windowOf "$choice" $messageSize)
    click "$window" 60 $((102 + 30 * $1))
    press "$window" Return
    waitFor "way $1" hasWay "$1"
    way=$(windowOfWay "$1")
}

cancelEachWay() {
    say "A cancelled way leads back to the choice; a cancelled choice to the weather page, with nothing installed"
    local number
    click "$mainWindow" $flyKey
    for number in 0 1 2 3; do
        openWay $number
        expect "the main window is away" isHidden "$mainWindow"
        takePicture "3-way-$number"
        press "$way" Escape
    done
    waitFor "the choice of a way" hasWindow "$choice" $messageSize
    takePicture 3-choice
    press "$(windowOf "$choice" $messageSize)" Escape
    waitFor "the weather page" isVisible "$mainWindow"
    expect "no question follows" hasNoWindow "Install Textures?"
    expect "no set is installed" test -z "$(installedSets)"
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

flyInEachWay() {
    say "The cover of an option, of a plan and of a report that was typed in: each installs the set that matches"
    click "$mainWindow" $flyKey
    openWay $option
    click "$way" $overcastOption
    press "$way" Return
    expectInstall "Overcast" Escape
    click "$mainWindow" $flyKey
    openWay $plan
    press "$way" Return
    takePicture 4-plan
    click "$way" $wideOk
    expectInstall "Sky Clear" Escape
    click "$mainWindow" $flyKey
    openWay $report
    xdotool type --window "$way" "EGLL 241220Z 24015KT 9999 SCT030 18/09 Q1012"
    press "$way" Return
    takePicture 4-report
    click "$way" $messageOk
    expectInstall "Partly Cloudy" Escape
}

starts() {
    cat "$simulator/fs9.starts.jsonl" 2>/dev/null | wc -l
}

hasStarted() {
    [ "$(starts)" = 1 ]
}

flyBetweenAirports() {
    say "The cover between the airports; the simulator starts and the program makes room for it"
    click "$mainWindow" $flyKey
    openWay $airports
    expect "the simulator has not started yet" test "$(starts)" = 0
    press "$way" Return
    expectInstall "Mostly Cloudy" Return
    waitFor "the simulator's start" hasStarted
    waitFor "the main window to go" isHidden "$mainWindow"
    takePicture 5-started
}

makeInstall || fail "no install"
serveCycle
startDisplay
refreshCycle
chooseAirports
cancelEachWay
flyInEachWay
flyBetweenAirports
say "Done"
