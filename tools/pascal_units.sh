#!/bin/bash
# Compiles a Pascal program for 64-bit Windows with Debian's Free Pascal, which brings the run-time units of Linux only: those for Windows
# that the bindings need are compiled from its source package first, once.
# Usage: tools/pascal_units.sh OUTPUT-FOLDER PROGRAM.PAS...
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
output=$1
shift

command -v fpc >/dev/null || { echo "FAILED: no fpc here; tools/install_deps.sh --bindings installs it" >&2; exit 1; }
sources=/usr/share/fpcsrc/$(fpc -iV)/rtl
[ -d "$sources/win64" ] || { echo "FAILED: no $sources/win64; tools/install_deps.sh --bindings installs it" >&2; exit 1; }
units=$root/build/pascal-units/$(fpc -iV)-$(cksum <"$0" | cut -d " " -f 1)  # made anew when this script changes
# -n: nothing from the machine's own configuration, whose units are of Linux
compile=(fpc -n -Twin64 -Px86_64 -v0 -ve "-Fu$units")

build_units() # in the order in which they use each other
{
    local folder=$1 include
    local includes=()
    for include in inc x86_64 win win64 win/wininc objpas; do
        includes+=("-Fi$sources/$include")
    done
    local unit options
    for unit in win64/system.pp win64/sysinit.pp objpas/objpas.pp inc/ctypes.pp win64/windows.pp win/messages.pp inc/fpintres.pp; do
        options=(-Sg)
        [ "$unit" != win64/system.pp ] || options+=(-Us)
        fpc -n -Twin64 -Px86_64 -v0 -ve "${options[@]}" "${includes[@]}" "-Fu$folder" "-FU$folder" "$sources/$unit" \
            >"$folder/compile.log" 2>&1 || { cat "$folder/compile.log" >&2; return 1; }
    done
    rm "$folder/compile.log"
}

if [ ! -d "$units" ]; then
    fresh=$units.new
    rm -rf "$fresh"
    mkdir -p "$fresh"
    build_units "$fresh"
    mv "$fresh" "$units"
fi

mkdir -p "$output"
for program in "$@"; do
    "${compile[@]}" -vw "-Fu$root/bindings/pascal" "-FU$output" "-FE$output" "$program"
done
