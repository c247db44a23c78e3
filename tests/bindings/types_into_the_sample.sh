#!/bin/bash
# Fills in the sample form of a binding with real key presses: a wrong key, a date that hands the focus on by itself, an amount, Enter.
# Fails when the form does not read what was typed.
# Usage: types_into_the_sample.sh SAMPLE.EXE     (on a display and in a Wine session that are there)
set -uo pipefail
sample=$1
expected='Due 2026-11-21, amount 1234.50'

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# The form's window by its title, waited for.
find_window() # TITLE
{
    local tries=100
    until xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1 | grep .; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return 1
        sleep 0.1
    done
}

wine "$sample" </dev/null &
program=$!
trap 'kill $program 2>/dev/null' EXIT
window=$(find_window Invoice) || fail "$sample shows no form"
xdotool windowfocus --sync "$window" sleep 0.3
xdotool type --delay 30 x11212026
xdotool type --delay 30 1234.5
xdotool key Return
find_window "$expected" >/dev/null || fail "$sample: the title is '$(xdotool getwindowname "$window")', not '$expected'"
