// The sample of the bindings: an order form, filled in by its labels as its users do.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";

import { openPage } from "./browser.mjs";

let page;
let problems;
let close;

const isReady = () => document.querySelector("#due")?.getAttribute("role") === "spinbutton";

before(async () => {
    ({ page, problems, close } = await openPage("build/web/sample.html", isReady));
});
after(() => close());

const textOf = (selector) => page.textContent(selector);

async function fillIn(label, text) {
    await page.getByLabel(label, { exact: true }).focus();
    await page.keyboard.type(text);
    await page.keyboard.press("Tab");
}

describe("the sample", () => {
    test("says what is missing, and where", async () => {
        await page.getByRole("button", { name: "Send" }).click();
        assert.equal(await textOf("#sent"), "");
        assert.equal(await page.evaluate(() => document.activeElement.id), "due");
        const told = await Promise.all(["due", "phone", "amount", "colour", "time"].map((name) => textOf(`#${name}-problem`)));
        assert.deepEqual(told, [...Array(4).fill("Please fill in this field."), ""]);
        assert.equal(await page.getByLabel("Phone").getAttribute("aria-invalid"), "true");
    });

    test("is filled in, and gives its values", async () => {
        await fillIn("Due date", "7/4/26");
        await fillIn("Phone", "5551234567");
        await fillIn("Amount", "1234.5");
        await fillIn("Colour", "gre");
        await fillIn("Delivery time", "2:30p");
        await page.keyboard.press("Enter"); // on the button
        await page.waitForFunction(() => document.querySelector("#sent").textContent !== "");
        assert.deepEqual(JSON.parse(await textOf("#sent")), {
            due: "2026-07-04", phone: "5551234567", amount: "1234.50", colour: "g", time: "14:30:00",
        });
        assert.equal(await page.getByLabel("Delivery time").inputValue(), "02:30 PM");
        assert.equal(await textOf("#due-problem"), "");
    });

    test("has a name for every control, and no two ids alike", async () => {
        const unnamed = await page.evaluate(() => [...document.querySelectorAll("input")].filter((input) => !input.labels.length).length);
        const ids = await page.evaluate(() => [...document.querySelectorAll("[id]")].map(({ id }) => id));
        const pointedAt = await page.evaluate(() =>
            [...document.querySelectorAll("[aria-describedby], [aria-labelledby]")].flatMap((element) =>
                (element.getAttribute("aria-describedby") ?? element.getAttribute("aria-labelledby")).split(" ")));
        assert.equal(unnamed, 0);
        assert.equal(new Set(ids).size, ids.length);
        assert.deepEqual(pointedAt.filter((id) => !ids.includes(id)), []);
        assert.deepEqual(problems, []);
    });
});
