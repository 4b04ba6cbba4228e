#!/bin/bash
# The whole soak: each part with its command, as docs/reliability.md has them. Goes on after a part
# that fails, and fails in the end.
#
# usage: tests/soak/run.sh [SEED]
#
# environment:
#   CALLS            random calls on the release module, 10,000,000 by default
#   SANITIZED_CALLS  the same under AddressSanitizer and UBSan, 1,000,000 by default
set -uo pipefail
cd "$(dirname "$0")/../.."
# shellcheck source=/dev/null
. build/python27.env
seed=${1:-1}
root=$PWD
export PYTHON27_DEBUG_EXECUTABLE PYTHONDONTWRITEBYTECODE=1
status=0

# part TITLE COMMAND...
part() {
    echo "==> $1"
    shift
    "$@" || status=1
}

# in_tree TREE COMMAND...: with the module of a build tree.
in_tree() {
    local tree=$root/$1
    shift
    env OMBRA_BUILD="$tree" PYTHONPATH="$tree/lib" "$@"
}

release=$PYTHON27_EXECUTABLE
debug=$root/tests/run/python_debug.sh

part "Random calls" in_tree build "$release" tests/soak/calls.py "${CALLS:-10000000}" "$seed" 100000
part "Allocations that fail" in_tree build env \
    LD_PRELOAD="$root/build/tests/soak/libsoak_fail_allocations.so" \
    "$release" tests/soak/allocations.py
part "Interpreters" in_tree build build/tests/soak/soak_interpreters
part "Memory, by valgrind" in_tree build valgrind --quiet --error-exitcode=1 --read-inline-info=no \
    --suppressions=tests/soak/interpreter.supp "$release" -S tests/soak/memory.py
if [ -n "$PYTHON27_DEBUG_EXECUTABLE" ]; then
    part "Random calls under sanitizers" in_tree build/debug env OMBRA_PYTHON="$debug" \
        "$release" tests/soak/calls.py "${SANITIZED_CALLS:-1000000}" "$seed" 20000
    part "Interpreters under sanitizers" in_tree build/debug env ASAN_OPTIONS=detect_leaks=0 \
        build/debug/tests/soak/soak_interpreters
fi
# What other parts bring along.
for more in tests/soak/run_*.sh; do
    [ ! -e "$more" ] || part "${more##*/run_}" "$more" "$seed"
done
exit "$status"
