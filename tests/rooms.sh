#!/bin/bash
# Which room may include what of another, so that each can be changed or replaced by itself.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
failed=0

# keep_out WHAT PATTERN FOLDER...: no source in these folders includes a header that fits the pattern.
keep_out() {
    local what=$1 pattern=$2 found
    shift 2
    found=$(grep -rnE "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]([^>\"]*/)?($pattern)[^/]*[>\"]" --include='*.cpp' --include='*.h' "$@")
    [ -z "$found" ] || { printf '%s:\n%s\n' "$what" "$found"; failed=1; }
}

engine='Q(t)?WebEngine|(helpengine|helppage|plotpicture|plotscheme)\.h'
outside=$(find analysis buslib cli desk docs model report session sim tests ui -name '*.cpp' -o -name '*.h' | grep -v '^ui/help/')
[ -n "$outside" ] || exit 1
# shellcheck disable=SC2086 # a word a file
keep_out "The web engine is known outside ui/help (bench, which shows it bare, may)" "$engine" $outside
keep_out "What others include of ui/help knows the web engine" "$engine" ui/help/help{view,browser}.h ui/help/enginestart.h ui/help/helpbrowser.cpp
keep_out "The bus library is known to a program" '(zetabus|busdevice|busrecord|packet|serialport)\.h' ui cli
keep_out "Values and files know a widget or a port" 'QtWidgets|QWidget|QSerialPort|connection\.h' model analysis report
exit $failed
