// Puts a page's style and script into the page itself, and forbids it the network.
// Usage: node join_page.mjs PAGE STYLE SCRIPT
import { readFileSync } from "node:fs";

const [page, style, script] = process.argv.slice(2).map((name) => readFileSync(name, "utf8"));

const policy =
    "default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline' 'wasm-unsafe-eval'; img-src data:;" +
    " base-uri 'none'; form-action 'none'";

const put = (text, place, what) => {
    if (text.split(place).length !== 2) throw new Error(`${place} stands not once in the page`);
    return text.split(place).join(what);
};

if (/<\/script/i.test(script) || /<\/style/i.test(style))
    throw new Error("the script or the style would end before its end");
const styled = put(page, '<link rel="stylesheet" href="lab.css">', `<style>\n${style}</style>`);
const scripted = put(
    styled,
    '<script type="module" src="main.mjs"></script>',
    `<script type="module">\n${script}</script>`,
);
process.stdout.write(
    put(
        scripted,
        '<meta charset="utf-8">',
        `<meta charset="utf-8">\n<meta http-equiv="Content-Security-Policy" content="${policy}">`,
    ),
);
