# shellcheck shell=bash
# shellcheck disable=SC2154 # `root` is set by the script that sources this
#
# What ./run, ./test and ./bench share: installing packages and building. To
# be sourced by bash, with `root` set to the folder of the repository.
# Everything said here goes to standard error; what ran without a fault says
# nothing, what failed shows its whole output.

say() {
    printf '%s\n' "$*" >&2
}

die() {
    say "$@"
    exit 1
}

# quietly COMMAND...: shows the command's output only when it fails.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if ((status != 0)); then
        cat "$log" >&2
    fi
    rm -f "$log"
    return "$status"
}

# The packages named in lists of packaging/packages, one a line.
packages_in() {
    local list
    for list in "$@"; do
        sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$root/packaging/packages/$list.list"
    done
}

# Those of the packages in these lists that are not installed, one a line.
packages_missing() {
    local wanted installed
    wanted=$(packages_in "$@" | sort -u)
    # dpkg-query complains about each name that it has never heard of.
    # shellcheck disable=SC2086 # one word a package
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2>/dev/null |
        sed -n 's/^installed //p' | sort -u) || true
    comm -23 <(printf '%s\n' "$wanted") <(printf '%s\n' "$installed")
}

# packages_install LIST...: installs what is missing and asks nothing. Without
# the right to do so it ends with the command that a person can run.
packages_install() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "This is no Debian system: please see to the packages in packaging/packages yourself."
        return
    fi
    local missing=() as_root=()
    mapfile -t missing < <(packages_missing "$@")
    if ((${#missing[@]} == 0)); then
        return
    fi
    if ((EUID != 0)); then
        # -n: fail rather than ask for a password.
        if ! command -v sudo >/dev/null || ! sudo -n true 2>/dev/null; then
            say "Some packages are missing, and only an administrator can install them. Please run"
            say
            say "    sudo apt-get install --no-install-recommends ${missing[*]}"
            say
            die "(or that line as root, without sudo), and then this command again."
        fi
        as_root=(sudo -n)
    fi
    local install=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q
        --no-install-recommends -o DPkg::Lock::Timeout=300 "${missing[@]}")
    say "Installing ${#missing[@]} packages: ${missing[*]}"
    # The package lists of a fresh machine are empty, those of an old one stale.
    if "${install[@]}" >/dev/null 2>&1 </dev/null; then
        return
    fi
    quietly "${as_root[@]}" apt-get update -q -o DPkg::Lock::Timeout=300 ||
        die "The lists of packages could not be fetched."
    quietly "${install[@]}" || die "The packages could not be installed."
}

packages_have() {
    command -v dpkg-query >/dev/null && [[ -z $(packages_missing "$@") ]]
}

# cache_value PRESET NAME: a setting of the build folder, nothing if there is none.
cache_value() {
    sed -n "s/^$2:[A-Z]*=//p" "$root/build/$1/CMakeCache.txt" 2>/dev/null || true
}

# configure PRESET [-DNAME=VALUE...]: makes the build folder build/PRESET ready.
configure() {
    local preset=$1 arguments=()
    shift
    # A folder that was configured elsewhere and then moved here is of no use.
    local home
    home=$(cache_value "$preset" CMAKE_HOME_DIRECTORY)
    if [[ -n $home && $home != "$root" ]]; then
        arguments+=(--fresh)
    fi
    # A preset is looked for in the current folder, whatever -S says.
    (cd "$root" && quietly cmake --preset "$preset" "${arguments[@]}" "$@") ||
        die "The build could not be configured."
}

# is_configured PRESET
is_configured() {
    [[ -f $root/build/$1/build.ninja && $(cache_value "$1" CMAKE_HOME_DIRECTORY) == "$root" ]]
}

# configure_release [OPTION...]: the release build, with these options on. The
# others are on where the packages for them are there, so that a server without
# Qt can have the console, and nothing is built anew without need.
configure_release() {
    local option ready=yes window=OFF pictures=OFF options=()
    for option in "$@"; do
        options+=("-D$option=ON")
        if [[ $(cache_value release "$option") != ON ]]; then
            ready=no
        fi
    done
    if [[ $ready == yes ]] && is_configured release; then
        return
    fi
    if packages_have pictures; then
        pictures=ON
        if packages_have window; then
            window=ON
        fi
    fi
    configure release -DTAVO_WINDOW=$window -DTAVO_PICTURES=$pictures "${options[@]}"
}

# build PRESET [TARGET...]: builds these targets, or all of them.
build() {
    local preset=$1 targets=()
    shift
    if (($# > 0)); then
        targets=(--target "$@")
    fi
    quietly cmake --build "$root/build/$preset" "${targets[@]}" || die "The build failed."
}
