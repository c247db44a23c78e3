#!/bin/sh
# Writes docs/manual/keystrokes.md anew from the rows of the tests; to be committed with them.
set -eu
cd "$(dirname "$0")/.."
tools/build.sh native write_keystrokes
build/native/bin/write_keystrokes docs/manual/keystrokes.md
