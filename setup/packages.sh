#!/bin/bash
# Installs what a group of make targets needs and the machine lacks. Does nothing,
# in a fraction of a second, when all of it is there.
#
# usage: setup/packages.sh build|browser|format|tidy|fuzz|root|deb
set -euo pipefail
cd "$(dirname "$0")/.."
. setup/lib.sh

case "${1:-}" in
    # g++ brings the runtimes of AddressSanitizer and UBSan along.
    build)  packages=(g++ cmake ninja-build libgtest-dev libedit-dev nlohmann-json3-dev) ;;
    browser) packages=(chromium chromium-driver) ;;
    format) packages=(clang-format-16) ;;
    tidy)   packages=(clang-tidy) ;;
    root)   packages=(debootstrap) ;;
    deb)    packages=(dpkg-dev debhelper fakeroot lintian) ;;
    fuzz)   packages=(clang libclang-rt-dev) ;;
    *)      die "usage: setup/packages.sh build|browser|format|tidy|fuzz|root|deb" ;;
esac

mapfile -t missing < <(missing_packages "${packages[@]}")
[ "${#missing[@]}" -gt 0 ] || exit 0

require_root "installing ${missing[*]}"
step "Packages: installing ${missing[*]}"
update_lists
install_packages "${missing[@]}" ||
    die "apt cannot install them, mostly for want of a network; $apt_log has what it says"
