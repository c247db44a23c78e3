#!/bin/bash
# Builds the module for the web into build/web: ztfield.mjs with the WebAssembly inside, and ztfield.d.ts beside it.
# Usage: tools/build_web.sh      (what it needs: tools/install_deps.sh --web)
set -euo pipefail
cd "$(dirname "$0")/.."

out=build/web
compiler=clang++-14
flags="--target=wasm32-wasi -std=c++17 -Oz -flto -DNDEBUG -DZT_WIDE_CHARACTERS -fno-exceptions -fno-rtti -fvisibility=hidden -I. -Iinclude"
flags="$flags -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror"
linking="--target=wasm32-wasi -flto -Oz -mexec-model=reactor -Wl,--gc-sections -Wl,--strip-all -Wl,--lto-O2"

# What the page calls: all of the library but ZTF_Create, which web/told.cpp calls; and memory for texts.
exports()
{
    echo malloc free ZTW_Create
    sed -n 's/^ZTF_API .*\b\(ZTF_[A-Za-z]*\)(.*/\1/p' include/ztfield.h | grep -v '^ZTF_Create$'
}

# A folder is compiled as one source: most of the time goes into the headers that all of its files read.
folders="engine/text engine/values engine/mask engine/format engine/spin engine/edit engine/modern engine ztfield web"

# Puts FILE.new in the place of FILE where they differ, so that nothing is built that has not changed.
replace()
{
    if cmp -s "$1.new" "$1"; then
        rm "$1.new"
    else
        mv "$1.new" "$1"
    fi
}

write_units()
{
    local folder file
    for folder in $folders; do
        file=$out/units/${folder//\//_}.cpp
        for source in "$folder"/*.cpp; do
            echo "#include \"$source\""
        done >"$file.new"
        replace "$file"
    done
}

write_ninja()
{
    local folder unit objects=()
    echo "builddir = $out"
    echo "rule compile"
    echo "  command = $compiler $flags -MMD -MF \$out.d -c \$in -o \$out"
    echo "  depfile = \$out.d"
    echo "  deps = gcc"
    echo "rule link"
    echo "  command = $compiler $linking $(for name in $(exports); do printf -- '-Wl,--export=%s ' "$name"; done) \$in -o \$out"
    echo "rule bundle"
    echo "  command = python3 web/bundle.py $out/ztfield.wasm bindings/javascript \$out && cp bindings/javascript/ztfield.d.ts $out/"
    for folder in $folders; do
        unit=${folder//\//_}
        echo "build $out/obj/$unit.o: compile $out/units/$unit.cpp"
        objects+=("$out/obj/$unit.o")
    done
    echo "build $out/ztfield.wasm: link ${objects[*]} | tools/build_web.sh include/ztfield.h"
    echo "build $out/ztfield.mjs: bundle $(ls bindings/javascript/*.mjs bindings/javascript/*.ts | tr '\n' ' ')" \
        "| $out/ztfield.wasm web/bundle.py"
    echo "default $out/ztfield.mjs"
}

tools/install_deps.sh --web
mkdir -p "$out/units"
write_units
write_ninja >"$out/build.ninja.new"
replace "$out/build.ninja"
ninja --quiet -f "$out/build.ninja"
