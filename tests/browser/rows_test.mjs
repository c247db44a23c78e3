// The keystroke tables of the native tests, played into an input by real keys: text and caret are what they are there.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { after, before, describe, test } from "node:test";

import { openPage } from "./browser.mjs";

const rowsFile = new URL("../../build/browser/rows.json", import.meta.url);

/** Keys that do something else in a page: they leave the input, or send its form. */
const pagesOwn = ["{Tab}", "{Enter}"];

const rows = JSON.parse(readFileSync(rowsFile, "utf8")).filter((row) => !row.keys.some((key) => pagesOwn.includes(key)));

/** Rows of one table under one mask, each a test. */
const tables = new Map();
for (const row of rows) {
    const name = `${row.table}: ${row.mask || "no mask"}`;
    if (!tables.has(name)) tables.set(name, []);
    tables.get(name).push(row);
}

const keyNames = {
    Left: "ArrowLeft", Right: "ArrowRight", Up: "ArrowUp", Down: "ArrowDown", Del: "Delete", Back: "Backspace", Ins: "Insert",
    PgUp: "PageUp", PgDn: "PageDown", Esc: "Escape", Ctrl: "Control",
};

let page;
let protocol;
let close;

before(async () => {
    ({ page, protocol, close } = await openPage());
    await page.clock.setFixedTime(new Date(1995, 5, 4, 12)); // the day of the tests, from which empty dates are stepped
});
after(() => close());

async function pointOf(column) {
    return page.evaluate((at) => {
        const input = document.querySelector("#field");
        const box = input.getBoundingClientRect();
        const style = getComputedStyle(input);
        const canvas = document.createElement("canvas").getContext("2d");
        canvas.font = style.font;
        const left = box.left + parseFloat(style.paddingLeft) + parseFloat(style.borderLeftWidth);
        return [left + canvas.measureText("0").width * at, box.top + box.height / 2];
    }, column);
}

async function wheel(deltaY) {
    const [x, y] = await pointOf(1);
    await page.mouse.move(x, y);
    const heard = page.evaluate(() =>
        new Promise((told) => document.addEventListener("wheel", () => setTimeout(told), { once: true })));
    await page.mouse.wheel(0, deltaY);
    await heard;
}

async function pressKeypadPoint() {
    const point = { key: ".", code: "NumpadDecimal", windowsVirtualKeyCode: 110, isKeypad: true, location: 3 };
    await protocol.send("Input.dispatchKeyEvent", { type: "keyDown", text: ".", ...point });
    await protocol.send("Input.dispatchKeyEvent", { type: "keyUp", ...point });
}

/** What is no key, or not the same one in a page. */
const acts = {
    Blur: async () => {
        await page.focus("#other");
        await page.focus("#field");
    },
    Pause: () => page.evaluate(() => window.made.field.letTimePass(1100)),
    ReadOnly: () => page.evaluate(() => void (document.querySelector("#field").readOnly = true)),
    Undo: () => page.keyboard.press("Control+z"),
    Redo: () => page.keyboard.press("Control+y"),
    Paste: () => page.keyboard.press("Control+v"),
    Clear: async () => {
        if (/\[/.test(await page.evaluate(() => window.shown()))) await page.keyboard.press("Delete");
    },
    Click: async (column) => page.mouse.click(...(await pointOf(column))),
    Double: async (column) => page.mouse.dblclick(...(await pointOf(column + 0.4))),
    WheelUp: () => wheel(-100),
    WheelDown: () => wheel(100),
    "Num.": pressKeypadPoint,
};

async function play(key) {
    const [, name, column] = /^\{(\D+?)(\d*)\}$/.exec(key) ?? [];
    if (!name) return page.keyboard.type(key);
    if (acts[name]) return acts[name](Number(column));
    const parts = name.split("+").map((part) => keyNames[part] ?? part);
    return page.keyboard.press(parts.map((part) => (/^[A-Z]$/.test(part) ? part.toLowerCase() : part)).join("+"));
}

async function given(row) {
    await page.evaluate((it) => {
        const choices = it.codes?.split("/").map((entry) => {
            const [text, value] = entry.split("\t");
            return { text, value: value === "null!" ? null : value };
        });
        window.make({
            mask: it.mask,
            type: it.type,
            settings: it.settings,
            modern: it.modern,
            spin: it.spin ? { range: it.range } : undefined,
            choices,
            value: it.value,
        });
        if (it.text === undefined) return;
        const { field } = window.made;
        const text = it.text.replace(/[[\]|]/g, "");
        field.setText(text);
        const start = it.text.search(/[[|]/);
        const end = it.text.includes("]") ? it.text.indexOf("]") - 1 : start;
        if (start >= 0) field.select(start, end);
    }, row);
    await page.focus("#field");
}

async function playRow(row) {
    await given(row);
    for (const key of row.keys) await play(key);
    return page.evaluate(() => window.shown());
}

/** A caret where the row does not tell one is of no interest. */
function asTold(shown, told) {
    return /[|[]/.test(told) ? shown : shown.replace(/[[\]|]/g, "");
}

test("there are at least forty tables", () => {
    assert.ok(tables.size >= 40, `${tables.size} tables, ${rows.length} rows`);
});

describe("keystrokes", () => {
    for (const [name, table] of tables) {
        test(name, async () => {
            const differing = [];
            for (const row of table) {
                const shown = asTold(await playRow(row), row.after);
                if (shown !== row.after) {
                    differing.push(`"${row.text ?? row.value ?? ""}" ${row.keys.join("")}: "${shown}", not "${row.after}"`);
                }
            }
            assert.deepEqual(differing, []);
        });
    }
});
