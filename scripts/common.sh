# Sourced by ./run and ./test: installs missing Debian packages, configures and builds.

say() { printf '%s\n' "$*"; }
fail() { printf '%s\n' "$*" >&2; exit 1; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo -n "$@"; fi
}

# packages KIND...: the names in scripts/packages.txt that are for everybody, or for one of the kinds.
packages() {
    local name kind wanted
    while read -r name kind; do
        case "$name" in ''|'#'*) continue ;; esac
        if [ -z "$kind" ]; then say "$name"; continue; fi
        for wanted in "$@"; do
            if [ "$kind" = "$wanted" ]; then say "$name"; fi
        done
    done < scripts/packages.txt
}

# install_packages KIND...: installs what is missing, asks nothing.
install_packages() {
    command -v dpkg-query >/dev/null || { say "Not a Debian system: please provide the packages of scripts/packages.txt."; return 0; }
    local wanted missing=() name
    wanted=$(packages "$@")
    local installed
    installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' $wanted 2>/dev/null | awk '$2 == "installed" {print $1}')
    for name in $wanted; do
        if ! grep -qxF "$name" <<<"$installed"; then missing+=("$name"); fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if [ "$(id -u)" -ne 0 ] && ! sudo -n true 2>/dev/null; then
        fail "Cannot install without root: please run  apt-get install ${missing[*]}  and try again."
    fi
    say "Installing ${missing[*]}"
    local log
    log=$(mktemp)
    if ! install_now "${missing[@]}" >"$log" 2>&1; then
        tail -n 5 "$log" >&2
        rm -f "$log"
        fail "Could not install ${missing[*]}: please install them by hand and try again."
    fi
    rm -f "$log"
}

install_now() {
    local get=(env DEBIAN_FRONTEND=noninteractive apt-get -y -qq --no-install-recommends install)
    as_root "${get[@]}" "$@" || { as_root apt-get -qq update && as_root "${get[@]}" "$@"; }
}

# build PRESET [cmake --build options]: configures once; later the build tool itself notices changes.
build() {
    local preset=$1
    shift
    if [ ! -f "build/$preset/build.ninja" ]; then
        say "Configuring build/$preset"
        cmake --preset "$preset" >"build-$preset.log" 2>&1 || { tail -n 20 "build-$preset.log" >&2; rm -f "build-$preset.log"; fail "Could not configure build/$preset."; }
        rm -f "build-$preset.log"
    fi
    cmake --build --preset "$preset" "$@" || fail "Could not build build/$preset."
}
