#!/bin/bash
# Installs what is missing, builds, and runs all tests: the engine's on this machine with sanitizers, for 64 and 32 bits, then
# those of the libraries on x86 and x64 under Wine, both at once, and those of the module for the web in Chromium.
# Usage: ./test.sh [--native | --clang]
#     --native   the engine's tests only: seconds
#     --clang    builds and tests with the second compiler too
set -uo pipefail
root=$(cd "$(dirname "$0")" && pwd)
cd "$root" || exit

native=(native native32)
windows=(x86 x64)
case ${1:-} in
"") ;;
--native) windows=() ;;
--clang) native+=(native-clang) windows+=(clang) ;;
*)
    echo "usage: ./test.sh [--native | --clang]" >&2
    exit 2
    ;;
esac

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# Runs a step and prints how long it took.
timed()
{
    local start=$SECONDS result=0
    "$@" || result=$?
    echo "--- $((SECONDS - start)) s: $*"
    return $result
}

# All suites of one architecture, in a Wine prefix and on a display of their own.
run_windows_tests()
{
    local preset=$1
    ZT_WINEPREFIX=$root/build/wineprefix-$preset
    . tools/wine_session.sh
    start_wine_session new-display || return
    ctest --preset "$preset" </dev/null
}

timed tools/install_deps.sh "$@" || exit
if [ ${#windows[@]} -gt 0 ]; then
    timed tools/install_deps.sh --web || exit
fi
failed=()
for preset in "${native[@]}"; do
    timed tools/build.sh "$preset" || fail "the $preset build"
    echo
    echo "=== Tests on $preset ==="
    timed ctest --preset "$preset" </dev/null || failed+=("$preset")
done

for preset in "${windows[@]}"; do
    timed tools/build.sh "$preset" || fail "the $preset build"
done
declare -A runs=()
for preset in "${windows[@]}"; do
    (timed run_windows_tests "$preset") >"build/tests-$preset.log" 2>&1 &
    runs[$preset]=$!
done
for preset in "${windows[@]}"; do
    wait "${runs[$preset]}" || failed+=("$preset")
    echo
    echo "=== Tests on $preset ==="
    cat "build/tests-$preset.log"
done
if [ ${#windows[@]} -gt 0 ]; then
    echo
    echo "=== Tests in a browser ==="
    timed tools/test_browser.sh || failed+=(browser)
fi
[ ${#failed[@]} -eq 0 ] || fail "tests on ${failed[*]}"
echo
echo "All tests passed on ${native[*]} ${windows[*]}${windows:+ and in a browser} ($SECONDS s)"
