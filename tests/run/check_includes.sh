#!/bin/bash
# Includes go one way: a folder may include the folders below it, and nothing above. The rooms of
# generator/ and standin/ stand in a row, and each sees itself and those before it (of the
# generator's files only includes of its own count: the others are text that it writes). Every source
# opens with a comment on what it is for, and keeps to what the oldest compiler knows. Prints each line that breaks this, and fails.
set -euo pipefail
cd "$(dirname "$0")/../.."

outside='native|layout|sdk|helper|toolkit'
declare -A may=(
    [runtime]='runtime'
    [convert]="convert|runtime|$outside"
    [classes]="classes|convert|runtime|$outside"
    [device]="device|convert|runtime|$outside"
    [api]="api|classes|device|convert|runtime|generated|$outside"
    [platform]="$outside"
    [python]="python|convert|runtime|generated|$outside"
)

# row ROOT ROOM...: what each room of ROOT may include, given the order of the rooms.
row() {
    local root=$1 room seen=''
    shift
    for room in "$@"; do
        seen+="${seen:+|}$root/$room"
        may[$root/$room]=$seen
    done
}
declare -A only=()
for room in model read check standin emit; do only[generator/$room]=generator/; done
row generator model read check standin emit
row standin base model pipeline generic chapters regs phy text shell bench
for room in base model pipeline generic chapters regs phy text shell bench; do
    may[standin/$room]+="|$outside"
done
may[standin/bench]+="|runtime"
may[standin/toolkit]="standin/toolkit|$outside"

status=0
for folder in generator/*/ standin/*/; do
    [ -n "${may[${folder%/}]:-}" ] || { echo "$folder: has no place in the row" >&2; status=1; }
done
for folder in "${!may[@]}"; do
    [ -d "$folder" ] || continue
    while IFS= read -r line; do
        # A file name alone is a neighbour in the same folder.
        if ! [[ $line =~ \#include\ \"(${may[$folder]})/ || $line =~ \#include\ \"[^/]*\" ]]; then
            echo "$line: '$folder/' may not include that" >&2
            status=1
        fi
    done < <(grep -rnE "^#include \"${only[$folder]:-}" --include='*.h' --include='*.cpp' --include='*.inc' "$folder")
done

# Debian 11 has g++ 10.
if grep -rnE '^ *using enum |std::bit_cast|<format>|<source_location>' --include='*.cpp' --include='*.h' \
    --exclude-dir='build*' .; then
    echo "g++ 10 does not know that" >&2
    status=1
fi

# The generator sees to the headers of platform/ itself.
while IFS= read -r file; do
    [[ $(head -c 2 "$file") =~ ^/[/*] ]] || { echo "$file:1: open with a comment that says what it is for" >&2; status=1; }
done < <(find . \( -path './build*' -o -path ./platform -o -name '.*' ! -name . \) -prune \
    -o \( -name '*.cpp' -o -name '*.h' -o -name '*.c' -o -name '*.inc' \) -print)
exit "$status"
