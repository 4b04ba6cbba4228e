#!/bin/bash
# Makes a bare root of a Debian suite from the machine's own mirror, clones this tree's HEAD into it,
# and runs there, as a new user would with git and make alone, the demo and all tests; then loads the
# portable module of this machine's build, where there is one, in that root.
#
# usage: packaging/root_test.sh DIR SUITE     REQUIRES: root
set -euo pipefail
cd "$(dirname "$0")/.."
. setup/lib.sh

roots=${1:?usage: packaging/root_test.sh DIR SUITE} suite=${2:?a suite}
. packaging/root.sh

step "Cloning HEAD into the root of $suite"
rm -rf "$root/src"
git clone -q . "$root/src"
inside 'cd /src && make demo && make test'

if [ -d build/portable ]; then
    step "Loading the portable module of this machine in the root of $suite"
    rm -rf "$root/portable" && mkdir "$root/portable"
    cp build/portable/*.so build/lib/*.py "$root/portable/"
    inside 'cd / && LD_LIBRARY_PATH=/src/build/lib PYTHONPATH=/portable python2.7 -c "
import OmbraSdkV2Helper as sdk
assert sdk.__file__.startswith(\"/portable/\")
unit = sdk.addOmbraDevice(0, 1, 0, 0)
assert sdk.soc_init(unit) == 0
print(\"the portable module runs here\")"'
fi
