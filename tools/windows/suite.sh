#!/usr/bin/env bash
# suite.sh [CTEST ARGUMENT...]: builds all for Windows and runs the tests under Wine, whole programs side by side, in a
# prefix of the project's own that is made anew. At the end it names the cases that are tests of Linux alone, and what
# failed.
set -euo pipefail
cd "$(dirname "$0")/../.."
. tools/windows/prefix.sh
(targets=none && . tools/packages.sh && installMissing wine wine64 "${screenTools[@]}")
(. tools/packages.sh && . tools/build.sh) # what the cases are compared with; nothing to do behind ./test
./build-windows 1>&2
./build-windows all 1>&2
rm -rf "$windowsFolder/wine" "$windowsFolder/wine.home"
ownServer() {
    WINEPREFIX=$windowsFolder/wine wineserver "$@" </dev/null >/dev/null 2>&1 || true
}
trap 'ownServer -k' EXIT
tools/windows/under_wine wineboot -u >/dev/null 2>&1
# A server that a test started would keep that test's pipes open, and so the test from ending.
ownServer -w
ownServer -p
tools/windows/under_wine wineboot >/dev/null 2>&1 </dev/null

casesOf() {
    local program
    for program in "$1"/bin/*_tests"$2"; do
        "${@:3}" "$program" --gtest_list_tests 2>/dev/null | tr -d '\r' | awk -v p="$(basename "$program" "$2")" \
            '/^[^ ].*\.$/ { suite = $1 } /^ / { print p ": " suite $1 }'
    done | sort
}

suite() {
    ctest --test-dir build/windows/release --output-on-failure "$@"
}

# What fails is run once more by itself: Wine has failed a program that then passed three hundred times. Only what fails
# again fails the suite, but the last lines name all that did.
status=0 failed=
suite -j "$(nproc)" "$@" || {
    failed=$(sed 's/^[0-9]*://' build/windows/release/Testing/Temporary/LastTestsFailed.log | tr '\n' ' ')
    suite --rerun-failed || status=$?
}
comm -23 <(casesOf build/release "") <(casesOf build/windows/release .exe tools/windows/under_wine) \
    >"$windowsFolder/linux_alone.txt"
echo "$(wc -l <"$windowsFolder/linux_alone.txt") cases are of Linux alone:"
cat "$windowsFolder/linux_alone.txt"
[ -z "$failed" ] || echo "FAILED at first: $failed"
[ $status -eq 0 ] || echo "FAILED again, by itself: $(sed 's/^[0-9]*://' \
    build/windows/release/Testing/Temporary/LastTestsFailed.log | tr '\n' ' ')"
exit $status
