#!/usr/bin/env bash
# on_display.sh PROGRAM ARGUMENT...: runs the program on a display and a window manager of its own. Its exit status;
# 77: a tool is missing here.
set -uo pipefail
here=$(dirname "$0")
. "$here/session.sh"
startDisplay
QT_QPA_PLATFORM=xcb "$@"
