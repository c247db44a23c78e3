#!/bin/bash
# Builds and packs what a form programmer needs: ztedit-<version>-win32.zip and -win64.zip in build/package, each with bin, include, lib
# (import libraries of mingw-w64 and of MSVC), cmake, docs (in docs/html to be read in a browser), samples and bindings.
# And libztfield, fields without a window: ztfield-<version>-linux64.tar.gz and -linux32.tar.gz.
# Usage: ./package.sh [--field]     --field: libztfield alone
set -euo pipefail
cd "$(dirname "$0")"

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# The import libraries that MSVC's linker reads: of the names as its callers decorate them, leading to the plain ones of the DLL.
make_msvc_libraries()
{
    local preset=$1 machine=$2 library def
    for library in ztedit050:win32 ztshared:companions/ztshared ztdecimal:companions/ztdecimal; do
        def=${library#*:}/${library%:*}.def
        [ "$preset" = x64 ] || def=build/$preset/lib/lib${library%:*}.dll.a.def
        "$dlltool" -m "$machine" -k -d "$def" -D "${library%:*}.dll" -l "build/$preset/lib/${library%:*}.lib" || fail "$library for MSVC"
    done
}

pack()
{
    local preset=$1 machine=$2 name=$3
    tools/build.sh "$preset" || fail "the $preset build"
    make_msvc_libraries "$preset" "$machine"
    rm -rf "build/package/$name" "build/package/$name.zip"
    cmake --install "build/$preset" --prefix "build/package/$name" >/dev/null || fail "installing into build/package/$name"
    cp -r build/manual "build/package/$name/docs/html"
    cp build/lab/mask-laboratory.html "build/package/$name/docs"
    # What is not in the package is nothing to read about there.
    sed -i '/^## Two commands/,/^## A first control/{/^## A first control/!d}; /^`.\/package.sh`/,+1d; /CONTRIBUTING.md/d' \
        "build/package/$name/README.md"
    (cd build/package && zip -q -r -X "$name.zip" "$name") || fail "zip"
    echo "build/package/$name.zip"
}

# Fields without a window, as cmake --install lays them down.
pack_field()
{
    local preset=$1 name=$2
    tools/build.sh "$preset" || fail "the $preset build"
    rm -rf "build/package/$name" "build/package/$name.tar.gz"
    cmake --install "build/$preset" --prefix "build/package/$name" --component ztfield --strip >/dev/null ||
        fail "installing into build/package/$name"
    tar -C build/package --owner=0 --group=0 --sort=name -czf "build/package/$name.tar.gz" "$name" || fail "tar"
    echo "build/package/$name.tar.gz"
}

# The module for the web with its types, and the laboratory made of it.
pack_web()
{
    local name="ztfield-$version-web"
    rm -rf "build/package/$name" "build/package/$name.zip"
    mkdir -p "build/package/$name"
    cp build/web/ztfield.mjs build/web/ztfield.d.mts build/lab/mask-laboratory.html docs/manual/javascript.md LICENSE "build/package/$name"
    (cd build/package && zip -q -r -X "$name.zip" "$name") || fail "zip"
    echo "build/package/$name.zip"
}

pack_fields()
{
    pack_field field "ztfield-$version-linux64"
    pack_field field32 "ztfield-$version-linux32"
}

version=$(sed -n 's/^project(ztedit VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
mkdir -p build/package
if [ "${1:-}" = --field ]; then
    tools/install_deps.sh --field
    pack_fields
    exit
fi
tools/install_deps.sh --package
dlltool=$(command -v llvm-dlltool || ls /usr/bin/llvm-dlltool-* 2>/dev/null | tail -1)
[ -n "$dlltool" ] || fail "no llvm-dlltool"
./manual.sh || fail "the manual"
tools/install_deps.sh --web
tools/build_lab.sh >/dev/null || fail "the laboratory"
pack x86 i386 "ztedit-$version-win32"
pack x64 i386:x86-64 "ztedit-$version-win64"
pack_fields
pack_web
