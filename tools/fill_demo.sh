#!/bin/bash
# Fills the demo form in with real key and mouse presses and prints what came of it; on a display and in a Wine session that
# are there already. Fails when a field does not show, or read back as, what it must.
# Usage: tools/fill_demo.sh [--classic] DEMO.EXE [PICTURE.PNG]
set -uo pipefail
way=modern
if [ "${1:-}" = --classic ]; then
    way=classic
    shift
fi
demo=$1
picture=${2:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# field | what is done | shown | value read back | state
# Done: plain text is typed from the field's start; "quick:" the same without a pause; "over:" over the whole selected
# text; "keys:" presses named keys; "paste:" pastes a text over everything; "up:" and "down:" press a spin arrow that many times with the
# mouse; "hold:" holds the upper arrow for so many seconds; "wheel:" turns the wheel that many notches upwards. Shown and value are
# shell patterns: how often a held arrow repeats depends on the machine.
# shellcheck disable=SC2016  # the dollar sign is a currency symbol
classic_steps='date|070495|07/04/95|1995-07-04
date|7/4/95|07/04/95|1995-07-04
dated|04jul1995|04-JUL-1995|1995-07-04
dayofyear|1851995|185/1995|1995-07-04
time|14:07:09:250|14:07:09:250|14:07:09:250000
time12|1230P|12:30 PM|12:30:00:000000
time12|9:30p|09:30 PM|21:30:00:000000
datetime|199507041407|1995-07-04 14:07|1995-07-04 14:07:00:000000
regdate|07041995|07/04/1995|1995-07-04
regtime|140709|14:07:09|14:07:09:000000
phone|2125551234567|(212) 555-1234 X567|2125551234567
code|ab-12cd|AB-12CD|AB12CD
number|over:123.45|123.45|123.45
number|keys:End BackSpace BackSpace BackSpace BackSpace BackSpace BackSpace BackSpace 1 2|12.00|12.00
number|over:-0.5|-.50|-.50
number|over:x.5|.50|.50
percent|over:12.5|12.50%|0.125
percent|keys:End Left BackSpace 5|12.55%|0.1255
currency|over:$12345.67|$12,345.67|12345.67
currency|over:-5|$-5.00|-5.00
decimal|over:1234567.8901|1,234,567.8901|1234567.8901
pick|G|Grey|Y
spinnumber|hold:1|[345][05]|[345][05]
spindec|keys:Up Up Down|20.90|20.90
spindate|keys:Home Right Right Right Up Up|12/01/2026|2026-12-01
spintime|down:1|10:30 AM|10:30:00:000000
spincode|up:2|Wednesday|3'

# shellcheck disable=SC2016
modern_steps='date|070495|07/04/95|1995-07-04|complete
date|7/4/95|07/04/95|1995-07-04|complete
date|x|07/04/95|1995-07-04|complete
dated|04jul1995|04-JUL-1995|1995-07-04|complete
dated|keys:ctrl+a Delete|  -   -    |(none)|empty
dated|keys:ctrl+z|04-JUL-1995|1995-07-04|complete
dayofyear|1851995|185/1995|1995-07-04|complete
time|14:07:09:250|14:07:09:250|14:07:09:250000|complete
time12|1330|01:30 PM|13:30:00:000000|complete
time12|9:30p|09:30 PM|21:30:00:000000|complete
datetime|199507041407|1995-07-04 14:07|1995-07-04 14:07:00:000000|complete
regdate|02292024|02/29/2024|2024-02-29|complete
regdate|03311995|03/31/1995|1995-03-31|complete
regdate|04312023|04/31/2023|(none)|invalid
regdate|paste:4 July 2026|07/04/2026|2026-07-04|complete
regtime|140709|14:07:09|14:07:09:000000|complete
phone|paste:5551234567|(555) 123-4567 X   |5551234567   |incomplete
phone|2125551234567|(212) 555-1234 X567|2125551234567|complete
phone|keys:ctrl+a ctrl+x|(   )    -     X   |             |empty
phone|keys:ctrl+z|(212) 555-1234 X567|2125551234567|complete
code|ab-12cd|AB-12CD|AB12CD|complete
number|over:123.45|123.45|123.45|complete
number|keys:End BackSpace BackSpace BackSpace BackSpace BackSpace BackSpace BackSpace 1 2|12.00|12.00|complete
number|over:-0.5|-.50|-.50|complete
number|over:x.5|.50|.50|complete
percent|over:12.5|12.50%|0.125|complete
currency|over:$12345.67|$12,345.67|12345.67|complete
currency|over:-5|$-5.00|-5.00|complete
decimal|over:1234567.8901|1,234,567.8901|1234567.8901|complete
pick|quick:gr|Green|G|complete
pick|keys:Down|Red|R|complete
spinnumber|hold:1|[2-7][05]|[2-7][05]|complete
spinnumber|over:40|40|40|complete
spinnumber|wheel:2|50|50|complete
spindec|keys:Up Up Down|20.90|20.90|complete
spindate|keys:Home Right Right Right Up Up|12/01/2026|2026-12-01|complete
spintime|down:1|10:30 AM|10:30:00:000000|complete
spincode|up:2|Wednesday|3|complete'

# wait_for SECONDS COMMAND...: until the command succeeds.
wait_for()
{
    local tries=$(($1 * 10))
    shift
    until "$@" >/dev/null 2>&1; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return 1
        sleep 0.1
    done
}

place_of() # field: LEFT TOP RIGHT BOTTOM
{
    tr -d '\r' <"$work/places" | awk -v name="$1" '$1 == name { print $2, $3, $4, $5 }'
}

# What the mouse has done so far. The form may be handed a click later than keys that are pressed after it, so keys wait for it.
mouse_acts=0
mouse_has_come()
{
    [ "$(tr -d '\r' <"$work/mouse")" = "$mouse_acts" ]
}
await_mouse() # acts
{
    mouse_acts=$((mouse_acts + $1))
    wait_for 60 mouse_has_come || fail "the form has not got the mouse"
}

click() # X Y
{
    xdotool mousemove "$1" "$2" sleep 0.05 click 1
    await_mouse 1
}

spin_arrow() # field row(1 up, 3 down): moves the pointer there
{
    local left top right bottom
    read -r left top right bottom <<<"$(place_of "$1")"
    xdotool mousemove $((right - 9)) $((top + (bottom - top) * $2 / 4)) sleep 0.05
}

# An arrow that is held for half a second steps on by itself.
press_once()
{
    local begun=${EPOCHREALTIME/./}
    xdotool mousedown 1 sleep 0.03 mouseup 1
    [ $(((${EPOCHREALTIME/./} - begun) / 1000)) -lt 400 ]
}

press_often() # times
{
    local i
    for ((i = 0; i < $1; ++i)); do
        press_once || return
        await_mouse 1
    done
}

# Presses as a person does. Where the machine stands still so long that a press becomes a held one, the field shows its first value
# again and is stepped anew.
press_arrow() # field row times
{
    local tries=6
    spin_arrow "$1" "$2"
    until press_often "$3"; do
        await_mouse 1
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return
        echo "(the machine stood still: $1 is stepped again)"
        xdotool key F3
        ask_for_table || fail "the form tells nothing of $1"
    done
}

# Types what a pause of a second would part; anew where the machine stands still that long.
type_quickly() # text
{
    local tries=6 begun
    until
        begun=${EPOCHREALTIME/./}
        xdotool key --delay 20 Home type --delay 25 -- "$1"
        [ $(((${EPOCHREALTIME/./} - begun) / 1000)) -lt 800 ]
    do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return
        echo "(the machine stood still: $1 is typed again)"
        sleep 1.2
    done
}

# Two clicks on one spot of a field would be a double click, which does not bring the focus back to a field that a full one has left.
declare -A offsets

do_step() # field action
{
    local left top right bottom
    read -r left top right bottom <<<"$(place_of "$1")"
    [ -n "${bottom:-}" ] || fail "there is no field $1"
    offsets[$1]=$((26 - ${offsets[$1]:-20}))
    click $((left + offsets[$1])) $(((top + bottom) / 2))
    case $2 in
    over:*) xdotool key --delay 20 Home shift+End type --delay 25 -- "${2#over:}" ;;
    quick:*) type_quickly "${2#quick:}" ;;
    keys:*)
        # shellcheck disable=SC2086  # one word a key
        xdotool key --delay 40 ${2#keys:}
        ;;
    up:*) press_arrow "$1" 1 "${2#up:}" ;;
    down:*) press_arrow "$1" 3 "${2#down:}" ;;
    hold:*)
        spin_arrow "$1" 1
        xdotool mousedown 1 sleep "${2#hold:}" mouseup 1
        await_mouse 1
        ;;
    paste:*)
        printf %s "${2#paste:}" | xclip -selection clipboard
        xdotool key --delay 40 ctrl+a ctrl+v
        ;;
    wheel:*)
        xdotool click --repeat "${2#wheel:}" --delay 50 4
        await_mouse "${2#wheel:}"
        ;;
    *) xdotool key --delay 20 Home type --delay 25 -- "$2" ;;
    esac
    sleep 0.1
}

options=()
steps=$modern_steps
if [ $way = classic ]; then
    options=(--classic)
    steps=$classic_steps
fi
options+=(--places "$(winepath -w "$work/places")" --table "$(winepath -w "$work/table")"
    --mouse "$(winepath -w "$work/mouse")")
wine "$demo" "${options[@]}" </dev/null >/dev/null 2>&1 &
wait_for 60 test -s "$work/places" || fail "the form did not open"
window=$(xdotool search --sync --onlyvisible --name '^Masked edit fields$' | head -n 1)
[ -n "$window" ] || fail "the form has no window"
xdotool windowfocus "$window" 2>/dev/null
sleep 0.5

table_is_whole()
{
    [ "$(wc -l <"$work/table")" -eq "$(wc -l <"$work/places")" ]
}

# The form writes the table when F2 is pressed; on a machine with much else to do a key may be lost.
ask_for_table()
{
    local try
    rm -f "$work/table"
    for try in 1 2 3 4; do
        xdotool key F2
        wait_for 10 table_is_whole && return
    done
    return 1
}

printf '%-18s %-36s %-22s %-28s %s\n' Field 'Keys typed, or presses' 'Text shown' 'Value read back' State
failures=0
while IFS='|' read -r field action shown value state; do
    do_step "$field" "$action" </dev/null
    ask_for_table || fail "the form tells nothing of $field"
    IFS='|' read -r _ label real_shown real_value real_state <<<"$(grep "^$field|" "$work/table" | tr -d '\r')"
    verdict=
    # shellcheck disable=SC2053
    if [[ $real_shown != $shown || $real_value != $value || $real_state != ${state:-*} ]]; then
        verdict="   <- expected $shown, $value, $state"
        failures=$((failures + 1))
    fi
    printf '%-18s %-36s %-22s %-28s %s%s\n' "$label" "$action" "$real_shown" "$real_value" "$real_state" "$verdict"
done <<<"$steps"
[ -z "$picture" ] || import -window root -crop "$(xdotool getwindowgeometry --shell "$window" |
    awk -F= '{ v[$1] = $2 } END { print v["WIDTH"] "x" v["HEIGHT"] "+" v["X"] "+" v["Y"] }')" +repage "$picture"
xdotool key --window "$window" alt+F4
is_closed()
{
    ! xdotool search --onlyvisible --name '^Masked edit fields$'
}
wait_for 20 is_closed || fail "the form does not close"
[ $failures -eq 0 ] || fail "$failures fields differ"
