#!/usr/bin/env bash
# elsewhere.sh [CTEST ARGUMENT...]: the suite in other languages and zones, then one and the same work at the console at
# odd times of the clock: rows, files and names have to be those of a pilot in Greenwich, but for the date. By hand,
# behind ./test; some ten minutes.
set -euo pipefail
cd "$(dirname "$0")/../.."
(targets=none && . tools/packages.sh && installMissing locales faketime)
export LOCPATH=$PWD/build/locales
mkdir -p "$LOCPATH"
for language in de_DE tr_TR ja_JP; do
    [ -d "$LOCPATH/$language.UTF-8" ] || localedef -i $language -f UTF-8 "$LOCPATH/$language.UTF-8"
done
readonly west=Pacific/Pago_Pago east=Pacific/Kiritimati # eleven hours behind Greenwich, fourteen before it
readonly berlin=Europe/Berlin

for place in "C $west" "de_DE.UTF-8 $east" "tr_TR.UTF-8 $west" "ja_JP.UTF-8 $east"; do
    read -r language zone <<<"$place"
    echo "The suite in $language, $zone"
    LC_ALL=$language TZ=$zone ctest --preset release -j "$(nproc)" --quiet "$@"
done

root=$(mktemp -d "${TMPDIR:-/tmp}/Mörvane ø XXXXXX")
trap 'rm -rf "$root"' EXIT
export HOME=$root/home
mkdir "$HOME"
programs=$PWD/build/release/bin
"$programs/morvane-content" --home "$root/new/data" --simulator "$root/new/simulator" >/dev/null

# Starts at the second of Greenwich that stands in $second; the install and its simulator lie below $at.
console() {
    env FAKETIME_DONT_FAKE_MONOTONIC=1 FAKETIME_FMT=%s TZ="$zone" LC_ALL="$language" \
        faketime -f "@$second" "$programs/morvane-cli" --home "$at/data" --answer yes "$@" 2>&1
}

# What a pilot does, step by step, and all that it leaves.
work() {
    rm -rf "$at"
    mkdir -p "$(dirname "$at")"
    cp -a "$root/new" "$at"
    console config set simulator "$at/simulator" >/dev/null
    console backup create
    console metar import "$PWD/data/metar/02Z.TXT" noaa
    console night favourite 'İki Ω 100 % & "q"' 10:20:-30:40:50:-60
    console night activate '6-İki Ω 100 % & _q_'
    console night install '6-İki Ω 100 % & _q_'
    for list in "night list" "metar rows" "metar find" "backup list" "originals list --json" verify; do console $list; done
    console undo
    console originals restore
    (cd "$at" && find . -type f ! -name '*.mdb*' ! -name '*.ini' ! -name Morvane.log -exec md5sum {} + | LC_ALL=C sort -k 2)
}

# Leaves out what has to differ: the folder, and the pilot's own date, which also names the month of a report and stands
# in the list of what is kept.
plain() {
    sed -E "s|$at||g; /originals.lst$/d; s/(\"METAR_MONTH\":\")[A-Za-z]*/\1/
        s/[0-9]{1,2} [A-Z][a-z]{2} [0-9]{4}, [0-9]{2}:[0-9]{2}//; s|[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}||
        s/[0-9]{4}-[0-9]{2}-[0-9]{2}(T[0-9]{2}:[0-9]{2}:[0-9]{2})?//g"
}

found=0
at=$root/at
for time in "2026-06-15 00:30:00" "2026-06-30 23:59:58" "2026-12-31 23:59:58" "2026-10-25 00:59:58"; do
    second=$(date -u -d "$time" +%s)
    language=C zone=UTC work | plain >"$root/greenwich"
    for place in "de_DE.UTF-8 $berlin" "tr_TR.UTF-8 $west" "ja_JP.UTF-8 $east"; do
        read -r language zone <<<"$place"
        echo "$time in Greenwich, told in $language, $zone"
        work | plain | diff "$root/greenwich" - | cut -c1-300 || found=1
    done
done

language=C zone=UTC
long=$(printf 'long %.0s' {1..40})
for name in "100 % & Ω 'single' \"double\"/with a dot at its end." "${long:0:$((180 - ${#root}))}"; do
    at=$root/$name
    echo "In a folder with ${#at} characters: $at"
    work | plain | diff "$root/greenwich" - | cut -c1-300 || found=1
done

# A disk that nobody can write to serves reading, and refuses the rest in one line.
echo "On a disk that is read only"
at=$root/at
rm -rf "$at"
cp -a "$root/new" "$at"
console config set simulator "$at/simulator" >/dev/null
unshare -m bash -c "mount --bind '$at/data' '$at/data' && mount -o remount,ro,bind '$at/data' &&
    '$programs/morvane-cli' --home '$at/data' night list >/dev/null &&
    ! '$programs/morvane-cli' --home '$at/data' --answer yes night favourite New 0:0:0:0:0:0" || found=1
exit $found
