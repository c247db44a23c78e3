// Plays a situation in a page, with the keys and the clipboard of the browser, and tells what stands there.

/** The keypad's point as keyboards report it while the keypad makes numbers. */
const keypadPoint = { key: ".", code: "NumpadDecimal", windowsVirtualKeyCode: 110, location: 3, isKeypad: true };

/** For comparison: what is not filled in is blank, and blanks at the end do not count. */
export function comparable(text) {
    return text.replaceAll("_", " ").trimEnd();
}

async function paste(page, text) {
    await page.evaluate((copied) => navigator.clipboard.writeText(copied), text);
    await page.keyboard.press("Control+v");
}

async function pressKeypadPoint(page) {
    const protocol = await page.context().newCDPSession(page);
    await protocol.send("Input.dispatchKeyEvent", { type: "keyDown", text: ".", ...keypadPoint });
    await protocol.send("Input.dispatchKeyEvent", { type: "keyUp", ...keypadPoint });
    await protocol.detach();
}

async function act(page, { typed, pasted, key }) {
    if (typed !== undefined) await page.keyboard.type(typed);
    else if (pasted !== undefined) await paste(page, pasted);
    else if (key === keypadPoint.code) await pressKeypadPoint(page);
    else await page.keyboard.press(key);
}

export async function play(page, name, situation) {
    const started = await page.evaluate(([who, kind, start]) => window.begin(who, kind, start), [name, situation.kind, situation.start]);
    for (const one of situation.acts) await act(page, one);
    const shown = await page.inputValue("#field");
    return { started, shown, right: comparable(shown) === situation.shown.trimEnd() };
}
