#!/usr/bin/env bash
# workers.sh: the same set made by one, two and eight threads, whatever cores the machine has, byte for byte the same.
# By hand, behind ./test.
set -euo pipefail
cd "$(dirname "$0")/../.."
root=$(mktemp -d "${TMPDIR:-/tmp}/Mörvane ø XXXXXX")
trap 'rm -rf "$root"' EXIT
export HOME=$root/home
mkdir "$HOME"
programs=$PWD/build/release/bin
echo '#include <stdlib.h>
int get_nprocs(void) { return atoi(getenv("WORKERS")); }' >"$root/workers.c"
cc -shared -fPIC -o "$root/workers.so" "$root/workers.c"
"$programs/morvane-content" --home "$root/data" --simulator "$root/simulator" >/dev/null

console() {
    "$programs/morvane-cli" --home "$root/data" --answer yes "$@" >/dev/null 2>&1
}
console config set simulator "$root/simulator"
console night favourite Lights 10:20:-30:40:50:-60
name=$("$programs/morvane-cli" --home "$root/data" night list 2>/dev/null | grep -o '[0-9]*-Lights')

for workers in 1 2 8; do
    most=0
    WORKERS=$workers LD_PRELOAD=$root/workers.so console night activate "$name" &
    while kill -0 $! 2>/dev/null; do
        threads=$(ls "/proc/$!/task" 2>/dev/null | wc -l)
        most=$((threads > most ? threads : most))
    done
    wait $!
    (cd "$root/data/Night Texture Sets/$name" && find . -type f -exec md5sum {} + | sort -k 2) >"$root/by $workers"
    echo "$(wc -l <"$root/by $workers") files by $workers workers, at most $most threads"
    cmp "$root/by 1" "$root/by $workers"
    console night deactivate "$name"
done
