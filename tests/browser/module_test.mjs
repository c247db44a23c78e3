// The module without a page: fields in memory, values, masks; what it declares, and what it weighs.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { describe, test } from "node:test";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";

import * as module from "../../build/web/ztfield.mjs";
import { watchedModule } from "./memory.mjs";

const { Field, check, format, parse, version } = module;
const built = (name) => readFileSync(new URL(`../../build/web/${name}`, import.meta.url));
const written = (name) => readFileSync(new URL(`../../${name}`, import.meta.url), "utf8");

const date = { mask: "MM/DD/YYYY", type: "date" };
const amount = { mask: "#,##0.00", type: "number" };
const german = { decimal: ",", thousands: "." };

/** A field whose events are kept. */
function hearing(options, answer = undefined) {
    const events = [];
    const field = new Field(options, (event) => {
        events.push(event);
        return answer;
    });
    return { field, events };
}

describe("a field", () => {
    test("shows what is typed, and has its value", () => {
        const field = new Field(date);
        assert.deepEqual([field.text, field.value, field.state], ["  /  /    ", "", "empty"]);
        field.type("7/4/");
        assert.deepEqual([field.text, field.value, field.state], ["07/04/    ", null, "incomplete"]);
        field.type("2026");
        assert.deepEqual([field.text, field.value, field.state], ["07/04/2026", "2026-07-04", "complete"]);
        assert.deepEqual(field.selection, { anchor: 10, caret: 10, start: 10, end: 10 });
        field.destroy();
    });

    test("tells what happens, in its order", () => {
        const { field, events } = hearing(date);
        field.type("1x");
        assert.deepEqual(events, [
            { kind: "changed" },
            { kind: "state", was: "empty", is: "incomplete" },
            {
                kind: "rejected", reason: "wrong kind", position: 1, character: "x",
                message: "This character does not belong here.",
            },
            { kind: "beep" },
        ]);
    });

    test("does not beep for a refusal that has been taken", () => {
        const { field, events } = hearing(date, true);
        field.type("x");
        assert.deepEqual(events.map(({ kind }) => kind), ["rejected"]);
    });

    test("tells where it is full, and which skip it wants", () => {
        const { field, events } = hearing({ mask: "##", autoskip: true });
        field.type("12");
        assert.equal(events.at(-1).kind, "full");
    });

    test("pastes all of a text or nothing, and tells where in it the fault is", () => {
        const { field, events } = hearing({ mask: "(###) ###-####" });
        field.paste("555-123-4567");
        assert.equal(field.text, "(555) 123-4567");
        field.select(0, 14);
        events.length = 0;
        field.paste("555\u{1F600}");
        assert.equal(field.text, "(555) 123-4567");
        assert.equal(events[0].position, 3);
    });

    test("gives what is cut and copied", () => {
        const field = new Field({ ...date, value: "2026-07-04" });
        assert.equal(field.copy(), "");
        field.select(0, 2);
        assert.equal(field.copy(), "07");
        assert.equal(field.cut(), "07");
        assert.equal(field.text, "  /04/2026");
    });

    test("undoes and redoes", () => {
        const field = new Field(date);
        assert.equal(field.canUndo, false);
        field.type("7/4/2026");
        assert.deepEqual([field.canUndo, field.canRedo], [true, false]);
        field.undo();
        assert.deepEqual([field.text, field.canUndo, field.canRedo], ["  /  /    ", false, true]);
        field.redo();
        assert.equal(field.value, "2026-07-04");
        field.press("z", { ctrl: true });
        field.type("1");
        field.letTimePass(2000);
        field.type("2");
        field.undo();
        assert.equal(field.text, "1 /  /    ");
    });

    test("takes values that are ones, and tells why others are none", () => {
        const field = new Field(date);
        assert.equal(field.tryValue("2026-07-04"), null);
        assert.equal(field.tryValue("2026-02-30"), "does not exist");
        assert.equal(field.value, "2026-07-04");
        field.value = null;
        assert.equal(field.state, "empty");
        field.setText("junk");
        assert.deepEqual([field.text, field.state], ["junk", "invalid"]);
    });

    test("steps, and a key that is held steps as one", () => {
        const field = new Field({ mask: "##0", type: "number", spin: { increment: 2, range: "0~20" }, value: "10" });
        field.step(true);
        field.wheel(-2);
        assert.equal(field.value, "8");
        for (let i = 0; i < 3; ++i) field.keyDown("ArrowUp");
        field.keyUp("ArrowUp");
        assert.equal(field.value, "14");
        field.undo();
        assert.equal(field.value, "8");
        field.setSpin(false);
        field.press("ArrowUp");
        assert.equal(field.value, "8");
    });

    test("is clicked, dragged over and double-clicked", () => {
        const field = new Field({ ...date, value: "2026-07-04" });
        field.click(2);
        assert.equal(field.selection.caret, 3);
        field.drag(5, 3);
        assert.deepEqual(field.selection, { anchor: 5, caret: 3, start: 3, end: 5 });
        field.doubleClick(8);
        assert.deepEqual([field.selection.start, field.selection.end], [6, 10]);
    });

    test("shows choices by their texts, whatever is in them", () => {
        const choices = [{ text: "Yes/no", value: "y/n" }, { text: "None", value: null }, { text: "Ça", value: "c" }];
        const field = new Field({ choices });
        field.type("ç");
        assert.deepEqual([field.text, field.value], ["Ça", "c"]);
        field.value = "y/n";
        assert.equal(field.text, "Yes/no");
        field.press("Delete");
        assert.deepEqual([field.text, field.value], ["None", ""]);
    });

    test("is edited in the classic way where that is asked for", () => {
        const field = new Field({ ...date, modern: false });
        assert.deepEqual([field.text, field.modern], ["00/00/0000", false]);
        field.modern = true;
        assert.equal(field.text, "  /  /    ");
    });

    test("takes nothing from its user while it is read-only", () => {
        const { field, events } = hearing({ ...date, readOnly: true });
        field.type("1");
        assert.equal(field.text, "  /  /    ");
        assert.equal(events[0].reason, "read only");
        field.readOnly = false;
        field.type("1");
        assert.equal(field.text, "1 /  /    ");
    });

    test("takes another mask and other settings", () => {
        const field = new Field({ ...amount, value: "1234.5" });
        field.setSettings(german);
        assert.equal(field.text, "1.234,50");
        assert.equal(field.setMask("MM/DD", "date"), false);
        assert.equal(field.setMask("[date]", "date"), true);
        assert.deepEqual([field.mask, field.dataType], ["mm/dd/yy", "date"]);
    });

    test("counts as JavaScript does", () => {
        const field = new Field({ mask: "XX-A" });
        field.type("\u{1F600}b");
        assert.equal(field.selection.caret, 4);
        assert.deepEqual(field.positions.map(({ index, length }) => [index, length]), [[0, 2], [2, 1], [3, 1], [4, 1]]);
        field.select(0, 2);
        assert.equal(field.copy(), "\u{1F600}");
        field.click(1);
        assert.equal(field.selection.caret, 0);
    });

    test("tells what its positions are", () => {
        const [first, , literal] = new Field({ mask: "##~#A" }).positions;
        assert.deepEqual(first, { kind: "digit", character: "#", escaped: false, part: 0, index: 0, length: 1 });
        assert.deepEqual([literal.kind, literal.character, literal.escaped, literal.part], ["literal", "#", true, -1]);
    });

    test("keeps what no text can hold from ending it", () => {
        const field = new Field({ mask: "XXXX" });
        field.type("a\0b");
        assert.equal(field.text.length, 4);
        assert.equal(field.text[2], "b");
    });

    test("steps an empty date from today", () => {
        const field = new Field({ mask: "YYYY", type: "string", spin: true });
        field.setMask("YYYY-MM-DD", "date");
        const before = new Date();
        field.press("ArrowUp");
        const dayOf = (moment) => format(moment, { mask: "YYYY-MM-DD", type: "date" });
        assert.ok([dayOf(before), dayOf(new Date())].includes(field.text), field.text);
    });

    test("is one of many that do not disturb one another", () => {
        const fields = Array.from({ length: 500 }, () => new Field(date));
        fields.forEach((field, index) => field.type(`1/1/${1900 + (index % 100)}`));
        assert.ok(fields.every((field, index) => field.value === `${1900 + (index % 100)}-01-01`));
        fields.forEach((field) => field.destroy());
    });
});

describe("values", () => {
    test("are shown", () => {
        assert.equal(format("1234.5", amount), "1,234.50");
        assert.equal(format("1234.5", { ...amount, settings: german }), "1.234,50");
        assert.equal(format("2026-07-04", date), "07/04/2026");
        assert.equal(format(null, date), "  /  /    ");
        assert.equal(format("2026-02-30", date), null);
        assert.equal(format("r", { choices: [{ text: "Red", value: "r" }] }), "Red");
    });

    test("may be numbers and dates of JavaScript", () => {
        const shown = [1234.5, -0.25, 1e21, 1e-7, 0].map((number) => format(number, amount));
        assert.deepEqual(shown, ["1,234.50", "-0.25", "1,000,000,000,000,000,000,000.00", "0.00", "0.00"]);
        assert.equal(format(Number.NaN, amount), null);
        const moment = new Date(2026, 6, 4, 13, 5, 9, 70);
        assert.equal(format(moment, { mask: "MM/DD/YYYY HH:MM AM/PM", type: "datetime" }), "07/04/2026 01:05 PM");
        assert.equal(format(moment, { mask: "HH:MM:SS.FFF", type: "time" }), "13:05:09.070");
        assert.equal(format(new Date(Number.NaN), date), null);
    });

    test("are read from what people write", () => {
        assert.equal(parse("4 July 2026", date), "2026-07-04");
        assert.equal(parse("1.234,5", { ...amount, settings: german }), "1234.50");
        assert.equal(parse("1,234", { ...amount, mask: "0.000", settings: german }), "1.234");
        assert.equal(parse("30 February", date), null);
        assert.equal(parse("", date), "");
        assert.equal(parse("green", { choices: [{ text: "Green", value: "g" }] }), "g");
    });

    test("go through doubles unchanged", () => {
        const mask = { mask: "0.####################", type: "number" };
        for (const number of [0.1, 1 / 3, 123456789.123456, 5e-20, 9007199254740993, 4.35]) {
            assert.equal(Number(parse(format(number, mask), mask)), Number(number.toFixed(20)), String(number));
        }
    });
});

describe("masks", () => {
    test("are checked with reason and place", () => {
        assert.deepEqual(check("MM/DD/YYYY", "date"), { fits: true, reason: null, position: -1, message: "" });
        assert.deepEqual(check("MM/DD", "date"), {
            fits: false, reason: "field missing", position: 5, message: "A field needs another one that is missing.",
        });
        assert.equal(check("\u{1F600}\u{1F600}M", "date").position, 4);
        assert.equal(check("[currency(17)]", "number").reason, "keyword");
        const german = { decimal: ",", thousands: "." };
        assert.equal(check("#,##0.00", "number", german).fits, true);
        assert.equal(check("#,##0.00", "number", german, { modern: false }).reason, "out of place");
    });

    test("are of a type that there is, under settings that there are", () => {
        assert.throws(() => check("##", "text"), /There is no data type "text"/);
        assert.throws(() => new Field({ settings: { decimal: ",." } }), /The setting "decimal" cannot be ",\."/);
        assert.throws(() => new Field({ settings: { comma: "," } }), /There is no setting "comma"/);
    });

    test("name months as the settings do", () => {
        const months = "JAN FEV MAR AVR MAI JUN JUL AOU SEP OCT NOV DEC".split(" ");
        assert.equal(format("2026-08-04", { mask: "DD-MMM-YYYY", type: "date", settings: { months } }), "04-AOU-2026");
    });
});

describe("memory", () => {
    const settings = { decimal: ",", thousands: "." };
    const choices = Array.from({ length: 50 }, (_, i) => ({ text: `Choice ${i}`, value: `${i}` }));
    const kinds = [date, { ...amount, settings }, { choices }, { mask: "(###) ###-####", spin: true, modern: false }];

    function use(field) {
        field.type("7/4");
        field.paste("12/31/1999");
        field.setMask("MM/DD", "date"); // refused
        return field.value;
    }

    test("does not grow by fields that are made and destroyed, by questions and by refused settings", async () => {
        const { module: own, size } = await watchedModule();
        const round = (i) => {
            const field = new own.Field(kinds[i % kinds.length], () => false);
            use(field);
            field.destroy();
            if (i % 50 !== 0) return;
            own.format("1234.5", { ...amount, settings });
            own.parse("4 July 2026", date);
            assert.throws(() => new own.Field({ settings: { comma: "," } }));
        };
        for (let i = 0; i < 100; ++i) round(i);
        const before = size();
        for (let i = 0; i < 20000; ++i) round(i);
        assert.equal(size(), before);
    });

    test("of fields that were dropped is given back", { timeout: 30000 }, () => {
        const program = fileURLToPath(new URL("dropped_fields.mjs", import.meta.url));
        const told = JSON.parse(execFileSync(process.execPath, ["--expose-gc", program], { encoding: "utf8" }));
        assert.ok(told.grown < 1 << 20, `${told.grown} bytes`); // ten thousand fields take forty times as much
        assert.deepEqual([told.heldIsHeard, told.held], [true, "1 "]);
    });
});

describe("a listener", () => {
    test("may destroy its field", () => {
        let field;
        const others = [];
        const destroy = () => {
            if (field.text !== "") others.push(field.destroy());
        };
        field = new Field({ mask: "##" }, destroy);
        field.type("12");
        assert.deepEqual(others.length, 1);
        assert.equal(new Field({ mask: "##", value: "34" }).text, "34");
    });

    test("that fails does not keep the field from its work; its error is the program's", async () => {
        const errors = [];
        const caught = new Promise((told) => process.setUncaughtExceptionCaptureCallback((error) => told(errors.push(error.message))));
        const field = new Field({ mask: "##" }, ({ kind }) => {
            if (kind === "changed") throw new Error("of the listener");
        });
        field.type("1");
        field.type("2");
        assert.equal(field.text, "12");
        await caught;
        process.setUncaughtExceptionCaptureCallback(null);
        assert.equal(errors[0], "of the listener");
    });
});

describe("the module", () => {
    const declarations = written("bindings/javascript/ztfield.d.mts");
    const membersOf = (name) => {
        const [, body] = new RegExp(`(?:class|interface) ${name} \\{\\n((?:.|\\n)*?)\\n\\}`).exec(declarations);
        const names = [...body.matchAll(/^ {4}(?:readonly )?(\w+)[(:?]/gm)].map(([, member]) => member);
        return [...new Set(names)].sort();
    };

    test("gives what its types declare", () => {
        const declared = [...declarations.matchAll(/^export declare (?:class|function|const) (\w+)/gm)].map(([, name]) => name);
        assert.deepEqual(Object.keys(module).sort(), [...new Set(declared)].sort());
        assert.deepEqual(Object.getOwnPropertyNames(Field.prototype).sort(), membersOf("Field"));
        assert.deepEqual(built("ztfield.d.mts").toString(), declarations);
    });

    test("has the version of the library", () => {
        const numbers = ["MAJOR", "MINOR", "PATCH"].map((part) =>
            new RegExp(`ZTFIELD_VERSION_${part} (\\d+)`).exec(written("include/ztfield.h"))[1]);
        assert.equal(version, numbers.join("."));
    });

    test("weighs at most 150 KB compressed, and what its page in the manual says", () => {
        const kilobytes = Math.round(gzipSync(built("ztfield.mjs"), { level: 9 }).length / 1000);
        assert.ok(kilobytes <= 150, `${kilobytes} KB`);
        const [, told] = /(\d+) KB compressed/.exec(written("docs/manual/javascript.md"));
        assert.ok(Math.abs(Number(told) - kilobytes) <= 3, `the manual says ${told} KB, it is ${kilobytes} KB`);
    });
});
