#!/bin/bash
# Builds the laboratory and tries it in a browser, every control of it.
# Usage: tools/test_lab.sh [NAME]     (NAME: only tests whose names have it)
set -euo pipefail
cd "$(dirname "$0")/.."

tools/install_deps.sh --web
tools/build_web.sh
tools/browser_modules.sh playwright-core@1.65.1
node --test --test-reporter=dot ${1:+--test-name-pattern="$1"} tests/browser/lab_test.mjs tests/browser/lab_calls_test.mjs
