#!/bin/bash
# The module for the web and the laboratory, built and tried: without a page by node, and in Chromium.
# Usage: tools/test_browser.sh [FILE...]      (without files: every tests/browser/*_test.mjs)
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install_deps.sh --web

# The driver of the browser, from npm, which brings no browser of its own, and the compiler that checks the types.
tools/browser_modules.sh playwright-core@1.65.1 typescript@5.9.3

tools/build_web.sh
tools/build.sh native write_rows
build/native/bin/write_rows build/browser/rows.json

files=("$@")
[ $# -gt 0 ] || files=(tests/browser/*_test.mjs)
node --test --test-concurrency=2 --test-reporter=dot "${files[@]}"
