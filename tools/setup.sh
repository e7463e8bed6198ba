# shellcheck shell=bash disable=SC2034
# Shared by ./run, ./test and bench/run: installs what is missing, configures and builds. Sourced, with the tree as the
# current folder.

BuildPackages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-documentation-tools
    qt6-l10n-tools libsqlite3-dev libgtest-dev libgl1-mesa-dev)
RunPackages=(libqt6svg6 libqt6sql6-sqlite fonts-liberation)

Say() { printf '%s\n' "$*"; }

Fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

IsInstalled() {
    [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

# NeedPackages REASON PACKAGE...: installs those of the packages that are missing.
NeedPackages() {
    local reason=$1 package missing=()
    shift
    if ! command -v dpkg-query >/dev/null; then
        Say "This is no Debian system: no packages are installed. Needed here, under Debian's names: $*"
        return
    fi
    for package in "$@"; do
        IsInstalled "$package" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    local become=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            Fail "These packages are missing, and only root may install them: apt-get install ${missing[*]}"
        become=(sudo)
    fi
    Say "Installing ${missing[*]} $reason${become:+ (through sudo, which may ask for your password)}"
    "${become[@]}" apt-get update -qq || Say "The package lists could not be renewed; trying with those at hand."
    "${become[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >/dev/null || Fail "The packages could not be installed. By hand: apt-get install ${missing[*]}"
}

# Configure PRESET FOLDER OPTION...: only when the folder is not configured yet for this place; later changes of a
# CMakeLists.txt are ninja's business.
Configure() {
    local preset=$1 folder=$2 log
    shift 2
    if [[ -f $folder/build.ninja ]] && grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"; then
        return
    fi
    Say "Configuring in $folder/"
    log=$(mktemp)
    if ! cmake --fresh --preset "$preset" "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        Fail "The configuration failed."
    fi
    rm -f "$log"
}

# Build FOLDER TARGET...: on a terminal ninja keeps one line of progress; elsewhere it speaks only of failures.
Build() {
    local folder=$1 quiet=(--quiet) patience=
    shift
    [[ -t 1 ]] && quiet=()
    [[ -e $folder/.ninja_log ]] || patience=" (the first time takes some minutes)"
    Say "Building in $folder/$patience"
    ninja -C "$folder" "${quiet[@]}" "$@" || Fail "The build failed."
}
