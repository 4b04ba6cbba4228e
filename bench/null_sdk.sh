#!/bin/bash
# Writes an SDK in assembly that does nothing, for whatever the module imports of the SDK and the
# helper library: the toolkit's names come from its own library, and two from null_sdk.c.
#
# usage: null_sdk.sh MODULE VARIABLES_HEADER
set -euo pipefail
nm -D --undefined-only "$1" | awk -v header="$2" '
    BEGIN {
        while ((getline line < header) > 0)
            while (match(line, /[A-Za-z_0-9]+[\[);]/)) {
                variable[substr(line, RSTART, RLENGTH - 1)] = 1
                line = substr(line, RSTART + RLENGTH)
            }
        print ".text"
    }
    $2 ~ /@|^_?Py|^_ITM_|^__gmon|^_ZT|^_ZNK?4Lumo|PythonMdioAccessWrapper/ { next }
    $2 == "bcm_vlan_port_get" || $2 == "bcm_l2_traverse" { next }
    $2 in variable {
        data = data ".globl " $2 "\n.type " $2 ", @object\n" $2 ":\n.size " $2 ", 1024\n"
        next
    }
    { printf ".globl %s\n.type %s, @function\n%s:\n", $2, $2, $2 }
    END {
        printf "    xorl %%eax, %%eax\n    ret\n.bss\n.balign 64\n%s.zero 65536\n", data
        print ".section .note.GNU-stack,\"\",@progbits"
    }'
