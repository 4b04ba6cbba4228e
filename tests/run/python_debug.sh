#!/bin/bash
# Runs the debug interpreter, which is not built with sanitizers itself, so that it
# can load modules that are: their runtimes have to be in the process first.
#
# usage: PYTHONPATH=... tests/run/python_debug.sh ARGUMENT...
#
# environment:
#   PYTHON27_DEBUG_EXECUTABLE  the interpreter, /usr/bin/python2.7-dbg by default
#   CXX                        the compiler whose runtimes are meant, g++ by default
#   ASAN_OPTIONS, UBSAN_OPTIONS  added to the options below, and stronger
set -euo pipefail

# runtime NAME: the path of a library of the compiler.
runtime() {
    local path
    path=$("${CXX:-g++}" -print-file-name="$1")
    [ -e "$path" ] || { echo "error: ${CXX:-g++} has no $1" >&2; exit 1; }
    printf '%s' "$path"
}

# libubsan brings libstdc++ along: AddressSanitizer looks for __cxa_throw when it
# starts, and aborts at the first throw if only a later module has it.
asan=$(runtime libasan.so)
ubsan=$(runtime libubsan.so)

# Leaks are hunted by reference counts and the runtime's own books, since the
# interpreter keeps much to its end. A test of memory that runs out wants null.
asan_options=detect_leaks=0:allocator_may_return_null=1:detect_stack_use_after_return=1
asan_options+=:strict_string_checks=1:check_initialization_order=1
ubsan_options=halt_on_error=1:print_stacktrace=1

exec env LD_PRELOAD="$asan $ubsan" \
    ASAN_OPTIONS="$asan_options${ASAN_OPTIONS:+:$ASAN_OPTIONS}" \
    UBSAN_OPTIONS="$ubsan_options${UBSAN_OPTIONS:+:$UBSAN_OPTIONS}" \
    "${PYTHON27_DEBUG_EXECUTABLE:-/usr/bin/python2.7-dbg}" "$@"
