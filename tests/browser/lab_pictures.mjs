// Pictures of the laboratory at three widths, by day and by night, with something on the bench.
// Usage: node lab_pictures.mjs PAGE DIR
import { mkdirSync } from "node:fs";
import { pathToFileURL } from "node:url";

import { launch } from "./lab_browser.mjs";

const [page, folder] = process.argv.slice(2);
const address = pathToFileURL(page).href;

const refused = async (tab) => {
    await tab.goto(address + "#mask=MM/DD/YYYY&type=date");
    await tab.focus("#field");
    await tab.keyboard.type("7x/4/20");
};

const wrong = async (tab) => {
    await tab.goto(address + "#mask=MM/DD/YYY&type=date&region=de");
    await tab.click("summary");
};

const cabinet = async (tab) => {
    await tab.goto(address);
    await tab.click("#open-gallery");
    await tab.keyboard.type("de");
};

const amount = async (tab) => {
    await tab.goto(address + "#mask=[currency(9)]&type=decimal&region=de&keys=-1234,5");
    await tab.focus("#field");
    await tab.keyboard.press("End");
    await tab.keyboard.press("Backspace");
    await tab.keyboard.type("x");
    await tab.check("#language-test", { force: true });
};

const scenes = { typed: refused, amount, refused: wrong, gallery: cabinet };

const browser = await launch();
mkdirSync(folder, { recursive: true });
for (const width of [360, 820, 1440])
    for (const colorScheme of ["light", "dark"]) {
        const context = await browser.newContext({
            viewport: { width, height: 900 },
            colorScheme,
            reducedMotion: "reduce",
        });
        const tab = await context.newPage();
        tab.on("pageerror", (error) => {
            throw error;
        });
        for (const [name, play] of Object.entries(scenes)) {
            await tab.goto("about:blank");
            await play(tab);
            await tab.screenshot({
                path: `${folder}/${name}-${width}-${colorScheme}.png`,
                fullPage: name !== "gallery",
            });
        }
        await context.close();
    }
await browser.close();
