#!/usr/bin/env bash
# packages.sh [TREE]: the Debian package and the archive of dist/, each on a bare Debian 12 of its own: installed or
# unpacked, started for the first time, given a simulator, a set installed and put back, the window opened, removed. As
# root, by hand. TREE is such a system, which is copied; without it debootstrap makes one. MORVANE_SCREENSHOTS names a
# folder for pictures.
set -euo pipefail
cd "$(dirname "$0")/../.."
# What is mounted here nobody else sees, and it goes with this shell.
[ -n "${ownMounts:-}" ] || ownMounts=yes exec unshare -m "$0" "$@"
root=$(mktemp -d "${TMPDIR:-/tmp}/packages.XXXXXX")
. tests/screen/display.sh
tidyUp() {
    stopDisplay
    umount -R "$root"/*/proc "$root"/*/dev "$root"/*/tmp/.X11-unix 2>/dev/null || true
    rm -rf --one-file-system "$root"
}
trap tidyUp EXIT

makeTree() {
    tree=$root/$1
    cp -a "$bare" "$tree"
    cp /etc/resolv.conf /etc/hosts "$tree/etc/"
    mkdir -p "$tree/tmp/.X11-unix"
    mount -t proc proc "$tree/proc"
    mount --rbind /dev "$tree/dev"
    mount --bind /tmp/.X11-unix "$tree/tmp/.X11-unix"
    asRoot useradd -m pilot
    mkdir -p "$tree/home/pilot/Documents/Flight Simulator Files"
    cp -a "$root/simulator" "$tree/home/pilot/Flight Simulator 9"
    asRoot chown -R pilot: /home/pilot
}

asRoot() {
    chroot "$tree" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"
}

asPilot() {
    chroot --userspec=pilot "$tree" "${pilotsPlace[@]}" "$@"
}

picture() {
    [ -z "${MORVANE_SCREENSHOTS:-}" ] || import -window root "$MORVANE_SCREENSHOTS/$1.png"
}

sums() {
    (cd "$tree/home/pilot/Flight Simulator 9" && find . -type f -exec md5sum {} + | sort)
}

startWindow() {
    (exec chroot --userspec=pilot "$tree" "${pilotsPlace[@]}" morvane) 2>"$root/said" &
    programId=$!
}

stopWindow() {
    kill "$programId"
    wait "$programId" || true
    programId=
}

# tryPrograms NAME FOLDER: the programs in that folder of the tree.
tryPrograms() {
    pilotsPlace=(env -i LANG=C.UTF-8 HOME=/home/pilot DISPLAY="$DISPLAY" PATH="$2:/usr/bin:/bin")
    say "$1: $(asPilot morvane --version), $(asPilot morvane-cli --version)"
    startWindow
    waitFor "the first start's progress" hasWindow Morvane
    sleep 1
    picture "$1-first-start"
    waitFor "the install folder" test -e "$tree/home/pilot/.local/share/Morvane/Morvane.mdb"
    stopWindow
    sums >"$root/before"
    asPilot morvane-cli config set simulator "/home/pilot/Flight Simulator 9" >/dev/null
    asPilot morvane-cli --answer yes ground install Default >/dev/null 2>"$root/said" || { cat "$root/said"; fail "no set was installed"; }
    ! cmp -s "$root/before" <(sums) || fail "no texture came into the simulator"
    asPilot morvane-cli --answer yes originals restore >/dev/null 2>&1 || fail "nothing was put back"
    diff "$root/before" <(sums) || fail "the simulator is not as it was"
    startWindow
    waitFor "the main window" hasWindow Morvane
    waitFor "its outline" hasOutline "$(windowOf Morvane)"
    sleep 1
    picture "$1-window"
    stopWindow
}

bare=${1:-$root/bare}
[ $# -gt 0 ] || debootstrap --variant=minbase bookworm "$bare" http://deb.debian.org/debian >/dev/null
build/release/bin/morvane-content --home "$root/install" --simulator "$root/simulator" >/dev/null
startDisplay

makeTree package
cp dist/morvane_*.deb "$tree/tmp/"
asRoot sh -c 'apt-get update -qq && apt-get install -y -qq --no-install-recommends /tmp/morvane_*.deb' >/dev/null 2>&1
tryPrograms package /usr/bin
asRoot apt-get purge -y -qq morvane >/dev/null 2>&1
[ -z "$(find "$tree/usr" -name '*morvane*')" ] || fail "something of the package is left"
[ -e "$tree/home/pilot/.local/share/Morvane/Morvane.mdb" ] || fail "the pilot's data are gone"

makeTree archive
folder='/opt/ein Ördner 空'
mkdir "$tree$folder"
tar xf dist/morvane-*-linux-x64.tar.xz -C "$tree$folder" --strip-components 1
tryPrograms archive "$folder/bin"
echo "both packages were installed, started, used and removed"
