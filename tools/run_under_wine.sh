#!/bin/sh
# Runs a Windows program under Wine: in the prefix and on the display of the test run, or, for a call by hand, in the
# project's own prefix and on a display that lives as long as the program. Usage: run_under_wine.sh PROGRAM [ARGUMENT...]
set -u

root=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX="${WINEPREFIX:-$root/build/wineprefix}"
export WINEARCH=win64
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"
export LC_ALL=C.UTF-8

mkdir -p "$(dirname "$WINEPREFIX")"
if [ -n "${DISPLAY:-}" ]; then
    exec wine "$@" </dev/null
fi
exec xvfb-run --auto-servernum wine "$@" </dev/null
