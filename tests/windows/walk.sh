#!/usr/bin/env bash
# walk.sh UNDER_WINE PROGRAM ARGUMENT...: the walk through the Windows program's screens, on a display and in a Wine
# prefix of its own. Exit status 77: a tool is missing here.
set -uo pipefail
here=$(dirname "$0")/../screen
. "$here/session.sh"
export WINEPREFIX=$root/prefix
trap 'wineserver -k; cleanUp' EXIT
startDisplay
"$1" wineboot -u >/dev/null 2>&1 </dev/null
QT_QPA_PLATFORM=windows:fontengine=freetype "$@" >"$root/said" 2>&1 </dev/null
status=$?
cat "$root/said"
exit $status
