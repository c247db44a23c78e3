#!/bin/bash
# Types into each sample with real keys, and fails when one of its forms shows anything else than expected.
# Usage: types_into_samples.sh FOLDER READER.EXE    the samples' programs with their DLLs; form_reader (a display and a Wine session are there)
set -uo pipefail
folder=$1
reader=$2
failed=0

# program | title | what is done, in words of act below | what the children show, "ID TEXT" joined by ";"
# shellcheck disable=SC2016
steps='first|First control|type 7/4/2026|1 07/04/2026
dialog|Dialog|type 12242026 key Tab type 3 key Return|101 12/24/2026;102 3;103 From 2026-12-24, 3 nights;1 OK;2 Cancel
dialog|Dialog|type 02302026 key Return|101 02/30/2026;102 0;103 From some day, some nights;1 OK;2 Cancel
order|Order|type 5551234567 type 11212026 type 0930 type 112420261400 type 12 key Tab type 99.95 key Return|101 (555) 123-4567;102 11/21/2026;103 09:30;104 11/24/2026 14:00;105 12;106 99.95;110 5551234567|2026-11-21|09:30:00|2026-11-24 14:00:00|12|99.95;1 OK;2 Cancel
order|Order|type 5551234567 type 02302026 key Return|101 (555) 123-4567;102 02/30/2026;103   :  ;104   /  /       :  ;105 0;106 0.00;110 The day of the order does not exist.;1 OK;2 Cancel
subclassed|Subclassed|type 12x34 key Return|1 A12-34;2 A12-34
changed|Settings|settings sShortDate=dd.MM.yyyy sDecimal=, sThousand=. sCurrency=EUR iCurrency=3|1 21.11.2026;2 1.234,50EUR
changed|Settings|settings sShortDate=M/d/yyyy sDecimal=. sThousand=, sCurrency=$ iCurrency=0|1 11/21/2026;2 $1,234.50
pick|Pick list|type gr key Up|2 Y;1 grey
undo|Undo menu|type 555 key ctrl+a command 102|1 (   )    -    
undo|Undo menu|type 555 key ctrl+a command 102 command 100|1 (555)    -    
undo|Undo menu|type 555 command 100 command 101|1 (555)    -    '

# The rest of the words of a step, one act after the other.
act() # TITLE WORD...
{
    local title=$1
    shift
    while [ $# -gt 0 ]; do
        case $1 in
        type) xdotool type --delay 25 "$2" && shift 2 ;;
        key) xdotool key --delay 25 "$2" && shift 2 ;;
        command) wine "$reader" "$title" command "$2" && shift 2 ;;
        settings) wine "$reader" "$title" "$@" && return ;;
        *) return 1 ;;
        esac
    done
}

shown() # TITLE
{
    wine "$reader" "$1" | tr -d '\r' | paste -s -d ';'
}

play() # PROGRAM TITLE ACTS EXPECTED
{
    local program=$1 title=$2 window tries=100 got
    wine "$folder/$program.exe" </dev/null >/dev/null 2>&1 &
    until window=$(xdotool search --onlyvisible --name "^$title\$" 2>/dev/null | head -n 1 | grep .); do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return 1
        sleep 0.1
    done
    xdotool windowfocus --sync "$window" sleep 0.2
    # shellcheck disable=SC2086
    act "$title" $3 || return 1
    tries=20
    until got=$(shown "$title") && [ "$got" = "$4" ]; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || break
        sleep 0.1
    done
    wine "$reader" "$title" close
    tries=50
    while kill -0 $! 2>/dev/null; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || { kill -9 $! && echo "FAILED: $program does not end" && return 1; }
        sleep 0.1
    done
    [ "$got" = "$4" ] && return
    printf 'FAILED: %s, %s\n  expected %s\n  got      %s\n' "$program" "$3" "$4" "$got"
    return 1
}

while IFS='|' read -r program title acts expected; do
    play "$program" "$title" "$acts" "$expected" </dev/null || failed=$((failed + 1))
done <<<"$steps"
[ $failed -eq 0 ] || echo "FAILED: $failed steps" >&2
exit $((failed > 0))
