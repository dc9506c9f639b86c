# Turns the text of --help into roff. layout=page: "Usage:" becomes SYNOPSIS, then DESCRIPTION, then a section for each
# head. layout=command: one command of several, without sections.
# What it goes by: a head stands at the margin and ends in ":"; an entry is indented by 2 (by up to 12 in a list inside
# another), its text stands behind two spaces or on the next line; what is indented by more than 12 goes on.

function roff(text) {
    gsub(/\\/, "\\e", text)
    gsub(/-/, "\\-", text)
    if (substr(text, 1, 1) == "." || substr(text, 1, 1) == "'")
        text = "\\&" text
    return text
}

function setNesting(deep) {
    if (deep != nested)
        print (deep ? ".RS" : ".RE")
    nested = deep
}

function startSection(name) {
    setNesting(0)
    inList = 0
    if (layout == "page" && name != section)
        print ".SH " name
    section = name
}

function printEntry(line, deep,    gap) {
    if (section == "SYNOPSIS" || section == "DESCRIPTION")
        startSection("OPTIONS")
    setNesting(deep)
    gap = index(line, "  ")
    print ".TP"
    print ".B " roff(gap ? substr(line, 1, gap - 1) : line)
    if (gap) {
        line = substr(line, gap)
        sub(/^ +/, "", line)
        print roff(line)
    }
    inList = 1
}

function printText(line) {
    if (layout == "page" && section == "SYNOPSIS")
        startSection("DESCRIPTION")
    else if (blankBefore || inList)
        print ".PP"
    setNesting(0)
    inList = 0
    print roff(line)
}

{
    match($0, /^ */)
    indent = RLENGTH
    line = substr($0, indent + 1)
    if (line == "") {
        blankBefore = 1
        next
    }
    if (line ~ /^Usage: /) {
        startSection("SYNOPSIS")
        sub(/^Usage: /, "", line)
        print ".B " roff(line)
    } else if (section == "SYNOPSIS" && indent && !inList && !blankBefore) {
        print ".br"
        print ".B " roff(line)
    } else if (!indent && line ~ /^[A-Z][A-Za-z ]*:$/) {
        startSection(toupper(substr(line, 1, length(line) - 1)))
        if (layout != "page")
            print ".PP"
    } else if (indent > 12) {
        print roff(line)
    } else if (indent) {
        printEntry(line, indent > 2)
    } else {
        printText(line)
    }
    blankBefore = 0
}

END { setNesting(0) }
