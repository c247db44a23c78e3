#!/bin/bash
# Installs modules of npm into build/browser, at the versions told; does nothing for those that are there.
# Usage: tools/browser_modules.sh NAME@VERSION...
set -euo pipefail
cd "$(dirname "$0")/.."
modules=build/browser

is_there()
{
    local name=${1%@*} version=${1##*@}
    grep -q "\"version\": \"$version\"" "$modules/node_modules/$name/package.json" 2>/dev/null
}

missing=()
for module in "$@"; do
    is_there "$module" || missing+=("$module")
done
[ ${#missing[@]} -gt 0 ] || exit 0
mkdir -p "$modules"
npm install --prefix "$modules" --save-exact --ignore-scripts --no-audit --no-fund --loglevel=error "${missing[@]}" || {
    echo "FAILED: npm could not install ${missing[*]}" >&2
    exit 1
}
