#!/bin/bash
# Paints the spin of a modern control in every state, at the sizes of 96, 120, 144 and 192 dots per inch, with the visual style and
# without it, and lays the pictures side by side, four times enlarged. Needs the x64 build (tools/build.sh x64).
# Usage: tools/spin_pictures.sh [PICTURE]    docs/spin-looks.png unless told otherwise
set -euo pipefail
cd "$(dirname "$0")/.."
picture=$(realpath -m "${1:-docs/spin-looks.png}")

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
ZT_SPIN_PICTURES="Z:${folder//\//\\}" tools/run_under_wine.sh build/x64/bin/test_win32.exe --gtest_brief=1 --gtest_filter='*ModernLooks*' ||
    fail "the tests that paint"

rows=()
for style in Themed Unthemed; do
    for state in normal hot pressed disabled contrast contrast-dark; do
        cells=()
        for height in 20 25 30 40; do
            cell=$folder/$style-$state-$height.bmp
            [ -e "$cell" ] && cells+=("$cell")
        done
        [ ${#cells[@]} -gt 0 ] || fail "no picture of $style, $state"
        row=$folder/row-${#rows[@]}.png
        montage -label '' "${cells[@]}" -filter point -resize 400% -background white -gravity south -geometry '+12+6' -tile 4x1 \
            "$folder/cells.png"
        convert -size 300x160 -font Liberation-Sans -background white -fill black -gravity west -pointsize 22 \
            "label:$style, $state" "$folder/label.png"
        convert "$folder/label.png" "$folder/cells.png" -background white -gravity west +append "$row"
        rows+=("$row")
    done
done
convert "${rows[@]}" -background white -gravity west -append "$picture"
echo "$picture"
