#!/bin/bash
# Packs libztfield for 64 and 32 bits, unpacks the packages elsewhere, and tries them as a new user would: programs in C and C++ by CMake
# and by pkg-config, shared and static; what the pages print; the samples, typed into; what the libraries export and need.
# Usage: tools/test_field_package.sh [--packed]     --packed: build/package is as it should be
set -uo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root" || exit
failed=()
strict=(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)

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

flags() # FOLDER OPTION...
{
    PKG_CONFIG_PATH=$1/lib/pkgconfig pkg-config "${@:2}" ztfield
}

holds_what_it_should() # FOLDER
{
    diff <(cd "$1" && find . -path ./share/doc -prune -o \( -type f -o -type l \) -print | sort) <(sort <<'FILES'
./include/ztfield.h
./include/ztvalues.h
./lib/cmake/ztfield/ztfield-config-version.cmake
./lib/cmake/ztfield/ztfield-config.cmake
./lib/cmake/ztfield/ztfield-targets-release.cmake
./lib/cmake/ztfield/ztfield-targets.cmake
./lib/libztfield.a
./lib/libztfield.so
./lib/libztfield.so.0.5
./lib/libztfield.so.0.5.0
./lib/pkgconfig/ztfield.pc
./share/man/man3/ztfield.3
./share/ztfield/python/field_sample.py
./share/ztfield/python/ztfield.py
./share/ztfield/samples/terminal_field.c
FILES
    ) && cmp LICENSE "$1/share/doc/ztfield/LICENSE" && diff -r -x LICENSE docs "$1/share/doc/ztfield" && ! grep -rl "$root" "$1"
}

# Both libraries define the functions of the header for others, and nothing else.
exports_the_header() # FOLDER
{
    local declared library
    declared=$(grep -o '^ZTF_API .*\bZTF_\w*(' "$1/include/ztfield.h" | grep -o 'ZTF_\w*($' | tr -d '(' | sort)
    [ "$(wc -l <<<"$declared")" -gt 50 ] || return
    diff <(nm -D --defined-only "$1/lib/libztfield.so" | awk '{print $3}' | sort) <(echo "$declared") || return
    diff <(nm -g --defined-only "$1/lib/libztfield.a" | awk 'NF == 3 {print $3}' | sort) <(echo "$declared")
}

needs_the_c_library_alone() # FOLDER
{
    local dynamic
    dynamic=$(readelf -d "$1/lib/libztfield.so") || return
    grep -q 'SONAME.*\[libztfield\.so\.0\.5\]' <<<"$dynamic" || return
    ! grep NEEDED <<<"$dynamic" | grep -vE '\[(libc|libm|ld-linux[-_0-9a-z]*)\.so\.[0-9]\]' &&
        ! readelf -lW "$1/lib/libztfield.so" | grep -E 'GNU_STACK.*RWE|TEXTREL'
}

# The header by itself, as the oldest compilers that are served read it.
header_compiles() # FOLDER BITS
{
    echo '#include <ztfield.h>' >"$work/alone.c"
    gcc "-m$2" -std=c99 -pedantic-errors "${strict[@]}" -I"$1/include" -fsyntax-only "$work/alone.c" &&
        g++ "-m$2" -std=c++11 -pedantic-errors "${strict[@]}" -I"$1/include" -x c++ -fsyntax-only "$work/alone.c"
}

with_cmake() # FOLDER BITS
{
    cmake -S tests/ztfield_package -B "$1/build" -G Ninja -DCMAKE_PREFIX_PATH="$1" -DCMAKE_C_FLAGS="-m$2 ${strict[*]}" \
        -DCMAKE_CXX_FLAGS="-m$2 ${strict[*]}" -DCMAKE_BUILD_TYPE=Release && cmake --build "$1/build" || return
    local program
    for program in c_shared c_static cpp_shared cpp_static; do
        "$1/build/$program" || { echo "$program failed" && return 1; }
    done
    [ "$(ldd "$1/build/c_shared" | grep -c libztfield)" = 1 ] && [ "$(ldd "$1/build/c_static" | grep -c libztfield)" = 0 ]
}

refused_by_the_other() # FOLDER BITS
{
    ! cmake -S tests/ztfield_package -B "$1/refused" -G Ninja -DCMAKE_PREFIX_PATH="$1" -DCMAKE_C_FLAGS="-m$2" -DCMAKE_CXX_FLAGS="-m$2" \
        >"$work/refused" 2>&1 && grep -q 'version: 0.5.0 ([36][24]bit)' "$work/refused"
}

# A program that is printed somewhere, by the command lines of the manual.
printed_program() # FOLDER BITS SOURCE EXPECTED
{
    local compiler=(gcc "-m$2" -std=c99 "${strict[@]}" "$3")
    # shellcheck disable=SC2046
    "${compiler[@]}" -o "$1/printed" $(flags "$1" --cflags --libs) &&
        LD_LIBRARY_PATH=$1/lib "$1/printed" | diff - "$4" || return
    # shellcheck disable=SC2046
    "${compiler[@]}" -static -o "$1/printed_static" $(flags "$1" --cflags --static --libs) && "$1/printed_static" | diff - "$4"
}

of_the_manual() # FOLDER BITS
{
    block() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$2" | sed '1d;$d'; }
    block c "$1/share/doc/ztfield/manual/ztfield.md" >"$1/manual.c" && block text "$1/share/doc/ztfield/manual/ztfield.md" >"$1/manual.txt"
    [ -s "$1/manual.txt" ] && printed_program "$1" "$2" "$1/manual.c" "$1/manual.txt"
}

# The page says in the program's own remarks what it prints.
of_the_man_page() # FOLDER BITS
{
    cmp ztfield/ztfield.3 "$1/share/man/man3/ztfield.3" && python3 -B tests/bindings/ztfield_man_page_test.py --example \
        >"$1/page.c" || return
    sed -n 's|.*puts(text);[[:space:]]*/\* \(.*\) \*/|\1|p' "$1/page.c" >"$1/page.txt"
    [ "$(wc -l <"$1/page.txt")" = 2 ] && printed_program "$1" "$2" "$1/page.c" "$1/page.txt"
}

sample_on_a_terminal() # FOLDER BITS
{
    # shellcheck disable=SC2046
    gcc "-m$2" -D_POSIX_C_SOURCE=200809L -std=c99 "${strict[@]}" "$1/share/ztfield/samples/terminal_field.c" -o "$1/terminal_field" \
        $(flags "$1" --cflags --libs) && LD_LIBRARY_PATH=$1/lib python3 -B tests/bindings/types_into_a_terminal.py "$1/terminal_field"
}

# The interpreter is of one size, and finds the library of its package.
in_python() # FOLDER
{
    env -u ZTFIELD_LIBRARY python3 -B -m doctest "$1/share/ztfield/python/ztfield.py" &&
        env -u ZTFIELD_LIBRARY python3 -B tests/bindings/types_into_a_terminal.py python3 -B "$1/share/ztfield/python/field_sample.py"
}

if [ "${1:-}" != --packed ]; then
    ./package.sh --field || exit
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for bits in 64 32; do
    other=$((96 - bits))
    check "linux$bits: unpacked" tar -xzf build/package/ztfield-*-linux$bits.tar.gz -C "$work"
    folder=$(echo "$work"/ztfield-*-linux$bits)
    check "linux$bits: what it holds" holds_what_it_should "$folder"
    check "linux$bits: what the libraries export" exports_the_header "$folder"
    check "linux$bits: what the shared library needs" needs_the_c_library_alone "$folder"
    check "linux$bits: the header alone, C99 and C++11" header_compiles "$folder" $bits
    check "linux$bits: C and C++ by CMake" with_cmake "$folder" $bits
    check "linux$bits: refused where the size is another" refused_by_the_other "$folder" $other
    check "linux$bits: the manual's program, by pkg-config" of_the_manual "$folder" $bits
    check "linux$bits: the man page's program" of_the_man_page "$folder" $bits
    check "linux$bits: the sample, typed into" sample_on_a_terminal "$folder" $bits
    [ $bits = 32 ] || check "linux$bits: Python" in_python "$folder"
done
[ ${#failed[@]} -eq 0 ] || { echo "FAILED: ${#failed[@]} checks" >&2; exit 1; }
