# What every session with the windows begins with: the tools, a folder of its own, surroundings without anything of
# the user's, and the start of the program. Sourced. Needs $programs and $here, the folder of these scripts. Exit
# status 77: a tool is missing here.

readonly skipped=77
for tool in Xvfb openbox xdotool xwininfo xprop setpriv; do
    if ! command -v "$tool" >/dev/null; then
        echo "Skipped: this test of the windows needs $tool, which is not installed (see tools/packages.sh)."
        exit $skipped
    fi
done

root=$(mktemp -d "${TMPDIR:-/tmp}/Mörvane am Schirm XXXXXX")
. "$here/display.sh"
. "$here/install.sh"
cleanUp() {
    stopDisplay
    rm -rf "$root"
}
trap cleanUp EXIT
trap 'exit 1' INT TERM

# Nothing of the user's own settings and no scale of the display reaches the programs. Leaks are for the tests
# without a display to find: here the display's own libraries would be counted in.
unset QT_QPA_PLATFORM QT_SCREEN_SCALE_FACTORS QT_STYLE_OVERRIDE QT_PLUGIN_PATH
export LC_ALL=C.UTF-8 QT_SCALE_FACTOR=1 QT_FONT_DPI=96 HOME="$root/user" XDG_RUNTIME_DIR="$root/run"
export XDG_CONFIG_HOME="$HOME" XDG_CACHE_HOME="$HOME" XDG_DATA_HOME="$HOME" WINEPREFIX="$HOME/.wine"
export ASAN_OPTIONS="detect_leaks=0:${ASAN_OPTIONS:-}"
mkdir -m 700 "$root/user" "$root/run"

readonly mainSize=880x580 messageSize=400x300 wideSize=700x500

# Starts the program on the install; $mainWindow is its main window.
startWindows() {
    MORVANE_HOME="$home" QT_QPA_PLATFORM=xcb "$programs/morvane" >"$root/morvane.log" 2>&1 &
    programId=$!
    waitFor "the main window" hasWindow Morvane $mainSize
    mainWindow=$(windowOf Morvane $mainSize)
    waitFor "the splash to go" hasNoWindow Morvane $wideSize
}
