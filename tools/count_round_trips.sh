#!/bin/bash
# Counts the requests to Wine's window server that a key costs in hidden fields, as request lines of WINEDEBUG=+server, and
# fails when a field costs more than it may. Usage: tools/count_round_trips.sh [PRESET]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
preset=${1:-x64}

"$root/tools/install_deps.sh"
"$root/tools/build.sh" "$preset"
. "$root/tools/wine_session.sh"
start_wine_session new-display

# The server writes its trace to the standard error of the program that started it, so it is started anew by this one.
trace=$(mktemp)
trap 'rm -f "$trace"; end_wine_session' EXIT
wineserver -k || true
wineserver -w || true
WINEDEBUG=+server wine "$root/build/$preset/bin/round_trips.exe" </dev/null 2>"$trace" | tr -d '\r' | sed 's/^/typed: /'
wineserver -k || true

# A request line is "THREAD: name( ... )", its answer "THREAD: name() = ...".
awk '
    BEGIN { limit["plain"] = 0; limit["date"] = 10; limit["string"] = 10; limit["number"] = 9 }
    /open_mutex\(.*round-trips begin / {
        thread = $1
        match($0, /round-trips begin [a-z]+ [0-9]+/)
        split(substr($0, RSTART, RLENGTH), word, " ")
        field = word[3]
        keys[field] += word[4]
        counting = 1
        next
    }
    /open_mutex\(.*round-trips end/ { counting = 0 }
    counting && $1 == thread && $2 ~ /^[a-z_]+\($/ { requests[field]++ }
    END {
        printf "%-8s %6s %10s %8s %6s\n", "field", "keys", "requests", "per key", "limit"
        count = split("plain date string number", order, " ")
        for (i = 1; i <= count; i++) {
            field = order[i]
            if (!keys[field] || !requests[field]) {
                printf "FAILED: no request was counted for %s\n", field
                exit 1
            }
            cost = requests[field] / keys[field]
            printf "%-8s %6d %10d %8.1f %6s\n", field, keys[field], requests[field], cost, limit[field] ? limit[field] : "-"
            if (limit[field] && cost > limit[field])
                over = over " " field
        }
        if (over) {
            printf "FAILED: too many requests a key:%s\n", over
            exit 1
        }
    }' "$trace"
