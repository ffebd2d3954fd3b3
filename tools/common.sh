# SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
# SPDX-License-Identifier: MIT
#
# Shared by ./demo and ./check: installs what is missing on Debian and Ubuntu.

say() { printf '\n== %s\n' "$*"; }

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

# True when one of the packages of a choice "this|or-that" is installed.
installed() {
    for name in ${1//|/ }; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep 'install ok installed' >/dev/null &&
            return 0
    done
    return 1
}

# The first package of a choice that this system has; nothing when it has none.
available() {
    for name in ${1//|/ }; do
        if apt-cache policy "$name" 2>/dev/null | grep 'Candidate: [^(]' >/dev/null; then
            echo "$name"
            return 0
        fi
    done
}

# need CHOICE...: installs what is missing, with sudo unless you are root. A choice is a package, or
# several of which one does, since Debian and Ubuntu releases name some of them differently. One that
# the system does not have at all is passed over with a word.
need() {
    if ! command -v dpkg-query >/dev/null; then
        say "This is no Debian or Ubuntu machine: please see to it that these are there: $*"
        return 0
    fi
    missing=()
    for choice in "$@"; do
        installed "$choice" || missing+=("$choice")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${missing[*]}"
    as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "Please install sudo, or run this as root once."
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -q
    packages=()
    for choice in "${missing[@]}"; do
        package=$(available "$choice")
        if [ -n "$package" ]; then
            packages+=("$package")
        else
            echo "This system has no package $choice."
        fi
    done
    [ ${#packages[@]} -eq 0 ] && return 0
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q \
        --no-install-recommends "${packages[@]}"
}

# What building the programs takes.
BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev 'qt6-serialport-dev|libqt6serialport6-dev'
    libgl-dev libedit-dev libtomlplusplus-dev libcli11-dev)
# What a window takes to show: the X11 platform plugin comes with Qt, fonts do not.
RUN_PACKAGES=('libqt6widgets6|libqt6widgets6t64' 'libqt6serialport6|libqt6serialport6t64'
    fonts-dejavu-core)

# With a compiler cache, what one clone has built serves the next.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
