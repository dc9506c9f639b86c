# shellcheck shell=bash
# Shell functions shared by ./run, ./test and ./package, which source this file from the top folder: what a step prints,
# which packages are installed, how a preset is built. A step that goes well is one line; one that fails shows why.

logs=build/logs

# A bare system has the locale "C", on which Qt from 6.5 on remarks at every start of a program.
case ${LC_ALL:-${LC_CTYPE:-${LANG:-}}} in
*[Uu][Tt][Ff]*) ;;
*) export LC_ALL=C.UTF-8 ;;
esac

# step TEXT LOG COMMAND...: runs the command with its output in build/logs/LOG. Ends the script when it fails.
step() {
    local text=$1 log=$logs/$2
    shift 2
    mkdir -p "$logs"
    echo "$text"
    if ! "$@" >"$log" 2>&1; then
        {
            echo
            echo "This failed: $text"
            echo "The end of what it said (all of it is in $log):"
            echo
            tail -n 40 "$log"
        } >&2
        exit 1
    fi
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Installing packages needs root: run this as root, or install sudo." >&2
        return 1
    fi
}

# missing_packages SECTION...: the packages under these headings of the list that this machine does not have.
missing_packages() {
    local wanted
    wanted=$(awk -v wanted=" $* " '
        { sub(/#.*/, "") }
        /^\[.*\]$/ { here = index(wanted, " " substr($0, 2, length($0) - 2) " "); next }
        here && NF { print $1 }' packaging/debian-packages.txt)
    # Asked for all at once: a question a package takes most of a second. It fails when one is unknown, and names the rest.
    # shellcheck disable=SC2016,SC2086 # the format is dpkg's; one word a package
    { dpkg-query -W -f '${Package} ${db:Status-Status}\n' $wanted 2>/dev/null || true; } |
        awk -v wanted="$wanted" '
            $2 == "installed" { installed[$1] = 1 }
            END { for (i = 1; i <= split(wanted, all); ++i) if (!(all[i] in installed)) print all[i] }'
}

# apt-get without questions; waits a while for another one to finish.
apt_get() { as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 "$@"; }

# install_packages SECTION...
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "Not a Debian system: packaging/debian-packages.txt lists what has to be there."
        return
    fi
    local missing
    missing=$(missing_packages "$@" | tr '\n' ' ')
    [ -n "$missing" ] || return 0
    step "Updating the list of packages" apt-update.log apt_get update
    # shellcheck disable=SC2086 # one word a package
    step "Installing $missing" apt-install.log apt_get install --no-install-recommends $missing
}

# build_preset NAME: configures and builds build/NAME.
build_preset() {
    step "Configuring $1" "configure-$1.log" cmake --preset "$1"
    step "Building $1" "build-$1.log" cmake --build --preset "$1" -j "$(nproc)"
}
