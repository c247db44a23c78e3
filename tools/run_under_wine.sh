#!/bin/sh
# Runs a Windows program under Wine, or a script (*.sh) that does: in the prefix and on the display of the test run, or, for a
# call by hand, in the project's own prefix and on a display that lives as long as the program.
# Usage: run_under_wine.sh PROGRAM [ARGUMENT...]
set -u

root=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX="${WINEPREFIX:-$root/build/wineprefix}"
export WINEARCH=win64
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=;winemenubuilder.exe=d}"
export LC_ALL=C.UTF-8

if [ -z "${DISPLAY:-}" ]; then
    exec xvfb-run --auto-servernum "$0" "$@"
fi

# Wine's services inherit the standard error of the program that happens to start them, and outlive it: a caller that reads
# a pipe to its end would wait for them. So that stream goes through a file.
mkdir -p "$(dirname "$WINEPREFIX")"
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT
case $1 in
*.sh) "$@" </dev/null 2>"$errors" ;;
*) wine "$@" </dev/null 2>"$errors" ;;
esac
result=$?
cat "$errors"
exit $result
