#!/bin/sh
# The test of the demo: fills the form in as a person would, and fails when a field shows or gives back anything else.
# Usage: types_into_the_form.sh [--classic] DEMO.EXE
"$(dirname "$0")/../../tools/fill_demo.sh" "$@"
