#!/bin/bash
# What is installed beside the programs, against the programs: check.sh FOLDER-OF-PROGRAMS. Needs no display.
set -uo pipefail
cd "$(dirname "$0")/../../packaging" || exit 1
programs=$1
export PATH=$programs:$PATH
failures=0
fail() {
    echo "$1"
    failures=$((failures + 1))
}

# Manual pages: every option and every command, and what stands on the other pages only does not.
for program in velbrin velbrin-cli velbrin-sim; do
    page=$(man/manpage.sh "$programs/$program" 0 2000-01-01 2>/dev/null | sed 's/\\//g')
    [[ $page == *".SH NAME"*"$program - "*".SH SYNOPSIS"*".B $program "*".SH OPTIONS"*".SH \"SEE ALSO\""* ]] ||
        fail "$program.1 is not whole"
    entries=$("$program" --help 2>/dev/null | sed -n 's/^  \(-[^ =[]*\|[a-z-]*\)[ =[].*/\1/p' | tr -d ,)
    [ "$(wc -w <<<"$entries")" -ge 5 ] || fail "$program --help has hardly any entries"
    for entry in $entries; do
        grep -qE "^\.B $entry([ ,=[]|\$)" <<<"$page" || fail "$program.1 lacks $entry"
    done
done
page=$(man/manpage.sh "$programs/velbrin-cli" 0 2000-01-01)
for needed in '^\.SS capture$' '^\.B \\-\\-channels' '^\.SS "?firmware\\?-info'; do
    grep -qE "$needed" <<<"$page" || fail "velbrin-cli.1 lacks $needed"
done

# Completion: what is offered for the last of some words. bash takes "=" for a word of its own.
. completions/velbrin-cli
offers() {
    local wanted=$1
    shift
    COMP_WORDS=(velbrin-cli "$@")
    COMP_CWORD=$#
    _velbrin_cli
    [ "${COMPREPLY[*]}" = "$wanted" ] || fail "completion of \"$*\" offers \"${COMPREPLY[*]}\" instead of \"$wanted\""
}
offers "capture" ca
offers "--virtual-drive --version" --v
offers "--trigger" capture --tr
offers "" scan --tr
offers "README.md" save READ
offers "README.md" capture --html READ
offers "" capture --rate ""
offers "" --node ""
offers "torva" --virtual-drive = t
offers "scan" --virtual-drive sc
offers "keta keta-pro keta-hc torva" --virtual-drive =

# Names that one file takes from another.
type=$(sed -n 's/^MimeType=\(.*\);$/\1/p' desktop/velbrin.desktop)
grep -q "<mime-type type=\"$type\">" desktop/velbrin-mime.xml || fail "velbrin.desktop opens $type, which no file is"
grep -q "<mediatype>$type<" desktop/*.metainfo.xml.in || fail "the software centre does not know $type"

[ $failures = 0 ]
