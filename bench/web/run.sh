#!/bin/bash
# The module beside two mask libraries of the web, in Chromium: sixty situations, keys a second, bytes; run by ./bench.sh --web.
# The libraries are those of package-lock.json and go to build/bench-web.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cd "$here/../.."
modules=build/bench-web

tools/test_browser.sh tests/browser/situations_test.mjs >/dev/null
mkdir -p $modules
if ! cmp -s "$here/package-lock.json" $modules/installed.json; then
    cp "$here/package.json" "$here/package-lock.json" $modules
    npm ci --prefix $modules --ignore-scripts --no-audit --no-fund --loglevel=error
    cp "$here/package-lock.json" $modules/installed.json
fi
printf '%s, %s processors, %s, node %s\n\n' "$(date +%F)" "$(nproc)" "$(chromium --version 2>/dev/null)" "$(node -p process.versions.node)"
node "$here/compare.mjs"
