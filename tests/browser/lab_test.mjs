// The laboratory as its users have it: opened from its file, with real keys, in a real browser.
// The page is built anew of the module in build/web, unless PAGE tells another file.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";

import { addressOf, benchOf, freshBench } from "../../lab/bench.mjs";
import { drawers } from "../../lab/gallery.mjs";
import { regions } from "../../lab/regions.mjs";
import { testRowOf } from "../../lab/testrow.mjs";
import { launch, root } from "./lab_browser.mjs";

const page = pathToFileURL(process.env.PAGE ?? root + "build/lab/mask-laboratory.html").href;
const widths = [360, 820, 1440];
const schemes = ["light", "dark"];

let browser;
let context;
let tab;
let faults = [];
let requests = [];

before(async () => {
    if (!process.env.PAGE) execFileSync(root + "tools/build_lab.sh", [root + "build/web/ztfield.mjs"]);
    browser = await launch();
    context = await browser.newContext({ viewport: { width: 1440, height: 900 }, reducedMotion: "reduce" });
    await context.grantPermissions(["clipboard-read", "clipboard-write"]);
    tab = await context.newPage();
    tab.setDefaultTimeout(60000); // of a machine that others use too
    tab.on("pageerror", (error) => faults.push(String(error)));
    tab.on("console", (message) => message.type() === "error" && faults.push(message.text()));
    tab.on("request", (request) => requests.push(request.url()));
});

after(() => browser?.close());

// Another address behind the "?" opens the page anew, where another one behind the "#" would not.
let opened = 0;
const open = (address) => tab.goto(`${page}?${++opened}${address}`);

// A test on a page opened anew; an error anywhere in the page fails it.
const on = (name, address, play) =>
    test(name, async () => {
        faults = [];
        requests = [];
        await open(address);
        await tab.waitForFunction(() => document.querySelector("#version").textContent !== "");
        await play();
        assert.deepEqual(faults, []);
    });

// ---- what the page shows

// As it is seen: blanks as signs, without what only a screen reader hears.
const seen = (id) =>
    tab.locator(`#${id}`).evaluate((element) => {
        const copy = element.cloneNode(true);
        copy.querySelectorAll(".heard").forEach((heard) => heard.remove());
        return copy.textContent.trim().replace(/\s+/g, " ");
    });

const eventually = async (get, expected) => {
    let found;
    for (let pause = 1; pause < 4000; pause *= 2) {
        found = await get();
        if (JSON.stringify(found) === JSON.stringify(expected)) return;
        await new Promise((done) => setTimeout(done, pause));
    }
    assert.deepEqual(found, expected);
};

const shows = (id, expected) => eventually(() => seen(id), expected);
const text = () => tab.locator("#field").inputValue();
const showsText = (expected) => eventually(text, expected);
const logged = () =>
    tab
        .locator("#log li")
        .allInnerTexts()
        .then((lines) => lines.map((line) => line.replace(/\s+/g, " ").trim()));
const call = () => tab.locator("#call").textContent();
const clipboard = () => tab.evaluate(() => navigator.clipboard.readText());
const hash = () => tab.evaluate(() => location.hash);

const shown = (state) =>
    ({
        empty: "○ empty",
        incomplete: "◐ incomplete",
        invalid: "✕ invalid",
        "out of range": "↔ out of range",
        complete: "● complete",
    })[state];

const typeIn = async (id, words) => {
    await tab.locator(`#${id}`).focus();
    await tab.keyboard.press("Control+A");
    await tab.keyboard.press("Delete");
    await tab.keyboard.type(words);
};

const keys = async (words) => {
    await tab.locator("#field").focus();
    await tab.keyboard.type(words);
};

const press = (...names) =>
    names.reduce((before, name) => before.then(() => tab.keyboard.press(name)), Promise.resolve());

// The positions as cells: number and character of each, by parts.
const cells = () =>
    tab
        .locator(".part")
        .evaluateAll((parts) =>
            parts.map((part) => [
                part.querySelector(".part-name").textContent,
                [...part.querySelectorAll(".character")].map((cell) => cell.textContent).join(""),
                [...part.querySelectorAll(".letter")].map((cell) => cell.textContent).join(""),
            ]),
        );

const caretCell = () =>
    tab.evaluate(() => {
        const map = document.querySelector("#map");
        const cell = map.querySelector(".cell.caret");
        return cell ? Number(cell.dataset.index) : map.classList.contains("caret-at-end") ? "end" : null;
    });

// ---- the page as such

on("opens from its file, alone, and asks nobody for anything", "", async () => {
    await keys("7/4/2026");
    await showsText("07/04/2026");
    assert.deepEqual(
        requests.filter((url) => !url.startsWith("data:")),
        [tab.url().replace(/#.*/, "")],
    );
});

on("begins with a date that can be typed into", "", async () => {
    assert.equal(await tab.locator("#mask").inputValue(), "MM/DD/YYYY");
    assert.equal(await seen("verdict"), "✓Fits.");
    assert.equal(await seen("state"), shown("empty"));
    assert.equal(await seen("value"), "the empty value");
    assert.equal(await seen("blank"), "␣␣/␣␣/␣␣␣␣");
    assert.equal(await seen("in-force"), "MM/DD/YYYY");
});

// ---- masks

const refusedMasks = [
    { mask: "MM/DD/YYY", type: "date", at: "Y", position: 7, standIn: "MM/DD/YY" },
    { mask: "M/D/YYYY", type: "date", at: "M", position: 1, standIn: "MM/DD/YY" },
    { mask: "DD/YY", type: "date", at: "D", position: 1, standIn: "MM/DD/YY" },
    { mask: "MM/DD", type: "date", at: "", position: 6, standIn: "MM/DD/YY" },
    { mask: "HH:MM.FF", type: "time", at: "F", position: 7, standIn: "HH:MM:SS:FFF" },
    { mask: "#.0.0", type: "number", at: ".", position: 4, standIn: "#,#.00" },
    { mask: "Total", type: "number", at: "", position: 6, standIn: "#,#.00" },
    { mask: "##~", type: "string", at: "~", position: 3, standIn: "" },
];

for (const row of refusedMasks)
    on(`points at what is wrong in ${row.mask}`, "#mask=&type=" + row.type, async () => {
        await typeIn("mask", row.mask);
        await eventually(
            () =>
                tab
                    .locator(".wrong")
                    .textContent()
                    .then((wrong) => wrong.trim()),
            row.at,
        );
        const before = await tab.locator(".pointed").evaluate((pointed) => pointed.firstChild.textContent.length);
        assert.equal(before + 1, row.position);
        const verdict = await seen("verdict");
        assert.match(
            verdict,
            row.at
                ? new RegExp(`At “\\${row.at}”, position ${row.position} of the mask: \\S`)
                : /At the end of the mask: \S/,
        );
        assert.ok(verdict.endsWith(row.standIn ? `${row.standIn} stands in.` : "No mask stands in."), verdict);
        assert.equal(await tab.locator("#mask").getAttribute("aria-invalid"), "true");
        await shows("in-force", row.standIn || "none");
    });

on("tells what a keyword stands for", "#mask=[date]&type=date&region=de", async () => {
    assert.equal(await seen("verdict"), "✓Fits. Stands for dd.mm.yyyy.");
    await shows("in-force", "dd.mm.yyyy");
});

on(
    "tells that only modern editing takes a mask under these settings",
    "#mask=*,**0.00&type=number&region=de",
    async () => {
        assert.match(await seen("verdict"), /^✓Fits\. A classic control under these settings refuses it\.$/);
        await tab.check("#classic", { force: true });
        await eventually(() => tab.locator(".wrong").count(), 1);
        assert.match(await seen("verdict"), /position 6 of the mask: .* #,#\.00 stands in\.$/);
    },
);

on("takes a string without a mask", "#mask=&type=string", async () => {
    assert.equal(await seen("verdict"), "✓Fits. Without a mask the text stands as it is typed.");
    await keys("as it stands");
    await shows("value", "as␣it␣stands");
});

const maps = [
    {
        mask: "MM/DD/YYYY",
        type: "date",
        cells: [
            ["month", "␣␣", "MM"],
            ["literal", "/", "·"],
            ["day", "␣␣", "DD"],
            ["literal", "/", "·"],
            ["year", "␣␣␣␣", "YYYY"],
        ],
    },
    {
        mask: "~A#AX!^",
        type: "string",
        cells: [
            ["escape", "A", "~A"],
            ["digit", "␣", "#"],
            ["letter", "␣", "A"],
            ["any", "␣", "X"],
            ["upper case", "␣", "!"],
            ["lower case", "␣", "^"],
        ],
    },
    {
        mask: "HH:MM AM/PM",
        type: "time",
        cells: [
            ["hour", "␣␣", "HH"],
            ["literal", ":", "·"],
            ["minute", "␣␣", "MM"],
            ["literal", "␣", "·"],
            ["half of day", "␣␣", null],
        ],
    },
];

for (const row of maps)
    on(
        `lays out the positions of ${row.mask}`,
        `#mask=${row.mask.replaceAll("#", "*").replaceAll(" ", "+")}&type=${row.type}`,
        async () => {
            const found = await cells();
            assert.deepEqual(
                found.map(([name, characters, letters], i) => [
                    name,
                    characters,
                    row.cells[i]?.[2] === null ? null : letters,
                ]),
                row.cells,
            );
            const families = await tab
                .locator(".part")
                .evaluateAll((parts) =>
                    parts.map((part) => getComputedStyle(part.querySelector(".cell")).backgroundColor),
                );
            const literal = found.findIndex(([name]) => name === "literal" || name === "escape");
            assert.notEqual(
                families[literal],
                families[found.findIndex(([name]) => name !== "literal" && name !== "escape")],
            );
        },
    );

on("tells of each position, to listeners too", "#mask=~A**&type=string&value=7", async () => {
    const heard = await tab.locator(".cell .heard").allTextContents();
    assert.deepEqual(heard, [
        "Position 1: literal, written with a tilde, A",
        "Position 2: digit, 7",
        "Position 3: digit, blank",
    ]);
});

// ---- the live field

on("moves the caret along the positions", "", async () => {
    await keys("");
    await press("Home");
    await eventually(caretCell, 0);
    const visited = [];
    for (const key of "070420") {
        await press(key);
        const at = await tab.locator("#field").evaluate((input) => input.selectionStart);
        await eventually(caretCell, at);
        visited.push(at);
    }
    assert.deepEqual(visited, [1, 3, 4, 6, 7, 8]);
    await press("ArrowLeft");
    await eventually(caretCell, 7);
    assert.match(await seen("at-caret"), /^At the caret: year\. It takes digits/);
    await press("Shift+End");
    await eventually(() => tab.locator(".cell.selected").count(), 3);
    await press("ArrowRight", "2", "6");
    await press("End");
    await eventually(caretCell, "end");
    await shows("caret", "at 10");
});

on("puts the caret where a cell is clicked", "#mask=MM/DD/YYYY&type=date&value=2026-07-04", async () => {
    await tab.locator(".cell").nth(4).click();
    await eventually(caretCell, 4);
    assert.equal(await tab.evaluate(() => document.activeElement.id), "field");
    assert.equal(await tab.locator("#field").evaluate((input) => input.selectionStart), 4);
});

on("shows value, state and text as they are typed", "", async () => {
    await keys("2/30");
    await shows("state", shown("incomplete"));
    await shows("value", "none yet");
    await shows("shown", "02/30/␣␣␣␣");
    await keys("");
    await press("End");
    await tab.keyboard.type("2026");
    await shows("state", shown("invalid"));
    await press("Control+A", "Delete");
    await shows("state", shown("empty"));
    await tab.keyboard.type("2/28/2026");
    await shows("state", shown("complete"));
    await shows("value", "2026-02-28");
});

on("lists what is refused, with the reason", "", async () => {
    await keys("13x");
    await eventually(logged, [
        "● State: empty to incomplete",
        "✕ “3” refused at 2, out of bounds. There is no such number here.",
        "♪ Beep",
        "✕ “x” refused at 2, wrong kind. This character does not belong here.",
        "♪ Beep",
    ]);
    assert.equal(await tab.locator("#log").getAttribute("aria-live"), "polite");
});

on("lists each change when asked to, and is cleared", "", async () => {
    await tab.check("#log-changes");
    await keys("1");
    await eventually(async () => (await logged()).filter((line) => line.startsWith("…")).length, 1);
    await tab.click("#clear-log");
    assert.deepEqual(await logged(), []);
    await tab.uncheck("#log-changes");
    await keys("2");
    await showsText("02/  /    ");
    assert.deepEqual(
        (await logged()).filter((line) => line.startsWith("…")),
        [],
    );
});

on("tells when the field is full, only when asked to", "", async () => {
    await keys("07042026");
    await showsText("07/04/2026");
    assert.ok(!(await logged()).some((line) => line.startsWith("→")));
    await tab.check("#autoskip");
    await tab.click("#empty");
    await keys("07042026");
    await eventually(async () => (await logged()).filter((line) => line === "→ Full: the focus may move on").length, 1);
});

on("keeps its text from the user when it is read-only", "#mask=MM/DD/YYYY&type=date&value=2026-07-04", async () => {
    await tab.check("#read-only");
    await keys("1");
    await eventually(async () => (await logged()).some((line) => line.includes("read only")), true);
    await showsText("07/04/2026");
});

on(
    "steps by buttons and keys, as far as the range goes",
    "#mask=*0&type=number&from=1&to=12&by=5&value=3",
    async () => {
        await tab.click("#step-up");
        await showsText("8");
        await tab.locator("#step-down").focus();
        await press("Enter");
        await showsText("3");
        await keys("");
        await press("ArrowUp", "ArrowUp");
        await eventually(async () => (await logged()).filter((line) => line.includes("end of range")).length, 1);
        await showsText("8");
        await tab.check("#classic", { force: true });
        await tab.click("#step-up");
        await eventually(async () => (await logged()).filter((line) => line === "↕ Stepped").length, 1);
    },
);

on("has no steps without a spin", "#mask=MM/DD/YYYY&type=date&spin=0&value=2026-07-04", async () => {
    assert.equal(await tab.locator("#step-up").getAttribute("aria-disabled"), "true");
    await tab.click("#step-up", { force: true });
    await keys("");
    await press("ArrowUp");
    await showsText("07/04/2026");
    assert.ok(await tab.locator("#increment").isDisabled());
    await tab.check("#spin");
    await keys("");
    await press("Home", "ArrowUp");
    await showsText("08/04/2026");
    await typeIn("increment", "3");
    await keys("");
    await press("End", "ArrowUp");
    await showsText("08/04/2029");
});

on("takes a range that is typed", "#mask=MM/DD/YYYY&type=date", async () => {
    await typeIn("minimum", "2026-07-01");
    await typeIn("maximum", "2026-07-31");
    await keys("08012026");
    await shows("state", shown("out of range"));
    await press("Control+A", "Delete");
    await tab.keyboard.type("07152026");
    await shows("state", shown("complete"));
});

on("shows values by the texts of choices", "#mask=&type=string", async () => {
    await typeIn("choices", "small = S\nlarge = L\nnone =");
    await keys("l");
    await showsText("large");
    await shows("value", "L");
    await press("ArrowUp");
    await eventually(async () => (await text()) !== "large", true);
    await keys("");
    await tab.keyboard.type("n");
    await showsText("none");
    await shows("value", "the empty value");
});

on("takes a value from the program, or says why not", "", async () => {
    await typeIn("given", "2026-07-04");
    await press("Enter");
    await showsText("07/04/2026");
    await shows("given-answer", "Taken.");
    await typeIn("given", "2026-02-30");
    await tab.click("#give");
    await shows("given-answer", "Refused: does not exist. Nothing has changed.");
    await showsText("07/04/2026");
});

on("empties, undoes and does again", "", async () => {
    assert.equal(await tab.locator("#undo").getAttribute("aria-disabled"), "true");
    await keys("0704");
    await eventually(() => tab.locator("#undo").getAttribute("aria-disabled"), "false");
    await tab.click("#undo");
    await showsText("  /  /    ");
    await tab.click("#redo");
    await showsText("07/04/    ");
    await tab.click("#empty");
    await showsText("  /  /    ");
    await shows("state", shown("empty"));
    assert.equal(await tab.evaluate(() => document.activeElement.id), "field");
});

on("edits in the classic way", "", async () => {
    await tab.locator("#modern").focus();
    await press("ArrowRight");
    await shows("blank", "00/00/0000");
    await keys("");
    await press("Home");
    await tab.keyboard.type("07x042026");
    await showsText("07/04/2026");
    assert.deepEqual(await logged(), ["♪ Beep"]);
});

const typesByKeys = [
    { type: "string", inForce: "MM/DD/YYYY" },
    { type: "number", inForce: "#,#.00" },
    { type: "decimal", inForce: "#,#.00" },
    { type: "date", inForce: "MM/DD/YYYY" },
    { type: "time", inForce: "HH:MM:SS:FFF" },
    { type: "datetime", inForce: "MM/DD/YYYY" },
];

on("changes the type by the arrows", "#mask=MM/DD/YYYY&type=string", async () => {
    await tab.locator("#type-string").focus();
    for (const row of typesByKeys) {
        assert.equal(await tab.evaluate(() => document.activeElement.value), row.type);
        await shows("in-force", row.inForce);
        await press("ArrowRight");
    }
});

// ---- regional settings

const settingCases = [
    { setting: "decimal", to: ";", on: "#mask=*0.00&type=number&value=1.5", shown: "1;50" },
    { setting: "thousands", to: "_", on: "#mask=*,**0&type=number&value=1234", shown: "1_234" },
    { setting: "currency", to: "kr", on: "#mask=[currency(6)]&type=decimal&value=5", shown: "kr5.00" },
    { setting: "currencyDigits", to: "3", on: "#mask=[currency(6)]&type=decimal&value=5", shown: "$5.000" },
    { setting: "am", to: "vm", on: "#mask=HH:MM+AM/PM&type=time&value=09:15", shown: "09:15 vm" },
    { setting: "pm", to: "nm", on: "#mask=HH:MM+AM/PM&type=time&value=21:15", shown: "09:15 nm" },
    { setting: "date", to: "yyyy.MM.dd", on: "#mask=[date]&type=date&value=2026-07-04", shown: "2026.07.04" },
    { setting: "time", to: ".", on: "#mask=[time]&type=time&value=09:15:30", shown: "09.15.30" },
    {
        setting: "months",
        to: "ian/feb/mar/apr/mai/iun/iul/aug/sep/oct/nov/dec",
        on: "#mask=DD+MMM+YYYY&type=date&value=2026-07-04",
        shown: "04 iul 2026",
    },
];

for (const row of settingCases)
    on(`follows the setting ${row.setting}`, row.on, async () => {
        await tab.click("summary");
        await typeIn(`setting-${row.setting}`, row.to);
        await showsText(row.shown);
        await shows("regional-changed", "1 changed");
    });

on("follows where the symbol of money stands", "#mask=[currency(6)]&type=decimal&value=5", async () => {
    await tab.click("summary");
    await tab.selectOption("#setting-currencyPosition", "1");
    await showsText("5.00$");
});

on("says that a setting cannot be so, and keeps the last one", "#mask=*0.00&type=number&value=1.5", async () => {
    await tab.click("summary");
    await typeIn("setting-decimal", ";;");
    assert.equal(await tab.locator("#setting-decimal").getAttribute("aria-invalid"), "true");
    await showsText("1;50");
});

const countries = {
    us: ["07/04/2026", "$1,234.50"],
    gb: ["04/07/2026", "£1,234.50"],
    de: ["04.07.2026", "1.234,50€"],
    ch: ["04.07.2026", "CHF1’234.50"],
    fr: ["04/07/2026", "1\u202f234,50€"],
    se: ["2026-07-04", "1\u00a0234,50kr"],
    br: ["04/07/2026", "R$1.234,50"],
    in: ["04-07-2026", "₹1,234.50"],
    jp: ["2026/07/04", "¥1,235"],
    dk: ["04-07-2026", "1.234,50kr."],
};

on("has the settings of many countries", "#mask=[date]&type=date&value=2026-07-04", async () => {
    assert.ok(regions.length >= 12);
    assert.equal(await tab.locator("#region option").count(), regions.length);
    for (const [id, [date]] of Object.entries(countries)) {
        await tab.selectOption("#region", id);
        await showsText(date);
    }
    for (const [id, [, money]] of Object.entries(countries)) {
        await open(`#mask=[currency(9)]&type=decimal&value=1234.5&region=${id}`);
        await showsText(money);
    }
});

on("tells of separators that cannot be seen", "#mask=*,**0&type=number&region=fr", async () => {
    await tab.click("summary");
    assert.equal(await seen("setting-thousands-hint"), "a narrow no-break blank");
});

// ---- the gallery

on("puts ready masks on the bench, found and chosen by keys alone", "", async () => {
    await tab.locator("#open-gallery").focus();
    await press("Enter");
    assert.equal(await tab.evaluate(() => document.activeElement.id), "search");
    await tab.keyboard.type("phone braz");
    await eventually(() => seen("found"), "1 mask");
    await press("ArrowDown", "Enter");
    await eventually(() => tab.locator("#mask").inputValue(), "(##) #####-####");
    await showsText("(11) 96123-4567");
    await shows("verdict", "✓Fits.");
    assert.equal(await tab.inputValue("#region"), "br");
    assert.equal(await tab.evaluate(() => document.activeElement.id), "field");
    assert.equal(await tab.locator("dialog").evaluate((dialog) => dialog.open), false);
});

on("closes the gallery by Escape and by its button, and gives the focus back", "", async () => {
    // The first Escape empties the search, as in any such field.
    for (const close of [() => press("Escape", "Escape"), () => tab.click("#close-gallery")]) {
        await tab.click("#open-gallery");
        await tab.keyboard.type("nothing like this");
        assert.equal(await seen("found"), "Nothing found.");
        await close();
        assert.equal(await tab.locator("dialog").evaluate((dialog) => dialog.open), false);
        assert.equal(await tab.evaluate(() => document.activeElement.id), "open-gallery");
    }
});

on("has ready masks that all fit and show what they promise", "", async () => {
    const entries = drawers.flatMap((drawer) => drawer.entries);
    assert.ok(entries.length >= 40);
    for (const [i, entry] of entries.entries()) {
        await tab.evaluate(() => document.querySelector("#open-gallery").click());
        const promised = await tab.locator(".ready-sample").nth(i).textContent();
        assert.notEqual(promised, "", entry.mask);
        await tab.evaluate((at) => document.querySelectorAll(".ready")[at].click(), i);
        await showsText(promised);
        assert.equal(await tab.locator("#verdict").getAttribute("data-fits"), "true", entry.mask);
        await shows("state", shown("complete"));
        assert.equal(await tab.inputValue("#region"), entry.region);
    }
});

// ---- calls

const wide =
    "#mask=MM/DD/YYYY&type=date&autoskip=1&lock=1&by=7&from=2026-01-01&to=2026-12-31&value=2026-07-04&region=de";
const listed = '#mask=&type=string&spin=0&choices=a/b+=+1;say+"hi"+=;it\'s+=+2';

const calls = {
    c: [
        "/* as under the settings of Germany */",
        "EditInitParams p = {0};",
        "p.heap = heap;",
        'p.maskText = "MM/DD/YYYY";',
        "p.dataType = DT_DATE;",
        'p.initialData = "2026-07-04";',
        "p.spinIncrement = 7;",
        'p.spinRangeText = "2026-01-01~2026-12-31";',
        "p.options = ZTEO_MODERN | ZTEO_AUTOSKIP | ZTEO_SPIN;",
        "HWND field = CreateWindowExA(",
        '    WS_EX_CLIENTEDGE, ZTEDIT_CLASS, "",',
        "    WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL,",
        "    20, 20, 160, 24, form, (HMENU)101, instance, &p);",
        "SendMessageA(field, EM_SETREADONLY, TRUE, 0);",
    ],
    cpp: [
        "// as under the settings of Germany",
        "zt::Edit field = zt::Edit::Create(",
        "    heap,",
        '    zt::Setup::Date("MM/DD/YYYY")',
        "        .Modern()",
        "        .Autoskip()",
        '        .Spin(7, "2026-01-01~2026-12-31")',
        '        .Initial("2026-07-04"),',
        "    form, 101, {20, 20, 160, 24});",
        "SendMessageA(field.Window(), EM_SETREADONLY, TRUE, 0);",
    ],
    csharp: [
        "// as under the settings of Germany",
        "MaskedEdit field = new MaskedEdit",
        "{",
        '    DataType = DataType.Date, Mask = "MM/DD/YYYY",',
        "    Modern = true, SkipsWhenFull = true,",
        "    Location = new Point(20, 20), Enabled = false",
        "};",
        'field.SetSpin(7, "2026-01-01~2026-12-31");',
        'field.TrySetValue("2026-07-04");',
        "form.Controls.Add(field);",
    ],
    pascal: [
        "{ as under the settings of Germany }",
        "Setup := ZtSetup(DT_DATE, 'MM/DD/YYYY', ZTEO_MODERN or ZTEO_AUTOSKIP or ZTEO_SPIN);",
        "Setup.Initial := '2026-07-04';",
        "Setup.Increment := 7;",
        "Setup.Range := '2026-01-01~2026-12-31';",
        "Field := ZtCreate(Heap, Setup, Form, 101, 20, 20, 160, 24);",
        "SendMessageA(Field, EM_SETREADONLY, 1, 0);",
    ],
    python: [
        "# as under the settings of Germany",
        "field = ztedit.Edit.create(",
        '    heap, form.winfo_id(), ztedit.DT_DATE, "MM/DD/YYYY", place=(20, 20, 160, 24),',
        "    options=ztedit.ZTEO_MODERN | ztedit.ZTEO_AUTOSKIP | ztedit.ZTEO_SPIN,",
        '    spin_increment=7, spin_range="2026-01-01~2026-12-31",',
        '    initial="2026-07-04")',
        "ctypes.windll.user32.SendMessageA(field.hwnd, 0xCF, 1, 0)  # EM_SETREADONLY",
    ],
    javascript: [
        'import { attach } from "./ztfield.mjs";',
        "",
        'const field = attach(document.querySelector("#field"), {',
        '    mask: "MM/DD/YYYY",',
        '    type: "date",',
        "    autoskip: true,",
        "    readOnly: true,",
        '    spin: { increment: 7, range: "2026-01-01~2026-12-31" },',
        '    value: "2026-07-04",',
        "    settings: {",
        '        decimal: ",",',
        '        thousands: ".",',
        '        currency: "€",',
        "        currencyPosition: 3,",
        '        date: "dd.MM.yyyy",',
        '        months: ["JAN","FEB","MÄR","APR","MAI","JUN","JUL","AUG","SEP","OKT","NOV","DEZ"],',
        "    },",
        "});",
    ],
};

on("writes the call of each language, and copies it", wide, async () => {
    for (const [language, lines] of Object.entries(calls)) {
        await tab.check(`#language-${language}`, { force: true });
        assert.equal(await call(), lines.join("\n"));
        await tab.click("#copy-call");
        await shows("told", "Copied.");
        assert.equal(await clipboard(), lines.join("\n"));
    }
});

on("writes texts as each language wants them quoted", listed, async () => {
    const quoted = {
        c: 'p.codeTableText = "a//b\\t1/say \\"hi\\"\\tnull!/it\'s\\t2";',
        cpp: '.Choices(zt::CodeTable().Add("a/b", "1").Add("say \\"hi\\"", zt::CodeTable::kNull).Add("it\'s", "2"))',
        csharp: 'field.SetChoices("a//b\\t1/say \\"hi\\"\\tnull!/it\'s\\t2");',
        pascal: "Setup.Codes := 'a//b'#9'1/say \"hi\"'#9'null!/it''s'#9'2';",
        python: 'codes="a//b\\t1/say \\"hi\\"\\tnull!/it\'s\\t2"',
        javascript:
            'choices: [{"text":"a/b","value":"1"},{"text":"say \\"hi\\"","value":null},{"text":"it\'s","value":"2"}]',
    };
    for (const [language, part] of Object.entries(quoted)) {
        await tab.check(`#language-${language}`, { force: true });
        assert.ok((await call()).includes(part), await call());
    }
});

on("makes a row of the tests of what is typed, modern", "#mask=MM/DD/YYYY&type=date&region=jp", async () => {
    await tab.check("#language-test", { force: true });
    assert.match(await call(), /^\/\/ Type into the field/);
    await keys("");
    await press("Home");
    await tab.keyboard.type("7/x4");
    await press("Backspace", "ArrowLeft");
    const setup =
        'inline constexpr TypingSetup kBench = {"MM/DD/YYYY", DT_DATE, ZTEO_SPIN, nullptr, nullptr, "午前", "午後"};';
    await eventually(
        call,
        [
            "// under the settings of Japan",
            setup,
            '{kBench, nullptr, "{Home}7/x4{Bs}{Left}", "07/|0 /    ", "wrong kind"},',
        ].join("\n"),
    );
});

on("makes a row of the tests of what is typed, classic", "#mask=MM/DD/YYYY&type=date&modern=0", async () => {
    await tab.check("#language-test", { force: true });
    await keys("");
    await press("Home");
    await tab.keyboard.type("7x");
    await eventually(call, '{"Bench", "MM/DD/YYYY", DT_DATE, "text:|00/00/0000", "{Home}7x", "07/|00/0000", 1},');
});

test("a row says what keeps it from being played", () => {
    const recording = (keys, isFresh) => ({ keys, reasons: [], beeps: 0, start: { isFresh, marked: "|07/04/2026" } });
    const doubts = (keys, isFresh = true) =>
        testRowOf(freshBench(), recording(keys, isFresh), "|")
            .split("\n")
            .filter((line) => line.startsWith("//"));
    assert.deepEqual(doubts("7{Home}{Shift+Left}{Ctrl+Z}"), []);
    assert.deepEqual(doubts("{Shift+End}{Ctrl+Home}{Shift+End}"), [
        "// these rows have no name for {Shift+End}",
        "// these rows have no name for {Ctrl+Home}",
    ]);
    assert.deepEqual(doubts("{Ctrl+Z}", false), ["// undoing may reach back before this row"]);
});

on("begins the row anew behind what is no key", "", async () => {
    await tab.check("#language-test", { force: true });
    await keys("0704");
    await tab.click("#step-up");
    await keys("");
    await press("End", "Backspace");
    await eventually(async () => /"\{End\}\{Bs\}"/.test(await call()), true);
});

// ---- the address

on("shares all of the bench by its address, keys and all", "#mask=(***)+***-****&type=string&region=fr", async () => {
    await keys("555-12");
    await showsText("(555) 12 -    ");
    await tab.click("#share");
    await shows("told", "The link is on the clipboard.");
    const link = await clipboard();
    assert.ok(link.startsWith(`${page}?${opened}#mask=(***)+***-****&type=string&keys=`), link);
    await open(link.slice(link.indexOf("#")));
    await showsText("(555) 12 -    ");
    assert.equal(await tab.inputValue("#region"), "fr");
    await shows("state", shown("incomplete"));
});

on("keeps value and settings in the address through a reload", "", async () => {
    await tab.selectOption("#region", "de");
    await tab.click("summary");
    await typeIn("setting-currency", "EUR 100% #*+;&=");
    await typeIn("mask", "[currency(9)]");
    await tab.check("#type-decimal", { force: true });
    await typeIn("given", "1234.5");
    await press("Enter");
    const before = await text();
    assert.ok(before.includes("EUR 100% #*+;&="), before);
    await eventually(async () => (await hash()).includes("value=1234.50"), true);
    await tab.reload();
    await showsText(before);
    assert.equal(await tab.inputValue("#setting-currency"), "EUR 100% #*+;&=");
    assert.equal(await tab.locator("#type-decimal").isChecked(), true);
});

test("an address says any bench, and is read back as it was", () => {
    const parts = ["", "#", "*", "+", "%", "%41", ";", "\n", "&", "=", "{Ctrl+A}", "ä€午", "a b", "~!^'\"<>", "\u202f"];
    let seed = 7;
    const pick = () => parts[(seed = (seed * 1103515245 + 12345) % 2147483648) % parts.length];
    for (let i = 0; i < 500; ++i) {
        const bench = {
            ...freshBench(),
            mask: pick() + pick() + pick(),
            type: "string",
            choices: pick() + "\n" + pick(),
            minimum: pick(),
            value: pick(),
            keys: pick(),
            modern: i % 2 === 0,
            region: regions[i % regions.length].id,
        };
        bench.settings = { ...regions[i % regions.length].settings, currency: pick() };
        const read = benchOf("#" + addressOf(bench));
        assert.deepEqual(read, { bench, unread: [] });
    }
});

test("the address of a fresh bench is short", () => {
    assert.equal(addressOf(freshBench()), "mask=MM/DD/YYYY&type=date");
});

const badAddresses = [
    "#%",
    "#mask=%E0%A4%A&type=nonsense&region=atlantis",
    "#&&&=&==",
    "#type",
    "#decimal=,,&currencyPosition=9&months=a/b&by=-1&lock=maybe",
    "#mask=" + "A".repeat(5000),
    "#<script>alert(1)</script>",
    "#mask=%00",
    "#__proto__=1&constructor=2&toString=3",
    "#keys={Nonsense}{Ctrl+Q}{{}}7",
];

for (const address of badAddresses)
    on(`works with the bad address ${address.slice(0, 40)}`, address, async () => {
        if (!address.startsWith("#keys"))
            await eventually(
                async () =>
                    (await seen("told")).startsWith("The address says something that cannot be read") ||
                    address === "#&&&=&==",
                true,
            );
        await typeIn("mask", "YYYY-MM-DD");
        await tab.check("#type-date", { force: true });
        await tab.click("#empty");
        await keys("2026-7-4");
        await showsText("2026-07-04");
    });

on("follows an address that changes while it is open", "", async () => {
    await tab.evaluate(() => {
        location.hash = "#mask=HH:MM&type=time&value=14:07";
    });
    await showsText("14:07");
    await tab.click("#reset");
    await showsText("  /  /    ");
    assert.equal(await tab.inputValue("#mask"), "MM/DD/YYYY");
});

// ---- for everybody

on("is told in roles and names", "#mask=MM/DD/YYY&type=date", async () => {
    await tab.click("summary");
    const roles = await tab.locator("body").ariaSnapshot();
    for (const line of [
        "- banner:",
        "- main:",
        "- contentinfo:",
        '- heading "Mask laboratory" [level=1]',
        '- region "Mask":',
        '- region "Conditions":',
        '- region "Notifications":',
        '- region "Take it along":',
        '- region "Regional settings":',
        '- group "Type of its values":',
        '- group "Positions":',
        '- group "Editing":',
        '- log "Notifications"',
        '- button "Copy link"',
        '- button "Step up"',
        '- button "Empty the field"',
        '- combobox "Theme"',
        '- combobox "Country"',
        '- radio "Modern" [checked]',
        '- textbox "Mask"',
        '- spinbutton "Field"',
        '- textbox "Value from the program"',
        '- textbox "Increment"',
        '- textbox "Choices"',
        '- textbox "Decimal character"',
    ])
        assert.ok(roles.includes(line), `${line}\n${roles}`);
    assert.doesNotMatch(roles, /^\s*- (button|textbox|combobox|checkbox|radio|spinbutton|searchbox|link)(:| \[|$)/m);
});

// Who types hears what is typed: not each reading as well.
on("speaks by itself only of the verdict, of notifications and of what it has done", "", async () => {
    const speaking = await tab.evaluate(() =>
        [...document.querySelectorAll("output, [aria-live], [role=status], [role=log], [role=alert]")].map(
            (it) => it.id,
        ),
    );
    assert.deepEqual(speaking, ["verdict", "given-answer", "log", "told", "found"]);
    await keys("13");
    await eventually(() => tab.locator("#log > ol > li").count(), 3);
});

on("describes the mask's field by its verdict, and the ids that it names are there", "", async () => {
    const missing = await tab.evaluate(() =>
        ["for", "aria-labelledby", "aria-describedby", "aria-controls"].flatMap((name) =>
            [...document.querySelectorAll(`[${name}]`)]
                .flatMap((element) => element.getAttribute(name).split(/\s+/))
                .filter((id) => !document.getElementById(id)),
        ),
    );
    assert.deepEqual(missing, []);
    const twice = await tab.evaluate(() => {
        const ids = [...document.querySelectorAll("[id]")].map((element) => element.id);
        return ids.filter((id, at) => ids.indexOf(id) !== at);
    });
    assert.deepEqual(twice, []);
});

// Every control is reached by Tab, in the order of the page, and shows that it has the focus.
on("is walked through by Tab", "", async () => {
    await tab.evaluate(() => {
        document.querySelector("#regional").open = true;
    });
    await press("Tab");
    const visited = [];
    for (let i = 0; i < 80; ++i) {
        const at = await tab.evaluate(() => {
            const element = document.activeElement;
            const outlined = element.type === "radio" ? element.nextElementSibling : element;
            const style = getComputedStyle(outlined);
            const sees = style.outlineStyle !== "none" && parseFloat(style.outlineWidth) >= 2;
            return [element.id || element.tagName.toLowerCase(), sees];
        });
        if (at[0] === "body" || visited.some(([id]) => id === at[0])) break;
        visited.push(at);
        await press("Tab");
    }
    assert.deepEqual(
        visited.filter(([, sees]) => !sees),
        [],
    );
    assert.deepEqual(
        visited.map(([id]) => id),
        [
            "skip",
            "share",
            "reset",
            "theme",
            "open-gallery",
            "mask",
            "type-date",
            "field",
            "step-up",
            "step-down",
            "empty",
            "undo",
            "redo",
            "given",
            "give",
            "modern",
            "autoskip",
            "read-only",
            "spin",
            "increment",
            "minimum",
            "maximum",
            "choices",
            "clear-log",
            "log",
            "log-changes",
            "language-c",
            "call",
            "copy-call",
            "region",
            "summary",
            "setting-decimal",
            "setting-thousands",
            "setting-currency",
            "setting-currencyPosition",
            "setting-currencyDigits",
            "setting-am",
            "setting-pm",
            "setting-date",
            "setting-time",
            "setting-months",
        ],
    );
});

on("is worked by keys alone", "", async () => {
    const at = (id) => tab.locator(`#${id}`).focus();
    await at("spin");
    await press("Space");
    assert.equal(await tab.locator("#step-up").getAttribute("aria-disabled"), "true");
    await press("Space");
    await at("autoskip");
    await press("Space");
    await at("read-only");
    await press("Space", "Space");
    await at("region");
    await tab.keyboard.type("Ger");
    await eventually(() => tab.inputValue("#region"), "de");
    await tab.locator("summary").focus();
    await press("Enter");
    assert.equal(await tab.locator("#regional").evaluate((details) => details.open), true);
    await at("given");
    await tab.keyboard.type("2026-07-04");
    await press("Tab", "Enter");
    await showsText("07/04/2026");
    await at("step-up");
    await press("Space");
    await eventually(async () => (await text()) !== "07/04/2026", true);
    await at("undo");
    await press("Enter");
    await showsText("07/04/2026");
    await at("redo");
    await press("Enter");
    await eventually(async () => (await text()) !== "07/04/2026", true);
    await at("empty");
    await press("Enter");
    await showsText("  /  /    ");
    await at("language-c");
    await press("ArrowRight", "ArrowRight", "ArrowRight");
    await eventually(async () => (await call()).includes("ZtSetup"), true);
    await at("copy-call");
    await press("Enter");
    await eventually(clipboard, await call());
    await at("log-changes");
    await press("Space");
    await at("clear-log");
    await press("Enter");
    await at("share");
    await press("Enter");
    await eventually(async () => (await clipboard()).startsWith(`${page}?${opened}#mask=`), true);
    await at("theme");
    await tab.keyboard.type("Dar");
    await eventually(() => tab.evaluate(() => document.documentElement.dataset.theme), "dark");
    await at("reset");
    await press("Enter");
    await eventually(() => tab.inputValue("#region"), "us");
    await at("theme");
    await tab.keyboard.type("Sys");
});

on("has a light and a dark face, and keeps what was chosen", "", async () => {
    const paper = () => tab.evaluate(() => getComputedStyle(document.body).backgroundColor);
    await tab.selectOption("#theme", "light");
    const light = await paper();
    await tab.selectOption("#theme", "dark");
    const dark = await paper();
    assert.notEqual(light, dark);
    await tab.reload();
    assert.equal(await paper(), dark);
    await tab.selectOption("#theme", "system");
    await tab.emulateMedia({ colorScheme: "light" });
    assert.equal(await paper(), light);
    await tab.emulateMedia({ colorScheme: "dark" });
    assert.equal(await paper(), dark);
    await tab.emulateMedia({ colorScheme: null });
});

on("keeps still where motion is not wanted", "", async () => {
    const moving = () =>
        tab.evaluate(() => getComputedStyle(document.querySelector(".cell.caret"), "::before").animationName);
    assert.equal(await moving(), "none");
    await tab.emulateMedia({ reducedMotion: "no-preference" });
    assert.notEqual(await moving(), "none");
    await tab.emulateMedia({ reducedMotion: "reduce" });
});

// The texts that can be read, with the ratio of their colours; a pattern behind a text counts by its worst colour.
const faintTexts = () =>
    tab.evaluate(() => {
        const channels = (colour) => (colour.match(/[\d.]+/g) ?? []).map(Number);
        const luminance = ([r, g, b]) =>
            [r, g, b]
                .map((channel) => channel / 255)
                .map((channel) => (channel <= 0.04045 ? channel / 12.92 : ((channel + 0.055) / 1.055) ** 2.4))
                .reduce((sum, channel, i) => sum + channel * [0.2126, 0.7152, 0.0722][i], 0);
        const ratio = (one, other) => {
            const [dim, bright] = [luminance(one), luminance(other)].sort((a, b) => a - b);
            return (bright + 0.05) / (dim + 0.05);
        };
        const backgrounds = (element) => {
            const style = getComputedStyle(element);
            const pattern = (style.backgroundImage.match(/rgba?\([^)]*\)/g) ?? [])
                .map(channels)
                .filter(([, , , alpha = 1]) => alpha === 1);
            const [r, g, b, alpha = 1] = channels(style.backgroundColor);
            if (alpha === 1) return [[r, g, b], ...pattern];
            return [...pattern, ...(element.parentElement ? backgrounds(element.parentElement) : [[255, 255, 255]])];
        };
        const readable = (element) =>
            element.checkVisibility({ visibilityProperty: true }) &&
            !element.closest(".heard") &&
            element.tagName !== "OPTION";
        const own = (element) =>
            [...element.childNodes]
                .filter((node) => node.nodeType === Node.TEXT_NODE)
                .map((node) => node.data.trim())
                .join("");
        const dialog = document.querySelector("dialog[open]");
        return [...(dialog ?? document.body).querySelectorAll("*")]
            .filter(
                (element) =>
                    readable(element) &&
                    (own(element) || element.value) &&
                    !["SCRIPT", "STYLE"].includes(element.tagName),
            )
            .map((element) => {
                const colour = channels(getComputedStyle(element).color);
                const least = Math.min(...backgrounds(element).map((background) => ratio(colour, background)));
                return [
                    `${element.tagName} ${element.id || element.className} “${own(element).slice(0, 20)}”`,
                    Math.round(least * 100) / 100,
                ];
            })
            .filter(([, least]) => least < 4.5);
    });

const scenes = {
    "a mask that is refused": async () => {
        await typeIn("mask", "MM/DD/YYY");
        await eventually(() => tab.locator(".wrong").count(), 1);
        await tab.click("summary");
    },
    "some kinds of position": async () => {
        await open("#mask=~A*AX!^+YYYY&type=string&value=1b2c&lock=1");
        await keys("x");
    },
    "a date and time": async () => {
        await open("#mask=MM/DD/YYYY+HH:MM:SS+AM/PM&type=datetime");
        await keys("13x");
        await tab.click("#share");
    },
    "a mask of two hundred and fifty positions": async () => {
        await open("#mask=" + "*".repeat(250) + "&type=string");
        await keys("1234567890".repeat(25));
        await tab.check("#language-test", { force: true });
    },
    "the gallery": async () => {
        await tab.click("#open-gallery");
    },
};

// What cannot be seen without scrolling sideways.
const cutOff = () =>
    tab.evaluate(() =>
        [...document.querySelectorAll("button, input, select, textarea, pre, .cell, .panel, dialog[open] *")]
            .filter((element) => element.checkVisibility() && !element.closest(".heard"))
            .map((element) => [element.id || element.className || element.tagName, element.getBoundingClientRect()])
            .filter(([, box]) => box.width > 0 && (box.left < -0.5 || box.right > innerWidth + 0.5))
            .map(([id]) => id),
    );

const tooSmallForFingers = () =>
    tab.evaluate(() =>
        [...document.querySelectorAll("button, select, textarea, input[type=text], label.check, .segments label")]
            .filter((element) => element.checkVisibility())
            .map((element) => [element.id || element.textContent.trim(), element.getBoundingClientRect()])
            .filter(([, box]) => box.width > 0 && (box.width < 24 || box.height < 24))
            .map(([id]) => id),
    );

for (const [name, play] of Object.entries(scenes))
    on(`can be read at all widths, by day and by night: ${name}`, "", async () => {
        await play();
        for (const colorScheme of schemes) {
            await tab.emulateMedia({ colorScheme });
            assert.deepEqual(await faintTexts(), [], colorScheme);
        }
        await tab.emulateMedia({ colorScheme: null });
        for (const width of widths) {
            await tab.setViewportSize({ width, height: 800 });
            assert.ok((await tab.evaluate(() => document.documentElement.scrollWidth)) <= width, `${width}`);
            assert.deepEqual(await cutOff(), [], `${width}`);
            assert.deepEqual(await tooSmallForFingers(), [], `${width}`);
        }
        await tab.setViewportSize({ width: 1440, height: 900 });
    });
