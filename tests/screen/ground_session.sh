#!/usr/bin/env bash
# ground_session.sh PROGRAMS: a whole session with the window program from start to exit, as a user has it, with
# a real mouse and keyboard: a run of ground sets is made and a set is installed.
# MORVANE_SCREENSHOTS=FOLDER gets a picture of a failure. Exit status 77: a tool is missing here.
set -uo pipefail
programs=$1
here=$(dirname "$0")
. "$here/session.sh"

# Places in the windows -----------------------------------------------------------------------------------

readonly headerPlace="300 78" cutCorner="3 3" inside="440 300"
readonly groundKey="71 239" backKey="71 159" createKey="233 512" installKey="509 512" cancelKey="359 264"

# rowPlace N: of the list's row, counted from 1.
rowPlace() {
    echo "240 $((238 + 20 * ($1 - 1)))"
}

# Steps ---------------------------------------------------------------------------------------------------

startProgram() {
    say "The program starts with its main window, which has an outline and lies on the screen"
    filesBefore=$(otherFiles)
    startWindows
    expect "the main window is alone" hasNoWindow Morvane $messageSize
    expect "the main window lies on the screen" isOnScreen "$mainWindow"
    expect "the main window has an outline" hasOutline "$mainWindow"
    moveMouse "$mainWindow" $cutCorner
    expect "a click in its cut corner goes past it" isMouseOverNothing
    moveMouse "$mainWindow" $inside
    expect "a click inside reaches it" isMouseOverWindow
}

dragMainWindow() {
    say "The main window is dragged by its background"
    dragBy "$mainWindow" $headerPlace -60 45
}

openGroundWindow() {
    say "A key opens the ground window in the main window's place; another tells its meaning"
    local left top
    read -r left top _ <<<"$(geometryOf "$mainWindow")"
    click "$mainWindow" $groundKey
    waitFor "the main window to go" isHidden "$mainWindow"
    waitFor "the ground window" hasWindow Morvane $mainSize
    groundWindow=$(windowOf Morvane $mainSize)
    waitFor "the ground window in the place of the main one" isAt "$groundWindow" "$left" "$top"
    moveMouse "$groundWindow" $createKey
    waitFor "a tip" hasTip
}

createSets() {
    say "Counts are typed and three sets are made; a click beside the progress changes nothing"
    local count counts
    click "$groundWindow" $createKey
    waitFor "the counts' boxes" hasWindow "Select Texture Quantities" $messageSize
    counts=$(windowOf "Select Texture Quantities" $messageSize)
    for count in 1 0 0 0 2; do
        press "$counts" "$count" Tab
    done
    press "$counts" shift+Tab Return
    waitFor "progress" hasWindow "Creating Ground Texture Sets" $messageSize
    # All other windows are away while sets are made; where they stood there is nothing to hit.
    click "$groundWindow" $backKey
    expect "the ground window is away" isHidden "$groundWindow"
    waitFor "the report" hasWindow "Average minutes per texture set" $messageSize
    press "$(windowOf "Average minutes per texture set")" Return
    waitFor "the ground window" isVisible "$groundWindow"
    expect "one set for clear skies" test "$(setsWithCover "Sky Clear")" = 1
    expect "two sets for overcast skies" test "$(setsWithCover "Overcast")" = 2
    expect "all files of all sets" areAllWhole
}

installSet() {
    say "The list's last set is installed in the simulator"
    name=$(setNames | tail -n 1)
    click "$groundWindow" $(rowPlace "$(groundSets | wc -l)")
    click "$groundWindow" $installKey
    waitFor "the question for a matching sky" hasWindow "Install Matching Ground Texture Set?" $messageSize
    press "$(windowOf "Install Matching Ground Texture Set?")" Escape
    waitFor "the offer to start the simulator" hasWindow "Launch Flight Simulator?" $messageSize
    press "$(windowOf "Launch Flight Simulator?")" Escape
    waitFor "the end of the offer" hasNoWindow "Launch Flight Simulator?"
    expect "the set in the simulator" isInSimulator "$name"
    expect "it says so of this set alone" test "$(installedSets)" = "$name"
}

closeProgram() {
    say "The window manager closes the window; the exit's question is answered with no"
    local status
    press "$groundWindow" alt+F4
    waitFor "the question on exit" hasWindow "Reset MV Textures?" $messageSize
    click "$(windowOf "Reset MV Textures?")" $cancelKey
    waitFor "the end of the program" hasEnded "$programId"
    wait "$programId"
    status=$?
    programId=
    expect "exit status 0 ($status)" test $status = 0
    expect "the set is still in the simulator" isInSimulator "$name"
    diff <(echo "$filesBefore") <(otherFiles) || fail "there are stray files, or some are gone"
}

makeInstall || fail "no install"
startDisplay
startProgram
dragMainWindow
openGroundWindow
createSets
installSet
closeProgram
say "Done"
