# shellcheck shell=bash
# Shared by the scripts of this folder; sourced, never run.
#
# Conventions: a script checks before it acts, says what it does in one line
# ("==> ..."), and can be run again at any time. Messages go to standard error,
# so that standard output stays free for results.

# step TEXT...: announces work that is about to begin.
step() { printf '==> %s\n' "$*" >&2; }

# note TEXT...: a detail of the current step.
note() { printf '    %s\n' "$*" >&2; }

# die TEXT...: reports why the script cannot go on, and ends it.
die() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# have_package NAME: true when the Debian package is installed and configured.
have_package() {
    dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# missing_packages NAME...: prints those that are not installed, one a line.
missing_packages() {
    local name
    for name in "$@"; do
        have_package "$name" || printf '%s\n' "$name"
    done
}

# can_be_installed NAME...: true when apt knows a version of each package. Reads the
# local lists only; without an update before, it may know nothing.
can_be_installed() {
    [ "$(LC_ALL=C apt-cache policy "$@" 2>/dev/null | grep -c '^  Candidate: [^(]')" -eq $# ]
}

is_root() { [ "$(id -u)" -eq 0 ]; }

# require_root WHAT: ends the script with a clear message unless root runs it.
require_root() {
    is_root || die "$1 takes root rights: run 'make setup' once as root, then go on as you are."
}

# apt_get ARGUMENT...: apt-get that asks nothing, waits for another apt to finish,
# and leaves what it says in a file.
readonly apt_log=build/apt.log
apt_get() {
    mkdir -p build
    DEBIAN_FRONTEND=noninteractive apt-get -q -y \
        -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 -o Acquire::Retries=3 "$@" >> "$apt_log" 2>&1
}

# update_lists: reads the package lists anew. One source that is out of order does not
# end the script: what matters is whether the packages can be installed afterwards.
# REQUIRES: root.
update_lists() {
    apt_get update || true
}

# install_packages NAME...: installs the packages and what they depend on, no more; false when they
# cannot be had.
# REQUIRES: root, and package lists that know them.
install_packages() {
    apt_get install --no-install-recommends "$@"
}
