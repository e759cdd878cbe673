# A small install and a simulator to try the program on, and what can be read from them while it runs. Sourced.
# Needs $root, a folder that goes with the run, and $programs, the folder of the built programs.

readonly home="$root/Mörvane Büro" simulator="$root/Flüge am Abend"

# Two of three base images go: a set is then made in a second or two. Those that the windows show as samples stay.
makeInstall() {
    "$programs/morvane-content" --home "$home" --simulator "$simulator"
    local folder
    for folder in "GENERIC WORLD" "UT EUROPE" UTIND DUTCH; do
        find "$home/Resources/$folder" -name '*.bmp' -not -name '029*' | sort | awk 'NR % 3' | tr '\n' '\0' | xargs -0 -r rm
    done
    # The first run of all, which keeps a backup and tells so, is behind it.
    "$programs/morvane-cli" --home "$home" ground list >/dev/null 2>&1
}

# The sets in the store, a line each: name, cover and "true" where installed, parted by "|".
groundSets() {
    "$programs/morvane-cli" --home "$home" ground list | sed 's/},{/}\n{/g' |
        sed -nE 's/.*"CloudCover":"([^"]*)".*"Installed":(true|false).*"TextureSet":"([^"]*)".*/\3|\1|\2/p'
}

setNames() {
    groundSets | cut -d'|' -f1 | grep -vx Default
}

installedSets() {
    groundSets | grep '|true$' | cut -d'|' -f1
}

# No folder without its row, no row without its folder.
doFoldersMatchStore() {
    [ "$(find "$home/Texture Sets" -mindepth 1 -maxdepth 1 -printf '%f\n' | sort)" = "$(setNames | sort)" ]
}

# The set's textures lie in the simulator, byte for byte.
isInSimulator() {
    local textures="$home/Texture Sets/$1/Texture" target="$simulator/Scenery/World/Texture" file copy
    for file in "$textures"/*; do
        copy=$(find "$target" -iname "$(basename "$file")")
        [ -n "$copy" ] && cmp -s "$file" "$copy" || return 1
    done
}

