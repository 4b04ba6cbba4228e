#!/bin/bash
# check_answers.sh BUILD: the table of who answers each call (made/standin_calls.txt) is made from a
# look at the sources; the symbols of the objects have to say the same. Prints what differs: `<` as
# the table has it, `>` as the objects have it, "made" for a generated answer.
set -euo pipefail
cd "$1"
find standin/CMakeFiles -name '*.o' ! -path '*/OmbraSdkV2Helper.dir/*' -exec nm -AC --defined-only {} + |
    sed -nE 's#^standin/CMakeFiles/([^/]+)\.dir/([^:]+)\.o:[0-9a-f]+ T (real_)?([^(]+).*#\4\t\2#p' |
    sed -E 's#\t(__|\.\.)/made/.*#\tmade#; t; s#\t#\tstandin/#' |
    awk -F '\t' -v OFS='\t' 'NR == FNR { known[$1]; next } $1 in known' made/standin_calls.txt - |
    sort -u |
    diff <(sed -E 's#\t[^\t]*\t.*#\tmade#' made/standin_calls.txt | sort -u) - ||
    { echo "made/standin_calls.txt and the symbols of the objects differ" >&2; exit 1; }
[ -s made/standin_calls.txt ]
