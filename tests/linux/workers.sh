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
int get_nprocs(void) { return atoi(getenv("WORKERS")); }' | cc -shared -fPIC -xc -o build/workers.so - # no blank in its path
"$programs/morvane-content" --home "$root/data" --simulator "$root/simulator" >/dev/null

console() {
    "$programs/morvane-cli" --home "$root/data" --answer yes "$@" 2>/dev/null
}
console config set simulator "$root/simulator" >/dev/null
console ground create 0 0 1 0 0 >/dev/null
name=$(console ground list | grep -o '"TextureSet":"[0-9]*-[^"]*"' | cut -d '"' -f 4)

for workers in 1 2 8; do
    console ground deactivate "$name" >/dev/null
    most=0
    WORKERS=$workers LD_PRELOAD=$PWD/build/workers.so "$programs/morvane-cli" --home "$root/data" --answer yes \
        ground activate "$name" >/dev/null 2>&1 &
    while kill -0 $! 2>/dev/null; do
        tasks=(/proc/$!/task/*)
        most=$((${#tasks[@]} > most ? ${#tasks[@]} : most))
    done
    wait $!
    (cd "$root/data/Texture Sets/$name" && find . -type f -exec md5sum {} + | sort -k 2) >"$root/by $workers"
    echo "$(wc -l <"$root/by $workers") files by $workers workers, at most $most threads"
    cmp "$root/by 1" "$root/by $workers"
done
