#!/bin/bash
# Packs, unpacks the packages elsewhere, and tries them as a new user would: the README's first control by its own command line, a CMake
# project that finds the package, pkg-config, MSVC's import libraries through a linker of that kind, and every sample, typed into.
# Usage: tools/test_package.sh [--packed]     --packed: build/package is as it should be
set -uo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root" || exit
failed=()

check() # WHAT COMMAND...
{
    local what=$1
    shift
    if "$@" >"$work/log" 2>&1; then
        echo "passed: $what"
    else
        echo "FAILED: $what"
        cat "$work/log"
        failed+=("$what")
    fi
}

# The README's program is the sample, and its command line makes it of the package alone.
first_control() # FOLDER COMPILER
{
    local command
    diff <(sed -n '/^```c$/,/^```$/p' "$1/README.md" | sed '1d;$d') "$1/samples/first_control/first.c" || return
    command=$(sed -n '/^```sh$/,/^```$/p' "$1/README.md" | grep gcc) || return
    (cd "$1" && eval "${command/x86_64-w64-mingw32-gcc/$2}" && [ -e bin/first.exe ])
}

samples() # FOLDER PREFIX
{
    cmake -S "$1/samples" -B "$1/build" -G Ninja -DCMAKE_PREFIX_PATH="$1" -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_C_COMPILER="$2-gcc" \
        -DCMAKE_RC_COMPILER="$2-windres" -DCMAKE_C_FLAGS='-Wall -Wextra -Werror' && cmake --build "$1/build" && cp "$1"/bin/*.dll "$1/build"
}

# A package for the other size is not taken.
refused_by_the_other() # FOLDER PREFIX
{
    ! cmake -S "$1/samples" -B "$1/refused" -G Ninja -DCMAKE_PREFIX_PATH="$1" -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_C_COMPILER="$2-gcc" \
        -DCMAKE_RC_COMPILER="$2-windres"
}

with_pkg_config() # FOLDER PREFIX
{
    local flags
    flags=$(PKG_CONFIG_PATH=$1/lib/pkgconfig pkg-config --cflags --libs ztedit) || return
    # shellcheck disable=SC2086
    "$2-gcc" "$1/samples/pick_list/pick.c" -o "$1/pick.exe" $flags
}

# What the program of plain_customer.c needs of the system, as MSVC's own libraries have it.
system_libraries() # FOLDER MACHINE
{
    local library
    for library in kernel32:ExitProcess@4:lstrcmpA@8 user32:CreateWindowExA@48:GetWindowTextA@12; do
        { echo "LIBRARY ${library%%:*}.dll" && echo EXPORTS && tr ':' '\n' <<<"${library#*:}"; } >"$1/${library%%:*}.def"
        [ "$2" = i386 ] || sed -i 's/@[0-9]*$//' "$1/${library%%:*}.def"
        "$dlltool" -m "$2" -k -d "$1/${library%%:*}.def" -l "$1/${library%%:*}.lib" || return
    done
}

# The objects know their exception handlers, and the linker demands it of them, on x86; a program without a run-time library of its own.
with_msvc_libraries() # FOLDER PREFIX
{
    local entry=Start safe='' machine=i386:x86-64
    [ "$2" = x86_64-w64-mingw32 ] || { entry=Start@0 safe=/safeseh machine=i386; }
    system_libraries "$1" $machine || return
    clang --target="$2" -I"$1/include" -c tests/package/plain_customer.c -o "$1/customer.obj" || return
    # shellcheck disable=SC2086
    lld-link "$1/customer.obj" "$1/lib/ztedit050.lib" "$1/lib/ztshared.lib" "$1/lib/ztdecimal.lib" "$1/kernel32.lib" \
        "$1/user32.lib" /entry:$entry /subsystem:console /nodefaultlib $safe "/out:$1/bin/customer.exe" || return
    tools/run_under_wine.sh "$1/bin/customer.exe"
}

# Nothing that nobody can explain.
holds_what_it_should() # FOLDER
{
    local expected
    expected=$(printf '%s\n' libztdecimal.dll.a libztedit050.dll.a libztshared.dll.a pkgconfig ztdecimal.lib ztedit050.lib ztshared.lib)
    diff <(ls "$1/lib") <(echo "$expected") &&
        diff <(ls "$1/bin" | grep -v '\.exe$') <(printf '%s\n' ztdecimal.dll ztedit050.dll ztshared.dll) &&
        diff <(ls "$1") <(printf '%s\n' CHANGELOG.md LICENSE README.md bin bindings cmake docs include lib samples)
}

# Every link of its own pages to a file.
links_lead_somewhere() # FOLDER
{
    local page link missing=0
    for page in README.md samples/README.md bindings/README.md docs/*.md docs/manual/*.md; do
        for link in $(cd "$1" && grep -oE '\]\([^)# ]+' $page | sed 's/^\](//' | grep -v '^https\?:'); do
            [ -e "$1/$(dirname "$page")/$link" ] || { echo "$page: $link" && missing=1; }
        done
    done
    return $missing
}

if [ "${1:-}" != --packed ]; then
    ./package.sh || exit
fi
dlltool=$(command -v llvm-dlltool || ls /usr/bin/llvm-dlltool-* 2>/dev/null | tail -1)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
. tools/wine_session.sh
start_wine_session new-display || exit
trap 'end_wine_session; rm -rf "$work"' EXIT
for bits in 32 64; do
    prefix=x86_64-w64-mingw32 other=i686-w64-mingw32 preset=x64
    [ $bits = 64 ] || { prefix=i686-w64-mingw32 other=x86_64-w64-mingw32 preset=x86; }
    check "win$bits: unpacked" unzip -q "build/package/ztedit-*-win$bits.zip" -d "$work"
    folder=$(echo "$work"/ztedit-*-win$bits)
    check "win$bits: what it holds" holds_what_it_should "$folder"
    check "win$bits: its pages' links" links_lead_somewhere "$folder"
    check "win$bits: the README's first control" first_control "$folder" "$prefix-gcc"
    check "win$bits: the samples, by CMake" samples "$folder" "$prefix"
    check "win$bits: refused where the size is another" refused_by_the_other "$folder" "$other"
    check "win$bits: pkg-config" with_pkg_config "$folder" "$prefix"
    check "win$bits: MSVC's import libraries" with_msvc_libraries "$folder" "$prefix"
    check "win$bits: the samples, typed into" tests/package/types_into_samples.sh "$folder/build" "build/$preset/bin/form_reader.exe"
done
[ ${#failed[@]} -eq 0 ] || { echo "FAILED: ${#failed[@]} checks" >&2; exit 1; }
