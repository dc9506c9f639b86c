#!/bin/sh
# The tuning guide's session on a springy axis: three captured steps on the virtual drive, as columns into captures/, and
# their figures on the terminal. To be started with the folder of the programs: docs/help-plots/springy-session.sh
# build/release/bin
set -eu
programs=$(cd "$1" && pwd)
captures=$(cd "$(dirname "$0")" && pwd)/captures
folder=$(mktemp -d)
cd "$folder"
"$programs/velbrin-sim" --drive keta:flexible@5 --link COM1 >sim.log &
simulator=$!
trap 'kill $simulator; rm -rf "$folder"' EXIT
drive() {
    "$programs/velbrin-cli" --port COM1 --node 5 "$@" >drive.log || { cat drive.log; exit 1; }
}
while ! [ -e COM1 ]; do sleep 0.1; done

attempt() { # name, KVP, KVI, KPP; each step goes on by 1000 counts from where the last one has ended
    drive disable
    drive write CRI=0 KVP="$2" KVI="$3" KPP="$4"
    drive capture --enable --incremental --step 1000 --trigger change --rate 2500 \
        --channels torqueref,posreference,posmeas --csv "$captures/$1.csv" --format comma --html "$1.html"
    echo "$1: KVP $2, KVI $3, KPP $4"
    "$programs/velbrin-cli" figures "$1.html"
}
attempt springy-1 720 360 240
attempt springy-2 480 360 240
attempt springy-3 420 180 140
