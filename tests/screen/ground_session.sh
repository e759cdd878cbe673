#!/usr/bin/env bash
# ground_session.sh PROGRAMS: a whole session with the window program from start to exit, as a user has it, with
# a real mouse and keyboard: a run of ground sets is made, a set is installed, a second run is cancelled.
# MORVANE_SCREENSHOTS=FOLDER keeps a picture of every step. Exit status 77: a tool is missing here.
set -uo pipefail
programs=$1
here=$(dirname "$0")
. "$here/session.sh"

# Places in the windows -----------------------------------------------------------------------------------

readonly headerPlace="300 78" cutCorner="3 3" inside="440 300"
readonly groundKey="71 239" backKey="71 159"
readonly createKey="233 512" installKey="509 512"
readonly cancelProcessKey="323 264" cancelKey="359 264"

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
    takePicture 1-start
}

dragMainWindow() {
    say "The main window is dragged by its background"
    dragBy "$mainWindow" $headerPlace -60 45
    takePicture 2-dragged
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
    takePicture 3-ground-window
}

# enterCounts COUNT...: into the boxes, by keyboard alone.
enterCounts() {
    local count counts
    click "$groundWindow" $createKey
    waitFor "the counts' boxes" hasWindow "Select Texture Quantities" $messageSize
    counts=$(windowOf "Select Texture Quantities" $messageSize)
    for count in "$@"; do
        press "$counts" "$count" Tab
    done
    takePicture "${step}-counts"
    press "$counts" shift+Tab Return
    waitFor "progress" hasWindow "Creating Ground Texture Sets" $messageSize
    progressWindow=$(windowOf "Creating Ground Texture Sets" $messageSize)
}

# Between two sets the progress is away for a moment, in which a click would miss it.
clickCancelProcess() {
    hasWindow "Cancel Operation?" && return
    click "$progressWindow" $cancelProcessKey
    return 1
}

askForCancel() {
    waitFor "the question whether to cancel" clickCancelProcess
    question=$(windowOf "Cancel Operation?")
    takePicture "${step}-cancel-question"
}

createSets() {
    say "Counts are typed and five sets are made; a click beside the progress and a withdrawn cancel change nothing"
    step=4
    enterCounts 2 0 1 0 2
    # All other windows are away while sets are made; where they stood there is nothing to hit.
    click "$groundWindow" $backKey
    askForCancel
    expect "the main window is away" isHidden "$mainWindow"
    expect "the ground window is away" isHidden "$groundWindow"
    press "$question" Escape
    waitFor "the question to go" hasNoWindow "Cancel Operation?"
    waitFor "the report" hasWindow "Average minutes per texture set" $messageSize
    takePicture 4-report
    press "$(windowOf "Average minutes per texture set")" Return
    waitFor "the report to go" hasNoWindow "Average minutes per texture set"
    waitFor "the ground window" isVisible "$groundWindow"
    expect "two sets for clear skies" test "$(setsWithCover "Sky Clear")" = 2
    expect "one set for partly cloudy skies" test "$(setsWithCover "Partly Cloudy")" = 1
    expect "two sets for overcast skies" test "$(setsWithCover "Overcast")" = 2
    expect "no other set" test "$(setNames | wc -l)" = 5
    expect "all files of all sets" areAllWhole
}

installSet() {
    say "The list's last set is installed in the simulator"
    local name before question
    name=$(setNames | tail -n 1)
    before=$(simulatorSums)
    takePicture 5-list
    click "$groundWindow" $(rowPlace "$(groundSets | wc -l)")
    click "$groundWindow" $installKey
    waitFor "the question for a matching sky" hasWindow "Install Matching Ground Texture Set?" $messageSize
    takePicture 5-install-question
    question=$(windowOf "Install Matching Ground Texture Set?")
    press "$question" Escape
    waitFor "the set in the simulator" isInSimulator "$name"
    waitFor "the end of the installing" hasNoWindow "Morvane Information"
    waitFor "the offer to start the simulator" hasWindow "Launch Flight Simulator?" $messageSize
    press "$(windowOf "Launch Flight Simulator?")" Escape
    waitFor "the end of the offer" hasNoWindow "Launch Flight Simulator?"
    expect "it says so of this set alone" test "$(installedSets)" = "$name"
    expect "the simulator's files are others" test "$(simulatorSums)" != "$before"
    expect "no file of the simulator is gone and nothing strange has come" simulatorHolds "$before" "$name"
    takePicture 5-installed
}

cancelSets() {
    say "A second run is cancelled and leaves no unfinished set"
    local -i before
    before=$(setNames | wc -l)
    step=6
    enterCounts 9 0 0 0 0
    askForCancel
    press "$question" Return
    waitFor "the question to go" hasNoWindow "Cancel Operation?"
    waitFor "the ground window" isVisible "$groundWindow"
    expect "the progress is away" isHidden "$progressWindow"
    expect "every set in the list is whole" areAllWhole
    expect "fewer sets than were asked for" test "$(setNames | wc -l)" -lt $((before + 9))
    expect "the sets' folders are those of the store" doFoldersMatchStore
    expect "no intermediate file remains" test -z "$(intermediateFiles)"
    takePicture 6-cancelled
}

closeProgram() {
    say "The window manager closes the window; the exit's question is answered with no"
    local name question status
    name=$(installedSets)
    press "$groundWindow" alt+F4
    waitFor "the question on exit" hasWindow "Reset MV Textures?" $messageSize
    question=$(windowOf "Reset MV Textures?")
    takePicture 7-exit-question
    click "$question" $cancelKey
    waitFor "the end of the program" hasEnded "$programId"
    wait "$programId"
    status=$?
    programId=
    expect "exit status 0 ($status)" test $status = 0
    expect "the set is still installed" test "$(installedSets)" = "$name"
    expect "the set is still in the simulator" isInSimulator "$name"
    expect "no intermediate file remains" test -z "$(intermediateFiles)"
    diff <(echo "$filesBefore") <(otherFiles) || fail "there are stray files, or some are gone"
}

makeInstall || fail "no install"
startDisplay
startProgram
dragMainWindow
openGroundWindow
createSets
installSet
cancelSets
closeProgram
say "Done"
