#!/bin/bash
# Configures a build tree, unless it has been configured in the same way before
# (changes to CMake's own files are noticed by the build itself).
#
# usage: setup/configure.sh release|debug|fuzz|threads
set -euo pipefail
cd "$(dirname "$0")/.."
. setup/lib.sh
# shellcheck source=/dev/null
. build/python27.env

options=(-G Ninja -DCMAKE_EXPORT_COMPILE_COMMANDS=ON)
case "${1:-}" in
    release) tree=build ;;
    debug)
        tree=build/debug
        options+=(-DOMBRA_DEBUG_INTERPRETER=ON -DOMBRA_SANITIZE=ON)
        ;;
    fuzz)
        tree=build/fuzz
        options+=(-DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++
                  -DOMBRA_FUZZ=ON -DOMBRA_SANITIZE=ON)
        ;;
    threads)
        tree=build/threads
        options+=(-DOMBRA_SANITIZE_THREADS=ON)
        ;;
    *) die "usage: setup/configure.sh release|debug|fuzz|threads" ;;
esac
for name in PYTHON27{,_DEBUG}_{EXECUTABLE,INCLUDE_DIR,LIBRARY}; do
    options+=("-D$name=${!name}")
done

stamp=$tree/configured.txt
wanted=$(printf '%s\n' "$PWD" "${options[@]}")
if [ -f "$tree/build.ninja" ] && [ "$(cat "$stamp" 2>/dev/null)" = "$wanted" ]; then
    exit 0
fi
step "Configuring the $1 build in $tree"
rm -f "$stamp"
# CMake refuses a tree that was configured before the checkout was moved.
home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$tree/CMakeCache.txt" 2>/dev/null || true)
[ -z "$home" ] || [ "$home" -ef . ] || rm -rf "$tree/CMakeCache.txt" "$tree/CMakeFiles"
cmake -S . -B "$tree" --no-warn-unused-cli "${options[@]}"
printf '%s\n' "$wanted" > "$stamp"
