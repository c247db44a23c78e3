#!/bin/bash
# Measures the engine on this machine: times by Google Benchmark, and instructions per key as callgrind counts them, which are
# the same in every run, so that a change can be compared exactly.
# Usage: ./bench.sh [--native]
set -euo pipefail
cd "$(dirname "$0")"
case ${1:---native} in
--native) ;;
*)
    echo "usage: ./bench.sh [--native]" >&2
    exit 2
    ;;
esac

tools/install_deps.sh --bench
tools/build.sh native-release
program=build/native-release/bin/keystrokes
"$program" --benchmark_min_time=0.2

instructions()
{
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$program" --play "$1" "$2" 2>&1 |
        sed -n 's/^==.*refs: *//p' | tr -d ,
}

printf '\n%-12s %18s\n' "case" "instructions a key"
for name in date month_name time string number decimal; do
    keys=$("$program" --play "$name" 0)
    few=$(instructions "$name" 100)
    many=$(instructions "$name" 1100)
    printf '%-12s %18d\n' "$name" $(((many - few) / (1000 * keys)))
done
