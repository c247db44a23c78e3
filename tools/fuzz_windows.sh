#!/bin/bash
# Plays a storm of messages on live windows under Wine: controls of the library, plain edits as the measure, two threads at once.
# Prints operations, seconds and counts per kind; each finding with its seed, its episode and the shortest script that shows it.
# Usage: tools/fuzz_windows.sh [x86 | x64 | both] [OPERATIONS]        both, 1000000
#     ZT_STORM_SEED=N      another script (1)
#     ZT_STORM_EPISODE=N   one episode of it alone, as a finding tells it
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
architectures=${1:-both}
operations=${2:-1000000}

case $architectures in
both) architectures="x86 x64" ;;
x86 | x64) ;;
*)
    echo "usage: $0 [x86 | x64 | both] [OPERATIONS]" >&2
    exit 2
    ;;
esac

# The heap of the program, too, fills what is freed and sees what was written behind a block: the system reads this when it starts.
check_process_heap()
{
    wine reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\Image File Execution Options\test_storm.exe' \
        /v GlobalFlag /t REG_DWORD /d 0x70 /f </dev/null >/dev/null 2>&1
}

# One architecture, in a Wine prefix and on a display of its own.
play()
{
    local preset=$1
    ZT_WINEPREFIX=$root/build/wineprefix-storm-$preset
    . tools/wine_session.sh
    start_wine_session new-display || return
    check_process_heap
    ZT_STORM_TELL=1 ZT_STORM_OPERATIONS=$operations tools/run_under_wine.sh "build/$preset/bin/test_storm.exe" --gtest_brief=1
}

tools/install_deps.sh
for preset in $architectures; do
    tools/build.sh "$preset"
done
declare -A runs=()
for preset in $architectures; do
    (play "$preset") >"build/storm-$preset.log" 2>&1 &
    runs[$preset]=$!
done
failed=
for preset in $architectures; do
    wait "${runs[$preset]}" || failed="$failed $preset"
    echo "=== $preset ==="
    cat "build/storm-$preset.log"
done
if [ -n "$failed" ]; then
    echo "FAILED: findings on$failed" >&2
    exit 1
fi
