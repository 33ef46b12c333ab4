# What the scripts share: where things are, which packages a job needs, and how they get there. Sourced by
# plain sh with $root set; it changes nothing by itself.

# Packages, by the names of Debian 12 and newer and of Ubuntu 24.04. "a|b" is satisfied by either.
packages_for() {
    case $1 in
    # The test framework is here as well, since one configuration serves both ./run and ./test.
    build) echo "g++ cmake ninja-build ccache pkgconf|pkg-config qt6-base-dev qt6-svg-dev|libqt6svg6-dev" \
        "libxcb1-dev libglib2.0-dev libzip-dev libgtest-dev" ;;
    run) echo "fonts-dejavu-core breeze-icon-theme qt6-image-formats-plugins" ;;
    virtual) echo "xvfb openbox dbus x11-utils x11-xserver-utils imagemagick" ;;
    test) echo "python3 xvfb openbox picom dbus xdotool x11-utils x11-xserver-utils imagemagick libxtst6 xterm unzip" \
        "at-spi2-core gir1.2-atspi-2.0 python3-gi trayer pcmanfm xclip" ;;
    check) echo "python3 clang-format" ;;
    bench) echo "python3 xvfb openbox libxdamage1 libxtst6 dbus tint2 xfce4-panel rofi" ;;
    coverage) echo "python3" ;;
    fuzz) echo "clang" ;;
    *) fail "nobody knows the package list '$1'" ;;
    esac
}

say() { printf '%s\n' "$@"; } # one line an argument
fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Prints what is missing of the given lists. One question to dpkg, no network.
missing_packages() {
    wanted=$(for list; do packages_for "$list"; done | tr ' ' '\n' | sort -u)
    # shellcheck disable=SC2046 # one word a package
    there=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' $(printf '%s' "$wanted" | tr '|' ' ') 2>/dev/null |
        sed -n 's/^installed //p')
    for choice in $wanted; do
        printf '%s\n' "$there" | grep -Fxq "$(printf '%s' "$choice" | tr '|' '\n')" || echo "$choice"
    done
}

# Of "a|b" the one that this system's package lists know.
settle_choices() {
    for choice; do
        found=
        for name in $(printf '%s' "$choice" | tr '|' ' '); do
            if [ -z "$found" ] && apt-cache show --no-all-versions "$name" >/dev/null 2>&1; then found=$name; fi
        done
        echo "${found:-${choice%%|*}}"
    done
}

# Runs a command as root, with sudo where that can work. Fails without a word where there is no way.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1 && { sudo -n true 2>/dev/null || [ -t 0 ]; }; then
        sudo "$@"
    else
        return 126
    fi
}

# need LIST...: installs what is missing of the lists. Says what to do and stops where it may not.
need() {
    if ! command -v dpkg-query >/dev/null 2>&1; then
        say "This system has no dpkg: taking for granted that these or their like are installed:"
        for list; do say "    $(packages_for "$list")"; done
        return 0
    fi
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    # shellcheck disable=SC2086 # one word a package
    say "Missing: $(printf '%s' "$missing" | tr '\n' ' ')"
    if [ "$(id -u)" -ne 0 ] && ! as_root true 2>/dev/null; then tell_and_stop "$missing"; fi
    as_root apt-get -q -o DPkg::Lock::Timeout=300 update </dev/null || say "The package lists could not be renewed; going on with the old ones."
    # shellcheck disable=SC2046,SC2086
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 install \
        --no-install-recommends $(settle_choices $missing) </dev/null || tell_and_stop "$missing"
}

tell_and_stop() {
    # shellcheck disable=SC2046,SC2086
    names=$(settle_choices $1 | tr '\n' ' ')
    printf '%s\n' "Something is missing and can't be installed from here. As root, run:" \
        "    apt-get update && apt-get install --no-install-recommends ${names% }" "and start this again." >&2
    exit 3
}

# The system's own interpreter, which has the system's modules.
python=/usr/bin/python3
[ -x "$python" ] || python=python3

# Compiled files are found again in another clone.
# shellcheck disable=SC2154 # set by the script that sources this
CCACHE_BASEDIR=$root
export CCACHE_BASEDIR

build_folder_of() { # preset
    case $1 in
    release) echo build ;;
    *) echo "build-$1" ;;
    esac
}
