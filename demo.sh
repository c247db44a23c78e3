#!/bin/bash
# Installs what is missing, builds for x86 and x64, and opens the demo form. Without a display the form runs on one of its
# own: real key and mouse presses fill it in, and the results are printed and pictured in demo.png.
# Usage: ./demo.sh [lab] [--classic] [--unattended]
#   lab            the laboratory instead of the form: a mask, its type and settings tried on a live control; pictured in lab.png
#   --classic      the fields of the form are edited in the classic way
#   --unattended   fill it in by itself although there is a display
set -uo pipefail
root=$(cd "$(dirname "$0")" && pwd)
cd "$root" || exit

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

way=()
lab=
unattended=
for argument in "$@"; do
    case $argument in
    lab) lab=yes ;;
    --classic) way=(--classic) ;;
    --unattended) unattended=yes ;;
    *)
        echo "usage: ./demo.sh [lab] [--classic] [--unattended]" >&2
        exit 2
        ;;
    esac
done

tools/install_deps.sh || exit
for preset in x86 x64; do
    tools/build.sh "$preset" || fail "the $preset build"
done

demo=build/x64/bin/demo.exe
. tools/wine_session.sh
if [ -n "${DISPLAY:-}" ] && [ -z "$unattended" ]; then
    start_wine_session any-display || exit
    echo "The window is open; close it to end."
    wine "$demo" ${lab:+--lab} ${way[@]+"${way[@]}"} </dev/null
    exit
fi
start_wine_session new-display || exit
if [ -n "$lab" ]; then
    tools/fill_lab.sh "$demo" lab.png || fail "the laboratory did not show what was expected of it"
    echo "Picture of the laboratory: $root/lab.png"
    exit
fi
tools/fill_demo.sh ${way[@]+"${way[@]}"} "$demo" demo.png || fail "the demo form did not show what was expected of it"
echo "Picture of the form: $root/demo.png"
