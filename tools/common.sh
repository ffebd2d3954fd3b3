# SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
# SPDX-License-Identifier: MIT
#
# Shared by ./demo and ./check: installs what is missing on Debian and Ubuntu.

say() { printf '\n== %s\n' "$*"; }

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

# True when every package is installed.
installed() {
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            return 1
    done
}

# need PACKAGE...: installs the packages that are missing, with sudo unless you are root.
need() {
    if ! command -v dpkg-query >/dev/null; then
        say "This is no Debian or Ubuntu machine: please see to it that these are there: $*"
        return 0
    fi
    missing=()
    for package in "$@"; do
        installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${missing[*]}"
    as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "Please install sudo, or run this as root once."
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q \
        --no-install-recommends "${missing[@]}"
}

# The packages that building the programs takes.
BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev qt6-serialport-dev libgl-dev)
# What a window takes to show: the X11 platform plugin comes with Qt, fonts do not.
RUN_PACKAGES=(libqt6widgets6 libqt6serialport6 fonts-dejavu-core)

# With a compiler cache, what one clone has built serves the next.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
