#!/bin/bash
# Leads the lives of very many controls, and plays while memory runs out: the engine on this machine, then the libraries on x86 and
# x64 under Wine, both at once. Prints what was in use before and after; fails where something was lost, or ended otherwise than
# promised. Takes some twenty minutes.
# Usage: ./soak.sh [--native]
#     --native   the engine only
# ZT_SOAK_ENGINE, ZT_SOAK_WINDOWS and ZT_SOAK_FAILING tell how many: lives in memory, lives in windows, operations while memory runs
# out.
set -uo pipefail
root=$(cd "$(dirname "$0")" && pwd)
cd "$root" || exit

windows=(x86 x64)
case ${1:-} in
"") ;;
--native) windows=() ;;
*)
    echo "usage: ./soak.sh [--native]" >&2
    exit 2
    ;;
esac
engine_lives=${ZT_SOAK_ENGINE:-1000000}
window_lives=${ZT_SOAK_WINDOWS:-10000}
operations=${ZT_SOAK_FAILING:-100000}

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# The lives, or the failing heap, of one architecture, in the Wine prefix and on a display of its own.
soak_windows()
{
    ZT_WINEPREFIX=$root/build/wineprefix-$1
    . tools/wine_session.sh
    start_wine_session new-display || return
    ZT_SOAK_LIVES=$window_lives ZT_SOAK_OPERATIONS=$operations \
        tools/run_under_wine.sh "build/$1/bin/test_soak.exe" --gtest_brief=1 </dev/null
}

# The rows that a program has printed, as a table.
print_rows()
{
    tr -d '\r' <"build/soak-$1.log" | awk -F'|' -v on="$1" '
        $1 == "soak" {
            printf "\n%-26s %-13s %9d cycles %8.1f s\n", $2, on, $3, $4
            for (i = 5; i < NF; i += 3)
                printf "    %-28s %12d %12d\n", $i, $(i + 1), $(i + 2)
        }'
}

tools/install_deps.sh || exit
tools/build.sh native-soak test_soak || fail "the native-soak build"
tools/build.sh native test_soak || fail "the native build"
for preset in "${windows[@]}"; do
    tools/build.sh "$preset" test_soak || fail "the $preset build"
done

failed=()
# Memory as it is, without sanitizers; and under them, where each corruption ends otherwise than by abort.
ZT_SOAK_LIVES=$engine_lives build/native-soak/bin/test_soak --gtest_brief=1 --gtest_filter='Lives*' \
    >build/soak-native-soak.log 2>&1 || failed+=(native-soak)
ZT_SOAK_OPERATIONS=$operations build/native/bin/test_soak --gtest_brief=1 --gtest_filter='MemoryRunningOut*' \
    >build/soak-native.log 2>&1 || failed+=(native)
declare -A runs=()
for preset in "${windows[@]}"; do
    (soak_windows "$preset") >"build/soak-$preset.log" 2>&1 &
    runs[$preset]=$!
done
for preset in "${windows[@]}"; do
    wait "${runs[$preset]}" || failed+=("$preset")
done

for run in native-soak native "${windows[@]}"; do
    print_rows "$run"
done
for run in "${failed[@]}"; do
    echo
    grep -v '^soak|' "build/soak-$run.log"
done
echo
[ ${#failed[@]} -eq 0 ] || fail "soak on ${failed[*]}"
echo "Nothing was lost, and memory ran out as promised ($SECONDS s)"
