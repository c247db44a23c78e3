#!/bin/sh
# Builds the manual as HTML: build/manual/index.html and its pages, one of them made from the headers. Fails on a link that leads nowhere.
# Usage: ./manual.sh
set -eu
cd "$(dirname "$0")"
tools/install_deps.sh --manual
python3 -B tools/manual/build_manual.py build/manual
