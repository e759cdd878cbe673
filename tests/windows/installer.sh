#!/usr/bin/env bash
# installer.sh INSTALLER CONTENT: the installer under Wine, silently: install, make the data folder, install a set, install over
# itself, put back, uninstall; then for all users. CONTENT is a native content tool, which makes the simulator. Status 77:
# no Wine here.
set -euo pipefail
installer=$1 content=$2
command -v wine >/dev/null || exit 77
root=$(mktemp -d "${TMPDIR:-/tmp}/Mörvane ø XXXXXX")
export HOME="$root/home" WINEPREFIX="$root/prefix" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
trap 'wineserver -k 2>/dev/null || true; rm -rf "$root"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# expectValue NAME TEXT [ROOT]. Wine writes its registry down some time after a program.
expectValue() {
    local said
    said=$(limited wine reg query "${3:-HKCU}\\Software\\Orrinsoft\\Morvane" /v "$1" /reg:32 | tr -d '\r')
    [[ $said == *"$2"* ]] || fail "$1 is not $2: $said"
}

# expectClass KEY TEXT [ROOT]: what the desktop opens with what; all values of the key, those of its children too.
expectClass() {
    local said
    said=$(limited wine reg query "${3:-HKCU}\\Software\\Classes\\$1" /s /reg:64 2>&1 | tr -d '\r') || true
    [[ $said == *"$2"* ]] || fail "$1 has no $2: $said"
}

# expectNoClass KEY [ROOT]
expectNoClass() {
    ! limited wine reg query "${2:-HKCU}\\Software\\Classes\\$1" /reg:64 >/dev/null 2>&1 || fail "$1 is left"
}

limited() {
    (ulimit -v 16000000; timeout 300 "$@")
}

sums() {
    (cd "$simulator" && find . -type f ! -name 'fs9.*' | sort | xargs -d '\n' md5sum)
}

mkdir "$HOME"
limited wineboot -u >/dev/null 2>&1
user=$WINEPREFIX/drive_c/users/$(id -un)
programs=$user/AppData/Local/Programs/Morvane
home='C:\users\'$(id -un)'\AppData\Local\Morvane'
simulator="$WINEPREFIX/drive_c/Program Files (x86)/Microsoft Games/Flight Simulator 9"
mkdir -p "$(dirname "$simulator")"
"$content" --home "$root/native" --simulator "$simulator" >/dev/null
sums >"$root/before"
limited wine reg add 'HKLM\Software\Microsoft\Microsoft Games\Flight Simulator\9.0' /v 'EXE Path' \
    /d 'C:\Program Files (x86)\Microsoft Games\Flight Simulator 9' /reg:32 /f >/dev/null

# A planner was there before.
limited wine reg add 'HKCU\Software\Classes\.pln' /ve /d Planner.Plan /f /reg:64 >/dev/null
limited wine "$installer" /S || fail "the installer ended with status $?"
for ending in pln lnmpln; do expectClass .$ending Morvane.FlightPlan; done
expectClass .pln Planner.Plan
expectClass .morvaneset 'REG_SZ    Morvane.SharedSet'
expectClass Morvane.FlightPlan '\morvane.exe" "%1"'
[ -f "$programs/morvane.exe" ] || fail "no program was installed"
expectValue DataFolder "$home"
expectValue FirstTime True

limited wine "$programs/morvane-content.exe" --home "$home" >/dev/null
rm "$user/AppData/Local/Morvane/registry.ini" # as the first start does: this folder's values are in the registry
limited wine "$programs/morvane-cli.exe" --answer yes ground install Default >"$root/said" 2>&1 ||
    { cat "$root/said"; fail "no set was installed"; }
sums >"$root/installed"
cmp -s "$root/before" "$root/installed" && fail "no texture came into the simulator"
expectValue FirstTime False

limited wine "$installer" /S || fail "the second install ended with status $?"
expectValue DataFolder "$home"
expectValue FirstTime False
limited wine "$programs/morvane-cli.exe" --answer yes originals restore >/dev/null 2>&1 || fail "nothing was put back"
sums >"$root/after"
diff "$root/before" "$root/after" || fail "the simulator is not as it was"

: >"$programs/the pilot's own.txt"
limited wine "$programs/uninstall.exe" /S '_?=C:\users\'"$(id -un)"'\AppData\Local\Programs\Morvane'
[ "$(find "$programs" -type f ! -name uninstall.exe -printf '%f')" = "the pilot's own.txt" ] ||
    fail "other files are left, or the pilot's is not"
[ -f "$user/AppData/Local/Morvane/Morvane.mdb" ] || fail "the data are gone"
for key in .lnmpln .morvaneset Morvane.FlightPlan Morvane.SharedSet 'Applications\morvane.exe'; do expectNoClass "$key"; done
expectClass .pln Planner.Plan
expectNoClass '.pln\OpenWithProgids'
# For all users, by an administrator, as Wine's user is one.
limited wine reg delete 'HKCU\Software\Orrinsoft' /reg:32 /f >/dev/null
limited wine "$installer" /S /ALLUSERS || fail "the installer for all ended with status $?"
expectValue DataFolder 'C:\ProgramData\Morvane' HKLM
expectValue FirstTime True HKLM
expectValue WeatherFormat noaa HKLM
expectClass .morvaneset Morvane.SharedSet HKLM
shared=$WINEPREFIX/drive_c/ProgramData/Morvane
[ -d "$shared" ] || fail "there is no data folder for all"
mv "$user/AppData/Local/Morvane"/* "$shared/"
programs="$WINEPREFIX/drive_c/Program Files/Morvane"
limited wine "$programs/morvane-cli.exe" ground list 2>"$root/said" | grep -q '"Default"' ||
    { cat "$root/said"; fail "the data folder for all is not used"; }
limited wine "$programs/uninstall.exe" /S # goes on as a copy of itself
limited wineserver -w
expectNoClass .morvaneset HKLM
[ ! -e "$programs/morvane.exe" ] && [ -f "$shared/Morvane.mdb" ] || fail "not removed, or with its data"
echo "installed, used, installed again, put back, uninstalled; for all users, too"
