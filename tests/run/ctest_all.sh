#!/bin/bash
# Runs all tests of every build tree that was configured, release first; goes on to
# the next tree after a failure, and fails in the end.
#
# usage: tests/run/ctest_all.sh JOBS
set -euo pipefail
cd "$(dirname "$0")/../.."
# shellcheck source=/dev/null
. build/python27.env

trees=(build)
if [ -n "$PYTHON27_DEBUG_EXECUTABLE" ]; then
    trees+=(build/debug)
else
    echo "==> No debug build of Python 2.7: the debug and sanitizer suites are left out"
fi

status=0
for tree in "${trees[@]}"; do
    echo "==> Tests of $tree"
    (cd "$tree" && ctest --output-on-failure --no-tests=error --parallel "${1:-2}") || status=1
done
exit "$status"
