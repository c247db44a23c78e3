#!/bin/bash
# Builds the laboratory and tries it in a browser, every control of it.
# Usage: tools/test_lab.sh [--built] [NAME]     (--built: the page that is there; NAME: only tests whose names have it)
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "${1:-}" = --built ]; then
    shift
else
    tools/build_lab.sh
fi
tools/browser_modules.sh playwright-core@1.65.1
node --test --test-reporter=spec ${1:+--test-name-pattern="$1"} tests/browser/lab_test.mjs
