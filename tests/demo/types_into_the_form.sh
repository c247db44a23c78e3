#!/bin/sh
# The test of the demo: fills the form in as a person would, modern and classic, and fails when a field shows or gives back anything else.
# Usage: types_into_the_form.sh DEMO.EXE
fill=$(dirname "$0")/../../tools/fill_demo.sh
"$fill" "$1" && "$fill" --classic "$1"
