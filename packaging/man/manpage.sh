#!/bin/bash
# Prints a manual page: manpage.sh PROGRAM VERSION DATE. What --help says (of the program and of each of its commands)
# is laid out by helptext.awk, so that the page can't fall behind; what --help has no room for stands in NAME.roff
# beside this script: its first line is the page's NAME line, the rest goes to the end.
set -euo pipefail
program=$1 version=$2 date=$3
name=${program##*/}
here=$(dirname "$0")

# helptext LAYOUT [COMMAND]
helptext() { "$program" ${2+"$2"} --help | sed 's|^Usage: [^ ]*/|Usage: |' | awk -v layout="$1" -f "$here/helptext.awk"; }

echo ".TH ${name^^} 1 \"$date\" \"Velbrin $version\" \"User Commands\""
echo ".SH NAME"
head -n 1 "$here/$name.roff"
helptext page
commands=$("$program" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p')
if [ -n "$commands" ]; then
    echo ".SH \"THE COMMANDS IN DETAIL\""
    for command in $commands; do
        echo ".SS $command"
        helptext command "$command" | grep -v ' has the options that all commands take'
    done
fi
tail -n +2 "$here/$name.roff"
