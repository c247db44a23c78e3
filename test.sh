#!/bin/bash
# Installs what is missing, builds, and runs all tests on x86 and on x64 under Wine.
# Usage: ./test.sh [--clang]     (--clang: builds and tests with the second compiler too)
set -uo pipefail
root=$(cd "$(dirname "$0")" && pwd)
cd "$root" || exit

presets=(x86 x64)
case ${1:-} in
"") ;;
--clang) presets+=(clang) ;;
*)
    echo "usage: ./test.sh [--clang]" >&2
    exit 2
    ;;
esac

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

tools/install_deps.sh "$@" || exit
for preset in "${presets[@]}"; do
    tools/build.sh "$preset" || fail "the $preset build"
done

. tools/wine_session.sh
start_wine_session new-display || exit

failed=()
for preset in "${presets[@]}"; do
    echo
    echo "=== Tests on $preset ==="
    ctest --preset "$preset" </dev/null || failed+=("$preset")
done
[ ${#failed[@]} -eq 0 ] || fail "tests on ${failed[*]}"
