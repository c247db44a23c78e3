#!/bin/bash
# Plays the laboratory of the demo with real key and mouse presses and prints what came of it; on a display and in a Wine session that
# are there already. Fails when something does not show what it must.
# Usage: tools/fill_lab.sh DEMO.EXE [PICTURE.PNG]
set -uo pipefail
demo=$1
picture=${2:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# what is done | what is then shown, as item=pattern, both separated by " ; ". Done: "key" presses named keys, "type" types a text,
# "click" clicks into an item and "arrow" on its spin's upper arrow. Shown: "marked" is what is
# selected in the mask, "focus" the item with the focus, "list" all that was notified.
# shellcheck disable=SC2016  # the dollar sign is a currency symbol
steps='key alt+m ; type MM/DD ; key Tab|verdict=At the end: A field is missing* ; problem=the mask does not fit* ; focus=verdict
key alt+m ; type MM/DD/MM ; key Return|verdict=At 6, '\''M'\'': It is there a second time. ; marked=6-7 ; focus=mask
key alt+m ; type MM/DD/YYYY|verdict=The mask fits. ; problem=none ; state=empty ; data=(none) ; live=  /  /    
key alt+l Home ; type 7/4x/2026|live=07/04/2026 ; text=07/04/2026|   caret at 10 ; state=complete ; string=2026-07-04 ; data=2026-07-04
key Left Left|text=07/04/20|26   caret at 8 ; list=*ZTN_REJECTED at * '\''x'\'': it does not belong there*complete; ZTN_AUTOSKIP*
key shift+Left shift+Left|text=07/04/?20?26   6 to 8 selected
key alt+y alt+a alt+l Home ; type 0230|live=02/30/2026 ; state=invalid ; string=(none) ; list=*complete, then invalid*
key alt+v ; type 2024-02-29 ; key Return alt+l Home ; type 02292024|live=02/29/2024 ; list=*"2024-02-29" is shown*
key alt+v ; type 2023-02-29 ; key alt+w|live=02/29/2024 ; list=*"2023-02-29": there is no such date (reason 7)
key alt+s alt+r ; type 2024-01-01~2024-03-31 ; key alt+l Home ; arrow live|live=03/29/2024 ; text=?03?/29/2024   0 to 2 selected
click live ; key End Up|live=03/29/2024 ; focus=live ; list=*at 10: the range ends here (reason 9)
key alt+o|live=03/29/2024 ; string=2024-03-29
key alt+m ; type MM-DD-YY|live=03-29-24 ; state=complete
key alt+l ctrl+a Delete|live=00-00-00 ; state=empty
key alt+o alt+g Home n ; key alt+l ctrl+a ; type 123.5|live=123.50 ; type=Number ; mask=#,#.00
key alt+u g|live=123,50 ; string=123.50 ; data=123,50 ; decimal=, ; shortdate=dd.MM.yyyy
key alt+m ; type [currency(9)]|live=123,50EUR ; verdict=The mask fits.
key alt+3 ; type kr.|live=123,50kr. ; country=As changed below
key alt+8 ; type yyyy-MM-dd ; key alt+t d ; key alt+m ; type [date] ; key alt+l ; type 20260704|live=2026-07-04 ; type=Date
key alt+u Home|decimal=. ; shortdate=M/d/yyyy ; currency=$ ; live=07/04/2026
key alt+t s alt+m ; type ###-#### ; key alt+l ; type 5551234 ; key alt+m ; type (###) ####|live=(555) 1234 ; string=5551234
key alt+m Delete alt+l ctrl+a Delete alt+c ; type One = 1 ; key Return ; type Two/2 = 2|table=One = 1 Two/2 = 2 ; mask= ; type=String
key Escape alt+p alt+h alt+s alt+l ; type t|live=Two/2 ; string=2
key alt+y shift+Tab|list= ; focus=list
key alt+g Home alt+v ; type 2026-12-30 ; key Return alt+u g alt+m ; type DD.MM.YYYY|live=30.12.2026 ; list=*"2026-12-30" is shown
key alt+l Home ; type 31x11|live=31.11.2026 ; state=invalid ; data=(none) ; list=*complete, then invalid'

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

place_of() # ITEM: LEFT TOP RIGHT BOTTOM
{
    tr -d '\r' <"$work/places" | awk -v name="$1" '$1 == name { print $2, $3, $4, $5 }'
}

# The laboratory may be handed a click later than keys that are pressed after it, so keys wait for it.
mouse_acts=0
mouse_has_come()
{
    [ "$(tr -d '\r' <"$work/mouse")" = "$mouse_acts" ]
}

click() # X Y
{
    xdotool mousemove "$1" "$2" sleep 0.05 mousedown 1 sleep 0.03 mouseup 1
    mouse_acts=$((mouse_acts + 1))
    wait_for 60 mouse_has_come || fail "the laboratory has not got the mouse"
}

click_item() # ITEM ROW-IN-QUARTERS FROM-THE-RIGHT
{
    local top right bottom
    read -r _ top right bottom <<<"$(place_of "$1")"
    click $((right - $3)) $((top + (bottom - top) * $2 / 4))
}

act() # WORD REST
{
    # shellcheck disable=SC2086  # one word a key
    case $1 in
    key) xdotool key --delay 12 $2 ;;
    type) xdotool type --delay 12 -- "$2" ;;
    click) click_item "$2" 2 100 ;;
    arrow) click_item "$2" 1 9 ;;
    esac
}

table_is_whole()
{
    grep -q '^end|' "$work/table"
}

# The laboratory writes the table when F2 is pressed; on a machine with much else to do a key may be lost.
ask_for_table()
{
    rm -f "$work/table"
    for _ in 1 2 3; do
        xdotool key F2
        wait_for 15 table_is_whole && return
    done
    return 1
}

shown_in() # ITEM
{
    tr -d '\r' <"$work/table" | sed -n "s/^$1|//p"
}

each_of() # TEXT: its parts between " ; ", one a line
{
    awk '{ gsub(/ ; /, "\n"); print }' <<<"$1"
}

differences=0
compare() # EXPECTATIONS
{
    local expected item pattern shown
    while IFS= read -r expected; do
        item=${expected%%=*}
        pattern=${expected#*=}
        shown=$(shown_in "$item")
        # shellcheck disable=SC2053
        [[ $shown == $pattern ]] && continue
        echo "    <- $item is \"$shown\", expected \"$pattern\""
        differences=$((differences + 1))
    done < <(each_of "$1")
}

wine "$demo" --lab --places "$(winepath -w "$work/places")" --table "$(winepath -w "$work/table")" \
    --mouse "$(winepath -w "$work/mouse")" </dev/null >/dev/null 2>&1 &
wait_for 60 test -s "$work/places" || fail "the laboratory did not open"
window=$(xdotool search --sync --onlyvisible --name '^Mask laboratory$' | head -n 1)
[ -n "$window" ] || fail "the laboratory has no window"
xdotool windowfocus "$window" 2>/dev/null
sleep 0.5

while IFS= read -r row; do
    acts=${row%%|*}
    echo "$acts"
    while IFS= read -r one; do
        act "${one%% *}" "${one#* }" </dev/null
    done < <(each_of "$acts")
    ask_for_table </dev/null || fail "the laboratory tells nothing after: $acts"
    compare "${row#*|}"
done <<<"$steps"

[ -z "$picture" ] || import -window "$window" "$picture"

# A larger window has a longer list, and the button below it.
bottom_of()
{
    place_of "$1" | cut -d' ' -f4
}
former=$(bottom_of list)
xdotool windowsize --sync "$window" 1100 700
ask_for_table </dev/null || fail "the laboratory tells nothing once it is larger"
if [ "$(bottom_of list)" -le "$former" ] || [ "$(bottom_of empty)" -le "$(bottom_of list)" ]; then
    echo "    <- the list ends at $(bottom_of list), where it ended at $former"
    differences=$((differences + 1))
fi

xdotool key --window "$window" alt+F4
is_closed()
{
    ! xdotool search --onlyvisible --name '^Mask laboratory$'
}
wait_for 20 is_closed || fail "the laboratory does not close"
[ $differences -eq 0 ] || fail "$differences differ"
