#!/bin/bash
# Looks that the portable libraries ask for no version of the C library above 2.17 and of the C++
# library above that of g++ 5, and that they load here.
#
# usage: packaging/portable_test.sh BUILD PYTHON
set -euo pipefail
build=${1:?usage: packaging/portable_test.sh BUILD PYTHON} python=${2:?an interpreter}

declare -A most=([GLIBC]=2.17 [GLIBCXX]=3.4.21 [CXXABI]=1.3.9)
status=0
for library in "$build"/portable/_OmbraSdkV2{Helper,Companion}.so; do
    while IFS=_ read -r family version; do
        newest=$(printf '%s\n' "$version" "${most[$family]}" | sort -V | tail -n 1)
        [ "$newest" = "${most[$family]}" ] && continue
        echo "$library needs ${family}_$version, above ${most[$family]}" >&2
        status=1
    done < <(readelf -V --wide "$library" | grep -oE '(GLIBC|GLIBCXX|CXXABI)_[0-9.A-Z_]+' | sort -u)
done
LD_LIBRARY_PATH=$build/lib PYTHONPATH=$build/portable:$build/lib "$python" -c '
import _OmbraSdkV2Helper, _OmbraSdkV2Companion
assert all("/portable/" in m.__file__ for m in (_OmbraSdkV2Helper, _OmbraSdkV2Companion))
assert _OmbraSdkV2Helper.BCM_E_NONE == 0'
exit "$status"
