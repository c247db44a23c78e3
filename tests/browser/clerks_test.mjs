// What pages, extensions, speech and impatient clerks do to an input that has become a field.
import assert from "node:assert/strict";
import { after, afterEach, before, describe, test } from "node:test";

import { openPage } from "./browser.mjs";

let page;
let protocol;
let problems;
let close;

before(async () => {
    ({ page, protocol, problems, close } = await openPage());
});
after(() => close());
afterEach(() => assert.deepEqual(problems.splice(0), []));

const date = { mask: "MM/DD/YYYY", type: "date" };
const phone = { mask: "(###) ###-####" };
const amount = { mask: "#,##0.00", type: "number" };

async function given(options, markup) {
    await page.evaluate(([made, html]) => window.make(made, html), [options, markup]);
    await page.focus("#field");
}

const shown = () => page.evaluate(() => window.shown());
const value = () => page.evaluate(() => window.made.value);
const heard = () => page.evaluate(() => window.heard.splice(0));
const type = (text) => page.keyboard.type(text);
const insert = (text) => page.keyboard.insertText(text);
const execute = (...command) => page.evaluate(([name, text]) => document.execCommand(name, false, text), command);

async function press(...keys) {
    for (const key of keys) await page.keyboard.press(key);
}

/** What a page does when it hears of an input: told by the body of a function of the input. */
const answer = (body) =>
    page.evaluate((code) => {
        const input = document.querySelector("#field");
        const act = new Function("input", code);
        input.addEventListener("input", () => act(input));
    }, body);

/** Typed with time for what the page does later. */
async function typeSlowly(text) {
    for (const character of text) {
        await type(character);
        await page.waitForTimeout(20);
    }
}

async function drag(from, to) {
    const boxes = await Promise.all([from, to].map((selector) => page.locator(selector).boundingBox()));
    await page.mouse.move(boxes[0].x + 40, boxes[0].y + 12);
    await page.mouse.down();
    await page.mouse.move(boxes[1].x + 60, boxes[1].y + 12, { steps: 5 });
    await page.mouse.up();
}

describe("a page that answers an input with a text of its own", () => {
    test("may leave out blanks", async () => {
        await given(date);
        await answer("input.value = input.value.trim()");
        await type("7/4/2026");
        assert.equal(await shown(), "07/04/2026|");
    });

    test("may leave out literals", async () => {
        await given(phone);
        await answer("input.value = input.value.replace(/\\D/g, '')");
        await type("5551234567");
        assert.equal(await shown(), "(555) 123-4567|");
        await given(amount);
        await answer("input.value = input.value.replace(/,/g, '')");
        await type("1234.5");
        assert.equal(await shown(), "1,234.5|0");
    });

    test("may change the letters, and the caret stays", async () => {
        await given({ mask: "AAA-##" });
        await answer("input.value = input.value.toUpperCase()");
        await type("abc12");
        assert.equal(await shown(), "ABC-12|");
    });

    for (const [when, later] of [["in a task", "setTimeout(set)"], ["in a microtask", "Promise.resolve().then(set)"]]) {
        test(`may put the old one back, and the new one ${when}`, async () => {
            await given({ ...date, value: "2026-07-04" });
            await answer(`
                const text = input.value;
                const set = () => (input.value = text);
                input.value = input.state ?? "07/04/2026";
                input.state = text;
                ${later};`);
            await press("Home");
            await typeSlowly("1231");
            assert.equal(await shown(), "12/31/|2026");
        });
    }

    test("may do so when it hears of a change", async () => {
        await given(date);
        await page.evaluate(() => {
            const input = document.querySelector("#field");
            input.addEventListener("change", () => (input.value = "2020-01-01"));
        });
        await type("7/4/2026");
        await press("Tab");
        assert.equal((await shown()).replace("|", ""), "01/01/2020");
        assert.deepEqual(await page.evaluate(() => window.told.at(-1)), ["2020-01-01", "complete"]);
    });

    test("may take another value that looks alike for numbers", async () => {
        await given({ ...amount, value: "1" });
        await page.evaluate(() => (document.querySelector("#field").value = "100"));
        await press("End");
        assert.equal(await value(), "100.00");
    });
});

describe("an extension", () => {
    test("inserts and deletes by commands, which nothing asks for beforehand", async () => {
        await given(date);
        await type("0");
        await execute("insertText", "7");
        assert.equal(await shown(), "07/|  /    ");
        await execute("insertText", "0426");
        await execute("delete");
        assert.equal(await shown(), "07/04/2|   ");
        await press("Home");
        await execute("forwardDelete");
        assert.equal(await shown(), "|7 /04/2002"); // the year was completed when it was left
    });

    test("deletes by a command over literals, too, and what it has selected", async () => {
        await given({ ...phone, value: "5551234567" });
        await press("Home", "Control+ArrowRight");
        assert.equal(await shown(), "(555) |123-4567");
        await execute("delete");
        assert.equal(await shown(), "(55| ) 123-4567");
        await page.evaluate(() => {
            document.querySelector("#field").setSelectionRange(6, 9);
            document.execCommand("delete");
        });
        assert.equal(await shown(), "(55 ) |   -4567");
    });

    test("undoes by a command what it has inserted", async () => {
        await given(date);
        await execute("insertText", "07");
        assert.equal(await shown(), "07/|  /    ");
        await execute("undo");
        assert.equal(await shown(), "|  /  /    ");
    });

    test("has one change told for what it inserted", async () => {
        await given(date);
        await execute("insertText", "7/4/2026");
        await heard();
        await press("Tab");
        assert.deepEqual(await heard(), ["change  07/04/2026"]);
    });

    test("sets a value and tells of a change alone", async () => {
        await given(phone);
        await page.evaluate(() => {
            const input = document.querySelector("#field");
            input.value = "555.123.4567";
            input.dispatchEvent(new Event("change", { bubbles: true }));
        });
        assert.equal((await shown()).replace("|", ""), "(555) 123-4567");
        await press("Tab");
        assert.deepEqual(await heard(), ["change  (555) 123-4567"]);
    });
});

test("an input method has one change told", async () => {
    await given({ mask: "AAA-##" });
    await protocol.send("Input.imeSetComposition", { text: "に", selectionStart: 1, selectionEnd: 1 });
    await protocol.send("Input.insertText", { text: "日" });
    await heard();
    await press("Tab");
    assert.deepEqual(await heard(), ["change  日  -  "]);
});

describe("speech", () => {
    for (const [text, said] of [["July 4, 2026", "words"], ["2026-07-04", "another order"], ["7/4/2026", "the order of the mask"]]) {
        test(`inserts a date in ${said}`, async () => {
            await given({ ...date, value: "1999-12-31" });
            await press("Control+a");
            await insert(text);
            assert.equal(await value(), "2026-07-04");
        });
    }

    test("inserts a part as it is typed", async () => {
        await given(date);
        await insert("07");
        assert.equal(await shown(), "07/|  /    ");
        await insert("04");
        assert.equal(await shown(), "07/04/|    ");
    });
});

describe("the mouse of a clerk", () => {
    test("begins an empty field wherever it is clicked behind its text", async () => {
        for (const button of ["left", "right"]) {
            await given(phone);
            await page.click("#field", { position: { x: 220, y: 12 }, button });
            await page.waitForFunction(() => window.shown() === "(|   )    -    ");
            await type("555");
            assert.equal(await shown(), "(555) |   -    ");
            await press("Escape");
        }
    });

    test("takes all by a triple click, and what lies between by Shift and a click", async () => {
        await given({ ...date, value: "2026-07-04" });
        await page.click("#field", { clickCount: 3, position: { x: 60, y: 12 } });
        assert.equal(await shown(), "[07/04/2026]");
        await press("End");
        await page.click("#field", { modifiers: ["Shift"], position: { x: 77, y: 12 } });
        assert.equal(await shown(), "07/04/[2026]");
        await type("1");
        assert.equal(await shown(), "07/04/1|   ");
    });

    test("moves a text by dragging it out", async () => {
        await given({ ...phone, value: "5551234567" });
        await page.fill("#other", "");
        await page.focus("#field");
        await press("Control+a");
        await drag("#field", "#other");
        await page.waitForFunction(() => document.querySelector("#other").value !== "");
        assert.equal(await page.inputValue("#other"), "(555) 123-4567");
        assert.equal((await shown()).replace("|", ""), "(   )    -    ");
    });
});

describe("the keys of a clerk", () => {
    test("select backwards, and what is typed takes the place", async () => {
        await given({ ...phone, value: "5551234567" });
        await press("End", ...Array(6).fill("Shift+ArrowLeft"));
        assert.equal(await shown(), "(555) 12[3-4567]");
        await type("98");
        assert.equal(await shown(), "(555) 129-8|   ");
    });

    test("undo on keyboards without Latin letters", async () => {
        await given(date);
        await type("0704");
        const key = { key: "я", code: "KeyZ", windowsVirtualKeyCode: 90, modifiers: 2 };
        await protocol.send("Input.dispatchKeyEvent", { type: "keyDown", ...key });
        await protocol.send("Input.dispatchKeyEvent", { type: "keyUp", ...key });
        assert.equal(await shown(), "|  /  /    ");
    });

    test("send a form that is complete, and mark what keeps it", async () => {
        await given({ ...date, required: true }, "<input id='field'><button>Send</button>");
        await page.evaluate(() => {
            window.sent = 0;
            document.querySelector("#form").addEventListener("submit", () => ++window.sent);
        });
        await press("Enter");
        assert.equal(await page.getAttribute("#field", "aria-invalid"), "true");
        await type("7/4/26");
        await press("Enter");
        assert.deepEqual([await page.evaluate(() => window.sent), await value()], [1, "2026-07-04"]);
        assert.equal(await page.getAttribute("#field", "aria-invalid"), null);
    });

    test("do nothing while the input is disabled, and go on behind", async () => {
        await given(date);
        await type("07");
        await page.evaluate(() => (document.querySelector("#field").disabled = true));
        await type("9");
        await page.evaluate(() => {
            document.querySelector("#field").disabled = false;
            document.querySelector("#field").focus();
        });
        await type("04");
        assert.equal(await shown(), "07/04/|    ");
    });
});

describe("a page", () => {
    test("that empties what is required has its form kept", async () => {
        await given({ ...date, required: true, value: "2026-07-04" }, "<input id='field'><button id='send'>Send</button>");
        await page.focus("#other");
        await page.evaluate(() => {
            window.sent = 0;
            document.querySelector("#form").addEventListener("submit", () => ++window.sent);
            document.querySelector("#field").value = "";
        });
        await page.click("#send");
        assert.equal(await page.evaluate(() => window.sent), 0);
        assert.deepEqual(await heard(), []);
    });

    test("that takes the clipboard's events for itself has them", async () => {
        await given({ ...phone, value: "5551234567" });
        await page.evaluate(() => {
            for (const name of ["cut", "paste"]) document.querySelector("#form").addEventListener(name, (e) => e.preventDefault(), true);
        });
        await press("Control+a", "Control+x", "Control+v");
        assert.equal(await shown(), "[(555) 123-4567]");
    });

    test("that moves the input about keeps the field", async () => {
        await given(date);
        await type("07");
        await page.evaluate(() => {
            const input = document.querySelector("#field");
            input.remove();
            document.querySelector("#form").append(input);
            input.focus();
        });
        await type("04");
        assert.equal(await shown(), "07/04/|    ");
    });

    test("that attaches another field to an input in use has it begun", async () => {
        await given(phone);
        await page.evaluate((options) => {
            window.made.detach();
            window.made = window.module.attach(document.querySelector("#field"), options);
        }, phone);
        assert.equal(await shown(), "(|   )    -    ");
    });

    test("that is slow finds what was typed meanwhile", async () => {
        await given(date);
        await page.evaluate(() => {
            window.made.detach();
            document.querySelector("#field").value = "";
        });
        await type("0704");
        await page.evaluate((options) => (window.made = window.module.attach(document.querySelector("#field"), options)), date);
        assert.equal(await shown(), "07/04/|    ");
    });

    test("with a listener that fails is told of the failure, and of the input", async () => {
        await given(date);
        await page.evaluate(() => {
            window.made.detach();
            const fail = () => {
                throw new Error("of the page");
            };
            window.made = window.module.attach(document.querySelector("#field"), { mask: "##", onValue: fail, onEvent: fail });
        });
        await type("12");
        assert.deepEqual([await shown(), await heard()], ["12|", ["input insertText 1 ", "input insertText 12"]]);
        assert.match(problems.splice(0).join(), /of the page/);
    });

    test("that drops inputs without detaching them is not held to them", async () => {
        await page.evaluate(() => {
            window.made?.detach();
            window.made = null;
            document.body.innerHTML = "";
            window.dropped = Array.from({ length: 20 }, () => {
                const input = document.createElement("input");
                document.body.append(input);
                window.module.attach(input, { mask: "##", onEvent: () => false }).value = "12";
                input.remove();
                return new WeakRef(input);
            });
        });
        await page.waitForTimeout(50);
        await protocol.send("HeapProfiler.collectGarbage");
        const left = await page.evaluate(() => window.dropped.filter((input) => input.deref()).length);
        assert.ok(left < 5, `${left} of 20 are there`);
    });
});

describe("a shadow tree", () => {
    async function givenInShadow() {
        await page.evaluate((options) => {
            window.made?.detach();
            document.body.innerHTML = "<div id='host'></div>";
            const root = document.querySelector("#host").attachShadow({ mode: "open" });
            root.innerHTML = "<form><input id='field' style='font: 20px monospace' value='02/29/2024'></form>";
            const input = root.querySelector("input");
            window.made = window.module.attach(input, options);
            window.caret = () => [input.value, input.selectionStart];
            input.focus();
        }, date);
    }
    const caret = () => page.evaluate(() => window.caret());

    test("has its field typed into", async () => {
        await givenInShadow();
        await press("Control+a");
        await type("7/4/2026");
        assert.deepEqual(await caret(), ["07/04/2026", 10]);
    });

    test("has its carets corrected", async () => {
        await givenInShadow();
        await page.evaluate(() => window.made.input.setSelectionRange(5, 5));
        await page.waitForFunction(() => window.caret()[1] === 6);
    });

    test("has its forms reset", async () => {
        await givenInShadow();
        await page.evaluate(() => (window.made.value = "1999-12-31"));
        await page.evaluate(() => window.made.input.form.reset());
        await page.waitForFunction(() => window.made.value === "2024-02-29");
    });
});

describe("a page that runs from right to left", () => {
    const inRightToLeft = (markup) => `<div dir="rtl">${markup}</div>`;
    const direction = () => page.evaluate(() => getComputedStyle(document.querySelector("#field")).direction);

    test("has its dates, phones and numbers run as ever", async () => {
        for (const options of [date, phone, amount]) {
            await given(options, inRightToLeft("<input id='field'>"));
            assert.equal(await direction(), "ltr");
        }
        await page.evaluate(() => window.made.detach());
        assert.equal(await page.getAttribute("#field", "dir"), null);
    });

    test("has its words run as they do there, and the arrows along with them", async () => {
        await given({ mask: "AAAAAA", value: "אבגד" }, inRightToLeft("<input id='field'>"));
        assert.equal(await direction(), "rtl");
        await press("Home", "ArrowLeft");
        assert.equal(await shown(), "א|בגד  ");
        await press("ArrowRight");
        assert.equal(await shown(), "|אבגד  ");
    });

    test("may say itself how an input runs", async () => {
        await given(date, inRightToLeft("<input id='field' dir='rtl'>"));
        assert.equal(await direction(), "rtl");
    });
});
