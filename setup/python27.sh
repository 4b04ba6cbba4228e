#!/bin/bash
# Finds a Python 2.7 with headers, and its debug build, installing both where the
# machine lacks them; writes what CMake has to know into FILE.
#
# usage: setup/python27.sh FILE
#
# Debian 12 has no Python 2.7 any more, the release before it has. Its packages are
# taken from there, through a source that repeats the machine's own mirror and
# signing key, under a pin so low that nothing else ever comes from it. Where that
# cannot be done, a Python 2.7 found on the PATH serves, without the debug build.
#
# environment:
#   PYTHON27        build for this interpreter, install none
#   PYTHON27_DEBUG  its debug build; by default that of Debian, if installed
#
# FILE holds shell assignments, empty where there is nothing to tell:
#   PYTHON27_EXECUTABLE, PYTHON27_INCLUDE_DIR, PYTHON27_LIBRARY and the same three
#   of PYTHON27_DEBUG_. It is rewritten only when it would differ.
set -euo pipefail
cd "$(dirname "$0")/.."
. setup/lib.sh

readonly suite=bullseye
readonly packages=(python2.7-dev python2.7-dbg)
readonly debian_python=/usr/bin/python2.7  # one on the PATH may be a shim
readonly apt_dir=/etc/apt
readonly source_name=python27-$suite

# probe PROGRAM: sets found_executable, found_include, found_library, found_shared
# and found_debug; false, with all of them empty, when it is no Python 2.7 to build for.
probe() {
    local answer
    found_executable='' found_include='' found_library='' found_shared='' found_debug=''
    answer=$("$1" -E setup/python27_probe.py 2>/dev/null </dev/null) || return 1
    eval "$answer"
    [ -n "$found_executable" ]
}

# derive_source STYLE FILE...: prints the machine's own source, turned to the suite.
derive_source() {
    local style=$1 file have
    shift
    have="$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-stable}")|stable|oldstable"
    local files=()
    for file in "$@"; do [ -f "$file" ] && files+=("$file"); done
    [ "${#files[@]}" -eq 0 ] ||
        awk -v style="$style" -v have="$have" -v want="$suite" -f setup/apt_source.awk "${files[@]}"
}

# write_source: adds the source and prints its file; false when apt has no source
# that could be repeated.
write_source() {
    local text file
    text=$(derive_source deb822 "$apt_dir"/sources.list.d/*.sources)
    file=$apt_dir/sources.list.d/$source_name.sources
    if [ -z "$text" ]; then
        text=$(derive_source list "$apt_dir"/sources.list "$apt_dir"/sources.list.d/*.list)
        file=$apt_dir/sources.list.d/$source_name.list
    fi
    [ -n "$text" ] || return 1
    printf '# Python 2.7 comes from here and nothing else, see preferences.d/%s.\n%s\n' \
        "$source_name" "$text" > "$file"
    printf '%s\n' "$file"
}

# The pin stands before the source does, so that no other apt run sees the one
# without the other.
write_pin() {
    cat > "$apt_dir/preferences.d/$source_name" <<PIN
Explanation: only packages that $(. /etc/os-release && echo "$VERSION_CODENAME") lacks may come from $suite.
Package: *
Pin: release n=$suite
Pin-Priority: 50
PIN
}

# know_packages NAME...: makes apt know the packages, adding the source where none of
# the machine's own has them; false, with nothing added, when they are not to be had.
know_packages() {
    local file=''
    if ! can_be_installed "$@"; then
        write_pin
        file=$(write_source) || { remove_source; return 1; }
        step "Python 2.7: reading the suite $suite"
    fi
    update_lists
    can_be_installed "$@" && return
    [ -z "$file" ] || remove_source
    return 1
}

# remove_source: takes back what write_pin and write_source have done.
remove_source() {
    rm -f "$apt_dir/preferences.d/$source_name" "$apt_dir/sources.list.d/$source_name".{sources,list}
}

# install_debian_python MARK: true when Debian's interpreter and its headers are there
# in the end. The debug build may be missing then. MARK is a file that remembers that
# another interpreter serves, so that the next run takes no time over it.
install_debian_python() {
    local missing
    mapfile -t missing < <(missing_packages "${packages[@]}")
    [ "${#missing[@]}" -gt 0 ] || return 0
    if ! is_root; then
        note "not root, so ${missing[*]} cannot be installed"
    elif [ -e "$1" ]; then
        note "${missing[*]} could not be had before; 'make clean' tries again"
    elif know_packages "${missing[@]}" && step "Python 2.7: installing ${missing[*]}" &&
        install_packages "${missing[@]}"; then
        return 0
    else
        note "${missing[*]} cannot be had from the suite $suite, see $apt_log"
    fi
    have_package "${packages[0]}"
}

# find_on_path: probes what the PATH calls Python, and settles on the first one that
# has a shared library, or else on the first one.
find_on_path() {
    local folder name folders fallback=''
    IFS=: read -r -a folders <<< "$PATH"
    for name in python2.7 python2 python; do
        for folder in "${folders[@]}"; do
            [ -x "$folder/$name" ] || continue
            probe "$folder/$name" || continue
            [ "$found_shared$found_debug" = 10 ] && return
            fallback=${fallback:-$found_executable}
        done
    done
    [ -n "$fallback" ] && probe "$fallback"
}

# find_release MARK: sets found_* to the interpreter to build for, or ends the script.
# What serves in the place of Debian's is remembered by MARK.
find_release() {
    if [ -n "${PYTHON27:-}" ]; then
        probe "$PYTHON27" || die "PYTHON27=$PYTHON27 is no Python 2.7 with its headers"
        [ "$found_debug" = 0 ] || die "PYTHON27=$PYTHON27 is a debug build, which PYTHON27_DEBUG names"
    elif install_debian_python "$1" && probe "$debian_python"; then
        :
    elif find_on_path; then
        note "using $found_executable in its place"
        mkdir -p "$(dirname "$1")"
        touch "$1"
    else
        die "no Python 2.7 with headers: run 'make setup' as root, or name one with PYTHON27=/path"
    fi
}

# find_debug: the same for the debug build, with all of found_* empty without one.
find_debug() {
    if probe "${PYTHON27_DEBUG:-$debian_python-dbg}" && [ "$found_debug" = 1 ]; then
        return
    fi
    [ -z "${PYTHON27_DEBUG:-}" ] || die "PYTHON27_DEBUG=$PYTHON27_DEBUG is no debug build of Python 2.7"
    found_executable='' found_include='' found_library=''
    note "no debug build of Python 2.7: the debug and sanitizer suites are left out"
}

# print_found PREFIX: the assignments for what find_* has settled on.
print_found() {
    printf "%s_EXECUTABLE='%s'\n%s_INCLUDE_DIR='%s'\n%s_LIBRARY='%s'\n" \
        "$1" "$found_executable" "$1" "$found_include" "$1" "$found_library"
}

main() {
    local file=${1:?usage: setup/python27.sh FILE} answer
    find_release "${file%.env}.unavailable"
    answer=$(print_found PYTHON27)
    find_debug
    answer+=$'\n'$(print_found PYTHON27_DEBUG)
    [ -f "$file" ] && [ "$(cat "$file")" = "$answer" ] && return
    mkdir -p "$(dirname "$file")"
    printf '%s\n' "$answer" > "$file"
    step "Python 2.7: $(sed -n "s/^PYTHON27_EXECUTABLE='\(.*\)'/\1/p" "$file")"
}

main "$@"
