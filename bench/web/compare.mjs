// The module beside two mask libraries of the web, in one browser: what each does in sixty situations, keys a second, bytes that a page
// loads. Prints the tables of docs/performance.md. Ends with a fault where ours does not do all.
import { readFileSync } from "node:fs";
import { gzipSync } from "node:zlib";

import { openPage } from "../../tests/browser/browser.mjs";
import { comparable, play } from "./play.mjs";
import { situations } from "./situations.mjs";

const peers = "build/bench-web/node_modules";
const names = ["ztfield", "imask", "inputmask"];
const sources = {
    ztfield: "build/web/ztfield.mjs",
    imask: `${peers}/imask/dist/imask.min.js`,
    inputmask: `${peers}/inputmask/dist/inputmask.min.js`,
};
const typing = [
    { kind: "date", keys: "07041995" },
    { kind: "phone", keys: "2125551234" },
    { kind: "number", keys: "1234567.89" },
];
const rounds = 200;
const turns = 7;

const median = (numbers) => numbers.toSorted((a, b) => a - b)[Math.floor(numbers.length / 2)];
const row = (cells) => `| ${cells.join(" | ")} |`;
const table = (head, rows) => [row(head), row(head.map(() => "---")), ...rows.map(row)].join("\n");
const code = (text) => (text.trim() ? `\`${text.trimEnd()}\`` : "blank");

function sizes() {
    return names.map((name) => {
        const content = readFileSync(sources[name]);
        return [name, content.length, gzipSync(content, { level: 9 }).length];
    });
}

/** In turns, so that what else the machine does meets all of them alike. */
async function keysPerSecond(page) {
    const times = Object.fromEntries(names.map((name) => [name, typing.map(() => [])]));
    for (let turn = 0; turn < turns; turn++) {
        for (const name of names) {
            for (const [i, { kind, keys }] of typing.entries()) {
                const asked = [name, kind, keys, rounds];
                const spent = await page.evaluate(([who, what, typed, often]) => window.measure(who, what, typed, often), asked);
                times[name][i].push((rounds * keys.length * 1000) / spent);
            }
        }
    }
    return names.map((name) => [name, ...times[name].map((each) => Math.round(median(each)))]);
}

async function playAll(page) {
    const results = [];
    for (const situation of situations) {
        const played = [];
        for (const name of names) played.push(await play(page, name, situation));
        results.push({ situation, played });
    }
    return results;
}

function situationRow({ situation, played }) {
    const done = situation.done.replaceAll("|", "\\|");
    const verdicts = played.map(({ shown, right }) => (right ? "yes" : code(comparable(shown))));
    return [situation.kind, situation.title, code(done), code(situation.shown), ...verdicts];
}

const { page, close } = await openPage("bench/web/page.html");
await page.context().grantPermissions(["clipboard-read", "clipboard-write"]);
await page.evaluate((scripts) => window.prepare(scripts), [`/${sources.imask}`, `/${sources.inputmask}`]);
const results = await playAll(page);
const counts = names.map((_, i) => results.filter(({ played }) => played[i].right).length);
const speeds = await keysPerSecond(page);
await close();

console.log(table(["", "bytes", "gzipped"], sizes()));
console.log();
console.log(table(["keys a second", ...typing.map(({ kind }) => kind)], speeds));
console.log();
console.log(table(["kind", "situation", "done", "must stand there", ...names], results.map(situationRow)));
console.log();
console.log(`Of ${situations.length}: ${names.map((name, i) => `${name} ${counts[i]}`).join(", ")}.`);
process.exit(counts[0] === situations.length ? 0 : 1);
