#!/bin/bash
# Fails, naming file and line, when a source has a line too long to read.
# Usage: tools/check_lines.sh [FILE...]     (without files: every tracked source)
set -euo pipefail
export LC_ALL=C.UTF-8
limit=140

sources=("$@")
if [ $# -eq 0 ]; then
    cd "$(dirname "$0")/.."
    tracked=$(git ls-files -- '*.cpp' '*.h' '*.c' '*.rc' '*.def' '*.sh' '*.cmake' '*.py' '*.hpp' '*.pas' '*.cs' '*.bas' '*.html' \
        '*.mjs' '*.ts' '*CMakeLists.txt')
    while read -r source; do
        [ ! -e "$source" ] || sources+=("$source")  # one just deleted is still tracked
    done <<<"$tracked"
fi

lines=$(grep -nHE --text ".{$((limit + 1))}" -- "${sources[@]}") || [ $? -eq 1 ]  # 1: there are none
lines=$(cut -d: -f1,2 <<<"$lines")
if [ -n "$lines" ]; then
    echo "$lines"
    echo "FAILED: these lines have more than $limit characters" >&2
    exit 1
fi
