// An input that has become a field, in a browser: real keys, clipboard, input method, mouse, wheel, forms.
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
const events = (kind) => page.evaluate((wanted) => window.events.filter((event) => event.kind === wanted), kind);
const attribute = (name) => page.getAttribute("#field", name);
const type = (text) => page.keyboard.type(text);

async function press(...keys) {
    for (const key of keys) await page.keyboard.press(key);
}

/** Where a character of the field stands: the middle of a column of a font with one width. */
async function pointOf(column) {
    return page.evaluate((at) => {
        const input = document.querySelector("#field");
        const box = input.getBoundingClientRect();
        const style = getComputedStyle(input);
        const canvas = document.createElement("canvas").getContext("2d");
        canvas.font = style.font;
        const left = box.left + parseFloat(style.paddingLeft) + parseFloat(style.borderLeftWidth);
        return { x: left + canvas.measureText("0").width * at, y: box.top + box.height / 2 };
    }, column);
}

async function clickAt(column, options) {
    const { x, y } = await pointOf(column);
    await page.mouse.click(x, y, options);
}

/** Puts a text on the clipboard as a user does: from another input. */
async function copyFromElsewhere(text) {
    await page.fill("#other", text);
    await page.focus("#other");
    await press("Control+a", "Control+c");
    await page.focus("#field");
}

describe("typing", () => {
    test("fills the mask and carries the caret over literals", async () => {
        await given(date);
        assert.equal(await shown(), "|  /  /    ");
        await type("7/4/2026");
        assert.equal(await shown(), "07/04/2026|");
        assert.equal(await value(), "2026-07-04");
    });

    test("is told to the page as typing is", async () => {
        await given(date);
        await type("12");
        assert.deepEqual(await heard(), ["input insertText 1 /  /    ", "input insertText 12/  /    "]);
        assert.deepEqual(await page.evaluate(() => window.told), [[null, "incomplete"]]);
    });

    test("that is refused changes nothing, tells why and marks the input for a moment", async () => {
        await given(date);
        await type("1x");
        assert.equal(await shown(), "1| /  /    ");
        assert.equal(await attribute("data-rejected"), "wrong kind");
        assert.deepEqual(await heard(), ["input insertText 1 /  /    "]);
        const [refused] = await events("rejected");
        assert.deepEqual([refused.reason, refused.position, refused.character], ["wrong kind", 1, "x"]);
        await page.waitForFunction(() => !document.querySelector("#field").hasAttribute("data-rejected"));
    });

    test("edits numbers as numbers", async () => {
        await given(amount);
        await type("-1234567.5");
        assert.equal(await shown(), "-1,234,567.5|0");
        assert.equal(await value(), "-1234567.50");
    });

    test("takes letters of all scripts, counted as the page counts them", async () => {
        await given({ mask: "AAA-XX" });
        await page.keyboard.insertText("é日я\u{1F600}z");
        assert.equal(await shown(), "é日я-\u{1F600}z|");
        await press("ArrowLeft", "Backspace");
        assert.equal(await shown(), "é日я-| z");
    });

    test("classic, too", async () => {
        await given({ ...date, modern: false });
        assert.equal((await shown()).replace("|", ""), "00/00/0000");
        await press("Home");
        await type("7/4/1995");
        assert.equal(await shown(), "07/04/1995|");
    });

    test("of the keypad's point is the point everywhere", async () => {
        await given({ ...amount, settings: { decimal: ",", thousands: "." } });
        await type("1234");
        const point = { key: ".", code: "NumpadDecimal", windowsVirtualKeyCode: 110, isKeypad: true, location: 3 };
        await protocol.send("Input.dispatchKeyEvent", { type: "keyDown", text: ".", ...point });
        await protocol.send("Input.dispatchKeyEvent", { type: "keyUp", ...point });
        await type("5");
        assert.equal(await shown(), "1.234,5|0");
    });
});

describe("keys", () => {
    test("delete and take words, over literals", async () => {
        await given({ ...phone, value: "5551234567" });
        await press("End", "Backspace", "Backspace");
        assert.equal(await shown(), "(555) 123-45|  ");
        await press("Control+Backspace");
        assert.equal(await shown(), "(555) 123-|    ");
        await press("Home", "Delete");
        assert.equal(await shown(), "(| 55) 123-    ");
    });

    test("select with Shift, and all with Ctrl", async () => {
        await given({ ...date, value: "2026-07-04" });
        await press("Home", "Shift+ArrowRight", "Shift+ArrowRight");
        assert.equal(await shown(), "[07]/04/2026");
        await press("Control+a");
        assert.equal(await shown(), "[07/04/2026]");
        await press("Delete");
        assert.equal(await shown(), "|  /  /    ");
    });

    test("undo and redo", async () => {
        await given(date);
        await type("7/4/2026");
        await press("Control+z");
        assert.equal(await shown(), "|  /  /    ");
        await press("Control+y");
        assert.equal(await shown(), "07/04/2026|");
        await press("Control+z", "Control+Shift+z");
        assert.equal(await shown(), "07/04/2026|");
        await press("Alt+Backspace");
        assert.equal(await shown(), "|  /  /    ");
    });

    test("are undone as far back as a pause", async () => {
        await given(date);
        await type("07");
        await page.waitForTimeout(1100);
        await type("04");
        await press("Control+z");
        assert.equal(await shown(), "07/|  /    ");
    });

    test("step a spin, one press of a key as one step of undo", async () => {
        await given({ mask: "##0", type: "number", spin: { range: "0~20" }, value: "5" });
        await press("ArrowUp", "PageUp");
        assert.equal(await value(), "16");
        await press("ArrowDown");
        assert.equal(await value(), "15");
        await page.keyboard.down("ArrowUp");
        await page.keyboard.down("ArrowUp");
        await page.keyboard.down("ArrowUp");
        await page.keyboard.up("ArrowUp");
        assert.equal(await value(), "18");
        await press("Control+z");
        assert.equal(await value(), "15");
        await press("ArrowUp", "ArrowUp", "Control+z");
        assert.equal(await value(), "16");
    });

    test("leave Tab to the page, and Page Up where there is no spin", async () => {
        await given(date);
        const prevented = await page.evaluate(() =>
            ["Tab", "PageUp", "Escape", "F5", "Enter"].filter((key) =>
                !document.querySelector("#field").dispatchEvent(
                    new KeyboardEvent("keydown", { key, bubbles: true, cancelable: true }))));
        assert.deepEqual(prevented, []);
        await press("Tab");
        assert.equal(await page.evaluate(() => document.activeElement.id), "other");
    });

    test("choose from a list", async () => {
        const choices = [{ text: "Red", value: "r" }, { text: "Green", value: "g" }, { text: "Grey", value: "y" }];
        await given({ choices, value: "r" });
        await type("gr");
        assert.equal(await value(), "g");
        await type("ey");
        assert.equal(await shown(), "[Grey]");
        await press("ArrowDown");
        assert.equal(await value(), "g");
    });
});

describe("the clipboard", () => {
    test("is pasted from in any of the usual forms", async () => {
        await given(date);
        await copyFromElsewhere("4 July 2026");
        await press("Control+v");
        assert.equal(await shown(), "07/04/2026|");
        assert.deepEqual(await heard(), ["input insertFromPaste 07/04/2026"]);
    });

    test("leaves everything when what it holds is no value", async () => {
        await given({ ...date, value: "2026-07-04" });
        await copyFromElsewhere("30 Feb 2026");
        await press("End", "Control+v");
        assert.equal(await shown(), "07/04/2026|");
        assert.equal((await events("rejected"))[0].reason, "does not exist");
    });

    test("takes what is cut, and literals stand", async () => {
        await given({ ...phone, value: "5551234567" });
        await press("Home", "Shift+ArrowRight", "Shift+ArrowRight", "Shift+ArrowRight", "Control+x");
        assert.equal(await shown(), "(|   ) 123-4567");
        assert.deepEqual(await heard(), ["input deleteByCut (   ) 123-4567"]);
        await press("Control+v");
        assert.equal(await shown(), "(555) |123-4567");
        await press("Control+a", "Shift+Delete");
        assert.equal(await shown(), "(|   )    -    ");
    });

    test("takes what is copied", async () => {
        await given({ ...date, value: "2026-07-04" });
        await press("Control+a", "Control+c");
        await page.fill("#other", "");
        await page.focus("#other");
        await press("Control+v");
        assert.equal(await page.inputValue("#other"), "07/04/2026");
    });
});

describe("the mouse", () => {
    test("puts the caret, and never on a literal", async () => {
        await given({ ...date, value: "2026-07-04" });
        await clickAt(4);
        assert.equal(await shown(), "07/0|4/2026");
        await clickAt(2);
        assert.equal(await shown(), "07/|04/2026");
        await type("9");
        assert.equal(await shown(), "07/09/|2026");
    });

    test("selects by dragging, and what is typed takes its place", async () => {
        await given({ ...date, value: "2026-07-04" });
        const from = await pointOf(6);
        const to = await pointOf(10);
        await page.mouse.move(from.x, from.y);
        await page.mouse.down();
        await page.mouse.move(to.x, to.y, { steps: 4 });
        await page.mouse.up();
        assert.equal(await shown(), "07/04/[2026]");
        await type("1999");
        assert.equal(await shown(), "07/04/1999|");
    });

    test("selects a field by a double click", async () => {
        await given({ ...date, value: "2026-07-04" });
        await clickAt(4, { clickCount: 2 });
        assert.equal(await shown(), "07/[04]/2026");
    });

    test("steps by its wheel where there is a spin and the focus", async () => {
        await given({ mask: "##0", type: "number", spin: true, value: "5" });
        const { x, y } = await pointOf(1);
        await page.mouse.move(x, y);
        await page.mouse.wheel(0, -100);
        await page.waitForFunction(() => window.made.value === "6");
        await page.mouse.wheel(0, 200);
        await page.waitForFunction(() => window.made.value === "4");
        await page.focus("#other");
        await page.mouse.wheel(0, -100);
        await page.waitForTimeout(50);
        assert.equal(await value(), "4");
    });

    test("is not the only one that moves the caret: no other puts it on a literal", async () => {
        await given({ ...date, value: "2026-07-04" });
        await page.evaluate(() => document.querySelector("#field").setSelectionRange(5, 5));
        await page.waitForFunction(() => window.shown() === "07/04/|2026");
        await page.evaluate(() => document.querySelector("#field").setSelectionRange(3, 5));
        await page.waitForFunction(() => window.made.field.selection.start === 3);
        await type("9");
        assert.equal(await shown(), "07/09/|2026");
    });

    test("drops what it drags", async () => {
        await given(phone, "<input id='field'><span id='source' style='user-select:all'>555-123-4567</span>");
        await page.click("#source");
        await page.dragAndDrop("#source", "#field");
        assert.equal((await shown()).replace("|", ""), "(555) 123-4567");
        assert.deepEqual(await heard(), ["input insertFromDrop (555) 123-4567"]);
    });
});

describe("an input method", () => {
    const compose = (text) =>
        protocol.send("Input.imeSetComposition", { text, selectionStart: text.length, selectionEnd: text.length });

    test("is let to its work, and what it makes is typed", async () => {
        await given({ mask: "AAA-##" });
        await compose("に");
        await compose("日本");
        await protocol.send("Input.insertText", { text: "日本" });
        assert.equal(await shown(), "日本| -  ");
        await type("語12");
        assert.equal(await shown(), "日本語-12|");
    });

    test("leaves everything when it is given up", async () => {
        await given({ ...phone, value: "5551234567" });
        await press("End");
        await compose("abc");
        await compose("");
        assert.equal(await shown(), "(555) 123-4567|");
    });

    test("has what does not fit refused", async () => {
        await given(date);
        await compose("abc");
        await protocol.send("Input.insertText", { text: "abc" });
        assert.equal(await shown(), "|  /  /    ");
        assert.equal((await events("rejected"))[0].reason, "wrong kind");
    });
});

describe("a phone's keyboard", () => {
    /** What some of them do: nothing that can be prevented, and no key. */
    const edit = (inputType, data, text) =>
        page.evaluate(([kind, typed, result]) => {
            const input = document.querySelector("#field");
            const key = { key: "Unidentified", keyCode: 229, bubbles: true, cancelable: true };
            input.dispatchEvent(new KeyboardEvent("keydown", key));
            input.dispatchEvent(new InputEvent("beforeinput", { inputType: kind, data: typed, bubbles: true, cancelable: false }));
            input.value = result;
            input.dispatchEvent(new InputEvent("input", { inputType: kind, data: typed, bubbles: true }));
        }, [inputType, data, text]);

    test("types and deletes without keys", async () => {
        await given(date);
        await edit("insertText", "7", "7  /  /    ");
        assert.equal(await shown(), "07/|  /    ");
        await edit("insertText", "4", "07/4  /    ");
        assert.equal(await shown(), "07/04/|    ");
        await edit("deleteContentBackward", null, "07/04    ");
        assert.equal(await shown(), "07/0| /    ");
        assert.deepEqual(await heard(), [
            "input insertText 07/  /    ", "input insertText 07/04/    ", "input deleteContentBackward 07/0 /    ",
        ]);
    });

    test("may have its edits taken over before they happen", async () => {
        await given({ ...date, value: "2026-07-04" });
        await press("End");
        const isPrevented = (inputType) =>
            page.evaluate((asked) => {
                const event = new InputEvent("beforeinput", { inputType: asked, bubbles: true, cancelable: true });
                return !document.querySelector("#field").dispatchEvent(event);
            }, inputType);
        assert.equal(await isPrevented("deleteContentBackward"), true);
        assert.equal(await shown(), "07/04/202| ");
        assert.equal(await isPrevented("deleteWordBackward"), true);
        assert.equal(await shown(), "07/04/|    ");
        assert.equal(await isPrevented("historyUndo"), true);
        assert.equal(await shown(), "07/04/2026|");
    });
});

describe("the page", () => {
    test("may set the text, which is taken over at the next event", async () => {
        await given(date);
        await page.evaluate(() => (document.querySelector("#field").value = "2024-02-29"));
        await press("End", "Backspace");
        assert.equal(await shown(), "02/29/202| ");
    });

    test("may set the value, which is told as no input", async () => {
        await given(date);
        await page.evaluate(() => (window.made.value = "2024-02-29"));
        assert.equal((await shown()).replace("|", ""), "02/29/2024");
        assert.deepEqual(await heard(), []);
        assert.deepEqual(await page.evaluate(() => window.told), [["2024-02-29", "complete"]]);
    });

    test("fills in forms by itself: the whole text is taken as pasted", async () => {
        await given(phone);
        await page.evaluate(() => {
            const input = document.querySelector("#field");
            input.value = "+1 junk";
            input.dispatchEvent(new Event("input", { bubbles: true }));
            input.value = "555.123.4567";
            input.dispatchEvent(new Event("input", { bubbles: true }));
        });
        assert.equal((await shown()).replace("|", ""), "(555) 123-4567");
        assert.deepEqual(await heard(), ["input  (   )    -    ", "input  (555) 123-4567"]);
    });

    test("hears of a change when the focus leaves, which ends what was begun", async () => {
        await given(date);
        await type("7/4/26");
        await heard();
        await press("Tab");
        assert.deepEqual(await heard(), ["input insertReplacementText 07/04/2026", "change  07/04/2026"]);
        await page.focus("#field");
        await press("Tab");
        assert.deepEqual(await heard(), []);
    });

    test("hears of a change by Enter", async () => {
        await given(date);
        await type("7/4/2026");
        await heard();
        await press("Enter");
        assert.deepEqual(await heard(), ["change  07/04/2026"]);
    });

    test("resets its form", async () => {
        await given(date, "<input id='field' value='2024-02-29'>");
        assert.equal((await shown()).replace("|", ""), "02/29/2024");
        await press("Control+a");
        await type("7/4/2026");
        await page.evaluate(() => document.querySelector("#form").reset());
        await page.waitForFunction(() => window.made.value === "2024-02-29");
        assert.equal((await shown()).replace("|", ""), "02/29/2024");
    });

    test("may make the input read-only", async () => {
        await given({ ...date, value: "2026-07-04" });
        await page.evaluate(() => (document.querySelector("#field").readOnly = true));
        await press("End", "Backspace");
        assert.equal(await shown(), "07/04/2026|");
        assert.equal((await events("rejected"))[0].reason, "read only");
    });
});

describe("validity", () => {
    const message = () => page.evaluate(() => document.querySelector("#field").validationMessage);

    test("is told by the state", async () => {
        await given(date);
        assert.equal(await message(), "");
        await type("02");
        assert.equal(await message(), "Please complete this field.");
        assert.equal(await attribute("aria-invalid"), null);
        await type("302026");
        assert.equal(await message(), "There is no such value.");
        assert.equal(await attribute("aria-invalid"), "true");
        await press("Control+a", "Delete");
        assert.equal(await message(), "");
        assert.equal(await attribute("aria-invalid"), null);
    });

    test("marks what is incomplete when it is left", async () => {
        await given(date);
        await type("02");
        await press("Tab");
        assert.equal(await attribute("aria-invalid"), "true");
    });

    test("wants what is required, in the page's own words", async () => {
        await given({ ...date, required: true, messages: { empty: "Bitte ausfüllen." } });
        assert.equal(await message(), "Bitte ausfüllen.");
        assert.equal(await attribute("aria-required"), "true");
        assert.equal(await page.evaluate(() => document.querySelector("#form").checkValidity()), false);
    });

    test("knows the range, and a spin its value", async () => {
        await given({ mask: "##0", type: "number", spin: { range: "1~10" }, value: "5" });
        const aria = () => Promise.all(["role", "aria-valuenow", "aria-valuetext", "aria-valuemin", "aria-valuemax"].map(attribute));
        assert.deepEqual(await aria(), ["spinbutton", "5", "5", "1", "10"]);
        await press("Control+a");
        await type("20");
        assert.equal(await message(), "This value is out of range.");
        assert.equal(await attribute("aria-valuenow"), "20");
    });

    test("has the keyboard of a phone fit the mask", async () => {
        const modes = [];
        for (const options of [date, amount, phone, { mask: "AAA" }, { mask: "DD-MMM-YYYY", type: "date" }]) {
            await given(options);
            modes.push(await attribute("inputmode"));
        }
        assert.deepEqual(modes, ["numeric", "decimal", "numeric", null, null]);
    });
});

describe("what is detached", () => {
    test("is as it was, with its text", async () => {
        const markup = "<input id='field' maxlength='5' inputmode='email' data-own='x' required>";
        await given({ ...date, spin: true, value: "2026-07-04" }, markup);
        const attributes = () => page.evaluate(() =>
            Object.fromEntries([...document.querySelector("#field").attributes].map(({ name, value: is }) => [name, is])));
        assert.equal((await attributes()).role, "spinbutton");
        await page.evaluate(() => window.made.detach());
        assert.deepEqual(await attributes(), { id: "field", maxlength: "5", inputmode: "email", "data-own": "x", required: "" });
        assert.equal(await page.inputValue("#field"), "07/04/2026");
        await page.focus("#field");
        await press("End", "Backspace", "Backspace", "Backspace", "Backspace", "Backspace", "Backspace");
        await type("x");
        assert.equal(await shown(), "07/0x|");
        assert.equal(await page.evaluate(() => document.querySelector("#field").validationMessage), "");
    });

    test("gives way to another attachment", async () => {
        await given(date);
        await page.evaluate(() => {
            window.made = window.module.attach(document.querySelector("#field"), { mask: "##:##", value: "1234" });
        });
        assert.equal(await page.inputValue("#field"), "12:34");
    });

    test("may be what a listener does", async () => {
        await given(date);
        await page.evaluate(() => document.querySelector("#field").addEventListener("input", () => window.made.detach()));
        await type("12");
        assert.equal(await page.inputValue("#field"), "12 /  /    ");
    });
});

test("inputs that have no selection are refused", async () => {
    await given(date);
    const refused = await page.evaluate(() => {
        const input = document.createElement("input");
        input.type = "number";
        try {
            window.module.attach(input, {});
            return "";
        } catch (error) {
            return `${error}`;
        }
    });
    assert.equal(refused, 'TypeError: An input of the type "number" cannot become a field.');
});
