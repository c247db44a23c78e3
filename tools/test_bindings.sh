#!/bin/bash
# All checks of the bindings: the declarations against the headers; the C++ wrapper by three compilers and its suite; the C# binding
# compiled, looked at by reflection, and its control over a library that stands in; the Pascal unit compiled for 64-bit Windows; the
# samples typed into. Nothing is left out: what is missing on the machine is a failure.
# Usage: tools/install_deps.sh --bindings && tools/test_bindings.sh
set -euo pipefail
cd "$(dirname "$0")/.."
work=build/bindings
headers=(-Iinclude -Ibindings/cpp)
warnings=(-std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

step()
{
    echo "--- $1"
    shift
    "$@" || fail "$*"
}

need()
{
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || fail "no $tool here; tools/install_deps.sh --bindings installs it"
    done
}

# The wrapper's sample by each compiler; the wrapper by itself, with wide texts as the program's default.
compile_cpp()
{
    local preset compiler
    for preset in x86 x64; do
        compiler=i686-w64-mingw32-g++-posix
        [ $preset = x86 ] || compiler=x86_64-w64-mingw32-g++-posix
        mkdir -p "$work/$preset"
        $compiler "${warnings[@]}" -mwindows -static "${headers[@]}" bindings/cpp/sample.cpp "build/$preset/lib/libztedit050.dll.a" \
            "build/$preset/lib/libztshared.dll.a" "build/$preset/lib/libztdecimal.dll.a" -o "$work/$preset/cpp_sample.exe" || return
        cp "build/$preset/bin/"zt*.dll "$work/$preset/" || return
    done
    $compiler "${warnings[@]}" -DUNICODE "${headers[@]}" -x c++ -fsyntax-only bindings/cpp/ztedit.hpp || return
    local gcc_folder
    gcc_folder=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++.a)")/include/c++
    clang++ --target=x86_64-w64-windows-gnu "${warnings[@]}" -nostdlibinc -isystem "$gcc_folder" -isystem "$gcc_folder/x86_64-w64-mingw32" \
        -isystem /usr/x86_64-w64-mingw32/include "${headers[@]}" -fsyntax-only bindings/cpp/sample.cpp $work/readme/readme.cpp
}

compile_csharp()
{
    mkdir -p $work/csharp
    local forms=(-r:System.Windows.Forms -r:System.Drawing) strict=(-warn:4 -warnaserror+)
    # in place of the DLLs, one library under two names: see tests/bindings/MaskedEditTest.cs
    gcc -shared -fPIC -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror tests/bindings/remembering_library.c \
        -o $work/csharp/ztedit050.dll && ln -sf ztedit050.dll $work/csharp/ztshared.dll || return
    mcs "${strict[@]}" -target:library "${forms[@]}" -out:$work/csharp/ZtEdit.dll bindings/csharp/ZtEdit.cs &&
        mcs "${strict[@]}" "${forms[@]}" -r:$work/csharp/ZtEdit.dll -out:$work/csharp/MaskedEditTest.exe \
            tests/bindings/MaskedEditTest.cs &&
        mcs "${strict[@]}" -target:winexe "${forms[@]}" -r:$work/csharp/ZtEdit.dll -out:$work/csharp/Sample.exe bindings/csharp/Sample.cs &&
        mcs "${strict[@]}" -target:library "${forms[@]}" -r:$work/csharp/ZtEdit.dll -out:$work/readme/Readme.dll $work/readme/Readme.cs &&
        mcs "${strict[@]}" "${forms[@]}" -r:$work/csharp/ZtEdit.dll -out:$work/csharp/ManagedFacts.exe tests/bindings/ManagedFacts.cs
}

check_csharp()
{
    mono $work/csharp/ManagedFacts.exe >$work/csharp/facts && python3 -B tests/bindings/check_declarations.py --csharp $work/csharp/facts
}

compile_pascal()
{
    mkdir -p $work/pascal
    python3 -B tests/bindings/check_declarations.py --pascal-program $work/pascal/pascal_facts.pas &&
        tools/pascal_units.sh $work/pascal bindings/pascal/sample.pas $work/pascal/pascal_facts.pas $work/readme/readme.pas &&
        cp build/x64/bin/zt*.dll $work/pascal/
}

check_pascal()
{
    wine $work/pascal/pascal_facts.exe </dev/null | tr -d '\r' >$work/pascal/facts &&
        python3 -B tests/bindings/check_declarations.py --pascal $work/pascal/facts
}

need python3 fpc mcs mono clang++ wine xdotool x86_64-w64-mingw32-g++-posix i686-w64-mingw32-g++-posix
step "declarations of all bindings" python3 -B tests/bindings/check_declarations.py
step "the Python binding" python3 -B tests/bindings/python_binding_test.py
for preset in x86 x64; do
    step "building for $preset" tools/build.sh $preset test_bindings ztedit050_dll ztshared_dll ztdecimal_dll
done
mkdir -p $work/readme
step "the examples of bindings/README.md" python3 -B tests/bindings/write_readme_programs.py $work/readme
step "the example in Python" python3 -c 'import sys; compile(open(sys.argv[1]).read(), "readme.py", "exec")' $work/readme/readme.py
step "compiling C++" compile_cpp
step "compiling C#" compile_csharp
step "the compiled C# binding" check_csharp
step "compiling Pascal" compile_pascal

ZT_WINEPREFIX=${ZT_WINEPREFIX:-$PWD/build/wineprefix-x64}
. tools/wine_session.sh
start_wine_session new-display || fail "no Wine session"
step "the compiled Pascal unit" check_pascal
step "the control in C#" timeout -k 5 60 mono $work/csharp/MaskedEditTest.exe
for preset in x86 x64; do
    step "the C++ wrapper on $preset" wine build/$preset/bin/test_bindings.exe --gtest_brief=1 </dev/null
    step "the sample in C++ on $preset" tests/bindings/types_into_the_sample.sh $work/$preset/cpp_sample.exe
done
step "the sample in Pascal" tests/bindings/types_into_the_sample.sh $work/pascal/sample.exe
echo "All checks of the bindings passed ($SECONDS s)"
