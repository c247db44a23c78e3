#!/bin/sh
# Configures and builds one preset, or some of its targets; quiet unless something is wrong. Usage: tools/build.sh PRESET [TARGET...]
set -eu
cd "$(dirname "$0")/.."
preset=$1
shift
mkdir -p build
if [ ! -e "build/$preset/build.ninja" ]; then
    echo "Configuring $preset"
    cmake --preset "$preset" >"build/configure-$preset.log" 2>&1 </dev/null || {
        cat "build/configure-$preset.log" >&2
        exit 1
    }
fi
echo "Building $preset"
cmake --build --preset "$preset" ${1:+--target "$@"} -- --quiet </dev/null
