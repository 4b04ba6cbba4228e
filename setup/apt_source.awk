# Reads apt source files of one format, `style` (list: one entry a line; deb822:
# stanzas), and prints the first entry that serves `have` from component main,
# rewritten to serve `want` with that component alone. All else of the entry (URI,
# signing key, architectures) stays as the machine has it. Prints nothing when no
# entry fits.
#
# usage: awk -v style=deb822 -v have='bookworm|stable' -v want=bullseye -f ... FILE...

function serves(suites, components) {
    return suites ~ ("(^|[ \t])(" have ")([ \t]|$)") && components ~ /(^|[ \t])main([ \t]|$)/
}

# A stanza ends at an empty line, and at the end of its file.
function end_stanza() {
    if (!found && types ~ /(^|[ \t])deb([ \t]|$)/ && enabled !~ /^[ \t]*no/ &&
        serves(suites, components)) {
        printf "Types: deb\nSuites: %s\nComponents: main\n%s", want, kept
        found = 1
    }
    types = suites = components = enabled = kept = field = ""
}

style == "list" && !found && /^[ \t]*deb[ \t]/ {
    line = $0
    sub(/#.*/, "", line)
    options = ""
    if (match(line, /\[[^]]*\]/)) {
        options = substr(line, RSTART, RLENGTH) " "
        line = substr(line, 1, RSTART - 1) substr(line, RSTART + RLENGTH)
    }
    count = split(line, word, /[ \t]+/)
    first = word[1] == "" ? 2 : 1  # leading blanks make an empty first word
    components = ""
    for (i = first + 3; i <= count; i++) components = components " " word[i]
    if (serves(word[first + 2], components)) {
        print "deb " options word[first + 1] " " want " main"
        found = 1
    }
    next
}

style == "deb822" && FNR == 1 { end_stanza() }
style == "deb822" && /^[ \t]*$/ { end_stanza(); next }
style == "deb822" && /^#/ { next }
style == "deb822" {
    value = $0
    if (/^[^ \t]/) {  # a new field; other lines go on with the last one
        field = tolower(substr($0, 1, index($0, ":") - 1))
        sub(/^[^:]*:/, "", value)
    }
    if (field == "types") types = types " " value
    else if (field == "suites") suites = suites " " value
    else if (field == "components") components = components " " value
    else {
        if (field == "enabled") enabled = value
        kept = kept $0 "\n"
    }
}

END { if (style == "deb822") end_stanza() }
