#!/usr/bin/env bash
# scale_session.sh PROGRAMS: the window program at a scale at which its window would be larger than the screen.
# MORVANE_SCREENSHOTS=FOLDER gets a picture of a failure. Exit status 77: a tool is missing here.
set -uo pipefail
programs=$1
here=$(dirname "$0")
. "$here/session.sh"

startDisplay
makeInstall
say "twice its size it does not fit into 1280 x 900, 1.45 times it does"
QT_SCALE_FACTOR=2 MORVANE_HOME="$home" QT_QPA_PLATFORM=xcb "$programs/morvane" >"$root/morvane.log" 2>&1 &
programId=$!
waitFor "the main window at 1.45" hasWindow Morvane 1276x841
expect "all of it on the screen" isOnScreen "$(windowOf Morvane 1276x841)"
