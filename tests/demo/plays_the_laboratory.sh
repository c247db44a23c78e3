#!/bin/sh
# The test of the laboratory: plays it as a person would, and fails when it shows anything else.
# Usage: plays_the_laboratory.sh DEMO.EXE
"$(dirname "$0")/../../tools/fill_lab.sh" "$@"
