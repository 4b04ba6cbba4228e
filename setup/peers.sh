#!/bin/bash
# Gets what the benchmarks measure with and compare with: the profiler and Cython from
# the machine's own suite, and pybind11 into DIR, a tree of its own, since only the
# older suite has one for Python 2.7. What cannot be had is left out, with a note.
#
# usage: setup/peers.sh DIR
set -euo pipefail
cd "$(dirname "$0")/.."
. setup/lib.sh

readonly suite=bullseye  # as setup/python27.sh has added it
readonly packages=(valgrind cython3)

# fetch_pybind11 DIR: unpacks the suite's headers below DIR; false when they cannot be had.
fetch_pybind11() {
    mkdir -p "$1"
    (cd "$1" && apt-get -q download "pybind11-dev/$suite" >&2 &&
        dpkg-deb -x pybind11-dev_*.deb .)
}

main() {
    local folder=${1:?usage: setup/peers.sh DIR} missing
    mapfile -t missing < <(missing_packages "${packages[@]}")
    if [ "${#missing[@]}" -gt 0 ]; then
        step "Benchmarks: installing ${missing[*]}"
        { is_root && update_lists && install_packages "${missing[@]}"; } ||
            note "${missing[*]} cannot be installed"
    fi
    [ -d "$folder/usr/include/pybind11" ] && return
    step "Benchmarks: fetching pybind11"
    fetch_pybind11 "$folder" || note "pybind11 cannot be had from the suite $suite"
}

main "$@"
