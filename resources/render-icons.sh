#!/bin/sh
# Renders icons/*.svg to the pictures that graphics.qrc compiles in: 64 px for the page list, 128 px for the program's
# own icon, and each once more in double size for screens with small pixels; then lists them in graphics.qrc. Needs
# rsvg-convert (librsvg2-bin).
set -eu
cd "$(dirname "$0")/icons"
mkdir -p resourceSource
for drawing in *.svg; do
    name=${drawing%.svg}
    size=64
    [ "$name" = tdIconLarge ] && size=128
    rsvg-convert -w $size -h $size -o "resourceSource/$name.png" "$drawing"
    rsvg-convert -w $((2 * size)) -h $((2 * size)) -o "resourceSource/$name@2x.png" "$drawing"
done

{
    echo '<RCC>'
    echo '    <qresource prefix="/icons">'
    for picture in resourceSource/*.png; do
        echo "        <file alias=\"$picture\">icons/$picture</file>"
    done
    echo '    </qresource>'
    echo '</RCC>'
} > ../graphics.qrc
