# shellcheck shell=bash
# The user's data file, before the program starts. Shared by ./run and the launcher of an installed program; sourced.

Say() { printf '%s\n' "$*"; }

Fail() {
    Say "$*" >&2
    exit 1
}

# Writable FOLDER: makes the folder if need be.
Writable() {
    local probe=$1/.probe
    { mkdir -p "$1" && touch "$probe" && rm "$probe"; } 2>/dev/null ||
        Fail "Nothing can be written to the folder $(realpath -m "$1"): may you write there, and is there room?"
}

# The folder of the user's own data.
OwnFolder() {
    [[ -n ${XDG_DATA_HOME:-${HOME-}} ]] || Fail "HOME is not set, so there is no place for your data."
    Say "${XDG_DATA_HOME:-$HOME/.local/share}/Tavrin Inventory"
}

# PrepareData TOOL MAKE...: sees to it that there is a data file in the folder that the program will open. TOOL, the
# program data-folder, knows the folder that the settings name; where they name none, they name the user's own from now
# on. A file is made there alone, by MAKE with its path as the last word, and only where none is.
PrepareData() {
    local tool=$1 own folder
    shift
    own=$(OwnFolder) || exit
    folder=$("$tool") || exit
    if [[ -z $folder ]]; then
        Writable "$own"
        "$tool" "$own" || exit
        folder=$own
    fi
    folder=${folder%[/\\]}
    if [[ ! -e $folder/db.mdb ]]; then
        [[ $(realpath -m "$folder") == "$(realpath -m "$own")" ]] ||
            Fail "The setting DBPath names $folder, where there is no db.mdb. Bring it back, or choose a" \
                "folder with one: $tool FOLDER"
        Writable "$own"
        "$@" "$own/db.mdb" || exit
    fi
    Say "The data are in $(realpath "$folder")/db.mdb"
}
