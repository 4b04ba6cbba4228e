#!/bin/bash
# Includes go one way: a folder may include the folders below it, and nothing above (the generator
# is left out: its templates hold the includes of what it writes). Prints each
# include that does not, and fails.
set -euo pipefail
cd "$(dirname "$0")/../.."

outside='native|sdk|helper|toolkit'
declare -A may=(
    [runtime]='runtime'
    [convert]="convert|runtime|$outside"
    [classes]="classes|convert|runtime|$outside"
    [device]="device|convert|runtime|$outside"
    [api]="api|classes|device|convert|runtime|generated|$outside"
    [platform]="$outside"
    [standin]="standin|$outside"
    [python]="python|convert|runtime|generated|$outside"
)

status=0
for folder in "${!may[@]}"; do
    while IFS= read -r line; do
        # A file name alone is a neighbour in the same folder.
        if ! [[ $line =~ \#include\ \"(${may[$folder]})/ || $line =~ \#include\ \"[^/]*\" ]]; then
            echo "$line: '$folder/' may not include that" >&2
            status=1
        fi
    done < <(grep -rnE '^#include "' --include='*.h' --include='*.cpp' --include='*.inc' "$folder")
done
exit "$status"
