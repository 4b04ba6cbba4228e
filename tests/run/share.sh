#!/bin/bash
# The share of the tests in all code: C, C++, Python and build lines, blank ones aside, without the
# declarations and tables. Prints the lines by folder, then tests, all, and the share.
set -euo pipefail
cd "$(dirname "$0")/../.."
git ls-files --cached --others --exclude-standard ':!platform' ':!catalogue' |
    grep -E '\.(c|h|cpp|inc|py|sh|cmake)$|(^|/)(CMakeLists\.txt|Makefile)$' |
    while IFS= read -r file; do
        [ ! -f "$file" ] || echo "$file $(grep -c '[^[:space:]]' "$file")"
    done |
    awk '{
        depth = split($1, at, "/")
        folder = depth > 1 ? at[1] : "."
        for (i = 2; folder ~ /^tests/ && i < depth && i < 4; ++i) folder = folder "/" at[i]
        lines[folder] += $2; all += $2
        if (at[1] == "tests") tests += $2
    }
    END {
        for (folder in lines) printf "%6d %s\n", lines[folder], folder | "sort -k2"
        close("sort -k2")
        printf "%d of %d lines are tests: %.1f %%\n", tests, all, 100 * tests / all
    }'
