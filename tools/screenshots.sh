#!/bin/bash
# Makes the pictures of the manual: samples of the package, typed into with real keys, and the demo. Needs ./package.sh to have run.
# Usage: tools/screenshots.sh     writes docs/manual/*.png and docs/demo.png
set -uo pipefail
cd "$(dirname "$0")/.." || exit
root=$PWD

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

window_of() # TITLE
{
    local tries=100
    until xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1 | grep .; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return 1
        sleep 0.1
    done
}

# picture | program | title | keys, and texts behind "type"
shots='first-control|first|First control|type 7/4/2026
order-form|order|Order|type 5551234567 type 02302026 key Return
pick-list|pick|Pick list|type gre'

shoot() # PICTURE PROGRAM TITLE ACTS
{
    local window running
    (cd "$work" && exec wine "$2.exe") </dev/null >/dev/null 2>&1 &
    running=$!
    window=$(window_of "$3") || fail "$2 shows no window"
    xdotool windowfocus --sync "$window" sleep 0.3
    # shellcheck disable=SC2086
    set -- "$1" "$3" $4
    local picture=$1 title=$2
    shift 2
    while [ $# -gt 1 ]; do
        case $1 in
        type) xdotool type --delay 30 "$2" ;;
        key) xdotool key --delay 30 "$2" ;;
        esac
        shift 2
    done
    sleep 0.5
    import -window "$window" "$root/docs/manual/$picture.png" || fail "$picture"
    wine build/x64/bin/form_reader.exe "$title" close
    wait $running
}

package=$(echo build/package/ztedit-*-win64)
[ -d "$package" ] || fail "no package: ./package.sh makes it"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$package"/bin/*.dll "$work"
cmake -S samples -B "$work/build" -G Ninja -DCMAKE_PREFIX_PATH="$root/$package" -DCMAKE_SYSTEM_NAME=Windows \
    -DCMAKE_C_COMPILER=x86_64-w64-mingw32-gcc -DCMAKE_RC_COMPILER=x86_64-w64-mingw32-windres -DCMAKE_RUNTIME_OUTPUT_DIRECTORY="$work" \
    >/dev/null && cmake --build "$work/build" >/dev/null || fail "the samples"
. tools/wine_session.sh
start_wine_session new-display || exit
trap 'end_wine_session; rm -rf "$work"' EXIT
while IFS='|' read -r picture program title acts; do
    shoot "$picture" "$program" "$title" "$acts" </dev/null
done <<<"$shots"
tools/fill_demo.sh build/x64/bin/demo.exe docs/demo.png >/dev/null || fail "the demo form"
tools/fill_lab.sh build/x64/bin/demo.exe docs/manual/laboratory-windows.png >/dev/null || fail "the laboratory"
ls docs/manual/*.png docs/demo.png
