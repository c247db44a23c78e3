#!/bin/bash
# The native engine beside ICU and two mask libraries of the web, on the cases of cases.txt; run by ./bench.sh --peers.
# The libraries of the web are those of package-lock.json and go to build/peers.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cd "$here/../.."
modules=build/peers
cases=$here/cases.txt
turns=3
export TZ=UTC  # values without a time zone stand for themselves everywhere

install_modules()
{
    mkdir -p "$modules"
    cmp -s "$here/package-lock.json" "$modules/installed.json" && return
    cp "$here/package.json" "$here/package-lock.json" "$modules"
    npm ci --prefix "$modules" --ignore-scripts --no-audit --no-fund --loglevel=error
    cp "$here/package-lock.json" "$modules/installed.json"
}

version_of()
{
    node -p "require('./$modules/node_modules/$1/package.json').version"
}

print_circumstances()
{
    printf '%s, %s processors (%s)\n' "$(date +%F)" "$(nproc)" "$(sed -n 's/^model name[^:]*: //p;T;q' /proc/cpuinfo)"
    printf '%s, node %s, imask %s, inputmask %s, jsdom %s\n\n' "$("$program" --version)" "$(node -p process.versions.node)" \
        "$(version_of imask)" "$(version_of inputmask)" "$(version_of jsdom)"
}

# In turns, so that a machine that slows down does so for all.
play_all()
{
    local turn
    for ((turn = 0; turn < turns; ++turn)); do
        echo "Turn $((turn + 1)) of $turns" >&2
        "$program" "$cases"
        node "$here/web.mjs" "$cases" "$modules" memory
        node "$here/web.mjs" "$cases" "$modules" jsdom
    done
}

tools/install_deps.sh --peers
mkdir -p build
cmake --preset native-release >build/configure-native-release.log  # ICU may have come after the first time
tools/build.sh native-release peers
program=build/native-release/bin/peers
install_modules
play_all >"$modules/rounds"
print_circumstances
node "$here/table.mjs" "$cases" <"$modules/rounds"
