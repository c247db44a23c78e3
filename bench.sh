#!/bin/bash
# Measures what the library costs.
# Usage: ./bench.sh [x86 | x64]   on live windows under Wine, of both architectures or of one: the median time of an operation, what it is
#                                 of a plain edit's and of the system's own control's, measured in turns in one process, and the round
#                                 trips to the window server
#        ./bench.sh --native      the engine on this machine: times by Google Benchmark, and instructions per key as callgrind counts them,
#                                 which are the same in every run, so that a change can be compared exactly
#        ./bench.sh --peers       the engine on this machine beside a formatter and two mask libraries of the web (bench/peers)
#        ./bench.sh --web         the module beside the same two in a browser: what each does in sixty situations, keys a second, bytes
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
cd "$root"

# Of a whole program.
instructions()
{
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$@" 2>&1 | sed -n 's/^==.*refs: *//p' | tr -d ,
}

# Instructions of one operation at each of the sizes, which are the columns.
measure_scale()
{
    local name=$1 size few many
    shift
    printf '%-14s' "$name"
    for size in "$@"; do
        few=$(instructions build/native-release/bin/scale "$name" "$size" 10)
        many=$(instructions build/native-release/bin/scale "$name" "$size" 110)
        printf ' %11d' $(((many - few) / 100))
    done
    echo
}

measure_engine()
{
    local name keys few many
    tools/install_deps.sh --bench
    tools/build.sh native-release
    program=build/native-release/bin/keystrokes
    "$program" --benchmark_min_time=0.2
    printf '\n%-12s %18s\n' "case" "instructions a key"
    for name in date month_name time string number decimal; do
        keys=$("$program" --play "$name" 0)
        few=$(instructions "$program" --play "$name" 100)
        many=$(instructions "$program" --play "$name" 1100)
        printf '%-12s %18d\n' "$name" $(((many - few) / (1000 * keys)))
    done
    printf '\n%-14s %11s %11s %11s %11s   instructions, by characters\n' operation 1 10 100 255
    for name in mask-create mask-key mask-set-get text-set-get; do
        measure_scale "$name" 1 10 100 255
    done
    printf '\n%-14s %11s %11s %11s %11s %11s   instructions, by entries\n' operation 1 10 100 1000 10000
    for name in table-create table-set-get table-step; do
        measure_scale "$name" 1 10 100 1000 10000
    done
}

# Requests between the marks of a trace, a line for each side of each operation.
count_round_trips()
{
    awk -F'|' '
        /open_mutex\(.*round-trips begin/ {
            split($1, word, ":")
            thread = word[1]
            side = $2 "|" $3
            plays[side] += $4
            counting = 1
            next
        }
        /open_mutex\(.*round-trips end/ { counting = 0 }
        counting && index($0, thread ": ") == 1 && /^[0-9a-f]+: [a-z_]+\(/ && !/\(\) = / { requests[side]++ }
        END { for (side in plays) printf "%s|%.1f\n", side, requests[side] / plays[side] }' "$1"
}

# One architecture, in a Wine prefix and on a display of its own.
measure_windows()
{
    local preset=$1 trace=build/bench-$1.trace times=build/bench-$1.times counts=build/bench-$1.counts
    ZT_WINEPREFIX=$root/build/wineprefix-$preset
    . tools/wine_session.sh
    start_wine_session new-display
    wine "build/$preset/bin/window_costs.exe" </dev/null 2>/dev/null | tr -d '\r' >"$times"
    # The server writes its trace to the standard error of the program that started it, so it is started anew by this one.
    wineserver -k || true
    wineserver -w || true
    WINEDEBUG=+server wine "build/$preset/bin/window_costs.exe" --count </dev/null 2>"$trace" >/dev/null
    wineserver -k || true
    count_round_trips "$trace" >"$counts"
    rm -f "$trace"
    printf '\n=== %s ===\n%-32s %-20s %10s %8s %8s\n' "$preset" operation of microseconds ratio trips
    awk -F'|' '
        FNR == NR { trips[$1 "|" $2] = $3; next }
        $1 == "time" {
            first = $2 != before
            before = $2
            printf "%-32s %-20s %10.1f %8s %8s\n", first ? $2 : "", $3, $4, first ? "" : $5, trips[$2 "|" $3]
        }
        $1 == "scale" && !forms++ {
            printf "\n%-32s %8s %8s %8s %8s %10s\n", "controls on a form", "made", "filled", "key", "set, get", "destroyed"
        }
        $1 == "scale" { printf "%-32s %8s %8s %8s %8s %10s\n", $2, $3, $4, $5, $6, $7 }
        $1 == "form" { printf "\n%-32s controls %s, date pickers %s, ratio %s\n", "200 on a form, milliseconds", $2, $3, $4 }
        $1 == "heap" {
            own = $2 - $3
            printf "%-32s edit %s, control %s: of its own %s, %.2f x the edit\n", "heap bytes", $3, $2, own, own / $3
        }' "$counts" "$times"
}

case ${1:-both} in
--native) measure_engine ;;
--peers) bench/peers/run.sh ;;
--web) bench/web/run.sh ;;
x86 | x64 | both)
    tools/install_deps.sh
    presets=${1:-both}
    [ "$presets" = both ] && presets="x86 x64"
    for preset in $presets; do
        tools/build.sh "$preset" window_costs
        (measure_windows "$preset")
    done
    ;;
*)
    echo "usage: ./bench.sh [x86 | x64 | --native | --peers | --web]" >&2
    exit 2
    ;;
esac
