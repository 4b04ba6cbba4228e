#!/bin/bash
# Removes what `make install` and `make install-standin` have put below DESTDIR, by the lists that
# they left in the build tree, and folders of ours that are empty then.
#
# usage: [DESTDIR=] packaging/uninstall.sh BUILD
set -euo pipefail
cd "$(dirname "$0")/.."
. setup/lib.sh

found=''
for list in "${1:?usage: packaging/uninstall.sh BUILD}"/install_manifest_{module,standin}.txt; do
    [ -f "$list" ] || continue
    found=yes
    step "Removing what $(basename "$list") lists"
    while IFS= read -r file || [ -n "$file" ]; do
        rm -f "${DESTDIR:-}$file"
        rmdir --ignore-fail-on-non-empty "$(dirname "${DESTDIR:-}$file")" 2>/dev/null || true
    done < "$list"
    rm -f "$list"
done
[ -n "$found" ] || note "nothing was installed from this build tree"
