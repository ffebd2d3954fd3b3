# SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
# SPDX-License-Identifier: MIT
#
# Shared by the scripts: installs what is missing on Debian and Ubuntu, and keeps the clone its
# owner's. Sourced from the top folder of the clone.

say() { printf '\n== %s\n' "$*"; }

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

# The comment at the top of the script that runs is its help.
print_help() { sed -n -e '1,/^#$/d' -e '/^#/!q' -e 's/^# \{0,1\}//p' "$1"; }

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

# resolve CHOICE...: sets `packages` to those of this system that are missing, `unknown` to the choices
# that it does not have. One that ends in "?" may be missing where the system does not have it.
resolve() {
    local choice package
    packages=()
    unknown=()
    for choice in "$@"; do
        installed "${choice%\?}" && continue
        package=$(available "${choice%\?}")
        if [ -n "$package" ]; then
            packages+=("$package")
        elif [ "${choice%\?}" = "$choice" ]; then
            unknown+=("$choice")
        fi
    done
}

# need CHOICE...: installs what is missing, with sudo unless you are root. A choice is a package, or
# several of which one does, since Debian and Ubuntu releases name some of them differently.
need() {
    if ! command -v dpkg-query >/dev/null; then
        say "This is not a Debian or Ubuntu machine. Please make sure that it has: ${*%\?}"
        return 0
    fi
    local packages unknown choice as_root=()
    local install=(apt-get install -y -q --no-install-recommends)
    resolve "$@"
    [ $((${#packages[@]} + ${#unknown[@]})) -gt 0 ] || return 0

    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
        if ! command -v sudo >/dev/null; then
            # A machine that never ran `apt-get update` knows no names; apt also takes an expression.
            for choice in "${unknown[@]}"; do
                [ "${choice//|/}" = "$choice" ] || choice="'^($choice)\$'"
                packages+=("$choice")
            done
            die "Some packages are missing, and there is no sudo here. Please have an administrator run
    apt-get update && ${install[*]} ${packages[*]}
and start this again."
        fi
    fi
    # A repository that cannot be reached is no error yet: another one may have what is missing.
    "${as_root[@]}" apt-get update -q || true
    resolve "$@"
    [ ${#unknown[@]} -eq 0 ] || die "apt does not know ${unknown[*]}. Is this computer online?"
    install+=("${packages[@]}")
    say "Installing ${packages[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive "${install[@]}" ||
        die "The packages could not be installed. Is this computer online?
An administrator can install them with
    ${install[*]}"
}

# keep_owner SCRIPT ARGUMENT...: root would leave files that the clone's owner cannot change, and git
# refuses a clone that belongs to another user. So root hands over to the owner here.
keep_owner() {
    local owner name home groups=--clear-groups
    owner=$(stat -c %u .)
    if [ "$(id -u)" -eq 0 ] && [ "$owner" -ne 0 ]; then
        # A folder from outside of a container may belong to a user without a name here.
        IFS=: read -r name _ _ _ _ home _ < <(getent passwd "$owner" || echo)
        [ -z "$name" ] || groups=--init-groups
        say "Continuing as ${name:-user $owner}, to whom this folder belongs"
        exec setpriv --reuid "$owner" --regid "$(stat -c %g .)" "$groups" \
            env -u XDG_RUNTIME_DIR HOME="${home:-/tmp}" "$@"
    fi
    [ -w . ] || die "$PWD is not yours to write. Please make a clone of your own."
    local foreign
    foreign=$(find build -maxdepth 2 ! -writable -print -quit 2>/dev/null || true)
    [ -z "$foreign" ] || die "$foreign is not yours to write: another user has built here.
Please remove the folder: sudo rm -rf $PWD/build"
}

# What building the programs takes.
BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev 'qt6-serialport-dev|libqt6serialport6-dev'
    libedit-dev libtomlplusplus-dev libcli11-dev)
# What a window takes to show: the X11 platform plugin comes with Qt, fonts do not.
RUN_PACKAGES=(fonts-dejavu-core)

# With a compiler cache, what one clone has built serves the next.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
