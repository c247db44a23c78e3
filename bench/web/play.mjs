// Plays a situation in a page, with the keys and the clipboard of the browser, and tells what stands there.

const keyPause = 0;

/** For comparison: what is not filled in is blank, and blanks at the end do not count. */
export function comparable(text) {
    return text.replaceAll("_", " ").trimEnd();
}

async function paste(page, text) {
    await page.evaluate((copied) => navigator.clipboard.writeText(copied), text);
    await page.keyboard.press("Control+v");
}

async function act(page, { typed, pasted, key }) {
    if (typed !== undefined) await page.keyboard.type(typed, { delay: keyPause });
    else if (pasted !== undefined) await paste(page, pasted);
    else await page.keyboard.press(key);
}

export async function play(page, name, situation) {
    const started = await page.evaluate(([who, kind, start]) => window.begin(who, kind, start), [name, situation.kind, situation.start]);
    for (const one of situation.acts) await act(page, one);
    const shown = await page.inputValue("#field");
    return { started, shown, right: comparable(shown) === situation.shown.trimEnd() };
}
