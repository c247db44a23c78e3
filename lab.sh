#!/bin/bash
# Installs what is missing, builds the mask laboratory and opens it in the browser; without a display its path is printed.
# Usage: ./lab.sh [--screenshots DIR]
#   --screenshots DIR   pictures of the page at three widths, light and dark, into DIR instead
set -euo pipefail
cd "$(dirname "$0")"

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

pictures=
if [ $# -eq 2 ] && [ "$1" = --screenshots ]; then
    pictures=$2
elif [ $# -gt 0 ]; then
    echo "usage: ./lab.sh [--screenshots DIR]" >&2
    exit 2
fi

tools/install_deps.sh --web || fail "installing what the laboratory needs"
tools/build_lab.sh || fail "building the laboratory"
page=$PWD/build/lab/mask-laboratory.html
if [ -n "$pictures" ]; then
    tools/browser_modules.sh playwright-core@1.65.1
    node tests/browser/lab_pictures.mjs "$page" "$pictures"
    echo "Pictures: $pictures"
elif [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && command -v xdg-open >/dev/null; then
    xdg-open "$page"
else
    echo "Open this file in a browser: $page"
fi
