#!/bin/bash
# The module for the web, built and tried: without a page by node, and on inputs in Chromium.
# Usage: tools/test_browser.sh [FILE...]      (without files: every tests/browser/*_test.mjs)
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install_deps.sh --web

# The driver of the browser, from npm; it brings no browser of its own.
driver=playwright-core@1.65.1
if [ "$(cat build/browser/driver 2>/dev/null)" != "$driver" ]; then
    echo "Installing $driver"
    mkdir -p build/browser
    echo '{"private": true}' >build/browser/package.json
    npm install --prefix build/browser --no-audit --no-fund --loglevel=error "$driver" >/dev/null
    echo "$driver" >build/browser/driver
fi

tools/build_web.sh
tools/build.sh native write_rows
build/native/bin/write_rows build/browser/rows.json

files=("$@")
[ $# -gt 0 ] || files=(tests/browser/*_test.mjs)
node --test --test-concurrency=1 --test-reporter=dot "${files[@]}"
