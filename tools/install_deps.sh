#!/bin/bash
# Installs what building, testing and the demo need on Debian 12; does nothing when all is there.
# Usage: tools/install_deps.sh [--clang | --fuzz | --mutate | --bench | --peers | --coverage | --bindings | --package | --field | --manual |
#                               --web]
#     --clang      the second compiler and the code checkers as well
#     --fuzz       the fuzzers of clang; --mutate  what tools/mutate needs
#     --bench      what measuring the engine needs, --coverage what counting covered lines needs
#     --bindings   what compiling and checking the bindings of other languages needs
#     --field      what trying the packages of libztfield needs
#     --manual     what building the manual as HTML needs
#     --web        what building the module for the web and trying it in a browser needs
#     --peers      what measuring the engine beside others of its kind needs
set -euo pipefail

# package:file that shows it is there
packages=(
    g++:g++
    g++-multilib:/usr/lib/gcc/x86_64-linux-gnu/12/32/libstdc++.a
    g++-mingw-w64-i686-posix:/usr/bin/i686-w64-mingw32-g++-posix
    g++-mingw-w64-x86-64-posix:/usr/bin/x86_64-w64-mingw32-g++-posix
    python3:python3
    groff-base:groff
    cmake:cmake
    ninja-build:ninja
    googletest:/usr/src/googletest/CMakeLists.txt
    wine:wine
    wine64:/usr/lib/wine/wine64
    wine32:i386:/usr/lib/wine/wine
    xvfb:Xvfb
    xauth:xauth
    xdotool:xdotool
    xclip:xclip
    imagemagick:import
    fonts-liberation:/usr/share/fonts/truetype/liberation
)
case ${1:-} in
--clang)
    packages+=(clang:clang++ clang-format:clang-format clang-tidy:clang-tidy)
    packages+=(libclang-rt-14-dev:/usr/lib/llvm-14/lib/clang/14.0.6/lib/linux/libclang_rt.asan-x86_64.a)
    ;;
--fuzz)
    packages+=(clang:clang++)
    packages+=(libclang-rt-14-dev:/usr/lib/llvm-14/lib/clang/14.0.6/lib/linux/libclang_rt.fuzzer-x86_64.a)
    ;;
--bench) packages+=(libbenchmark-dev:/usr/include/benchmark/benchmark.h valgrind:valgrind) ;;
--peers)
    packages+=(libbenchmark-dev:/usr/include/benchmark/benchmark.h libicu-dev:/usr/include/unicode/utypes.h nodejs:node npm:npm)
    ;;
--coverage) packages+=(gcovr:gcovr) ;;
--manual) packages+=(pandoc:pandoc) ;;
--field) packages+=(pkg-config:pkg-config) ;;
--web)
    packages+=(clang-14:clang++-14 lld-14:wasm-ld-14 wasi-libc:/usr/lib/wasm32-wasi/libc.a)
    packages+=(libc++-14-dev-wasm32:/usr/lib/wasm32-wasi/libc++.a libc++abi-14-dev-wasm32:/usr/lib/llvm-14/lib/wasm32-wasi/libc++abi.a)
    packages+=(libclang-rt-14-dev-wasm32:/usr/lib/llvm-14/lib/clang/14.0.6/lib/wasi/libclang_rt.builtins-wasm32.a)
    packages+=(chromium:chromium nodejs:node npm:npm)
    ;;
--package) packages+=(llvm:/usr/lib/llvm-14/bin/llvm-dlltool lld:lld-link clang:clang zip:zip unzip:unzip pkg-config:pkg-config) ;;
--bindings)
    packages+=(clang:clang++ fp-compiler:fpc fpc-source:/usr/share/fpcsrc)
    packages+=(mono-mcs:mcs mono-runtime:mono libmono-system-windows-forms4.0-cil:/usr/lib/mono/4.5/System.Windows.Forms.dll)
    ;;
--mutate) packages+=(clang:clang++ lld:ld.lld python3-clang:/usr/lib/python3/dist-packages/clang/cindex.py) ;;
esac

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# A path must exist, a plain name must be a command.
is_there()
{
    case $1 in
    /*) [ -e "$1" ] ;;
    *) command -v "$1" >/dev/null ;;
    esac
}

missing=()
find_missing()
{
    local row
    missing=()
    for row in "${packages[@]}"; do
        is_there "${row##*:}" || missing+=("${row%:*}")
    done
}

as_root()
{
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

apt()
{
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o Acquire::Retries=3 -o Dpkg::Use-Pty=0 "$@"
}

# On some mirrors the security archive's i386 index lags behind its amd64 one, and apt then finds no i386 partners for
# libraries already installed from there. Without that archive, and with downgrades allowed, the two sets match.
install_without_security_archive()
{
    local preferences
    preferences=$(mktemp)
    chmod 644 "$preferences"
    cat >"$preferences" <<'PINS'
Package: *
Pin: release l=Debian-Security
Pin-Priority: -1

Package: *
Pin: release l=Debian
Pin-Priority: 1001
PINS
    local result=0
    apt -o Dir::Etc::Preferences="$preferences" --allow-downgrades install --no-install-recommends "$@" || result=$?
    rm -f "$preferences"
    return $result
}

find_missing
[ ${#missing[@]} -gt 0 ] || exit 0
echo "Installing: ${missing[*]}"

command -v apt-get >/dev/null || fail "no apt-get here; install these yourself: ${missing[*]}"
if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
    fail "neither root nor sudo, so these cannot be installed: ${missing[*]}"
fi

case " ${missing[*]} " in
*" wine32:i386 "*) as_root dpkg --add-architecture i386 || fail "dpkg could not add the architecture i386, needed for wine32" ;;
esac
apt update || echo "apt-get update did not succeed; going on with the lists that are there" >&2
apt install --no-install-recommends "${missing[@]}" ||
    install_without_security_archive "${missing[@]}" ||
    echo "apt-get install did not succeed" >&2

hash -r
find_missing
case " ${missing[*]} " in
*" wine32:i386 "*) fail "wine32:i386 could not be installed, and without it nothing runs on x86 (missing: ${missing[*]})" ;;
esac
[ ${#missing[@]} -eq 0 ] || fail "these packages could not be installed: ${missing[*]}"
