// The situations in which libraries are compared (bench/web), ours alone: all of them are met.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";

import { play } from "../../bench/web/play.mjs";
import { situations } from "../../bench/web/situations.mjs";
import { openPage } from "./browser.mjs";

let page;
let close;

before(async () => {
    ({ page, close } = await openPage("bench/web/page.html"));
    await page.context().grantPermissions(["clipboard-read", "clipboard-write"]);
    await page.evaluate(() => window.prepare([]));
});
after(() => close());

test("there are sixty of them", () => assert.equal(situations.length, 60));

describe("an input that is masked shows what it should:", () => {
    for (const situation of situations) {
        test(`${situation.kind}: ${situation.title}`, async () => {
            const { started, shown } = await play(page, "ztfield", situation);
            assert.equal(started.trimEnd(), situation.start.text.trimEnd() || started.trimEnd());
            assert.equal(shown.trimEnd(), situation.shown.trimEnd());
        });
    }
});
