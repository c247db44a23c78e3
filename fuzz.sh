#!/bin/bash
# Fuzzes the engine: every door through which texts and keys come in, each for the minutes given, as many at once as there are processors.
# What is found lies in build/fuzz; inputs that reach something new are kept there and are where the next run begins.
# Usage: ./fuzz.sh [MINUTES] [TARGET...]
#     MINUTES    of each target; 1 when not given
#     TARGET     masks, number_formats, canonical, displays, tables, pictures, control, modern; all when not given
#        ./fuzz.sh --keep       takes the inputs kept that reach something new into tests/fuzz/corpus, as few as will do
# A finding is played by:  ZT_FUZZ_TELL=1 build/native-fuzz/bin/fuzz_TARGET FILE
set -uo pipefail
cd "$(dirname "$0")" || exit

all=(masks number_formats canonical displays tables pictures control modern)
corpus=tests/fuzz/corpus
work=build/fuzz
bin=build/native-fuzz/bin
# Longest input: long enough for some hundred keys. What libFuzzer weighs inputs by costs more than the inputs themselves.
options=(-max_len=1024 -len_control=20 -entropic=0 -print_final_stats=1 -timeout=20 -rss_limit_mb=4096)

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# The smallest set of inputs that reaches all that both folders reach: those of the repository first.
keep()
{
    local target=$1 name
    mkdir -p "$work/$target"
    "$bin/fuzz_$target" -merge=1 -max_len=1024 "$corpus/$target" "$work/$target" >"$work/$target.merge.log" 2>&1 || return
    for name in "$corpus/$target"/????????????????????????????????????????; do
        [ -e "$name" ] && mv "$name" "${name%/*}/kept_$(basename "$name" | cut -c1-12)"
    done
    echo "$target: $(find "$corpus/$target" -type f | wc -l) inputs"
}

run()
{
    local target=$1
    mkdir -p "$work/$target"
    "$bin/fuzz_$target" "${options[@]}" -max_total_time=$((minutes * 60)) -artifact_prefix="$work/$target-" \
        "$work/$target" "$corpus/$target" >"$work/$target.log" 2>&1
}

# One line of what a run has done: its counts stand at the end of its log.
report()
{
    local target=$1 log=$work/$1.log result=$2
    local executions steps seconds coverage total
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    steps=$(sed -n 's/^stat::steps: *//p' "$log" | tail -1)
    seconds=$(sed -n 's/^processor seconds: *//p' "$log" | tail -1)
    coverage=$(grep -ao 'cov: [0-9]*' "$log" | tail -1 | tr -dc 0-9)
    total=$(sed -n 's/^INFO: Loaded 1 modules *(\([0-9]*\) .*/\1/p' "$log")
    printf '%-15s %12d %14d %12s %9s %6d/%d   %s\n' "$target" "${executions:-0}" "${steps:-0}" "${seconds:-?}" \
        "$(awk -v s="${steps:-0}" -v t="${seconds:-1}" 'BEGIN { printf "%d", (t > 0 ? s / t : 0) }')" \
        "${coverage:-0}" "${total:-0}" "$([ "$result" -eq 0 ] && echo none || echo "FOUND, see $log")"
}

tools/install_deps.sh --fuzz || exit
tools/build.sh native-fuzz || fail "the build of the fuzzers"
mkdir -p "$work"

if [ "${1:-}" = --keep ]; then
    for target in "${all[@]}"; do
        keep "$target" || fail "merging the inputs of $target"
    done
    exit
fi

minutes=${1:-1}
[[ $minutes =~ ^[0-9]+$ ]] || fail "usage: ./fuzz.sh [MINUTES] [TARGET...]"
[ $# -gt 0 ] && shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=("${all[@]}")
for target in "${targets[@]}"; do
    [ -x "$bin/fuzz_$target" ] || fail "there is no target $target"
done

results=$work/results
rm -f "$results"
for target in "${targets[@]}"; do
    while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do
        wait -n
    done
    (
        result=0
        run "$target" || result=$?
        echo "$target $result" >>"$results"
    ) &
done
wait

printf '%-15s %12s %14s %12s %9s %12s   %s\n' target executions steps "cpu seconds" "steps/s" "edges" findings
status=0
while read -r target result; do
    report "$target" "$result"
    [ "$result" -eq 0 ] || status=1
done < <(sort "$results")
exit $status
