#!/bin/sh
# Configures and builds one preset; quiet unless something is wrong. Usage: tools/build.sh PRESET
set -eu
cd "$(dirname "$0")/.."
preset=$1
mkdir -p build
if [ ! -e "build/$preset/build.ninja" ]; then
    echo "Configuring $preset"
    cmake --preset "$preset" >"build/configure-$preset.log" 2>&1 </dev/null || {
        cat "build/configure-$preset.log" >&2
        exit 1
    }
fi
echo "Building $preset"
cmake --build --preset "$preset" -- --quiet </dev/null
