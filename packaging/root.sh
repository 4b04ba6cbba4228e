# shellcheck shell=bash
# Bare roots of Debian suites, made from the machine's own mirror; sourced, never run. Sets `root`,
# the folder, from DIR and SUITE of the script. A root is made once and used again.
#
# REQUIRES: setup/lib.sh sourced, $roots and $suite set, root rights.

require_root "making a root of $suite"
root=$PWD/$roots/$suite

# The mirror that serves the suite here, or else the one of this system's own.
mirror() {
    local codename
    for codename in "$suite" "$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-}")"; do
        # shellcheck disable=SC2016
        apt-get indextargets --format '$(REPO_URI)' "Codename: $codename" | sort -u | head -n 1
    done | head -n 1
}

make_root() {
    [ -e "$root/made" ] && return
    setup/packages.sh root
    step "Making a bare root of $suite (a minute or two)"
    rm -rf "$root"
    mkdir -p "$root"
    debootstrap --variant=minbase "$suite" "$root" "$(mirror)" > "$root.log" 2>&1 ||
        die "debootstrap failed, see $roots/$suite.log"
    cp /etc/resolv.conf /etc/hosts "$root/etc/" 2>/dev/null || true
    cp -r /etc/apt/apt.conf.d/. "$root/etc/apt/apt.conf.d/"
    inside 'apt-get -qq update && apt-get -qq install --no-install-recommends -y git make' \
        >> "$root.log" 2>&1 || die "git and make cannot be installed, see $roots/$suite.log"
    touch "$root/made"
}

# inside COMMAND: runs it in the root with an environment of its own.
inside() {
    chroot "$root" /usr/bin/env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        HOME=/root LANG=C.UTF-8 bash -c "$1"
}

make_root
mountpoint -q "$root/proc" || mount -t proc proc "$root/proc"
trap 'umount "$root/proc"' EXIT
