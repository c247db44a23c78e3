#!/bin/bash
# The module for the web, built and tried: without a page by node, and on inputs in Chromium.
# Usage: tools/test_browser.sh [FILE...]      (without files: every tests/browser/*_test.mjs)
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install_deps.sh --web

# From npm: the driver of the browser, which brings no browser of its own, and the compiler that checks the types.
packages="playwright-core@1.65.1 typescript@5.9.3"
if [ "$(cat build/browser/packages 2>/dev/null)" != "$packages" ]; then
    echo "Installing $packages"
    mkdir -p build/browser
    echo '{"private": true}' >build/browser/package.json
    npm install --prefix build/browser --no-audit --no-fund --loglevel=error $packages >/dev/null
    echo "$packages" >build/browser/packages
fi

tools/build_web.sh
tools/build.sh native write_rows
build/native/bin/write_rows build/browser/rows.json

files=("$@")
[ $# -gt 0 ] || files=(tests/browser/*_test.mjs)
node --test --test-concurrency=1 --test-reporter=dot "${files[@]}"
