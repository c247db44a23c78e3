#!/bin/bash
# Counts the lines of engine/ that the native tests reach, and prints them per file with the lines that none reaches.
# Usage: ./coverage.sh
set -euo pipefail
cd "$(dirname "$0")"
tools/install_deps.sh --coverage
tools/build.sh native-coverage
find build/native-coverage -name '*.gcda' -delete
ctest --preset native-coverage </dev/null
gcovr --root . --filter engine/ --object-directory build/native-coverage --exclude-throw-branches
