#!/bin/bash
# Joins the laboratory, with the module in it, into one page that needs no server and no network: build/lab/mask-laboratory.html.
# Usage: tools/build_lab.sh [MODULE]     (MODULE: build/web/ztfield.mjs, which is built first)
set -euo pipefail
cd "$(dirname "$0")/.."

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

if [ $# -eq 0 ]; then
    tools/build_web.sh || fail "the module for the web"
fi
module=$(realpath "${1:-build/web/ztfield.mjs}")
joiner=build/browser/node_modules/.bin/esbuild
out=build/lab

tools/browser_modules.sh esbuild@0.28.2
mkdir -p "$out"
"$joiner" lab/main.mjs --bundle --format=esm --charset=utf8 --alias:ztfield="$module" --log-level=warning --outfile="$out/lab.mjs"
node tools/join_page.mjs lab/index.html lab/lab.css "$out/lab.mjs" >"$out/mask-laboratory.html.new"
mv "$out/mask-laboratory.html.new" "$out/mask-laboratory.html"
echo "$out/mask-laboratory.html"
