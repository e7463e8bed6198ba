# shellcheck shell=bash disable=SC2034
# Shared by ./run, ./test, bench/run and tools/lint: installs what is missing, configures and builds. Sourced, with the tree
# as the current folder. What is written here goes to the screen; what the tools write goes to $Log, and is shown where it
# helps.

BuildPackages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-documentation-tools
    qt6-l10n-tools libsqlite3-dev libicu-dev libgtest-dev libgl1-mesa-dev)
# The last three write what the Liberation fonts lack: the screen's own face and Arabic, Chinese with Japanese and Korean,
# Devanagari.
RunPackages=(libqt6svg6 libqt6sql6-sqlite fonts-liberation fonts-dejavu-core fonts-droid-fallback fonts-lohit-deva)

source tools/data-file.sh

Log=$(mktemp 2>/dev/null) || Fail "No temporary file can be made in ${TMPDIR:-/tmp}: is there room, and may you write there?"
trap 'rm -f "$Log"' EXIT
trap 'printf "\n%s\n" "Interrupted. The same command goes on from here."; exit 130' INT TERM

# The build's tools take these apart, each in a way of its own.
case $PWD in
    *[\'\"\&\$\#\;\\\[\]\*\?\|\<\>\`]* | *$'\n'* | *$'\t'*)
        Fail "The build's tools cannot work in $PWD: move the folder to a path without any of ' \" & \$ # ; \\ [ ] * ? | < > \`"
        ;;
esac
if [[ -z ${XDG_RUNTIME_DIR-} ]]; then
    # Without a login session Qt would choose a folder itself and complain about it.
    export XDG_RUNTIME_DIR=$PWD/build/session
    Writable build
    mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
fi

# Ticks: shows that a long step goes on, until its shell is gone or ends it: on a terminal the seconds and the last words
# of the log, elsewhere a line twice a minute.
Ticks() {
    local start=$SECONDS last time
    while sleep 1 >/dev/null 2>&1 && kill -0 $$ 2>/dev/null; do
        time=$(printf '%d:%02d' $(((SECONDS - start) / 60)) $(((SECONDS - start) % 60)))
        last=$(tail -c 500 "$Log" 2>/dev/null | tr '\r' '\n' | grep -v '^$' | tail -n 1 | tr -cd '[:print:]')
        [[ -n $last ]] || last="still at it"
        if [[ -t 1 ]]; then
            printf '\r  %s  %.60s\e[K' "$time" "$last"
        elif (((SECONDS - start) % 30 == 0)); then
            printf '  %s  %.100s\n' "$time" "$last"
        fi
    done
}

# Quietly COMMAND...: runs it with what it says in $Log alone, and shows that it lives. The command's status.
Quietly() {
    local status=0 ticks
    Ticks &
    ticks=$!
    "$@" </dev/null >"$Log" 2>&1 || status=$?
    kill $ticks 2>/dev/null
    wait $ticks 2>/dev/null
    [[ -t 1 ]] && printf '\r\e[K'
    return $status
}

# Missing PACKAGE...: those that are not installed.
Missing() {
    local package
    for package in "$@"; do
        [[ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" == installed ]] || printf '%s ' "$package"
    done
}

# Reason: why the installation failed, in a few words.
Reason() {
    if grep -qE 'Temporary failure resolving|Could not resolve|Could not connect|Network is unreachable' "$Log"; then
        Say "their server cannot be reached (is this machine online?)"
    else
        grep -m1 -oP '^E: \K.*' "$Log" || Say "apt-get did not end well"
    fi
}

# NeedPackages REASON PACKAGE...: installs those of the packages that are missing.
NeedPackages() {
    local reason=$1 missing become=()
    shift
    if ! command -v dpkg-query >/dev/null; then
        Say "This is no Debian system: no packages are installed. Needed here, under Debian's names: $*"
        return
    fi
    read -ra missing <<<"$(Missing "$@")"
    ((${#missing[@]})) || return 0

    Say "Installing ${missing[*]} $reason"
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            Fail "Only root may install packages, and there is no sudo. As root: apt-get install ${missing[*]}"
        sudo -v || Fail "Only root may install packages, and sudo was refused. As root: apt-get install ${missing[*]}"
        become=(sudo)
    fi
    # An installation that was killed has to be ended before another one can begin.
    Quietly "${become[@]}" env DEBIAN_FRONTEND=noninteractive dpkg --configure -a || true
    Quietly "${become[@]}" apt-get update -q || true
    Quietly "${become[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
        -o DPkg::Lock::Timeout=300 "${missing[@]}" ||
        Fail "The packages could not be installed: $(Reason). By hand: apt-get install ${missing[*]}"
    read -ra missing <<<"$(Missing "${missing[@]}")"
    ((${#missing[@]} == 0)) || Fail "These packages are still missing: apt-get install ${missing[*]}"
}

# Configure PRESET FOLDER OPTION...: only when the folder is not configured yet for this place; later changes of a
# CMakeLists.txt are ninja's business. With CI set, as build servers do, warnings are errors.
Configure() {
    local preset=$1 folder=$2 strict=() foreign
    shift 2
    Writable "$folder"
    foreign=$(find "$folder" \( -type f -o -type d \) ! -writable -print -quit 2>/dev/null)
    [[ -z $foreign ]] || Fail "$PWD/$foreign belongs to another user (built through sudo?): delete $folder/ and try again."
    [[ -z ${CI-} ]] || strict=(-DCMAKE_COMPILE_WARNING_AS_ERROR=ON)
    if [[ -f $folder/build.ninja ]] && grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt" &&
        { [[ -z ${CI-} ]] || grep -q '^CMAKE_COMPILE_WARNING_AS_ERROR:.*=ON$' "$folder/CMakeCache.txt"; }; then
        return
    fi
    command -v cmake >/dev/null || Fail "There is no cmake here: install the packages named above."
    Say "Configuring in $folder/"
    Quietly cmake --fresh --preset "$preset" "${strict[@]}" "$@" || {
        grep -A 12 -m1 -E '^CMake Error' "$Log" >&2 || cat "$Log" >&2
        Fail "The configuration failed."
    }
}

# Build FOLDER TARGET...: on a terminal ninja keeps one line of progress; elsewhere only warnings and failures are shown.
Build() {
    local folder=$1 patience='' status=0
    shift
    [[ -e $folder/.ninja_log ]] || patience=" (the first time takes some minutes)"
    Say "Building in $folder/$patience"
    if [[ -t 1 ]]; then
        ninja -C "$folder" "$@" || status=$?
    else
        Quietly ninja -C "$folder" "$@" || status=$?
        grep -vE "^(\[[0-9]+/[0-9]+\] |ninja: (Entering|no work)|-- )" "$Log" >&2 || true
    fi
    ((status == 0)) || Fail "The build failed."
}
